#include "view/console/scan/progress_line.h"

#include <algorithm>
#include <string>
#include <utility>

#include "view/console/readable.h"

namespace quillvane {

namespace {

constexpr std::chrono::milliseconds kBetweenUpdates{100};

}  // namespace

// The last column stays free: a terminal may begin a new line behind it.
ProgressLine::ProgressLine(std::ostream& out, int columns, Clock clock)
    : out_(out),
      columns_(static_cast<std::size_t>(std::max(columns, 2)) - 1),
      clock_(std::move(clock)),
      next_(clock_()) {}

ProgressLine::~ProgressLine() { clear(); }

void ProgressLine::clear() {
  if (shown_columns_ == 0) return;
  write("");
  out_ << '\r' << std::flush;
}

void ProgressLine::show(std::string_view text) {
  const auto now = clock_();
  if (now < next_) return;
  next_ = now + kBetweenUpdates;
  write(text);
}

void ProgressLine::write(std::string_view text) {
  const std::string line = shortened(printable(text), columns_);
  const std::size_t width = columns_of(line);
  out_ << '\r' << padded(line, shown_columns_) << std::flush;
  shown_columns_ = width;
}

}  // namespace quillvane
