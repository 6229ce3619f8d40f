// The walker: which files of a folder tree become rows of the hit list.
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/form7.h"
#include "core/hit_rows.h"
#include "core/search.h"
#include "platform/unicode_case.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::string_view kNeverListed = "desktop.ini";

// Whether a name has a "." with something behind it that may be an "i" in lower case.
bool has_point_before_i(std::string_view name) {
  for (std::size_t point = name.find('.'); point < name.size() - 1;
       point = name.find('.', point + 1)) {
    const char next = name[point + 1];
    if (next == 'i' || next == 'I' || static_cast<unsigned char>(next) >= 0x80) return true;
  }
  return false;
}

// Whether a name, folded to lower case, holds "desktop.ini". Most names are told apart from it
// without folding them.
bool holds_desktop_ini(std::string_view name, std::string& buffer) {
  if (name.size() < kNeverListed.size() || !has_point_before_i(name)) return false;
  buffer.clear();
  append_lower_case(name, buffer);
  return buffer.find(kNeverListed) != std::string::npos;
}

// The answers of the tests that hold for all files of a folder, kept until a list changes.
class FolderTests {
 public:
  FolderTests(const SearchableText& pending, const SearchableText& ignored)
      : pending_(pending), ignored_(ignored) {}

  // `path` ends in a backslash; empty when the file's folder is not known.
  void enter(std::string_view path) {
    lower_path_ = lower_case(path);
    desktop_ini_ = lower_path_.find(kNeverListed) != std::string::npos;
    answer();
  }

  [[nodiscard]] bool ignored() {
    refresh();
    return folder_ignored_;
  }
  [[nodiscard]] bool desktop_ini() const { return desktop_ini_; }
  // The text of a file that is queued holds its folder's, so most files need no look of their own.
  [[nodiscard]] bool pending(std::string_view name, std::string& buffer) {
    refresh();
    if (!folder_pending_) return false;
    buffer = lower_path_;
    append_lower_case(name, buffer);
    return pending_.contains(buffer);
  }

 private:
  void refresh() {
    if (pending_version_ != pending_.version() || ignored_version_ != ignored_.version()) answer();
  }
  void answer() {
    pending_version_ = pending_.version();
    ignored_version_ = ignored_.version();
    folder_pending_ = pending_.contains(lower_path_);
    folder_ignored_ = in_ignore_list();
  }
  // An entry that names the folder without its backslash counts as if it had one.
  [[nodiscard]] bool in_ignore_list() const {
    if (lower_path_.empty()) return false;
    if (ignored_.contains(lower_path_)) return true;
    std::string as_whole_entry = lower_path_;
    as_whole_entry.back() = '|';
    return ignored_.contains(as_whole_entry);
  }

  const SearchableText& pending_;
  const SearchableText& ignored_;
  std::uint64_t pending_version_ = 0;
  std::uint64_t ignored_version_ = 0;
  std::string lower_path_;
  bool desktop_ini_ = false;
  bool folder_pending_ = false;
  bool folder_ignored_ = false;
};

}  // namespace

// One walk of srch or srch2: judges what the search found, file by file.
class Form7::Walk {
 public:
  Walk(Form7& form, int category, bool empty_files_only)
      : form_(form),
        category_(category),
        empty_files_only_(empty_files_only),
        tests_(form.pending_filter, form.ignorelist) {}

  void run(const std::string& path, const std::string& pattern) {
    Search search(form_.platform().files, form_.program.trail);
    search.SearchFiles(path, pattern, true);
    files_ = search.Files();
    if (files_ == nullptr) return;
    for (const FolderRun& run : files_->runs()) {
      if (!judge_folder(run)) return;
    }
  }

 private:
  // False once the scan was cancelled.
  bool judge_folder(const FolderRun& run) {
    const std::string path = files_->path_of(*run.folder);
    tests_.enter(path);
    for (std::uint32_t i = 0; i < run.count; ++i) {
      const ListedFile file = run.folder->file(i);
      form_.program.do_events();
      full_name_.assign(path).append(file.name);
      form_.Text13.set_text(full_name_);
      if (form_.cancelflag == 1) return false;
      const bool overflowed = run.last_overflowed && i + 1 == run.count;
      const double size = overflowed ? 0 : *FileSizeToDouble(file.size_high, file.size_low);
      // The folder of a file whose size overflowed was never set: it is in no list.
      const bool ignored = !overflowed && tests_.ignored();
      if (ignored || !passes(file.name, size)) continue;
      form_.totals.catfiles += 1;
      form_.totals.catsize += size;
      add_row(run.begin + i);
    }
    return true;
  }

  bool passes(std::string_view name, double size) {
    if (empty_files_only_) {
      if (Trim(name).empty() || size != 0) return false;
    } else if (tests_.desktop_ini() || holds_desktop_ini(name, buffer_)) {
      return false;
    }
    return !tests_.pending(name, buffer_);
  }

  void add_row(std::size_t index) {
    // A new scan that was started inside this one has emptied the list.
    if (!source_ || list_generation_ != form_.view1.generation()) {
      list_generation_ = form_.view1.generation();
      source_ = form_.view1.add_source(
          std::make_shared<HitRows>(files_, category_, form_.platform().system));
    }
    form_.view1.add_from(*source_, index);
  }

  Form7& form_;
  int category_;
  bool empty_files_only_;
  FolderTests tests_;
  std::shared_ptr<const Files> files_;
  std::optional<std::uint32_t> source_;  // number of the rows' source in view1
  std::uint64_t list_generation_ = 0;
  std::string full_name_;
  std::string buffer_;
};

void Form7::srch(const std::string& path, const std::string& pattern, int category) {
  Walk(*this, category, false).run(path, pattern);
}

void Form7::srch2(const std::string& path, const std::string& pattern, int category) {
  Walk(*this, category, true).run(path, pattern);
}

}  // namespace quillvane
