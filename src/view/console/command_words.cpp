#include "view/console/command_words.h"

#include <CLI/CLI.hpp>
#include <cstddef>
#include <map>

namespace quillvane {

namespace {

// Reads the words once, from left to right.
class WordCheck {
 public:
  WordCheck(const CLI::App& app, const std::vector<std::string>& words)
      : command_(&app), words_(words) {}

  std::optional<std::string> run() {
    while (next_ < words_.size() && !settled_) {
      if (auto wrong = check_word(words_[next_++])) return wrong;
    }
    return settled_ ? std::nullopt : check_end();
  }

 private:
  using Wrong = std::optional<std::string>;

  [[nodiscard]] static bool is_option(const std::string& word) {
    return word.size() > 1 && word.front() == '-';
  }

  Wrong check_word(const std::string& word) {
    if (word == "--") return word + ": is not taken (write ./-NAME for a name that begins with -)";
    if (is_option(word)) return check_option(word);
    if (const CLI::App* command = command_named(word)) {
      command_ = command;
      // Takes any words.
      settled_ = command->get_prefix_command();
      return std::nullopt;
    }
    return check_argument(word);
  }

  // The command of this name below the one that was read last.
  [[nodiscard]] const CLI::App* command_named(const std::string& word) const {
    const auto named = command_->get_subcommands(
        [&word](const CLI::App* command) { return command->get_name() == word; });
    return named.empty() ? nullptr : named.front();
  }

  Wrong check_argument(const std::string& word) {
    const CLI::Option* argument = free_argument();
    const std::string name = argument == nullptr ? "command line" : argument->get_name(true);
    if (word.empty()) return argument == nullptr ? name + ": a word is empty" : is_empty(name);
    if (argument != nullptr) {
      ++given_[argument];
      return std::nullopt;
    }
    return word + (needs_command() ? ": there is no such command" : ": is one word too many");
  }

  // The argument that takes the next word; null when all have theirs.
  [[nodiscard]] const CLI::Option* free_argument() {
    for (const CLI::Option* option : command_->get_options()) {
      if (option->get_positional() && given_[option] < option->get_items_expected_max()) {
        return option;
      }
    }
    return nullptr;
  }

  [[nodiscard]] bool needs_command() const { return command_->get_require_subcommand_min() > 0; }

  // An option of the command or of one above it.
  [[nodiscard]] const CLI::Option* option_named(const std::string& name) const {
    for (const CLI::App* app = command_; app != nullptr; app = app->get_parent()) {
      if (const CLI::Option* option = app->get_option_no_throw(name)) return option;
    }
    return nullptr;
  }

  [[nodiscard]] bool tells_only(const CLI::Option* option) const {
    const CLI::App* root = command_;
    while (root->get_parent() != nullptr) root = root->get_parent();
    return option == command_->get_help_ptr() || option == root->get_help_ptr() ||
           option == root->get_version_ptr();
  }

  Wrong check_option(const std::string& word) {
    const std::size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    const CLI::Option* option = option_named(name);
    if (option == nullptr) return name + ": there is no such option";
    if (tells_only(option)) {
      settled_ = true;
      return std::nullopt;
    }
    if (given_[option]++ > 0 && option->get_expected_max() <= 1) return name + ": is given twice";
    for (const CLI::Option* other : option->get_excludes()) {
      if (given_[other] > 0) return name + ": does not go with " + other->get_name();
    }
    if (option->get_items_expected_max() == 0) {
      return equals == std::string::npos ? std::nullopt : Wrong(name + ": takes no value");
    }
    if (equals != std::string::npos) return check_value(name, word.substr(equals + 1));
    if (next_ == words_.size() || words_[next_].starts_with("--")) {
      return name + ": needs a value behind it";
    }
    return check_value(name, words_[next_++]);
  }

  static std::string is_empty(const std::string& name) { return name + ": is given empty"; }

  static Wrong check_value(const std::string& name, const std::string& value) {
    return value.empty() ? Wrong(is_empty(name)) : std::nullopt;
  }

  // What is missing when all words have been read.
  Wrong check_end() {
    if (needs_command() && command_->get_parent() == nullptr) {
      return "command line: a command is missing (quillvane --help lists them)";
    }
    const std::string name = name_of(*command_);
    if (needs_command()) {
      return name + ": needs a command behind it (quillvane " + name + " --help lists them)";
    }
    for (const CLI::Option* option : command_->get_options()) {
      if (option->get_required() && given_[option] == 0) {
        return name + ": " + option->get_name(option->get_positional()) + " is missing";
      }
    }
    return std::nullopt;
  }

  // "machine create".
  static std::string name_of(const CLI::App& command) {
    const CLI::App* parent = command.get_parent();
    const bool inner = parent != nullptr && parent->get_parent() != nullptr;
    return inner ? name_of(*parent) + " " + command.get_name() : command.get_name();
  }

  const CLI::App* command_;  // the one that was read last
  const std::vector<std::string>& words_;
  std::size_t next_ = 0;
  bool settled_ = false;  // what follows is not looked at
  std::map<const CLI::Option*, int> given_;
};

}  // namespace

std::optional<std::string> wrong_words(const CLI::App& app, const std::vector<std::string>& words) {
  return WordCheck(app, words).run();
}

}  // namespace quillvane
