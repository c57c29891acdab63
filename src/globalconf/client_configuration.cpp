#include "globalconf/client_configuration.h"

namespace GlobalConfInterface {
namespace {

constexpr Name kAppNames[] = {L"RESERVED", L"CHROME", L"FIREFOX"};

}  // namespace

constexpr Attribute kEPClientSettingAttributes[] = {
    Attr<&CEPClientSetting::enableTamperProtection_>(L"EnableTamperProtection"),
    Attr<&CEPClientSetting::enableTelemetry_>(L"EnableTelemetry"),
    Attr<&CEPClientSetting::adminPasswordHash_>(L"AdminPasswordHash").Secret(),
    Attr<&CEPClientSetting::installDirectory_>(L"InstallDirectory"),
};
constinit const Schema CEPClientSetting::kSchema = Checked({
    .element = L"EPClientSetting",
    .dialect = kDialect,
    .attributes = kEPClientSettingAttributes,
});

constexpr Attribute kUpdateServerAttributes[] = {
    Attr<&CUpdateServer::url_>(L"URL"),
    Attr<&CUpdateServer::sendPII_>(L"SendPII"),
};
constinit const Schema CUpdateServer::kSchema = Checked({
    .element = L"UpdateServer",
    .dialect = kDialect,
    .attributes = kUpdateServerAttributes,
});

constexpr Attribute kAutoUpdateAttributes[] = {
    Attr<&CAutoUpdate::frequency_>(L"Frequency"),
};
constexpr Child kAutoUpdateChildren[] = {
    Elem<&CAutoUpdate::updateServer_>(L"UpdateServer"),
};
constinit const Schema CAutoUpdate::kSchema = Checked({
    .element = L"AutoUpdate",
    .dialect = kDialect,
    .attributes = kAutoUpdateAttributes,
    .children = kAutoUpdateChildren,
});

constexpr Attribute kSettingAttributes[] = {
    Attr<&CSetting::appName_>(L"AppName", {kAppNames, L"FIREFOX"}).KeepsValue().NamesItem(),
    Attr<&CSetting::appFileName_>(L"AppFileName"),
    Attr<&CSetting::appVersionMajor_>(L"AppVersionMajor").NamesItem(),
    Attr<&CSetting::appVersionMinor_>(L"AppVersionMinor").NamesItem(),
    Attr<&CSetting::minimumWindowsBuild_>(L"MinimumWindowsBuild"),
    Attr<&CSetting::minimumMacBuild_>(L"MinimumMacBuild"),
};
constinit const Schema CSetting::kSchema = Checked({
    .element = L"Setting",
    .dialect = kDialect,
    .attributes = kSettingAttributes,
});

template <class C>
constexpr Child kSettingListChildren[] = {
    Elem<&C::settings_>(L"Setting"),
};

constinit const Schema CWebProxyEndpoint::kSchema = Checked({
    .element = L"WebProxyEndpoint",
    .dialect = kDialect,
    .children = kSettingListChildren<CWebProxyEndpoint>,
});

constinit const Schema CDataEndpoint::kSchema = Checked({
    .element = L"DataEndpoint",
    .dialect = kDialect,
    .children = kSettingListChildren<CDataEndpoint>,
});

constinit const Schema CWebDirectEndpoint::kSchema = Checked({
    .element = L"WebDirectEndpoint",
    .dialect = kDialect,
    .children = kSettingListChildren<CWebDirectEndpoint>,
});

constinit const Schema CRemoteFilteringClient::kSchema = Checked({
    .element = L"RemoteFilteringClient",
    .dialect = kDialect,
    .children = kSettingListChildren<CRemoteFilteringClient>,
});

constexpr Attribute kCustomSettingAttributes[] = {
    Attr<&CCustomSetting::enableCustomSetting_>(L"EnableCustomSetting"),
    Attr<&CCustomSetting::schemaVersion_>(L"SchemaVersion"),
    Attr<&CCustomSetting::description_>(L"Description"),
};
constexpr Child kCustomSettingChildren[] = {
    Elem<&CCustomSetting::webProxyEndpoint_>(L"WebProxyEndpoint"),
    Elem<&CCustomSetting::dataEndpoint_>(L"DataEndpoint"),
    Elem<&CCustomSetting::webDirectEndpoint_>(L"WebDirectEndpoint"),
    Elem<&CCustomSetting::remoteFilteringClient_>(L"RemoteFilteringClient"),
};
constinit const Schema CCustomSetting::kSchema = Checked({
    .element = L"CustomSetting",
    .dialect = kDialect,
    .attributes = kCustomSettingAttributes,
    .children = kCustomSettingChildren,
});

constinit const Schema CZanFirefoxSetting::kSchema = Checked({
    .element = L"ZanFirefoxSetting",
    .dialect = kDialect,
    .attributes = kBrowserFilesAttributes<CZanFirefoxSetting>,
});

constexpr Child kIGLOBALClientConfigurationChildren[] = {
    Elem<&CIGLOBALClientConfiguration::epClientSetting_>(L"EPClientSetting"),
    Elem<&CIGLOBALClientConfiguration::autoUpdate_>(L"AutoUpdate"),
    Elem<&CIGLOBALClientConfiguration::customSetting_>(L"CustomSetting"),
    Elem<&CIGLOBALClientConfiguration::zanFirefoxSetting_>(L"ZanFirefoxSetting"),
};
constinit const Schema CIGLOBALClientConfiguration::kSchema = Checked({
    .element = L"IGLOBALClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentityAttributes<CIGLOBALClientConfiguration>,
    .children = kIGLOBALClientConfigurationChildren,
});

}  // namespace GlobalConfInterface
