// How the analysis details depart from what all documents do.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/capabilities.h"
#include "support/fragments.h"

namespace tolva::test {
namespace {

using namespace CpsAnalysisDetailsConf;

const std::wstring kNoString = L"XMLManager: read required string content failed. element:Content";
const std::wstring kNoNumber =
    L"XMLManager: read required dword/bool content failed. element:Content";

TEST(AnalysisDetails, JudgeFragments) {
  ExpectAll({
      // What a text is: whatever stands next, but no blanks alone, and no element.
      {Make<name_CreateNewInstance>, L"<name>a &#x62;</name>", 0, {}, "<name>a b</name>"},
      {Make<name_CreateNewInstance>, L"<name><![CDATA[a]]></name>", 0, {}, "<name>a</name>"},
      {Make<name_CreateNewInstance>, L"<name>a<!-- c -->b</name>", 0, {}, "<name>a</name>"},
      {Make<name_CreateNewInstance>, L"<name><!-- c -->b</name>", 0, {}, "<name> c </name>"},
      {Make<name_CreateNewInstance>, L"<name><?p i?>b</name>", 0, {}, "<name>i</name>"},
      {Make<name_CreateNewInstance>, L"<name>a<x>b</x>c</name>", 0, {}, "<name>a</name>"},
      {Make<name_CreateNewInstance>, L"<name><x>b</x></name>", -102, {kNoString}, "<name></name>"},
      {Make<name_CreateNewInstance>, L"<name> \n </name>", -102, {kNoString}, "<name></name>"},
      {Make<name_CreateNewInstance>, L"<name></name>", -102, {kNoString}, "<name></name>"},
      {Make<name_CreateNewInstance>, L"<name/>", -102, {kNoString}, "<name></name>"},
      {Make<name_CreateNewInstance>, L"<value>a</value>", -102, {}, "<name></name>"},
      {Make<value_CreateNewInstance>, L"<value/>", -102, {kNoString}, "<value></value>"},
      {Make<value_CreateNewInstance>, L"<value> a </value>", 0, {}, "<value> a </value>"},

      // Numbers, the one lenient and the other not.
      {Make<count_CreateNewInstance>, L"<count/>", -102, {kNoNumber}, "<count>0</count>"},
      {Make<count_CreateNewInstance>, L"<count>12x</count>", 0, {}, "<count>12</count>"},
      {Make<count_CreateNewInstance>, L"<count>x12</count>", 0, {}, "<count>0</count>"},
      {Make<count_CreateNewInstance>, L"<count> 12</count>", 0, {}, "<count>0</count>"},
      {Make<count_CreateNewInstance>, L"<count>-1</count>", 0, {}, "<count>0</count>"},
      {Make<count_CreateNewInstance>, L"<count>4294967298</count>", 0, {}, "<count>2</count>"},
      {Make<count_CreateNewInstance>,
       L"<count>99999999999999999999</count>",
       0,
       {},
       "<count>4294967295</count>"},
      {Make<numOfMatches_CreateNewInstance>,
       L"<numOfMatches> </numOfMatches>",
       -102,
       {kNoNumber},
       "<numOfMatches>0</numOfMatches>"},
      {Make<numOfMatches_CreateNewInstance>,
       L"<numOfMatches>12x</numOfMatches>",
       -101,
       {L"XMLManager: read required dword/bool content failed. element:numOfMatches"},
       "<numOfMatches>0</numOfMatches>"},
      {Make<numOfMatches_CreateNewInstance>,
       L"<numOfMatches><![CDATA[]]></numOfMatches>",
       0,
       {},
       "<numOfMatches>0</numOfMatches>"},
      {Make<numOfMatches_CreateNewInstance>,
       L"<numOfMatches>4294967295</numOfMatches>",
       0,
       {},
       "<numOfMatches>4294967295</numOfMatches>"},

      // A violation without the text to show has none, and says so only of an empty one.
      {Make<violation_CreateNewInstance>,
       L"<violation><detectedValues/><numOfMatches>1</numOfMatches><name>n</name></violation>",
       0,
       {},
       "<violation><name>n</name><numOfMatches>1</numOfMatches><detectedValues></detectedValues>"
       "<customDisplayText></customDisplayText></violation>"},
      {Make<violation_CreateNewInstance>,
       L"<violation><name>n</name><numOfMatches>1</numOfMatches><detectedValues/>"
       L"<customDisplayText></customDisplayText></violation>",
       0,
       {L"XMLManager: read required string content failed. element:customDisplayText"},
       "<violation><name>n</name><numOfMatches>1</numOfMatches><detectedValues></detectedValues>"
       "<customDisplayText></customDisplayText></violation>"},

      // Children that are missing, the first first; and one that fails with -102.
      {Make<violation_CreateNewInstance>,
       L"<violation/>",
       -101,
       {L"XMLManager: sub-element name is missing"},
       "<violation><name></name><numOfMatches>0</numOfMatches><detectedValues></detectedValues>"
       "<customDisplayText></customDisplayText></violation>"},
      {Make<violation_CreateNewInstance>,
       L"<violation><name/></violation>",
       -101,
       {kNoString, L"XMLManager: read require element failed. element:name"},
       "<violation><name></name><numOfMatches>0</numOfMatches><detectedValues></detectedValues>"
       "<customDisplayText></customDisplayText></violation>"},
      {Make<detectedValue_CreateNewInstance>,
       L"<detectedValue><location/><context> </context></detectedValue>",
       -101,
       {L"XMLManager: sub-element count is missing"},
       "<detectedValue><value></value><count>0</count></detectedValue>"},
      {Make<detectedValue_CreateNewInstance>,
       L"<detectedValue><count>1</count></detectedValue>",
       -101,
       {L"XMLManager: sub-element value is missing"},
       "<detectedValue><value></value><count>0</count></detectedValue>"},
      {Make<analysisDetails_CreateNewInstance>,
       L"<analysisDetails transactionID='1' version=''/>",
       0,
       {},
       "<analysisDetails transactionID=\"1\" version=\"\"></analysisDetails>"},

      // ENUM texts.
      {Make<address_CreateNewInstance>,
       L"<address type='Other' value='a'/>",
       0,
       {},
       "<address type=\"Other\" value=\"a\"/>"},
      {Make<address_CreateNewInstance>,
       L"<address type='email' value='a'/>",
       -101,
       {L"XMLLiteManager: read required ENUM Attribute failed. element:address, attr:type"},
       "<address type=\"EmailAddress\" value=\"\"/>"},
  });
}

/// An optional leaf has a flag of its own, and its parent has one for it.
TEST(AnalysisDetails, HaveTwoFlagsForAnOptionalLeaf) {
  const std::unique_ptr<IdetectedValue> parent(detectedValue_CreateNewInstance());
  ASSERT_EQ(ReadText(*parent,
                     L"<detectedValue><value>v</value><count>1</count><location/>"
                     L"<context>c</context></detectedValue>"),
            0);
  Ilocation* location = nullptr;
  ASSERT_EQ(parent->GetLocation(&location), 0) << "the element was there";
  std::wstring text = L"untouched";
  EXPECT_EQ(location->GetContent(&text), 1) << "its text was not";
  EXPECT_EQ(text, L"untouched");
  const std::string without =
      "<detectedValue><value>v</value><count>1</count><context>c</context></detectedValue>";
  EXPECT_EQ(WriteText(*parent), without);

  text = L"here";
  EXPECT_EQ(location->SetContent(&text), 0);
  EXPECT_EQ(WriteText(*parent),
            "<detectedValue><value>v</value><count>1</count><location>here</location>"
            "<context>c</context></detectedValue>");

  Diagnostics diagnostics;
  EXPECT_EQ(parent->SetLocation(nullptr), 0);
  EXPECT_EQ(parent->GetLocation(&location), 1);
  EXPECT_EQ(WriteText(*parent), without);
  EXPECT_EQ(diagnostics.Take(), Texts{});
}

TEST(AnalysisDetails, KeepTheTypeWhenTheyAreCleared) {
  const DWORD other = 2;
  const DWORD beyond = 77;
  const std::wstring text = L"x";
  const std::unique_ptr<IextractedContent> content(extractedContent_CreateNewInstance());
  content->SetType(&other);
  content->SetValue(&text);
  content->Clear();
  EXPECT_EQ(WriteText(*content), "<extractedContent type=\"Other\" value=\"\"/>");
  Diagnostics diagnostics;
  EXPECT_EQ(ReadText(*content, L"<extractedContent value='x'/>"), -101);
  EXPECT_EQ(diagnostics.Take(),
            Texts{L"XMLLITEManager: read required ENUM Attribute failed. element:extractedContent, "
                  L"attr:type"});
  EXPECT_EQ(content->GetType(), 2U);

  const std::unique_ptr<Iaddress> address(address_CreateNewInstance());
  address->SetType(&beyond);
  address->Clear();
  EXPECT_EQ(WriteText(*address), "<address type=\"\" value=\"\"/>");
  EXPECT_EQ(ReadText(*address, L"<address type='Other'/>"), -101);
  EXPECT_EQ(address->GetType(), 1U) << "assigned before the read failed";
  EXPECT_EQ(diagnostics.Take(),
            Texts{L"XMLManager: read required ENUM Attribute failed. element:address, attr:value"});

  const std::unique_ptr<Iaddress> copy(address_CreateNewInstance());
  copy->CopyFrom(*address);
  EXPECT_EQ(copy->GetType(), 1U);
}

TEST(AnalysisDetails, HaveALenientTextToShow) {
  const std::unique_ptr<Iviolation> violation(violation_CreateNewInstance());
  IcustomDisplayText& text = *violation->GetCustomDisplayText();
  EXPECT_EQ(text.SetContent(L"shown"), 0);
  Diagnostics diagnostics;
  EXPECT_EQ(violation->SetCustomDisplayText(nullptr), -101);
  EXPECT_EQ(diagnostics.Take(), Texts{});

  // By itself it keeps what it has.
  EXPECT_EQ(ReadText(text, L"<customDisplayText/>"), 0);
  EXPECT_EQ(diagnostics.Take(),
            Texts{L"XMLManager: read required string content failed. element:customDisplayText"});
  EXPECT_EQ(text.GetContent(), L"shown");
  EXPECT_EQ(ReadText(text, L"<another>x</another>"), -102);
  EXPECT_EQ(text.GetContent(), L"shown");
  EXPECT_EQ(ReadText(text, L"<customDisplayText>a<b/>c</customDisplayText>"), 0);
  EXPECT_EQ(text.GetContent(), L"a");
  EXPECT_EQ(text.ReadFromXMLMgr(nullptr), -101);
  EXPECT_EQ(text.WriteToXMLMgr(nullptr), -101);
  EXPECT_EQ(text.ReadFromXMLMgr(MakeWriter().get()), -101);
  EXPECT_EQ(text.WriteToXMLMgr(MakeReader().get()), -101);
  EXPECT_EQ(diagnostics.Take(),
            (Texts{L"XMLManager: ReadFromXMLMgr required xmlmanager pointer is NULL.",
                   L"XMLManager: WriteToXMLMgr required xmlmanager pointer is NULL."}));

  const std::unique_ptr<Iviolation> other(violation_CreateNewInstance());
  EXPECT_EQ(other->SetCustomDisplayText(&text), 0);
  EXPECT_EQ(other->GetCustomDisplayText()->GetContent(), L"a");
  other->Clear();
  EXPECT_EQ(other->GetCustomDisplayText()->GetContent(), L"");
}

TEST(AnalysisDetails, KeepTextsAsTheyAre) {
  TOLVA_REQUIRE(WriterEscapes);
  const std::unique_ptr<Ivalue> value(value_CreateNewInstance());
  for (const wchar_t* const text :
       {L" ", L"\t\n ", L"\r\n", L"]]>", L"&amp;<b/>", L" a ", L"\x20AC"}) {
    const std::wstring content = text;
    value->SetContent(&content);
    const std::string written = WriteFile(*value);
    const TempFile file(written);
    const ManagerPtr reader = MakeReader();
    ASSERT_EQ(reader->OpenFile(file.Wide().c_str()), 0);
    const std::unique_ptr<Ivalue> again(value_CreateNewInstance());
    EXPECT_EQ(again->ReadFromXMLMgr(reader.get()), 0) << written;
    EXPECT_EQ(again->GetContent(), content) << written;
  }
}

}  // namespace
}  // namespace tolva::test
