// language check.

#include <CLI/CLI.hpp>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <variant>
#include <vector>

#include "lang/character_set.h"
#include "lang/language_check.h"
#include "view/console/console_command.h"
#include "view/console/input_file.h"
#include "view/console/json_text.h"
#include "view/console/readable.h"

namespace quillvane {

namespace {

constexpr const char* kCatalogueKey = "fernwick";
constexpr const char* kCatalogue = "data.lang";

using Read = std::variant<LanguageBytes, std::string>;  // or why not, in a few words

Read read_file(const std::string& file, std::istream& standard_input) {
  InputFile input(file, standard_input);
  if (!input.opened()) return "cannot be read";
  auto content = input.read_all(kMostLanguageBytes);
  if (const auto* error = std::get_if<std::error_code>(&content)) {
    const bool too_large = *error == std::errc::file_too_large;
    return too_large ? "counts as missing: it has more than 1 MB"
                     : "cannot be read: " + error->message();
  }
  auto bytes = language_bytes(std::get<std::string>(std::move(content)));
  if (!bytes) return "counts as missing: it has NUL bytes";
  return *std::move(bytes);
}

// The character set that was given, else that of the catalogue beside the file.
std::optional<int> set_of_file(const std::string& file, const std::optional<int>& given,
                               std::istream& standard_input) {
  if (given) return given;
  const std::filesystem::path path(file);
  const std::string code = language_code_of(path.filename().string());
  if (code.empty()) return std::nullopt;
  const Read catalogue = read_file((path.parent_path() / kCatalogue).string(), standard_input);
  const auto* bytes = std::get_if<LanguageBytes>(&catalogue);
  return bytes == nullptr ? std::nullopt : catalogue_character_set(*bytes, kCatalogueKey, code);
}

Json findings_json(const std::vector<LanguageFinding>& findings) {
  Json list = Json::array();
  for (const LanguageFinding& finding : findings) {
    list.push_back({{"line", finding.line},
                    {"section", finding.section},
                    {"key", finding.key},
                    {"what", finding.what}});
  }
  return {{"findings", list}};
}

// "FILE:12: [Form7] cmd_start: is empty".
void print_finding(const ConsoleIo& io, const std::string& file, const LanguageFinding& finding) {
  std::string text = file + ":";
  if (finding.line != 0) text += std::to_string(finding.line) + ":";
  text += " ";
  if (!finding.section.empty()) text += "[" + finding.section + "] ";
  if (!finding.key.empty()) text += finding.key + ": ";
  io.out << shown(text + finding.what, io.out_is_terminal) << '\n';
}

int check(ConsoleSession& session, const std::string& file, const std::optional<int>& given) {
  const Read read = read_file(file, session.io.in);
  if (const auto* why = std::get_if<std::string>(&read)) {
    return session.problem(file + ": " + *why);
  }
  const auto set = set_of_file(file, given, session.io.in);
  const int number = set ? text_page_of_set(*set) : 0;
  if (number == 0) {
    return session.problem(
        file + ": its character set is not known: no data.lang beside it names it; use --charset");
  }
  const CodePage* page = session.host.code_page(number);
  if (page == nullptr) {
    return session.problem(file + ": code page " + std::to_string(number) + " is not installed");
  }
  const auto findings = check_language_file(std::get<LanguageBytes>(read), *page, number);
  if (session.json) {
    session.io.out << json_text(findings_json(findings)) << '\n';
  } else {
    for (const LanguageFinding& finding : findings) print_finding(session.io, file, finding);
  }
  return findings.empty() ? kDone : kNotDone;
}

}  // namespace

std::function<int()> prepare_language_check(CLI::App& app, ConsoleSession& session) {
  const auto file = std::make_shared<std::string>();
  const auto set = std::make_shared<std::optional<int>>();
  app.add_option("FILE", *file, "A language file; - for standard input")->required();
  app.add_option("--charset", *set, "Its character set: 0 Western, 204 Russian, ...")
      ->type_name("NUMBER");
  return [&session, file, set] { return check(session, *file, *set); };
}

}  // namespace quillvane
