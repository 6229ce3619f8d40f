// The contract tests' machine on Windows: this PC, with a folder below %TEMP% and a key below
// HKEY_CURRENT_USER of the test's own.
#include <gtest/gtest.h>
#include <windows.h>
#include <winioctl.h>

#include <vector>

#include "platform/virtual/effect_log.h"
#include "platform/virtual/queued_dialogs.h"
#include "platform/win32/system_handle.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_loop.h"
#include "platform/win32/win32_machine.h"
#include "tests/contract/contract_machine.h"
#include "tests/support/remove_folder.h"
#include "tests/windows/folder_link.h"
#include "tests/windows/wine.h"

namespace quillvane {

namespace {

constexpr wchar_t kProgramKey[] = L"Software\\Quillvane";
constexpr wchar_t kTestKey[] = L"Software\\Quillvane\\ContractTest";

// The path in the form that Windows takes whatever its length.
std::wstring unlimited(const std::string& path) { return L"\\\\?\\" + widen(path); }

class Win32ContractMachine final : public ContractMachine {
 public:
  Win32ContractMachine() {
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    static unsigned made = 0;  // so that what one test could not remove does not disturb the next
    folder_ = std::wstring(temp) + L"quillvane-contract-" + std::to_wstring(GetCurrentProcessId()) +
              L"-" + std::to_wstring(++made);
    EXPECT_TRUE(CreateDirectoryW(folder_.c_str(), nullptr)) << narrow(folder_);
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, kTestKey, &key), ERROR_SUCCESS);
    RegCloseKey(key);
  }

  ~Win32ContractMachine() override {
    held_.clear();
    for (const std::wstring& link : links_) EXPECT_TRUE(remove_folder_link(link)) << narrow(link);
    for (const std::wstring& name : variables_) SetEnvironmentVariableW(name.c_str(), nullptr);
    remove_test_folder(narrow(folder_));
    EXPECT_EQ(RegDeleteTreeW(HKEY_CURRENT_USER, kTestKey), ERROR_SUCCESS);
    RegDeleteKeyW(HKEY_CURRENT_USER, kProgramKey);  // stays when the user has settings below it
  }

  [[nodiscard]] Platform platform() override { return machine_.platform(dialogs_, loop_); }
  [[nodiscard]] std::string folder() const override { return narrow(folder_); }
  [[nodiscard]] std::string key() const override { return narrow(kTestKey); }

  [[nodiscard]] std::uint32_t constant_attributes() const override {
    return is_wine() ? kAttributeArchive : 0;  // Wine does not keep this one for a file
  }
  [[nodiscard]] bool lists_like_windows() const override { return !is_wine(); }
  // Wine writes it, and does not read it.
  [[nodiscard]] bool reads_show_commands() const override { return !is_wine(); }

  void add_file(const std::string& path, std::string_view content) override {
    const FileHandle file = make_file(path);
    DWORD written = 0;
    EXPECT_TRUE(WriteFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &written,
                          nullptr));
  }
  void add_big_file(const std::string& path, std::uint64_t bytes) override {
    const FileHandle file = make_file(path);
    DWORD returned = 0;
    // Where the disk knows no sparse files the file takes its room; that is no failure.
    DeviceIoControl(file.get(), FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &returned, nullptr);
    LARGE_INTEGER end;
    end.QuadPart = static_cast<LONGLONG>(bytes);
    EXPECT_TRUE(SetFilePointerEx(file.get(), end, nullptr, FILE_BEGIN));
    EXPECT_TRUE(SetEndOfFile(file.get())) << path;
  }
  void add_folder(const std::string& path) override {
    EXPECT_TRUE(CreateDirectoryW(unlimited(path).c_str(), nullptr)) << path;
  }
  void add_link(const std::string& path, const std::string& target) override {
    links_.push_back(widen(path));
    EXPECT_TRUE(make_folder_link(links_.back(), widen(target))) << path;
  }
  void hold_open(const std::string& path) override {
    held_.emplace_back(CreateFileW(widen(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                   OPEN_EXISTING, 0, nullptr));
    EXPECT_TRUE(held_.back().is_valid()) << path;
  }
  void set_environment(const std::string& name, const std::string& value) override {
    variables_.push_back(widen(name));
    EXPECT_TRUE(SetEnvironmentVariableW(variables_.back().c_str(), widen(value).c_str())) << name;
  }

 private:
  static FileHandle make_file(const std::string& path) {
    FileHandle file(CreateFileW(unlimited(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_TRUE(file.is_valid()) << path;
    return file;
  }

  std::wstring folder_;
  Win32Machine machine_;
  Win32Loop loop_;
  EffectLog effects_;
  QueuedDialogs dialogs_{effects_};
  std::vector<FileHandle> held_;
  std::vector<std::wstring> links_;
  std::vector<std::wstring> variables_;
};

}  // namespace

std::unique_ptr<ContractMachine> ContractMachine::make() {
  return std::make_unique<Win32ContractMachine>();
}

}  // namespace quillvane
