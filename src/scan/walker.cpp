// The walker: which files of a folder tree become rows of the hit list.
#include "core/form7.h"
#include "scan/hit_rows.h"
#include "scan/reading_watch.h"
#include "scan/walk.h"
#include "support/text.h"

namespace quillvane {

Walk::Walk(Form7& form, int category, Keep keep)
    : form_(form), category_(category), keep_(keep), tests_(form.pending_filter, form.ignorelist) {}

void Walk::run(const std::string& path, const std::string& pattern) {
  ReadingWatch watch(form_.program);
  Search search(form_.platform().files, form_.program.trail, &watch);
  search.SearchFiles(path, pattern, true);
  watch.settle(path, search.tree().get());
  judge(search.Files());
}

void Walk::run(const ListedPart& part, const std::string& path, const std::string& pattern) {
  Search search(form_.platform().files, form_.program.trail);
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
    form_.program.do_events();
    full_name_.assign(path).append(file.name);
    form_.Text13.set_text(full_name_);
    // Nobody waits for the rest of a scan whose window was closed.
    if (form_.cancelflag == 1 || form_.program.ended()) return false;
    const std::optional<double> size = FileSizeToDouble(file.size_high, file.size_low);
    // The folder of a file whose size overflowed was never set: it is in no list.
    const bool ignored = size && tests_.ignored();
    if (ignored || !passes(file.name, size)) continue;
    form_.totals.catfiles += 1;
    form_.totals.catsize += size.value_or(0);
    form_.totals.listedfiles += 1;
    form_.totals.listedsize += size.value_or(0);
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
  if (!source_ || list_generation_ != form_.view1.generation()) {
    source_ = form_.view1.add_source(
        std::make_shared<HitRows>(files_, category_, form_.platform().system));
    list_generation_ = form_.view1.generation();
  }
  form_.view1.add_from(*source_, index);
}

void Form7::srch(const std::string& path, const std::string& pattern, int category) {
  Walk(*this, category, Walk::Keep::kAll).run(path, pattern);
}

void Form7::srch2(const std::string& path, const std::string& pattern, int category) {
  Walk(*this, category, Walk::Keep::kEmptyFiles).run(path, pattern);
}

}  // namespace quillvane
