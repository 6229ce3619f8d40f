#include "platform/folder/recycle_bin.h"

#include <cstdint>

#include "platform/utf8.h"

namespace quillvane {

namespace {

constexpr const char* kBin = "$Recycle.Bin";
// The folder of the user whom a new machine has.
constexpr const char* kUserFolder = "S-1-5-21-1004336348-1177238915-682003330-1001";
constexpr std::uint64_t kVersion = 2;
constexpr int kMostTries = 1'000'000;

void append_number(std::string& bytes, std::uint64_t number, int width) {
  for (int i = 0; i < width; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
}

std::string description(const std::string& path, std::uint64_t size_bytes, FileTime now) {
  const std::string text = utf16le_from_utf8(path) + std::string(2, '\0');
  std::string bytes;
  append_number(bytes, kVersion, 8);
  append_number(bytes, size_bytes, 8);
  append_number(bytes, static_cast<std::uint64_t>(now.ticks), 8);
  append_number(bytes, text.size() / 2, 4);
  return bytes + text;
}

std::string extension_of(const std::string& path) {
  const std::string name = path.substr(path.rfind('\\') + 1);
  const std::size_t dot = name.rfind('.');
  return dot == std::string::npos ? std::string() : name.substr(dot);
}

}  // namespace

bool move_to_recycle_bin(FileSystem& files, const std::string& path, FileTime now) {
  const auto size = files.file_size(path);
  if (!size || path.size() < 3 || path[1] != ':') return false;
  const std::string bin = path.substr(0, 2) + "\\" + kBin;
  const std::string folder = bin + "\\" + kUserFolder;
  static_cast<void>(files.make_folder(bin));  // they are there after the first file
  static_cast<void>(files.make_folder(folder));
  for (int number = 1; number <= kMostTries; ++number) {
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < 6 ? 6 - digits.size() : 0, '0');
    const std::string name = digits + extension_of(path);
    if (files.attributes(folder + "\\$R" + name)) continue;
    if (!files.rename_file(path, folder + "\\$R" + name)) return false;
    // Without it the file is in the bin all the same.
    static_cast<void>(files.write_file(folder + "\\$I" + name, description(path, *size, now)));
    return true;
  }
  return false;
}

}  // namespace quillvane
