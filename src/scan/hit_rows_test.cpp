#include "scan/hit_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/folder_tree.h"
#include "support/file_date.h"

namespace quillvane {
namespace {

// A system that writes numbers and dates in its own way.
class Locale final : public SystemInfo {
 public:
  explicit Locale(DateOrder order) : order_(order) {}

  [[nodiscard]] std::string program_folder() const override { return "C:\\Program"; }
  [[nodiscard]] std::string system_folder() const override { return "C:\\Windows\\System32"; }
  [[nodiscard]] bool is_wow64() const override { return false; }
  [[nodiscard]] int ansi_code_page() const override { return 1252; }
  [[nodiscard]] const CodePage* code_page(int) const override { return nullptr; }
  [[nodiscard]] std::string decimal_separator() const override { return ","; }
  [[nodiscard]] DateOrder date_order() const override { return order_; }
  [[nodiscard]] FileTime local_time(FileTime time) const override { return time; }
  [[nodiscard]] std::string format_date(const DateTime& date) const override {
    return "month " + std::to_string(date.month) + " day " + std::to_string(date.day) + " hour " +
           std::to_string(date.hour);
  }

 private:
  DateOrder order_;
};

// The only file of C:\Temp, made on the 7th of March 2013 at 09:05 UTC.
std::shared_ptr<const Files> one_file(std::string_view name, std::uint64_t bytes) {
  const FileTime created = file_time_of({2013, 3, 7, 9, 5, 0});
  const FileTime later = file_time_of({2014, 4, 8, 10, 0, 0});
  auto tree = std::make_shared<FolderTree>();
  TreeArena& arena = tree->add_arena();
  ListedFolder* folder = ListedFolder::make(arena, "", nullptr);
  auto* record = folder->allocate_files(arena, 1, name.size());
  *record = {static_cast<std::uint32_t>(bytes),    static_cast<std::uint32_t>(bytes >> 32U),
             ListedFolder::SplitTime::of(created), ListedFolder::SplitTime::of(later),
             ListedFolder::SplitTime::of(later),   static_cast<std::uint32_t>(name.size())};
  std::copy(name.begin(), name.end(), reinterpret_cast<char*>(record + 1));
  tree->set_root(folder);
  auto files = std::make_shared<Files>(tree, *folder, "C:\\Temp\\");
  files->Add(*folder, 0);
  return files;
}

TEST(HitRows, ShowPathSizeDateAndCategoryOfAFile) {
  const Locale locale(DateOrder::kMonthDayYear);
  const HitRows rows(one_file("a.tmp", 1536), 2, locale);
  EXPECT_EQ(rows.text(0, 0), "C:\\Temp\\a.tmp");
  EXPECT_EQ(rows.text(0, kSizeColumn), "1,5 KB");
  EXPECT_EQ(rows.text(0, kDateColumn), "month 3 day 7 hour 9");  // of its making, in UTC
  EXPECT_EQ(rows.text(0, kCategoryColumn), "2");
  EXPECT_EQ(rows.text(0, 4), "");
  EXPECT_EQ(rows.column_count(0), 4);
}

TEST(HitRows, ReadTheDateMonthFirstWhateverTheSystemsOrder) {
  const Locale locale(DateOrder::kDayMonthYear);
  const HitRows rows(one_file("a.tmp", 0), 2, locale);
  EXPECT_EQ(rows.text(0, kDateColumn), "month 7 day 3 hour 9");
}

TEST(HitRows, AnswerTheCategoryAsANumber) {
  const Locale locale(DateOrder::kMonthDayYear);
  const HitRows rows(one_file("a.tmp", 1536), 23, locale);
  EXPECT_EQ(rows.number(0, kCategoryColumn), 23);
  EXPECT_EQ(rows.number(0, kSizeColumn), 1);  // what the text "1,5 KB" begins with
}

struct SizeCase {
  std::uint64_t bytes;
  std::string_view text;
};

constexpr SizeCase kSizes[] = {
    {0, "0 B"},
    {3'221'225'472, "-1073741824 B"},  // 3 GiB reads as negative
    {4'294'967'296, "2 GB"},           // 4 GiB counts 2147483647
    {5'368'709'120, "0 B"},            // 5 GiB overflow
};

TEST(HitRows, ShowSizesAsTheSearchCountsThem) {
  const Locale locale(DateOrder::kMonthDayYear);
  for (const auto& [bytes, text] : kSizes) {
    const HitRows rows(one_file("a.tmp", bytes), 2, locale);
    EXPECT_EQ(rows.text(0, kSizeColumn), text) << bytes;
  }
}

struct IconCase {
  int category;
  int icon;
};

constexpr IconCase kIcons[] = {{1, 0}, {2, 1}, {11, 10}, {12, 11}, {13, 11}, {23, 21}, {25, 23}};

TEST(HitRows, TheIconIsOneFurtherDownBehindTheBrowsersGroup) {
  const Locale locale(DateOrder::kMonthDayYear);
  for (const auto& [category, icon] : kIcons) {
    EXPECT_EQ(category_icon(category), icon) << category;
    const HitRows rows(one_file("a.tmp", 0), category, locale);
    EXPECT_EQ(rows.icon(0), std::to_string(icon)) << category;
  }
}

}  // namespace
}  // namespace quillvane
