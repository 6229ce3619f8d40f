// language check.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "machine/data_files.h"
#include "tests/support/one_machine_host.h"
#include "tests/support/temp_folder.h"
#include "view/console/console.h"

namespace quillvane {
namespace {

// A folder with the language files that ship, in which a translator works.
struct Stage {
  Stage() {
    for (const DataFile& file : data_files()) {
      if (file.name.starts_with("lang\\")) folder.write(file.name.substr(5), file.bytes);
    }
  }

  int run(const std::vector<std::string>& words) {
    ConsoleIo io{in, out, err};
    return run_console(words, io, host);
  }
  // A shipped file with one text of it replaced.
  void write_changed(const std::string& name, std::string_view from, std::string_view to) {
    std::string text = *folder.read(name);
    text.replace(text.find(from), from.size(), to);
    folder.write(name, text);
  }
  [[nodiscard]] std::string path(std::string_view name) const { return folder.path_of(name); }

  TempFolder folder;
  OneMachineHost host;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
};

TEST(LanguageCommand, ACleanFileIsDoneWithoutAWord) {
  for (const char* code : {"en", "de", "fr", "es", "ru", "ar", "ja", "zh"}) {
    Stage stage;
    const std::string name = "fernwick-" + std::string(code) + ".lang";

    EXPECT_EQ(stage.run({"language", "check", stage.path(name)}), 0) << name;

    EXPECT_EQ(stage.out.str(), "");
    EXPECT_EQ(stage.err.str(), "");
  }
}

TEST(LanguageCommand, FindingsComeALineEachWithTheirPlace) {
  Stage stage;
  stage.write_changed("fernwick-de.lang", "cmd_start=", "cmd_stop=");
  const std::string file = stage.path("fernwick-de.lang");

  EXPECT_EQ(stage.run({"language", "check", file}), 1);

  EXPECT_EQ(stage.out.str(), file + ":2: [Form7] cmd_stop: is no key of this window\n" + file +
                                 ":1: [Form7] cmd_start: is missing\n");
  EXPECT_EQ(stage.err.str(), "");
}

TEST(LanguageCommand, FindingsAsJson) {
  Stage stage;
  stage.write_changed("fernwick-de.lang", "cmd_start=Starten", "cmd_start=");

  EXPECT_EQ(stage.run({"language", "check", "--json", stage.path("fernwick-de.lang")}), 1);

  EXPECT_EQ(stage.out.str(),
            R"({"findings":[{"line":2,"section":"Form7","key":"cmd_start","what":"is empty"}]})"
            "\n");
}

TEST(LanguageCommand, TheCharacterSetIsThatOfTheCatalogueOrTheOneGiven) {
  Stage stage;
  stage.folder.write("fernwick-xx.lang", *stage.folder.read("fernwick-ru.lang"));
  const std::string file = stage.path("fernwick-xx.lang");

  EXPECT_EQ(stage.run({"language", "check", file}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: " + file +
                                 ": its character set is not known: no data.lang beside it names "
                                 "it; use --charset\n");

  EXPECT_EQ(stage.run({"language", "check", file, "--charset", "204"}), 0);
  EXPECT_EQ(stage.run({"language", "check", file, "--charset", "77"}), 1);
}

TEST(LanguageCommand, AFileThatCountsAsMissingIsAProblem) {
  Stage stage;
  stage.folder.write("fernwick-de.lang", std::string_view("[Form7]\r\n\0", 10));
  const std::string file = stage.path("fernwick-de.lang");

  EXPECT_EQ(stage.run({"language", "check", file}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: " + file + ": counts as missing: it has NUL bytes\n");

  stage.err.str("");
  stage.folder.write("fernwick-de.lang", std::string(1024 * 1024 + 1, ' '));
  EXPECT_EQ(stage.run({"language", "check", file}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: " + file + ": counts as missing: it has more than 1 MB\n");
}

TEST(LanguageCommand, AFileThatIsNotThereIsAProblem) {
  Stage stage;

  EXPECT_EQ(stage.run({"language", "check", "/no/such/file"}), 1);

  EXPECT_EQ(stage.err.str(), "quillvane: /no/such/file: cannot be read\n");
}

TEST(LanguageCommand, StandardInputNeedsACharacterSet) {
  Stage stage;
  stage.in.str(*stage.folder.read("fernwick-fr.lang"));

  EXPECT_EQ(stage.run({"language", "check", "-", "--charset", "0"}), 0);
  EXPECT_EQ(stage.run({"language", "check", "-"}), 1);
}

}  // namespace
}  // namespace quillvane
