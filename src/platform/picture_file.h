// Pictures as PNG files.
#pragma once

#include <optional>
#include <string>

#include "platform/image.h"

namespace quillvane {

class PictureFile {
 public:
  virtual ~PictureFile() = default;

  // Writes `picture` into the file at `path` (a path of the system that the program runs on),
  // replacing what is there. Answers why that failed, in a few words; nothing when it is done.
  [[nodiscard]] virtual std::optional<std::string> write_png(const std::string& path,
                                                             const Image& picture) = 0;
};

}  // namespace quillvane
