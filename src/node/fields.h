// The fields of element classes. The type of a field says how often the thing occurs.
//
//   DWORD x_;                      required number or ENUM attribute
//   std::wstring x_;               required string attribute
//   Optional<T> x_;                optional attribute
//   CY y_;                         required child
//   OptionalChild<CY> y_;          optional child
//   LazyChild<CY> y_;              optional child, created on first use
//   ChildList<CY> y_;              repeated child
//
// All of them are values: copying a class copies everything below it.
#pragma once

#include <tolva/node/node.h>
#include <tolva/types.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace tolva::node {

/// Copies a node's fields. `from` may be `to` itself or a node below it. `to` is unchanged if
/// memory runs out.
template <class C>
void Assign(C& to, const C& from) {
  if (&to == &from) return;
  C copy(from);
  to = std::move(copy);
}

/// Stores a value in an out parameter, which may be null.
template <class T>
ConfigResult Store(const T& value, T* out) {
  if (out != nullptr) *out = value;
  return kSuccess;
}

/// The value of an optional attribute, and whether it is present.
template <class T>
struct Optional {
  ConfigResult Get(T* out) const { return present == 0 ? kAbsent : Store(value, out); }

  ConfigResult Set(const T* new_value) {
    if (new_value == nullptr) {
      T none{};
      std::swap(value, none);
      present = 0;
    } else {
      value = *new_value;
      present = 1;
    }
    return kSuccess;
  }

  T value{};
  DWORD present = 0;
};

/// An optional child, and whether it is present. The object exists either way.
template <class C>
struct OptionalChild {
  using Interface = typename C::Interface;

  ConfigResult Get(Interface** out) {
    if (present == 0) return kAbsent;
    if (out != nullptr) *out = &child;
    return kSuccess;
  }

  ConfigResult Set(const Interface* new_child) {
    if (new_child != nullptr) Assign(child, static_cast<const C&>(*new_child));
    present = new_child == nullptr ? 0 : 1;
    return kSuccess;
  }

  // Accessors of the presence flag alone. The flag keeps any nonzero value.

  ConfigResult GetPresent(DWORD* out) const { return Store(present, out); }
  ConfigResult SetPresent(const DWORD* value) {
    present = value == nullptr ? 0 : *value;
    return kSuccess;
  }

  C child;
  DWORD present = 0;
};

/// An optional child that is created on first use and then kept. It saves memory where the child is
/// mostly absent, and keeps elements with large children small.
template <class C>
class LazyChild {
 public:
  using Interface = typename C::Interface;

  LazyChild() = default;
  LazyChild(const LazyChild& other)
      : child_(other.child_ == nullptr ? nullptr : std::make_unique<C>(*other.child_)),
        present_(other.present_) {}
  LazyChild(LazyChild&&) noexcept = default;
  LazyChild& operator=(const LazyChild&) = delete;  // Assign copies
  LazyChild& operator=(LazyChild&& other) noexcept {
    // Callers may hold the address of an existing child, so it stays where it is.
    if (child_ == nullptr) {
      child_ = std::move(other.child_);
    } else {
      *child_ = other.child_ == nullptr ? C() : std::move(*other.child_);
    }
    present_ = other.present_;
    return *this;
  }
  ~LazyChild() = default;

  ConfigResult Get(Interface** out) {
    if (present_ == 0) return kAbsent;
    if (out != nullptr) *out = child_.get();
    return kSuccess;
  }

  ConfigResult Set(const Interface* new_child) {
    if (new_child != nullptr) Assign(Made(), static_cast<const C&>(*new_child));
    present_ = new_child == nullptr ? 0 : 1;
    return kSuccess;
  }

  /// Null until the child is created. A child that is present has been created.
  C* Find() { return child_.get(); }
  C& Made() {
    if (child_ == nullptr) child_ = std::make_unique<C>();
    return *child_;
  }
  DWORD& present() { return present_; }

 private:
  std::unique_ptr<C> child_;
  DWORD present_ = 0;
};

/// The items of a repeated child, seen without knowing their class.
class ItemList {
 public:
  virtual std::size_t Size() const = 0;
  virtual const IElement& Item(std::size_t index) const = 0;

  /// Appends an item with default values. They are the values that Clear would give it.
  virtual INode& Append() = 0;
  virtual void RemoveAll() = 0;

 protected:
  ItemList() = default;
  ItemList(const ItemList&) = default;
  ItemList(ItemList&&) = default;
  ItemList& operator=(const ItemList&) = default;
  ItemList& operator=(ItemList&&) = default;
  ~ItemList() = default;
};

/// The items of a repeated child, in order. If `C` is not yet complete, as in a recursive document,
/// the interface `I` has to be named.
///
/// Items are stored in blocks and never move, so their addresses stay valid while other items come
/// and go. The place of a removed item is used again.
template <class C, class I = typename C::Interface>
class ChildList final : public ItemList {
 public:
  using Interface = I;

  ChildList() = default;
  ChildList(const ChildList& other) : ChildList() {
    for (DWORD i = 0; i != other.size_; ++i) Emplace(*other.items_[i]);
  }
  ChildList(ChildList&& other) noexcept { Swap(other); }
  ChildList& operator=(const ChildList&) = delete;  // Assign copies
  ChildList& operator=(ChildList&& other) noexcept {
    ChildList(std::move(other)).Swap(*this);
    return *this;
  }
  ~ChildList() { RemoveAll(); }

  // Accessors of a repeated child.

  DWORD Count() const { return size_; }
  Interface* At(DWORD index) { return index < size_ ? items_[index] : nullptr; }
  ConfigResult Add(const Interface* item) { return InsertAt(Count(), item); }
  ConfigResult InsertAt(DWORD index, const Interface* item) {
    if (item == nullptr) return kFailed;
    Emplace(static_cast<const C&>(*item));
    if (index < size_) std::rotate(items_ + index, items_ + size_ - 1, items_ + size_);
    return kSuccess;
  }
  void RemoveAt(DWORD index) {
    if (index >= size_) return;
    std::rotate(items_ + index, items_ + index + 1, items_ + size_);
    std::destroy_at(items_[--size_]);
  }

  std::size_t Size() const override { return size_; }
  const IElement& Item(std::size_t index) const override { return *items_[index]; }
  INode& Append() override { return Emplace(); }
  void RemoveAll() override {
    if (blocks_ == nullptr) return;
    std::for_each(items_, items_ + size_, [](C* item) { std::destroy_at(item); });
    while (blocks_ != nullptr) ::operator delete(std::exchange(blocks_, blocks_->older));
    items_ = nullptr;
    size_ = capacity_ = table_size_ = 0;
  }

 private:
  /// Followed by a table of items, perhaps, and by room for some items.
  struct alignas(std::max_align_t) Block {
    Block* older;
  };

  /// The first blocks have room for one item more than the one before, or for two if items are
  /// small.
  static constexpr DWORD kFirst = sizeof(C) <= 256 ? 2 : 1;

  /// No block has room for more items. With its header and a small table a block stays below 1 KB:
  /// before it allocates more than that, the GNU C library merges all small free blocks, and the
  /// next small allocations are slow.
  static constexpr DWORD kMostAtOnce = std::max<DWORD>(1, 900 / sizeof(C));

  template <class... Arguments>
  C& Emplace(const Arguments&... arguments) {
    if (size_ == capacity_) Grow();
    C* const item = ::new (static_cast<void*>(items_[size_])) C(arguments...);
    ++size_;
    return *item;
  }

  /// Adds a block. It gets a new table if the present one is too small for the added items.
  void Grow() {
    static_assert(alignof(C) <= alignof(Block));
    const DWORD added = std::min(capacity_ < 8 ? capacity_ + kFirst : capacity_ / 2, kMostAtOnce);
    const DWORD capacity = capacity_ + added;
    const bool has_table = items_ != nullptr && capacity <= table_size_;
    const DWORD table_size = has_table ? 0 : std::max(capacity, 2 * table_size_);
    const std::size_t table_bytes = AlignUp(table_size * sizeof(C*));
    auto* const bytes =
        static_cast<char*>(::operator new(sizeof(Block) + table_bytes + added * sizeof(C)));
    blocks_ = ::new (static_cast<void*>(bytes)) Block{blocks_};
    if (!has_table) {
      C** const table = reinterpret_cast<C**>(bytes + sizeof(Block));
      std::copy(items_, items_ + capacity_, table);
      items_ = table;
      table_size_ = table_size;
    }
    auto* const room = reinterpret_cast<C*>(bytes + sizeof(Block) + table_bytes);
    for (DWORD i = 0; i != added; ++i) items_[capacity_ + i] = room + i;
    capacity_ = capacity;
  }

  static constexpr std::size_t AlignUp(std::size_t size) {
    return (size + alignof(Block) - 1) / alignof(Block) * alignof(Block);
  }

  void Swap(ChildList& other) noexcept {
    std::swap(items_, other.items_);
    std::swap(blocks_, other.blocks_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
    std::swap(table_size_, other.table_size_);
  }

  C** items_ = nullptr;  ///< in order, then the places that are free
  Block* blocks_ = nullptr;
  DWORD size_ = 0;
  DWORD capacity_ = 0;    ///< items that the blocks have room for
  DWORD table_size_ = 0;  ///< entries of the table that `items_` points to
};

}  // namespace tolva::node
