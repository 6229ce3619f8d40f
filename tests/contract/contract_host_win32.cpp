#include <gtest/gtest.h>

#include "platform/file_system.h"
#include "platform/win32/wide_text.h"
#include "tests/contract/contract_host.h"
#include "tests/windows/folder_link.h"
#include "tests/windows/wine.h"

namespace quillvane {

// Who removes a folder with everything in it may go through a link.
HostLinks::~HostLinks() {
  for (const std::string& link : links_) EXPECT_TRUE(remove_folder_link(widen(link))) << link;
}

void HostLinks::add(const std::string& link, const std::string& target) {
  links_.push_back(link);
  EXPECT_TRUE(make_folder_link(widen(link), widen(target))) << link;
}

// Wine does not keep this one for a file.
std::uint32_t constant_attributes_of_host() { return is_wine() ? kAttributeArchive : 0; }

}  // namespace quillvane
