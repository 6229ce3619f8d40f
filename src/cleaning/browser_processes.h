// Finding and ending the processes of a browser, by the name of their executable.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/processes.h"

namespace quillvane {

// Id of the first process of exactly this name; 0 when there is none.
[[nodiscard]] std::uint32_t pid(const Processes& processes, std::string_view name);

// Ends all processes whose name ends in `name`: with "chrome.exe" "notchrome.exe" goes too, as it
// is meant. True when one was found.
bool TerminateByName(Processes& processes, std::string_view name);

// A second sweep, over the processes of exactly this name that the first could not reach.
void KillProcessByName(Processes& processes, std::string_view name);

}  // namespace quillvane
