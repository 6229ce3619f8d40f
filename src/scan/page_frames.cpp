#include "scan/page_frames.h"

namespace quillvane {

void PageFrames::show_frame(Frame& page) {
  page.move_to(Frame2);
  page.show();
  for (Frame* other : {&Frame2, &Frame4, &Frame6, &Frame8, &Frame80}) {
    if (other != &page) other->hide();
  }
}

}  // namespace quillvane
