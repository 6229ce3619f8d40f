// An NTFS disk of a test's own: an image file, mounted through FUSE, and the bytes that Windows
// stores with links. Where the host cannot mount it is_mounted is false, and there is nothing to
// test.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/xattr.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/utf8.h"
#include "tests/support/temp_folder.h"

namespace quillvane {

class NtfsImage {
 public:
  NtfsImage() {
    host_.write_sparse("image", std::uintmax_t{16} << 20U);
    host_.make_folder("disk");
    if (run("mkntfs -F -q -Q '" + host_.path_of("image") + "'")) mount("rw");
  }
  ~NtfsImage() { unmount(); }
  NtfsImage(const NtfsImage&) = delete;
  NtfsImage& operator=(const NtfsImage&) = delete;

  [[nodiscard]] bool is_mounted() const { return mounted_; }
  // The folder on the host at which the disk is mounted.
  [[nodiscard]] std::string folder() const { return host_.path_of("disk"); }
  [[nodiscard]] std::string path_of(const std::string& name) const { return folder() + "/" + name; }
  // Names are relative to the disk.
  void write(const std::string& name, std::string_view content = {}) const {
    host_.write("disk/" + name, content);
  }
  void make_folder(const std::string& name) const { host_.make_folder("disk/" + name); }
  [[nodiscard]] bool has(const std::string& name) const { return host_.has("disk/" + name); }
  void set(const std::string& name, const char* attribute, std::string_view bytes) const {
    EXPECT_EQ(lsetxattr(path_of(name).c_str(), attribute, bytes.data(), bytes.size(), 0), 0)
        << name << " " << attribute;
  }
  [[nodiscard]] std::string get(const std::string& name, const char* attribute) const {
    char bytes[256];
    const ssize_t length = lgetxattr(path_of(name).c_str(), attribute, bytes, sizeof bytes);
    return length < 0 ? "none" : std::string(bytes, static_cast<std::size_t>(length));
  }

  // Takes the disk off and on again, so that the host looks at everything anew.
  void mount_again(const std::string& option = "rw") {
    unmount();
    mount(option);
    EXPECT_TRUE(mounted_);
  }

 private:
  static bool run(const std::string& command) {
    return system((command + " >/dev/null 2>&1").c_str()) == 0;
  }
  void mount(const std::string& option) {
    mounted_ = run("ntfs-3g -o " + option + " '" + host_.path_of("image") + "' '" + folder() + "'");
  }
  void unmount() {
    if (!mounted_) return;
    mounted_ = !run("umount '" + folder() + "'") && !run("fusermount -u '" + folder() + "'");
    EXPECT_FALSE(mounted_) << "still mounted: " << folder();
  }

  TempFolder host_;
  bool mounted_ = false;
};

// `size` bytes, the lowest first.
inline std::string little_endian_bytes(std::uint64_t number, std::size_t size) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(number >> 8U * i & 0xFFU);
  return bytes;
}

inline std::string reparse_data(std::uint32_t tag, std::string_view body) {
  return little_endian_bytes(tag, 4) + little_endian_bytes(body.size(), 2) + std::string(2, '\0') +
         std::string(body);
}

// Of a junction: "\??\D:\data".
inline std::string junction_data(std::string_view target) {
  const std::string name = utf16le_from_utf8(target);
  return reparse_data(0xA0000003, little_endian_bytes(0, 2) + little_endian_bytes(name.size(), 2) +
                                      little_endian_bytes(name.size() + 2, 2) +
                                      little_endian_bytes(0, 2) + name + std::string(4, '\0'));
}

// Of a symbolic link: "\??\D:\data", or relative "..\data".
inline std::string symbolic_link_data(std::string_view target, bool relative) {
  const std::string name = utf16le_from_utf8(target);
  return reparse_data(0xA000000C, little_endian_bytes(0, 2) + little_endian_bytes(name.size(), 2) +
                                      little_endian_bytes(0, 2) +
                                      little_endian_bytes(name.size(), 2) +
                                      little_endian_bytes(relative ? 1 : 0, 4) + name);
}

}  // namespace quillvane
