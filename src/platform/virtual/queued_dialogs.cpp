#include "platform/virtual/queued_dialogs.h"

namespace quillvane {

namespace {

// The low four bits of a style tell which buttons a box has.
bool is_question(std::uint32_t style) { return (style & 0x0FU) == kBoxYesNo; }

}  // namespace

Answer QueuedDialogs::message_box(const std::string& text, const std::string& title,
                                  std::uint32_t style) {
  const bool question = is_question(style);
  Answer given = question ? Answer::kNo : Answer::kOk;
  if (!answers_.empty()) {
    given = answers_.front();
    answers_.pop_front();
  }
  boxes_.push_back(
      {question ? "question" : "message", text, title, style, std::string(answer_name(given))});
  effects_.add("box", {{"text", text}});
  return given;
}

std::string_view answer_name(Answer answer) {
  switch (answer) {
    case Answer::kOk:
      return "ok";
    case Answer::kCancel:
      return "cancel";
    case Answer::kYes:
      return "yes";
    case Answer::kNo:
      return "no";
  }
  return "";
}

std::string QueuedDialogs::next_path() {
  if (paths_.empty()) return {};
  std::string path = std::move(paths_.front());
  paths_.pop_front();
  return path;
}

std::string QueuedDialogs::browse_folder(const std::string& title, std::uint32_t flags,
                                         const std::string& /*root*/) {
  std::string path = next_path();
  boxes_.push_back({"folder", title, "", flags, path});
  return path;
}

std::string QueuedDialogs::save_file(const FileQuestion& question) {
  std::string path = next_path();
  boxes_.push_back({"save", "", question.title, 0, path, question.file, question.filter});
  return path;
}

}  // namespace quillvane
