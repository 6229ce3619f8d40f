// What this PC and its user's settings tell.
#pragma once

#include "platform/system_info.h"

namespace quillvane {

class Win32SystemInfo final : public SystemInfo {
 public:
  [[nodiscard]] std::string program_folder() const override;
  [[nodiscard]] std::string system_folder() const override;
  [[nodiscard]] bool is_wow64() const override;
  [[nodiscard]] int ansi_code_page() const override;
  [[nodiscard]] const CodePage* code_page(int number) const override;
  [[nodiscard]] std::string decimal_separator() const override;
  [[nodiscard]] DateOrder date_order() const override;
  [[nodiscard]] std::string format_date(const DateTime& date) const override;
  [[nodiscard]] FileTime local_time(FileTime time) const override;
};

}  // namespace quillvane
