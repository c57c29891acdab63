#include "policy/web.h"

namespace TolvaInterface {
namespace {

constexpr const wchar_t* kBrowserNames[] = {L"CHROME", L"FIREFOX", L"EDGE"};

}  // namespace

constinit const Attribute CWebAccessRule::kAttributes[] = {
    Attr<&CWebAccessRule::action_>(L"Action", {kRuleActions}),
    Attr<&CWebAccessRule::destinationHost_>(L"DestinationHost"),
};
constinit const Schema CWebAccessRule::kSchema = {
    .element = L"WebAccessRule",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CBrowserExtension::kAttributes[] = {
    Attr<&CBrowserExtension::browserName_>(L"BrowserName", {kBrowserNames}),
    Attr<&CBrowserExtension::enableExtension_>(L"EnableExtension"),
    Attr<&CBrowserExtension::enableMonitorMode_>(L"EnableMonitorMode"),
};
constinit const Schema CBrowserExtension::kSchema = {
    .element = L"BrowserExtension",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CBrowserSettings::kChildren[] = {
    Elem<&CBrowserSettings::browserExtensions_>(L"BrowserExtension"),
};
constinit const Schema CBrowserSettings::kSchema = {
    .element = L"BrowserSettings",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CILPWebApp::kAttributes[] = {
    Attr<&CILPWebApp::sid_>(L"Sid"),
    Attr<&CILPWebApp::cid_>(L"Cid"),
};
constinit const Child CILPWebApp::kChildren[] = {
    Elem<&CILPWebApp::webAccessRules_>(L"WebAccessRule"),
    Elem<&CILPWebApp::onlineApps_>(L"OnlineApps"),
    Elem<&CILPWebApp::browserSettings_>(L"BrowserSettings"),
};
constinit const Schema CILPWebApp::kSchema = {
    .element = L"ILPWebApp",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Schema CIncludeApps::kSchema = {
    .element = L"IncludeApps",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CExcludeDomain::kAttributes[] = {
    Attr<&CExcludeDomain::url_>(L"URL"),
};
constinit const Schema CExcludeDomain::kSchema = {
    .element = L"ExcludeDomain",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CExcludeDomains::kChildren[] = {
    Elem<&CExcludeDomains::excludeDomains_>(L"ExcludeDomain"),
};
constinit const Schema CExcludeDomains::kSchema = {
    .element = L"ExcludeDomains",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CExcludeJSInjectDomain::kAttributes[] = {
    Attr<&CExcludeJSInjectDomain::url_>(L"URL"),
};
constinit const Schema CExcludeJSInjectDomain::kSchema = {
    .element = L"ExcludeDomain",
    .dialect = kDialect,
    .attributes = kAttributes,
    .add_fault = OwnText(L"JSExcudeDomain: fail to add element"),
    .close_fault = OwnText(L"JSExcudeDomain: fail to close element"),
};

constinit const Child CExcludeJSInjectDomains::kChildren[] = {
    Elem<&CExcludeJSInjectDomains::excludeJSInjectDomains_>(L"ExcludeDomain")
        .WriteFault(L"")
        .ReadFault(L"JSExcudeDomains: read  multiple element failed."),
};
constinit const Schema CExcludeJSInjectDomains::kSchema = {
    .element = L"ExcludeJSInjectionDomains",
    .dialect = kDialect,
    .children = kChildren,
    .add_fault = OwnText(L""),
    .close_fault = OwnText(L""),
    .null_writer = OwnText(L"JSExcudeDomain: WriteToXMLMgr require xmlmanager pointer is NULL."),
    .null_reader = OwnText(L"JSExcudeDomain: ReadFromXMLMgr require xmlmanager pointer is NULL."),
};

constinit const Attribute CLocalProxy::kAttributes[] = {
    Attr<&CLocalProxy::ip_>(L"IP"),
    Attr<&CLocalProxy::port_>(L"Port"),
};
constinit const Schema CLocalProxy::kSchema = {
    .element = L"LocalProxy",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CLocalProxies::kChildren[] = {
    Elem<&CLocalProxies::localProxies_>(L"LocalProxy"),
};
constinit const Schema CLocalProxies::kSchema = {
    .element = L"LocalProxies",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CILPInLineProxy::kAttributes[] = {
    Attr<&CILPInLineProxy::enable_>(L"Enable").OneWhenAbsent(),
    Attr<&CILPInLineProxy::enableDriverWebTraffic_>(L"EnableDriverWebTraffic").OneWhenAbsent(),
    Attr<&CILPInLineProxy::systemPAC_>(L"SystemPAC").OneWhenAbsent(),
};
constinit const Child CILPInLineProxy::kChildren[] = {
    Elem<&CILPInLineProxy::includeApps_>(L"IncludeApps"),
    Elem<&CILPInLineProxy::excludeDomains_>(L"ExcludeDomains"),
    Elem<&CILPInLineProxy::localProxies_>(L"LocalProxies"),
    Elem<&CILPInLineProxy::excludeJSInjectDomains_>(L"ExcludeJSInjectionDomains")
        .WriteFault(L"XMLManager: write optional element failed. element:LocalProxies")
        .ReadFault(L"XMLManager: read require element failed. element:ExcludeJSInjectDomains"),
};
constinit const Schema CILPInLineProxy::kSchema = {
    .element = L"ILPInlineProxy",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
    .reported_as = L"ILPInLineProxy",
};

void CILPInLineProxy::Clear() {
  enable_.value = 0;
  enableDriverWebTraffic_.value = 0;
  systemPAC_.value = 0;
  includeApps_.child.Clear();
  excludeDomains_.child.Clear();
  localProxies_.child.Clear();
  excludeJSInjectDomains_.child.Clear();
}

}  // namespace TolvaInterface
