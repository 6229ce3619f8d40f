// Machine folders and files that mean harm, given to the program: each gets one line and its
// status, and nothing else happens.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <string>

#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

class HostileMachine : public testing::Test {
 protected:
  HostileMachine() { folder_.write("machine/drive_c/Windows/Temp/a.tmp", "12345"); }

  // Runs the program with these words and without input. `limits` are commands of the shell before
  // it. Answers the exit status; -1 when a signal ended it.
  int run(const std::string& words, const std::string& limits = ":") {
    const std::string command = "cd '" + folder_.path() + "' && " + limits + " && exec '" +
                                QUILLVANE_PROGRAM "' " + words + " >out 2>err </dev/null";
    const int status = system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::string err() { return folder_.read("err").value_or("no file"); }

  TempFolder folder_;
};

std::string repeated(std::size_t times, const std::string& text) {
  std::string all;
  for (std::size_t i = 0; i < times; ++i) all += text;
  return all;
}

TEST_F(HostileMachine, ADescriptionThatIsAPipeIsNotWaitedFor) {
  ASSERT_EQ(mkfifo(folder_.path_of("machine/machine.json").c_str(), 0600), 0);
  EXPECT_EQ(run("scan --machine machine"), 1);
  EXPECT_EQ(err(), "quillvane: machine/machine.json: cannot be read: is no file\n");
}

TEST_F(HostileMachine, ADescriptionWithoutEndIsNotRead) {
  folder_.make_link("machine/machine.json", "/dev/zero");
  EXPECT_EQ(run("scan --machine machine"), 1);
  EXPECT_EQ(err(), "quillvane: machine/machine.json: cannot be read: is no file\n");
}

TEST_F(HostileMachine, ADescriptionOfManyLevelsIsRefused) {
  for (const std::size_t levels : {20'000U, 100'000U, 5'000'000U}) {
    folder_.write("machine/machine.json",
                  "{\"a\": " + std::string(levels, '[') + std::string(levels, ']') + "}");
    EXPECT_EQ(run("scan --machine machine"), 1);
    EXPECT_EQ(err(), "quillvane: machine/machine.json: is nested too deeply\n");
  }
}

TEST_F(HostileMachine, ARegistryKeyWithinItselfEndsTheExport) {
  folder_.write("keys.reg", "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\A]\n");
  ASSERT_EQ(run("registry import machine keys.reg"), 0) << err();
  sqlite3* store = nullptr;
  ASSERT_EQ(sqlite3_open(folder_.path_of("machine/registry.db").c_str(), &store), SQLITE_OK);
  const char* within_itself = "INSERT INTO reg_key VALUES (-3, -3, 'Self', 'SELF')";
  EXPECT_EQ(sqlite3_exec(store, within_itself, nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(store);

  EXPECT_EQ(run("registry export machine"), 1);
  EXPECT_EQ(err(), "quillvane: machine/registry.db: is damaged: a key lies within itself\n");
}

TEST_F(HostileMachine, ARegistryThatIsNoFileIsRefused) {
  ASSERT_EQ(mkfifo(folder_.path_of("machine/registry.db").c_str(), 0600), 0);
  EXPECT_EQ(run("scan --machine machine"), 1);
  EXPECT_EQ(err(), "quillvane: machine/registry.db: is no file\n");
}

TEST_F(HostileMachine, CommandsThatRunInsideEachOtherEndTheScript) {
  std::string lines;
  for (int number = 1; number <= 5'000; ++number) {
    lines += "at pump " + std::to_string(number) + " wait 1\n";
  }
  folder_.write("lines.qvs", lines + "wait 1\n");
  EXPECT_EQ(run("script lines.qvs --machine machine"), 1);
  EXPECT_EQ(err(), "quillvane: line 100: too many commands run inside each other\n");

  folder_.write("one_line.qvs", repeated(45'000, "at pump 1 ") + "wait 1\nwait 1\n");
  EXPECT_EQ(run("script one_line.qvs --machine machine"), 1);
  EXPECT_EQ(err(), "quillvane: line 1: has too many words\n");
}

TEST_F(HostileMachine, AScriptWithoutEndIsRefused) {
  EXPECT_EQ(run("script /dev/zero --machine machine"), 1);
  EXPECT_EQ(err(), "quillvane: line 1: is too long\n");
}

TEST_F(HostileMachine, AFolderIsNeitherAScriptNorARegistryFile) {
  EXPECT_EQ(run("script machine --machine machine"), 1);
  EXPECT_EQ(err(), "quillvane: machine: cannot be read\n");
  EXPECT_EQ(run("registry import machine machine"), 1);
  EXPECT_EQ(err(), "quillvane: machine: cannot be read\n");
}

// Nothing lies at the beginning of a process's memory, so that reading it fails.
TEST_F(HostileMachine, AScriptThatCannotBeReadToItsEndIsAProblem) {
  EXPECT_EQ(run("script /proc/self/mem --machine machine"), 1);
  EXPECT_EQ(err(), "quillvane: line 1: cannot be read\n");
}

TEST_F(HostileMachine, AFileThatMayNotGrowIsAProblemLikeAFullDisk) {
  folder_.write("keys.reg", "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\A]\n");
  EXPECT_EQ(run("registry import machine keys.reg", "ulimit -f 1"), 1);
  EXPECT_TRUE(err().starts_with("quillvane: ")) << err();
  EXPECT_EQ(err().find('\n'), err().size() - 1) << err();
}

}  // namespace
}  // namespace quillvane
