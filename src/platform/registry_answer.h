// What the registry answers: a value, that there is none, or that it could not be asked.
//
// A registry that is locked by another program, that denies the rights or whose disk fails is not
// an empty one. Who reads something in order to write it back must look at failed() and not write
// then: it would replace what it could not see.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace quillvane {

// The answer of a read, used as a std::optional: empty where nothing is there, and where the read
// failed.
template <typename T>
class RegistryRead {
 public:
  RegistryRead(T value) : value_(std::move(value)) {}
  RegistryRead(std::nullopt_t /*absent*/) {}
  // `problem` says in a few words what hindered it ("is locked by another program").
  [[nodiscard]] static RegistryRead failure(const std::string& problem) {
    RegistryRead read(std::nullopt);
    read.problem_ = problem;
    return read;
  }

  [[nodiscard]] bool has_value() const { return value_.has_value(); }
  explicit operator bool() const { return has_value(); }
  const T& operator*() const& { return *value_; }
  T& operator*() & { return *value_; }
  T&& operator*() && { return *std::move(value_); }
  const T* operator->() const { return &*value_; }
  T* operator->() { return &*value_; }

  [[nodiscard]] bool failed() const { return !problem_.empty(); }
  [[nodiscard]] const std::string& problem() const { return problem_; }

  friend bool operator==(const RegistryRead&, const RegistryRead&) = default;

 private:
  std::optional<T> value_;
  std::string problem_;
};

// The answer of a write, used as a bool: whether it took effect.
class [[nodiscard]] RegistryWrite {
 public:
  RegistryWrite() = default;
  [[nodiscard]] static RegistryWrite failure(const std::string& problem) {
    RegistryWrite write;
    write.problem_ = problem;
    return write;
  }

  operator bool() const { return problem_.empty(); }
  [[nodiscard]] const std::string& problem() const { return problem_; }

 private:
  std::string problem_;
};

}  // namespace quillvane
