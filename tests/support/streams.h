// Streams that behave as a test wants them to.
#pragma once

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

#include "platform/system.h"

namespace tolva::test {

using namespace platform;

/// What the streams below share: they live on the test's stack, and count their references.
class StackStream : public ISequentialStream {
 public:
#if defined(_WIN32)
  HRESULT QueryInterface(REFIID id, void** object) override {
    const bool known = id == __uuidof(IUnknown) || id == __uuidof(ISequentialStream);
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
#endif
  ULONG AddRef() noexcept override { return ++references; }
  ULONG Release() noexcept override { return --references; }
  HRESULT Read(void*, ULONG, ULONG*) noexcept override { return E_NOTIMPL; }
  HRESULT Write(const void*, ULONG, ULONG*) noexcept override { return E_NOTIMPL; }

  ULONG references = 1;
};

/// Gives out `text`, at most `block` bytes at a time; fails instead of reading past `fail_at`, and
/// when no reads are left.
class TextStream final : public StackStream {
 public:
  explicit TextStream(std::string_view text,
                      std::size_t block = std::numeric_limits<std::size_t>::max())
      : text_(text), block_(block) {}

  HRESULT Read(void* buffer, ULONG size, ULONG* count) noexcept override {
    *count = 0;
    if (at_ >= fail_at || --reads_left < 0) return E_FAIL;
    const std::size_t left = std::min(text_.size(), fail_at) - at_;
    const std::size_t given = std::min({left, block_, static_cast<std::size_t>(size)});
    if (given != 0) std::memcpy(buffer, text_.data() + at_, given);
    at_ += given;
    *count = static_cast<ULONG>(given);
    return given == size ? S_OK : S_FALSE;
  }

  std::size_t fail_at = std::numeric_limits<std::size_t>::max();
  int reads_left = std::numeric_limits<int>::max();

 private:
  std::string_view text_;
  std::size_t block_;
  std::size_t at_ = 0;
};

/// Keeps what is written, up to `capacity` bytes: then the disk is full.
class SinkStream final : public StackStream {
 public:
  HRESULT Write(const void* buffer, ULONG size, ULONG* count) noexcept override {
    const std::size_t room = capacity - std::min(capacity, text.size());
    const std::size_t taken = std::min<std::size_t>(room, size);
    text.append(static_cast<const char*>(buffer), taken);
    *count = static_cast<ULONG>(taken);
    return taken == size ? S_OK : HRESULT_FROM_WIN32(ERROR_DISK_FULL);
  }

  std::string text;
  std::size_t capacity = std::numeric_limits<std::size_t>::max();
};

}  // namespace tolva::test
