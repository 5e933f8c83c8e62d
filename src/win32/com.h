// Owner type for COM interfaces. Windows only.
#pragma once

#include <unknwn.h>

#include <utility>

namespace tidewell {

template <typename Interface>
class ComPointer {
 public:
  ComPointer() = default;
  // Takes over a reference.
  explicit ComPointer(Interface* pointer) : pointer_(pointer) {}
  ComPointer(ComPointer&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ComPointer& operator=(ComPointer&& other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }
  ~ComPointer() {
    if (pointer_) pointer_->Release();
  }

  Interface* Get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  // Where a function is to put its answer; nothing is owned before.
  Interface** Put() { return &pointer_; }
  void** PutVoid() { return reinterpret_cast<void**>(&pointer_); }

 private:
  Interface* pointer_ = nullptr;
};

}  // namespace tidewell
