// A growing array without initialisation, for bytes and characters on their way.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>

namespace tolva::platform {

/// Like a std::vector<T>, but what it grows by is not written twice. Keeps its memory when it is
/// emptied, up to a size that is worth keeping.
template <class T>
class Buffer {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  T* data() noexcept { return items_.get(); }
  const T* data() const noexcept { return items_.get(); }
  std::size_t size() const noexcept { return size_; }
  std::size_t capacity() const noexcept { return capacity_; }

  /// Makes room for `count` more items and returns where they go; `Commit` then says how many came.
  T* Room(std::size_t count) {
    if (capacity_ - size_ < count) Grow(size_ + count);
    return items_.get() + size_;
  }

  void Commit(std::size_t count) noexcept { size_ += count; }

  void Append(const T* items, std::size_t count) {
    T* const room = Room(count);
    if (count != 0) std::memcpy(room, items, count * sizeof(T));
    size_ += count;
  }

  void Append(T item) {
    *Room(1) = item;
    ++size_;
  }

  void Truncate(std::size_t size) noexcept { size_ = size; }

  /// Empties the buffer. Memory beyond what is worth keeping is given back.
  void Clear() noexcept {
    size_ = 0;
    if (capacity_ > kBytesKept / sizeof(T)) Release();
  }

  void Release() noexcept {
    items_.reset();
    size_ = 0;
    capacity_ = 0;
  }

 private:
  static constexpr std::size_t kBytesKept = std::size_t{256} * 1024;
  static constexpr std::size_t kSmallest = 64;

  void Grow(std::size_t needed) {
    const std::size_t capacity = std::max({needed, capacity_ * 2, kSmallest});
    auto items = std::make_unique_for_overwrite<T[]>(capacity);
    if (size_ != 0) std::memcpy(items.get(), items_.get(), size_ * sizeof(T));
    items_ = std::move(items);
    capacity_ = capacity;
  }

  std::unique_ptr<T[]> items_;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

}  // namespace tolva::platform
