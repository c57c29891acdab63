#include "proxyconf/client_configuration.h"

namespace ProxyClientConfig {

constinit const Attribute CPACFile::kAttributes[] = {
    Attr<&CPACFile::url_>(L"URL"),
};
constinit const Schema CPACFile::kSchema = {
    .element = L"PACFile",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CAppWhiteList::kAttributes[] = {
    Attr<&CAppWhiteList::appNames_>(L"AppNames"),
};
constinit const Schema CAppWhiteList::kSchema = {
    .element = L"AppWhiteList",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CProxySetting::kChildren[] = {
    Elem<&CProxySetting::pacFile_>(L"PACFile"),
    Elem<&CProxySetting::activeDirectory_>(L"ActiveDirectory")
        .WriteFault(L"XMLManager: write require element failed. element:ActiveDirectory"),
    Elem<&CProxySetting::appWhiteList_>(L"AppWhiteList"),
};
constinit const Schema CProxySetting::kSchema = {
    .element = L"ProxySetting",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CUserInterface::kAttributes[] = {
    Attr<&CUserInterface::uiSilentMode_>(L"UISilentMode"),
};
constinit const Schema CUserInterface::kSchema = {
    .element = L"UserInterface",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CDownload::kAttributes[] = {
    Attr<&CDownload::newVersion_>(L"NewVersion"),
};
constinit const Schema CDownload::kSchema = {
    .element = L"Download",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CUpdate::kAttributes[] = {
    Attr<&CUpdate::frequency_>(L"Frequency"),
};
constinit const Child CUpdate::kChildren[] = {
    Elem<&CUpdate::download_>(L"Download"),
};
constinit const Schema CUpdate::kSchema = {
    .element = L"Update",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Schema CFirefoxSetting::kSchema = {
    .element = L"FirefoxSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CClientSetting::kAttributes[] = {
    Attr<&CClientSetting::enableTamperProtection_>(L"EnableTamperProtection"),
    Attr<&CClientSetting::enableTelemetry_>(L"EnableTelemetry")
        .PresentWhenClear()
        .ReadFault(L"XMLManager: read dword/bool Attribute failed. element:ClientSetting, "
                   L"attr:EnableTelemetry"),
    Attr<&CClientSetting::adminPasswordHash_>(L"AdminPasswordHash"),
};
constinit const Child CClientSetting::kChildren[] = {
    Elem<&CClientSetting::userInterface_>(L"UserInterface"),
    Elem<&CClientSetting::update_>(L"Update"),
    Elem<&CClientSetting::firefoxSetting_>(L"FirefoxSetting"),
};
constinit const Schema CClientSetting::kSchema = {
    .element = L"ClientSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CIEProxySetting::kAttributes[] = {
    Attr<&CIEProxySetting::proxySetting_>(L"ProxySetting"),
};
constinit const Schema CIEProxySetting::kSchema = {
    .element = L"IEProxySetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CIEUserProxySetting::kAttributes[] = {
    Attr<&CIEUserProxySetting::userID_>(L"UserID"),
    Attr<&CIEUserProxySetting::proxySetting_>(L"ProxySetting"),
    Attr<&CIEUserProxySetting::currentUserProxyURL_>(L"CurrentUserProxyURL"),
};
constinit const Schema CIEUserProxySetting::kSchema = {
    .element = L"IEUserProxySetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CUserProxySetting::kChildren[] = {
    Elem<&CUserProxySetting::ieUserProxySettings_>(L"IEUserProxySetting"),
};
constinit const Schema CUserProxySetting::kSchema = {
    .element = L"UserProxySetting",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CLocalProxySetting::kAttributes[] = {
    Attr<&CLocalProxySetting::enableLocalProxySetting_>(L"EnableLocalProxySetting"),
    Attr<&CLocalProxySetting::saveNetworkSettingMode_>(L"SaveNetworkSettingMode"),
};
constinit const Child CLocalProxySetting::kChildren[] = {
    Elem<&CLocalProxySetting::ieProxySetting_>(L"IEProxySetting"),
    Elem<&CLocalProxySetting::userProxySetting_>(L"UserProxySetting"),
};
constinit const Schema CLocalProxySetting::kSchema = {
    .element = L"LocalProxySetting",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CLogUploadSetting::kAttributes[] = {
    Attr<&CLogUploadSetting::logUploadURL_>(L"LogUploadURL"),
    Attr<&CLogUploadSetting::logUploadFrequency_>(L"LogUploadFrequency"),
};
constinit const Schema CLogUploadSetting::kSchema = {
    .element = L"LogUploadSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CIPXYClientConfiguration::kChildren[] = {
    Elem<&CIPXYClientConfiguration::proxySetting_>(L"ProxySetting"),
    Elem<&CIPXYClientConfiguration::clientSetting_>(L"ClientSetting"),
    Elem<&CIPXYClientConfiguration::localProxySetting_>(L"LocalProxySetting"),
    Elem<&CIPXYClientConfiguration::logUploadSetting_>(L"LogUploadSetting"),
};
constinit const Schema CIPXYClientConfiguration::kSchema = {
    .element = L"IPXYClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentity,
    .children = kChildren,
};

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
