// Fragments of documents: what is read of them, what is reported, what is written again.
// tests/tables tries what follows from the tables.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <cstdint>
#include <memory>
#include <string>

#include "support/capabilities.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

/// Null as `written`: the element has its defaults afterwards.
struct Fragment {
  const wchar_t* document;
  const char* written = nullptr;
  Texts reports = {};
  ConfigResult result = 0;
};

template <auto Factory>
void ExpectAll(std::initializer_list<Fragment> fragments) {
  for (const Fragment& one : fragments) {
    SCOPED_TRACE(testing::PrintToString(one.document));
    const std::unique_ptr<node::IElement> node(Factory());
    const std::string written = one.written == nullptr ? WriteText(*node) : one.written;
    Diagnostics diagnostics;
    EXPECT_EQ(ReadText(*node, one.document), one.result);
    EXPECT_EQ(diagnostics.Take(), one.reports);
    EXPECT_EQ(WriteText(*node), written);
  }
}

const std::wstring kNoString = L"XMLManager: read required string content failed. element:Content";
const std::wstring kNoNumber =
    L"XMLManager: read required dword/bool content failed. element:Content";

Texts Missing(const std::wstring& child) {
  return {L"XMLManager: sub-element " + child + L" is missing"};
}

TEST(Fragments, OfTheActiveDirectory) {
  using namespace ClientConfig;
  ExpectAll<ActiveDir_CreateNewInstance>({
      // Unknown elements, comments and text are skipped, and the last of two children counts.
      {L"<ActiveDirectory><!-- c --><x><DefaultDomain/></x><DefaultDomain Name='1st' "
       L"Enabled='1'/><DefaultDomain Name='2nd'>text<y/></DefaultDomain></ActiveDirectory>",
       "<ActiveDirectory><DefaultDomain Enabled=\"0\" Name=\"2nd\"/></ActiveDirectory>"},
      {L"<activeDirectory><DefaultDomain Name='x'/></activeDirectory>", nullptr, {}, -102},
  });
  // Signed numbers saturate, unsigned ones keep their low half.
  ExpectAll<DefaultDomain_CreateNewInstance>({
      {L"<DefaultDomain Enabled='99999999999' Name=''/>",
       "<DefaultDomain Enabled=\"2147483647\" Name=\"\"/>"},
  });
  ExpectAll<NGConfInterface::NGUser_CreateNewInstance>({
      {L"<NGUser Name='' EnableTrayIconMenu='8589934593'/>",
       "<NGUser Name=\"\" EnableTrayIconMenu=\"1\"/>"},
  });
}

TEST(Fragments, OfTexts) {
  using namespace CpsAnalysisDetailsConf;
  // Whatever stands next, but no spaces alone, and no element.
  ExpectAll<name_CreateNewInstance>({
      {L"<name>a &#x62;</name>", "<name>a b</name>"},
      {L"<name><![CDATA[a]]></name>", "<name>a</name>"},
      {L"<name>a<!-- c -->b</name>", "<name>a</name>"},
      {L"<name><!-- c -->b</name>", "<name> c </name>"},
      {L"<name><?p i?>b</name>", "<name>i</name>"},
      {L"<name>a<x>b</x>c</name>", "<name>a</name>"},
      {L"<name> a </name>", "<name> a </name>"},
      {L"<name><x>b</x></name>", nullptr, {kNoString}, -102},
      {L"<name> \n </name>", nullptr, {kNoString}, -102},
      {L"<name></name>", nullptr, {kNoString}, -102},
      {L"<name/>", nullptr, {kNoString}, -102},
      {L"<value>a</value>", nullptr, {}, -102},
  });
  // Of the numbers one is lenient.
  ExpectAll<count_CreateNewInstance>({
      {L"<count/>", nullptr, {kNoNumber}, -102},
      {L"<count>12x</count>", "<count>12</count>"},
      {L"<count>x12</count>", "<count>0</count>"},
      {L"<count> 12</count>", "<count>0</count>"},
      {L"<count>-1</count>", "<count>0</count>"},
      {L"<count>4294967298</count>", "<count>2</count>"},
      {L"<count>99999999999999999999</count>", "<count>4294967295</count>"},
  });
  ExpectAll<numOfMatches_CreateNewInstance>({
      {L"<numOfMatches> </numOfMatches>", nullptr, {kNoNumber}, -102},
      {L"<numOfMatches><![CDATA[]]></numOfMatches>", "<numOfMatches>0</numOfMatches>"},
      {L"<numOfMatches>4294967295</numOfMatches>", "<numOfMatches>4294967295</numOfMatches>"},
  });
  // A message's text ends at the first end tag, whichever it is: what follows an element within it
  // is taken for children of the message.
  ExpectAll<MessageConf::Message_CreateNewInstance>({
      {L"<Message ID='7'><Content> </Content><Description>d</Description></Message>",
       "<Message ID=\"7\"><Content/><Description>d</Description></Message>"},
      {L"<Message ID='1'><Content>a<b>c</b></Content><Description>d</Description></Message>",
       nullptr, Missing(L"Description"), -101},
      {L"<Message ID='1'><Content>a<b/>c</Content><Description>d</Description></Message>",
       "<Message ID=\"1\"><Content>a</Content><Description>d</Description></Message>"},
  });
}

TEST(Fragments, OfChildren) {
  using namespace CpsAnalysisDetailsConf;
  const char* const violation =
      "<violation><name>n</name><numOfMatches>1</numOfMatches><detectedValues></detectedValues>"
      "<customDisplayText></customDisplayText></violation>";
  // They come in any order. The text to show may be absent, and only an empty one is reported. Of
  // several missing children one is reported, in most elements the first.
  ExpectAll<violation_CreateNewInstance>({
      {L"<violation><detectedValues/><numOfMatches>1</numOfMatches><name>n</name></violation>",
       violation},
      {L"<violation><name>n</name><numOfMatches>1</numOfMatches><detectedValues/>"
       L"<customDisplayText></customDisplayText></violation>",
       violation,
       {L"XMLManager: read required string content failed. element:customDisplayText"}},
      {L"<violation/>", nullptr, Missing(L"name"), -101},
  });
  ExpectAll<detectedValue_CreateNewInstance>({
      {L"<detectedValue><location/><context> </context></detectedValue>", nullptr,
       Missing(L"count"), -101},
      {L"<detectedValue><count>1</count></detectedValue>", nullptr, Missing(L"value"), -101},
  });
  ExpectAll<TolvaInterface::ILPPrinter_CreateNewInstance>({
      {L"<ILPPrinter><TrustedPrinters><Printer Name='1'/></TrustedPrinters><TrustedPrinters/>"
       L"</ILPPrinter>",
       "<ILPPrinter><TrustedPrinters></TrustedPrinters></ILPPrinter>"},
  });
}

TEST(Fragments, OfAttributes) {
  ExpectAll<CpsAnalysisDetailsConf::address_CreateNewInstance>({
      {L"<address type='email' value='a'/>",
       nullptr,
       {L"XMLLiteManager: read required ENUM Attribute failed. element:address, attr:type"},
       -101},
  });
  // Telemetry is present, and 0, where a document lacks it.
  ExpectAll<CIConfInterface::ClientSetting_CreateNewInstance>({
      {L"<ClientSetting><UserInterface UISilentMode='' DisplayHTTPSBlockMsg='' "
       L"HTTPSBlockMsgInterval='' DisplayFTPBlockMsg='' FTPBlockMsgInterval='' UITimeout=''/>"
       L"</ClientSetting>",
       "<ClientSetting EnableTelemetry=\"0\"><UserInterface UISilentMode=\"0\" "
       "DisplayHTTPSBlockMsg=\"0\" HTTPSBlockMsgInterval=\"0\" DisplayFTPBlockMsg=\"0\" "
       "FTPBlockMsgInterval=\"0\" UITimeout=\"0\"/></ClientSetting>"},
  });
}

/// Those that XML allows, but for most of the planes beyond the first, and values that need care.
TEST(Fragments, OfEveryCharacter) {
  TOLVA_REQUIRE(WriterEscapes);
  std::wstring all = L"\U00010000\U0001FFFF\U000FFFFF\U0010FFFF";
  for (std::uint32_t c = 0x20; c < 0xFFFE; ++c) {
    if (c < 0xD800 || c > 0xDFFF) all += static_cast<wchar_t>(c);
  }
  using namespace CpsAnalysisDetailsConf;
  const std::unique_ptr<ClientConfig::IDefaultDomain> domain(
      ClientConfig::DefaultDomain_CreateNewInstance());
  const std::unique_ptr<Iname> name(name_CreateNewInstance());
  for (const std::wstring& value :
       {std::wstring(L"\t\r\n"), std::wstring(L" "), std::wstring(L"\r\n x \r"), all}) {
    domain->SetName(&value);
    EXPECT_EQ(ReadFile(*domain, TempFile(WriteFile(*domain)).path()), 0);
    EXPECT_EQ(domain->GetName(), value);
    name->SetContent(&value);
    EXPECT_EQ(ReadFile(*name, TempFile(WriteFile(*name)).path()), 0);
    EXPECT_EQ(name->GetContent(), value);
  }
}

}  // namespace
}  // namespace tolva::test
