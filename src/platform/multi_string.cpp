#include "platform/multi_string.h"

#include <algorithm>

namespace quillvane {

std::string multi_string_data(const std::vector<std::string>& strings) {
  std::string data;
  for (const std::string& each : strings) {
    data += each;
    data += '\0';
  }
  data += '\0';
  return data;
}

std::vector<std::string> multi_string_list(std::string_view data) {
  if (data.ends_with('\0')) data.remove_suffix(1);  // the list's own
  std::vector<std::string> strings;
  while (!data.empty()) {
    const std::size_t end = std::min(data.find('\0'), data.size());
    strings.emplace_back(data.substr(0, end));
    data.remove_prefix(std::min(end + 1, data.size()));
  }
  return strings;
}

}  // namespace quillvane
