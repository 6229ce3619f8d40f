// The walker: which files of a folder tree become rows of the hit list.
#include "scan/hit_rows.h"
#include "scan/junk_page.h"
#include "scan/reading_watch.h"
#include "scan/walk.h"
#include "support/text.h"

namespace quillvane {

Walk::Walk(JunkPage& page, int category, Keep keep)
    : page_(page), category_(category), keep_(keep), tests_(page.pending_filter, page.ignorelist) {}

void Walk::run(const std::string& path, const std::string& pattern) {
  ReadingWatch watch(page_.session);
  Search search(page_.platform().files, page_.session.trail, &watch);
  search.SearchFiles(path, pattern, true);
  watch.settle(path, search.tree().get());
  judge(search.Files());
}

void Walk::run(const ListedPart& part, const std::string& path, const std::string& pattern) {
  Search search(page_.platform().files, page_.session.trail);
  search.search_listing(part, path, pattern);
  judge(search.Files());
}

void Walk::judge(std::shared_ptr<const Files> files) {
  files_ = std::move(files);
  if (files_ == nullptr) return;
  for (const FolderRun& run : files_->runs()) {
    if (!judge_folder(run)) return;
  }
}

bool Walk::judge_folder(const FolderRun& run) {
  const std::string path = files_->path_of(*run.folder);
  tests_.enter(path);
  for (std::uint32_t i = 0; i < run.count; ++i) {
    const ListedFile file = run.folder->file(run.first + i);
    page_.session.do_events();
    full_name_.assign(path).append(file.name);
    page_.Text13.set_text(full_name_);
    // Nobody waits for the rest of a scan whose window was closed.
    if (page_.cancelflag == 1 || page_.session.ended()) return false;
    const std::optional<double> size = FileSizeToDouble(file.size_high, file.size_low);
    // The folder of a file whose size overflowed was never set: it is in no list.
    const bool ignored = size && tests_.ignored();
    if (ignored || !passes(file.name, size)) continue;
    page_.totals.catfiles += 1;
    page_.totals.catsize += size.value_or(0);
    page_.totals.listedfiles += 1;
    page_.totals.listedsize += size.value_or(0);
    add_row(run.begin + i);
  }
  return true;
}

bool Walk::passes(std::string_view name, std::optional<double> size) {
  if (keep_ == Keep::kEmptyFiles) {
    // A size that overflowed was never set, but the file is anything but empty.
    if (Trim(name).empty() || size != 0.0) return false;
  } else if (tests_.desktop_ini() || holds_desktop_ini(name)) {
    return false;
  }
  return !tests_.pending(name);
}

void Walk::add_row(std::size_t index) {
  // A new scan that was started inside this one has emptied the list.
  if (!source_ || list_generation_ != page_.view1.generation()) {
    source_ = page_.view1.add_source(
        std::make_shared<HitRows>(files_, category_, page_.platform().system));
    list_generation_ = page_.view1.generation();
  }
  page_.view1.add_from(*source_, index);
}

void JunkPage::srch(const std::string& path, const std::string& pattern, int category) {
  Walk(*this, category, Walk::Keep::kAll).run(path, pattern);
}

void JunkPage::srch2(const std::string& path, const std::string& pattern, int category) {
  Walk(*this, category, Walk::Keep::kEmptyFiles).run(path, pattern);
}

}  // namespace quillvane
