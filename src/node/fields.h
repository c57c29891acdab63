// What the classes of elements are made of: fields whose types say how often something occurs.
//
//   DWORD x_;                      required number or ENUM attribute
//   std::wstring x_;               required string attribute
//   Optional<T> x_;                optional attribute
//   CY y_;                         required child
//   OptionalChild<CY> y_;          optional child
//   LazyChild<CY> y_;              optional child that is large, in an element that occurs often
//   ChildList<CY> y_;              repeated child
//
// All are values: copying a class copies everything below it.
#pragma once

#include <tolva/node/node.h>
#include <tolva/types.h>

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace tolva::node {

/// Copies a node's fields; `from` may be the node itself or one below it. When memory runs out,
/// `to` is as it was.
template <class C>
void Assign(C& to, const C& from) {
  if (&to == &from) return;
  C copy(from);
  to = std::move(copy);
}

/// Stores a value where a caller wants it; null: the caller only asks.
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

/// An optional child, and whether it is present. The child is there either way.
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

  // The forms of the accessors of the presence flag alone, which keeps any value that is not 0.

  ConfigResult GetPresent(DWORD* out) const { return Store(present, out); }
  ConfigResult SetPresent(const DWORD* value) {
    present = value == nullptr ? 0 : *value;
    return kSuccess;
  }

  C child;
  DWORD present = 0;
};

/// An optional child that is made when it is first needed, and kept from then on. An element that
/// occurs often and mostly goes without the child is small with it.
template <class C>
class LazyChild {
 public:
  using Interface = typename C::Interface;

  LazyChild() = default;
  LazyChild(const LazyChild& other)
      : child_(other.child_ == nullptr ? nullptr : std::make_unique<C>(*other.child_)),
        present_(other.present_) {}
  LazyChild(LazyChild&&) noexcept = default;
  LazyChild& operator=(const LazyChild& other) { return *this = LazyChild(other); }
  LazyChild& operator=(LazyChild&& other) noexcept {
    // A child stays where it is: callers may have its address.
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

  /// Null while the child has not been made. A child that is present has been.
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

/// A repeated child, as far as it can be handled without knowing its class.
class ItemList {
 public:
  virtual std::size_t Size() const = 0;
  virtual const IElement& Item(std::size_t index) const = 0;

  /// Adds an item with default values, which are those that Clear gives it.
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

/// The items of a repeated child, in order. A class that holds items of a class not yet complete,
/// as in a recursive document, names their interface `I`.
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
  ChildList& operator=(const ChildList& other) {
    if (this != &other) items_ = std::move(ChildList(other).items_);
    return *this;
  }
  ChildList& operator=(ChildList&&) noexcept = default;
  ~ChildList() = default;

  // The forms of the accessors of a repeated child.

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
