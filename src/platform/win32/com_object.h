// Owner of one interface of a COM object.
#pragma once

#include <objbase.h>

namespace quillvane {

template <typename Interface>
class ComObject {
 public:
  ComObject() = default;
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;
  ~ComObject() {
    if (object_ != nullptr) object_->Release();
  }

  // Where a call that hands out the interface puts it. Requires: none is held.
  [[nodiscard]] Interface** place() { return &object_; }
  [[nodiscard]] void** untyped_place() { return reinterpret_cast<void**>(&object_); }

  [[nodiscard]] Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }

 private:
  Interface* object_ = nullptr;
};

}  // namespace quillvane
