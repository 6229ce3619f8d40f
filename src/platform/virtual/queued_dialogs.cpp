#include "platform/virtual/queued_dialogs.h"

namespace quillvane {

namespace {

// The low four bits of a style tell which buttons a box has.
bool is_question(std::uint32_t style) { return (style & 0x0FU) == kBoxYesNo; }

// The first text of the queue, empty when none is left.
std::string next_of(std::deque<std::string>& texts) {
  if (texts.empty()) return {};
  std::string text = std::move(texts.front());
  texts.pop_front();
  return text;
}

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

std::string QueuedDialogs::next_path() { return next_of(paths_); }

std::string QueuedDialogs::browse_folder(const std::string& title, std::uint32_t flags,
                                         const std::string& /*root*/) {
  std::string path = next_path();
  boxes_.push_back({"folder", title, "", flags, path});
  return path;
}

std::string QueuedDialogs::save_file(const FileQuestion& question) {
  return ask_for_file("save", question);
}

std::string QueuedDialogs::open_file(const FileQuestion& question) {
  return ask_for_file("open", question);
}

std::string QueuedDialogs::ask_for_file(const std::string& kind, const FileQuestion& question) {
  std::string path = next_path();
  boxes_.push_back({kind, "", question.title, 0, path, question.file, question.filter});
  return path;
}

std::string QueuedDialogs::input_box(const std::string& prompt, const std::string& title,
                                     const std::string& preset) {
  std::string text = next_of(inputs_);
  boxes_.push_back({"input", prompt, title, 0, text, {}, {}, preset});
  return text;
}

}  // namespace quillvane
