#include "platform/folder/posix/folder_names.h"

#include <algorithm>
#include <bit>

#include "platform/folder/posix/directory_listing.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

constexpr std::size_t kLeastSlots = 16;

std::uint32_t next_hash(std::uint32_t hash, char byte) {
  return (hash ^ static_cast<unsigned char>(byte)) * 16777619U;
}

std::uint32_t mixed(std::uint32_t hash) {
  hash ^= hash >> 16U;
  hash *= 0x7feb352dU;
  return hash ^ hash >> 15U;
}

// Of the name's capitals, so that it is the same for names that differ only by case.
std::uint32_t hash_of(std::string_view name) {
  constexpr std::uint32_t kStart = 2166136261U;
  std::uint32_t hash = kStart;
  for (const char byte : name) {
    if (static_cast<unsigned char>(byte) >= 0x80) {
      hash = kStart;
      for (const char capital : upper_case(name)) hash = next_hash(hash, capital);
      break;
    }
    const bool is_small = byte >= 'a' && byte <= 'z';
    hash = next_hash(hash, static_cast<char>(is_small ? byte - ('a' - 'A') : byte));
  }
  return mixed(hash);
}

}  // namespace

bool FolderNames::read(int folder) {
  DirectoryListing listing;
  if (!listing.read(folder)) return false;
  if (slots_.empty()) {
    slots_.resize(std::bit_ceil(std::max(kLeastSlots, 2 * listing.entries().size())));
  }
  for (const auto& entry : listing.entries()) add(listing.name(entry));
  return true;
}

void FolderNames::add(std::string_view name) {
  if (4 * (count_ + 1) > 3 * slots_.size()) grow();
  const std::uint32_t hash = hash_of(name);
  std::size_t at = hash & (slots_.size() - 1);
  for (; slots_[at].behind != 0; at = (at + 1) & (slots_.size() - 1)) {
    if (slots_[at].hash != hash) continue;
    if (name_of(slots_[at]) == name) return;
    has_twins_ |= same_name(name_of(slots_[at]), name);
  }
  names_ += name;
  names_ += '\0';
  slots_[at] = {hash, static_cast<std::uint32_t>(names_.size()),
                static_cast<std::uint32_t>(name.size())};
  ++count_;
}

void FolderNames::grow() {
  std::vector<Slot> before(slots_.empty() ? kLeastSlots : 2 * slots_.size());
  before.swap(slots_);
  for (const Slot& slot : before) {
    if (slot.behind == 0) continue;
    std::size_t at = slot.hash & (slots_.size() - 1);
    while (slots_[at].behind != 0) at = (at + 1) & (slots_.size() - 1);
    slots_[at] = slot;
  }
}

std::vector<std::string> FolderNames::others(std::string_view name) const {
  std::vector<std::string> found;
  if (slots_.empty()) return found;
  const std::uint32_t hash = hash_of(name);
  for (std::size_t at = hash & (slots_.size() - 1); slots_[at].behind != 0;
       at = (at + 1) & (slots_.size() - 1)) {
    if (slots_[at].hash != hash) continue;
    const std::string_view other = name_of(slots_[at]);
    if (other != name && same_name(other, name)) found.emplace_back(other);
  }
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace quillvane
