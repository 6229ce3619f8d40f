// PNG files by libpng.
#pragma once

#include "platform/picture_file.h"

namespace quillvane {

class PngFile final : public PictureFile {
 public:
  [[nodiscard]] std::optional<std::string> write_png(const std::string& path,
                                                     const Image& picture) override;
};

}  // namespace quillvane
