#include "platform/folder/machine_links.h"

#include <optional>
#include <utility>

#include "platform/folder/host_code_page.h"
#include "platform/folder/link_file.h"
#include "platform/folder/link_writer.h"
#include "platform/utf8.h"

namespace quillvane {

namespace {

// A link has some kilobytes; what has more than this is none, whatever it is called.
constexpr std::uint64_t kMostLinkBytes = std::uint64_t{16} << 20U;

// As a buffer of 255 characters takes it.
std::string cut(std::string text) {
  std::size_t units = 0;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint letter = decode_utf8(text, at);
    units += letter.value > 0xFFFF ? 2 : 1;
    if (units > kMostLinkText) {
      text.resize(at);
      break;
    }
    at += letter.length;
  }
  return text;
}

}  // namespace

const CodePage& MachineLinks::page() const {
  static const CodePage kUtf8;
  const CodePage* page = host_code_page(state_.code_page);
  return page == nullptr ? kUtf8 : *page;
}

bool MachineLinks::read_link(const std::string& path, LinkContent& content) {
  const auto size = files_.file_size(path);
  if (!size || *size > kMostLinkBytes) return false;
  const FileContent bytes = files_.read_file(path);
  auto link = bytes ? parse_link(*bytes, page(), environment_) : std::nullopt;
  if (!link) return false;
  content = std::move(*link);
  for (std::string* text :
       {&content.target, &content.working_directory, &content.arguments, &content.icon_file}) {
    *text = cut(std::move(*text));
  }
  return true;
}

bool MachineLinks::write_link(const std::string& path, const LinkContent& content) {
  LinkTarget target;
  target.attributes = files_.attributes(content.target).value_or(0);
  target.size_bytes = static_cast<std::uint32_t>(files_.file_size(content.target).value_or(0));
  const auto bytes = link_to_file(content, target, page());
  return bytes && files_.write_file(path, *bytes);
}

}  // namespace quillvane
