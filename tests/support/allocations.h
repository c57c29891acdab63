// Every use of `operator new` in the test program, counted. Not on Windows, where the standard
// library is another module and does not notice that the operators have been replaced.
#pragma once

#if !defined(_WIN32)

#include <cstddef>
#include <functional>

namespace tolva::test {

struct AllocationCount {
  std::size_t calls = 0;
  std::size_t bytes = 0;  ///< held now
  std::size_t peak_bytes = 0;
};

AllocationCount CountAllocations();

/// Starts the peak anew from what is held now.
void ResetPeak();

/// Whether an operation runs out of memory when its n-th allocation fails (0: the first), and every
/// later one too if `and_later`.
bool RunsOutOfMemory(std::size_t n, bool and_later, const std::function<void()>& operation);

}  // namespace tolva::test

#endif
