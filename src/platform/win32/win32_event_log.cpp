#include "platform/win32/win32_event_log.h"

#include <windows.h>

#include <memory>
#include <type_traits>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

struct Deregister {
  void operator()(HANDLE source) const { DeregisterEventSource(source); }
};
using EventSource = std::unique_ptr<std::remove_pointer_t<HANDLE>, Deregister>;

}  // namespace

bool Win32EventLog::write(const std::string& server, const std::string& application,
                          std::uint32_t event_id, std::uint16_t type, const std::string& text) {
  const std::wstring wide_server = widen(server);
  const EventSource source(RegisterEventSourceW(server.empty() ? nullptr : wide_server.c_str(),
                                                widen(application).c_str()));
  if (!source) return false;
  const std::wstring wide_text = widen(text);
  const wchar_t* strings[] = {wide_text.c_str()};
  return ReportEventW(source.get(), type, /*wCategory=*/0, event_id, /*lpUserSid=*/nullptr,
                      /*wNumStrings=*/1, /*dwDataSize=*/0, strings, /*lpRawData=*/nullptr) != 0;
}

}  // namespace quillvane
