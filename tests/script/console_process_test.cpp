// The console program as a process of its own: its streams and its exit status.

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <string>

#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

// A machine with one junk file, and a place for what the program writes.
class ConsoleProcess : public testing::Test {
 protected:
  ConsoleProcess() { folder_.write("machine/drive_c/Windows/Temp/a.tmp", "12345"); }

  // Runs the program with these words; a shell reads them, redirections included. Problems go to
  // the file err. Answers the exit status.
  int run(const std::string& words) { return run_shell("\"$QUILLVANE\" " + words); }
  // The same for a line of the shell, which knows the program as $QUILLVANE.
  int run_shell(const std::string& line) {
    const std::string command = "QUILLVANE='" QUILLVANE_PROGRAM "'; cd '" + folder_.path() +
                                "' && { " + line + "; } 2>err </dev/null";
    const int status = system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::string err() { return folder_.read("err").value_or("no file"); }

  TempFolder folder_;
};

TEST_F(ConsoleProcess, ScansAMachineFolder) {
  EXPECT_EQ(run("scan --machine machine >out"), 0);
  EXPECT_EQ(err(), "");
  EXPECT_NE(
      folder_.read("out").value_or("").find("Junk files found : ( 1 ) files , Size : ( 5 B )"),
      std::string::npos);
}

TEST_F(ConsoleProcess, AScanMakesTheTypeTableAndNothingElse) {
  const std::string data = "machine/drive_c/Program Files/Tidewrack/";
  folder_.write(data + "tmptype.orv", std::string(101, ' '));
  const std::string list =
      "find machine -type f | sort | while read -r file; do cat \"$file\"; echo \"$file\"; done >";
  ASSERT_EQ(run_shell(list + "before"), 0);

  EXPECT_EQ(run("scan --machine machine >out"), 0);

  ASSERT_EQ(run_shell("mv '" + data + "tmptype.txt' '" + data + "tmptype.orv'"), 0) << err();
  ASSERT_EQ(run_shell(list + "after"), 0);
  EXPECT_EQ(folder_.read("after"), folder_.read("before"));
}

TEST_F(ConsoleProcess, AFullDiskIsAProblem) {
  for (const char* words : {"scan --machine machine", "scan --machine machine --json --list",
                            "machine show machine", "--help"}) {
    EXPECT_EQ(run(std::string(words) + " >/dev/full"), 1) << words;
    EXPECT_EQ(err(), "quillvane: standard output: cannot be written\n") << words;
  }
}

TEST_F(ConsoleProcess, AReaderThatHasSeenEnoughIsNoProblem) {
  for (int i = 0; i < 3000; ++i) {
    folder_.write("machine/drive_c/Windows/Temp/" + std::to_string(i) + std::string(60, 'x'));
  }
  // More than a pipe holds, so that it is still being written when the reader has gone.
  for (const char* words :
       {"scan --list --machine machine", "scan --json --list --machine machine"}) {
    EXPECT_EQ(run_shell(std::string("{ \"$QUILLVANE\" ") + words +
                        "; echo $? >status; } | head -c 100 >out"),
              0);
    EXPECT_EQ(folder_.read("status"), "0\n") << words;
    EXPECT_EQ(err(), "") << words;
    EXPECT_EQ(folder_.read("out")->size(), 100U);
  }
}

TEST_F(ConsoleProcess, AClosedOutputIsAProblem) {
  EXPECT_EQ(run("scan --machine machine >&-"), 1);
  EXPECT_EQ(err(), "quillvane: standard output: cannot be written\n");
}

TEST_F(ConsoleProcess, WrongWordsHaveAStatusOfTheirOwn) {
  EXPECT_EQ(run("scan --fast >out"), 2);
  EXPECT_EQ(folder_.read("out"), "");
  EXPECT_EQ(err(), "quillvane: --fast: there is no such option\n");
}

TEST_F(ConsoleProcess, AScriptThatFailsKeepsWhatItPrinted) {
  folder_.write("script.qvs", "echo one\nnonsense\necho two\n");
  EXPECT_EQ(run("script script.qvs --machine machine >out"), 1);
  EXPECT_EQ(folder_.read("out"), "\"one\"\n");
  EXPECT_EQ(err(), "quillvane: line 2: nonsense: there is no such command\n");
}

TEST_F(ConsoleProcess, AMachineWithABrokenDescriptionIsAProblem) {
  folder_.write("machine/machine.json", "{\"drives\": 7}");
  EXPECT_EQ(run("scan --machine machine >out"), 1);
  EXPECT_EQ(folder_.read("out"), "");
  const std::string told = err();
  EXPECT_TRUE(told.starts_with("quillvane: machine/machine.json: drives: ")) << told;
  EXPECT_EQ(told.find('\n'), told.size() - 1) << told;
}

}  // namespace
}  // namespace quillvane
