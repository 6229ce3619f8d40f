#include "platform/win32/win32_instances.h"

#include <windows.h>

#include <memory>

namespace quillvane {

namespace {

constexpr DWORD kLongestWaitMs = 5000;

// A name that all sessions share. Windows drops the object with the last process that has it open.
std::wstring shared_name(const std::wstring& name, const wchar_t* what) {
  return L"Global\\" + name + what;
}

// An open mutex: what matters of it is that it is there.
class Presence {
 public:
  explicit Presence(const std::wstring& name)
      : handle_(CreateMutexW(nullptr, FALSE, name.c_str())) {
    first_ = handle_ != nullptr && GetLastError() != ERROR_ALREADY_EXISTS;
  }
  ~Presence() {
    if (handle_ != nullptr) CloseHandle(handle_);
  }
  Presence(const Presence&) = delete;
  Presence& operator=(const Presence&) = delete;

  [[nodiscard]] bool is_open() const { return handle_ != nullptr; }
  [[nodiscard]] bool is_first() const { return first_; }
  [[nodiscard]] HANDLE get() const { return handle_; }

 private:
  HANDLE handle_;
  bool first_ = false;
};

// The gate through which a cleaning begins; owned by this thread while `is_owned`.
class Gate {
 public:
  Gate(const std::wstring& name, DWORD wait_ms) : mutex_(name) {
    if (!mutex_.is_open()) return;
    const DWORD result = WaitForSingleObject(mutex_.get(), wait_ms);
    owned_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
  }
  ~Gate() {
    if (owned_) ReleaseMutex(mutex_.get());
  }
  Gate(const Gate&) = delete;
  Gate& operator=(const Gate&) = delete;

  [[nodiscard]] bool is_owned() const { return owned_; }

 private:
  Presence mutex_;
  bool owned_ = false;
};

}  // namespace

Instances::Hold Win32Instances::announce_cleaning() {
  const Gate gate(shared_name(name_, L".gate"), kLongestWaitMs);
  auto presence = std::make_shared<const Presence>(shared_name(name_, L".cleaning"));
  return presence->is_open() ? presence : nullptr;
}

Instances::Hold Win32Instances::hold_off_cleaning() {
  auto gate = std::make_shared<const Gate>(shared_name(name_, L".gate"), 0);
  if (!gate->is_owned()) return nullptr;
  const Presence cleaning(shared_name(name_, L".cleaning"));
  return cleaning.is_first() ? gate : nullptr;
}

}  // namespace quillvane
