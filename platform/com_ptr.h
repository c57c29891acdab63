// An owning pointer to a reference-counted object.
#pragma once

#include <utility>

namespace tolva::platform {

/// Owns one reference to a T; empty when null.
template <class T>
class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(const ComPtr&) = delete;
  ComPtr& operator=(const ComPtr&) = delete;
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPtr& operator=(ComPtr&& other) noexcept {
    if (this != &other) Attach(std::exchange(other.object_, nullptr));
    return *this;
  }
  ~ComPtr() { Reset(); }

  /// Takes over a reference that the caller holds, dropping the earlier one.
  void Attach(T* object) noexcept {
    T* const old = std::exchange(object_, object);
    if (old != nullptr) old->Release();
  }

  /// Adds a reference of its own, dropping the earlier one. `object` may be null.
  void Share(T* object) noexcept {
    if (object != nullptr) object->AddRef();
    Attach(object);
  }

  void Reset() noexcept { Attach(nullptr); }

  /// Where a creating function may store its new reference.
  T** Receive() noexcept {
    Reset();
    return &object_;
  }

  T* Get() const noexcept { return object_; }
  T* operator->() const noexcept { return object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }

 private:
  T* object_ = nullptr;
};

}  // namespace tolva::platform
