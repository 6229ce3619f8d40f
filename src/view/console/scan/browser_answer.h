// What happens to browsers that run when their files are to be scanned.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "core/form7.h"
#include "view/console/console_dialogs.h"

namespace CLI {
class App;
}

namespace quillvane {

// --close-browsers and --keep-browsers; without either the user is asked.
class BrowserAnswer {
 public:
  void add_options(CLI::App& app);
  void apply_to(ConsoleDialogs& dialogs) const;

 private:
  bool close_ = false;
  bool keep_ = false;
};

// Captions of the browsers that were left out since they run.
[[nodiscard]] std::vector<std::string> skipped_captions(const Form7& form);

// One line for each of them.
void tell_skipped(std::ostream& err, const Form7& form);

}  // namespace quillvane
