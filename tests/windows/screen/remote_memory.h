// Memory in another process, in which its controls take and leave their answers.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

namespace quillvane {

class RemoteMemory {
 public:
  RemoteMemory(HANDLE process, std::size_t bytes, DWORD protection = PAGE_READWRITE)
      : process_(process),
        address_(VirtualAllocEx(process, nullptr, bytes, MEM_COMMIT | MEM_RESERVE, protection)) {
    EXPECT_NE(address_, nullptr);
  }
  ~RemoteMemory() { VirtualFreeEx(process_, address_, 0, MEM_RELEASE); }
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;

  template <typename T>
  [[nodiscard]] T* at(std::size_t offset) const {
    return reinterpret_cast<T*>(static_cast<std::byte*>(address_) + offset);
  }
  [[nodiscard]] LPARAM address() const { return reinterpret_cast<LPARAM>(address_); }

  template <typename T>
  void write(const T& value) const {
    EXPECT_TRUE(WriteProcessMemory(process_, address_, &value, sizeof(value), nullptr));
  }
  template <typename T>
  [[nodiscard]] T read() const {
    T value{};
    EXPECT_TRUE(ReadProcessMemory(process_, address_, &value, sizeof(value), nullptr));
    return value;
  }
  [[nodiscard]] std::wstring read_text(std::size_t offset, std::size_t letters) const {
    std::vector<wchar_t> text(letters + 1);
    EXPECT_TRUE(ReadProcessMemory(process_, at<wchar_t>(offset), text.data(),
                                  letters * sizeof(wchar_t), nullptr));
    return text.data();
  }

 private:
  HANDLE process_;
  void* address_;
};

}  // namespace quillvane
