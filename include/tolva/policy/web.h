// The channels of web traffic: rules for destinations, browser extensions, and the inline proxy
// that intercepts traffic on the machine.
//
// Three elements have other names in a document than in this header: ILPInLineProxy is
// "ILPInlineProxy", ExcludeJSInjectDomains is "ExcludeJSInjectionDomains", and its
// ExcludeJSInjectDomain is "ExcludeDomain".
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/policy/conditions.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// The values of the attribute `BrowserName` of `BrowserExtension`.
enum BrowserName : DWORD {
  kBrowserNameChrome = 0,   ///< "CHROME"
  kBrowserNameFirefox = 1,  ///< "FIREFOX"
  kBrowserNameEdge = 2,     ///< "EDGE"
};

/// Element `WebAccessRule`: an action for a web destination.
class IWebAccessRule : public tolva::node::INode {
 public:
  virtual IWebAccessRule& CopyFrom(const IWebAccessRule& other) = 0;

  /// `Action`: what happens to an operation: it is allowed, blocked, or left to the action of the
  /// content policy. Required.
  ///
  /// The value is a RuleAction.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `DestinationHost`: the host name of the destination. Optional.
  virtual ConfigResult GetDestinationHost(std::wstring* out) const = 0;
  virtual ConfigResult SetDestinationHost(const std::wstring* value) = 0;
};

/// Element `BrowserExtension`: the settings of the extension for one browser.
class IBrowserExtension : public tolva::node::INode {
 public:
  virtual IBrowserExtension& CopyFrom(const IBrowserExtension& other) = 0;

  /// `BrowserName`: the browser. Required.
  ///
  /// The value is a BrowserName.
  virtual DWORD GetBrowserName() const = 0;
  virtual ConfigResult SetBrowserName(const DWORD* value) = 0;

  /// `EnableExtension`: 1 if the extension is enabled, 0 if not. Required.
  virtual DWORD GetEnableExtension() const = 0;
  virtual ConfigResult SetEnableExtension(const DWORD* value) = 0;

  /// `EnableMonitorMode`: 1 if the monitor mode of the extension is enabled, 0 if not. Optional.
  virtual ConfigResult GetEnableMonitorMode(DWORD* out) const = 0;
  virtual ConfigResult SetEnableMonitorMode(const DWORD* value) = 0;
};

/// Element `BrowserSettings`: the settings of the browser extensions.
class IBrowserSettings : public tolva::node::INode {
 public:
  virtual IBrowserSettings& CopyFrom(const IBrowserSettings& other) = 0;

  /// `BrowserExtension`: the settings of the extension for one browser. Repeated.
  virtual DWORD GetBrowserExtensionCount() const = 0;
  virtual IBrowserExtension* GetBrowserExtensionAt(DWORD index) = 0;
  virtual ConfigResult AddBrowserExtension(const IBrowserExtension* item) = 0;
  virtual ConfigResult InsertBrowserExtensionAt(DWORD index, const IBrowserExtension* item) = 0;
  virtual void RemoveBrowserExtensionAt(DWORD index) = 0;
  virtual void RemoveAllBrowserExtension() = 0;
};

/// Element `ILPWebApp`: the rules for web traffic.
class IILPWebApp : public tolva::node::INode {
 public:
  virtual IILPWebApp& CopyFrom(const IILPWebApp& other) = 0;

  /// `Sid`: the first of the two identifiers of the channel. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: the second of the two identifiers of the channel. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `WebAccessRule`: an action for a web destination. Repeated.
  virtual DWORD GetWebAccessRuleCount() const = 0;
  virtual IWebAccessRule* GetWebAccessRuleAt(DWORD index) = 0;
  virtual ConfigResult AddWebAccessRule(const IWebAccessRule* item) = 0;
  virtual ConfigResult InsertWebAccessRuleAt(DWORD index, const IWebAccessRule* item) = 0;
  virtual void RemoveWebAccessRuleAt(DWORD index) = 0;
  virtual void RemoveAllWebAccessRule() = 0;

  /// `OnlineApps`: an action for a set of applications and web addresses. Repeated.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;

  /// `BrowserSettings`: the settings of the browser extensions. Optional.
  virtual ConfigResult GetBrowserSettings(IBrowserSettings** out) = 0;
  virtual ConfigResult SetBrowserSettings(const IBrowserSettings* child) = 0;
};

/// Element `IncludeApps`: the applications whose traffic is intercepted.
class IIncludeApps : public tolva::node::INode {
 public:
  virtual IIncludeApps& CopyFrom(const IIncludeApps& other) = 0;

  /// `ArCondition`: an application whose traffic is intercepted. Repeated.
  virtual DWORD GetArConditionCount() const = 0;
  virtual IArCondition* GetArConditionAt(DWORD index) = 0;
  virtual ConfigResult AddArCondition(const IArCondition* item) = 0;
  virtual ConfigResult InsertArConditionAt(DWORD index, const IArCondition* item) = 0;
  virtual void RemoveArConditionAt(DWORD index) = 0;
  virtual void RemoveAllArCondition() = 0;
};

/// Element `ExcludeDomain` of `ExcludeDomains`: a domain whose traffic is not intercepted.
class IExcludeDomain : public tolva::node::INode {
 public:
  virtual IExcludeDomain& CopyFrom(const IExcludeDomain& other) = 0;

  /// `URL`: the domain. Optional.
  virtual ConfigResult GetURL(std::wstring* out) const = 0;
  virtual ConfigResult SetURL(const std::wstring* value) = 0;
};

/// Element `ExcludeDomains`: the domains whose traffic is not intercepted.
class IExcludeDomains : public tolva::node::INode {
 public:
  virtual IExcludeDomains& CopyFrom(const IExcludeDomains& other) = 0;

  /// `ExcludeDomain`: a domain whose traffic is not intercepted. Repeated.
  virtual DWORD GetExcludeDomainCount() const = 0;
  virtual IExcludeDomain* GetExcludeDomainAt(DWORD index) = 0;
  virtual ConfigResult AddExcludeDomain(const IExcludeDomain* item) = 0;
  virtual ConfigResult InsertExcludeDomainAt(DWORD index, const IExcludeDomain* item) = 0;
  virtual void RemoveExcludeDomainAt(DWORD index) = 0;
  virtual void RemoveAllExcludeDomain() = 0;
};

/// Element `ExcludeDomain` of `ExcludeJSInjectionDomains`: a domain whose pages get no injected
/// script.
class IExcludeJSInjectDomain : public tolva::node::INode {
 public:
  virtual IExcludeJSInjectDomain& CopyFrom(const IExcludeJSInjectDomain& other) = 0;

  /// `URL`: the domain. Optional.
  virtual ConfigResult GetURL(std::wstring* out) const = 0;
  virtual ConfigResult SetURL(const std::wstring* value) = 0;
};

/// Element `ExcludeJSInjectionDomains`: the domains whose pages get no injected script.
///
/// Only a read, or a copy of the whole list, adds items. If a write fails, it returns -101 without
/// adding a diagnostic.
class IExcludeJSInjectDomains : public tolva::node::INode {
 public:
  virtual IExcludeJSInjectDomains& CopyFrom(const IExcludeJSInjectDomains& other) = 0;

  /// `ExcludeDomain`: a domain whose pages get no injected script. Repeated.
  virtual DWORD GetExcludeJSInjectDomainCount() const = 0;
  virtual IExcludeJSInjectDomain* GetExcludeJSInjectDomainAt(DWORD index) = 0;
  virtual void RemoveAllExcludeJSInjectDomain() = 0;
};

#pragma push_macro("SetPort")
#undef SetPort
/// Element `LocalProxy`: a proxy on the machine.
class ILocalProxy : public tolva::node::INode {
 public:
  virtual ILocalProxy& CopyFrom(const ILocalProxy& other) = 0;

  /// `IP`: the IP address of the proxy. Optional.
  virtual ConfigResult GetIP(std::wstring* out) const = 0;
  virtual ConfigResult SetIP(const std::wstring* value) = 0;

  /// `Port`: the port of the proxy, as text. Optional.
  virtual ConfigResult GetPort(std::wstring* out) const = 0;
  virtual ConfigResult SetPort(const std::wstring* value) = 0;
#if defined(_WIN32)
  ConfigResult SetPortW(const std::wstring* value) { return SetPort(value); }
  ConfigResult SetPortA(const std::wstring* value) { return SetPort(value); }
#endif
};
#pragma pop_macro("SetPort")

/// Element `LocalProxies`: the proxies on the machine.
class ILocalProxies : public tolva::node::INode {
 public:
  virtual ILocalProxies& CopyFrom(const ILocalProxies& other) = 0;

  /// `LocalProxy`: a proxy on the machine. Repeated.
  virtual DWORD GetLocalProxyCount() const = 0;
  virtual ILocalProxy* GetLocalProxyAt(DWORD index) = 0;
  virtual ConfigResult AddLocalProxy(const ILocalProxy* item) = 0;
  virtual ConfigResult InsertLocalProxyAt(DWORD index, const ILocalProxy* item) = 0;
  virtual void RemoveLocalProxyAt(DWORD index) = 0;
  virtual void RemoveAllLocalProxy() = 0;
};

/// Element `ILPInlineProxy`: the interception of web traffic on the machine.
///
/// The element exists only within an `ILPProtection` and has no factory.
///
/// `Clear` sets the three switches to 0 and clears the four children, but does not change which of
/// them are present; nor does a read remove any. A child that one document had is still present,
/// and empty, after a read of a document without it. A switch that a document does not have reads
/// as 1, and is present from then on.
class IILPInLineProxy : public tolva::node::INode {
 public:
  virtual IILPInLineProxy& CopyFrom(const IILPInLineProxy& other) = 0;

  /// `Enable`: 1 if web traffic is intercepted, 0 if not. If the attribute is absent, 1 applies.
  /// Optional.
  virtual ConfigResult GetEnable(DWORD* out) const = 0;
  virtual ConfigResult SetEnable(const DWORD* value) = 0;

  /// `EnableDriverWebTraffic`: a switch, 1 for on or 0 for off. If the attribute is absent, 1
  /// applies. Optional.
  virtual ConfigResult GetEnableDriverWebTraffic(DWORD* out) const = 0;
  virtual ConfigResult SetEnableDriverWebTraffic(const DWORD* value) = 0;

  /// `SystemPAC`: a switch, 1 for on or 0 for off. If the attribute is absent, 1 applies. Optional.
  virtual ConfigResult GetSystemPAC(DWORD* out) const = 0;
  virtual ConfigResult SetSystemPAC(const DWORD* value) = 0;

  /// `IncludeApps`: the applications whose traffic is intercepted. Optional.
  virtual ConfigResult GetIncludeApps(IIncludeApps** out) = 0;
  virtual ConfigResult SetIncludeApps(const IIncludeApps* child) = 0;

  /// `ExcludeDomains`: the domains whose traffic is not intercepted. Optional.
  virtual ConfigResult GetExcludeDomains(IExcludeDomains** out) = 0;
  virtual ConfigResult SetExcludeDomains(const IExcludeDomains* child) = 0;

  /// `LocalProxies`: the proxies on the machine. Optional.
  virtual ConfigResult GetLocalProxies(ILocalProxies** out) = 0;
  virtual ConfigResult SetLocalProxies(const ILocalProxies* child) = 0;

  /// `ExcludeJSInjectionDomains`: the domains whose pages get no injected script. Optional.
  virtual ConfigResult GetExcludeJSInjectDomains(IExcludeJSInjectDomains** out) = 0;
  virtual ConfigResult SetExcludeJSInjectDomains(const IExcludeJSInjectDomains* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IWebAccessRule* WebAccessRule_CreateNewInstance();
TOLVA_API IBrowserExtension* BrowserExtension_CreateNewInstance();
TOLVA_API IBrowserSettings* BrowserSettings_CreateNewInstance();
TOLVA_API IILPWebApp* ILPWebApp_CreateNewInstance();
TOLVA_API IIncludeApps* IncludeApps_CreateNewInstance();
TOLVA_API IExcludeDomain* ExcludeDomain_CreateNewInstance();
TOLVA_API IExcludeDomains* ExcludeDomains_CreateNewInstance();
TOLVA_API IExcludeJSInjectDomain* ExcludeJSInjectDomain_CreateNewInstance();
TOLVA_API IExcludeJSInjectDomains* ExcludeJSInjectDomains_CreateNewInstance();
TOLVA_API ILocalProxy* LocalProxy_CreateNewInstance();
TOLVA_API ILocalProxies* LocalProxies_CreateNewInstance();

}  // namespace TolvaInterface
