// How the analysis details depart from what all documents do.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/nodes.h"

namespace tolva::test {
namespace {

using namespace CpsAnalysisDetailsConf;

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

}  // namespace
}  // namespace tolva::test
