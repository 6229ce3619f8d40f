// report text, report html: the junk scan, and what it found as a report in a file.

#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "core/form7.h"
#include "core/program.h"
#include "support/text_file.h"
#include "view/console/console_command.h"
#include "view/console/console_dialogs.h"
#include "view/console/scan/attendance.h"
#include "view/console/scan/browser_answer.h"

namespace quillvane {

namespace {

namespace fs = std::filesystem;

struct ReportWords {
  std::string form;
  std::string file;
  bool replace = false;
  BrowserAnswer browsers;
};

// Written beside and put in place, so that nobody finds half a report.
bool write_host_file(const std::string& path, const std::string& content) {
  const std::string beside = path + ".new";
  std::ofstream file(beside, std::ios::binary | std::ios::trunc);
  file << content << std::flush;
  const bool written = file.good();
  file.close();
  std::error_code failed;
  if (written) fs::rename(beside, path, failed);
  if (written && !failed) return true;
  fs::remove(beside, failed);
  return false;
}

bool is_standard_output(const ReportWords& words) { return words.file == "-"; }

int scan_and_report(const ConsoleSession& console, const ReportWords& words) {
  const std::unique_ptr<ConsoleMachine> machine = console.open_machine();
  if (machine == nullptr) return kNotDone;
  ConsoleDialogs dialogs(console.io);
  words.browsers.apply_to(dialogs);
  Program program(machine->platform().with({.dialogs = &dialogs}));
  program.session.on_problem = console.problem_teller();
  program.start("");
  Form7& form = program.main_window();
  if (!form.may_remove()) return kNotDone;  // the box of the start has said why
  Attendance attendance(console.io, machine->loop(), program);
  attendance.run([&] { form.cmd_start.click(); });
  tell_skipped(console.io.err, form);
  if (attendance.cancelled()) return console.problem("report: cancelled, nothing was written");

  const std::string text = words.form == "html" ? form.html_report(form) : form.text_report(form);
  const std::string content = bytes_of_text(machine->platform().system, text);
  if (is_standard_output(words)) {
    console.io.out << content;
    return kDone;
  }
  if (write_host_file(words.file, content)) return kDone;
  return console.problem(words.file + ": cannot be written");
}

int report(const ConsoleSession& console, const ReportWords& words) {
  if (words.form != "text" && words.form != "html") {
    console.problem(words.form + ": must be text or html");
    return kWrongWords;
  }
  std::error_code unknown;
  if (!is_standard_output(words) && !words.replace && fs::exists(words.file, unknown)) {
    return console.problem(words.file + ": is there already (--replace writes over it)");
  }
  return scan_and_report(console, words);
}

}  // namespace

std::function<int()> prepare_report(CLI::App& app, ConsoleSession& session) {
  const auto words = std::make_shared<ReportWords>();
  app.add_option("FORM", words->form, "text or html")->required();
  app.add_option("FILE", words->file, "Where to write it; - for standard output")->required();
  app.add_flag("--replace", words->replace, "Write over a file that is there");
  words->browsers.add_options(app);
  return [words, &session] { return report(session, *words); };
}

}  // namespace quillvane
