// Reference counting for the objects of the platform that are implemented here.
#pragma once

#include "platform/system.h"

namespace tolva::platform {

/// The interface of a counted object that has no other.
class Counted {
 public:
  Counted() = default;
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  virtual ULONG AddRef() noexcept = 0;
  virtual ULONG Release() noexcept = 0;

 protected:
  virtual ~Counted() = default;
};

/// Implements the counting of `Interface`. A new object has one reference, which belongs to its
/// creator. Not thread-safe.
template <class Interface = Counted>
class RefCounted : public Interface {
 public:
  ULONG AddRef() noexcept final { return ++references_; }

  ULONG Release() noexcept final {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  ULONG references_ = 1;
};

}  // namespace tolva::platform
