// The end of a test's folder.
#pragma once

#include <string>

namespace quillvane {

// Removes a folder with everything in it, read-only files and paths of any length too. What cannot
// be removed fails the test. Requires: no links in it where the host cannot tell them from what
// they lead to.
void remove_test_folder(const std::string& folder);

}  // namespace quillvane
