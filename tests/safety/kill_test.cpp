// The program is killed at hundreds of random moments, and what it leaves behind is looked at: each
// list, the queue and the statistics must be the old or the new one, the next start must put the
// thumbnail policy back, and a second run must be able to finish the job.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <variant>
#include <vector>

#include "core/form7.h"
#include "core/program.h"
#include "platform/folder/folder_machine.h"
#include "platform/folder/registry_store.h"
#include "platform/multi_string.h"
#include "platform/virtual/queued_dialogs.h"
#include "support/registry_values.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;
using std::chrono::microseconds;

constexpr int kJunkFiles = 40;
constexpr int kBytesOfEach = 100;
constexpr const char* kMachineJson = R"({"inUse": ["C:\\Windows\\Temp\\05.tmp",
                                                   "C:\\Windows\\Temp\\27.tmp"]})";
constexpr const char* kQueueKey = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr const char* kQueueValue = "PendingFileRenameOperations";
constexpr const char* kStatistics = "software\\Quillvane\\Tidewrack Deluxe\\statics\\junkfiles";
constexpr const char* kPolicies =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
constexpr const char* kPolicy = "NoThumbnailCache";
constexpr const char* kHistory = "software\\Quillvane\\Tidewrack Deluxe\\junkscan";

const Texts kOldQueue = {"\\??\\C:\\other.dll", ""};
// What was there, a request for each file in use, and one empty text more.
const Texts kNewQueue = {"\\??\\C:\\other.dll",
                         "",
                         "\\??\\C:\\Windows\\Temp\\05.tmp",
                         "",
                         "\\??\\C:\\Windows\\Temp\\27.tmp",
                         "",
                         ""};

std::string junk_name(int number) {
  return {static_cast<char>('0' + number / 10),
          static_cast<char>('0' + number % 10),
          '.',
          't',
          'm',
          'p'};
}

// One machine folder, opened anew for each look.
class Machine {
 public:
  explicit Machine(const std::string& folder) {
    auto opened = FolderMachine::open(folder);
    if (auto* error = std::get_if<std::string>(&opened)) {
      ADD_FAILURE() << *error;
      return;
    }
    machine_ = std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
    dialogs_ = std::make_unique<QueuedDialogs>(machine_->effects());
  }

  [[nodiscard]] FolderMachine& operator*() { return *machine_; }
  [[nodiscard]] QueuedDialogs& dialogs() { return *dialogs_; }
  [[nodiscard]] Platform platform() { return machine_->platform(*dialogs_); }

  [[nodiscard]] Texts queue() {
    const auto value = machine_->registry().value(Hive::kLocalMachine, kQueueKey, kQueueValue);
    return value ? multi_string_list(value->data) : Texts{"(none)"};
  }
  [[nodiscard]] std::string text(const char* key, const char* name) {
    const auto value = machine_->registry().value(Hive::kLocalMachine, key, name);
    return value ? value->data.substr(0, value->data.find('\0')) : "(none)";
  }
  // Whether Explorer is kept from writing thumbnails, by the first of the policy's values and the
  // last that this machine has.
  [[nodiscard]] std::vector<RegistryContent> policies() {
    std::vector<RegistryContent> values;
    for (const Hive hive : {Hive::kCurrentUser, Hive::kLocalMachine}) {
      values.push_back(GetRegistryValue(machine_->registry(), hive, kPolicies, kPolicy)
                           .value_or(std::string("(none)")));
    }
    return values;
  }
  void set(const char* key, const char* name, RegistryType type, const std::string& data) {
    EXPECT_TRUE(machine_->registry().store_value(Hive::kLocalMachine, key, name, {type, data}));
  }

 private:
  std::unique_ptr<FolderMachine> machine_;
  std::unique_ptr<QueuedDialogs> dialogs_;
};

void scan_and_clean(Machine& machine, const std::function<void()>& ready) {
  machine.dialogs().answer(Answer::kYes);
  Program program(machine.platform());
  program.start("");
  program.main_window().cmd_start.click();
  ready();
  program.main_window().cmd_clean.click();
}

void scan_and_back_up(Machine& machine, const std::function<void()>& ready) {
  Program program(machine.platform());
  program.start("");
  Form7& form = program.main_window();
  form.cmd_start.click();
  for (int row = 1; row <= form.view1.count(); ++row) form.view1.set_checked(row, true);
  ready();
  form.Command14.click();
}

class KillTest : public ::testing::Test {
 protected:
  KillTest() {
    host.write("before/machine.json", kMachineJson);
    for (int i = 0; i < kJunkFiles; ++i) {
      host.write("before/drive_c/Windows/Temp/" + junk_name(i), std::string(kBytesOfEach, 'j'));
    }
    for (const char* kept :
         {"Users/User/Documents/letter.txt", "Windows/win.ini",
          "Program Files/Tidewrack/custom.tdw", "Program Files/Tidewrack/ignore.tdw"}) {
      host.write("before/drive_c/" + std::string(kept), kept);
      kept_files.push_back(kept);
    }
    Machine machine(host.path_of("before"));
    machine.set(kQueueKey, kQueueValue, RegistryType::kMultiSz, multi_string_data(kOldQueue));
    machine.set(kStatistics, "count", RegistryType::kSz, std::string("10") + '\0');
    machine.set(kStatistics, "size", RegistryType::kSz, std::string("1000") + '\0');
    const std::string off(4, '\0');
    for (const Hive hive : {Hive::kCurrentUser, Hive::kLocalMachine}) {
      EXPECT_TRUE(
          (*machine).registry().store_value(hive, kPolicies, kPolicy, {RegistryType::kDword, off}));
    }
  }

  // A machine as it was before, for one run.
  std::string fresh_machine() {
    const std::string folder = host.path_of("run");
    fs::remove_all(folder);
    fs::copy(host.path_of("before"), folder, fs::copy_options::recursive);
    return folder;
  }

  // The work calls `ready` when that begins which is to be disturbed.
  using Work = void (*)(Machine& machine, const std::function<void()>& ready);

  // Runs the work in a process of its own, kills it at a random moment behind its `ready`, and
  // answers whether it was still going on.
  bool run_killed(const std::string& folder, Work work) {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
      Machine machine(folder);
      work(machine, [&] { static_cast<void>(write(ends[1], "r", 1)); });
      _exit(0);
    }
    close(ends[1]);
    char ready = 0;
    EXPECT_EQ(read(ends[0], &ready, 1), 1);
    close(ends[0]);
    std::uniform_int_distribution<std::int64_t> moment(0, longest_.count());
    std::this_thread::sleep_for(microseconds(moment(random_)));
    kill(child, SIGKILL);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    // The moments spread over the whole work, however fast this computer does it.
    const bool hit = WIFSIGNALED(status);
    longest_ = hit ? longest_ * 21 / 20 : longest_ * 4 / 5;
    return hit;
  }

  void expect_kept_files(const std::string& folder) {
    for (const std::string& kept : kept_files) {
      EXPECT_EQ(host.read(fs::path(folder).filename().string() + "/drive_c/" + kept), kept);
    }
  }

  // Each junk file is there whole or not at all; those in use are always there.
  void expect_whole_or_gone(const std::string& folder) {
    for (int i = 0; i < kJunkFiles; ++i) {
      const fs::path file = fs::path(folder) / "drive_c/Windows/Temp" / junk_name(i);
      const bool there = fs::exists(file);
      EXPECT_TRUE(!there || fs::file_size(file) == kBytesOfEach) << file;
      EXPECT_TRUE(there || (i != 5 && i != 27)) << file;
    }
  }

  // What the run left of the policy is put back by the next start, and none of it afterwards.
  void expect_policy_put_back(const std::string& folder) {
    const RegistryContent off = std::uint32_t{0};
    const RegistryContent on = std::uint32_t{1};
    {
      Machine next(folder);
      Program program(next.platform());
      program.start("");
      EXPECT_EQ(next.policies(), (std::vector<RegistryContent>{off, off}));
    }
    Machine later(folder);
    EXPECT_TRUE(
        (*later).registry().store_value(Hive::kLocalMachine, kPolicies, kPolicy,
                                        {RegistryType::kDword, std::string("\1\0\0\0", 4)}));
    Program program(later.platform());
    program.start("");
    EXPECT_EQ(later.policies(), (std::vector<RegistryContent>{off, on}));
  }

  void expect_a_second_run_finishes(const std::string& folder) {
    {
      Machine again(folder);
      scan_and_clean(again, [] {});
    }
    EXPECT_EQ(Machine(folder).queue(), kNewQueue);
    for (int i = 0; i < kJunkFiles; ++i) {
      EXPECT_EQ(fs::exists(fs::path(folder) / "drive_c/Windows/Temp" / junk_name(i)),
                i == 5 || i == 27);
    }
    expect_kept_files(folder);
  }

  TempFolder host;
  Texts kept_files;

 private:
  std::mt19937 random_{20261121};
  microseconds longest_{20000};
};

}  // namespace

TEST_F(KillTest, ACleaningRunLeavesOldOrNewAndASecondRunFinishes) {
  for (int killed = 0; killed < 150;) {
    SCOPED_TRACE(killed);
    const std::string folder = fresh_machine();
    if (run_killed(folder, scan_and_clean)) ++killed;
    {
      Machine after(folder);
      const Texts queue = after.queue();
      EXPECT_TRUE(queue == kOldQueue || queue == kNewQueue) << ::testing::PrintToString(queue);
      const std::string count = after.text(kStatistics, "count");
      EXPECT_TRUE(count == "10" || count == "50") << count;
      const std::string size = after.text(kStatistics, "size");
      EXPECT_TRUE(size == "1000" || size == "5000") << size;
    }
    expect_whole_or_gone(folder);
    expect_kept_files(folder);
    expect_policy_put_back(folder);
    if (killed % 4 == 0) expect_a_second_run_finishes(folder);
    if (HasFailure()) return;
  }
}

TEST_F(KillTest, AProgramThatStartsWhileAnotherCleansLeavesItsPolicy) {
  const std::string folder = fresh_machine();
  int ready[2];
  int go_on[2];
  ASSERT_EQ(pipe(ready), 0);
  ASSERT_EQ(pipe(go_on), 0);
  const pid_t child = fork();
  if (child == 0) {
    close(go_on[1]);
    Machine cleaning(folder);
    bool waited = false;
    // In the middle of the cleaning, when the policy is on.
    (*cleaning).loop().set_served_hook([&] {
      if (waited || cleaning.policies().front() == RegistryContent(std::uint32_t{0})) return;
      waited = true;
      static_cast<void>(write(ready[1], "r", 1));
      char word = 0;
      static_cast<void>(read(go_on[0], &word, 1));
    });
    scan_and_clean(cleaning, [] {});
    _exit(waited ? 0 : 1);
  }
  close(ready[1]);
  char word = 0;
  ASSERT_EQ(read(ready[0], &word, 1), 1);
  const RegistryContent on = std::uint32_t{1};
  {
    Machine second(folder);
    Program program(second.platform());
    program.start("");
    EXPECT_EQ(second.policies(), (std::vector<RegistryContent>{on, on}));
  }
  close(go_on[1]);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  const RegistryContent off = std::uint32_t{0};
  EXPECT_EQ(Machine(folder).policies(), (std::vector<RegistryContent>{off, off}));
}

TEST_F(KillTest, ABackupLeavesWholeFilesAndTheOldOrTheNewHistory) {
  std::string index;
  for (int i = 0; i < kJunkFiles; ++i) {
    index += "C:\\Windows\\Temp\\," + junk_name(i) + ",C:\\Windows\\Temp\\" + junk_name(i) + "\r\n";
  }
  for (int killed = 0; killed < 60;) {
    SCOPED_TRACE(killed);
    const std::string folder = fresh_machine();
    if (run_killed(folder, scan_and_back_up)) ++killed;
    const std::string count = Machine(folder).text(kHistory, "cnt");
    EXPECT_TRUE(count == "(none)" || count == "1") << count;
    const fs::path junk = fs::path(folder) / "drive_c/Program Files/Tidewrack/backup/junk";
    std::error_code none_yet;
    for (const auto& entry : fs::recursive_directory_iterator(junk, none_yet)) {
      const std::string name = entry.path().filename().string();
      if (entry.is_directory() || name.starts_with(".quillvane-")) continue;  // never in place
      if (entry.path().parent_path() == junk) {
        EXPECT_EQ(host.read(fs::relative(entry.path(), host.path()).string()), index);
      } else {
        EXPECT_EQ(fs::file_size(entry.path()), kBytesOfEach) << entry.path();
      }
    }
    for (int i = 0; i < kJunkFiles; ++i) {
      EXPECT_TRUE(fs::exists(fs::path(folder) / "drive_c/Windows/Temp" / junk_name(i)));
    }
    expect_kept_files(folder);
    if (HasFailure()) return;
  }
}

}  // namespace quillvane
