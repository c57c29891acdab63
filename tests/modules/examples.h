// What the tests know of the module client configurations: their elements, and how their reports
// depart from the rules.
#pragma once

#include <vector>

#include "support/active_directory.h"
#include "support/example.h"

namespace tolva::test {

/// Three documents do not call telemetry required when its value is malformed.
inline const std::pair<const std::wstring, std::wstring> kTelemetry = {
    L"XMLManager: read required dword/bool Attribute failed. element:ClientSetting, "
    L"attr:EnableTelemetry",
    L"XMLManager: read dword/bool Attribute failed. element:ClientSetting, attr:EnableTelemetry"};

inline constexpr const wchar_t* kRoot = L"SchemaVersion:N! SN:S! Name:S! UpdateDate:S RefId:S";

inline Example NgExample() {
  return Example(
      "ng.xml",
      [] { return Example::Node(NGConfInterface::INGClientConfiguration_CreateNewInstance()); },
      WithActiveDirectory({
          {L"INGClientConfiguration", kRoot,
           L"ClientManagement! ScanEngineConfiguration! CloudServerComunication"},
          {L"ClientManagement", L"EnableTrayIconMenu:N",
           L"ServerCommunication! LogReport! NGUserSetting NGFirefoxSetting ActiveDirectory"},
          {L"ServerCommunication", L"ManagementQueryInterval:N! ManagementServerHostname:S!", L""},
          {L"LogReport",
           L"LogReportInterval:N! LogReportServerHostname:S! MaxUploadSize:N! "
           L"EventLogReportServerHostname:S",
           L""},
          {L"NGUserSetting", L"", L"NGUser*"},
          {L"NGUser", L"Name:S! EnableTrayIconMenu:N!", L""},
          {L"NGFirefoxSetting", L"FirefoxConfigCFGFileName:S FirefoxConfigJSFileName:S", L""},
          {L"CloudServerComunication", L"", L"HTTPRequestHeaders!"},
          {L"HTTPRequestHeaders", L"", L"HTTPHeader*"},
          {L"HTTPHeader", L"HeaderName:S! HeaderValue:S!", L""},
          {L"ScanEngineConfiguration", L"",
           L"ScanEngineBasicSetting! ScanEngineSSLSetting! ScanSetting! ContentUploadSetting!"},
          {L"ScanEngineBasicSetting",
           L"EnableSSLProxy:N! EnableThreatScan:N! EnableURLLocalCache:N! "
           L"EnableWebsiteVerification:N! InspectHostnameOnly:N! LocalNonSSLRedirPort:N! "
           L"LocalSSLRedirPort:N! IgnoreInvalidCertificate:N StatsPeriod:N SSLStandbyDecryption:N",
           L""},
          {L"ScanEngineSSLSetting",
           L"CRLFileName:S! ClientCerFileName:S! RootCAFileName:S! RootDN:S! ServerCerFileName:S! "
           L"ServerCertSubject:S!",
           L""},
          {L"ScanSetting",
           L"Context:S! DispServerHostname:S! EnableDetectHybrid:N HybridModeDetectString:S "
           L"EnableFailureOpen:N! MaxConnectionsPerServer:N! UserAgent:S! EnforceProxyServer:N "
           L"BypassPrivateIP:N BypassLocalIP:N BypassPlainHostName:N",
           L"ScanEngineEnforceLists ScanEngineWhiteLists"},
          {L"ScanEngineEnforceLists", L"DomainLists:S ProcessNames:S", L"IPNode*"},
          {L"ScanEngineWhiteLists", L"DomainLists:S ProcessNames:S VPNDescList:S SNIHostList:S",
           L"IPNode*"},
          {L"IPNode", L"IPRange:S! PortNumber:S!", L""},
          {L"ContentUploadSetting",
           L"ContentUpload:N MaxSizeForScan:N! FileTypesToBlock:S FileTypesToScan:S",
           L"ClientRequestHeader*"},
          {L"ClientRequestHeader", L"HeaderName:S!", L""},
      }),
      WithActiveDirectory(
          Departures{.texts = {{L"XMLManager: write optional element failed. "
                                L"element:ActiveDirectory",
                                L"XMLManager: write element failed. element:ActiveDirectory"},
                               {L"XMLManager: read require element failed. element:ActiveDirectory",
                                L"XMLManager: read element failed. element:ActiveDirectory"}}}));
}

inline Example GlobalExample() {
  return Example(
      "global.xml",
      [] {
        return Example::Node(GlobalConfInterface::IGLOBALClientConfiguration_CreateNewInstance());
      },
      {
          {L"IGLOBALClientConfiguration", kRoot,
           L"EPClientSetting! AutoUpdate! CustomSetting ZanFirefoxSetting"},
          {L"EPClientSetting",
           L"EnableTamperProtection:N! EnableTelemetry:N! AdminPasswordHash:S InstallDirectory:S",
           L""},
          {L"AutoUpdate", L"Frequency:N!", L"UpdateServer!"},
          {L"UpdateServer", L"URL:S! SendPII:N", L""},
          {L"CustomSetting", L"EnableCustomSetting:N SchemaVersion:S Description:S",
           L"WebProxyEndpoint DataEndpoint WebDirectEndpoint RemoteFilteringClient"},
          {L"WebProxyEndpoint", L"", L"Setting*"},
          {L"DataEndpoint", L"", L"Setting*"},
          {L"WebDirectEndpoint", L"", L"Setting*"},
          {L"RemoteFilteringClient", L"", L"Setting*"},
          {L"Setting",
           L"AppName:E! AppFileName:S AppVersionMajor:N! AppVersionMinor:N MinimumWindowsBuild:N "
           L"MinimumMacBuild:N",
           L""},
          {L"ZanFirefoxSetting", L"FirefoxConfigCFGFileName:S FirefoxConfigJSFileName:S", L""},
      });
}

inline Example ProxyExample() {
  return Example(
      "proxy.xml",
      [] { return Example::Node(ProxyClientConfig::IPXYClientConfiguration_CreateNewInstance()); },
      WithActiveDirectory({
          {L"IPXYClientConfiguration", kRoot,
           L"ProxySetting! ClientSetting! LocalProxySetting LogUploadSetting"},
          {L"ProxySetting", L"", L"PACFile! ActiveDirectory AppWhiteList"},
          {L"PACFile", L"URL:S!", L""},
          {L"AppWhiteList", L"AppNames:S", L""},
          {L"ClientSetting", L"EnableTamperProtection:N EnableTelemetry:N AdminPasswordHash:S",
           L"UserInterface Update! FirefoxSetting"},
          {L"UserInterface", L"UISilentMode:N", L""},
          {L"Update", L"Frequency:N!", L"Download!"},
          {L"Download", L"NewVersion:S!", L""},
          {L"FirefoxSetting", L"FirefoxConfigCFGFileName:S FirefoxConfigJSFileName:S", L""},
          {L"LocalProxySetting", L"EnableLocalProxySetting:N! SaveNetworkSettingMode:N",
           L"IEProxySetting UserProxySetting"},
          {L"IEProxySetting", L"ProxySetting:S", L""},
          {L"UserProxySetting", L"", L"IEUserProxySetting*"},
          {L"IEUserProxySetting", L"UserID:S! ProxySetting:S CurrentUserProxyURL:S", L""},
          {L"LogUploadSetting", L"LogUploadURL:S! LogUploadFrequency:N!", L""},
      }),
      WithActiveDirectory(Departures{
          .texts = {kTelemetry,
                    {L"XMLManager: write optional element failed. element:ActiveDirectory",
                     L"XMLManager: write require element failed. element:ActiveDirectory"}}}));
}

inline Example CiExample() {
  return Example(
      "ci.xml",
      [] { return Example::Node(CIConfInterface::ICIClientConfiguration_CreateNewInstance()); },
      {
          {L"ICIClientConfiguration", kRoot, L"Connection! ClientSetting! TrustedSites"},
          {L"Connection", L"DoNotSendUserName:N! FailClosed:N!", L"EIMConnection!"},
          {L"EIMConnection", L"", L"EIMServerArray!"},
          {L"EIMServerArray", L"", L"EIMServer*"},
          {L"EIMServer", L"HostName:S! PortNumber:N!", L""},
          {L"ClientSetting", L"EnableTamperProtection:N EnableTelemetry:N", L"UserInterface!"},
          {L"UserInterface",
           L"UISilentMode:N! DisplayHTTPSBlockMsg:N! HTTPSBlockMsgInterval:N! "
           L"DisplayFTPBlockMsg:N! FTPBlockMsgInterval:N! UITimeout:N!",
           L""},
          {L"TrustedSites", L"", L"URLCondition*"},
          {L"URLCondition", L"SiteURL:S!", L""},
      },
      {.texts = {kTelemetry}});
}

inline Example RemoteFilteringExample() {
  return Example(
      "remote-filtering.xml",
      [] { return Example::Node(RFConfInterface::IRFClientConfiguration_CreateNewInstance()); },
      {
          {L"IRFClientConfiguration", kRoot, L"Connection! ClientSetting! RFTrustedSites"},
          {L"Connection", L"", L"InternalConnection! ExternalConnection!"},
          {L"InternalConnection", L"HeartbeatRetryInterval:N!", L"InternalRFServerArray!"},
          {L"InternalRFServerArray", L"", L"RFServer*"},
          {L"ExternalConnection",
           L"HeartbeatRetryInterval:N! FailClosed:N! FailClosedTimeout:N! FilterHTTPS:N! "
           L"FilterFTP:N! URLLookupAndLog:N!",
           L"ExternalRFServerArray!"},
          {L"ExternalRFServerArray", L"", L"RFServer*"},
          {L"RFServer", L"HostName:S! PortNumber:N!", L""},
          {L"ClientSetting",
           L"EnableTamperProtection:N EnableTelemetry:N? DisableFiltering:N! AdminPasswordHash:S",
           L"UserInterface!"},
          {L"UserInterface", L"UISilentMode:N! UITimeout:N!", L""},
          {L"RFTrustedSites", L"", L"RFURLCondition*"},
          {L"RFURLCondition", L"SiteURL:S!", L""},
      },
      {.texts = {kTelemetry}});
}

}  // namespace tolva::test
