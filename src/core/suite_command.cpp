// The suite's run: what a run switch does from its scan to the end of the program, and the early
// reading that the suite's window gets on the way.
#include <string>

#include "core/form7.h"
#include "scan/hit_rows.h"
#include "support/registry_text.h"
#include "support/text.h"
#include "support/text_file.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kResultKey = "software\\Quillvane\\Tidewrack Deluxe\\real\\";
constexpr const char* kFinishedKey = "software\\Quillvane\\Tidewrack Deluxe\\real";
constexpr const char* kSuiteWindow = "Tidewrack";

void write(const Form7& form, const char* key, const std::string& name, const std::string& text) {
  // A value that cannot be written is lost to the suite.
  static_cast<void>(
      WriteRegistryString(form.platform().registry, Hive::kLocalMachine, key, name, text));
}

}  // namespace

// Each tick adds the Browsers group once more: the quick run gives an early reading and not a
// finished count. Meant so.
void Form7::tell_suite() {
  if (session.stopped()) return;  // a wait in progress may still tick
  totals.totalfiles += totals.brfiles;
  totals.totalsize += totals.brsize;
  const std::string message =
      "j|" + number_text(totals.totalfiles) + "|" + number_text(totals.totalsize);
  SuiteChannel& suite = platform().suite;
  suite.publish(message);
  if (!suite.notify(kSuiteWindow, message.size())) return;
  suite.withdraw();
  session.stop();
}

void Form7::run_suite_command() {
  if (Val(Text9.text()) != 1) return;
  autosearch();
  if (session.stopped()) return;
  write(*this, kResultKey, "junk-count", txtfilecont.text());
  write(*this, kResultKey, "junk-size", size_text(Val(txtfilesize.text())));
  if (view1.count() > 0) finish_suite_run();
  if (session.stopped()) return;
  write(*this, kFinishedKey, "dc", "1");
  session.end();
}

// A first half alone cleans without asking; the pair w2-c2 only counts; an unknown second half
// never cleans.
void Form7::finish_suite_run() {
  const auto clean_if_told = [this] {
    if (session.known_second_half) orvbutton2.click();
  };
  if (session.suitemode == 0) {
    if (session.cleanmode == 1 || session.forceclean == 1) clean_if_told();
    if (session.stopped()) return;
    write_result_file();
  }
  if (session.cleanmode == 0) {
    if (session.suitemode == 1) {
      write_result_file();
      write_junk_list();
    } else {
      clean_if_told();
      if (session.stopped()) return;
      write_result_file();
    }
  }
}

void Form7::write_junk_list() {
  std::string lines;
  for (int row = 1; row <= view1.count(); ++row) {
    lines += view1.text(row) + "||" + view1.sub_item(row, kSizeColumn) + "\r\n";
  }
  static_cast<void>(write_text_file(platform(), session.data_file("junktmp.txt"), lines));
}

}  // namespace quillvane
