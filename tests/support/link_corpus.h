// Two hundred shell links in twelve classes, staged on a machine together with what they lead to.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/temp_machine.h"

namespace quillvane {

// Below it each class has a folder of its name: "C:\Links\read-only\07.lnk".
inline constexpr const char* kLinkCorpusFolder = "C:\\Links";

struct CorpusLink {
  std::string_view link_class;
  std::string path;
  std::string target;  // as a reader tells it; empty where it has none
};

// The machine needs a drive C: with nothing on it, and no drive Q:.
[[nodiscard]] std::vector<CorpusLink> stage_link_corpus(TempMachine& machine);

}  // namespace quillvane
