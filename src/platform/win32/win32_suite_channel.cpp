#include "platform/win32/win32_suite_channel.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

#include "platform/win32/wide_text.h"

namespace quillvane {

void Win32SuiteChannel::publish(const std::string& text) {
  // The new one before the old one goes: under the one name both are the same block, which would
  // be gone for a moment otherwise.
  decltype(mapping_) mapping(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                                kSuiteMappingBytes, kSuiteMappingName));
  if (mapping == nullptr) return;
  decltype(view_) view(static_cast<char*>(
      MapViewOfFile(mapping.get(), FILE_MAP_ALL_ACCESS, 0, 0, kSuiteMappingBytes)));
  if (view == nullptr) return;
  std::memcpy(view.get(), text.data(), std::min<std::size_t>(text.size(), kSuiteMappingBytes));
  FlushViewOfFile(view.get(), 0);
  view_ = std::move(view);
  mapping_ = std::move(mapping);
}

bool Win32SuiteChannel::notify(const std::string& title, std::size_t length) {
  const HWND window = FindWindowW(nullptr, widen(title).c_str());
  if (window == nullptr) return false;
  std::uint32_t word = 0;  // the suite expects an address, though it lies in another process
  SendMessageW(window, kSuiteMessage, length, reinterpret_cast<LPARAM>(&word));
  return true;
}

void Win32SuiteChannel::withdraw() {
  view_.reset();
  mapping_.reset();
}

}  // namespace quillvane
