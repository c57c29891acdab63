// Reference counting for the platform objects that are implemented here.
#pragma once

#include "platform/system.h"

namespace tolva::platform {

/// What a counted object implements that has no other interface.
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

/// Implements the counting of `Interface`. A new object has one reference, its maker's. One thread
/// at a time, like all that the library uses.
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
