// Files of records: fields of fixed width, filled up with blanks, one record behind the other,
// without a header, a count or line ends.
//
// A field is text in the system's code page, or in UTF-8 where that page does not hold it
// (support/text_file.h). What is longer than its field is cut behind a whole character.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace quillvane {

// The fields of one record in their order, in UTF-8.
using Record = std::vector<std::string>;

struct RecordFile {
  std::vector<Record>
      records;          // all of them, blank ones too; fields without the blanks around them
  std::string problem;  // why a file that is there was not read, in a few words; empty when it was
};

// How many records a file of that size holds: length over record, rounded to the nearest number
// (a half to the even one), so that a torn last record counts from its middle on. Nothing when the
// number is beyond 16 bits with a sign.
[[nodiscard]] std::optional<int> record_count(std::uint64_t file_bytes, std::size_t record_bytes);

// Reads the file; `widths` are those of the fields, in bytes. A missing file has no records. The
// last record reads as far as the file goes. A file of more records than can be counted, or one
// that holds zeros as a crash leaves them, is not read.
[[nodiscard]] RecordFile read_record_file(const Platform& platform, const std::string& path,
                                          std::span<const std::size_t> widths);

// The same, and makes a missing file: an empty one. Without a word when it cannot be made.
[[nodiscard]] RecordFile open_record_file(const Platform& platform, const std::string& path,
                                          std::span<const std::size_t> widths);

// Makes the file hold exactly these records, at one stroke; false when it cannot. Fields that a
// record does not have are blank.
[[nodiscard]] bool write_record_file(const Platform& platform, const std::string& path,
                                     std::span<const std::size_t> widths,
                                     const std::vector<Record>& records);

}  // namespace quillvane
