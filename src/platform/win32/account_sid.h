// Security identifiers (SIDs) of accounts, each given back once to where it came from.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

namespace quillvane {

// Null when there is none.
using OwnedSid = std::unique_ptr<void, void (*)(PSID)>;

// Of the group that everybody belongs to.
[[nodiscard]] OwnedSid world_sid();

// Of an account that this PC or its domain knows by that name.
[[nodiscard]] OwnedSid account_sid(const std::string& account);

}  // namespace quillvane
