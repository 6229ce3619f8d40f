#include "platform/win32/win32_links.h"

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

#include <array>
#include <optional>

#include "platform/win32/com_object.h"
#include "platform/win32/file_content.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_path.h"

namespace quillvane {

namespace {

// What the shell hands out of a link: a text in a fresh buffer, zeros where it wrote none.
using Buffer = std::array<wchar_t, kMostLinkText + 1>;
constexpr int kBufferSize = static_cast<int>(kMostLinkText) + 1;

// One that the shell cannot take whole is cut by it, maybe between two halves of a letter.
std::string text_of(const Buffer& buffer) {
  std::wstring text(buffer.data());
  if (!text.empty() && IS_HIGH_SURROGATE(text.back())) text.pop_back();
  return narrow(text);
}

bool make_link(ComObject<IShellLinkW>& link) {
  return SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                    link.untyped_place()));
}

int known_show_command(int command) {
  return command == SW_SHOWMAXIMIZED || command == SW_SHOWMINNOACTIVE ? command : SW_SHOWNORMAL;
}

// Asks for everything, in this order, until a step fails.
bool read_all(IShellLinkW& link, LinkContent& content) {
  Buffer target{};
  WIN32_FIND_DATAW unused{};
  if (FAILED(link.GetPath(target.data(), kBufferSize, &unused, SLGP_UNCPRIORITY))) return false;
  content.target = text_of(target);
  content.has_target = true;
  Buffer folder{};
  if (FAILED(link.GetWorkingDirectory(folder.data(), kBufferSize))) return false;
  content.working_directory = text_of(folder);
  Buffer arguments{};
  if (FAILED(link.GetArguments(arguments.data(), kBufferSize))) return false;
  content.arguments = text_of(arguments);
  Buffer description{};
  if (FAILED(link.GetDescription(description.data(), kBufferSize))) return false;
  WORD hot_key = 0;
  if (FAILED(link.GetHotkey(&hot_key))) return false;
  Buffer icon{};
  if (FAILED(link.GetIconLocation(icon.data(), kBufferSize, &content.icon_index))) return false;
  content.icon_file = text_of(icon);
  PIDLIST_ABSOLUTE items = nullptr;
  if (FAILED(link.GetIDList(&items))) return false;
  CoTaskMemFree(items);
  int command = SW_SHOWNORMAL;
  if (FAILED(link.GetShowCmd(&command))) return false;
  content.show_command = known_show_command(command);
  return true;
}

bool set_all(IShellLinkW& link, const LinkContent& content) {
  const auto set = [](const std::string& text, auto setter) {
    return text.empty() || SUCCEEDED(setter(widen(text).c_str()));
  };
  return link.SetPath(widen(content.target).c_str()) == S_OK &&
         set(content.working_directory,
             [&](const wchar_t* t) { return link.SetWorkingDirectory(t); }) &&
         set(content.arguments, [&](const wchar_t* t) { return link.SetArguments(t); }) &&
         SUCCEEDED(link.SetDescription(L"Access Shortcut")) &&
         set(content.icon_file,
             [&](const wchar_t* t) { return link.SetIconLocation(t, content.icon_index); }) &&
         SUCCEEDED(link.SetShowCmd(known_show_command(content.show_command))) &&
         SUCCEEDED(link.Resolve(nullptr, SLR_UPDATE));
}

// The file that the shell would save.
std::optional<std::string> bytes_of(IShellLinkW& link) {
  ComObject<IPersistStream> persist;
  ComObject<IStream> stream;
  if (FAILED(link.QueryInterface(IID_IPersistStream, persist.untyped_place())) ||
      FAILED(CreateStreamOnHGlobal(nullptr, TRUE, stream.place())) ||
      FAILED(persist->Save(stream.get(), FALSE))) {
    return std::nullopt;
  }
  STATSTG status{};
  LARGE_INTEGER begin{};
  if (FAILED(stream->Stat(&status, STATFLAG_NONAME)) ||
      FAILED(stream->Seek(begin, STREAM_SEEK_SET, nullptr))) {
    return std::nullopt;
  }
  std::string bytes(static_cast<std::size_t>(status.cbSize.QuadPart), '\0');
  ULONG read = 0;
  const HRESULT result = stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read);
  return SUCCEEDED(result) && read == bytes.size() ? std::optional(bytes) : std::nullopt;
}

}  // namespace

bool Win32Links::read_link(const std::string& path, LinkContent& content) {
  const auto wide = openable_path(path);
  ComObject<IShellLinkW> link;
  if (!wide || !make_link(link)) return false;
  ComObject<IPersistFile> file;
  if (FAILED(link->QueryInterface(IID_IPersistFile, file.untyped_place()))) return false;
  return SUCCEEDED(file->Load(wide->c_str(), STGM_READ)) && read_all(*link.get(), content);
}

// The shell would write over the old file in its place; so it writes into memory, and the file is
// exchanged at one stroke.
bool Win32Links::write_link(const std::string& path, const LinkContent& content) {
  const auto wide = openable_path(path);
  ComObject<IShellLinkW> link;
  if (!wide || !make_link(link) || !set_all(*link.get(), content)) return false;
  const auto bytes = bytes_of(*link.get());
  return bytes && replace_whole_file(*wide, *bytes);
}

}  // namespace quillvane
