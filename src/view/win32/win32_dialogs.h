// Message boxes and dialogs on this PC's screen.
#pragma once

#include "platform/dialogs.h"

namespace quillvane {

class Win32Dialogs final : public Dialogs {
 public:
  Answer message_box(const std::string& text, const std::string& title,
                     std::uint32_t style) override;
  std::string browse_folder(const std::string& title, std::uint32_t flags,
                            const std::string& root) override;
  std::string save_file(const FileQuestion& question) override;
  std::string open_file(const FileQuestion& question) override;
  std::string input_box(const std::string& prompt, const std::string& title,
                        const std::string& preset) override;
};

}  // namespace quillvane
