// An open file or folder of the host, closed once. An empty one is a valid object; every call on
// it fails as for a bad descriptor.
#pragma once

#include <unistd.h>

#include <utility>

namespace quillvane {

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { reset(); }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    if (this != &other) {
      reset();
      number_ = std::exchange(other.number_, -1);
    }
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  [[nodiscard]] int number() const { return number_; }
  [[nodiscard]] bool is_open() const { return number_ >= 0; }

 private:
  void reset() {
    if (number_ >= 0) close(number_);
  }

  int number_ = -1;
};

}  // namespace quillvane
