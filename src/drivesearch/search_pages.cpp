// The way through the pages of the drive search: drives, file types, lists, run.
#include "drivesearch/search_run.h"
#include "support/val.h"

namespace quillvane {

namespace {

// wizardstep
constexpr int kDrives = 0;
constexpr int kTypes = 1;
constexpr int kLists = 2;
constexpr int kRun = 3;

}  // namespace

void SearchRun::connect_pages() {
  chameleonButton10.on_click = [this] { next_page(); };
  chameleonButton8.on_click = [this] { previous_page(); };
  orvbutton5.on_click = [this] { open_run(); };
  orvbutton10.on_click = [this] { leave_run(); };
  pages_.drives.chameleonButton6.on_click = [this] { show_drives_page(); };
  Text4.on_change = [this] {
    if (Val(Text4.text()) == 1) orvbutton10.set_caption("Exit");
  };
}

void SearchRun::next_page() {
  switch (wizardstep) {
    case kDrives:
      pages_.types.orvbutton8.raise_click();
      chameleonButton8.set_enabled(true);
      wizardstep = kTypes;
      break;
    case kTypes:
      pages_.lists.chameleonButton1.raise_click();
      wizardstep = kLists;
      break;
    case kLists:
      wizardstep = kRun;
      orvbutton5.raise_click();  // which sets the step back
      chameleonButton10.set_enabled(false);
      break;
    default:
      break;
  }
}

void SearchRun::previous_page() {
  switch (wizardstep) {
    case kRun:
      pages_.lists.chameleonButton1.raise_click();
      chameleonButton10.set_enabled(true);
      wizardstep = kLists;
      break;
    case kLists:
      pages_.types.orvbutton8.raise_click();
      chameleonButton10.set_enabled(true);
      wizardstep = kTypes;
      break;
    case kTypes:
      pages_.drives.chameleonButton6.raise_click();
      chameleonButton8.set_enabled(false);
      wizardstep = kDrives;
      break;
    default:
      break;
  }
}

void SearchRun::show_drives_page() {
  wizardstep = kDrives;
  pages_.frames.show_frame(pages_.frames.Frame2);
}

// The buttons between the pages come back by orvbutton10 alone.
void SearchRun::open_run() {
  JunkPage& junk = pages_.junk;
  pages_.types.command811.set_enabled(false);
  pages_.types.command911.set_enabled(false);
  nodrivepicked = 0;
  for (Label* label : {&Label5, &Label7, &Label10}) label->set_caption("");
  junk.txtfilecont.set_text("");
  junk.txtfilesize.set_text("");
  wizardstep = kLists;
  Bar1.set_value(0);
  pages_.frames.show_frame(pages_.frames.Frame8);
  chameleonButton8.set_enabled(false);
  chameleonButton10.set_enabled(false);
  Command11.raise_click();
  junk.view1.show();
  enable_results(junk.view1.count() > 0);
  if (nodrivepicked == 1) pages_.drives.chameleonButton6.raise_click();
}

void SearchRun::leave_run() {
  search.Cancel();
  Text4.set_text("1");
  pages_.types.orvbutton8.set_enabled(true);
  pages_.lists.chameleonButton1.set_enabled(true);
  chameleonButton8.set_enabled(true);
  chameleonButton10.set_enabled(true);
  const bool has_rows = pages_.junk.view1.count() > 0;
  if (has_rows) enable_results(true);
  // Without results the page before the run is the one to go on from.
  pages_.frames.show_frame(has_rows ? pages_.frames.Frame80 : pages_.frames.Frame6);
  pages_.junk.view1.show();
}

void SearchRun::enable_results(bool enabled) {
  enable_removal(enabled);
  for (Button* button :
       {&pages_.report.orvbutton3, &chameleonButton3, &chameleonButton4, &chameleonButton11}) {
    button->set_enabled(enabled);
  }
}

// The progress stays behind the results until the page of the run is left.
void SearchRun::show_results() {
  PageFrames& frames = pages_.frames;
  frames.Frame80.move_to(frames.Frame2);
  frames.Frame80.show();
  for (Frame* page : {&frames.Frame2, &frames.Frame4, &frames.Frame6}) page->hide();
  pages_.junk.view1.show();
}

}  // namespace quillvane
