// The diagnostic callback, which may be replaced at any time.
#include "xml/debug_dump.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace tolva::test {
namespace {

TEST(DebugDump, IsNotCalledWhenItIsRemoved) {
  static std::atomic<int> reports;
  reports = 0;
  std::atomic<bool> is_done = false;
  std::thread other([&is_done] {
    while (!is_done) {
      xml::SetDebugDumpCallback([](const wchar_t*) { ++reports; });
      xml::SetDebugDumpCallback(nullptr);
    }
  });
  for (int i = 0; i < 1'000'000 || reports == 0; ++i) xml::DebugDump(L"");
  is_done = true;
  other.join();
  const int before = reports;
  xml::DebugDump(L"");
  EXPECT_EQ(reports, before);
}

}  // namespace
}  // namespace tolva::test
