// Sub-keys of the registry into the working list List1.
#pragma once

#include <string>

namespace quillvane {

class Form7;

// Adds the names of the sub-keys to List1, which the caller has cleared, and to the end of `names`,
// one behind the other, serving the message loop once a name. `hive` is "HKCU", "HKLM", "HKU" or
// "HKCR". 0 when the key was read.
int fEnumKey(Form7& form, const std::string& hive, const std::string& sub_key, std::string& names);

}  // namespace quillvane
