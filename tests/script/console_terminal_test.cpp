// The console program on a terminal of its own: the question about a browser that runs.
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

const std::string kQuestion =
    "Google chrome is running. would you like to close it? otherwise tracks can't be cleaned. "
    "[y/N] ";

constexpr const char* kCached =
    "machine/drive_c/Users/User/AppData/Local/Google/Chrome/User Data/Default/Cache/a";

// A machine on which Chrome runs and has one file.
class ConsoleTerminal : public testing::Test {
 protected:
  ConsoleTerminal() {
    folder_.write("machine/machine.json", R"({"processes": [{"id": 7, "name": "chrome.exe"}]})");
    folder_.write(kCached, "12345");
    folder_.write("script.qvs",
                  "setreg HKCU \"Software\\Google\\Chrome\\PreferenceMACs\\Default\"\n");
    EXPECT_EQ(run({"script", folder_.path_of("script.qvs")}, ""), 0) << shown;
  }

  // Runs the program on a terminal, where `typed` is typed when the question has come. Answers the
  // exit status; `shown` is what the terminal has shown.
  int run(std::vector<std::string> words, const std::string& typed) {
    words.insert(words.begin(), QUILLVANE_PROGRAM);
    words.insert(words.end(), {"--machine", folder_.path_of("machine")});
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) start(words);
    watch(terminal, typed);
    close(terminal);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  TempFolder folder_;
  std::string question = kQuestion;  // at which is typed
  std::string shown;

 private:
  [[noreturn]] static void start(std::vector<std::string>& words) {
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
  }

  // Until the program has closed the terminal, which then reads as an error.
  void watch(int terminal, const std::string& typed) {
    bool answered = false;
    shown.clear();
    std::array<char, 4096> buffer;
    for (;;) {
      const ssize_t size = read(terminal, buffer.data(), buffer.size());
      if (size <= 0) return;
      shown.append(buffer.data(), static_cast<std::size_t>(size));
      if (answered || shown.find(question) == std::string::npos) continue;
      answered = true;
      EXPECT_EQ(write(terminal, typed.data(), typed.size()), static_cast<ssize_t>(typed.size()));
    }
  }
};

TEST_F(ConsoleTerminal, AYesIsTakenFromTheUser) {
  EXPECT_EQ(run({"scan"}, "yes\n"), 0);
  EXPECT_NE(shown.find(kQuestion), std::string::npos) << shown;
  EXPECT_NE(shown.find("Junk files found : ( 1 ) files , Size : ( 5 B )"), std::string::npos)
      << shown;
  EXPECT_EQ(shown.find("left out"), std::string::npos) << shown;
}

TEST_F(ConsoleTerminal, AnEmptyLineIsANo) {
  EXPECT_EQ(run({"scan"}, "\n"), 0);
  EXPECT_NE(shown.find(kQuestion), std::string::npos) << shown;
  EXPECT_NE(shown.find("Junk files found : ( 0 ) files"), std::string::npos) << shown;
  EXPECT_NE(shown.find("quillvane: Google Chrome Cache: left out, since the browser is running"),
            std::string::npos)
      << shown;
}

TEST_F(ConsoleTerminal, CtrlCAtTheQuestionIsANoWhateverIsTypedBehindIt) {
  folder_.write("machine/machine.json", "{}");  // no browser runs
  question = "Are You sure you want to delete the selected file(s) [y/N] ";
  EXPECT_EQ(run({"clean"}, "\x03y\n"), 0);
  EXPECT_NE(shown.find(question), std::string::npos) << shown;
  EXPECT_NE(shown.find("Removed: 0, queued for the next restart: 0, failed: 0"), std::string::npos)
      << shown;
  EXPECT_TRUE(folder_.has(kCached));
}

TEST_F(ConsoleTerminal, AYesCleans) {
  folder_.write("machine/machine.json", "{}");
  question = "Are You sure you want to delete the selected file(s) [y/N] ";
  EXPECT_EQ(run({"clean"}, "y\n"), 0);
  EXPECT_NE(shown.find("Removed: 1, queued for the next restart: 0, failed: 0"), std::string::npos)
      << shown;
  EXPECT_FALSE(folder_.has(kCached));
}

TEST_F(ConsoleTerminal, CtrlCAtAQuestionOfTheScanEndsTheScan) {
  EXPECT_EQ(run({"clean", "--yes"}, "\x03"), 1);
  EXPECT_NE(shown.find("quillvane: clean: cancelled, nothing was removed"), std::string::npos)
      << shown;
  EXPECT_TRUE(folder_.has(kCached));
}

TEST_F(ConsoleTerminal, ANameCannotSpeakToTheTerminal) {
  folder_.write("machine/machine.json", "{}");
  folder_.write("machine/drive_c/Windows/Temp/a\x1b[2J\xE2\x80\xAE\xFF.tmp");
  EXPECT_EQ(run({"scan", "--list"}, ""), 0);
  EXPECT_NE(shown.find("C:\\Windows\\Temp\\a<1B>[2J<U+202E><FF>.tmp"), std::string::npos) << shown;
  EXPECT_EQ(shown.find("\x1b[2J"), std::string::npos);
}

TEST_F(ConsoleTerminal, AnOptionAnswersForTheUser) {
  EXPECT_EQ(run({"scan", "--close-browsers"}, ""), 0);
  EXPECT_EQ(shown.find(kQuestion), std::string::npos) << shown;
  EXPECT_NE(shown.find("Junk files found : ( 1 ) files"), std::string::npos) << shown;
}

}  // namespace
}  // namespace quillvane
