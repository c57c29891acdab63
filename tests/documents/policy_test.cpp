// The endpoint policy, as its callers know it.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/nodes.h"

namespace tolva::test {
namespace {

using namespace TolvaInterface;

TEST(Policy, KeepsWhatClearLeavesAlone) {
  Diagnostics ignored;
  const std::unique_ptr<ISchedule> schedule(Schedule_CreateNewInstance());
  EXPECT_EQ(schedule->GetRecurType(), 0U);
  ASSERT_EQ(ReadText(*schedule, L"<Schedule RecurType='WEEKLY' TimeType='UTC' Duration='5'/>"), 0);
  EXPECT_EQ(ReadText(*schedule, L"<Schedule RecurType='daily'/>"), -101);
  EXPECT_EQ(schedule->GetRecurType(), 2U);
  EXPECT_EQ(schedule->GetTimeType(nullptr), 1);
  EXPECT_EQ(WriteText(*schedule), "<Schedule RecurType=\"WEEKLY\"></Schedule>");
  // A fault behind it leaves what the failed read had found.
  EXPECT_EQ(ReadText(*schedule, L"<Schedule RecurType='ONCE' Duration='x'/>"), -101);
  EXPECT_EQ(schedule->GetRecurType(), 0U);
}

// The inline proxy exists only within a protection.
class InlineProxy : public testing::Test {
 protected:
  InlineProxy() : protection_(ILPProtection_CreateNewInstance()) {
    EXPECT_EQ(protection_->GetILPInLineProxy(&proxy_), 1);
    EXPECT_EQ(ReadText(*protection_, L"<ILPProtection><ILPInlineProxy/></ILPProtection>"), 0);
    EXPECT_EQ(protection_->GetILPInLineProxy(&proxy_), 0);
  }

  std::string Written() const {
    const std::string text = WriteText(*proxy_);
    return text.substr(0, text.find('>') + 1);
  }

  const std::unique_ptr<IILPProtection> protection_;
  IILPInLineProxy* proxy_ = nullptr;
};

TEST_F(InlineProxy, IsOnUnlessTheDocumentSaysOtherwise) {
  EXPECT_EQ(WriteText(*proxy_),
            "<ILPInlineProxy Enable=\"1\" EnableDriverWebTraffic=\"1\" SystemPAC=\"1\">"
            "</ILPInlineProxy>");
  EXPECT_EQ(ReadText(*proxy_, L"<ILPInlineProxy SystemPAC='' Enable='7'/>"), 0);
  EXPECT_EQ(Written(),
            "<ILPInlineProxy Enable=\"7\" EnableDriverWebTraffic=\"1\" SystemPAC=\"0\">");
  EXPECT_EQ(ReadText(*proxy_, L"<ILPInLineProxy/>"), -102);
  EXPECT_EQ(Written(),
            "<ILPInlineProxy Enable=\"0\" EnableDriverWebTraffic=\"0\" SystemPAC=\"0\">");
}

TEST_F(InlineProxy, KeepsItsFlagsWhenItIsCleared) {
  Diagnostics diagnostics;
  proxy_->Clear();
  EXPECT_EQ(Written(),
            "<ILPInlineProxy Enable=\"0\" EnableDriverWebTraffic=\"0\" SystemPAC=\"0\">");
  proxy_->SetEnable(nullptr);
  proxy_->SetEnableDriverWebTraffic(nullptr);
  proxy_->SetSystemPAC(nullptr);
  EXPECT_EQ(Written(), "<ILPInlineProxy>");
  // The flag of a switch is set before its value is judged.
  EXPECT_EQ(ReadText(*proxy_, L"<ILPInlineProxy EnableDriverWebTraffic='x'/>"), -101);
  EXPECT_EQ(diagnostics.Take(), Texts{L"XMLManager: read required dword/bool Attribute failed. "
                                      L"element:ILPInLineProxy, attr:EnableDriverWebTraffic"});
  EXPECT_EQ(Written(), "<ILPInlineProxy Enable=\"0\" EnableDriverWebTraffic=\"0\">");

  // A child that a document had is there ever after, if empty.
  EXPECT_EQ(ReadText(*proxy_,
                     L"<ILPInlineProxy><IncludeApps><ArCondition/></IncludeApps><ExcludeDomains>"
                     L"<ExcludeDomain URL='1'/></ExcludeDomains><LocalProxies/>"
                     L"<ExcludeJSInjectionDomains/></ILPInlineProxy>"),
            0);
  EXPECT_EQ(ReadText(*proxy_, L"<ILPInlineProxy/>"), 0);
  const std::string empty = WriteText(*proxy_);
  EXPECT_EQ(empty.substr(empty.find('>') + 1),
            "<IncludeApps></IncludeApps><ExcludeDomains></ExcludeDomains><LocalProxies>"
            "</LocalProxies><ExcludeJSInjectionDomains></ExcludeJSInjectionDomains>"
            "</ILPInlineProxy>");
  protection_->Clear();
  EXPECT_EQ(protection_->GetILPInLineProxy(nullptr), 1);
  EXPECT_EQ(proxy_->GetIncludeApps(nullptr), 0);
}

TEST_F(InlineProxy, HasAListThatReadingFills) {
  EXPECT_EQ(ReadText(*proxy_,
                     L"<ILPInlineProxy><ExcludeDomains><ExcludeDomain URL='1'/></ExcludeDomains>"
                     L"<ExcludeJSInjectionDomains><ExcludeDomain URL='2'/><ExcludeDomain URL='3'/>"
                     L"</ExcludeJSInjectionDomains></ILPInlineProxy>"),
            0);
  IExcludeJSInjectDomains* domains = nullptr;
  ASSERT_EQ(proxy_->GetExcludeJSInjectDomains(&domains), 0);
  ASSERT_EQ(domains->GetExcludeJSInjectDomainCount(), 2U);
  std::wstring url;
  EXPECT_EQ(domains->GetExcludeJSInjectDomainAt(1)->GetURL(&url), 0);
  EXPECT_EQ(url, L"3");
  EXPECT_EQ(domains->GetExcludeJSInjectDomainAt(2), nullptr);
  domains->RemoveAllExcludeJSInjectDomain();
  EXPECT_EQ(domains->GetExcludeJSInjectDomainCount(), 0U);
}

}  // namespace
}  // namespace tolva::test
