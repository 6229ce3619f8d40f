// One of the program's lists as the console shows it: entries of named fields.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/session.h"

namespace quillvane {

using ListEntry =
    std::vector<std::string>;  // the values of its fields, as the list's file has them

struct ListContent {
  std::vector<ListEntry> entries;  // those that hold something
  std::string problem;             // why a list that is there was not read; empty when it was
};

// What the words of a command say of a new entry.
struct NewEntry {
  std::string place;  // a path; of the types a file pattern
  std::string description;
  std::string name;
  std::string include;
  std::string exclude;
  bool is_file = false;
  bool is_on = false;
  bool has_subfolders = false;
};

struct ShownList {
  std::string_view name;                     // as it is called on the command line
  std::string_view file;                     // beside the program's executable
  std::span<const std::string_view> fields;  // what they are called
  std::string_view choices;                  // options that a new entry may have, a blank between

  ListContent (*read)(const Session& session);
  // False when it cannot be written. Requires: it was read.
  bool (*write)(const Session& session, const std::vector<ListEntry>& entries);
  // The new entry as the list has it; or why it cannot be one.
  std::optional<std::string> (*make)(const Session& session, const NewEntry& asked,
                                     const std::vector<ListEntry>& entries, ListEntry& made);
  // A field's value in words: "folder" for the flag 9.
  std::string (*shown)(std::size_t field, const std::string& value);
};

[[nodiscard]] std::span<const ShownList> shown_lists();

// Null when there is none of that name.
[[nodiscard]] const ShownList* find_shown_list(std::string_view name);

}  // namespace quillvane
