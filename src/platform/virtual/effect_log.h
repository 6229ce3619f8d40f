// The outward effects of a run, in their order: what a test or a script asks for afterwards.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace quillvane {

// One effect: its kind ("shell-open") and its particulars in the order they are shown.
struct Effect {
  using Value = std::variant<std::string, std::int64_t, bool, std::vector<std::string>>;

  std::string kind;
  std::vector<std::pair<std::string, Value>> details;

  friend bool operator==(const Effect&, const Effect&) = default;
};

class EffectLog {
 public:
  void add(std::string kind, std::vector<std::pair<std::string, Effect::Value>> details = {}) {
    effects_.push_back({std::move(kind), std::move(details)});
  }

  // The effects since the last call.
  [[nodiscard]] std::vector<Effect> take() { return std::exchange(effects_, {}); }

 private:
  std::vector<Effect> effects_;
};

}  // namespace quillvane
