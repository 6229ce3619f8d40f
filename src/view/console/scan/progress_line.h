// One line on a terminal that shows what is being looked at, written over itself.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <ostream>
#include <string_view>

namespace quillvane {

class ProgressLine {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  // `columns` is the width of the terminal behind `out`, which must outlive this.
  ProgressLine(std::ostream& out, int columns, Clock clock = std::chrono::steady_clock::now);
  // Erases the line.
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  // Shows the text, shortened to the width. May be called at any rate: most calls are passed over,
  // so that the terminal doesn't slow the work down.
  void show(std::string_view text);

  // Erases the line, so that something else can be written in its place.
  void clear();

 private:
  void write(std::string_view text);

  std::ostream& out_;
  std::size_t columns_;
  Clock clock_;
  std::chrono::steady_clock::time_point next_;
  std::size_t shown_columns_ = 0;  // to be overwritten
};

}  // namespace quillvane
