// lists: what it shows of each list, what it changes, and what it leaves alone.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/one_machine_host.h"
#include "tests/support/unreadable_file.h"
#include "view/console/console.h"

namespace quillvane {
namespace {

const std::string kFolder = "C:\\Program Files\\Tidewrack\\";

using Words = std::vector<std::string>;

std::string field(std::string text, std::size_t width) {
  text.resize(width, ' ');
  return text;
}
std::string place(const std::string& name, const std::string& description,
                  const std::string& flag) {
  return field(name, 150) + field(description, 250) + flag;
}
std::string type(const std::string& description, const std::string& pattern,
                 const std::string& flag) {
  return field(description, 50) + field(pattern, 50) + flag;
}

struct Stage {
  Stage() { machine().add_folder("C:\\Program Files\\Tidewrack"); }
  int run(const Words& words) {
    out.str("");
    err.str("");
    ConsoleIo io{in, out, err};
    return run_console(words, io, host);
  }
  void add(const std::string& name, const std::string& content) {
    machine().add_text_file(kFolder + name, content);
  }
  std::string file(const std::string& name) {
    return machine().file_text(kFolder + name).value_or("missing");
  }
  TempMachine& machine() { return host.machine.temp(); }

  OneMachineHost host;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
};

TEST(ListsCommand, ShowsEachListInItsOwnWords) {
  Stage stage;
  stage.add("exfolder.orv", place("C:\\Data", "My data", "9") + place("notes.txt", "", "1"));
  stage.add("incfolder.orv", place("D:\\Junk", "All of it", "1"));
  stage.add("tmptype.txt", type("Old files", "*.old", "0") + type("", "", "0") +
                               type("Temporary files", "*.tmp", "1"));
  stage.add("ignore.tdw", "C:\\Kept\r\n\r\nC:\\Also\r\n");
  stage.add("custom.tdw", "Mine|C:\\Mine|*.tmp,*.log|*.doc|1\r\n");

  EXPECT_EQ(stage.run({"lists", "show", "exclude"}), 0);
  EXPECT_EQ(stage.out.str(),
            "   1  C:\\Data    My data  folder\n"
            "   2  notes.txt           file\n");
  EXPECT_EQ(stage.run({"lists", "show", "include"}), 0);
  EXPECT_EQ(stage.out.str(), "   1  D:\\Junk  All of it  folder\n");
  EXPECT_EQ(stage.run({"lists", "show", "types"}), 0);
  EXPECT_EQ(stage.out.str(),
            "   1  Old files        *.old  off\n"
            "   2  Temporary files  *.tmp  on\n");
  EXPECT_EQ(stage.run({"lists", "show", "ignore"}), 0);
  EXPECT_EQ(stage.out.str(), "   1  C:\\Kept\n   2  C:\\Also\n");
  EXPECT_EQ(stage.run({"lists", "show", "custom"}), 0);
  EXPECT_EQ(stage.out.str(), "   1  Mine  C:\\Mine  *.tmp,*.log  *.doc  yes\n");
  EXPECT_EQ(stage.err.str(), "");
}

TEST(ListsCommand, ShowsAListAsJson) {
  Stage stage;
  stage.add("exfolder.orv", place("C:\\Data", "My data", "9"));
  EXPECT_EQ(stage.run({"lists", "show", "exclude", "--json"}), 0);
  EXPECT_EQ(stage.out.str(),
            "{\"list\":\"exclude\",\"file\":\"C:\\\\Program Files\\\\Tidewrack\\\\exfolder.orv\","
            "\"entries\":[{\"number\":1,\"place\":\"C:\\\\Data\",\"description\":\"My data\","
            "\"kind\":\"folder\"}]}\n");
}

TEST(ListsCommand, ShowsAMissingListAsEmptyAndMakesNone) {
  Stage stage;
  for (const char* list : {"exclude", "include", "types", "ignore", "custom"}) {
    EXPECT_EQ(stage.run({"lists", "show", list}), 0) << list;
    EXPECT_EQ(stage.out.str(), "") << list;
  }
  for (const char* name :
       {"exfolder.orv", "incfolder.orv", "tmptype.txt", "ignore.tdw", "custom.tdw"}) {
    EXPECT_EQ(stage.file(name), "missing") << name;
  }
}

TEST(ListsCommand, TakesOverTheTableThatCameWithTheProgram) {
  Stage stage;
  stage.add("tmptype.orv", type("Old files", "*.old", "0"));
  EXPECT_EQ(stage.run({"lists", "show", "types"}), 0);
  EXPECT_EQ(stage.out.str(), "   1  Old files  *.old  off\n");
  EXPECT_EQ(stage.file("tmptype.txt"), type("Old files", "*.old", "0"));
  EXPECT_EQ(stage.file("tmptype.orv"), "missing");
}

TEST(ListsCommand, AddsPlacesWithTheProgramsOwnDescription) {
  Stage stage;
  EXPECT_EQ(stage.run({"lists", "add", "exclude", "C:\\Data", "--description", "My data"}), 0);
  EXPECT_EQ(stage.run({"lists", "add", "exclude", "D:\\"}), 0);
  EXPECT_EQ(stage.run({"lists", "add", "exclude", "C:\\Data\\notes.txt", "--file"}), 0);
  EXPECT_EQ(stage.file("exfolder.orv"), place("C:\\Data", "My data", "9") +
                                            place("D:", "Excluded Folder", "9") +
                                            place("notes.txt", "notes.txt", "1"));
  EXPECT_EQ(stage.run({"lists", "add", "include", "C:\\Junk\\"}), 0);
  EXPECT_EQ(stage.file("incfolder.orv"), place("C:\\Junk", "Excluded Folder", "1"));
  EXPECT_EQ(stage.out.str() + stage.err.str(), "");
}

TEST(ListsCommand, AddsTypesOffUnlessTheyAreToBeOn) {
  Stage stage;
  EXPECT_EQ(stage.run({"lists", "add", "types", "*.old", "--description", "Old files"}), 0);
  EXPECT_EQ(stage.run({"lists", "add", "types", "*.tmp", "--description=Temporary", "--on"}), 0);
  EXPECT_EQ(stage.file("tmptype.txt"),
            type("Old files", "*.old", "0") + type("Temporary", "*.tmp", "1"));
  EXPECT_EQ(stage.run({"lists", "add", "types", "*.OLD", "--description", "Again"}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: *.OLD: This File type is already entered\n");
}

TEST(ListsCommand, AddsIgnoredPlacesAndCustomFolders) {
  Stage stage;
  stage.machine().add_folder("C:\\Mine");
  EXPECT_EQ(stage.run({"lists", "add", "ignore", "C:\\Kept"}), 0);
  EXPECT_EQ(stage.file("ignore.tdw"), "C:\\Kept\r\n");
  EXPECT_EQ(stage.run({"lists", "add", "custom", "C:\\Mine", "--name", "Mine", "--include",
                       "*.tmp|*.log", "--exclude", "*.doc", "--subfolders"}),
            0);
  EXPECT_EQ(stage.run({"lists", "add", "custom", "C:\\Mine", "--name", "Again"}), 0);
  EXPECT_EQ(stage.file("custom.tdw"),
            "Mine|C:\\Mine|*.tmp,*.log|*.doc|1\r\nAgain|C:\\Mine|||0\r\n");
}

TEST(ListsCommand, RefusesWhatNoListCouldHold) {
  const struct {
    Words words;
    const char* problem;
  } cases[] = {
      {{"exclude", "Data"}, "Data: is no whole path, as C:\\Folder is"},
      {{"include", "\\Data"}, "\\Data: is no whole path, as C:\\Folder is"},
      {{"exclude", "C:\\Data\\", "--file"}, "C:\\Data\\: is no file's name"},
      {{"types", "*.a|*.b", "--description", "Two"}, "*.a|*.b: holds a |, which parts patterns"},
      {{"types", "*.a"}, "*.a: needs a --description"},
      {{"ignore", "  "}, "  : is blank"},
      {{"custom", "C:\\Gone", "--name", "N"}, "C:\\Gone: is no folder"},
      {{"custom", "C:\\Mine"}, "C:\\Mine: needs a --name"},
      {{"custom", "C:\\Mine", "--name", "a|b"},
       "C:\\Mine: holds a |, which parts the fields of the list"},
      {{"ignore", "a\nb"}, "a\nb: holds the end of a line"},
  };
  for (const auto& c : cases) {
    Stage stage;
    stage.machine().add_folder("C:\\Mine");
    Words words = {"lists", "add"};
    words.insert(words.end(), c.words.begin(), c.words.end());
    EXPECT_EQ(stage.run(words), 1) << c.problem;
    EXPECT_EQ(stage.err.str(), "quillvane: " + std::string(c.problem) + "\n");
    for (const char* name :
         {"exfolder.orv", "incfolder.orv", "tmptype.txt", "ignore.tdw", "custom.tdw"}) {
      EXPECT_EQ(stage.file(name), "missing") << name;
    }
  }
}

TEST(ListsCommand, RefusesWhatDoesNotFitItsField) {
  Stage stage;
  EXPECT_EQ(stage.run({"lists", "add", "types", std::string(51, 'x'), "--description", "Long"}), 1);
  EXPECT_EQ(stage.file("tmptype.txt"), "missing");
  EXPECT_EQ(stage.run({"lists", "add", "types", "*.x", "--description", std::string(51, 'd')}), 1);
  EXPECT_EQ(stage.run({"lists", "add", "exclude", "C:\\" + std::string(148, 'x')}), 1);
  EXPECT_EQ(stage.run({"lists", "add", "types", std::string(50, 'x'), "--description", "Fits"}), 0);
}

TEST(ListsCommand, RemovesEntriesByTheirNumbers) {
  Stage stage;
  stage.add("ignore.tdw", "a\r\nb\r\nc\r\nd\r\n");
  EXPECT_EQ(stage.run({"lists", "remove", "ignore", "2", "4"}), 0);
  EXPECT_EQ(stage.file("ignore.tdw"), "a\r\nc\r\n");
  EXPECT_EQ(stage.run({"lists", "remove", "ignore", "1", "3"}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: 3: there is no such entry\n");
  EXPECT_EQ(stage.run({"lists", "remove", "ignore", "x"}), 1);
  EXPECT_EQ(stage.run({"lists", "remove", "ignore", "0"}), 1);
  EXPECT_EQ(stage.file("ignore.tdw"), "a\r\nc\r\n");
}

TEST(ListsCommand, SwitchesTypesOnAndOff) {
  Stage stage;
  stage.add("tmptype.txt", type("A", "*.a", "0") + type("B", "*.b", "0") + type("C", "*.c", "1"));
  EXPECT_EQ(stage.run({"lists", "on", "1", "2"}), 0);
  EXPECT_EQ(stage.run({"lists", "off", "3"}), 0);
  EXPECT_EQ(stage.file("tmptype.txt"),
            type("A", "*.a", "1") + type("B", "*.b", "1") + type("C", "*.c", "0"));
  EXPECT_EQ(stage.run({"lists", "off", "all"}), 0);
  EXPECT_EQ(stage.file("tmptype.txt"),
            type("A", "*.a", "0") + type("B", "*.b", "0") + type("C", "*.c", "0"));
  EXPECT_EQ(stage.run({"lists", "on", "4"}), 1);
}

TEST(ListsCommand, NamesTheListsThereAre) {
  Stage stage;
  for (const Words& words : {Words{"lists", "show", "other"}, Words{"lists", "add", "other", "x"},
                             Words{"lists", "remove", "other", "1"}}) {
    EXPECT_EQ(stage.run(words), 2);
    EXPECT_EQ(
        stage.err.str(),
        "quillvane: other: there is no such list (exclude, include, types, ignore, custom)\n");
  }
  EXPECT_EQ(stage.run({"lists", "add", "ignore", "C:\\A", "--on"}), 2);
  EXPECT_EQ(stage.err.str(), "quillvane: --on: does not go with ignore\n");
}

TEST(ListsCommand, NeitherShowsNorChangesAListThatCannotBeRead) {
  for (const std::string name :
       {"exfolder.orv", "incfolder.orv", "tmptype.txt", "ignore.tdw", "custom.tdw"}) {
    const std::string list = name == "exfolder.orv"    ? "exclude"
                             : name == "incfolder.orv" ? "include"
                             : name == "tmptype.txt"   ? "types"
                             : name == "ignore.tdw"    ? "ignore"
                                                       : "custom";
    Stage stage;
    stage.machine().add_folder("C:\\Mine");
    stage.add(name, "what it holds");
    std::unique_ptr<UnreadableFile> files;
    stage.host.machine.wrap = [&](const Platform& platform) {
      if (!files) {
        files =
            std::make_unique<UnreadableFile>(platform.files, kFolder + name, ReadFailure::kDenied);
      }
      return platform.with({.files = files.get()});
    };
    Words add = {"lists", "add", list, "C:\\Mine"};
    if (list == "types") add.insert(add.end(), {"--description", "d"});
    if (list == "custom") add.insert(add.end(), {"--name", "n"});
    for (const Words& words :
         {Words{"lists", "show", list}, add, Words{"lists", "remove", list, "1"}}) {
      EXPECT_EQ(stage.run(words), 1) << list;
      EXPECT_EQ(stage.err.str(), "quillvane: " + kFolder + name + ": access is denied\n");
    }
    EXPECT_EQ(stage.file(name), "what it holds");
  }
}

TEST(ListsCommand, TellsThatAListInUseStaysAsItIs) {
  Stage stage;
  stage.machine().machine().add_in_use(kFolder + "ignore.tdw");
  stage.add("ignore.tdw", "a\r\n");
  EXPECT_EQ(stage.run({"lists", "add", "ignore", "C:\\B"}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: " + kFolder + "ignore.tdw: cannot be written\n");
  EXPECT_EQ(stage.file("ignore.tdw"), "a\r\n");
}

}  // namespace
}  // namespace quillvane
