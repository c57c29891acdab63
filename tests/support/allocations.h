// Every use of `operator new` in the test program, counted. Not on Windows, where the standard
// library is another module and does not notice that the operators have been replaced.
#pragma once

#if !defined(_WIN32)

#include <cstddef>
#include <new>

namespace tolva::test {

struct AllocationCount {
  std::size_t calls = 0;
  std::size_t bytes = 0;  ///< held now
  std::size_t peak_bytes = 0;
};

AllocationCount CountAllocations();

/// Starts the peak anew from what is held now.
void ResetPeak();

/// While it lives, the n-th allocation from its making on fails (0: the next), and every later one
/// too if `and_later`.
class FailingAllocations {
 public:
  explicit FailingAllocations(std::size_t n, bool and_later = false);
  FailingAllocations(const FailingAllocations&) = delete;
  FailingAllocations& operator=(const FailingAllocations&) = delete;
  ~FailingAllocations();
};

/// Whether an operation runs out of memory when the n-th allocation fails.
template <class Operation>
bool RunsOutOfMemory(std::size_t n, bool and_later, Operation operation) {
  try {
    const FailingAllocations failing(n, and_later);
    operation();
  } catch (const std::bad_alloc&) {
    return true;
  }
  return false;
}

}  // namespace tolva::test

#endif
