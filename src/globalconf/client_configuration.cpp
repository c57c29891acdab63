#include "globalconf/client_configuration.h"

namespace GlobalConfInterface {
namespace {

constexpr const wchar_t* kAppNames[] = {L"RESERVED", L"CHROME", L"FIREFOX"};

}  // namespace

constinit const Attribute CEPClientSetting::kAttributes[] = {
    Attr<&CEPClientSetting::enableTamperProtection_>(L"EnableTamperProtection"),
    Attr<&CEPClientSetting::enableTelemetry_>(L"EnableTelemetry"),
    Attr<&CEPClientSetting::adminPasswordHash_>(L"AdminPasswordHash"),
    Attr<&CEPClientSetting::installDirectory_>(L"InstallDirectory"),
};
constinit const Schema CEPClientSetting::kSchema = {
    .element = L"EPClientSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CUpdateServer::kAttributes[] = {
    Attr<&CUpdateServer::url_>(L"URL"),
    Attr<&CUpdateServer::sendPII_>(L"SendPII"),
};
constinit const Schema CUpdateServer::kSchema = {
    .element = L"UpdateServer",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CAutoUpdate::kAttributes[] = {
    Attr<&CAutoUpdate::frequency_>(L"Frequency"),
};
constinit const Child CAutoUpdate::kChildren[] = {
    Elem<&CAutoUpdate::updateServer_>(L"UpdateServer"),
};
constinit const Schema CAutoUpdate::kSchema = {
    .element = L"AutoUpdate",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CSetting::kAttributes[] = {
    Attr<&CSetting::appName_>(L"AppName", {kAppNames, L"FIREFOX"}),
    Attr<&CSetting::appFileName_>(L"AppFileName"),
    Attr<&CSetting::appVersionMajor_>(L"AppVersionMajor"),
    Attr<&CSetting::appVersionMinor_>(L"AppVersionMinor"),
    Attr<&CSetting::minimumWindowsBuild_>(L"MinimumWindowsBuild"),
    Attr<&CSetting::minimumMacBuild_>(L"MinimumMacBuild"),
};
constinit const Schema CSetting::kSchema = {
    .element = L"Setting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

template <class C, class I>
constinit const Child SettingList<C, I>::kChildren[] = {
    Elem<&SettingList::settings_>(L"Setting"),
};

constinit const Schema CWebProxyEndpoint::kSchema = {
    .element = L"WebProxyEndpoint",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Schema CDataEndpoint::kSchema = {
    .element = L"DataEndpoint",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Schema CWebDirectEndpoint::kSchema = {
    .element = L"WebDirectEndpoint",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Schema CRemoteFilteringClient::kSchema = {
    .element = L"RemoteFilteringClient",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CCustomSetting::kAttributes[] = {
    Attr<&CCustomSetting::enableCustomSetting_>(L"EnableCustomSetting"),
    Attr<&CCustomSetting::schemaVersion_>(L"SchemaVersion"),
    Attr<&CCustomSetting::description_>(L"Description"),
};
constinit const Child CCustomSetting::kChildren[] = {
    Elem<&CCustomSetting::webProxyEndpoint_>(L"WebProxyEndpoint"),
    Elem<&CCustomSetting::dataEndpoint_>(L"DataEndpoint"),
    Elem<&CCustomSetting::webDirectEndpoint_>(L"WebDirectEndpoint"),
    Elem<&CCustomSetting::remoteFilteringClient_>(L"RemoteFilteringClient"),
};
constinit const Schema CCustomSetting::kSchema = {
    .element = L"CustomSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Schema CZanFirefoxSetting::kSchema = {
    .element = L"ZanFirefoxSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CIGLOBALClientConfiguration::kChildren[] = {
    Elem<&CIGLOBALClientConfiguration::epClientSetting_>(L"EPClientSetting"),
    Elem<&CIGLOBALClientConfiguration::autoUpdate_>(L"AutoUpdate"),
    Elem<&CIGLOBALClientConfiguration::customSetting_>(L"CustomSetting"),
    Elem<&CIGLOBALClientConfiguration::zanFirefoxSetting_>(L"ZanFirefoxSetting"),
};
constinit const Schema CIGLOBALClientConfiguration::kSchema = {
    .element = L"IGLOBALClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentity,
    .children = kChildren,
};

void CSetting::Clear() {
  const DWORD app_name = appName_;
  Node::Clear();
  appName_ = app_name;
}

}  // namespace GlobalConfInterface
