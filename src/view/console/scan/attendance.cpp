#include "view/console/scan/attendance.h"

#include <optional>
#include <string>
#include <utility>

#include "core/form7.h"
#include "view/console/readable.h"
#include "view/console/scan/progress_line.h"
#include "view/console/scan/scan_progress.h"

namespace quillvane {

Attendance::Attendance(ConsoleIo& io, VirtualLoop& loop, Program& program, Work work)
    : io_(io), loop_(loop), program_(program), work_(work) {
  io_.interrupted = [] { return Interrupt::came(); };
}

Attendance::~Attendance() { io_.interrupted = nullptr; }

void Attendance::run(const std::function<void()>& act) {
  std::optional<ProgressLine> progress;
  if (io_.err_is_terminal) {
    progress.emplace(io_.err, io_.err_columns);
    io_.clear_line = [&] { progress->clear(); };
  }
  loop_.set_served_hook([&] {
    if (!program_.started()) return;
    serve();
    const Form7& form = program_.main_window();
    const bool is_search = work_ == Work::kSearch;
    if (progress) {
      progress->show(scan_progress(form, is_search ? form.Label5.caption() : form.Text13.text()));
    }
  });
  loop_.set_reading_hook([&](const TreeProgress& reading) {
    if (!program_.started()) return true;
    const Form7& form = program_.main_window();
    if (progress) progress->show(scan_progress(form, reading.folder));
    // Nobody waits for the rest of a tree whose scan was cancelled.
    return !cancelled() && (work_ == Work::kSearch || form.cancelflag != 1);
  });
  program_.session.on_warning = [this](const std::string& warning) {
    if (io_.clear_line) io_.clear_line();
    io_.err << "quillvane: " << printable(warning) << '\n';
  };
  act();
  program_.session.on_warning = nullptr;
  loop_.set_reading_hook(nullptr);
  loop_.set_served_hook(nullptr);
  io_.clear_line = nullptr;
}

void Attendance::serve() {
  Form7& form = program_.main_window();
  if (on_window) std::exchange(on_window, nullptr)(form);
  if (!cancelled()) return;
  program_.session.end_cleaning();
  cancel(form);
}

void Attendance::cancel(Form7& form) const {
  if (work_ == Work::kSearch) {
    if (form.Text4.text() != "1") form.orvbutton10.click();
    // The run goes on with the next drive, and begins a search of its own there.
    form.search.Cancel();
    return;
  }
  // Each scan begins with the flag cleared, the one behind a cleaning too.
  if (form.cancelflag == 1) return;
  form.cmd_cancel.click();
  form.cancelflag = 1;  // in the scan of a run switch the button is off
}

}  // namespace quillvane
