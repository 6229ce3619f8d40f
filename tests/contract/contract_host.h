// What the host of a machine folder can do, for the contract tests' staging.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillvane {

// Links of the host's file system, gone with the object.
class HostLinks {
 public:
  HostLinks() = default;
  ~HostLinks();
  HostLinks(const HostLinks&) = delete;
  HostLinks& operator=(const HostLinks&) = delete;

  // Makes a link at the host path `link` to the folder `target`.
  void add(const std::string& link, const std::string& target);

 private:
  std::vector<std::string> links_;
};

// Attributes that every file has here, whatever is set.
[[nodiscard]] std::uint32_t constant_attributes_of_host();

}  // namespace quillvane
