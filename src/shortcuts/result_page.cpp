#include "shortcuts/result_page.h"

#include <cstddef>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "platform/utf8.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr std::string_view kLinkIcon = "ss";
constexpr std::ptrdiff_t kExtensionLength = 4;  // of ".lnk"

// Where each character of the text ends.
std::vector<std::size_t> character_ends(std::string_view text) {
  std::vector<std::size_t> ends;
  for (std::size_t at = 0; at < text.size();) {
    at += decode_utf8(text, at).length;
    ends.push_back(at);
  }
  return ends;
}

}  // namespace

// The name without its last four characters, on the understanding that they are ".lnk". Of a
// shorter name so many are taken as it lacks: of "ab" both. Meant so.
std::string shown_name(std::string_view link_path) {
  const std::string_view path = Trim(link_path);
  const std::string_view name = path.substr(path.rfind('\\') + 1);
  const std::vector<std::size_t> ends = character_ends(name);
  const auto taken = static_cast<std::size_t>(
      std::abs(static_cast<std::ptrdiff_t>(ends.size()) - kExtensionLength));
  if (taken == 0) return {};
  return std::string(taken < ends.size() ? name.substr(0, ends[taken - 1]) : name);
}

ResultPage::ResultPage(Window& owner, Session& shared) : Page(owner, shared) {}

void ResultPage::add_row(const std::string& folder, const std::string& name,
                         const std::string& target) {
  const int row = view1.add(shown_name(folder + name));
  view1.set_icon(row, kLinkIcon);
  view1.set_sub_item(row, kTargetColumn, target);
  view1.set_sub_item(row, kLinkPathColumn, folder + name);
}

int ResultPage::row_in_hand() const {
  const double row = Val(Text2.text());
  return row >= 1 && row <= view1.count() ? static_cast<int>(row) : 0;
}

void ResultPage::select_all(bool selected) {
  view1.check_all(selected);
  for (int row = 1; row <= view1.count(); ++row) view1.set_selected(row, selected);
}

}  // namespace quillvane
