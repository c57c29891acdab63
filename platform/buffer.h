// A growing array of bytes, characters and other plain values.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>

namespace tolva::platform {

/// Like std::vector<T>, but new items are not initialised before they are written. An emptied
/// buffer keeps its memory for the next items, up to a certain size.
template <class T>
class Buffer {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  T* data() noexcept { return items_.get(); }
  const T* data() const noexcept { return items_.get(); }
  std::size_t size() const noexcept { return size_; }
  std::size_t capacity() const noexcept { return capacity_; }

  /// Makes room for `count` more items and returns where to write them. `Commit` then adds those
  /// that have been written.
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

  /// Removes all but the first `size` items.
  void Truncate(std::size_t size) noexcept { size_ = size; }

  /// Removes all items. Releases the memory if it is large.
  void Clear() noexcept {
    size_ = 0;
    if (capacity_ > kBytesKept / sizeof(T)) Release();
  }

  /// Removes all items and releases the memory.
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
