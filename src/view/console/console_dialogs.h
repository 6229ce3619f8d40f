// Questions and messages of the program on a terminal, or answered in advance.
#pragma once

#include <map>
#include <string>

#include "platform/dialogs.h"
#include "view/console/console_io.h"

namespace quillvane {

class ConsoleDialogs final : public Dialogs {
 public:
  explicit ConsoleDialogs(ConsoleIo& io) : io_(io) {}

  // Questions with this title are answered so without asking. Of others the user at the terminal is
  // asked; where there is none the answer is No. After Ctrl-C it is No to each question.
  void answer_in_advance(const std::string& title, Answer answer) { answers_[title] = answer; }

  // Whether the last question of this title was answered Yes.
  [[nodiscard]] bool said_yes(const std::string& title) const;

  Answer message_box(const std::string& text, const std::string& title,
                     std::uint32_t style) override;

  // Nobody is asked for a folder: the dialog is cancelled.
  std::string browse_folder(const std::string& /*title*/, std::uint32_t /*flags*/,
                            const std::string& /*root*/) override {
    return {};
  }

  // Nor for a file.
  std::string save_file(const FileQuestion& /*question*/) override { return {}; }
  std::string open_file(const FileQuestion& /*question*/) override { return {}; }

  // Nor for a text.
  std::string input_box(const std::string& /*prompt*/, const std::string& /*title*/,
                        const std::string& /*preset*/) override {
    return {};
  }

 private:
  [[nodiscard]] Answer ask(const std::string& text);
  [[nodiscard]] bool interrupted() const;

  ConsoleIo& io_;
  std::map<std::string, Answer> answers_;  // in advance, by title
  std::map<std::string, Answer> given_;    // the last of each title
};

}  // namespace quillvane
