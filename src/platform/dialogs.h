// Message boxes and dialogs of the system.
#pragma once

#include <cstdint>
#include <string>

namespace quillvane {

// Styles of message boxes, as Windows numbers them.
inline constexpr std::uint32_t kBoxYesNo = 4;
inline constexpr std::uint32_t kBoxIconError = 16;
inline constexpr std::uint32_t kBoxIconQuestion = 32;
inline constexpr std::uint32_t kBoxIconWarning = 48;
inline constexpr std::uint32_t kBoxIconInformation = 64;
inline constexpr std::uint32_t kBoxSystemModal = 4096;

// As Windows numbers them.
enum class Answer { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

// What a dialog for a file name asks.
struct FileQuestion {
  std::string title;
  std::string filter;  // pairs of a text and its pattern, all parted by "|"
  std::string file;    // the name it begins with
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // Shows a box and waits for the answer. With kBoxYesNo in `style` it is a question, answered
  // kYes or kNo; otherwise a message, answered kOk.
  virtual Answer message_box(const std::string& text, const std::string& title,
                             std::uint32_t style) = 0;

  // Lets the user choose a folder; empty when cancelled. `flags` are those of SHBrowseForFolder,
  // `root` the folder below which to choose, empty for all.
  virtual std::string browse_folder(const std::string& title, std::uint32_t flags,
                                    const std::string& root) = 0;

  // Lets the user name a file to be written, which may be there already; empty when cancelled.
  virtual std::string save_file(const FileQuestion& question) = 0;

  // Lets the user choose a file that is there; empty when cancelled.
  virtual std::string open_file(const FileQuestion& question) = 0;

  // Asks for one line of text, which begins with `preset`; empty when cancelled.
  virtual std::string input_box(const std::string& prompt, const std::string& title,
                                const std::string& preset) = 0;
};

}  // namespace quillvane
