#include "view/console/console_dialogs.h"

#include "platform/unicode_case.h"
#include "view/console/readable.h"

namespace quillvane {

bool ConsoleDialogs::said_yes(const std::string& title) const {
  const auto given = given_.find(title);
  return given != given_.end() && given->second == Answer::kYes;
}

Answer ConsoleDialogs::message_box(const std::string& text, const std::string& title,
                                   std::uint32_t style) {
  if ((style & kBoxYesNo) != 0) {
    if (interrupted()) return given_[title] = Answer::kNo;
    const auto known = answers_.find(title);
    return given_[title] = known == answers_.end() ? ask(text) : known->second;
  }
  if (io_.clear_line) io_.clear_line();
  io_.err << "quillvane: " << shown(text, io_.err_is_terminal) << '\n';
  return Answer::kOk;
}

Answer ConsoleDialogs::ask(const std::string& text) {
  if (!io_.in_is_terminal) return Answer::kNo;
  io_.out.flush();
  if (io_.clear_line) io_.clear_line();
  io_.err << shown(text, io_.err_is_terminal) << " [y/N] " << std::flush;
  const bool ready = !io_.await_line || io_.await_line([this] { return interrupted(); });
  std::string line;
  if (ready) std::getline(io_.in, line);
  if (interrupted()) {
    io_.err << '\n';  // the question's line was not ended by the user
    return Answer::kNo;
  }
  const std::string word = lower_case(line);
  return word == "y" || word == "yes" ? Answer::kYes : Answer::kNo;
}

bool ConsoleDialogs::interrupted() const { return io_.interrupted && io_.interrupted(); }

}  // namespace quillvane
