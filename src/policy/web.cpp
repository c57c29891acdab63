#include "policy/web.h"

namespace TolvaInterface {
namespace {

constexpr Name kBrowserNames[] = {L"CHROME", L"FIREFOX", L"EDGE"};

}  // namespace

constexpr Attribute kWebAccessRuleAttributes[] = {
    Attr<&CWebAccessRule::action_>(L"Action", {kRuleActions}),
    Attr<&CWebAccessRule::destinationHost_>(L"DestinationHost").NamesItem(),
};
constinit const Schema CWebAccessRule::kSchema = Checked({
    .element = L"WebAccessRule",
    .dialect = kDialect,
    .attributes = kWebAccessRuleAttributes,
});

constexpr Attribute kBrowserExtensionAttributes[] = {
    Attr<&CBrowserExtension::browserName_>(L"BrowserName", {kBrowserNames}).NamesItem(),
    Attr<&CBrowserExtension::enableExtension_>(L"EnableExtension"),
    Attr<&CBrowserExtension::enableMonitorMode_>(L"EnableMonitorMode"),
};
constinit const Schema CBrowserExtension::kSchema = Checked({
    .element = L"BrowserExtension",
    .dialect = kDialect,
    .attributes = kBrowserExtensionAttributes,
});

constexpr Child kBrowserSettingsChildren[] = {
    Elem<&CBrowserSettings::browserExtensions_>(L"BrowserExtension"),
};
constinit const Schema CBrowserSettings::kSchema = Checked({
    .element = L"BrowserSettings",
    .dialect = kDialect,
    .children = kBrowserSettingsChildren,
});

constexpr Attribute kILPWebAppAttributes[] = {
    Attr<&CILPWebApp::sid_>(L"Sid"),
    Attr<&CILPWebApp::cid_>(L"Cid"),
};
constexpr Child kILPWebAppChildren[] = {
    Elem<&CILPWebApp::webAccessRules_>(L"WebAccessRule"),
    Elem<&CILPWebApp::onlineApps_>(L"OnlineApps"),
    Elem<&CILPWebApp::browserSettings_>(L"BrowserSettings"),
};
constinit const Schema CILPWebApp::kSchema = Checked({
    .element = L"ILPWebApp",
    .dialect = kDialect,
    .attributes = kILPWebAppAttributes,
    .children = kILPWebAppChildren,
});

constinit const Schema CIncludeApps::kSchema = Checked({
    .element = L"IncludeApps",
    .dialect = kDialect,
    .children = kArConditionsChildren<CIncludeApps>,
});

constexpr Attribute kExcludeDomainAttributes[] = {
    Attr<&CExcludeDomain::url_>(L"URL").NamesItem(),
};
constinit const Schema CExcludeDomain::kSchema = Checked({
    .element = L"ExcludeDomain",
    .dialect = kDialect,
    .attributes = kExcludeDomainAttributes,
});

constexpr Child kExcludeDomainsChildren[] = {
    Elem<&CExcludeDomains::excludeDomains_>(L"ExcludeDomain"),
};
constinit const Schema CExcludeDomains::kSchema = Checked({
    .element = L"ExcludeDomains",
    .dialect = kDialect,
    .children = kExcludeDomainsChildren,
});

constexpr Attribute kExcludeJSInjectDomainAttributes[] = {
    Attr<&CExcludeJSInjectDomain::url_>(L"URL").NamesItem(),
};
constinit const Schema CExcludeJSInjectDomain::kSchema = Checked({
    .element = L"ExcludeDomain",
    .dialect = kDialect,
    .attributes = kExcludeJSInjectDomainAttributes,
    .add_report = L"JSExcudeDomain: fail to add element",
    .close_report = L"JSExcudeDomain: fail to close element",
});

constexpr Child kExcludeJSInjectDomainsChildren[] = {
    Elem<&CExcludeJSInjectDomains::excludeJSInjectDomains_>(L"ExcludeDomain")
        .WriteReport(L"")
        .ReadReport(L"JSExcudeDomains: read  multiple element failed."),
};
constinit const Schema CExcludeJSInjectDomains::kSchema = Checked({
    .element = L"ExcludeJSInjectionDomains",
    .dialect = kDialect,
    .children = kExcludeJSInjectDomainsChildren,
    .add_report = L"",
    .close_report = L"",
    .null_writer_report = L"JSExcudeDomain: WriteToXMLMgr require xmlmanager pointer is NULL.",
    .null_reader_report = L"JSExcudeDomain: ReadFromXMLMgr require xmlmanager pointer is NULL.",
});

constexpr Attribute kLocalProxyAttributes[] = {
    Attr<&CLocalProxy::ip_>(L"IP").NamesItem(),
    Attr<&CLocalProxy::port_>(L"Port").NamesItem(),
};
constinit const Schema CLocalProxy::kSchema = Checked({
    .element = L"LocalProxy",
    .dialect = kDialect,
    .attributes = kLocalProxyAttributes,
});

constexpr Child kLocalProxiesChildren[] = {
    Elem<&CLocalProxies::localProxies_>(L"LocalProxy"),
};
constinit const Schema CLocalProxies::kSchema = Checked({
    .element = L"LocalProxies",
    .dialect = kDialect,
    .children = kLocalProxiesChildren,
});

constexpr Attribute kILPInLineProxyAttributes[] = {
    Attr<&CILPInLineProxy::enable_>(L"Enable").OneWhenAbsent().KeepsPresence(),
    Attr<&CILPInLineProxy::enableDriverWebTraffic_>(L"EnableDriverWebTraffic")
        .OneWhenAbsent()
        .KeepsPresence(),
    Attr<&CILPInLineProxy::systemPAC_>(L"SystemPAC").OneWhenAbsent().KeepsPresence(),
};
constexpr Child kILPInLineProxyChildren[] = {
    Elem<&CILPInLineProxy::includeApps_>(L"IncludeApps").KeepsPresence(),
    Elem<&CILPInLineProxy::excludeDomains_>(L"ExcludeDomains").KeepsPresence(),
    Elem<&CILPInLineProxy::localProxies_>(L"LocalProxies").KeepsPresence(),
    Elem<&CILPInLineProxy::excludeJSInjectDomains_>(L"ExcludeJSInjectionDomains")
        .KeepsPresence()
        .WriteReport(L"XMLManager: write optional element failed. element:LocalProxies")
        .ReadReport(L"XMLManager: read require element failed. element:ExcludeJSInjectDomains"),
};
constinit const Schema CILPInLineProxy::kSchema = Checked({
    .element = L"ILPInlineProxy",
    .dialect = kDialect,
    .attributes = kILPInLineProxyAttributes,
    .children = kILPInLineProxyChildren,
    .reported_as = L"ILPInLineProxy",
});

}  // namespace TolvaInterface
