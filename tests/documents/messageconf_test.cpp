// How deep a message catalogue may be.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/capabilities.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

using namespace MessageConf;

/// The catalogue within the catalogue; null: there is none.
IEndPointMessage* Inner(IEndPointMessage& catalogue) {
  IEndpointLocalMsg* const local = catalogue.GetEndpointLocalMsgAt(0);
  return local == nullptr ? nullptr : local->GetEndPointMessageAt(0);
}

/// The number of catalogues within one another.
std::size_t DepthOf(IEndPointMessage& root) {
  std::size_t depth = 0;
  for (IEndPointMessage* catalogue = &root; catalogue != nullptr; catalogue = Inner(*catalogue)) {
    ++depth;
  }
  return depth;
}

TEST(MessageCatalogue, IsReadAsDeepAsTheReaderGoes) {
  TOLVA_REQUIRE(ReaderEndsTruncatedInput);
  const auto document = [](int levels) {
    std::wstring starts;
    std::wstring ends;
    for (int i = 0; i < levels; ++i) {
      starts += i % 2 == 0 ? L"<EndPointMessage SchemaVersion='1'>" : L"<EndpointLocalMsg>";
      ends.insert(0, i % 2 == 0 ? L"</EndPointMessage>" : L"</EndpointLocalMsg>");
    }
    return starts + ends;
  };
  const std::unique_ptr<IEndPointMessage> root(EndPointMessage_CreateNewInstance());
  EXPECT_EQ(ReadText(*root, document(255)), 0);
  EXPECT_EQ(DepthOf(*root), 128U);
  tolvaSetLastError(0);
  EXPECT_EQ(ReadText(*root, document(257)), 0);
  EXPECT_EQ(tolvaGetLastError() & 0xFFFFF000U, 0xC00CE000U) << "the input broke off";
  EXPECT_EQ(DepthOf(*root), 128U);
}

/// Accessors can make a deeper one than a reader takes.
TEST(MessageCatalogue, IsAsDeepAsItsCallersMakeIt) {
  constexpr std::size_t kDepth = 2000;
  const std::unique_ptr<IEndPointMessage> root(EndPointMessage_CreateNewInstance());
  const std::unique_ptr<IEndPointMessage> catalogue(EndPointMessage_CreateNewInstance());
  const std::unique_ptr<IEndpointLocalMsg> local(EndpointLocalMsg_CreateNewInstance());
  IEndPointMessage* innermost = root.get();
  for (std::size_t i = 1; i < kDepth; ++i) {
    ASSERT_EQ(innermost->AddEndpointLocalMsg(local.get()), 0);
    ASSERT_EQ(innermost->GetEndpointLocalMsgAt(0)->AddEndPointMessage(catalogue.get()), 0);
    innermost = Inner(*innermost);
  }
  const std::unique_ptr<IEndPointMessage> copy(EndPointMessage_CreateNewInstance());
  copy->CopyFrom(*root);
  EXPECT_EQ(DepthOf(*copy), kDepth);
  // From below itself: what it copies must not go first.
  root->CopyFrom(*Inner(*root));
  EXPECT_EQ(DepthOf(*root), kDepth - 1);
  copy->Clear();
  EXPECT_EQ(DepthOf(*copy), 1U);
}

}  // namespace
}  // namespace tolva::test
