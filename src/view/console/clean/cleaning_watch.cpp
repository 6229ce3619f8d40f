#include "view/console/clean/cleaning_watch.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "cleaning/permission.h"
#include "platform/multi_string.h"

namespace quillvane {

namespace {

// What the run shows of a row that it has done with.
constexpr std::string_view kRowDone = "Removing : ";

constexpr std::string_view kNativePrefix = "\\??\\";

}  // namespace

int CleaningResult::queued() const {
  return static_cast<int>(
      std::count_if(left.begin(), left.end(), [](const FileLeft& file) { return file.queued; }));
}

int CleaningResult::failed() const { return static_cast<int>(left.size()) - queued(); }

CleaningWatch::CleaningWatch(const Platform& machine)
    : ForwardingFileSystem(machine.files), machine_(machine) {}

void CleaningWatch::attach(Form7& form) {
  form_ = &form;
  form.Text3.observe(*this);
  form.Text13.observe(*this);
}

// The line beside the animation is shown by a cleaning run alone.
void CleaningWatch::changed(Control& control, Change what) {
  if (what == Change::kVisible && &control == &form_->Text3) {
    cleaning_ = control.visible();
    if (control.visible()) begin();
  }
  if (what != Change::kText || &control != &form_->Text13 || !begun_) return;
  const std::string& text = form_->Text13.text();
  if (text.starts_with(kRowDone)) row_done(text.substr(kRowDone.size()));
}

void CleaningWatch::begin() {
  begun_ = true;
  rows_ = form_->view1.count();
  requests_before_ = requests();
}

void CleaningWatch::row_done(const std::string& path) {
  ++rows_done_;
  if (in_recycle_bin(path)) bin_files_.insert(path);
}

// The queue is a list of pairs; an empty target asks for the removal of the source.
std::set<std::string> CleaningWatch::requests() const {
  const auto value = machine_.registry.value(Hive::kLocalMachine,
                                             "SYSTEM\\CurrentControlSet\\Control\\Session Manager",
                                             "PendingFileRenameOperations");
  if (!value || value->type != RegistryType::kMultiSz) return {};
  const std::vector<std::string> texts = multi_string_list(value->data);
  std::set<std::string> requests;
  for (std::size_t i = 0; i < texts.size(); i += 2) {
    const bool removal = i + 1 == texts.size() || texts[i + 1].empty();
    if (removal && texts[i].starts_with(kNativePrefix)) {
      requests.insert(texts[i].substr(kNativePrefix.size()));
    }
  }
  return requests;
}

const char* CleaningWatch::reason(const std::string& path, RemoveResult result) const {
  if (result == RemoveResult::kInUse) return "another program has it open";
  if (result == RemoveResult::kTooLong) return "its path is too long";
  if (result == RemoveResult::kUnreadable) return "it cannot be looked at";
  if (result == RemoveResult::kWriteProtected) return "its disk is for reading alone";
  const auto attributes = machine_.files.attributes(path);
  if (attributes && (*attributes & kAttributeReadOnly) != 0) return "it is read-only";
  return "the right to remove it is missing";
}

CleaningResult CleaningWatch::result() const {
  CleaningResult result{begun_, removed_, rows_ - rows_done_, {}};
  const std::set<std::string> now = requests();
  for (const auto& [path, removal] : stayed_) {
    const bool queued = now.contains(path) && !requests_before_.contains(path);
    result.left.push_back({path, queued, reason(path, removal)});
  }
  for (const std::string& path : bin_files_) {
    if (machine_.files.attributes(path)) {
      result.left.push_back({path, false, "the recycle bin could not be emptied of it"});
    } else {
      ++result.removed;
    }
  }
  return result;
}

RemoveResult CleaningWatch::remove_file(const std::string& path) {
  const RemoveResult result = next().remove_file(path);
  if (!begun_ || result == RemoveResult::kMissing) return result;
  if (result == RemoveResult::kRemoved) {
    ++removed_;
    stayed_.erase(path);
  } else {
    stayed_.insert_or_assign(path, result);
  }
  return result;
}

}  // namespace quillvane
