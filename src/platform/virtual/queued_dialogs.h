// Message boxes that nobody sees: each is answered from a queue and kept for whoever asks what
// was shown.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/dialogs.h"
#include "platform/virtual/effect_log.h"

namespace quillvane {

// A box that came up. Texts, so that dialogs which are answered by a path or an input fit in.
struct ShownBox {
  std::string kind;  // "message", "question", "folder", "open", "save" or "input"
  std::string text;
  std::string title;
  std::uint32_t style = 0;
  std::string answer;       // "ok", "cancel", "yes" or "no"; of a dialog what it was answered
  std::string file = {};    // of a file dialog: the name it began with ...
  std::string filter = {};  // ... and what it lets through
  std::string preset = {};  // of an input box: the text it began with

  friend bool operator==(const ShownBox&, const ShownBox&) = default;
};

class QueuedDialogs final : public Dialogs {
 public:
  // Each box is an effect too ("box" with its "text"), noted in `effects`.
  explicit QueuedDialogs(EffectLog& effects) : effects_(effects) {}

  // The answer to the next box that has none yet. It is given as it stands, whatever the buttons.
  void answer(Answer answer) { answers_.push_back(answer); }

  // With nothing queued a question is answered kNo, a message kOk.
  Answer message_box(const std::string& text, const std::string& title,
                     std::uint32_t style) override;

  // With no path queued it is cancelled.
  std::string browse_folder(const std::string& title, std::uint32_t flags,
                            const std::string& root) override;
  std::string save_file(const FileQuestion& question) override;
  std::string open_file(const FileQuestion& question) override;
  std::string input_box(const std::string& prompt, const std::string& title,
                        const std::string& preset) override;

  // Answers to file and folder dialogs and to input boxes; an empty path cancels.
  void answer_path(std::string path) { paths_.push_back(std::move(path)); }
  void answer_input(std::string text) { inputs_.push_back(std::move(text)); }

  // The boxes since the last call.
  [[nodiscard]] std::vector<ShownBox> take_boxes() { return std::exchange(boxes_, {}); }

 private:
  [[nodiscard]] std::string next_path();
  std::string ask_for_file(const std::string& kind, const FileQuestion& question);

  EffectLog& effects_;
  std::deque<Answer> answers_;
  std::deque<std::string> paths_;
  std::deque<std::string> inputs_;
  std::vector<ShownBox> boxes_;
};

// "ok", "cancel", "yes" or "no".
[[nodiscard]] std::string_view answer_name(Answer answer);

}  // namespace quillvane
