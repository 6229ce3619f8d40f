// The shell links among the files of a machine folder, read and written as the published format
// has them.
#pragma once

#include <string>

#include "platform/code_page.h"
#include "platform/environment.h"
#include "platform/file_system.h"
#include "platform/folder/machine_state.h"
#include "platform/links.h"

namespace quillvane {

class MachineLinks final : public Links {
 public:
  // All must outlive this object; changes of them show.
  MachineLinks(const MachineState& state, FileSystem& files, const Environment& environment)
      : state_(state), files_(files), environment_(environment) {}

  [[nodiscard]] bool read_link(const std::string& path, LinkContent& content) override;
  [[nodiscard]] bool write_link(const std::string& path, const LinkContent& content) override;

 private:
  [[nodiscard]] const CodePage& page() const;

  const MachineState& state_;
  FileSystem& files_;
  const Environment& environment_;
};

}  // namespace quillvane
