// The shell of this PC.
#pragma once

#include <string>

#include "platform/shell.h"

namespace quillvane {

class Win32Shell final : public Shell {
 public:
  // Shell extensions may need COM, so it is there as long as this object: to be made and ended on
  // the thread that calls it.
  Win32Shell();
  ~Win32Shell() override;
  Win32Shell(const Win32Shell&) = delete;
  Win32Shell& operator=(const Win32Shell&) = delete;

  int open(const ShellRequest& request) override;
  bool show_properties(const std::string& path) override;
  [[nodiscard]] std::string special_folder(int id) const override;
  bool recycle(const std::string& path) override;
  void empty_recycle_bin() override;
  void update_recycle_bin_icon() override;
  // Without the help viewer, or without the file, nothing is shown.
  void show_help(const std::string& file, int topic) override;

 private:
  bool has_com_;
};

}  // namespace quillvane
