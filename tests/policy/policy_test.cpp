// The endpoint policy, as its callers know it.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>
#include <vector>

#include "policy/example.h"
#include "support/fragments.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

using namespace TolvaInterface;

TEST(Policy, StartsEmpty) {
  const std::unique_ptr<IILPClientConfiguration> root(ILPClientConfiguration_CreateNewInstance());
  EXPECT_EQ(WriteText(*root),
            "<ILPClientConfiguration SchemaVersion=\"0\" SN=\"\" Name=\"\"><LocationArray>"
            "</LocationArray><UserInterface Mode=\"NORMAL\" EnableSuperBypass=\"0\" "
            "EnableRemoteBypass=\"0\"></UserInterface></ILPClientConfiguration>");
  ExpectAll({
      // Elements without children become empty tags, elements that may have some do not.
      {Make<ArCondition_CreateNewInstance>, L"<ArCondition/>", 0, {}, "<ArCondition/>"},
      {Make<ILPEmail_CreateNewInstance>, L"<ILPEmail></ILPEmail>", 0, {}, "<ILPEmail/>"},
      {Make<DiscoveryJobs_CreateNewInstance>,
       L"<DiscoveryJobs/>",
       0,
       {},
       "<DiscoveryJobs></DiscoveryJobs>"},
      {Make<ILPClipboard_CreateNewInstance>,
       L"<ILPClipboard/>",
       0,
       {},
       "<ILPClipboard></ILPClipboard>"},
      {Make<Schedule_CreateNewInstance>,
       L"<Schedule RecurType='DAILY'/>",
       0,
       {},
       "<Schedule RecurType=\"DAILY\"></Schedule>"},
  });
}

TEST(Policy, JudgesFragments) {
  const std::string fresh_job =
      WriteText(*std::unique_ptr<node::IElement>(DiscoveryJob_CreateNewInstance()));
  ExpectAll({
      {Make<DiscoveryJob_CreateNewInstance>,
       L"<DiscoveryJob Id='' Sid=''/>",
       -101,
       {L"XMLManager: sub-element Schedule is missing"},
       fresh_job},
      {Make<ILPClientConfiguration_CreateNewInstance>,
       L"<ILPClientConfiguration SchemaVersion='' SN='' Name=''/>",
       -101,
       {L"XMLManager: sub-element LocationArray is missing"},
       "<ILPClientConfiguration SchemaVersion=\"0\" SN=\"\" Name=\"\"><LocationArray>"
       "</LocationArray><UserInterface Mode=\"NORMAL\" EnableSuperBypass=\"0\" "
       "EnableRemoteBypass=\"0\"></UserInterface></ILPClientConfiguration>"},
      {Make<ILPProtection_CreateNewInstance>,
       L"<ILPProtection><ILPInLineProxy Enable='x'/></ILPProtection>",
       0,
       {},
       "<ILPProtection></ILPProtection>"},
      {Make<OnlineApps_CreateNewInstance>,
       L"<OnlineApps Action='ALLOW'><UrlCondition URL='u'/><ArCondition/><AppRule/></OnlineApps>",
       0,
       {},
       "<OnlineApps Action=\"ALLOW\"><ArCondition/><UrlCondition URL=\"u\"/></OnlineApps>"},
      {Make<ClipboardPaste_CreateNewInstance>,
       L"<ClipboardPaste Sid=''><OnlineApps Action='ALLOW'/><AppRule Action='BLOCK'/>"
       L"</ClipboardPaste>",
       0,
       {},
       "<ClipboardPaste Sid=\"0\"><AppRule Action=\"BLOCK\"></AppRule><OnlineApps "
       "Action=\"ALLOW\"></OnlineApps></ClipboardPaste>"},
      {Make<ILPRemovableMedia_CreateNewInstance>,
       L"<ILPRemovableMedia><OnlineApps Action='ALLOW'/><BypassedApps/><DeviceRule "
       L"Action='BLOCK'/></ILPRemovableMedia>",
       0,
       {},
       "<ILPRemovableMedia><DeviceRule Action=\"BLOCK\"/><BypassedApps></BypassedApps><OnlineApps "
       "Action=\"ALLOW\"></OnlineApps></ILPRemovableMedia>"},
      {Make<ILPFixedMedia_CreateNewInstance>,
       L"<ILPFixedMedia><AppRule/><BypassedApps/></ILPFixedMedia>",
       0,
       {},
       "<ILPFixedMedia></ILPFixedMedia>"},
      {Make<ILPPrinter_CreateNewInstance>,
       L"<ILPPrinter><TrustedPrinters><Printer Name='1'/></TrustedPrinters><TrustedPrinters/>"
       L"</ILPPrinter>",
       0,
       {},
       "<ILPPrinter><TrustedPrinters></TrustedPrinters></ILPPrinter>"},
      {Make<ExcludeJSInjectDomains_CreateNewInstance>,
       L"<ExcludeJSInjectionDomains><ExcludeJSInjectDomain URL='u'/></ExcludeJSInjectionDomains>",
       0,
       {},
       "<ExcludeJSInjectionDomains></ExcludeJSInjectionDomains>"},
      {Make<ExcludeJSInjectDomain_CreateNewInstance>,
       L"<ExcludeDomain URL='u'/>",
       0,
       {},
       "<ExcludeDomain URL=\"u\"/>"},
      {Make<ExcludeJSInjectDomains_CreateNewInstance>,
       L"<ExcludeJSInjectDomains/>",
       -102,
       {},
       "<ExcludeJSInjectionDomains></ExcludeJSInjectionDomains>"},
      {Make<FileFilter_CreateNewInstance>,
       L"<FileFilter Include='' Age='' MinSize='99999999999999999999' MaxSize='4294967296'/>",
       0,
       {},
       "<FileFilter Include=\"\" Age=\"0\" MinSize=\"18446744073709551615\" "
       "MaxSize=\"4294967296\"/>"},
      {Make<BrowserExtension_CreateNewInstance>,
       L"<BrowserExtension BrowserName='Chrome' EnableExtension='1'/>",
       -101,
       {L"XMLLiteManager: read required ENUM Attribute failed. element:BrowserExtension, "
        L"attr:BrowserName"},
       "<BrowserExtension BrowserName=\"CHROME\" EnableExtension=\"0\"/>"},
  });
}

/// The texts of an ENUM attribute, from 0 up.
template <class I>
void ExpectEnum(const char* name, I* (*make)(), ConfigResult (I::*set)(const DWORD*),
                const std::vector<std::string>& texts) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::unique_ptr<I> node(make());
    const auto value = static_cast<DWORD>(i);
    (node.get()->*set)(&value);
    const std::string written = " " + (name + ("=\"" + texts[i] + "\""));
    EXPECT_NE(WriteText(*node).find(written), std::string::npos) << written;
  }
}

TEST(Policy, NumbersItsEnumTexts) {
  ExpectEnum("Mode", &UserInterface_CreateNewInstance, &IUserInterface::SetMode,
             {"NORMAL", "SILENT", "UNATTENDED", ""});
  ExpectEnum("DefaultActionOnUserPromptTimeout", &UserInterface_CreateNewInstance,
             &IUserInterface::SetDefaultActionOnUserPromptTimeout,
             {"ALLOW", "BLOCK", "BLOCK_REVIEW", ""});
  ExpectEnum("BrowserName", &BrowserExtension_CreateNewInstance, &IBrowserExtension::SetBrowserName,
             {"CHROME", "FIREFOX", "EDGE", ""});
  ExpectEnum("RecurType", &Schedule_CreateNewInstance, &ISchedule::SetRecurType,
             {"ONCE", "DAILY", "WEEKLY", "MONTHLY", "CONTINUOUSLY", ""});
  ExpectEnum("TimeType", &Schedule_CreateNewInstance, &ISchedule::SetTimeType,
             {"LOCAL", "UTC", ""});
  ExpectEnum("Type", &InitialRecur_CreateNewInstance, &IInitialRecur::SetType, {"NOW", "TIME", ""});
  ExpectEnum("ScanMode", &DiscoverySettings_CreateNewInstance, &IDiscoverySettings::SetScanMode,
             {"FULL", "DIFFERENTIAL", "ALTERNATIVE", ""});
  const std::vector<std::string> actions = {"USE_CONTENT_POLICY_ACTION", "ALLOW", "BLOCK"};
  EXPECT_EQ(kUseContentPolicyAction, 0U);
  EXPECT_EQ(kAllow, 1U);
  EXPECT_EQ(kBlock, 2U);
  ExpectEnum("Action", &AppRule_CreateNewInstance, &IAppRule::SetAction, actions);
  ExpectEnum("Action", &OnlineApps_CreateNewInstance, &IOnlineApps::SetAction, actions);
  ExpectEnum("Action", &DeviceRule_CreateNewInstance, &IDeviceRule::SetAction, actions);
  ExpectEnum("Action", &RemoteDriveRule_CreateNewInstance, &IRemoteDriveRule::SetAction, actions);
  ExpectEnum("Action", &WebAccessRule_CreateNewInstance, &IWebAccessRule::SetAction, actions);
}

TEST(Policy, KeepsNumbersBeyondItsTables) {
  const DWORD seven = 7;
  const std::unique_ptr<IUserInterface> ui(UserInterface_CreateNewInstance());
  ui->SetMode(&seven);
  ui->SetDefaultActionOnUserPromptTimeout(&seven);
  EXPECT_EQ(ui->GetMode(), seven);
  EXPECT_EQ(WriteText(*ui),
            "<UserInterface Mode=\"\" EnableSuperBypass=\"0\" EnableRemoteBypass=\"0\" "
            "DefaultActionOnUserPromptTimeout=\"\"></UserInterface>");
  const std::unique_ptr<IDiscoverySettings> settings(DiscoverySettings_CreateNewInstance());
  settings->SetScanMode(&seven);
  EXPECT_EQ(WriteText(*settings), "<DiscoverySettings ScanMode=\"\"/>");
}

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

  // It outlives its parents' Clear too, and a copy takes it along.
  const DWORD monthly = 3;
  const std::unique_ptr<IDiscoveryJob> job(DiscoveryJob_CreateNewInstance());
  job->GetSchedule()->SetRecurType(&monthly);
  job->GetDiscoveryAction()->SetAction(&monthly);
  job->Clear();
  EXPECT_EQ(job->GetSchedule()->GetRecurType(), 3U);
  EXPECT_EQ(job->GetDiscoveryAction()->GetAction(), 3U);
  const std::unique_ptr<IDiscoveryJob> copy(DiscoveryJob_CreateNewInstance());
  copy->CopyFrom(*job);
  EXPECT_EQ(copy->GetSchedule()->GetRecurType(), 3U);

  const DWORD five = 5;
  const std::unique_ptr<IDiscoveryAction> action(DiscoveryAction_CreateNewInstance());
  EXPECT_EQ(action->GetAction(), 0U);
  action->SetAction(&five);
  action->Clear();
  EXPECT_EQ(action->GetAction(), 5U);
  EXPECT_EQ(WriteText(*action), "<DiscoveryAction Action=\"\"/>");
  EXPECT_EQ(ReadText(*action, L"<DiscoveryAction/>"), -101);
  EXPECT_EQ(action->GetAction(), 5U);
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

TEST_F(InlineProxy, IsAnnouncedWhenItsProtectionIsWritten) {
  Diagnostics diagnostics;
  WriteText(*protection_);
  EXPECT_EQ(diagnostics.Take(),
            (Texts{L"XMLManager: writingelement:ILPInLineProxy",
                   L"XMLManager: writingelement:ILPInLineProxy was sucessful"}));
  WriteText(*proxy_);
  EXPECT_EQ(diagnostics.Take(), Texts{});
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
  const std::unique_ptr<IILPProtection> other(ILPProtection_CreateNewInstance());
  EXPECT_EQ(other->SetILPInLineProxy(proxy_), 0);
  domains->RemoveAllExcludeJSInjectDomain();
  EXPECT_EQ(domains->GetExcludeJSInjectDomainCount(), 0U);
  EXPECT_NE(WriteText(*other).find("<ExcludeDomain URL=\"3\"/>"), std::string::npos);
}

TEST(Policy, TellsOfNullManagers) {
  const std::unique_ptr<node::IElement> nodes[] = {
      std::unique_ptr<node::IElement>(Log_CreateNewInstance()),
      std::unique_ptr<node::IElement>(TelemetryCollection_CreateNewInstance()),
      std::unique_ptr<node::IElement>(ExcludeJSInjectDomains_CreateNewInstance()),
      std::unique_ptr<node::IElement>(ExcludeJSInjectDomain_CreateNewInstance()),
  };
  Diagnostics diagnostics;
  for (const auto& node : nodes) {
    EXPECT_EQ(node->WriteToXMLMgr(nullptr), -101);
    EXPECT_EQ(node->ReadFromXMLMgr(nullptr), -101);
  }
  EXPECT_EQ(diagnostics.Take(),
            (Texts{L"XMLManager: WriteToXMLMgr require xmlmanager pointer is NULL.",
                   L"XMLManager: ReadFromXMLMgr require xmlmanager pointer is NULL.",
                   L"XMLManager: WriteToXMLMgr required xmlmanager pointer is NULL.",
                   L"XMLManager: ReadFromXMLMgr required xmlmanager pointer is NULL.",
                   L"JSExcudeDomain: WriteToXMLMgr require xmlmanager pointer is NULL.",
                   L"JSExcudeDomain: ReadFromXMLMgr require xmlmanager pointer is NULL.",
                   L"XMLManager: WriteToXMLMgr require xmlmanager pointer is NULL.",
                   L"XMLManager: ReadFromXMLMgr require xmlmanager pointer is NULL."}));
}

TEST(Policy, EmbedsTheActiveDirectory) {
  Diagnostics diagnostics;
  const std::unique_ptr<IILPClientConfiguration> root(ILPClientConfiguration_CreateNewInstance());
  const std::unique_ptr<ClientConfig::IActiveDirectory> directory(
      ClientConfig::ActiveDir_CreateNewInstance());
  const std::wstring name = L"corp";
  directory->GetDefaultDomain()->SetName(&name);
  const auto is_written = [](const node::IElement& node) {
    return WriteText(node).find("Name=\"corp\"") != std::string::npos;
  };

  ClientConfig::IActiveDirectory* held = nullptr;
  EXPECT_EQ(root->GetActiveDirectory(&held), 1);
  EXPECT_EQ(root->SetActiveDirectory(directory.get()), 0);
  ASSERT_EQ(root->GetActiveDirectory(&held), 0);
  EXPECT_EQ(held->GetDefaultDomain()->GetName(), name);
  EXPECT_TRUE(is_written(*root));
  const std::unique_ptr<IILPClientConfiguration> copy(ILPClientConfiguration_CreateNewInstance());
  copy->CopyFrom(*root);
  EXPECT_TRUE(is_written(*copy));

  // The flag alone; any value but 0 is present, and is kept.
  DWORD present = 9;
  EXPECT_EQ(root->SetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(root->GetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(root->GetActiveDirectory(&held), 1);
  EXPECT_FALSE(is_written(*root));
  EXPECT_EQ(root->SetActiveDirectoryPresent(&present), 0);
  present = 0;
  EXPECT_EQ(root->GetActiveDirectoryPresent(&present), 0);
  EXPECT_EQ(present, 9U);
  EXPECT_TRUE(is_written(*root));
  EXPECT_EQ(root->SetActiveDirectory(nullptr), 0);
  root->GetActiveDirectoryPresent(&present);
  EXPECT_EQ(present, 0U);
  EXPECT_FALSE(is_written(*root));
  const DWORD here = 1;
  root->SetActiveDirectoryPresent(&here);
  EXPECT_TRUE(is_written(*root)) << "absent, it keeps what it holds";
  EXPECT_EQ(diagnostics.Take(), Texts{});
}

TEST(Policy, CopiesDeeply) {
  const Example::Node example = PolicyExample().Read();
  auto& root = dynamic_cast<IILPClientConfiguration&>(*example);
  const std::unique_ptr<IILPClientConfiguration> copy(ILPClientConfiguration_CreateNewInstance());
  EXPECT_EQ(&copy->CopyFrom(root), copy.get());
  Diagnostics ignored;
  const std::string written = WriteText(root);
  EXPECT_EQ(WriteText(*copy), written);

  // Within the copy: a location by copying another, which may be the list's own.
  ILocationArray* const locations = copy->GetLocationArray();
  EXPECT_EQ(locations->AddLocation(locations->GetLocationAt(0)), 0);
  EXPECT_EQ(locations->InsertLocationAt(0, locations->GetLocationAt(2)), 0);
  EXPECT_EQ(locations->GetLocationCount(), 4U);
  EXPECT_EQ(WriteText(*locations->GetLocationAt(0)), WriteText(*locations->GetLocationAt(3)));
  EXPECT_EQ(copy->SetLocationArray(root.GetLocationArray()), 0);
  EXPECT_EQ(WriteText(*copy), written);
  root.Clear();
  EXPECT_EQ(WriteText(*copy), written);
}

}  // namespace
}  // namespace tolva::test
