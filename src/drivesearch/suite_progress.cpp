#include "drivesearch/suite_progress.h"

#include <algorithm>
#include <utility>

#include "support/registry_text.h"

namespace quillvane {

namespace {

constexpr const char* kKey = "software\\Quillvane\\Tidewrack Deluxe\\real";
constexpr std::uint64_t kShare = 64;

}  // namespace

void SuiteProgress::begin() {
  folders_ = 0;
  next_write_ = 1;
  failed_ = false;
  unwritten_ = false;
}

void SuiteProgress::tell(std::string count, std::string size) {
  count_ = std::move(count);
  size_ = std::move(size);
  unwritten_ = true;
  if (++folders_ < next_write_) return;
  next_write_ = folders_ + std::max<std::uint64_t>(1, folders_ / kShare);
  write();
}

void SuiteProgress::end() {
  if (unwritten_) write();
}

void SuiteProgress::write() {
  unwritten_ = false;
  if (failed_) return;
  const auto put = [this](const char* name, const std::string& text) {
    const RegistryWrite written =
        WriteRegistryString(session_.platform.registry, Hive::kLocalMachine, kKey, name, text);
    if (!written) session_.tell_problem("progress of the search", written.problem());
    return static_cast<bool>(written);
  };
  failed_ = !put("junk-count", count_) || !put("junk-size", size_);
}

}  // namespace quillvane
