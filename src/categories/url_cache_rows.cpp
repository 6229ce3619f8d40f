#include "categories/url_cache_rows.h"

#include <string>

#include "core/form7.h"
#include "scan/hit_rows.h"
#include "support/file_date.h"

namespace quillvane {

namespace {

void add_row(Form7& form, const UrlCacheEntry& entry, int node) {
  const Platform& platform = form.platform();
  const auto size = platform.files.file_size(entry.local_file);
  const auto date = FileTimeToDate(entry.last_access, platform.system.date_order());
  const int row = form.view1.add(entry.local_file);
  // A file that is gone has no size: its column stays empty, and the row counts all the same.
  const auto bytes = static_cast<double>(size.value_or(0));
  if (size) form.view1.set_sub_item(row, kSizeColumn, form.size_text(bytes));
  form.view1.set_sub_item(row, kDateColumn, date ? platform.system.format_date(*date) : "");
  form.view1.set_sub_item(row, kCategoryColumn, std::to_string(node));
  form.view1.set_icon(row, std::to_string(node - 1));  // not the walker's rule for browsers
  form.totals.catfiles += 1;
  form.totals.catsize += bytes;
}

}  // namespace

void ListUrlCacheEntries(Form7& form, int node) {
  UrlCache& cache = form.platform().url_cache;
  if (const auto first = cache.find_first()) {
    if (form.platform().files.file_size(first->local_file).value_or(0) == 0) return;
    add_row(form, *first, node);
    while (const auto next = cache.find_next()) {
      if (!next->local_file.empty()) add_row(form, *next, node);
    }
  }
  cache.find_close();
}

void deleteiecach(Form7& form) {
  UrlCache& cache = form.platform().url_cache;
  if (const auto first = cache.find_first()) {
    // An entry that cannot be removed stays.
    static_cast<void>(cache.remove(first->source_url));
    while (const auto next = cache.find_next()) {
      if (!next->local_file.empty()) static_cast<void>(cache.remove(next->source_url));
    }
  }
  cache.find_close();
}

}  // namespace quillvane
