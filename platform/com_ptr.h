// An owning pointer to a reference-counted object.
#pragma once

#include <utility>

namespace tolva::platform {

/// Owns one reference to a T, or is null.
template <class T>
class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(const ComPtr&) = delete;
  ComPtr& operator=(const ComPtr&) = delete;
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPtr& operator=(ComPtr&& other) noexcept {
    Attach(std::exchange(other.object_, nullptr));
    return *this;
  }
  ~ComPtr() { Reset(); }

  /// Takes ownership of a reference that the caller holds. Releases the previous one.
  void Attach(T* object) noexcept {
    T* const old = std::exchange(object_, object);
    if (old != nullptr) old->Release();
  }

  /// Adds a reference to `object`, which may be null. Releases the previous one.
  void Share(T* object) noexcept {
    if (object != nullptr) object->AddRef();
    Attach(object);
  }

  void Reset() noexcept { Attach(nullptr); }

  /// The address at which a function stores a new reference. Releases the previous one.
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
