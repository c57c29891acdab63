// The channels of web traffic: rules for destinations, browser extensions, and the inline proxy
// that intercepts traffic on the machine.
//
// Three elements go by another name in the document than here: ILPInLineProxy is "ILPInlineProxy",
// ExcludeJSInjectDomains is "ExcludeJSInjectionDomains", and its ExcludeJSInjectDomain is
// "ExcludeDomain".
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/policy/conditions.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// The values of `BrowserExtension`'s `BrowserName`.
enum BrowserName : DWORD {
  kBrowserNameChrome = 0,   ///< "CHROME"
  kBrowserNameFirefox = 1,  ///< "FIREFOX"
  kBrowserNameEdge = 2,     ///< "EDGE"
};

/// Element `WebAccessRule`: an action for a destination.
class IWebAccessRule : public tolva::node::INode {
 public:
  virtual IWebAccessRule& CopyFrom(const IWebAccessRule& other) = 0;

  /// `Action`: a RuleAction. Required.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `DestinationHost`: the destination. Optional.
  virtual ConfigResult GetDestinationHost(std::wstring* out) const = 0;
  virtual ConfigResult SetDestinationHost(const std::wstring* value) = 0;
};

/// Element `BrowserExtension`: the extension of one browser.
class IBrowserExtension : public tolva::node::INode {
 public:
  virtual IBrowserExtension& CopyFrom(const IBrowserExtension& other) = 0;

  /// `BrowserName`: which browser, a BrowserName. Required.
  virtual DWORD GetBrowserName() const = 0;
  virtual ConfigResult SetBrowserName(const DWORD* value) = 0;

  /// `EnableExtension`: whether the extension is used. Required.
  virtual DWORD GetEnableExtension() const = 0;
  virtual ConfigResult SetEnableExtension(const DWORD* value) = 0;

  /// `EnableMonitorMode`: its monitoring mode, a switch. Optional.
  virtual ConfigResult GetEnableMonitorMode(DWORD* out) const = 0;
  virtual ConfigResult SetEnableMonitorMode(const DWORD* value) = 0;
};

/// Element `BrowserSettings`.
class IBrowserSettings : public tolva::node::INode {
 public:
  virtual IBrowserSettings& CopyFrom(const IBrowserSettings& other) = 0;

  /// Children `BrowserExtension`.
  virtual DWORD GetBrowserExtensionCount() const = 0;
  virtual IBrowserExtension* GetBrowserExtensionAt(DWORD index) = 0;
  virtual ConfigResult AddBrowserExtension(const IBrowserExtension* item) = 0;
  virtual ConfigResult InsertBrowserExtensionAt(DWORD index, const IBrowserExtension* item) = 0;
  virtual void RemoveBrowserExtensionAt(DWORD index) = 0;
  virtual void RemoveAllBrowserExtension() = 0;
};

/// Element `ILPWebApp`: the web.
class IILPWebApp : public tolva::node::INode {
 public:
  virtual IILPWebApp& CopyFrom(const IILPWebApp& other) = 0;

  /// `Sid`: an identifier of the channel, carried unchanged. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: another one, likewise. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// The rules: children `WebAccessRule`.
  virtual DWORD GetWebAccessRuleCount() const = 0;
  virtual IWebAccessRule* GetWebAccessRuleAt(DWORD index) = 0;
  virtual ConfigResult AddWebAccessRule(const IWebAccessRule* item) = 0;
  virtual ConfigResult InsertWebAccessRuleAt(DWORD index, const IWebAccessRule* item) = 0;
  virtual void RemoveWebAccessRuleAt(DWORD index) = 0;
  virtual void RemoveAllWebAccessRule() = 0;

  /// Children `OnlineApps`.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;

  /// The child `BrowserSettings`. Optional.
  virtual ConfigResult GetBrowserSettings(IBrowserSettings** out) = 0;
  virtual ConfigResult SetBrowserSettings(const IBrowserSettings* child) = 0;
};

/// Element `IncludeApps`: the applications whose traffic is intercepted.
class IIncludeApps : public tolva::node::INode {
 public:
  virtual IIncludeApps& CopyFrom(const IIncludeApps& other) = 0;

  /// The applications: children `ArCondition`.
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

/// Element `ExcludeDomains`.
class IExcludeDomains : public tolva::node::INode {
 public:
  virtual IExcludeDomains& CopyFrom(const IExcludeDomains& other) = 0;

  /// Children `ExcludeDomain`.
  virtual DWORD GetExcludeDomainCount() const = 0;
  virtual IExcludeDomain* GetExcludeDomainAt(DWORD index) = 0;
  virtual ConfigResult AddExcludeDomain(const IExcludeDomain* item) = 0;
  virtual ConfigResult InsertExcludeDomainAt(DWORD index, const IExcludeDomain* item) = 0;
  virtual void RemoveExcludeDomainAt(DWORD index) = 0;
  virtual void RemoveAllExcludeDomain() = 0;
};

/// Element `ExcludeDomain` of `ExcludeJSInjectionDomains`: a domain whose pages get no script.
class IExcludeJSInjectDomain : public tolva::node::INode {
 public:
  virtual IExcludeJSInjectDomain& CopyFrom(const IExcludeJSInjectDomain& other) = 0;

  /// `URL`: the domain. Optional.
  virtual ConfigResult GetURL(std::wstring* out) const = 0;
  virtual ConfigResult SetURL(const std::wstring* value) = 0;
};

/// Element `ExcludeJSInjectionDomains`. Its list is filled by reading and by copying a whole one. A
/// write that fails gives -101 without a text of its own.
class IExcludeJSInjectDomains : public tolva::node::INode {
 public:
  virtual IExcludeJSInjectDomains& CopyFrom(const IExcludeJSInjectDomains& other) = 0;

  /// Children `ExcludeDomain`.
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

  /// `IP`: its address. Optional.
  virtual ConfigResult GetIP(std::wstring* out) const = 0;
  virtual ConfigResult SetIP(const std::wstring* value) = 0;

  /// `Port`: its port, as text. Optional.
  virtual ConfigResult GetPort(std::wstring* out) const = 0;
  virtual ConfigResult SetPort(const std::wstring* value) = 0;
#if defined(_WIN32)
  ConfigResult SetPortW(const std::wstring* value) { return SetPort(value); }
  ConfigResult SetPortA(const std::wstring* value) { return SetPort(value); }
#endif
};
#pragma pop_macro("SetPort")

/// Element `LocalProxies`.
class ILocalProxies : public tolva::node::INode {
 public:
  virtual ILocalProxies& CopyFrom(const ILocalProxies& other) = 0;

  /// Children `LocalProxy`.
  virtual DWORD GetLocalProxyCount() const = 0;
  virtual ILocalProxy* GetLocalProxyAt(DWORD index) = 0;
  virtual ConfigResult AddLocalProxy(const ILocalProxy* item) = 0;
  virtual ConfigResult InsertLocalProxyAt(DWORD index, const ILocalProxy* item) = 0;
  virtual void RemoveLocalProxyAt(DWORD index) = 0;
  virtual void RemoveAllLocalProxy() = 0;
};

/// Element `ILPInlineProxy`: the interception of web traffic on the machine. It exists only within
/// an `ILPProtection` and has no factory.
///
/// Its `Clear` sets the three switches to 0 and clears the four children, but leaves all of them as
/// present or absent as they were, and so does a read: a child that one document had is there, and
/// empty, after the next one that has none. A switch that a document does not mention reads as 1,
/// and is present from then on.
class IILPInLineProxy : public tolva::node::INode {
 public:
  virtual IILPInLineProxy& CopyFrom(const IILPInLineProxy& other) = 0;

  /// `Enable`: whether traffic is intercepted. Optional; absent in a document: 1.
  virtual ConfigResult GetEnable(DWORD* out) const = 0;
  virtual ConfigResult SetEnable(const DWORD* value) = 0;

  /// `EnableDriverWebTraffic`: a switch, carried unchanged. Optional; absent in a document: 1.
  virtual ConfigResult GetEnableDriverWebTraffic(DWORD* out) const = 0;
  virtual ConfigResult SetEnableDriverWebTraffic(const DWORD* value) = 0;

  /// `SystemPAC`: a switch, carried unchanged. Optional; absent in a document: 1.
  virtual ConfigResult GetSystemPAC(DWORD* out) const = 0;
  virtual ConfigResult SetSystemPAC(const DWORD* value) = 0;

  /// The child `IncludeApps`. Optional.
  virtual ConfigResult GetIncludeApps(IIncludeApps** out) = 0;
  virtual ConfigResult SetIncludeApps(const IIncludeApps* child) = 0;

  /// The child `ExcludeDomains`. Optional.
  virtual ConfigResult GetExcludeDomains(IExcludeDomains** out) = 0;
  virtual ConfigResult SetExcludeDomains(const IExcludeDomains* child) = 0;

  /// The child `LocalProxies`. Optional.
  virtual ConfigResult GetLocalProxies(ILocalProxies** out) = 0;
  virtual ConfigResult SetLocalProxies(const ILocalProxies* child) = 0;

  /// The child `ExcludeJSInjectionDomains`. Optional.
  virtual ConfigResult GetExcludeJSInjectDomains(IExcludeJSInjectDomains** out) = 0;
  virtual ConfigResult SetExcludeJSInjectDomains(const IExcludeJSInjectDomains* child) = 0;
};

// Each makes a node with default values, which the caller owns.
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
