// A file that another process holds open and shares with nobody.
#include <gtest/gtest.h>
#include <windows.h>

#include <optional>
#include <string>

#include "cleaning/deletion.h"
#include "cleaning/pending_queue.h"
#include "platform/virtual/effect_log.h"
#include "platform/virtual/queued_dialogs.h"
#include "platform/win32/registry_key.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_loop.h"
#include "platform/win32/win32_machine.h"
#include "tests/windows/companion.h"
#include "tests/windows/scratch_folder.h"
#include "tests/windows/wine.h"

namespace quillvane {
namespace {

class LockedFile : public testing::Test {
 protected:
  void lock() { holder_.emplace(companion_program(), L"hold \"" + widen(path_) + L"\""); }
  void unlock() { holder_.reset(); }

  ScratchFolder folder_;
  const std::string path_ = folder_.add_file("locked.txt", "old");
  Win32Machine machine_;
  Win32Loop loop_;
  EffectLog effects_;
  QueuedDialogs dialogs_{effects_};
  const Platform platform_ = machine_.platform(dialogs_, loop_);
  FileSystem& files_ = platform_.files;

 private:
  std::optional<Companion> holder_;
};

TEST_F(LockedFile, ItCanBeSeenButNotOpened) {
  lock();
  EXPECT_FALSE(files_.can_open(path_));
  EXPECT_EQ(files_.read_file(path_), ReadFailure::kInUse);
  EXPECT_EQ(files_.file_size(path_), 3U);
  unlock();
  EXPECT_TRUE(files_.can_open(path_));
  EXPECT_EQ(files_.read_file(path_), "old");
}

TEST_F(LockedFile, ItKeepsItsNameAndContent) {
  const std::string other = folder_.add_file("other.txt", "new");
  lock();
  EXPECT_FALSE(files_.rename_file(path_, folder_.path_of("renamed.txt")));
  EXPECT_FALSE(files_.copy_file(path_, folder_.path_of("copy.txt")));
  EXPECT_FALSE(files_.copy_file(other, path_));
  EXPECT_FALSE(files_.write_file(path_, "new"));
  EXPECT_EQ(folder_.names(), "locked.txt other.txt");
  unlock();
  EXPECT_EQ(files_.read_file(path_), "old");
  EXPECT_TRUE(files_.write_file(path_, "new"));
}

TEST_F(LockedFile, ItIsStillThereAfterItsRemoval) {
  std::string path = path_;
  lock();
  EXPECT_EQ(files_.remove_file(path_), RemoveResult::kInUse);
  DeleteAFile(platform_, path);
  EXPECT_TRUE(StillThere(platform_, path_));
  unlock();
  DeleteAFile(platform_, path);
  EXPECT_FALSE(StillThere(platform_, path_));
}

// The system's queue of what is to be done at the next restart, as it was before the test when the
// test has ended.
class RestartQueue {
 public:
  RestartQueue()
      : key_(RegistryKey::create(Hive::kLocalMachine, kKey, KEY_QUERY_VALUE | KEY_SET_VALUE)),
        before_(get()) {}
  ~RestartQueue() {
    RegDeleteValueW(key_.get(), kValue);
    if (before_) set(*before_);
  }
  RestartQueue(const RestartQueue&) = delete;
  RestartQueue& operator=(const RestartQueue&) = delete;

  void set(const std::wstring& data) {
    EXPECT_EQ(RegSetValueExW(key_.get(), kValue, 0, REG_MULTI_SZ,
                             reinterpret_cast<const BYTE*>(data.data()),
                             static_cast<DWORD>(data.size() * sizeof(wchar_t))),
              ERROR_SUCCESS);
  }
  // The data with all zeros; nothing when there is no queue.
  [[nodiscard]] std::optional<std::wstring> get() const {
    std::wstring data(4096, L'\0');
    auto bytes = static_cast<DWORD>(data.size() * sizeof(wchar_t));
    if (RegQueryValueExW(key_.get(), kValue, nullptr, nullptr, reinterpret_cast<BYTE*>(data.data()),
                         &bytes) != ERROR_SUCCESS) {
      return std::nullopt;
    }
    data.resize(bytes / sizeof(wchar_t));
    return data;
  }

 private:
  static constexpr const char* kKey = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
  static constexpr const wchar_t* kValue = L"PendingFileRenameOperations";

  RegistryKey key_;
  std::optional<std::wstring> before_;
};

// Only through Wine: on a real PC this would change the rights on a key of its system for good.
TEST_F(LockedFile, ItIsQueuedForTheNextRestartBehindWhatWasQueuedBefore) {
  if (!is_wine()) GTEST_SKIP() << "would change the rights on a key of the system";
  using namespace std::string_literals;
  RestartQueue restart;
  restart.set(L"\\??\\C:\\old.tmp\0\0\0"s);
  lock();

  PendingQueue queue(platform_);
  queue.loadpending();
  std::string path = path_;
  DeleteAFile(platform_, path);
  ASSERT_TRUE(StillThere(platform_, path_));
  queue.add(path_);
  EXPECT_TRUE(queue.savepending());

  // The old pair, the new one, and one empty text more; then the end of the list.
  EXPECT_EQ(restart.get(), L"\\??\\C:\\old.tmp\0\0\\??\\"s + widen(path_) + L"\0\0\0\0"s);
}

}  // namespace
}  // namespace quillvane
