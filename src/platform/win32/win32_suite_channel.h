// The channel to the suite: a named block of shared memory and a message to its window.
#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>
#include <string>

#include "platform/suite_channel.h"

namespace quillvane {

// What both sides of the channel know.
inline constexpr wchar_t kSuiteMappingName[] = L"MyFileMappingObject";
inline constexpr DWORD kSuiteMappingBytes = 256;
inline constexpr UINT kSuiteMessage = 1025;  // wParam: the text's length in bytes

class Win32SuiteChannel final : public SuiteChannel {
 public:
  // The text stands at the beginning of the block without a terminator; what does not fit is cut
  // off.
  void publish(const std::string& text) override;
  [[nodiscard]] bool notify(const std::string& title, std::size_t length) override;
  void withdraw() override;

 private:
  struct CloseMapping {
    void operator()(HANDLE mapping) const { CloseHandle(mapping); }
  };
  struct Unmap {
    void operator()(char* view) const { UnmapViewOfFile(view); }
  };

  std::unique_ptr<void, CloseMapping> mapping_;
  std::unique_ptr<char, Unmap> view_;
};

}  // namespace quillvane
