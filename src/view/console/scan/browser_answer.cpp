#include "view/console/scan/browser_answer.h"

#include <CLI/CLI.hpp>

#include "cleaning/questions.h"
#include "scan/catalogue.h"

namespace quillvane {

void BrowserAnswer::add_options(CLI::App& app) {
  CLI::Option* close = app.add_flag("--close-browsers", close_, "Close browsers that run");
  app.add_flag("--keep-browsers", keep_, "Leave out browsers that run")->excludes(close);
}

void BrowserAnswer::apply_to(ConsoleDialogs& dialogs) const {
  if (close_) dialogs.answer_in_advance(kCloseBrowserTitle, Answer::kYes);
  if (keep_) dialogs.answer_in_advance(kCloseBrowserTitle, Answer::kNo);
}

std::vector<std::string> skipped_captions(const Form7& form) {
  std::vector<std::string> captions;
  for (const int node : form.skipped_browsers) captions.emplace_back(kCatalogue[node - 1].caption);
  return captions;
}

void tell_skipped(std::ostream& err, const Form7& form) {
  for (const std::string& caption : skipped_captions(form)) {
    err << "quillvane: " << caption << ": left out, since the browser is running\n";
  }
}

}  // namespace quillvane
