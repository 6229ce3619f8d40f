// lists show, lists add, lists remove, lists on, lists off: the program's lists without a window.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <functional>
#include <set>
#include <vector>

#include "support/list_files.h"
#include "view/console/console_command.h"
#include "view/console/json_text.h"
#include "view/console/lists/shown_list.h"
#include "view/console/readable.h"

namespace quillvane {

namespace {

std::string names_of_lists() {
  std::string names;
  for (const ShownList& list : shown_lists()) {
    names += (names.empty() ? "" : ", ") + std::string(list.name);
  }
  return names;
}

int wrong_words(const ConsoleSession& console, const std::string& what_and_why) {
  console.problem(what_and_why);
  return kWrongWords;
}

int no_such_list(const ConsoleSession& console, const std::string& name) {
  return wrong_words(console, name + ": there is no such list (" + names_of_lists() + ")");
}

Json content_json(const ShownList& list, const std::string& path, const ListContent& content) {
  Json json = {{"list", list.name}, {"file", path}, {"entries", Json::array()}};
  int number = 0;
  for (const ListEntry& entry : content.entries) {
    Json row = {{"number", ++number}};
    for (std::size_t field = 0; field < list.fields.size(); ++field) {
      row[std::string(list.fields[field])] = list.shown(field, entry[field]);
    }
    json["entries"].push_back(std::move(row));
  }
  return json;
}

void print_content(const ConsoleIo& io, const ShownList& list, const ListContent& content) {
  constexpr std::size_t kNumberWidth = 4;
  std::vector<ListEntry> lines;
  for (const ListEntry& entry : content.entries) {
    ListEntry& line = lines.emplace_back();
    for (std::size_t field = 0; field < list.fields.size(); ++field) {
      line.push_back(shown(list.shown(field, entry[field]), io.out_is_terminal));
    }
  }
  std::vector<std::size_t> widths(list.fields.size());
  for (const ListEntry& line : lines) {
    for (std::size_t field = 0; field < widths.size(); ++field) {
      widths[field] = std::max(widths[field], columns_of(line[field]));
    }
  }
  int number = 0;
  for (const ListEntry& line : lines) {
    std::string text = right_aligned(std::to_string(++number), kNumberWidth);
    for (std::size_t field = 0; field < widths.size(); ++field) {
      text += "  " + padded(line[field], widths[field]);
    }
    text.resize(text.find_last_not_of(' ') + 1);
    io.out << text << '\n';
  }
}

int show(const ConsoleSession& console, const std::string& name) {
  const ShownList* list = find_shown_list(name);
  if (list == nullptr) return no_such_list(console, name);
  const auto machine = console.open_machine();
  if (machine == nullptr) return kNotDone;
  const Session session(machine->platform());
  const std::string path = session.data_file(list->file);
  const ListContent content = list->read(session);
  if (!content.problem.empty()) return console.problem(path + ": " + content.problem);
  if (console.json) {
    console.io.out << json_text(content_json(*list, path, content)) << '\n';
  } else {
    print_content(console.io, *list, content);
  }
  return kDone;
}

// What a change makes of the entries, or why it cannot be made.
using ListChange = std::function<std::optional<std::string>(
    const Session& session, const ShownList& list, std::vector<ListEntry>& entries)>;

// Reads the list, changes it and writes it. One that cannot be read is not written over.
int change_list(const ConsoleSession& console, const ShownList& list, const ListChange& change) {
  const auto machine = console.open_machine();
  if (machine == nullptr) return kNotDone;
  const Session session(machine->platform());
  const std::string path = session.data_file(list.file);
  ListContent content = list.read(session);
  if (!content.problem.empty()) return console.problem(path + ": " + content.problem);
  if (const auto why = change(session, list, content.entries)) return console.problem(*why);
  if (!list.write(session, content.entries)) return console.problem(path + ": cannot be written");
  return kDone;
}

// Numbers of entries as they are shown; none that is not there.
std::optional<std::string> read_numbers(const std::vector<std::string>& words, std::size_t count,
                                        std::set<std::size_t>& numbers) {
  for (const std::string& word : words) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool whole = error == std::errc() && end == word.data() + word.size();
    if (!whole || number < 1 || number > count) return word + ": there is no such entry";
    numbers.insert(number);
  }
  return std::nullopt;
}

std::optional<std::string> remove_entries(const std::vector<std::string>& words,
                                          std::vector<ListEntry>& entries) {
  std::set<std::size_t> numbers;
  if (auto why = read_numbers(words, entries.size(), numbers)) return why;
  for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(*number) - 1);
  }
  return std::nullopt;
}

std::optional<std::string> switch_types(const std::vector<std::string>& words, bool on,
                                        std::vector<ListEntry>& entries) {
  constexpr std::size_t kFlag = 2;
  std::set<std::size_t> numbers;
  if (words.size() == 1 && words[0] == "all") {
    for (std::size_t number = 1; number <= entries.size(); ++number) numbers.insert(number);
  } else if (auto why = read_numbers(words, entries.size(), numbers)) {
    return why;
  }
  for (const std::size_t number : numbers) entries[number - 1][kFlag] = on ? "1" : "0";
  return std::nullopt;
}

struct AddWords {
  std::string list;
  NewEntry entry;
  std::vector<const CLI::Option*> options;
};

int add(const ConsoleSession& console, const AddWords& words) {
  const ShownList* list = find_shown_list(words.list);
  if (list == nullptr) return no_such_list(console, words.list);
  const std::string choices = " " + std::string(list->choices) + " ";
  for (const CLI::Option* option : words.options) {
    const std::string name = option->get_name();
    if (option->count() > 0 && choices.find(" " + name + " ") == std::string::npos) {
      return wrong_words(console, name + ": does not go with " + words.list);
    }
  }
  return change_list(console, *list,
                     [&words](const Session& session, const ShownList& to,
                              std::vector<ListEntry>& entries) -> std::optional<std::string> {
                       ListEntry made;
                       if (auto why = to.make(session, words.entry, entries, made)) {
                         return words.entry.place + ": " + *why;
                       }
                       for (const std::string& field : made) {
                         if (field.find_first_of("\r\n") != std::string::npos) {
                           return words.entry.place + ": holds the end of a line";
                         }
                       }
                       entries.push_back(std::move(made));
                       return std::nullopt;
                     });
}

struct NumberWords {
  std::string list;
  std::vector<std::string> numbers;
};

std::function<int()> prepare_switch(CLI::App& app, ConsoleSession& session, bool on) {
  const auto words = std::make_shared<NumberWords>();
  app.add_option("NUMBER", words->numbers, "Types by their numbers in lists show; all for all")
      ->required();
  return [&session, words, on] {
    return change_list(session, *find_shown_list("types"),
                       [&](const Session&, const ShownList&, std::vector<ListEntry>& entries) {
                         return switch_types(words->numbers, on, entries);
                       });
  };
}

}  // namespace

std::function<int()> prepare_lists_show(CLI::App& app, ConsoleSession& session) {
  const auto name = std::make_shared<std::string>();
  app.add_option("LIST", *name, names_of_lists())->required();
  return [&session, name] { return show(session, *name); };
}

std::function<int()> prepare_lists_add(CLI::App& app, ConsoleSession& session) {
  const auto words = std::make_shared<AddWords>();
  NewEntry& entry = words->entry;
  app.add_option("LIST", words->list, names_of_lists())->required();
  app.add_option("ENTRY", entry.place, "A folder or file; of the types a file pattern")->required();
  words->options = {
      app.add_option("--description", entry.description, "Of a place or a type"),
      app.add_flag("--file", entry.is_file, "A file of this name, wherever it lies (exclude)"),
      app.add_flag("--on", entry.is_on, "The search looks for it (types)"),
      app.add_option("--name", entry.name, "The category's caption (custom)"),
      app.add_option("--include", entry.include, "Patterns, joined by commas (custom)"),
      app.add_option("--exclude", entry.exclude, "Patterns to leave out (custom)"),
      app.add_flag("--subfolders", entry.has_subfolders, "With subfolders (custom)"),
  };
  return [&session, words] { return add(session, *words); };
}

std::function<int()> prepare_lists_remove(CLI::App& app, ConsoleSession& session) {
  const auto words = std::make_shared<NumberWords>();
  app.add_option("LIST", words->list, names_of_lists())->required();
  app.add_option("NUMBER", words->numbers, "Entries by their numbers in lists show")->required();
  return [&session, words] {
    const ShownList* list = find_shown_list(words->list);
    if (list == nullptr) return no_such_list(session, words->list);
    return change_list(session, *list,
                       [&](const Session&, const ShownList&, std::vector<ListEntry>& entries) {
                         return remove_entries(words->numbers, entries);
                       });
  };
}

std::function<int()> prepare_lists_on(CLI::App& app, ConsoleSession& session) {
  return prepare_switch(app, session, true);
}

std::function<int()> prepare_lists_off(CLI::App& app, ConsoleSession& session) {
  return prepare_switch(app, session, false);
}

}  // namespace quillvane
