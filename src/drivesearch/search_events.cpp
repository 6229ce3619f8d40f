// What becomes of the files that the search tells of: left out, or a row of view1.
#include <utility>

#include "drivesearch/found_rows.h"
#include "drivesearch/search_run.h"
#include "platform/unicode_case.h"
#include "support/size_text.h"
#include "support/text.h"

namespace quillvane {

void SearchRun::search_found(const std::string& path, const std::string& name) {
  if (keeps_out(path, name)) return;
  add_row();
}

// A file in the queue of the next restart is never left out. The loop is served once a file where
// there is a list, not for each of its items.
bool SearchRun::keeps_out(const std::string& path, const std::string& name) {
  const ListBox& items = pages_.lists.List6;
  if (items.count() == 0 && pages_.junk.ignorelist.empty()) return false;
  if (items.count() > 0) session.do_events();
  enter_folder(path);
  if (!leave_out_ || leave_out_version_ != items.version()) {
    leave_out_version_ = items.version();
    leave_out_.emplace(items.items());
  }
  const bool is_in_lists = folder_ignored_ || leave_out_->keeps_out(lower_case(name));
  return is_in_lists && !pending_.pending(name);
}

// The ignore list is compared as it stands, and what it begins with never counts: meant so.
void SearchRun::enter_folder(const std::string& path) {
  const SearchableText& ignored = pages_.junk.ignorelist;
  if (folder_ == path && ignore_version_ == ignored.version()) return;
  folder_ = path;
  ignore_version_ = ignored.version();
  lower_folder_ = lower_case(path);
  folder_ignored_ = ignored.contains_behind_beginning(lower_folder_);
  pending_.enter(path);
}

void SearchRun::add_row() {
  JunkPage& junk = pages_.junk;
  const std::shared_ptr<const Files>& files = search.filesfound();
  const std::size_t index = files->Count() - 1;
  if (rows_of_ != files || rows_category_ != junk.custnode ||
      row_generation_ != junk.view1.generation()) {
    rows_of_ = files;
    rows_category_ = junk.custnode;
    row_source_ = junk.view1.add_source(
        std::make_shared<FoundRows>(files, rows_category_, platform().system));
    row_generation_ = junk.view1.generation();
  }
  junk.view1.add_from(row_source_, index);
  const double bytes = length_of(files->listed(index));
  foundcount += 1;
  foundbytes += bytes;
  junk.totals.listedfiles += 1;
  junk.totals.listedsize += bytes;
}

void SearchRun::search_searching(const std::string& path) {
  const std::string count = number_text(foundcount);
  const std::string size = search_size_text(foundbytes, platform().system.decimal_separator());
  Label5.set_caption(path);
  Label7.set_caption(count);
  Label10.set_caption(size);
  pages_.report.foundsizetext = size;
  pages_.junk.Label11.set_caption("Junk files found : ( " + count + " ) files , Size : ( " + size +
                                  " ) - Click \"Delete\" to delete selected Files");
  progress_.tell(count, size);
}

void SearchRun::begin_count() {
  foundcount = 0;
  foundbytes = 0;
  progress_.begin();
}

void SearchRun::search_place(const std::string& path, const std::string& patterns) {
  search.findfiles(path, patterns);
  progress_.end();
  rows_of_ = nullptr;
}

}  // namespace quillvane
