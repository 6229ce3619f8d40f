// The link that the published format shows byte for byte: to "C:\test\a.txt", which works in
// "C:\test". Where the file was made stands in a block at its end; zeros are in its place here.
#pragma once

#include <string>

namespace quillvane {

[[nodiscard]] std::string published_link();

}  // namespace quillvane
