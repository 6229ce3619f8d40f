#include "cleaning/pending_queue.h"

#include <utility>

#include "platform/multi_string.h"
#include "platform/unicode_case.h"
#include "scan/junk_page.h"

namespace quillvane {

namespace {

constexpr const char* kKey = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr const char* kValue = "PendingFileRenameOperations";
constexpr std::string_view kNativePrefix = "\\??\\";

void allow_access(const Platform& platform) {
  platform.security.set_key_access(Hive::kLocalMachine, kKey, platform.environment.get("UserName"));
}

RegistryRead<std::vector<std::string>> stored_texts(const Registry& registry) {
  const auto value = registry.value(Hive::kLocalMachine, kKey, kValue);
  if (value.failed()) return RegistryRead<std::vector<std::string>>::failure(value.problem());
  if (!value || value->type != RegistryType::kMultiSz) return std::nullopt;
  return multi_string_list(value->data);
}

}  // namespace

RegistryRead<std::vector<std::string>> read_pending_value(const Platform& platform) {
  allow_access(platform);
  return stored_texts(platform.registry);
}

std::set<std::string> removal_requests(const Registry& registry) {
  const auto texts = stored_texts(registry);
  if (!texts) return {};
  std::set<std::string> requests;
  for (std::size_t i = 0; i < texts->size(); i += 2) {
    const std::string& source = (*texts)[i];
    const bool removal = i + 1 == texts->size() || (*texts)[i + 1].empty();
    if (removal && source.starts_with(kNativePrefix)) {
      requests.insert(source.substr(kNativePrefix.size()));
    }
  }
  return requests;
}

void pndtxt(JunkPage& page) {
  std::string filter;
  const auto queued = read_pending_value(page.platform());
  if (queued.failed()) page.session.tell_problem("queue of the next restart", queued.problem());
  if (queued) {
    for (const std::string& text : *queued) filter.append("|").append(text);
  }
  page.Text15.set_text(lower_case(filter));
}

void PendingQueue::loadpending() {
  operations_.resize(1);
  auto texts = read_pending_value(platform_);
  read_problem_ = texts.problem();
  if (!texts) return;
  // Left in, it would take the place of the next request's source, and every pair behind it would
  // be read the wrong way round.
  if (texts->size() % 2 == 1 && texts->back().empty()) texts->pop_back();
  count_ = texts->size();
  operations_ = std::move(*texts);
  operations_.emplace_back();
}

void PendingQueue::append(std::string text) {
  operations_.resize(count_ + 2);
  operations_[count_] = std::move(text);
  ++count_;
}

void PendingQueue::add(std::string_view path) {
  append(std::string(kNativePrefix) + std::string(path));
  append({});
}

RegistryWrite PendingQueue::savepending() {
  if (!read_problem_.empty()) return RegistryWrite::failure(read_problem_);
  allow_access(platform_);
  const RegistryWrite made = platform_.registry.create_key(Hive::kLocalMachine, kKey);
  if (!made) return made;
  return platform_.registry.set_value(Hive::kLocalMachine, kKey, kValue,
                                      {RegistryType::kMultiSz, multi_string_data(operations_)});
}

}  // namespace quillvane
