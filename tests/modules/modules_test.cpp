// The five module client configurations, as their callers know them.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/fragments.h"

namespace tolva::test {
namespace {

TEST(Modules, StartEmpty) {
  struct Fresh {
    node::IElement* (*make)();
    std::string_view written;
  };
  const Fresh all[] = {
      {Make<NGConfInterface::INGClientConfiguration_CreateNewInstance>,
       "<INGClientConfiguration SchemaVersion=\"0\" SN=\"\" Name=\"\"><ClientManagement>"
       "<ServerCommunication ManagementQueryInterval=\"0\" ManagementServerHostname=\"\"/>"
       "<LogReport LogReportInterval=\"0\" LogReportServerHostname=\"\" MaxUploadSize=\"0\"/>"
       "</ClientManagement><ScanEngineConfiguration><ScanEngineBasicSetting EnableSSLProxy=\"0\" "
       "EnableThreatScan=\"0\" EnableURLLocalCache=\"0\" EnableWebsiteVerification=\"0\" "
       "InspectHostnameOnly=\"0\" LocalNonSSLRedirPort=\"0\" LocalSSLRedirPort=\"0\"/>"
       "<ScanEngineSSLSetting CRLFileName=\"\" ClientCerFileName=\"\" RootCAFileName=\"\" "
       "RootDN=\"\" ServerCerFileName=\"\" ServerCertSubject=\"\"/><ScanSetting Context=\"\" "
       "DispServerHostname=\"\" EnableFailureOpen=\"0\" MaxConnectionsPerServer=\"0\" "
       "UserAgent=\"\"></ScanSetting><ContentUploadSetting MaxSizeForScan=\"0\">"
       "</ContentUploadSetting></ScanEngineConfiguration></INGClientConfiguration>"},
      {Make<GlobalConfInterface::IGLOBALClientConfiguration_CreateNewInstance>,
       "<IGLOBALClientConfiguration SchemaVersion=\"0\" SN=\"\" Name=\"\"><EPClientSetting "
       "EnableTamperProtection=\"0\" EnableTelemetry=\"0\"/><AutoUpdate Frequency=\"0\">"
       "<UpdateServer URL=\"\"/></AutoUpdate></IGLOBALClientConfiguration>"},
      {Make<ProxyClientConfig::IPXYClientConfiguration_CreateNewInstance>,
       "<IPXYClientConfiguration SchemaVersion=\"0\" SN=\"\" Name=\"\"><ProxySetting>"
       "<PACFile URL=\"\"/></ProxySetting><ClientSetting EnableTelemetry=\"0\">"
       "<Update Frequency=\"0\"><Download NewVersion=\"\"/></Update></ClientSetting>"
       "</IPXYClientConfiguration>"},
      {Make<CIConfInterface::ICIClientConfiguration_CreateNewInstance>,
       "<ICIClientConfiguration SchemaVersion=\"0\" SN=\"\" Name=\"\"><Connection "
       "DoNotSendUserName=\"0\" FailClosed=\"0\"><EIMConnection><EIMServerArray></EIMServerArray>"
       "</EIMConnection></Connection><ClientSetting EnableTelemetry=\"0\"><UserInterface "
       "UISilentMode=\"0\" DisplayHTTPSBlockMsg=\"0\" HTTPSBlockMsgInterval=\"0\" "
       "DisplayFTPBlockMsg=\"0\" FTPBlockMsgInterval=\"0\" UITimeout=\"0\"/></ClientSetting>"
       "</ICIClientConfiguration>"},
      {Make<RFConfInterface::IRFClientConfiguration_CreateNewInstance>,
       "<IRFClientConfiguration SchemaVersion=\"0\" SN=\"\" Name=\"\"><Connection>"
       "<InternalConnection HeartbeatRetryInterval=\"0\"><InternalRFServerArray>"
       "</InternalRFServerArray></InternalConnection><ExternalConnection "
       "HeartbeatRetryInterval=\"0\" FailClosed=\"0\" FailClosedTimeout=\"0\" FilterHTTPS=\"0\" "
       "FilterFTP=\"0\" URLLookupAndLog=\"0\"><ExternalRFServerArray></ExternalRFServerArray>"
       "</ExternalConnection></Connection><ClientSetting EnableTelemetry=\"0\" "
       "DisableFiltering=\"0\"><UserInterface UISilentMode=\"0\" UITimeout=\"0\"/></ClientSetting>"
       "</IRFClientConfiguration>"},
  };
  for (const Fresh& one : all) {
    const std::unique_ptr<node::IElement> root(one.make());
    EXPECT_EQ(WriteText(*root), one.written);
    Diagnostics diagnostics;
    EXPECT_EQ(root->WriteToXMLMgr(nullptr), -101);
    EXPECT_EQ(root->ReadFromXMLMgr(nullptr), -101);
    EXPECT_EQ(diagnostics.Take(),
              (Texts{L"XMLManager: WriteToXMLMgr required xmlmanager pointer is NULL.",
                     L"XMLManager: ReadFromXMLMgr required xmlmanager pointer is NULL."}));
  }
}

TEST(Modules, JudgeFragments) {
  constexpr std::string_view kFreshUi =
      "<UserInterface UISilentMode=\"0\" DisplayHTTPSBlockMsg=\"0\" HTTPSBlockMsgInterval=\"0\" "
      "DisplayFTPBlockMsg=\"0\" FTPBlockMsgInterval=\"0\" UITimeout=\"0\"/>";
  const std::string fresh_ng = WriteText(*std::unique_ptr<node::IElement>(
      NGConfInterface::INGClientConfiguration_CreateNewInstance()));
  const std::string fresh_ci = WriteText(*std::unique_ptr<node::IElement>(
      CIConfInterface::ICIClientConfiguration_CreateNewInstance()));
  const std::string fresh_rf = WriteText(*std::unique_ptr<node::IElement>(
      RFConfInterface::IRFClientConfiguration_CreateNewInstance()));
  const std::string ci_setting =
      "<ClientSetting EnableTelemetry=\"0\">" + std::string(kFreshUi) + "</ClientSetting>";
  ExpectAll({
      // Which of several missing children is reported.
      {Make<CIConfInterface::ICIClientConfiguration_CreateNewInstance>,
       L"<ICIClientConfiguration SchemaVersion='1' SN='' Name=''/>",
       -101,
       {L"XMLManager: sub-element ClientSetting is missing"},
       fresh_ci},
      {Make<RFConfInterface::IRFClientConfiguration_CreateNewInstance>,
       L"<IRFClientConfiguration SchemaVersion='1' SN='' Name=''/>",
       -101,
       {L"XMLManager: sub-element ClientSetting is missing"},
       fresh_rf},
      {Make<RFConfInterface::Connection_CreateNewInstance>,
       L"<Connection/>",
       -101,
       {L"XMLManager: sub-element InternalConnection is missing"},
       "<Connection><InternalConnection HeartbeatRetryInterval=\"0\"><InternalRFServerArray>"
       "</InternalRFServerArray></InternalConnection><ExternalConnection "
       "HeartbeatRetryInterval=\"0\" FailClosed=\"0\" FailClosedTimeout=\"0\" FilterHTTPS=\"0\" "
       "FilterFTP=\"0\" URLLookupAndLog=\"0\"><ExternalRFServerArray></ExternalRFServerArray>"
       "</ExternalConnection></Connection>"},
      {Make<NGConfInterface::INGClientConfiguration_CreateNewInstance>,
       L"<NGClientConfiguration/>",
       -102,
       {},
       fresh_ng},

      // Telemetry: present and 0 when a document does not mention it, in two of four documents.
      {Make<CIConfInterface::ClientSetting_CreateNewInstance>,
       L"<ClientSetting><UserInterface UISilentMode='' DisplayHTTPSBlockMsg='' "
       L"HTTPSBlockMsgInterval='' DisplayFTPBlockMsg='' FTPBlockMsgInterval='' UITimeout=''/>"
       L"</ClientSetting>",
       0,
       {},
       ci_setting},
      {Make<RFConfInterface::ClientSetting_CreateNewInstance>,
       L"<ClientSetting DisableFiltering='1'><UserInterface UISilentMode='1' UITimeout='2'/>"
       L"</ClientSetting>",
       0,
       {},
       "<ClientSetting EnableTelemetry=\"0\" DisableFiltering=\"1\"><UserInterface "
       "UISilentMode=\"1\" UITimeout=\"2\"/></ClientSetting>"},
      {Make<GlobalConfInterface::EPClientSetting_CreateNewInstance>,
       L"<EPClientSetting EnableTamperProtection='1' EnableTelemetry='x'/>",
       -101,
       {L"XMLManager: read required dword/bool Attribute failed. element:EPClientSetting, "
        L"attr:EnableTelemetry"},
       "<EPClientSetting EnableTamperProtection=\"0\" EnableTelemetry=\"0\"/>"},

      // Signed numbers saturate, unsigned ones keep their low half.
      {Make<CIConfInterface::EIMServer_CreateNewInstance>,
       L"<EIMServer HostName='' PortNumber='4294967295'/>",
       0,
       {},
       "<EIMServer HostName=\"\" PortNumber=\"2147483647\"/>"},
      {Make<NGConfInterface::NGUser_CreateNewInstance>,
       L"<NGUser Name='' EnableTrayIconMenu='8589934593'/>",
       0,
       {},
       "<NGUser Name=\"\" EnableTrayIconMenu=\"1\"/>"},

      {Make<NGConfInterface::ScanEngineWhiteLists_CreateNewInstance>,
       L"<ScanEngineWhiteLists SNIHostList='a'><IPNode IPRange='1' PortNumber='80-443'/>"
       L"</ScanEngineWhiteLists>",
       0,
       {},
       "<ScanEngineWhiteLists SNIHostList=\"a\"><IPNode IPRange=\"1\" PortNumber=\"80-443\"/>"
       "</ScanEngineWhiteLists>"},
      {Make<GlobalConfInterface::CustomSetting_CreateNewInstance>,
       L"<CustomSetting SchemaVersion='v1'><DataEndpoint/></CustomSetting>",
       0,
       {},
       "<CustomSetting SchemaVersion=\"v1\"><DataEndpoint></DataEndpoint></CustomSetting>"},
      {Make<GlobalConfInterface::Setting_CreateNewInstance>,
       L"<Setting AppName='chrome' AppVersionMajor='1'/>",
       -101,
       {L"XMLLiteManager: read required ENUM Attribute failed. element:Setting, attr:AppName"},
       "<Setting AppName=\"RESERVED\" AppVersionMajor=\"0\"/>"},
  });
}

TEST(Modules, WriteSignedNumbersWithASign) {
  const DWORD all_bits = 4294967295;
  const std::unique_ptr<RFConfInterface::IRFServer> server(
      RFConfInterface::RFServer_CreateNewInstance());
  server->SetPortNumber(&all_bits);
  EXPECT_EQ(server->GetPortNumber(), all_bits);
  EXPECT_EQ(WriteText(*server), "<RFServer HostName=\"\" PortNumber=\"-1\"/>");
}

TEST(Modules, KeepTheNameOfAnApplication) {
  const std::unique_ptr<GlobalConfInterface::ISetting> setting(
      GlobalConfInterface::Setting_CreateNewInstance());
  const DWORD chrome = 1;
  const DWORD seven = 7;
  setting->SetAppName(&chrome);
  setting->Clear();
  EXPECT_EQ(setting->GetAppName(), 1U);
  EXPECT_EQ(WriteText(*setting), "<Setting AppName=\"CHROME\" AppVersionMajor=\"0\"/>");
  setting->SetAppName(&seven);
  EXPECT_EQ(setting->GetAppName(), 7U);
  EXPECT_EQ(WriteText(*setting), "<Setting AppName=\"FIREFOX\" AppVersionMajor=\"0\"/>");
  EXPECT_EQ(ReadText(*setting, L"<Setting/>"), -101);
  EXPECT_EQ(setting->GetAppName(), 7U);
  EXPECT_EQ(ReadText(*setting, L"<Setting AppName='CHROME'/>"), -101);
  EXPECT_EQ(setting->GetAppName(), 1U) << "stored before the read failed";
  const std::unique_ptr<GlobalConfInterface::ISetting> copy(
      GlobalConfInterface::Setting_CreateNewInstance());
  copy->CopyFrom(*setting);
  EXPECT_EQ(copy->GetAppName(), 1U);
}

TEST(Modules, BringTelemetryBack) {
  const std::unique_ptr<ProxyClientConfig::IClientSetting> setting(
      ProxyClientConfig::ClientSetting_CreateNewInstance());
  DWORD telemetry = 9;
  EXPECT_EQ(setting->GetEnableTelemetry(&telemetry), 0);
  EXPECT_EQ(telemetry, 0U);
  EXPECT_EQ(setting->SetEnableTelemetry(nullptr), 0);
  EXPECT_EQ(setting->GetEnableTelemetry(&telemetry), 1);
  EXPECT_EQ(WriteText(*setting).find("EnableTelemetry"), std::string::npos);
  setting->Clear();
  EXPECT_EQ(setting->GetEnableTelemetry(&telemetry), 0);
}

TEST(Modules, ReachTheActiveDirectoryByForwarding) {
  const std::unique_ptr<NGConfInterface::IClientManagement> management(
      NGConfInterface::ClientManagement_CreateNewInstance());
  Diagnostics diagnostics;
  const auto written = [&management] {
    const std::string text = WriteText(*management);
    const std::size_t start = text.find("<ActiveDirectory>");
    return start == std::string::npos ? "" : text.substr(start, text.find("</ActiveD") - start);
  };
  const DWORD one = 1;
  const std::wstring name = L"corp";
  DWORD number = 7;
  std::wstring text = L"kept";
  EXPECT_EQ(management->GetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(management->GetActiveDirectoryPresent(&number), 0);
  EXPECT_EQ(number, 0U);
  EXPECT_EQ(management->GetDefaultDomainName(&text), 1);
  EXPECT_EQ(text, L"kept");
  // What is set of an absent child is kept, and not written.
  EXPECT_EQ(management->SetDefaultDomainEnabled(&one), 0);
  EXPECT_EQ(management->SetDefaultDomainEnabled(nullptr), 0);
  EXPECT_EQ(management->GetDefaultDomainEnabled(&number), 0);
  EXPECT_EQ(number, 1U);
  EXPECT_EQ(written(), "");
  EXPECT_EQ(management->SetDefaultDomainName(&name), 0);
  EXPECT_EQ(management->GetDefaultDomainName(nullptr), 0);
  EXPECT_EQ(management->GetDefaultDomainName(&text), 0);
  EXPECT_EQ(text, name);
  EXPECT_EQ(written(), "<ActiveDirectory><DefaultDomain Enabled=\"1\" Name=\"corp\"/>");
  EXPECT_EQ(management->SetDefaultDomainName(nullptr), 0);
  EXPECT_EQ(written(), "");
  EXPECT_EQ(management->SetActiveDirectoryPresent(&one), 0);
  EXPECT_EQ(written(), "<ActiveDirectory><DefaultDomain Enabled=\"1\" Name=\"corp\"/>");

  const std::unique_ptr<NGConfInterface::IClientManagement> copy(
      NGConfInterface::ClientManagement_CreateNewInstance());
  copy->CopyFrom(*management);
  EXPECT_EQ(WriteText(*copy), WriteText(*management));
  EXPECT_EQ(management->SetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(written(), "");
  EXPECT_EQ(diagnostics.Take(), Texts{});
}

TEST(Modules, KeepTheReservedSettingToThemselves) {
  const std::unique_ptr<NGConfInterface::IClientManagement> management(
      NGConfInterface::ClientManagement_CreateNewInstance());
  const std::string fresh = WriteText(*management);
  const DWORD value = 42;
  DWORD found = 0;
  EXPECT_EQ(management->GetReservedSetting(&found), 1);
  EXPECT_EQ(management->SetReservedSetting(&value), 0);
  EXPECT_EQ(WriteText(*management), fresh);
  EXPECT_EQ(ReadText(*management, L"<ClientManagement ReservedSetting='1'/>"), -101);
  EXPECT_EQ(management->GetReservedSetting(&found), 0);
  EXPECT_EQ(found, 42U);
  const std::unique_ptr<NGConfInterface::IClientManagement> copy(
      NGConfInterface::ClientManagement_CreateNewInstance());
  copy->CopyFrom(*management);
  EXPECT_EQ(copy->GetReservedSetting(&found), 0);
  EXPECT_EQ(management->SetReservedSetting(nullptr), 0);
  EXPECT_EQ(management->GetReservedSetting(nullptr), 1);
}

TEST(Modules, HandTheActiveDirectoryOut) {
  const std::unique_ptr<ProxyClientConfig::IProxySetting> proxy(
      ProxyClientConfig::ProxySetting_CreateNewInstance());
  Diagnostics diagnostics;
  const DWORD one = 1;
  DWORD present = 7;
  ClientConfig::IActiveDirectory* directory = nullptr;
  EXPECT_EQ(proxy->GetActiveDirectory(nullptr), 0);
  EXPECT_EQ(proxy->GetActiveDirectory(&directory), 0);  // absent or not
  ASSERT_NE(directory, nullptr);
  const std::wstring name = L"corp";
  directory->GetDefaultDomain()->SetName(&name);
  EXPECT_EQ(WriteText(*proxy), "<ProxySetting><PACFile URL=\"\"/></ProxySetting>");
  EXPECT_EQ(proxy->SetActiveDirectoryPresent(&one), 0);
  const std::string with = WriteText(*proxy);
  EXPECT_EQ(with,
            "<ProxySetting><PACFile URL=\"\"/><ActiveDirectory><DefaultDomain "
            "Enabled=\"0\" Name=\"corp\"/></ActiveDirectory></ProxySetting>");
  EXPECT_EQ(diagnostics.Take(), Texts{});

  EXPECT_EQ(proxy->SetActiveDirectory(nullptr), -101);
  EXPECT_EQ(diagnostics.Take(),
            Texts{L"XMLManager: Set element failed due to param is NULL. element:ActiveDirectory"});
  EXPECT_EQ(proxy->GetActiveDirectoryPresent(&present), 0);
  EXPECT_EQ(present, 0U);
  const std::unique_ptr<ProxyClientConfig::IProxySetting> other(
      ProxyClientConfig::ProxySetting_CreateNewInstance());
  EXPECT_EQ(other->SetActiveDirectory(directory), 0);
  EXPECT_EQ(WriteText(*other), with);
  EXPECT_EQ(other->SetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(other->GetActiveDirectoryPresent(&present), 0);
  EXPECT_EQ(present, 0U);
}

}  // namespace
}  // namespace tolva::test
