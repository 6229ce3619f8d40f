#include "tests/windows/screen/high_contrast.h"

#include <gtest/gtest.h>
#include <tlhelp32.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quillvane {

namespace {

constexpr const char* kQuestion = "SystemParametersInfoW";

// Where an executable lies in the memory of its process.
std::byte* base_of(DWORD process) {
  const FileHandle modules(CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process));
  MODULEENTRY32W first{};
  first.dwSize = sizeof(first);
  EXPECT_TRUE(Module32FirstW(modules.get(), &first)) << GetLastError();
  return reinterpret_cast<std::byte*>(first.modBaseAddr);
}

template <typename Record>
const Record& at(const std::byte* base, DWORD offset) {
  return *reinterpret_cast<const Record*>(base + offset);
}

// The offset of the function's slot in the table of a library's functions; 0 when it has none.
std::size_t slot_in(const std::byte* base, const IMAGE_IMPORT_DESCRIPTOR& library) {
  const auto* names = &at<IMAGE_THUNK_DATA64>(base, library.OriginalFirstThunk);
  for (std::size_t i = 0; names[i].u1.AddressOfData != 0; ++i) {
    if (IMAGE_SNAP_BY_ORDINAL64(names[i].u1.Ordinal)) continue;
    const auto name = static_cast<DWORD>(names[i].u1.AddressOfData);
    if (std::strcmp(at<IMAGE_IMPORT_BY_NAME>(base, name).Name, kQuestion) == 0) {
      return library.FirstThunk + i * sizeof(IMAGE_THUNK_DATA64);
    }
  }
  return 0;
}

// In the executable as it is loaded here, without being run.
std::size_t slot_offset(const std::wstring& executable) {
  const HMODULE loaded = LoadLibraryExW(executable.c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES);
  EXPECT_NE(loaded, nullptr) << GetLastError();
  const auto* base = reinterpret_cast<const std::byte*>(loaded);
  const auto& dos = at<IMAGE_DOS_HEADER>(base, 0);
  const auto& headers = at<IMAGE_NT_HEADERS64>(base, static_cast<DWORD>(dos.e_lfanew));
  const auto& imports = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  const auto* library = &at<IMAGE_IMPORT_DESCRIPTOR>(base, imports.VirtualAddress);
  std::size_t offset = 0;
  for (; library->Name != 0 && offset == 0; ++library) offset = slot_in(base, *library);
  EXPECT_NE(offset, 0U) << "the program does not ask Windows for high contrast";
  FreeLibrary(loaded);
  return offset;
}

// SystemParametersInfoW(action ecx, ..., answer r8): SPI_GETHIGHCONTRAST is answered "on", all else
// by Windows.
struct Answer {
  std::uint8_t compare_action[3] = {0x83, 0xF9, SPI_GETHIGHCONTRAST};
  std::uint8_t to_windows_if_other[2] = {0x75, 14};
  std::uint8_t set_flag[8] = {
      0x41, 0xC7, 0x40, offsetof(HIGHCONTRASTW, dwFlags), HCF_HIGHCONTRASTON, 0, 0, 0};
  std::uint8_t return_true[6] = {0xB8, 1, 0, 0, 0, 0xC3};
  std::uint8_t load_windows_own[2] = {0x48, 0xB8};
  std::uint8_t windows_own[8] = {};
  std::uint8_t jump[2] = {0xFF, 0xE0};
};

}  // namespace

HighContrastColors::HighContrastColors() {
  constexpr std::array<COLORREF, kNumbers.size()> kWhiteOnBlack = {0,        0xFFFFFF, 0, 0xFFFFFF,
                                                                   0x3FF23F, 0xFFEB1A, 0, 0x00FFFF};
  std::transform(kNumbers.begin(), kNumbers.end(), before_.begin(), GetSysColor);
  SetSysColors(static_cast<int>(kNumbers.size()), kNumbers.data(), kWhiteOnBlack.data());
}

HighContrastColors::~HighContrastColors() {
  SetSysColors(static_cast<int>(kNumbers.size()), kNumbers.data(), before_.data());
}

HighContrastSwitch::HighContrastSwitch(const ProgramOnScreen& program)
    : program_(program), process_(OpenProcess(PROCESS_ALL_ACCESS, FALSE, program.id())) {
  slot_ = base_of(program.id()) + slot_offset(cleaner_program());
  EXPECT_TRUE(
      ReadProcessMemory(process_.get(), slot_, &windows_own_, sizeof(windows_own_), nullptr));
  Answer answer;
  std::memcpy(answer.windows_own, &windows_own_, sizeof(windows_own_));
  answer_ = std::make_unique<RemoteMemory>(process_.get(), sizeof(answer), PAGE_EXECUTE_READWRITE);
  answer_->write(answer);
  call(static_cast<std::uint64_t>(answer_->address()));
}

HighContrastSwitch::~HighContrastSwitch() { call(windows_own_); }

void HighContrastSwitch::call(std::uint64_t function) const {
  DWORD before = 0;
  VirtualProtectEx(process_.get(), slot_, sizeof(function), PAGE_READWRITE, &before);
  EXPECT_TRUE(WriteProcessMemory(process_.get(), slot_, &function, sizeof(function), nullptr));
  SendMessageW(program_.window(), WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST, 0);
}

}  // namespace quillvane
