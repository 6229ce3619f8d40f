// Owners of what Windows hands out for files: each closes its handle once.
#pragma once

#include <windows.h>

#include <utility>

namespace quillvane {

template <typename Closer>
class SystemHandle {
 public:
  SystemHandle() = default;
  explicit SystemHandle(HANDLE handle) : handle_(handle) {}
  SystemHandle(SystemHandle&& other) noexcept
      : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  SystemHandle& operator=(SystemHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~SystemHandle() {
    if (is_valid()) Closer::close(handle_);
  }

  [[nodiscard]] bool is_valid() const { return handle_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE get() const { return handle_; }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

struct CloseFile {
  static void close(HANDLE handle) { CloseHandle(handle); }
};
struct CloseFind {
  static void close(HANDLE handle) { FindClose(handle); }
};

using FileHandle = SystemHandle<CloseFile>;  // of CreateFileW
using FindHandle = SystemHandle<CloseFind>;  // of FindFirstFileExW

}  // namespace quillvane
