#include "proxyconf/client_configuration.h"

namespace ProxyClientConfig {

constexpr Attribute kPACFileAttributes[] = {
    Attr<&CPACFile::url_>(L"URL"),
};
constinit const Schema CPACFile::kSchema = Checked({
    .element = L"PACFile",
    .dialect = kDialect,
    .attributes = kPACFileAttributes,
});

constexpr Attribute kAppWhiteListAttributes[] = {
    Attr<&CAppWhiteList::appNames_>(L"AppNames"),
};
constinit const Schema CAppWhiteList::kSchema = Checked({
    .element = L"AppWhiteList",
    .dialect = kDialect,
    .attributes = kAppWhiteListAttributes,
});

constexpr Child kProxySettingChildren[] = {
    Elem<&CProxySetting::pacFile_>(L"PACFile"),
    Elem<&CProxySetting::activeDirectory_>(L"ActiveDirectory")
        .WriteReport(L"XMLManager: write require element failed. element:ActiveDirectory"),
    Elem<&CProxySetting::appWhiteList_>(L"AppWhiteList"),
};
constinit const Schema CProxySetting::kSchema = Checked({
    .element = L"ProxySetting",
    .dialect = kDialect,
    .children = kProxySettingChildren,
});

constexpr Attribute kUserInterfaceAttributes[] = {
    Attr<&CUserInterface::uiSilentMode_>(L"UISilentMode"),
};
constinit const Schema CUserInterface::kSchema = Checked({
    .element = L"UserInterface",
    .dialect = kDialect,
    .attributes = kUserInterfaceAttributes,
});

constexpr Attribute kDownloadAttributes[] = {
    Attr<&CDownload::newVersion_>(L"NewVersion"),
};
constinit const Schema CDownload::kSchema = Checked({
    .element = L"Download",
    .dialect = kDialect,
    .attributes = kDownloadAttributes,
});

constexpr Attribute kUpdateAttributes[] = {
    Attr<&CUpdate::frequency_>(L"Frequency"),
};
constexpr Child kUpdateChildren[] = {
    Elem<&CUpdate::download_>(L"Download"),
};
constinit const Schema CUpdate::kSchema = Checked({
    .element = L"Update",
    .dialect = kDialect,
    .attributes = kUpdateAttributes,
    .children = kUpdateChildren,
});

constinit const Schema CFirefoxSetting::kSchema = Checked({
    .element = L"FirefoxSetting",
    .dialect = kDialect,
    .attributes = kBrowserFilesAttributes<CFirefoxSetting>,
});

constexpr Attribute kClientSettingAttributes[] = {
    Attr<&CClientSetting::enableTamperProtection_>(L"EnableTamperProtection"),
    Attr<&CClientSetting::enableTelemetry_>(L"EnableTelemetry")
        .PresentWhenClear()
        .ReadReport(kReadEnableTelemetry),
    Attr<&CClientSetting::adminPasswordHash_>(L"AdminPasswordHash").Secret(),
};
constexpr Child kClientSettingChildren[] = {
    Elem<&CClientSetting::userInterface_>(L"UserInterface"),
    Elem<&CClientSetting::update_>(L"Update"),
    Elem<&CClientSetting::firefoxSetting_>(L"FirefoxSetting"),
};
constinit const Schema CClientSetting::kSchema = Checked({
    .element = L"ClientSetting",
    .dialect = kDialect,
    .attributes = kClientSettingAttributes,
    .children = kClientSettingChildren,
});

constexpr Attribute kIEProxySettingAttributes[] = {
    Attr<&CIEProxySetting::proxySetting_>(L"ProxySetting"),
};
constinit const Schema CIEProxySetting::kSchema = Checked({
    .element = L"IEProxySetting",
    .dialect = kDialect,
    .attributes = kIEProxySettingAttributes,
});

constexpr Attribute kIEUserProxySettingAttributes[] = {
    Attr<&CIEUserProxySetting::userID_>(L"UserID").NamesItem(),
    Attr<&CIEUserProxySetting::proxySetting_>(L"ProxySetting"),
    Attr<&CIEUserProxySetting::currentUserProxyURL_>(L"CurrentUserProxyURL"),
};
constinit const Schema CIEUserProxySetting::kSchema = Checked({
    .element = L"IEUserProxySetting",
    .dialect = kDialect,
    .attributes = kIEUserProxySettingAttributes,
});

constexpr Child kUserProxySettingChildren[] = {
    Elem<&CUserProxySetting::ieUserProxySettings_>(L"IEUserProxySetting"),
};
constinit const Schema CUserProxySetting::kSchema = Checked({
    .element = L"UserProxySetting",
    .dialect = kDialect,
    .children = kUserProxySettingChildren,
});

constexpr Attribute kLocalProxySettingAttributes[] = {
    Attr<&CLocalProxySetting::enableLocalProxySetting_>(L"EnableLocalProxySetting"),
    Attr<&CLocalProxySetting::saveNetworkSettingMode_>(L"SaveNetworkSettingMode"),
};
constexpr Child kLocalProxySettingChildren[] = {
    Elem<&CLocalProxySetting::ieProxySetting_>(L"IEProxySetting"),
    Elem<&CLocalProxySetting::userProxySetting_>(L"UserProxySetting"),
};
constinit const Schema CLocalProxySetting::kSchema = Checked({
    .element = L"LocalProxySetting",
    .dialect = kDialect,
    .attributes = kLocalProxySettingAttributes,
    .children = kLocalProxySettingChildren,
});

constexpr Attribute kLogUploadSettingAttributes[] = {
    Attr<&CLogUploadSetting::logUploadURL_>(L"LogUploadURL"),
    Attr<&CLogUploadSetting::logUploadFrequency_>(L"LogUploadFrequency"),
};
constinit const Schema CLogUploadSetting::kSchema = Checked({
    .element = L"LogUploadSetting",
    .dialect = kDialect,
    .attributes = kLogUploadSettingAttributes,
});

constexpr Child kIPXYClientConfigurationChildren[] = {
    Elem<&CIPXYClientConfiguration::proxySetting_>(L"ProxySetting"),
    Elem<&CIPXYClientConfiguration::clientSetting_>(L"ClientSetting"),
    Elem<&CIPXYClientConfiguration::localProxySetting_>(L"LocalProxySetting"),
    Elem<&CIPXYClientConfiguration::logUploadSetting_>(L"LogUploadSetting"),
};
constinit const Schema CIPXYClientConfiguration::kSchema = Checked({
    .element = L"IPXYClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentityAttributes<CIPXYClientConfiguration>,
    .children = kIPXYClientConfigurationChildren,
});

ConfigResult CProxySetting::GetActiveDirectory(ClientConfig::IActiveDirectory** out) {
  return Store<ClientConfig::IActiveDirectory*>(&activeDirectory_.child, out);
}

ConfigResult CProxySetting::SetActiveDirectory(const ClientConfig::IActiveDirectory* child) {
  activeDirectory_.Set(child);
  if (child != nullptr) return tolva::kSuccess;
  ReportNullChild(kSchema, *this, &activeDirectory_.child);
  return tolva::kFailed;
}

}  // namespace ProxyClientConfig
