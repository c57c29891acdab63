#include "support/allocations.h"

#if !defined(_WIN32)

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

// Atomic, since the test runner has threads of its own on some systems.
std::atomic<std::size_t> calls = 0;
std::atomic<std::size_t> bytes = 0;
std::atomic<std::size_t> peak_bytes = 0;

constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();
std::atomic<std::size_t> calls_until_failure = kNever;
std::atomic<bool> later_calls_fail = false;

/// In front of each block, its size.
constexpr std::size_t kHeader = alignof(std::max_align_t);

bool Fails() {
  const std::size_t left = calls_until_failure;
  if (left == kNever) return false;
  if (left == 0) {
    if (!later_calls_fail) calls_until_failure = kNever;
    return true;
  }
  calls_until_failure = left - 1;
  return false;
}

void* Allocate(std::size_t size) noexcept {
  if (Fails()) return nullptr;
  auto* const block = static_cast<char*>(std::malloc(kHeader + size));
  if (block == nullptr) return nullptr;
  *reinterpret_cast<std::size_t*>(block) = size;
  ++calls;
  const std::size_t held = bytes += size;
  if (held > peak_bytes) peak_bytes = held;
  return block + kHeader;
}

void Free(void* object) noexcept {
  if (object == nullptr) return;
  auto* const block = static_cast<char*>(object) - kHeader;
  bytes -= *reinterpret_cast<std::size_t*>(block);
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) {
  void* const object = Allocate(size);
  if (object == nullptr) throw std::bad_alloc();
  return object;
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* object) noexcept { Free(object); }
void operator delete(void* object, std::size_t) noexcept { Free(object); }
void operator delete[](void* object) noexcept { Free(object); }
void operator delete[](void* object, std::size_t) noexcept { Free(object); }

namespace tolva::test {

AllocationCount CountAllocations() { return {calls, bytes, peak_bytes}; }

void ResetPeak() { peak_bytes = bytes.load(); }

bool RunsOutOfMemory(std::size_t n, bool and_later, const std::function<void()>& operation) {
  later_calls_fail = and_later;
  calls_until_failure = n;
  bool has_failed = false;
  try {
    operation();
  } catch (const std::bad_alloc&) {
    has_failed = true;
  } catch (...) {
    calls_until_failure = kNever;
    throw;
  }
  calls_until_failure = kNever;
  return has_failed;
}

}  // namespace tolva::test

#endif
