#include "node/fields.h"

#include <gtest/gtest.h>

#include <string>

#include "policy/policy.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

using namespace node;
using namespace TolvaInterface;

/// A child that is made when it is needed behaves as one that is always there, and callers may keep
/// its address.
TEST(Fields, MakeALargeChildOnce) {
  Diagnostics ignored;
  CLocation location;
  IILPProtection* protection = nullptr;
  EXPECT_EQ(location.GetILPProtection(&protection), 1);
  ASSERT_EQ(ReadText(location,
                     L"<Location Name=''><ILPProtection><ILPEmail Sid='4'/>"
                     L"</ILPProtection></Location>"),
            0);
  ASSERT_EQ(location.GetILPProtection(&protection), 0);
  const std::string written = WriteText(*protection);

  CLocation copy(location);
  IILPProtection* copied = nullptr;
  ASSERT_EQ(copy.GetILPProtection(&copied), 0);
  EXPECT_NE(copied, protection);
  EXPECT_EQ(WriteText(copy), WriteText(location));

  const auto is_kept = [&] { return WriteText(*protection) == written; };
  EXPECT_EQ(ReadText(location,
                     L"<Location Name=''><ILPProtection/><ILPProtection "
                     L"EnableTamperProtection='x'/></Location>"),
            -101);
  EXPECT_EQ(location.GetILPProtection(nullptr), 1);
  EXPECT_FALSE(is_kept());
  location.CopyFrom(copy);
  EXPECT_TRUE(is_kept());
  location.CopyFrom(CLocation());
  EXPECT_FALSE(is_kept());
  EXPECT_EQ(location.SetILPProtection(copied), 0);
  EXPECT_TRUE(is_kept());
  EXPECT_EQ(location.SetILPProtection(nullptr), 0);
  EXPECT_EQ(location.GetILPProtection(nullptr), 1);
  EXPECT_TRUE(is_kept());
}

TEST(Fields, KeepLists) {
  ChildList<CExcludeDomain> list;
  const auto add = [&list](const std::wstring& url, DWORD at) {
    CExcludeDomain domain;
    domain.SetURL(&url);
    EXPECT_EQ(list.InsertAt(at, &domain), 0);
  };
  const auto all = [&list] {
    std::wstring text;
    for (DWORD i = 0; i < list.Count(); ++i) {
      std::wstring url;
      list.At(i)->GetURL(&url);
      text += url;
    }
    return text;
  };
  list.RemoveAt(0);
  add(L"b", 5);  // into an empty list
  add(L"a", 0);
  add(L"d", 0xFFFFFFFF);
  add(L"c", 2);
  EXPECT_EQ(list.Add(list.At(0)), 0);  // one of its own
  EXPECT_EQ(list.InsertAt(0, list.At(3)), 0);
  EXPECT_EQ(all(), L"dabcda");
  EXPECT_EQ(list.Add(nullptr), -101);
  list.RemoveAt(0);
  list.RemoveAt(4);
  EXPECT_EQ(all(), L"abcd");
}

}  // namespace
}  // namespace tolva::test
