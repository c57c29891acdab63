// The accessors of the module client configurations.
#include "support/accessors.h"

namespace tolva::test {
namespace {

TEST(ModuleAccessors, ReachTheirFieldsInNg) {
  using namespace NGConfInterface;
  Accessors<IScanEngineBasicSetting>(L"ScanEngineBasicSetting",
                                     &ScanEngineBasicSetting_CreateNewInstance)
      .Attribute(L"EnableSSLProxy", &IScanEngineBasicSetting::GetEnableSSLProxy,
                 &IScanEngineBasicSetting::SetEnableSSLProxy)
      .Attribute(L"EnableThreatScan", &IScanEngineBasicSetting::GetEnableThreatScan,
                 &IScanEngineBasicSetting::SetEnableThreatScan)
      .Attribute(L"EnableURLLocalCache", &IScanEngineBasicSetting::GetEnableURLLocalCache,
                 &IScanEngineBasicSetting::SetEnableURLLocalCache)
      .Attribute(L"EnableWebsiteVerification",
                 &IScanEngineBasicSetting::GetEnableWebsiteVerification,
                 &IScanEngineBasicSetting::SetEnableWebsiteVerification)
      .Attribute(L"InspectHostnameOnly", &IScanEngineBasicSetting::GetInspectHostnameOnly,
                 &IScanEngineBasicSetting::SetInspectHostnameOnly)
      .Attribute(L"LocalNonSSLRedirPort", &IScanEngineBasicSetting::GetLocalNonSSLRedirPort,
                 &IScanEngineBasicSetting::SetLocalNonSSLRedirPort)
      .Attribute(L"LocalSSLRedirPort", &IScanEngineBasicSetting::GetLocalSSLRedirPort,
                 &IScanEngineBasicSetting::SetLocalSSLRedirPort)
      .Attribute(L"IgnoreInvalidCertificate", &IScanEngineBasicSetting::GetIgnoreInvalidCertificate,
                 &IScanEngineBasicSetting::SetIgnoreInvalidCertificate)
      .Attribute(L"StatsPeriod", &IScanEngineBasicSetting::GetStatsPeriod,
                 &IScanEngineBasicSetting::SetStatsPeriod)
      .Attribute(L"SSLStandbyDecryption", &IScanEngineBasicSetting::GetSSLStandbyDecryption,
                 &IScanEngineBasicSetting::SetSSLStandbyDecryption);
  Accessors<IScanEngineSSLSetting>(L"ScanEngineSSLSetting", &ScanEngineSSLSetting_CreateNewInstance)
      .Attribute(L"CRLFileName", &IScanEngineSSLSetting::GetCRLFileName,
                 &IScanEngineSSLSetting::SetCRLFileName)
      .Attribute(L"ClientCerFileName", &IScanEngineSSLSetting::GetClientCerFileName,
                 &IScanEngineSSLSetting::SetClientCerFileName)
      .Attribute(L"RootCAFileName", &IScanEngineSSLSetting::GetRootCAFileName,
                 &IScanEngineSSLSetting::SetRootCAFileName)
      .Attribute(L"RootDN", &IScanEngineSSLSetting::GetRootDN, &IScanEngineSSLSetting::SetRootDN)
      .Attribute(L"ServerCerFileName", &IScanEngineSSLSetting::GetServerCerFileName,
                 &IScanEngineSSLSetting::SetServerCerFileName)
      .Attribute(L"ServerCertSubject", &IScanEngineSSLSetting::GetServerCertSubject,
                 &IScanEngineSSLSetting::SetServerCertSubject);
  Accessors<IIPNode>(L"IPNode", &IPNode_CreateNewInstance)
      .Attribute(L"IPRange", &IIPNode::GetIPRange, &IIPNode::SetIPRange)
      .Attribute(L"PortNumber", &IIPNode::GetPortNumber, &IIPNode::SetPortNumber);
  Accessors<IScanEngineEnforceLists>(L"ScanEngineEnforceLists",
                                     &ScanEngineEnforceLists_CreateNewInstance)
      .Attribute(L"DomainLists", &IScanEngineEnforceLists::GetDomainLists,
                 &IScanEngineEnforceLists::SetDomainLists)
      .Attribute(L"ProcessNames", &IScanEngineEnforceLists::GetProcessNames,
                 &IScanEngineEnforceLists::SetProcessNames)
      .List(L"IPNode", &IScanEngineEnforceLists::GetIPNodeCount,
            &IScanEngineEnforceLists::GetIPNodeAt, &IScanEngineEnforceLists::AddIPNode,
            &IScanEngineEnforceLists::InsertIPNodeAt, &IScanEngineEnforceLists::RemoveIPNodeAt,
            &IScanEngineEnforceLists::RemoveAllIPNode, &IPNode_CreateNewInstance);
  Accessors<IScanEngineWhiteLists>(L"ScanEngineWhiteLists", &ScanEngineWhiteLists_CreateNewInstance)
      .Attribute(L"DomainLists", &IScanEngineWhiteLists::GetDomainLists,
                 &IScanEngineWhiteLists::SetDomainLists)
      .Attribute(L"ProcessNames", &IScanEngineWhiteLists::GetProcessNames,
                 &IScanEngineWhiteLists::SetProcessNames)
      .Attribute(L"VPNDescList", &IScanEngineWhiteLists::GetVPNDescList,
                 &IScanEngineWhiteLists::SetVPNDescList)
      .Attribute(L"SNIHostList", &IScanEngineWhiteLists::GetSNIHostList,
                 &IScanEngineWhiteLists::SetSNIHostList)
      .List(L"IPNode", &IScanEngineWhiteLists::GetIPNodeCount, &IScanEngineWhiteLists::GetIPNodeAt,
            &IScanEngineWhiteLists::AddIPNode, &IScanEngineWhiteLists::InsertIPNodeAt,
            &IScanEngineWhiteLists::RemoveIPNodeAt, &IScanEngineWhiteLists::RemoveAllIPNode,
            &IPNode_CreateNewInstance);
  Accessors<IScanSetting>(L"ScanSetting", &ScanSetting_CreateNewInstance)
      .Attribute(L"Context", &IScanSetting::GetContext, &IScanSetting::SetContext)
      .Attribute(L"DispServerHostname", &IScanSetting::GetDispServerHostname,
                 &IScanSetting::SetDispServerHostname)
      .Attribute(L"EnableDetectHybrid", &IScanSetting::GetEnableDetectHybrid,
                 &IScanSetting::SetEnableDetectHybrid)
      .Attribute(L"HybridModeDetectString", &IScanSetting::GetHybridModeDetectString,
                 &IScanSetting::SetHybridModeDetectString)
      .Attribute(L"EnableFailureOpen", &IScanSetting::GetEnableFailureOpen,
                 &IScanSetting::SetEnableFailureOpen)
      .Attribute(L"MaxConnectionsPerServer", &IScanSetting::GetMaxConnectionsPerServer,
                 &IScanSetting::SetMaxConnectionsPerServer)
      .Attribute(L"UserAgent", &IScanSetting::GetUserAgent, &IScanSetting::SetUserAgent)
      .Attribute(L"EnforceProxyServer", &IScanSetting::GetEnforceProxyServer,
                 &IScanSetting::SetEnforceProxyServer)
      .Attribute(L"BypassPrivateIP", &IScanSetting::GetBypassPrivateIP,
                 &IScanSetting::SetBypassPrivateIP)
      .Attribute(L"BypassLocalIP", &IScanSetting::GetBypassLocalIP, &IScanSetting::SetBypassLocalIP)
      .Attribute(L"BypassPlainHostName", &IScanSetting::GetBypassPlainHostName,
                 &IScanSetting::SetBypassPlainHostName)
      .Child(L"ScanEngineEnforceLists", &IScanSetting::GetScanEngineEnforceLists,
             &IScanSetting::SetScanEngineEnforceLists, &ScanEngineEnforceLists_CreateNewInstance)
      .Child(L"ScanEngineWhiteLists", &IScanSetting::GetScanEngineWhiteLists,
             &IScanSetting::SetScanEngineWhiteLists, &ScanEngineWhiteLists_CreateNewInstance);
  Accessors<IClientRequestHeader>(L"ClientRequestHeader", &ClientRequestHeader_CreateNewInstance)
      .Attribute(L"HeaderName", &IClientRequestHeader::GetHeaderName,
                 &IClientRequestHeader::SetHeaderName);
  Accessors<IContentUploadSetting>(L"ContentUploadSetting", &ContentUploadSetting_CreateNewInstance)
      .Attribute(L"ContentUpload", &IContentUploadSetting::GetContentUpload,
                 &IContentUploadSetting::SetContentUpload)
      .Attribute(L"MaxSizeForScan", &IContentUploadSetting::GetMaxSizeForScan,
                 &IContentUploadSetting::SetMaxSizeForScan)
      .Attribute(L"FileTypesToBlock", &IContentUploadSetting::GetFileTypesToBlock,
                 &IContentUploadSetting::SetFileTypesToBlock)
      .Attribute(L"FileTypesToScan", &IContentUploadSetting::GetFileTypesToScan,
                 &IContentUploadSetting::SetFileTypesToScan)
      .List(L"ClientRequestHeader", &IContentUploadSetting::GetClientRequestHeaderCount,
            &IContentUploadSetting::GetClientRequestHeaderAt,
            &IContentUploadSetting::AddClientRequestHeader,
            &IContentUploadSetting::InsertClientRequestHeaderAt,
            &IContentUploadSetting::RemoveClientRequestHeaderAt,
            &IContentUploadSetting::RemoveAllClientRequestHeader,
            &ClientRequestHeader_CreateNewInstance);
  Accessors<IScanEngineConfiguration>(L"ScanEngineConfiguration",
                                      &ScanEngineConfiguration_CreateNewInstance)
      .Child(L"ScanEngineBasicSetting", &IScanEngineConfiguration::GetScanEngineBasicSetting,
             &IScanEngineConfiguration::SetScanEngineBasicSetting,
             &ScanEngineBasicSetting_CreateNewInstance)
      .Child(L"ScanEngineSSLSetting", &IScanEngineConfiguration::GetScanEngineSSLSetting,
             &IScanEngineConfiguration::SetScanEngineSSLSetting,
             &ScanEngineSSLSetting_CreateNewInstance)
      .Child(L"ScanSetting", &IScanEngineConfiguration::GetScanSetting,
             &IScanEngineConfiguration::SetScanSetting, &ScanSetting_CreateNewInstance)
      .Child(L"ContentUploadSetting", &IScanEngineConfiguration::GetContentUploadSetting,
             &IScanEngineConfiguration::SetContentUploadSetting,
             &ContentUploadSetting_CreateNewInstance);
  Accessors<IServerCommunication>(L"ServerCommunication", &ServerCommunication_CreateNewInstance)
      .Attribute(L"ManagementQueryInterval", &IServerCommunication::GetManagementQueryInterval,
                 &IServerCommunication::SetManagementQueryInterval)
      .Attribute(L"ManagementServerHostname", &IServerCommunication::GetManagementServerHostname,
                 &IServerCommunication::SetManagementServerHostname);
  Accessors<ILogReport>(L"LogReport", &LogReport_CreateNewInstance)
      .Attribute(L"LogReportInterval", &ILogReport::GetLogReportInterval,
                 &ILogReport::SetLogReportInterval)
      .Attribute(L"LogReportServerHostname", &ILogReport::GetLogReportServerHostname,
                 &ILogReport::SetLogReportServerHostname)
      .Attribute(L"MaxUploadSize", &ILogReport::GetMaxUploadSize, &ILogReport::SetMaxUploadSize)
      .Attribute(L"EventLogReportServerHostname", &ILogReport::GetEventLogReportServerHostname,
                 &ILogReport::SetEventLogReportServerHostname);
  Accessors<INGUser>(L"NGUser", &NGUser_CreateNewInstance)
      .Attribute(L"Name", &INGUser::GetName, &INGUser::SetName)
      .Attribute(L"EnableTrayIconMenu", &INGUser::GetEnableTrayIconMenu,
                 &INGUser::SetEnableTrayIconMenu);
  Accessors<INGUserSetting>(L"NGUserSetting", &NGUserSetting_CreateNewInstance)
      .List(L"NGUser", &INGUserSetting::GetNGUserCount, &INGUserSetting::GetNGUserAt,
            &INGUserSetting::AddNGUser, &INGUserSetting::InsertNGUserAt,
            &INGUserSetting::RemoveNGUserAt, &INGUserSetting::RemoveAllNGUser,
            &NGUser_CreateNewInstance);
  Accessors<INGFirefoxSetting>(L"NGFirefoxSetting", &NGFirefoxSetting_CreateNewInstance)
      .Attribute(L"FirefoxConfigCFGFileName", &INGFirefoxSetting::GetFirefoxConfigCFGFileName,
                 &INGFirefoxSetting::SetFirefoxConfigCFGFileName)
      .Attribute(L"FirefoxConfigJSFileName", &INGFirefoxSetting::GetFirefoxConfigJSFileName,
                 &INGFirefoxSetting::SetFirefoxConfigJSFileName);
  Accessors<IClientManagement>(L"ClientManagement", &ClientManagement_CreateNewInstance)
      .Attribute(L"EnableTrayIconMenu", &IClientManagement::GetEnableTrayIconMenu,
                 &IClientManagement::SetEnableTrayIconMenu)
      .Child(L"ServerCommunication", &IClientManagement::GetServerCommunication,
             &IClientManagement::SetServerCommunication, &ServerCommunication_CreateNewInstance)
      .Child(L"LogReport", &IClientManagement::GetLogReport, &IClientManagement::SetLogReport,
             &LogReport_CreateNewInstance)
      .Child(L"NGUserSetting", &IClientManagement::GetNGUserSetting,
             &IClientManagement::SetNGUserSetting, &NGUserSetting_CreateNewInstance)
      .Child(L"NGFirefoxSetting", &IClientManagement::GetNGFirefoxSetting,
             &IClientManagement::SetNGFirefoxSetting, &NGFirefoxSetting_CreateNewInstance);
  Accessors<IHTTPHeader>(L"HTTPHeader", &HTTPHeader_CreateNewInstance)
      .Attribute(L"HeaderName", &IHTTPHeader::GetHeaderName, &IHTTPHeader::SetHeaderName)
      .Attribute(L"HeaderValue", &IHTTPHeader::GetHeaderValue, &IHTTPHeader::SetHeaderValue);
  Accessors<IHTTPRequestHeaders>(L"HTTPRequestHeaders", &HTTPRequestHeaders_CreateNewInstance)
      .List(L"HTTPHeader", &IHTTPRequestHeaders::GetHTTPHeaderCount,
            &IHTTPRequestHeaders::GetHTTPHeaderAt, &IHTTPRequestHeaders::AddHTTPHeader,
            &IHTTPRequestHeaders::InsertHTTPHeaderAt, &IHTTPRequestHeaders::RemoveHTTPHeaderAt,
            &IHTTPRequestHeaders::RemoveAllHTTPHeader, &HTTPHeader_CreateNewInstance);
  Accessors<ICloudServerComunication>(L"CloudServerComunication",
                                      &CloudServerComunication_CreateNewInstance)
      .Child(L"HTTPRequestHeaders", &ICloudServerComunication::GetHTTPRequestHeaders,
             &ICloudServerComunication::SetHTTPRequestHeaders,
             &HTTPRequestHeaders_CreateNewInstance);
  Accessors<IINGClientConfiguration>(L"INGClientConfiguration",
                                     &INGClientConfiguration_CreateNewInstance)
      .Attribute(L"SchemaVersion", &IINGClientConfiguration::GetSchemaVersion,
                 &IINGClientConfiguration::SetSchemaVersion)
      .Attribute(L"SN", &IINGClientConfiguration::GetSN, &IINGClientConfiguration::SetSN)
      .Attribute(L"Name", &IINGClientConfiguration::GetName, &IINGClientConfiguration::SetName)
      .Attribute(L"UpdateDate", &IINGClientConfiguration::GetUpdateDate,
                 &IINGClientConfiguration::SetUpdateDate)
      .Attribute(L"RefId", &IINGClientConfiguration::GetRefId, &IINGClientConfiguration::SetRefId)
      .Child(L"ClientManagement", &IINGClientConfiguration::GetClientManagement,
             &IINGClientConfiguration::SetClientManagement, &ClientManagement_CreateNewInstance)
      .Child(L"ScanEngineConfiguration", &IINGClientConfiguration::GetScanEngineConfiguration,
             &IINGClientConfiguration::SetScanEngineConfiguration,
             &ScanEngineConfiguration_CreateNewInstance)
      .Child(L"CloudServerComunication", &IINGClientConfiguration::GetCloudServerComunication,
             &IINGClientConfiguration::SetCloudServerComunication,
             &CloudServerComunication_CreateNewInstance);
}

TEST(ModuleAccessors, ReachTheirFieldsInGlobal) {
  using namespace GlobalConfInterface;
  Accessors<IEPClientSetting>(L"EPClientSetting", &EPClientSetting_CreateNewInstance, L"param")
      .Attribute(L"EnableTamperProtection", &IEPClientSetting::GetEnableTamperProtection,
                 &IEPClientSetting::SetEnableTamperProtection)
      .Attribute(L"EnableTelemetry", &IEPClientSetting::GetEnableTelemetry,
                 &IEPClientSetting::SetEnableTelemetry)
      .Attribute(L"AdminPasswordHash", &IEPClientSetting::GetAdminPasswordHash,
                 &IEPClientSetting::SetAdminPasswordHash)
      .Attribute(L"InstallDirectory", &IEPClientSetting::GetInstallDirectory,
                 &IEPClientSetting::SetInstallDirectory);
  Accessors<IUpdateServer>(L"UpdateServer", &UpdateServer_CreateNewInstance, L"param")
      .Attribute(L"URL", &IUpdateServer::GetURL, &IUpdateServer::SetURL)
      .Attribute(L"SendPII", &IUpdateServer::GetSendPII, &IUpdateServer::SetSendPII);
  Accessors<IAutoUpdate>(L"AutoUpdate", &AutoUpdate_CreateNewInstance, L"param")
      .Attribute(L"Frequency", &IAutoUpdate::GetFrequency, &IAutoUpdate::SetFrequency)
      .Child(L"UpdateServer", &IAutoUpdate::GetUpdateServer, &IAutoUpdate::SetUpdateServer,
             &UpdateServer_CreateNewInstance);
  Accessors<ISetting>(L"Setting", &Setting_CreateNewInstance, L"param")
      .Enum(L"AppName", &ISetting::GetAppName, &ISetting::SetAppName, 1, "CHROME")
      .Attribute(L"AppFileName", &ISetting::GetAppFileName, &ISetting::SetAppFileName)
      .Attribute(L"AppVersionMajor", &ISetting::GetAppVersionMajor, &ISetting::SetAppVersionMajor)
      .Attribute(L"AppVersionMinor", &ISetting::GetAppVersionMinor, &ISetting::SetAppVersionMinor)
      .Attribute(L"MinimumWindowsBuild", &ISetting::GetMinimumWindowsBuild,
                 &ISetting::SetMinimumWindowsBuild)
      .Attribute(L"MinimumMacBuild", &ISetting::GetMinimumMacBuild, &ISetting::SetMinimumMacBuild);
  Accessors<IWebProxyEndpoint>(L"WebProxyEndpoint", &WebProxyEndpoint_CreateNewInstance)
      .List(L"Setting", &IWebProxyEndpoint::GetSettingCount, &IWebProxyEndpoint::GetSettingAt,
            &IWebProxyEndpoint::AddSetting, &IWebProxyEndpoint::InsertSettingAt,
            &IWebProxyEndpoint::RemoveSettingAt, &IWebProxyEndpoint::RemoveAllSetting,
            &Setting_CreateNewInstance);
  Accessors<IDataEndpoint>(L"DataEndpoint", &DataEndpoint_CreateNewInstance)
      .List(L"Setting", &IDataEndpoint::GetSettingCount, &IDataEndpoint::GetSettingAt,
            &IDataEndpoint::AddSetting, &IDataEndpoint::InsertSettingAt,
            &IDataEndpoint::RemoveSettingAt, &IDataEndpoint::RemoveAllSetting,
            &Setting_CreateNewInstance);
  Accessors<IWebDirectEndpoint>(L"WebDirectEndpoint", &WebDirectEndpoint_CreateNewInstance)
      .List(L"Setting", &IWebDirectEndpoint::GetSettingCount, &IWebDirectEndpoint::GetSettingAt,
            &IWebDirectEndpoint::AddSetting, &IWebDirectEndpoint::InsertSettingAt,
            &IWebDirectEndpoint::RemoveSettingAt, &IWebDirectEndpoint::RemoveAllSetting,
            &Setting_CreateNewInstance);
  Accessors<IRemoteFilteringClient>(L"RemoteFilteringClient",
                                    &RemoteFilteringClient_CreateNewInstance)
      .List(L"Setting", &IRemoteFilteringClient::GetSettingCount,
            &IRemoteFilteringClient::GetSettingAt, &IRemoteFilteringClient::AddSetting,
            &IRemoteFilteringClient::InsertSettingAt, &IRemoteFilteringClient::RemoveSettingAt,
            &IRemoteFilteringClient::RemoveAllSetting, &Setting_CreateNewInstance);
  Accessors<ICustomSetting>(L"CustomSetting", &CustomSetting_CreateNewInstance, L"param")
      .Attribute(L"EnableCustomSetting", &ICustomSetting::GetEnableCustomSetting,
                 &ICustomSetting::SetEnableCustomSetting)
      .Attribute(L"SchemaVersion", &ICustomSetting::GetSchemaVersion,
                 &ICustomSetting::SetSchemaVersion)
      .Attribute(L"Description", &ICustomSetting::GetDescription, &ICustomSetting::SetDescription)
      .Child(L"WebProxyEndpoint", &ICustomSetting::GetWebProxyEndpoint,
             &ICustomSetting::SetWebProxyEndpoint, &WebProxyEndpoint_CreateNewInstance)
      .Child(L"DataEndpoint", &ICustomSetting::GetDataEndpoint, &ICustomSetting::SetDataEndpoint,
             &DataEndpoint_CreateNewInstance)
      .Child(L"WebDirectEndpoint", &ICustomSetting::GetWebDirectEndpoint,
             &ICustomSetting::SetWebDirectEndpoint, &WebDirectEndpoint_CreateNewInstance)
      .Child(L"RemoteFilteringClient", &ICustomSetting::GetRemoteFilteringClient,
             &ICustomSetting::SetRemoteFilteringClient, &RemoteFilteringClient_CreateNewInstance);
  Accessors<IZanFirefoxSetting>(L"ZanFirefoxSetting", &ZanFirefoxSetting_CreateNewInstance,
                                L"param")
      .Attribute(L"FirefoxConfigCFGFileName", &IZanFirefoxSetting::GetFirefoxConfigCFGFileName,
                 &IZanFirefoxSetting::SetFirefoxConfigCFGFileName)
      .Attribute(L"FirefoxConfigJSFileName", &IZanFirefoxSetting::GetFirefoxConfigJSFileName,
                 &IZanFirefoxSetting::SetFirefoxConfigJSFileName);
  Accessors<IIGLOBALClientConfiguration>(L"IGLOBALClientConfiguration",
                                         &IGLOBALClientConfiguration_CreateNewInstance, L"param")
      .Attribute(L"SchemaVersion", &IIGLOBALClientConfiguration::GetSchemaVersion,
                 &IIGLOBALClientConfiguration::SetSchemaVersion)
      .Attribute(L"SN", &IIGLOBALClientConfiguration::GetSN, &IIGLOBALClientConfiguration::SetSN)
      .Attribute(L"Name", &IIGLOBALClientConfiguration::GetName,
                 &IIGLOBALClientConfiguration::SetName)
      .Attribute(L"UpdateDate", &IIGLOBALClientConfiguration::GetUpdateDate,
                 &IIGLOBALClientConfiguration::SetUpdateDate)
      .Attribute(L"RefId", &IIGLOBALClientConfiguration::GetRefId,
                 &IIGLOBALClientConfiguration::SetRefId)
      .Child(L"EPClientSetting", &IIGLOBALClientConfiguration::GetEPClientSetting,
             &IIGLOBALClientConfiguration::SetEPClientSetting, &EPClientSetting_CreateNewInstance)
      .Child(L"AutoUpdate", &IIGLOBALClientConfiguration::GetAutoUpdate,
             &IIGLOBALClientConfiguration::SetAutoUpdate, &AutoUpdate_CreateNewInstance)
      .Child(L"CustomSetting", &IIGLOBALClientConfiguration::GetCustomSetting,
             &IIGLOBALClientConfiguration::SetCustomSetting, &CustomSetting_CreateNewInstance)
      .Child(L"ZanFirefoxSetting", &IIGLOBALClientConfiguration::GetZanFirefoxSetting,
             &IIGLOBALClientConfiguration::SetZanFirefoxSetting,
             &ZanFirefoxSetting_CreateNewInstance);
}

TEST(ModuleAccessors, ReachTheirFieldsInProxy) {
  using namespace ProxyClientConfig;
  Accessors<IPACFile>(L"PACFile", &PACFile_CreateNewInstance)
      .Attribute(L"URL", &IPACFile::GetURL, &IPACFile::SetURL);
  Accessors<IAppWhiteList>(L"AppWhiteList", &AppWhiteList_CreateNewInstance)
      .Attribute(L"AppNames", &IAppWhiteList::GetAppNames, &IAppWhiteList::SetAppNames);
  Accessors<IProxySetting>(L"ProxySetting", &ProxySetting_CreateNewInstance)
      .Child(L"PACFile", &IProxySetting::GetPACFile, &IProxySetting::SetPACFile,
             &PACFile_CreateNewInstance)
      .Child(L"AppWhiteList", &IProxySetting::GetAppWhiteList, &IProxySetting::SetAppWhiteList,
             &AppWhiteList_CreateNewInstance);
  Accessors<IUserInterface>(L"UserInterface", &UserInterface_CreateNewInstance)
      .Attribute(L"UISilentMode", &IUserInterface::GetUISilentMode,
                 &IUserInterface::SetUISilentMode);
  Accessors<IDownload>(L"Download", &Download_CreateNewInstance)
      .Attribute(L"NewVersion", &IDownload::GetNewVersion, &IDownload::SetNewVersion);
  Accessors<IUpdate>(L"Update", &Update_CreateNewInstance)
      .Attribute(L"Frequency", &IUpdate::GetFrequency, &IUpdate::SetFrequency)
      .Child(L"Download", &IUpdate::GetDownload, &IUpdate::SetDownload,
             &Download_CreateNewInstance);
  Accessors<IFirefoxSetting>(L"FirefoxSetting", &FirefoxSetting_CreateNewInstance)
      .Attribute(L"FirefoxConfigCFGFileName", &IFirefoxSetting::GetFirefoxConfigCFGFileName,
                 &IFirefoxSetting::SetFirefoxConfigCFGFileName)
      .Attribute(L"FirefoxConfigJSFileName", &IFirefoxSetting::GetFirefoxConfigJSFileName,
                 &IFirefoxSetting::SetFirefoxConfigJSFileName);
  Accessors<IClientSetting>(L"ClientSetting", &ClientSetting_CreateNewInstance)
      .Attribute(L"EnableTamperProtection", &IClientSetting::GetEnableTamperProtection,
                 &IClientSetting::SetEnableTamperProtection)
      .Attribute(L"EnableTelemetry", &IClientSetting::GetEnableTelemetry,
                 &IClientSetting::SetEnableTelemetry)
      .Attribute(L"AdminPasswordHash", &IClientSetting::GetAdminPasswordHash,
                 &IClientSetting::SetAdminPasswordHash)
      .Child(L"UserInterface", &IClientSetting::GetUserInterface, &IClientSetting::SetUserInterface,
             &UserInterface_CreateNewInstance)
      .Child(L"Update", &IClientSetting::GetUpdate, &IClientSetting::SetUpdate,
             &Update_CreateNewInstance)
      .Child(L"FirefoxSetting", &IClientSetting::GetFirefoxSetting,
             &IClientSetting::SetFirefoxSetting, &FirefoxSetting_CreateNewInstance);
  Accessors<IIEProxySetting>(L"IEProxySetting", &IEProxySetting_CreateNewInstance)
      .Attribute(L"ProxySetting", &IIEProxySetting::GetProxySetting,
                 &IIEProxySetting::SetProxySetting);
  Accessors<IIEUserProxySetting>(L"IEUserProxySetting", &IEUserProxySetting_CreateNewInstance)
      .Attribute(L"UserID", &IIEUserProxySetting::GetUserID, &IIEUserProxySetting::SetUserID)
      .Attribute(L"ProxySetting", &IIEUserProxySetting::GetProxySetting,
                 &IIEUserProxySetting::SetProxySetting)
      .Attribute(L"CurrentUserProxyURL", &IIEUserProxySetting::GetCurrentUserProxyURL,
                 &IIEUserProxySetting::SetCurrentUserProxyURL);
  Accessors<IUserProxySetting>(L"UserProxySetting", &UserProxySetting_CreateNewInstance)
      .List(L"IEUserProxySetting", &IUserProxySetting::GetIEUserProxySettingCount,
            &IUserProxySetting::GetIEUserProxySettingAt, &IUserProxySetting::AddIEUserProxySetting,
            &IUserProxySetting::InsertIEUserProxySettingAt,
            &IUserProxySetting::RemoveIEUserProxySettingAt,
            &IUserProxySetting::RemoveAllIEUserProxySetting, &IEUserProxySetting_CreateNewInstance);
  Accessors<ILocalProxySetting>(L"LocalProxySetting", &LocalProxySetting_CreateNewInstance)
      .Attribute(L"EnableLocalProxySetting", &ILocalProxySetting::GetEnableLocalProxySetting,
                 &ILocalProxySetting::SetEnableLocalProxySetting)
      .Attribute(L"SaveNetworkSettingMode", &ILocalProxySetting::GetSaveNetworkSettingMode,
                 &ILocalProxySetting::SetSaveNetworkSettingMode)
      .Child(L"IEProxySetting", &ILocalProxySetting::GetIEProxySetting,
             &ILocalProxySetting::SetIEProxySetting, &IEProxySetting_CreateNewInstance)
      .Child(L"UserProxySetting", &ILocalProxySetting::GetUserProxySetting,
             &ILocalProxySetting::SetUserProxySetting, &UserProxySetting_CreateNewInstance);
  Accessors<ILogUploadSetting>(L"LogUploadSetting", &LogUploadSetting_CreateNewInstance)
      .Attribute(L"LogUploadURL", &ILogUploadSetting::GetLogUploadURL,
                 &ILogUploadSetting::SetLogUploadURL)
      .Attribute(L"LogUploadFrequency", &ILogUploadSetting::GetLogUploadFrequency,
                 &ILogUploadSetting::SetLogUploadFrequency);
  Accessors<IIPXYClientConfiguration>(L"IPXYClientConfiguration",
                                      &IPXYClientConfiguration_CreateNewInstance)
      .Attribute(L"SchemaVersion", &IIPXYClientConfiguration::GetSchemaVersion,
                 &IIPXYClientConfiguration::SetSchemaVersion)
      .Attribute(L"SN", &IIPXYClientConfiguration::GetSN, &IIPXYClientConfiguration::SetSN)
      .Attribute(L"Name", &IIPXYClientConfiguration::GetName, &IIPXYClientConfiguration::SetName)
      .Attribute(L"UpdateDate", &IIPXYClientConfiguration::GetUpdateDate,
                 &IIPXYClientConfiguration::SetUpdateDate)
      .Attribute(L"RefId", &IIPXYClientConfiguration::GetRefId, &IIPXYClientConfiguration::SetRefId)
      .Child(L"ProxySetting", &IIPXYClientConfiguration::GetProxySetting,
             &IIPXYClientConfiguration::SetProxySetting, &ProxySetting_CreateNewInstance)
      .Child(L"ClientSetting", &IIPXYClientConfiguration::GetClientSetting,
             &IIPXYClientConfiguration::SetClientSetting, &ClientSetting_CreateNewInstance)
      .Child(L"LocalProxySetting", &IIPXYClientConfiguration::GetLocalProxySetting,
             &IIPXYClientConfiguration::SetLocalProxySetting, &LocalProxySetting_CreateNewInstance)
      .Child(L"LogUploadSetting", &IIPXYClientConfiguration::GetLogUploadSetting,
             &IIPXYClientConfiguration::SetLogUploadSetting, &LogUploadSetting_CreateNewInstance);
}

TEST(ModuleAccessors, ReachTheirFieldsInCi) {
  using namespace CIConfInterface;
  Accessors<IEIMServer>(L"EIMServer", &EIMServer_CreateNewInstance)
      .Attribute(L"HostName", &IEIMServer::GetHostName, &IEIMServer::SetHostName)
      .Attribute(L"PortNumber", &IEIMServer::GetPortNumber, &IEIMServer::SetPortNumber);
  Accessors<IEIMServerArray>(L"EIMServerArray", &EIMServerArray_CreateNewInstance)
      .List(L"EIMServer", &IEIMServerArray::GetEIMServerCount, &IEIMServerArray::GetEIMServerAt,
            &IEIMServerArray::AddEIMServer, &IEIMServerArray::InsertEIMServerAt,
            &IEIMServerArray::RemoveEIMServerAt, &IEIMServerArray::RemoveAllEIMServer,
            &EIMServer_CreateNewInstance);
  Accessors<IEIMConnection>(L"EIMConnection", &EIMConnection_CreateNewInstance)
      .Child(L"EIMServerArray", &IEIMConnection::GetEIMServerArray,
             &IEIMConnection::SetEIMServerArray, &EIMServerArray_CreateNewInstance);
  Accessors<IConnection>(L"Connection", &Connection_CreateNewInstance)
      .Attribute(L"DoNotSendUserName", &IConnection::GetDoNotSendUserName,
                 &IConnection::SetDoNotSendUserName)
      .Attribute(L"FailClosed", &IConnection::GetFailClosed, &IConnection::SetFailClosed)
      .Child(L"EIMConnection", &IConnection::GetEIMConnection, &IConnection::SetEIMConnection,
             &EIMConnection_CreateNewInstance);
  Accessors<IUserInterface>(L"UserInterface", &UserInterface_CreateNewInstance)
      .Attribute(L"UISilentMode", &IUserInterface::GetUISilentMode,
                 &IUserInterface::SetUISilentMode)
      .Attribute(L"DisplayHTTPSBlockMsg", &IUserInterface::GetDisplayHTTPSBlockMsg,
                 &IUserInterface::SetDisplayHTTPSBlockMsg)
      .Attribute(L"HTTPSBlockMsgInterval", &IUserInterface::GetHTTPSBlockMsgInterval,
                 &IUserInterface::SetHTTPSBlockMsgInterval)
      .Attribute(L"DisplayFTPBlockMsg", &IUserInterface::GetDisplayFTPBlockMsg,
                 &IUserInterface::SetDisplayFTPBlockMsg)
      .Attribute(L"FTPBlockMsgInterval", &IUserInterface::GetFTPBlockMsgInterval,
                 &IUserInterface::SetFTPBlockMsgInterval)
      .Attribute(L"UITimeout", &IUserInterface::GetUITimeout, &IUserInterface::SetUITimeout);
  Accessors<IClientSetting>(L"ClientSetting", &ClientSetting_CreateNewInstance)
      .Attribute(L"EnableTamperProtection", &IClientSetting::GetEnableTamperProtection,
                 &IClientSetting::SetEnableTamperProtection)
      .Attribute(L"EnableTelemetry", &IClientSetting::GetEnableTelemetry,
                 &IClientSetting::SetEnableTelemetry)
      .Child(L"UserInterface", &IClientSetting::GetUserInterface, &IClientSetting::SetUserInterface,
             &UserInterface_CreateNewInstance);
  Accessors<IURLCondition>(L"URLCondition", &URLCondition_CreateNewInstance)
      .Attribute(L"SiteURL", &IURLCondition::GetSiteURL, &IURLCondition::SetSiteURL);
  Accessors<ITrustedSites>(L"TrustedSites", &TrustedSites_CreateNewInstance)
      .List(L"URLCondition", &ITrustedSites::GetURLConditionCount,
            &ITrustedSites::GetURLConditionAt, &ITrustedSites::AddURLCondition,
            &ITrustedSites::InsertURLConditionAt, &ITrustedSites::RemoveURLConditionAt,
            &ITrustedSites::RemoveAllURLCondition, &URLCondition_CreateNewInstance);
  Accessors<ICIClientConfiguration>(L"ICIClientConfiguration",
                                    &ICIClientConfiguration_CreateNewInstance)
      .Attribute(L"SchemaVersion", &ICIClientConfiguration::GetSchemaVersion,
                 &ICIClientConfiguration::SetSchemaVersion)
      .Attribute(L"SN", &ICIClientConfiguration::GetSN, &ICIClientConfiguration::SetSN)
      .Attribute(L"Name", &ICIClientConfiguration::GetName, &ICIClientConfiguration::SetName)
      .Attribute(L"UpdateDate", &ICIClientConfiguration::GetUpdateDate,
                 &ICIClientConfiguration::SetUpdateDate)
      .Attribute(L"RefId", &ICIClientConfiguration::GetRefId, &ICIClientConfiguration::SetRefId)
      .Child(L"Connection", &ICIClientConfiguration::GetConnection,
             &ICIClientConfiguration::SetConnection, &Connection_CreateNewInstance)
      .Child(L"ClientSetting", &ICIClientConfiguration::GetClientSetting,
             &ICIClientConfiguration::SetClientSetting, &ClientSetting_CreateNewInstance)
      .Child(L"TrustedSites", &ICIClientConfiguration::GetTrustedSites,
             &ICIClientConfiguration::SetTrustedSites, &TrustedSites_CreateNewInstance);
}

TEST(ModuleAccessors, ReachTheirFieldsInRemoteFiltering) {
  using namespace RFConfInterface;
  Accessors<IRFServer>(L"RFServer", &RFServer_CreateNewInstance)
      .Attribute(L"HostName", &IRFServer::GetHostName, &IRFServer::SetHostName)
      .Attribute(L"PortNumber", &IRFServer::GetPortNumber, &IRFServer::SetPortNumber);
  Accessors<IInternalRFServerArray>(L"InternalRFServerArray",
                                    &InternalRFServerArray_CreateNewInstance)
      .List(L"RFServer", &IInternalRFServerArray::GetRFServerCount,
            &IInternalRFServerArray::GetRFServerAt, &IInternalRFServerArray::AddRFServer,
            &IInternalRFServerArray::InsertRFServerAt, &IInternalRFServerArray::RemoveRFServerAt,
            &IInternalRFServerArray::RemoveAllRFServer, &RFServer_CreateNewInstance);
  Accessors<IExternalRFServerArray>(L"ExternalRFServerArray",
                                    &ExternalRFServerArray_CreateNewInstance)
      .List(L"RFServer", &IExternalRFServerArray::GetRFServerCount,
            &IExternalRFServerArray::GetRFServerAt, &IExternalRFServerArray::AddRFServer,
            &IExternalRFServerArray::InsertRFServerAt, &IExternalRFServerArray::RemoveRFServerAt,
            &IExternalRFServerArray::RemoveAllRFServer, &RFServer_CreateNewInstance);
  Accessors<IInternalConnection>(L"InternalConnection", &InternalConnection_CreateNewInstance)
      .Attribute(L"HeartbeatRetryInterval", &IInternalConnection::GetHeartbeatRetryInterval,
                 &IInternalConnection::SetHeartbeatRetryInterval)
      .Child(L"InternalRFServerArray", &IInternalConnection::GetInternalRFServerArray,
             &IInternalConnection::SetInternalRFServerArray,
             &InternalRFServerArray_CreateNewInstance);
  Accessors<IExternalConnection>(L"ExternalConnection", &ExternalConnection_CreateNewInstance)
      .Attribute(L"HeartbeatRetryInterval", &IExternalConnection::GetHeartbeatRetryInterval,
                 &IExternalConnection::SetHeartbeatRetryInterval)
      .Attribute(L"FailClosed", &IExternalConnection::GetFailClosed,
                 &IExternalConnection::SetFailClosed)
      .Attribute(L"FailClosedTimeout", &IExternalConnection::GetFailClosedTimeout,
                 &IExternalConnection::SetFailClosedTimeout)
      .Attribute(L"FilterHTTPS", &IExternalConnection::GetFilterHTTPS,
                 &IExternalConnection::SetFilterHTTPS)
      .Attribute(L"FilterFTP", &IExternalConnection::GetFilterFTP,
                 &IExternalConnection::SetFilterFTP)
      .Attribute(L"URLLookupAndLog", &IExternalConnection::GetURLLookupAndLog,
                 &IExternalConnection::SetURLLookupAndLog)
      .Child(L"ExternalRFServerArray", &IExternalConnection::GetExternalRFServerArray,
             &IExternalConnection::SetExternalRFServerArray,
             &ExternalRFServerArray_CreateNewInstance);
  Accessors<IConnection>(L"Connection", &Connection_CreateNewInstance)
      .Child(L"InternalConnection", &IConnection::GetInternalConnection,
             &IConnection::SetInternalConnection, &InternalConnection_CreateNewInstance)
      .Child(L"ExternalConnection", &IConnection::GetExternalConnection,
             &IConnection::SetExternalConnection, &ExternalConnection_CreateNewInstance);
  Accessors<IUserInterface>(L"UserInterface", &UserInterface_CreateNewInstance)
      .Attribute(L"UISilentMode", &IUserInterface::GetUISilentMode,
                 &IUserInterface::SetUISilentMode)
      .Attribute(L"UITimeout", &IUserInterface::GetUITimeout, &IUserInterface::SetUITimeout);
  Accessors<IClientSetting>(L"ClientSetting", &ClientSetting_CreateNewInstance)
      .Attribute(L"EnableTamperProtection", &IClientSetting::GetEnableTamperProtection,
                 &IClientSetting::SetEnableTamperProtection)
      .Attribute(L"EnableTelemetry", &IClientSetting::GetEnableTelemetry,
                 &IClientSetting::SetEnableTelemetry)
      .Attribute(L"DisableFiltering", &IClientSetting::GetDisableFiltering,
                 &IClientSetting::SetDisableFiltering)
      .Attribute(L"AdminPasswordHash", &IClientSetting::GetAdminPasswordHash,
                 &IClientSetting::SetAdminPasswordHash)
      .Child(L"UserInterface", &IClientSetting::GetUserInterface, &IClientSetting::SetUserInterface,
             &UserInterface_CreateNewInstance);
  Accessors<IRFURLCondition>(L"RFURLCondition", &RFURLCondition_CreateNewInstance)
      .Attribute(L"SiteURL", &IRFURLCondition::GetSiteURL, &IRFURLCondition::SetSiteURL);
  Accessors<IRFTrustedSites>(L"RFTrustedSites", &RFTrustedSites_CreateNewInstance)
      .List(L"RFURLCondition", &IRFTrustedSites::GetRFURLConditionCount,
            &IRFTrustedSites::GetRFURLConditionAt, &IRFTrustedSites::AddRFURLCondition,
            &IRFTrustedSites::InsertRFURLConditionAt, &IRFTrustedSites::RemoveRFURLConditionAt,
            &IRFTrustedSites::RemoveAllRFURLCondition, &RFURLCondition_CreateNewInstance);
  Accessors<IRFClientConfiguration>(L"IRFClientConfiguration",
                                    &IRFClientConfiguration_CreateNewInstance)
      .Attribute(L"SchemaVersion", &IRFClientConfiguration::GetSchemaVersion,
                 &IRFClientConfiguration::SetSchemaVersion)
      .Attribute(L"SN", &IRFClientConfiguration::GetSN, &IRFClientConfiguration::SetSN)
      .Attribute(L"Name", &IRFClientConfiguration::GetName, &IRFClientConfiguration::SetName)
      .Attribute(L"UpdateDate", &IRFClientConfiguration::GetUpdateDate,
                 &IRFClientConfiguration::SetUpdateDate)
      .Attribute(L"RefId", &IRFClientConfiguration::GetRefId, &IRFClientConfiguration::SetRefId)
      .Child(L"Connection", &IRFClientConfiguration::GetConnection,
             &IRFClientConfiguration::SetConnection, &Connection_CreateNewInstance)
      .Child(L"ClientSetting", &IRFClientConfiguration::GetClientSetting,
             &IRFClientConfiguration::SetClientSetting, &ClientSetting_CreateNewInstance)
      .Child(L"RFTrustedSites", &IRFClientConfiguration::GetRFTrustedSites,
             &IRFClientConfiguration::SetRFTrustedSites, &RFTrustedSites_CreateNewInstance);
}

}  // namespace
}  // namespace tolva::test
