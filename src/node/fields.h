// The fields of element classes. The type of a field says how often the thing occurs.
//
//   DWORD x_;                      required number or ENUM attribute
//   std::wstring x_;               required string attribute
//   Optional<T> x_;                optional attribute
//   CY y_;                         required child
//   OptionalChild<CY> y_;          optional child
//   LazyChild<CY> y_;              optional child, large and mostly absent
//   ChildList<CY> y_;              repeated child
//
// All of them are values: copying a class copies everything below it.
#pragma once

#include <tolva/node/node.h>
#include <tolva/types.h>

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

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

/// An optional child that is created on first use and then kept. It saves memory in elements that
/// occur often and mostly do without the child.
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
template <class C, class I = typename C::Interface>
class ChildList final : public ItemList {
 public:
  using Interface = I;

  ChildList() = default;
  ChildList(const ChildList& other) : ItemList(other) {
    items_.reserve(other.items_.size());
    for (const auto& item : other.items_) items_.push_back(std::make_unique<C>(*item));
  }
  ChildList(ChildList&&) noexcept = default;
  ChildList& operator=(const ChildList&) = delete;  // Assign copies
  ChildList& operator=(ChildList&&) noexcept = default;
  ~ChildList() = default;

  // Accessors of a repeated child.

  DWORD Count() const { return static_cast<DWORD>(items_.size()); }
  Interface* At(DWORD index) { return index < items_.size() ? items_[index].get() : nullptr; }
  ConfigResult Add(const Interface* item) { return InsertAt(Count(), item); }
  ConfigResult InsertAt(DWORD index, const Interface* item) {
    if (item == nullptr) return kFailed;
    auto copy = std::make_unique<C>(static_cast<const C&>(*item));
    const auto at = index < items_.size() ? items_.begin() + index : items_.end();
    items_.insert(at, std::move(copy));
    return kSuccess;
  }
  void RemoveAt(DWORD index) {
    if (index < items_.size()) items_.erase(items_.begin() + index);
  }

  std::size_t Size() const override { return items_.size(); }
  const IElement& Item(std::size_t index) const override { return *items_[index]; }
  INode& Append() override { return *items_.emplace_back(std::make_unique<C>()); }
  void RemoveAll() override { items_.clear(); }

 private:
  std::vector<std::unique_ptr<C>> items_;
};

}  // namespace tolva::node
