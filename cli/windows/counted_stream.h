// What streams that are implemented here derive from.
#pragma once

#include "platform/system.h"

namespace tolva::cli {

/// Not thread-safe.
class CountedStream : public ISequentialStream {
 public:
  CountedStream() = default;
  CountedStream(const CountedStream&) = delete;
  CountedStream& operator=(const CountedStream&) = delete;

  ULONG AddRef() noexcept final { return ++references_; }

  ULONG Release() noexcept final {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT QueryInterface(REFIID id, void** object) noexcept final {
    const bool is_known = id == __uuidof(IUnknown) || id == __uuidof(ISequentialStream);
    *object = is_known ? this : nullptr;
    if (is_known) AddRef();
    return is_known ? S_OK : E_NOINTERFACE;
  }

 protected:
  virtual ~CountedStream() = default;

 private:
  ULONG references_ = 1;
};

}  // namespace tolva::cli
