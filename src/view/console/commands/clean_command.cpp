// clean: the scan, the question, the cleaning run, and what became of the files.

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "cleaning/permission.h"
#include "cleaning/questions.h"
#include "core/form7.h"
#include "core/program.h"
#include "view/console/clean/cleaning_watch.h"
#include "view/console/console_command.h"
#include "view/console/console_dialogs.h"
#include "view/console/json_text.h"
#include "view/console/scan/attended_run.h"
#include "view/console/scan/browser_answer.h"
#include "view/console/scan/scan_json.h"
#include "view/console/scan/scan_table.h"

namespace quillvane {

namespace {

struct CleanOptions {
  BrowserAnswer browsers;
  bool yes = false;
};

std::vector<std::string> recycle_bin_rows(const ListView& hits) {
  std::vector<std::string> rows;
  for (int row = 1; row <= hits.count(); ++row) {
    std::string path = hits.text(row);
    if (in_recycle_bin(path)) rows.push_back(std::move(path));
  }
  return rows;
}

Json counts_json(const CleaningCounts& counts) {
  return {{"removed", counts.removed}, {"queued", counts.queued}, {"failed", counts.failed}};
}

void print_counts(std::ostream& out, const CleaningCounts& counts) {
  out << "Removed: " << counts.removed << ", queued for the next restart: " << counts.queued
      << ", failed: " << counts.failed << '\n';
}

int clean(const ConsoleSession& session, const CleanOptions& options) {
  const std::unique_ptr<ConsoleMachine> machine = session.open_machine();
  if (machine == nullptr) return kNotDone;
  ConsoleIo& io = session.io;
  ConsoleDialogs dialogs(io);
  options.browsers.apply_to(dialogs);
  if (options.yes) dialogs.answer_in_advance(kRemoveFilesTitle, Answer::kYes);
  CleaningWatch watch(machine->platform());
  Program program(machine->platform().with({.files = &watch, .dialogs = &dialogs}));
  program.start("");
  Form7& form = program.main_window();
  run_attended(io, machine->loop(), program, [&] { form.cmd_start.click(); });
  tell_skipped(io.err, form);

  const ScanReport report = read_report(form);
  const ListView* files = session.list ? &form.view1 : nullptr;
  if (session.json) {
    print_scan_json_open(io.out, report, files);
  } else {
    print_scan_table(io.out, report, files, io.out_takes_bold);
  }
  watch.begin(recycle_bin_rows(form.view1));
  run_attended(io, machine->loop(), program, [&] { form.cmd_clean.click(); });
  const CleaningCounts counts =
      dialogs.said_yes(kRemoveFilesTitle) ? watch.end() : CleaningCounts{};
  if (session.json) {
    io.out << ",\n \"cleaned\": " << json_text(counts_json(counts)) << "}\n";
  } else {
    print_counts(io.out, counts);
  }
  return kDone;
}

}  // namespace

std::function<int()> prepare_clean(CLI::App& app, ConsoleSession& session) {
  const auto options = std::make_shared<CleanOptions>();
  app.add_flag("--yes", options->yes, "Remove without asking");
  options->browsers.add_options(app);
  return [options, &session] { return clean(session, *options); };
}

}  // namespace quillvane
