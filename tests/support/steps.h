// A bound for loops over a document: what never ends fails the test instead of stopping it.
#pragma once

#include <gtest/gtest.h>

namespace tolva::test {

class Steps {
 public:
  /// True for more steps than any document of a test has; then false, and the test has failed.
  bool Take() {
    if (++taken_ <= kMost) return true;
    ADD_FAILURE() << "no end after " << kMost << " steps";
    return false;
  }

 private:
  static constexpr int kMost = 20'000'000;

  int taken_ = 0;
};

}  // namespace tolva::test
