// How the message catalogue departs from what all documents do, and how deep it may be.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/capabilities.h"
#include "support/fragments.h"

namespace tolva::test {
namespace {

using namespace MessageConf;

TEST(MessageCatalogue, JudgesFragments) {
  const std::wstring no_text = L"XMLManager: read required string content failed. element:Content";
  const std::wstring no_description =
      L"XMLManager: read require element failed. element:Description";
  constexpr std::string_view kFresh =
      "<Message ID=\"0\"><Content/><Description></Description></Message>";
  ExpectAll({
      {Make<Message_CreateNewInstance>,
       L"<Message ID='7'><Description>Blocked</Description><Content/></Message>",
       0,
       {},
       "<Message ID=\"7\"><Content/><Description>Blocked</Description></Message>"},
      {Make<Message_CreateNewInstance>,
       L"<Message ID='7'><Content> </Content><Description>d</Description></Message>",
       0,
       {},
       "<Message ID=\"7\"><Content/><Description>d</Description></Message>"},
      {Make<Message_CreateNewInstance>,
       L"<Message ID='7'><Description/><Content>x</Content></Message>",
       -101,
       {no_text, no_description},
       kFresh},
      {Make<Message_CreateNewInstance>,
       L"<Message ID='7'/>",
       -101,
       {L"XMLManager: sub-element Content is missing"},
       kFresh},
      {Make<Description_CreateNewInstance>,
       L"<Description> </Description>",
       -102,
       {no_text},
       "<Description></Description>"},

      // A text ends at the first end tag, whichever it is: what stands behind an element within a
      // text is taken for children of the message.
      {Make<Message_CreateNewInstance>,
       L"<Message ID='1'><Content>a<b>c</b></Content><Description>d</Description></Message>",
       -101,
       {L"XMLManager: sub-element Description is missing"},
       kFresh},
      {Make<Message_CreateNewInstance>,
       L"<Message ID='1'><Content>a<b/>c</Content><Description>d</Description></Message>",
       0,
       {},
       "<Message ID=\"1\"><Content>a</Content><Description>d</Description></Message>"},
      {Make<Message_CreateNewInstance>,
       L"<Message ID='1'><Description>d</Description><Content><!-- c -->x</Content></Message>",
       0,
       {},
       "<Message ID=\"1\"><Content> c </Content><Description>d</Description></Message>"},

      // Messages and further catalogues may alternate.
      {Make<EndPointMessage_CreateNewInstance>,
       L"<EndPointMessage SchemaVersion='1'>"
       L"<EndpointLocalMsg/><Message ID='1'><Content/><Description>a</Description></Message>"
       L"<EndpointLocalMsg><EndPointMessage SchemaVersion='2' Language=''/></EndpointLocalMsg>"
       L"<Message ID='2'><Content/><Description>b</Description></Message></EndPointMessage>",
       0,
       {},
       "<EndPointMessage SchemaVersion=\"1\"><Message ID=\"1\"><Content/>"
       "<Description>a</Description></Message><Message ID=\"2\"><Content/>"
       "<Description>b</Description></Message><EndpointLocalMsg></EndpointLocalMsg>"
       "<EndpointLocalMsg><EndPointMessage SchemaVersion=\"2\" Language=\"\"></EndPointMessage>"
       "</EndpointLocalMsg></EndPointMessage>"},
      {Make<EndPointMessage_CreateNewInstance>,
       L"<EndPointMessage SchemaVersion='1'><EndpointLocalMsg><EndPointMessage/>"
       L"</EndpointLocalMsg></EndPointMessage>",
       -101,
       {L"XMLManager: read required dword/bool Attribute failed. element:EndPointMessage, "
        L"attr:SchemaVersion",
        L"XMLManager: read  multiple element failed. element:EndPointMessage",
        L"XMLManager: read  multiple element failed. element:EndpointLocalMsg"},
       "<EndPointMessage SchemaVersion=\"0\"></EndPointMessage>"},
  });
}

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
    std::wstring text;
    for (int i = 0; i < levels; ++i) {
      text += i % 2 == 0 ? L"<EndPointMessage SchemaVersion='1'>" : L"<EndpointLocalMsg>";
    }
    for (int i = levels; i-- > 0;) {
      text += i % 2 == 0 ? L"</EndPointMessage>" : L"</EndpointLocalMsg>";
    }
    return text;
  };
  const std::unique_ptr<IEndPointMessage> root(EndPointMessage_CreateNewInstance());
  EXPECT_EQ(ReadText(*root, document(255)), 0);
  EXPECT_EQ(DepthOf(*root), 128U);
  const std::unique_ptr<IEndPointMessage> copy(EndPointMessage_CreateNewInstance());
  copy->CopyFrom(*root);
  EXPECT_EQ(WriteText(*copy), WriteText(*root));

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
