#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <variant>

#include "app/make_machine_host.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

// Sets a variable of this process and puts it back.
class HostVariable {
 public:
  HostVariable(const char* name, const std::optional<std::string>& value) : name_(name) {
    if (const char* before = getenv(name)) before_ = before;
    put(value);
  }
  ~HostVariable() { put(before_); }
  HostVariable(const HostVariable&) = delete;
  HostVariable& operator=(const HostVariable&) = delete;

 private:
  void put(const std::optional<std::string>& value) {
    if (value) {
      setenv(name_, value->c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }

  const char* name_;
  std::optional<std::string> before_;
};

using Opened = std::variant<std::unique_ptr<ConsoleMachine>, HostProblem>;

std::string problem_of(const Opened& opened) {
  const auto* problem = std::get_if<HostProblem>(&opened);
  return problem == nullptr ? "" : problem->text;
}

bool has(const Opened& opened, const std::string& path) {
  const auto* machine = std::get_if<std::unique_ptr<ConsoleMachine>>(&opened);
  return machine != nullptr && (*machine)->platform().files.attributes(path).has_value();
}

class MachineFolderHost : public testing::Test {
 protected:
  TempFolder folder_;
  HostVariable data_{"XDG_DATA_HOME", folder_.path() + "/data"};
  HostVariable machine_{"QUILLVANE_MACHINE", std::nullopt};
  std::unique_ptr<MachineHost> host_ = make_machine_host();
  std::ostringstream notices_;
};

TEST_F(MachineFolderHost, MakesADemoMachineWhenNoneIsNamed) {
  const auto opened = host_->open(std::nullopt, notices_);

  EXPECT_EQ(problem_of(opened), "");
  EXPECT_TRUE(has(opened, "C:\\Windows\\Temp"));
  EXPECT_EQ(notices_.str(),
            "quillvane: demo machine: made in " + folder_.path() + "/data/quillvane/demo\n");
  // Nothing of the making is left beside it.
  const std::filesystem::directory_iterator beside(folder_.path() + "/data/quillvane");
  EXPECT_EQ(std::distance(begin(beside), end(beside)), 1);
}

TEST_F(MachineFolderHost, UsesTheDemoMachineAgain) {
  (void)host_->open(std::nullopt, notices_);
  folder_.write("data/quillvane/demo/drive_c/mine.txt", "x");
  notices_.str("");

  const auto opened = host_->open(std::nullopt, notices_);

  EXPECT_TRUE(has(opened, "C:\\mine.txt"));
  EXPECT_EQ(notices_.str(), "");
}

TEST_F(MachineFolderHost, TheNamedFolderGoesBeforeTheEnvironmentAndThatBeforeTheDemo) {
  folder_.write("named/drive_c/named.txt");
  folder_.write("variable/drive_c/variable.txt");
  const HostVariable variable("QUILLVANE_MACHINE", folder_.path_of("variable"));

  EXPECT_TRUE(has(host_->open(folder_.path_of("named"), notices_), "C:\\named.txt"));
  EXPECT_TRUE(has(host_->open(std::nullopt, notices_), "C:\\variable.txt"));
  EXPECT_EQ(notices_.str(), "");
  EXPECT_FALSE(folder_.has("data"));
}

TEST_F(MachineFolderHost, AnEmptyVariableNamesNoMachine) {
  const HostVariable variable("QUILLVANE_MACHINE", "");
  EXPECT_TRUE(has(host_->open(std::nullopt, notices_), "C:\\Windows\\Temp"));
}

TEST_F(MachineFolderHost, AFolderThatIsNotThereIsAProblem) {
  const std::string missing = folder_.path_of("missing");
  EXPECT_EQ(problem_of(host_->open(missing, notices_)), missing + ": No such file or directory");
  EXPECT_FALSE(folder_.has("missing"));
}

TEST_F(MachineFolderHost, ADemoMachineThatCannotBeMadeIsAProblem) {
  folder_.write("data", "a file in the way");
  EXPECT_EQ(problem_of(host_->open(std::nullopt, notices_)),
            folder_.path() + "/data/quillvane/demo: the demo machine cannot be made here");
  EXPECT_EQ(notices_.str(), "");
}

TEST_F(MachineFolderHost, WithoutAHomeAMachineMustBeNamed) {
  const HostVariable data("XDG_DATA_HOME", std::nullopt);
  const HostVariable home("HOME", std::nullopt);
  EXPECT_EQ(problem_of(host_->open(std::nullopt, notices_)),
            "--machine: needed here, as there is no home for a demo machine");
}

TEST_F(MachineFolderHost, CreatesOnlyInAnEmptyFolder) {
  EXPECT_FALSE(host_->create(folder_.path_of("new"), false));
  EXPECT_TRUE(has(host_->open(folder_.path_of("new"), notices_), "C:\\Windows\\Temp"));

  folder_.write("full/file", "x");
  const auto problem = host_->create(folder_.path_of("full"), false);
  ASSERT_TRUE(problem);
  EXPECT_EQ(problem->text, folder_.path_of("full") + ": the folder is not empty");
}

TEST_F(MachineFolderHost, DescribesDrivesEnvironmentAndProcesses) {
  folder_.make_folder("m/disk");
  folder_.write("m/machine.json", R"({"drives": [{"letter": "D", "type": "removable",
      "folder": "disk", "total": 2048, "free": 1024}, {"letter": "E", "type": "cdrom"}],
      "environment": {"windir": "D:\\Win"}, "processes": [{"id": 4, "name": "System"}]})");

  const auto described = host_->describe(folder_.path_of("m"));

  ASSERT_TRUE(std::holds_alternative<MachineSummary>(described));
  const auto& machine = std::get<MachineSummary>(described);
  ASSERT_EQ(machine.drives.size(), 2U);
  EXPECT_EQ(machine.drives[0].letter, "D");
  EXPECT_EQ(machine.drives[0].type, "removable");
  EXPECT_EQ(machine.drives[0].folder, folder_.path_of("m/disk"));
  EXPECT_EQ(machine.drives[0].total_bytes, 2048U);
  EXPECT_EQ(machine.drives[0].free_bytes, 1024U);
  EXPECT_EQ(machine.drives[1].type, "cdrom");
  EXPECT_EQ(machine.drives[1].total_bytes, std::nullopt);
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_EQ(machine.processes[0].id, 4U);
  EXPECT_EQ(machine.processes[0].name, "System");
  // 15 variables by default; one of them was given another value.
  EXPECT_EQ(machine.environment.size(), 15U);
  EXPECT_EQ(machine.environment.back(), (std::pair<std::string, std::string>{"WinDir", "D:\\Win"}));
}

TEST_F(MachineFolderHost, TheRegistryGoesOutAndIntoAnotherMachine) {
  folder_.make_folder("from/drive_c");
  folder_.make_folder("to/drive_c");
  const std::string text =
      "Windows Registry Editor Version 5.00\r\n\r\n"
      "[HKEY_CURRENT_USER\\Software\\Test]\r\n\"name\"=\"a text\"\r\n";
  EXPECT_FALSE(host_->import_registry(folder_.path_of("from"), text));
  const auto exported = host_->export_registry(folder_.path_of("from"));
  ASSERT_TRUE(std::holds_alternative<std::string>(exported));

  EXPECT_FALSE(host_->import_registry(folder_.path_of("to"), std::get<std::string>(exported)));

  const auto opened = host_->open(folder_.path_of("to"), notices_);
  const auto& machine = std::get<std::unique_ptr<ConsoleMachine>>(opened);
  const auto value =
      machine->platform().registry.value(Hive::kCurrentUser, "software\\test", "NAME");
  EXPECT_EQ(value, (RegistryValue{RegistryType::kSz, std::string("a text\0", 7)}));
}

TEST_F(MachineFolderHost, AFileThatIsNoRegistryChangesNothing) {
  folder_.make_folder("m/drive_c");
  const auto problem = host_->import_registry(folder_.path_of("m"), "nonsense");
  ASSERT_TRUE(problem);
  EXPECT_TRUE(problem->text.starts_with("line 1: ")) << problem->text;
  EXPECT_FALSE(folder_.has("m/registry.db"));
}

TEST_F(MachineFolderHost, TakesAwayWhatAKilledProgramLeftOfADemoMachine) {
  folder_.write("data/quillvane/demo.new-1/.quillvane-machine/drive_c/half", "x");
  const Opened opened = host_->open(std::nullopt, notices_);
  EXPECT_EQ(problem_of(opened), "");
  EXPECT_TRUE(has(opened, "C:\\Windows"));
  EXPECT_FALSE(has(opened, "C:\\half"));
  EXPECT_FALSE(folder_.has("data/quillvane/demo.new-1"));
}

TEST_F(MachineFolderHost, LeavesAFolderOfTheUsersWhereTheDemoMachineWouldBeMade) {
  folder_.write("data/quillvane/demo.new-1/mine.txt", "x");
  folder_.write("data/quillvane/demo.new-1/.quillvane-machine/mine too.txt", "x");
  const Opened opened = host_->open(std::nullopt, notices_);
  EXPECT_EQ(problem_of(opened), "");
  EXPECT_TRUE(has(opened, "C:\\Windows"));
  EXPECT_TRUE(folder_.has("data/quillvane/demo.new-1/mine.txt"));
  EXPECT_TRUE(folder_.has("data/quillvane/demo.new-1/.quillvane-machine/mine too.txt"));
  EXPECT_FALSE(folder_.has("data/quillvane/demo.new-2"));
}

}  // namespace
}  // namespace quillvane
