#include "view/console/console.h"

#include <gtest/gtest.h>

#include <sstream>

#include "platform/folder/host_code_page.h"

namespace quillvane {
namespace {

// Notes what is asked of it.
class NotingHost final : public MachineHost {
 public:
  std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> open(
      const std::optional<std::string>& dir, std::ostream& /*notices*/) override {
    asked.push_back("open " + dir.value_or("the usual one"));
    return HostProblem{dir.value_or("demo") + ": out of order"};
  }
  std::optional<HostProblem> create(const std::string& dir, bool demo) override {
    asked.push_back("create " + dir + (demo ? " with junk" : ""));
    return problem;
  }
  std::variant<MachineSummary, HostProblem> describe(const std::string& dir) override {
    asked.push_back("describe " + dir);
    if (problem) return *problem;
    return summary;
  }
  std::variant<std::string, HostProblem> export_registry(const std::string& dir) override {
    asked.push_back("export " + dir);
    if (problem) return *problem;
    return "Windows Registry Editor Version 5.00\r\n";
  }
  std::optional<HostProblem> import_registry(const std::string& dir,
                                             const std::string& content) override {
    asked.push_back("import " + dir + ": " + content);
    return problem;
  }
  const CodePage* code_page(int number) const override { return host_code_page(number); }

  std::vector<std::string> asked;
  std::optional<HostProblem> problem;
  MachineSummary summary;
};

struct Stage {
  int run(const std::vector<std::string>& words) {
    ConsoleIo io{in, out, err};
    return run_console(words, io, host);
  }

  NotingHost host;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
};

using Words = std::vector<std::string>;

TEST(Console, VersionAndHelpAreResults) {
  Stage stage;
  EXPECT_EQ(stage.run({"--version"}), 0);
  EXPECT_EQ(stage.out.str(), "quillvane " QUILLVANE_VERSION "\n");

  Stage help;
  EXPECT_EQ(help.run({"--help"}), 0);
  for (const char* word :
       {"scan", "shortcuts", "script", "machine", "registry", "--machine", "--json"}) {
    EXPECT_NE(help.out.str().find(word), std::string::npos) << word;
  }
  EXPECT_EQ(help.err.str(), "");
}

struct WrongWords {
  Words words;
  const char* told;
};

const WrongWords kWrongWordsCases[] = {
    {{}, "command line: a command is missing (quillvane --help lists them)"},
    {{""}, "command line: a word is empty"},
    {{"sweep", "C:"}, "sweep: there is no such command"},
    {{"machine"}, "machine: needs a command behind it (quillvane machine --help lists them)"},
    {{"machine", "melt"}, "melt: there is no such command"},
    {{"scan", "--fast"}, "--fast: there is no such option"},
    {{"scan", "-j"}, "-j: there is no such option"},
    {{"scan", "--yes"}, "--yes: there is no such option"},  // one of another command
    {{"scan", "now"}, "now: is one word too many"},
    {{"scan", "clean"}, "clean: is one word too many"},
    {{"script", "a", "b"}, "b: is one word too many"},
    {{"clean", "--yes", ""}, "command line: a word is empty"},
    {{"machine", "create"}, "machine create: DIR is missing"},
    {{"registry", "import", "dir"}, "registry import: FILE is missing"},
    {{"machine", "create", ""}, "DIR: is given empty"},
    {{"script", ""}, "FILE: is given empty"},
    {{"run", ""}, "SWITCH: is given empty"},
    // What a script's empty variable makes.
    {{"clean", "--yes", "--machine", ""}, "--machine: is given empty"},
    {{"clean", "--yes", "--machine="}, "--machine: is given empty"},
    {{"--machine", "", "clean", "--yes"}, "--machine: is given empty"},
    {{"clean", "--yes", "--machine"}, "--machine: needs a value behind it"},
    {{"clean", "--machine", "--yes"}, "--machine: needs a value behind it"},
    {{"clean", "--machine", "a", "--machine", "b"}, "--machine: is given twice"},
    {{"--machine", "a", "clean", "--machine", "a"}, "--machine: is given twice"},
    {{"scan", "--json", "--json"}, "--json: is given twice"},
    {{"clean", "--yes", "--yes"}, "--yes: is given twice"},
    {{"scan", "--json=true"}, "--json: takes no value"},
    {{"scan", "--json="}, "--json: takes no value"},
    {{"scan", "--keep-browsers", "--close-browsers"},
     "--close-browsers: does not go with --keep-browsers"},
    {{"scan", "--", "now"}, "--: is not taken (write ./-NAME for a name that begins with -)"},
    {{"--", "scan"}, "--: is not taken (write ./-NAME for a name that begins with -)"},
};

TEST(Console, WordsThatAreOffAreToldInOneLineWithStatus2) {
  for (const WrongWords& c : kWrongWordsCases) {
    Stage stage;
    EXPECT_EQ(stage.run(c.words), 2) << c.told;
    EXPECT_EQ(stage.err.str(), std::string("quillvane: ") + c.told + "\n");
    EXPECT_EQ(stage.out.str(), "") << c.told;
    EXPECT_EQ(stage.host.asked, Words{}) << c.told;
  }
}

TEST(Console, AFolderMayHaveTheNameOfACommand) {
  Stage stage;
  EXPECT_EQ(stage.run({"machine", "create", "scan"}), 0);
  EXPECT_EQ(stage.run({"scan", "--machine", "clean"}), 1);
  EXPECT_EQ(stage.host.asked, (Words{"create scan", "open clean"}));
}

TEST(Console, HelpIsGivenWhateverFollows) {
  for (const Words& words : {Words{"clean", "--help"}, Words{"-h", "--machine", "a"},
                             Words{"run", "--help"}, Words{"machine", "create", "-h"}}) {
    Stage stage;
    EXPECT_EQ(stage.run(words), 0) << stage.err.str();
    EXPECT_NE(stage.out.str(), "");
    EXPECT_EQ(stage.host.asked, Words{});
  }
}

TEST(Console, CommonOptionsStandBeforeOrBehindTheCommand) {
  for (const Words& words : {Words{"--machine", "here", "scan"}, Words{"scan", "--machine", "here"},
                             Words{"scan", "--json", "--machine=here", "--list"}}) {
    Stage stage;
    EXPECT_EQ(stage.run(words), 1);
    EXPECT_EQ(stage.host.asked, Words{"open here"});
    EXPECT_EQ(stage.err.str(), "quillvane: here: out of order\n");
  }
}

TEST(Console, WithoutAMachineTheHostChooses) {
  Stage stage;
  EXPECT_EQ(stage.run({"scan"}), 1);
  EXPECT_EQ(stage.host.asked, Words{"open the usual one"});
}

TEST(Console, AScriptThatCannotBeReadOpensNoMachine) {
  Stage stage;
  EXPECT_EQ(stage.run({"script", "/no/such/script"}), 1);
  EXPECT_EQ(stage.run({"script", "/"}), 1);
  EXPECT_EQ(stage.err.str(),
            "quillvane: /no/such/script: cannot be read\n"
            "quillvane: /: cannot be read\n");
  EXPECT_EQ(stage.host.asked, Words{});
}

TEST(Console, AScriptIsReadFromStandardInputWithoutAFile) {
  Stage stage;
  EXPECT_EQ(stage.run({"script"}), 1);
  EXPECT_EQ(stage.run({"script", "-"}), 1);
  EXPECT_EQ(stage.host.asked, (Words{"open the usual one", "open the usual one"}));
}

TEST(Console, MachinesAreMadeByTheHost) {
  Stage stage;
  EXPECT_EQ(stage.run({"machine", "create", "dir"}), 0);
  EXPECT_EQ(stage.run({"machine", "create", "--demo", "dir"}), 0);
  EXPECT_EQ(stage.host.asked, (Words{"create dir", "create dir with junk"}));

  stage.host.problem = HostProblem{"dir: is not empty"};
  EXPECT_EQ(stage.run({"machine", "create", "dir"}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: dir: is not empty\n");
}

MachineSummary small_machine() {
  return {.drives = {{"C", "fixed", "/m/drive_c", 107374182400, 53687091200},
                     {"E", "cdrom", "/m/drive_e", std::nullopt, std::nullopt}},
          .environment = {{"OS", "Windows_NT"}, {"WinDir", "C:\\Windows"}},
          .processes = {{4120, "chrome.exe"}}};
}

TEST(Console, MachineShowIsReadable) {
  Stage stage;
  stage.host.summary = small_machine();

  EXPECT_EQ(stage.run({"machine", "show", "dir"}), 0);

  EXPECT_EQ(stage.out.str(),
            "Drives\n"
            "  C:  fixed      50 GB free of 100 GB        /m/drive_c\n"
            "  E:  cdrom      no medium                   /m/drive_e\n"
            "\n"
            "Environment\n"
            "  OS      Windows_NT\n"
            "  WinDir  C:\\Windows\n"
            "\n"
            "Processes\n"
            "    4120  chrome.exe\n");
}

TEST(Console, MachineShowAsJson) {
  Stage stage;
  stage.host.summary = small_machine();

  EXPECT_EQ(stage.run({"machine", "show", "dir", "--json"}), 0);

  EXPECT_EQ(stage.out.str(),
            R"({"drives":[{"letter":"C","type":"fixed","folder":"/m/drive_c",)"
            R"("total":107374182400,"free":53687091200},)"
            R"({"letter":"E","type":"cdrom","folder":"/m/drive_e","total":null,"free":null}],)"
            R"("environment":{"OS":"Windows_NT","WinDir":"C:\\Windows"},)"
            R"("processes":[{"id":4120,"name":"chrome.exe"}]})"
            "\n");
}

TEST(Console, TheRegistryGoesOutAndIn) {
  Stage stage;
  EXPECT_EQ(stage.run({"registry", "export", "dir"}), 0);
  EXPECT_EQ(stage.out.str(), "Windows Registry Editor Version 5.00\r\n");

  stage.in.str("REGEDIT4\r\n");
  EXPECT_EQ(stage.run({"registry", "import", "dir", "-"}), 0);
  EXPECT_EQ(stage.host.asked, (Words{"export dir", "import dir: REGEDIT4\r\n"}));

  EXPECT_EQ(stage.run({"registry", "import", "dir", "/no/such/file"}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: /no/such/file: cannot be read\n");
}

TEST(Console, OutputThatCannotBeWrittenIsAProblem) {
  Stage stage;
  stage.out.setstate(std::ios::badbit);

  EXPECT_EQ(stage.run({"registry", "export", "dir"}), 1);

  EXPECT_EQ(stage.err.str(), "quillvane: standard output: cannot be written\n");
}

}  // namespace
}  // namespace quillvane
