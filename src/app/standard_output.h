// Standard output of the process as a stream that knows why it failed.
#pragma once

#include <array>
#include <streambuf>

namespace quillvane {

class StandardOutput final : public std::streambuf {
 public:
  StandardOutput();
  ~StandardOutput() override;  // writes what is left

  // Whether writing failed since nobody reads any more, as behind `quillvane scan | head`.
  [[nodiscard]] bool reader_gone() const { return reader_gone_; }

 protected:
  int_type overflow(int_type c) override;
  int sync() override;

 private:
  static constexpr std::size_t kBytes = 65536;

  std::array<char, kBytes> buffer_;
  bool reader_gone_ = false;
};

}  // namespace quillvane
