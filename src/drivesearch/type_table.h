// The table of junk file types: what the drive search looks for.
//
// It lies beside the program's executable as tmptype.txt, a record of 101 bytes a row. The table
// that the program comes with is tmptype.orv, of the same form.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "support/session.h"

namespace quillvane {

inline constexpr std::string_view kTypeFile = "tmptype.txt";

inline constexpr std::size_t kTypeBytes = 50;  // what the table keeps of description and pattern

// One row of the table. Fields are without the blanks around them.
struct FileTypeEntry {
  std::string description;  // at most 50 bytes are kept
  std::string extension;    // the file pattern, likewise: "*.tmp"
  std::string flag;         // "1" the row is on, "0" it is off

  [[nodiscard]] bool is_on() const;   // its number is 1
  [[nodiscard]] bool is_off() const;  // its number is 0
  // Whether it is no pattern but the switch of the pass that lists every file: its description is
  // "file with zero size".
  [[nodiscard]] bool switches_all_files() const;
};

struct TypeTable {
  std::vector<FileTypeEntry> rows;  // all records, blank ones too
  std::string problem;              // why a table that is there was not read; empty when it was
};

// At the first start the table that came with the program becomes the user's: tmptype.orv becomes
// tmptype.txt. A table of the user's stays as it is.
void put_type_table_in_place(const Session& session);

// Reads the user's table. A missing one is made, empty.
[[nodiscard]] TypeTable read_type_table(const Session& session);

// Makes the user's table hold exactly these rows, at one stroke; false when it cannot.
[[nodiscard]] bool write_type_table(const Session& session, const std::vector<FileTypeEntry>& rows);

// A table's file as it stands, elsewhere than in the user's place. A missing one is empty.
[[nodiscard]] TypeTable read_type_table_file(const Platform& platform, const std::string& path);

// The pattern of a table without a row that is on: a name that no file bears.
inline constexpr std::string_view kMatchesNothing = "fgrft.gftr";

// What the drive search takes from the table.
struct TypesToFind {
  std::string patterns;        // of the rows that are on, joined by "|"
  bool all_files_on = false;   // a row that switches the pass for all files is on ...
  bool all_files_off = false;  // ... or off
};
// With no row on the pattern is a name that no file bears, so that the search still runs.
[[nodiscard]] TypesToFind types_to_find(const std::vector<FileTypeEntry>& rows);

}  // namespace quillvane
