// PNG files by Windows.
#pragma once

#include "platform/picture_file.h"

namespace quillvane {

class Win32PictureFile final : public PictureFile {
 public:
  [[nodiscard]] std::optional<std::string> write_png(const std::string& path,
                                                     const Image& picture) override;
};

}  // namespace quillvane
