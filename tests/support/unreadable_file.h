// The files of a machine, of which one is there and cannot be read.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/forwarding_file_system.h"

namespace quillvane {

class UnreadableFile final : public ForwardingFileSystem {
 public:
  // Until `why` is taken away; `files` must outlive it.
  UnreadableFile(FileSystem& files, std::string path,
                 ReadFailure failure = ReadFailure::kUnreadable)
      : ForwardingFileSystem(files), why(failure), path_(std::move(path)) {}

  std::optional<ReadFailure> why;

  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string& path) const override {
    return path == path_ && why ? std::nullopt : next().attributes(path);
  }
  [[nodiscard]] FileContent read_file(const std::string& path) const override {
    return path == path_ && why ? FileContent(*why) : next().read_file(path);
  }

 private:
  std::string path_;
};

}  // namespace quillvane
