#include "platform/folder/name_listing.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

#include "platform/unicode_case.h"
#include "platform/utf8.h"

namespace quillvane {

namespace {

constexpr std::size_t kKeyBytes = 8;

constexpr std::uint64_t repeated(std::uint64_t byte) { return byte * 0x0101010101010101U; }

// The key of a name whose first bytes are not all ASCII. A letter above ASCII comes behind all of
// ASCII, unless its capital is there.
std::uint64_t order_of_letters(std::string_view name) {
  std::uint64_t key = 0;
  std::size_t bytes = 0;
  for (std::size_t at = 0; at < name.size() && bytes < kKeyBytes; ++bytes) {
    const DecodedCodePoint point = decode_utf8(name, at);
    const char32_t upper = point.valid ? to_upper(point.value) : point.value;
    if (upper >= 0x80) return key | std::uint64_t{0xFF} << 8U * (kKeyBytes - 1 - bytes);
    key |= std::uint64_t{upper} << 8U * (kKeyBytes - 1 - bytes);
    at += point.length;
  }
  return key;
}

// The capitals of the first eight bytes as one number that compares like the names. The name lies
// in a buffer that goes on for at least that many bytes.
std::uint64_t order_of(std::string_view name) {
  std::uint64_t bytes = 0;
  std::memcpy(&bytes, name.data(), kKeyBytes);
  if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
  if (name.size() < kKeyBytes) bytes &= ~(~std::uint64_t{0} >> 8U * name.size());
  if ((bytes & repeated(0x80)) != 0) return order_of_letters(name);
  const std::uint64_t from_a = bytes + repeated(0x80 - 'a');
  const std::uint64_t above_z = bytes + repeated(0x80 - 'z' - 1);
  const std::uint64_t small_letters = from_a & ~above_z & repeated(0x80);
  return bytes - (small_letters >> 2U);
}

}  // namespace

void NameListing::resize_buffer(std::size_t bytes, std::size_t bytes_kept) {
  auto resized = std::make_unique_for_overwrite<char[]>(bytes + kKeyBytes);
  std::copy_n(buffer_.get(), bytes_kept, resized.get());
  buffer_ = std::move(resized);
  buffer_bytes_ = bytes;
}

void NameListing::add_entry(std::string_view name, Kind kind) {
  entries_.push_back({order_of(name), 0, static_cast<std::uint32_t>(name.data() - buffer_.get()),
                      static_cast<std::uint16_t>(name.size()), kind});
}

void NameListing::sort() {
  std::sort(entries_.begin(), entries_.end(), [this](const Entry& left, const Entry& right) {
    if (left.order != right.order) return left.order < right.order;
    const int difference = compare_names(name(left), name(right));
    return difference != 0 ? difference < 0 : name(left) < name(right);
  });
}

}  // namespace quillvane
