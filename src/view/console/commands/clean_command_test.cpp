// clean and run: what they remove, what they leave, and how they tell it.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <memory>
#include <optional>
#include <sstream>
#include <thread>
#include <utility>

#include "platform/forwarding_file_system.h"
#include "tests/support/memory_registry.h"
#include "tests/support/one_machine_host.h"
#include "view/console/console.h"
#include "view/console/json_text.h"

namespace quillvane {
namespace {

constexpr const char* kA = "C:\\Windows\\Temp\\a.tmp";
constexpr const char* kB = "C:\\Windows\\Temp\\b.tmp";
constexpr const char* kC = "C:\\Windows\\Temp\\c.tmp";

// Does something at the Nth removal.
class ActingFiles final : public ForwardingFileSystem {
 public:
  ActingFiles(FileSystem& next, int at, std::function<void()> act)
      : ForwardingFileSystem(next), at_(at), act_(std::move(act)) {}
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override {
    if (--at_ == 0) act_();
    return answer ? *answer : next().remove_file(path);
  }

  std::optional<RemoveResult> answer;  // instead of a removal

 private:
  int at_;
  std::function<void()> act_;
};

// A machine with three files in one category.
struct Stage {
  Stage() {
    for (const char* path : {kA, kB, kC}) machine().add_file(path, 100);
  }
  TempMachine& machine() { return host.machine.temp(); }
  bool has(const char* path) { return machine().has_file(path); }

  // Runs `act` when the Nth file is to be removed.
  void at_removal(int number, const std::function<void()>& act) {
    host.machine.wrap = [this, number, act](const Platform& platform) {
      if (!files) files = std::make_unique<ActingFiles>(platform.files, number, act);
      return platform.with({.files = files.get()});
    };
  }

  // Presses Ctrl-C once, in the wait before the scan.
  void interrupt_scan() {
    machine().loop().start_timer(std::chrono::milliseconds(1), [pressed = false]() mutable {
      if (!std::exchange(pressed, true)) std::raise(SIGINT);
    });
  }

  void answer_removals(RemoveResult result) {
    at_removal(0, nullptr);
    host.machine.wrap = [this, result, make = host.machine.wrap](const Platform& platform) {
      const Platform wrapped = make(platform);
      files->answer = result;
      return wrapped;
    };
  }

  int run(const std::vector<std::string>& words) {
    ConsoleIo io{in, out, err};
    io.in_is_terminal = terminal;
    return run_console(words, io, host);
  }
  Json document() { return Json::parse(out.str()); }
  std::string last_line() {
    const std::string text = out.str();
    const std::size_t end = text.rfind('\n', text.size() - 2);
    return text.substr(end == std::string::npos ? 0 : end + 1);
  }
  RegistryRead<RegistryValue> policy() {
    return machine().platform().registry.value(
        Hive::kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
        "NoThumbnailCache");
  }

  OneMachineHost host;
  std::unique_ptr<ActingFiles> files;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  bool terminal = false;
};

TEST(CleanCommand, TellsWhatItRemoved) {
  Stage stage;
  EXPECT_EQ(stage.run({"clean", "--yes"}), 0);
  EXPECT_FALSE(stage.has(kA) || stage.has(kB) || stage.has(kC));
  EXPECT_EQ(stage.last_line(), "Removed: 3, queued for the next restart: 0, failed: 0\n");
  EXPECT_EQ(stage.err.str(), "");
}

TEST(CleanCommand, AsJsonTellsTheOutcomeToo) {
  Stage stage;
  EXPECT_EQ(stage.run({"clean", "--yes", "--json"}), 0);
  const Json document = stage.document();
  EXPECT_EQ(json_text(document["cleaned"]), R"j({"removed":3,"queued":0,"failed":0})j");
  EXPECT_EQ(document["left"], Json::array());
  EXPECT_EQ(document["outcome"], "done");
}

TEST(CleanCommand, ANoRemovesNothingAndIsNoProblem) {
  for (const bool terminal : {false, true}) {
    Stage stage;
    stage.terminal = terminal;
    stage.in.str("n\n");
    EXPECT_EQ(stage.run({"clean", "--json"}), 0);
    EXPECT_TRUE(stage.has(kA) && stage.has(kB) && stage.has(kC));
    EXPECT_EQ(stage.document()["outcome"], "declined");
    EXPECT_EQ(json_text(stage.document()["cleaned"]), R"j({"removed":0,"queued":0,"failed":0})j");
  }
}

TEST(CleanCommand, NamesWhatIsQueuedWithTheReason) {
  for (const char* command : {"clean --yes", "run w"}) {
    Stage stage;
    stage.machine().machine().add_in_use(kB);
    ASSERT_TRUE(stage.machine().platform().files.set_attributes(kC, kAttributeReadOnly));
    const bool is_run = std::string(command) == "run w";
    EXPECT_EQ(stage.run(is_run ? std::vector<std::string>{"run", "w"}
                               : std::vector<std::string>{"clean", "--yes"}),
              0);
    EXPECT_NE(stage.out.str().find("queued: C:\\Windows\\Temp\\b.tmp: another program has it open\n"
                                   "queued: C:\\Windows\\Temp\\c.tmp: it is read-only\n"
                                   "Removed: 1, queued for the next restart: 2, failed: 0\n"),
              std::string::npos)
        << command << stage.out.str();
  }
}

TEST(CleanCommand, APromiseThatCouldNotBeWrittenIsAFailure) {
  Stage stage;
  stage.machine().machine().add_in_use(kB);
  MemoryRegistry registry;
  registry.writable = false;
  stage.host.machine.wrap = [&registry](const Platform& platform) {
    return platform.with({.registry = &registry});
  };

  EXPECT_EQ(stage.run({"clean", "--yes", "--json"}), 1);

  const Json document = stage.document();
  EXPECT_EQ(json_text(document["cleaned"]), R"j({"removed":2,"queued":0,"failed":1})j");
  EXPECT_EQ(json_text(document["left"]),
            R"j([{"path":"C:\\Windows\\Temp\\b.tmp","outcome":"failed",)j"
            R"j("why":"another program has it open"}])j");
  EXPECT_EQ(document["outcome"], "failed");
  // The box keeps its text.
  EXPECT_EQ(stage.err.str(),
            "quillvane: Some files cannot be deleted now, They will be deleted next time when you "
            "restart your PC.\n"
            "quillvane: queue of the next restart: not written: it is read-only\n"
            "quillvane: statistics: not counted: it is read-only\n"
            "quillvane: clean: 1 file could not be removed\n");
}

TEST(CleanCommand, AFileThatCannotBeLookedAtIsNeverCountedAsGone) {
  struct Case {
    RemoveResult result;
    const char* why;
  };
  for (const Case& c : {Case{RemoveResult::kTooLong, "its path is too long"},
                        Case{RemoveResult::kUnreadable, "it cannot be looked at"}}) {
    Stage stage;
    stage.answer_removals(c.result);
    EXPECT_EQ(stage.run({"run", "w3-c3"}), 1);
    EXPECT_EQ(stage.out.str(), std::string("3 files, 300 B\n") + "failed: " + kA + ": " + c.why +
                                   "\nfailed: " + kB + ": " + c.why + "\nfailed: " + kC + ": " +
                                   c.why +
                                   "\nRemoved: 0, queued for the next restart: 0, failed: 3\n");
  }
}

// The restart could not remove it either.
TEST(CleanCommand, AFileOnADiskForReadingAloneIsNotQueued) {
  Stage stage;
  stage.answer_removals(RemoveResult::kWriteProtected);

  EXPECT_EQ(stage.run({"clean", "--yes"}), 1);

  EXPECT_NE(stage.out.str().find("failed: C:\\Windows\\Temp\\c.tmp: its disk is for reading alone\n"
                                 "Removed: 0, queued for the next restart: 0, failed: 3\n"),
            std::string::npos)
      << stage.out.str();
}

TEST(CleanCommand, WithoutItsIgnoreListFailsAndRemovesNothing) {
  Stage stage;
  stage.machine().add_folder("C:\\Program Files\\Tidewrack\\ignore.tdw");

  EXPECT_EQ(stage.run({"clean", "--yes", "--json", "--list"}), 1);

  EXPECT_TRUE(stage.has(kA) && stage.has(kB) && stage.has(kC));
  const Json document = stage.document();
  EXPECT_EQ(json_text(document["totals"]), R"j({"files":0,"bytes":0})j");
  EXPECT_EQ(document["categories"].size(), 24U);
  EXPECT_EQ(document["files"], Json::array());
  EXPECT_EQ(json_text(document["cleaned"]), R"j({"removed":0,"queued":0,"failed":0})j");
  EXPECT_EQ(document["left"], Json::array());
  EXPECT_EQ(document["outcome"], "failed");
  EXPECT_TRUE(stage.err.str().starts_with(
      "quillvane: C:\\Program Files\\Tidewrack\\ignore.tdw: a folder has its name."))
      << stage.err.str();
}

TEST(CleanCommand, WithoutItsIgnoreListPrintsNoTable) {
  Stage stage;
  stage.machine().add_folder("C:\\Program Files\\Tidewrack\\ignore.tdw");
  EXPECT_EQ(stage.run({"clean", "--yes"}), 1);
  EXPECT_EQ(stage.out.str(), "");
}

TEST(CleanCommand, CtrlCInTheScanRemovesNothing) {
  Stage stage;
  stage.interrupt_scan();

  EXPECT_EQ(stage.run({"clean", "--yes", "--json"}), 1);

  EXPECT_TRUE(stage.has(kA) && stage.has(kB) && stage.has(kC));
  EXPECT_EQ(stage.document()["outcome"], "cancelled");
  EXPECT_EQ(stage.err.str(), "quillvane: clean: cancelled, nothing was removed\n");
}

TEST(CleanCommand, CtrlCInTheCleaningEndsItBehindTheRowInHand) {
  Stage stage;
  stage.machine().machine().add_in_use(kA);
  stage.at_removal(2, [] { std::raise(SIGINT); });

  EXPECT_EQ(stage.run({"clean", "--yes", "--json"}), 1);

  EXPECT_FALSE(stage.has(kB));
  EXPECT_TRUE(stage.has(kC));
  const Json document = stage.document();
  EXPECT_EQ(json_text(document["cleaned"]), R"j({"removed":1,"queued":1,"failed":0})j");
  EXPECT_EQ(document["left"][0]["path"], kA);
  EXPECT_EQ(document["outcome"], "cancelled");
  EXPECT_EQ(stage.err.str(), "quillvane: clean: cancelled, 1 file of the list not reached\n");
}

TEST(CleanCommand, CtrlCBehindTheLastRowComesTooLate) {
  Stage stage;
  stage.at_removal(3, [] { std::raise(SIGINT); });
  EXPECT_EQ(stage.run({"clean", "--yes", "--json"}), 0);
  EXPECT_EQ(stage.document()["outcome"], "done");
  EXPECT_EQ(stage.document()["cleaned"]["removed"], 3);
}

TEST(CleanCommand, NothingIsRemovedWhenNobodyCouldBeToldWhat) {
  Stage stage;
  stage.out.setstate(std::ios::badbit);
  EXPECT_EQ(stage.run({"clean", "--yes"}), 1);
  EXPECT_TRUE(stage.has(kA) && stage.has(kB) && stage.has(kC));
  EXPECT_EQ(stage.err.str(), "quillvane: standard output: cannot be written\n");
}

// The second press comes while a removal hangs.
TEST(CleanCommandDeathTest, ASecondCtrlCPutsTheThumbnailValuesBackAndEndsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "fast");  // the machine is the one of this test
  Stage stage;
  stage.machine().set_registry_text(
      Hive::kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer", "a",
      "");
  stage.at_removal(2, [] {
    std::raise(SIGINT);
    std::raise(SIGINT);
    for (;;) std::this_thread::yield();
  });

  EXPECT_EXIT(static_cast<void>(stage.run({"clean", "--yes"})), testing::KilledBySignal(SIGINT),
              "");

  EXPECT_FALSE(stage.has(kA));
  EXPECT_TRUE(stage.has(kB));
  EXPECT_EQ(stage.policy(), (RegistryValue{RegistryType::kDword, std::string("\0\0\0\0", 4)}));
}

TEST(RunCommand, TellsInItsLastLineWhatItRemoved) {
  Stage stage;
  EXPECT_EQ(stage.run({"run", "w"}), 0);
  EXPECT_FALSE(stage.has(kA) || stage.has(kB) || stage.has(kC));
  EXPECT_EQ(stage.out.str(),
            "3 files, 300 B\n"
            "Removed: 3, queued for the next restart: 0, failed: 0\n");
}

TEST(RunCommand, CountingRemovesNothingAndSaysSo) {
  for (const char* words : {"w2-c2", "w4", "w-x"}) {
    Stage stage;
    EXPECT_EQ(stage.run({"run", words}), 0) << words;
    EXPECT_TRUE(stage.has(kA) && stage.has(kB) && stage.has(kC)) << words;
    EXPECT_EQ(stage.last_line(), "Removed: 0, queued for the next restart: 0, failed: 0\n");
  }
}

TEST(RunCommand, AsJsonTellsWhatBecameOfTheFiles) {
  Stage stage;
  EXPECT_EQ(stage.run({"run", "w", "--json"}), 0);
  EXPECT_EQ(json_text(stage.document()),
            R"j({"totals":{"files":3,"bytes":300},"cleaned":{"removed":3,"queued":0,"failed":0},)j"
            R"j("left":[],"outcome":"done"})j");
}

TEST(RunCommand, WhatAForcedRunCannotRemoveHasFailed) {
  Stage stage;
  stage.machine().machine().add_in_use(kB);
  EXPECT_EQ(stage.run({"run", "w3-c3"}), 1);
  EXPECT_EQ(stage.out.str(),
            "3 files, 300 B\n"
            "failed: C:\\Windows\\Temp\\b.tmp: another program has it open\n"
            "Removed: 2, queued for the next restart: 0, failed: 1\n");
  EXPECT_EQ(stage.err.str(), "quillvane: run: 1 file could not be removed\n");
}

TEST(RunCommand, CtrlCInTheScanRemovesNothing) {
  for (const char* words : {"w", "w-c", "w3-c3", "w4-c4"}) {
    Stage stage;
    stage.interrupt_scan();
    EXPECT_EQ(stage.run({"run", words, "--json"}), 1) << words;
    EXPECT_TRUE(stage.has(kA) && stage.has(kB) && stage.has(kC)) << words;
    EXPECT_EQ(stage.document()["outcome"], "cancelled") << words;
    EXPECT_EQ(stage.document()["totals"]["files"], 0) << words;  // the scan was ended, too
  }
}

TEST(RunCommand, CtrlCInTheCleaningEndsItBehindTheRowInHand) {
  Stage stage;
  stage.at_removal(1, [] { std::raise(SIGINT); });
  EXPECT_EQ(stage.run({"run", "w-c"}), 1);
  EXPECT_FALSE(stage.has(kA));
  EXPECT_TRUE(stage.has(kB) && stage.has(kC));
  EXPECT_EQ(stage.err.str(), "quillvane: run: cancelled, 2 files of the list not reached\n");
}

TEST(RunCommand, HelpSaysWhichSwitchRemovesWithoutAQuestion) {
  Stage stage;
  EXPECT_EQ(stage.run({"run", "--help"}), 0);
  EXPECT_NE(stage.out.str().find(
                "w, w2, w3, w-c  scans and REMOVES all that it finds, without a question"),
            std::string::npos)
      << stage.out.str();
}

}  // namespace
}  // namespace quillvane
