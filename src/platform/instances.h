// What the instances of the program that work on one machine tell each other.
#pragma once

#include <memory>

namespace quillvane {

class Instances {
 public:
  // Kept until it is let go, or until the process ends, however it does.
  using Hold = std::shared_ptr<const void>;

  virtual ~Instances() = default;

  // Tells the others that this instance is cleaning. Several may at a time. Null when it could not
  // be told.
  [[nodiscard]] virtual Hold announce_cleaning() = 0;

  // Keeps cleanings from beginning: announce_cleaning waits a while for it. Null when an instance
  // is cleaning, this one included, and when that could not be found out.
  [[nodiscard]] virtual Hold hold_off_cleaning() = 0;
};

}  // namespace quillvane
