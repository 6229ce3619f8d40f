#include "view/console/lists/shown_list.h"

#include <algorithm>
#include <array>

#include "drivesearch/folder_list.h"
#include "drivesearch/type_table.h"
#include "platform/unicode_case.h"
#include "support/list_files.h"
#include "support/text.h"
#include "support/text_file.h"
#include "support/val.h"

namespace quillvane {

namespace {

using Why = std::optional<std::string>;
using Entries = std::vector<ListEntry>;

constexpr std::array<std::string_view, 3> kPlaceFields = {"place", "description", "kind"};
constexpr std::array<std::string_view, 3> kTypeFields = {"description", "pattern", "state"};
constexpr std::array<std::string_view, 1> kIgnoreFields = {"place"};
constexpr std::array<std::string_view, 5> kCustomFields = {"name", "folder", "include", "exclude",
                                                           "subfolders"};

std::string trimmed(const std::string& text) { return std::string(Trim(text)); }

bool is_whole_path(const std::string& path) {
  return path.starts_with("\\\\") || (path.size() >= 2 && path[1] == ':');
}

// A drive stands by its letter alone, a folder without a backslash at its end.
std::string without_last_backslash(std::string path) {
  if (path.ends_with('\\')) path.pop_back();
  return path;
}

// Why a text is no field of that many bytes; nothing when it is one.
Why misfit(const Session& session, const std::string& text, std::size_t bytes) {
  const std::string field = field_of_text(session.platform.system, text, bytes);
  const auto kept = text_of_bytes(session.platform.system, field);
  if (kept && Trim(*kept) == Trim(text)) return std::nullopt;
  return "does not fit into " + std::to_string(bytes) + " bytes: " + text;
}

std::string as_it_stands(std::size_t /*field*/, const std::string& value) { return value; }

// --- exclude, include

template <const std::string_view& kFile>
ListContent read_places(const Session& session) {
  FolderList list = read_folder_list(session.platform, session.data_file(kFile));
  ListContent content{{}, std::move(list.problem)};
  for (const ListedPlace& place : list.places) {
    content.entries.push_back({place.name, place.description, place.flag});
  }
  return content;
}

template <const std::string_view& kFile>
bool write_places(const Session& session, const Entries& entries) {
  std::vector<ListedPlace> places;
  for (const ListEntry& entry : entries) places.push_back({entry[0], entry[1], entry[2]});
  return write_folder_list(session.platform, session.data_file(kFile), places);
}

Why fit_place(const Session& session, const ListEntry& made) {
  if (auto why = misfit(session, made[0], kPlaceBytes)) return why;
  return misfit(session, made[1], kPlaceDescriptionBytes);
}

Why make_place(const Session& session, const NewEntry& asked, bool is_file,
               std::string_view folder_flag, ListEntry& made) {
  const std::string path = trimmed(asked.place);
  if (is_file) {
    const std::string name = path.substr(path.rfind('\\') + 1);
    if (name.empty()) return "is no file's name";
    made = {name, asked.description.empty() ? name : asked.description, std::string(kFileFlag)};
    return fit_place(session, made);
  }
  if (!is_whole_path(path)) return "is no whole path, as C:\\Folder is";
  made = {without_last_backslash(path),
          asked.description.empty() ? "Excluded Folder" : asked.description,
          std::string(folder_flag)};
  return fit_place(session, made);
}

Why make_excluded(const Session& session, const NewEntry& asked, const Entries& /*entries*/,
                  ListEntry& made) {
  return make_place(session, asked, asked.is_file, kFolderFlag, made);
}

Why make_included(const Session& session, const NewEntry& asked, const Entries& /*entries*/,
                  ListEntry& made) {
  return make_place(session, asked, false, kFileFlag, made);
}

std::string shown_excluded(std::size_t field, const std::string& value) {
  if (field != 2) return value;
  const double flag = Val(value);
  return flag == 9 ? "folder" : flag == 1 ? "file" : "none";
}

std::string shown_included(std::size_t field, const std::string& value) {
  return field == 2 ? "folder" : value;
}

// --- types

ListContent read_types(const Session& session) {
  put_type_table_in_place(session);
  TypeTable table = read_type_table_file(session.platform, session.data_file(kTypeFile));
  ListContent content{{}, std::move(table.problem)};
  for (const FileTypeEntry& row : table.rows) {
    if (row.description.empty() && row.extension.empty()) continue;
    content.entries.push_back({row.description, row.extension, row.flag});
  }
  return content;
}

bool write_types(const Session& session, const Entries& entries) {
  std::vector<FileTypeEntry> rows;
  for (const ListEntry& entry : entries) rows.push_back({entry[0], entry[1], entry[2]});
  return write_type_table(session, rows);
}

Why make_type(const Session& session, const NewEntry& asked, const Entries& entries,
              ListEntry& made) {
  const std::string pattern = trimmed(asked.place);
  if (pattern.find('|') != std::string::npos) return "holds a |, which parts patterns";
  if (trimmed(asked.description).empty()) return "needs a --description";
  const bool known = std::any_of(entries.begin(), entries.end(), [&](const ListEntry& entry) {
    return same_name(entry[1], pattern);
  });
  if (known) return "This File type is already entered";
  made = {trimmed(asked.description), pattern, asked.is_on ? "1" : "0"};
  if (auto why = misfit(session, made[0], kTypeBytes)) return why;
  return misfit(session, made[1], kTypeBytes);
}

std::string shown_type(std::size_t field, const std::string& value) {
  if (field != 2) return value;
  return Val(value) == 1 ? "on" : "off";
}

// --- ignore

ListContent read_ignored(const Session& session) {
  ListLines list = read_list_file(session.platform, session.data_file(kIgnoreFile));
  ListContent content{{}, std::move(list.problem)};
  for (const std::string& line : list.lines) content.entries.push_back({line});
  return content;
}

bool write_ignored(const Session& session, const Entries& entries) {
  std::vector<std::string> lines;
  for (const ListEntry& entry : entries) lines.push_back(entry[0]);
  return write_list_file(session.platform, session.data_file(kIgnoreFile), lines);
}

Why make_ignored(const Session& /*session*/, const NewEntry& asked, const Entries& /*entries*/,
                 ListEntry& made) {
  if (Trim(asked.place).empty()) return "is blank";
  made = {asked.place};
  return std::nullopt;
}

// --- custom

ListContent read_custom(const Session& session) {
  ListLines list = read_list_file(session.platform, session.data_file(kCustomFile));
  ListContent content{{}, std::move(list.problem)};
  for (const std::string& line : list.lines) {
    const CustomEntry entry = custom_entry_of(line);
    content.entries.push_back(
        {entry.name, entry.location, entry.include, entry.exclude, entry.subfolders});
  }
  return content;
}

bool write_custom(const Session& session, const Entries& entries) {
  std::vector<std::string> lines;
  for (const ListEntry& entry : entries) {
    lines.push_back(line_of({entry[0], entry[1], entry[2], entry[3], entry[4]}));
  }
  return write_list_file(session.platform, session.data_file(kCustomFile), lines);
}

Why make_custom(const Session& session, const NewEntry& asked, const Entries& /*entries*/,
                ListEntry& made) {
  const auto attributes = session.platform.files.attributes(asked.place);
  if (!attributes || (*attributes & kAttributeFolder) == 0) return "is no folder";
  if (asked.name.empty()) return "needs a --name";
  if ((asked.name + asked.place).find('|') != std::string::npos) {
    return "holds a |, which parts the fields of the list";
  }
  made = {asked.name, asked.place, replace_all(asked.include, "|", ","),
          replace_all(asked.exclude, "|", ","), asked.has_subfolders ? "1" : "0"};
  return std::nullopt;
}

std::string shown_custom(std::size_t field, const std::string& value) {
  if (field != 4) return value;
  return Val(value) == 1 ? "yes" : "no";
}

constexpr ShownList kLists[] = {
    {"exclude", kExcludeFile, kPlaceFields, "--description --file", read_places<kExcludeFile>,
     write_places<kExcludeFile>, make_excluded, shown_excluded},
    {"include", kIncludeFile, kPlaceFields, "--description", read_places<kIncludeFile>,
     write_places<kIncludeFile>, make_included, shown_included},
    {"types", kTypeFile, kTypeFields, "--description --on", read_types, write_types, make_type,
     shown_type},
    {"ignore", kIgnoreFile, kIgnoreFields, "", read_ignored, write_ignored, make_ignored,
     as_it_stands},
    {"custom", kCustomFile, kCustomFields, "--name --include --exclude --subfolders", read_custom,
     write_custom, make_custom, shown_custom},
};

}  // namespace

std::span<const ShownList> shown_lists() { return kLists; }

const ShownList* find_shown_list(std::string_view name) {
  const auto* const found =
      std::find_if(std::begin(kLists), std::end(kLists),
                   [name](const ShownList& list) { return list.name == name; });
  return found == std::end(kLists) ? nullptr : found;
}

}  // namespace quillvane
