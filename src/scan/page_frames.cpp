#include "scan/page_frames.h"

namespace quillvane {

void PageFrames::show_result_frame() {
  Frame80.move_to(Frame2);
  Frame80.show();
  for (Frame* page : {&Frame2, &Frame4, &Frame6, &Frame8}) page->hide();
}

}  // namespace quillvane
