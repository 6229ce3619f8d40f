#include "view/console/json_text.h"

#include <cmath>
#include <cstdint>

namespace quillvane {

namespace {

// Up to here each whole number is a double of its own.
constexpr double kLargestExact = 9007199254740992.0;

}  // namespace

std::string json_text(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json json_number(double number) {
  if (std::abs(number) <= kLargestExact && std::trunc(number) == number) {
    return static_cast<std::int64_t>(number);
  }
  return number;
}

}  // namespace quillvane
