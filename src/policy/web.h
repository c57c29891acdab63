// The classes of tolva/policy/web.h.
#pragma once

#include <tolva/policy/web.h>

#include <string>

#include "node/node.h"
#include "policy/conditions.h"
#include "policy/document.h"

namespace TolvaInterface {

class CWebAccessRule final : public Node<CWebAccessRule, IWebAccessRule> {
 public:
  static const Schema kSchema;

  DWORD GetAction() const override { return action_; }
  ConfigResult SetAction(const DWORD* value) override { return SetRequired(action_, value); }
  ConfigResult GetDestinationHost(std::wstring* out) const override {
    return destinationHost_.Get(out);
  }
  ConfigResult SetDestinationHost(const std::wstring* value) override {
    return destinationHost_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  DWORD action_ = 0;
  Optional<std::wstring> destinationHost_;
};

class CBrowserExtension final : public Node<CBrowserExtension, IBrowserExtension> {
 public:
  static const Schema kSchema;

  DWORD GetBrowserName() const override { return browserName_; }
  ConfigResult SetBrowserName(const DWORD* value) override {
    return SetRequired(browserName_, value);
  }
  DWORD GetEnableExtension() const override { return enableExtension_; }
  ConfigResult SetEnableExtension(const DWORD* value) override {
    return SetRequired(enableExtension_, value);
  }
  ConfigResult GetEnableMonitorMode(DWORD* out) const override {
    return enableMonitorMode_.Get(out);
  }
  ConfigResult SetEnableMonitorMode(const DWORD* value) override {
    return enableMonitorMode_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  DWORD browserName_ = 0;
  DWORD enableExtension_ = 0;
  Optional<DWORD> enableMonitorMode_;
};

class CBrowserSettings final : public Node<CBrowserSettings, IBrowserSettings> {
 public:
  static const Schema kSchema;

  DWORD GetBrowserExtensionCount() const override { return browserExtensions_.Count(); }
  IBrowserExtension* GetBrowserExtensionAt(DWORD index) override {
    return browserExtensions_.At(index);
  }
  ConfigResult AddBrowserExtension(const IBrowserExtension* item) override {
    return browserExtensions_.Add(item);
  }
  ConfigResult InsertBrowserExtensionAt(DWORD index, const IBrowserExtension* item) override {
    return browserExtensions_.InsertAt(index, item);
  }
  void RemoveBrowserExtensionAt(DWORD index) override { browserExtensions_.RemoveAt(index); }
  void RemoveAllBrowserExtension() override { browserExtensions_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CBrowserExtension> browserExtensions_;
};

class CILPWebApp final : public Node<CILPWebApp, IILPWebApp> {
 public:
  static const Schema kSchema;

  ConfigResult GetSid(DWORD* out) const override { return sid_.Get(out); }
  ConfigResult SetSid(const DWORD* value) override { return sid_.Set(value); }
  ConfigResult GetCid(DWORD* out) const override { return cid_.Get(out); }
  ConfigResult SetCid(const DWORD* value) override { return cid_.Set(value); }
  DWORD GetWebAccessRuleCount() const override { return webAccessRules_.Count(); }
  IWebAccessRule* GetWebAccessRuleAt(DWORD index) override { return webAccessRules_.At(index); }
  ConfigResult AddWebAccessRule(const IWebAccessRule* item) override {
    return webAccessRules_.Add(item);
  }
  ConfigResult InsertWebAccessRuleAt(DWORD index, const IWebAccessRule* item) override {
    return webAccessRules_.InsertAt(index, item);
  }
  void RemoveWebAccessRuleAt(DWORD index) override { webAccessRules_.RemoveAt(index); }
  void RemoveAllWebAccessRule() override { webAccessRules_.RemoveAll(); }
  DWORD GetOnlineAppsCount() const override { return onlineApps_.Count(); }
  IOnlineApps* GetOnlineAppsAt(DWORD index) override { return onlineApps_.At(index); }
  ConfigResult AddOnlineApps(const IOnlineApps* item) override { return onlineApps_.Add(item); }
  ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) override {
    return onlineApps_.InsertAt(index, item);
  }
  void RemoveOnlineAppsAt(DWORD index) override { onlineApps_.RemoveAt(index); }
  void RemoveAllOnlineApps() override { onlineApps_.RemoveAll(); }
  ConfigResult GetBrowserSettings(IBrowserSettings** out) override {
    return browserSettings_.Get(out);
  }
  ConfigResult SetBrowserSettings(const IBrowserSettings* child) override {
    return browserSettings_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> sid_;
  Optional<DWORD> cid_;
  ChildList<CWebAccessRule> webAccessRules_;
  ChildList<COnlineApps> onlineApps_;
  OptionalChild<CBrowserSettings> browserSettings_;
};

class CIncludeApps final : public ArConditions<CIncludeApps, IIncludeApps> {
 public:
  static const Schema kSchema;
};

class CExcludeDomain final : public Node<CExcludeDomain, IExcludeDomain> {
 public:
  static const Schema kSchema;

  ConfigResult GetURL(std::wstring* out) const override { return url_.Get(out); }
  ConfigResult SetURL(const std::wstring* value) override { return url_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> url_;
};

class CExcludeDomains final : public Node<CExcludeDomains, IExcludeDomains> {
 public:
  static const Schema kSchema;

  DWORD GetExcludeDomainCount() const override { return excludeDomains_.Count(); }
  IExcludeDomain* GetExcludeDomainAt(DWORD index) override { return excludeDomains_.At(index); }
  ConfigResult AddExcludeDomain(const IExcludeDomain* item) override {
    return excludeDomains_.Add(item);
  }
  ConfigResult InsertExcludeDomainAt(DWORD index, const IExcludeDomain* item) override {
    return excludeDomains_.InsertAt(index, item);
  }
  void RemoveExcludeDomainAt(DWORD index) override { excludeDomains_.RemoveAt(index); }
  void RemoveAllExcludeDomain() override { excludeDomains_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CExcludeDomain> excludeDomains_;
};

class CExcludeJSInjectDomain final : public Node<CExcludeJSInjectDomain, IExcludeJSInjectDomain> {
 public:
  static const Schema kSchema;

  ConfigResult GetURL(std::wstring* out) const override { return url_.Get(out); }
  ConfigResult SetURL(const std::wstring* value) override { return url_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> url_;
};

class CExcludeJSInjectDomains final
    : public Node<CExcludeJSInjectDomains, IExcludeJSInjectDomains> {
 public:
  static const Schema kSchema;

  DWORD GetExcludeJSInjectDomainCount() const override { return excludeJSInjectDomains_.Count(); }
  IExcludeJSInjectDomain* GetExcludeJSInjectDomainAt(DWORD index) override {
    return excludeJSInjectDomains_.At(index);
  }
  void RemoveAllExcludeJSInjectDomain() override { excludeJSInjectDomains_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CExcludeJSInjectDomain> excludeJSInjectDomains_;
};

#pragma push_macro("SetPort")
#undef SetPort
class CLocalProxy final : public Node<CLocalProxy, ILocalProxy> {
 public:
  static const Schema kSchema;

  ConfigResult GetIP(std::wstring* out) const override { return ip_.Get(out); }
  ConfigResult SetIP(const std::wstring* value) override { return ip_.Set(value); }
  ConfigResult GetPort(std::wstring* out) const override { return port_.Get(out); }
  ConfigResult SetPort(const std::wstring* value) override { return port_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> ip_;
  Optional<std::wstring> port_;
};
#pragma pop_macro("SetPort")

class CLocalProxies final : public Node<CLocalProxies, ILocalProxies> {
 public:
  static const Schema kSchema;

  DWORD GetLocalProxyCount() const override { return localProxies_.Count(); }
  ILocalProxy* GetLocalProxyAt(DWORD index) override { return localProxies_.At(index); }
  ConfigResult AddLocalProxy(const ILocalProxy* item) override { return localProxies_.Add(item); }
  ConfigResult InsertLocalProxyAt(DWORD index, const ILocalProxy* item) override {
    return localProxies_.InsertAt(index, item);
  }
  void RemoveLocalProxyAt(DWORD index) override { localProxies_.RemoveAt(index); }
  void RemoveAllLocalProxy() override { localProxies_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CLocalProxy> localProxies_;
};

class CILPInLineProxy final : public Node<CILPInLineProxy, IILPInLineProxy> {
 public:
  static const Schema kSchema;

  ConfigResult GetEnable(DWORD* out) const override { return enable_.Get(out); }
  ConfigResult SetEnable(const DWORD* value) override { return enable_.Set(value); }
  ConfigResult GetEnableDriverWebTraffic(DWORD* out) const override {
    return enableDriverWebTraffic_.Get(out);
  }
  ConfigResult SetEnableDriverWebTraffic(const DWORD* value) override {
    return enableDriverWebTraffic_.Set(value);
  }
  ConfigResult GetSystemPAC(DWORD* out) const override { return systemPAC_.Get(out); }
  ConfigResult SetSystemPAC(const DWORD* value) override { return systemPAC_.Set(value); }
  ConfigResult GetIncludeApps(IIncludeApps** out) override { return includeApps_.Get(out); }
  ConfigResult SetIncludeApps(const IIncludeApps* child) override {
    return includeApps_.Set(child);
  }
  ConfigResult GetExcludeDomains(IExcludeDomains** out) override {
    return excludeDomains_.Get(out);
  }
  ConfigResult SetExcludeDomains(const IExcludeDomains* child) override {
    return excludeDomains_.Set(child);
  }
  ConfigResult GetLocalProxies(ILocalProxies** out) override { return localProxies_.Get(out); }
  ConfigResult SetLocalProxies(const ILocalProxies* child) override {
    return localProxies_.Set(child);
  }
  ConfigResult GetExcludeJSInjectDomains(IExcludeJSInjectDomains** out) override {
    return excludeJSInjectDomains_.Get(out);
  }
  ConfigResult SetExcludeJSInjectDomains(const IExcludeJSInjectDomains* child) override {
    return excludeJSInjectDomains_.Set(child);
  }

  /// Everything but the presence flags: these outlive it, set or not.
  void Clear() override;

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> enable_;
  Optional<DWORD> enableDriverWebTraffic_;
  Optional<DWORD> systemPAC_;
  OptionalChild<CIncludeApps> includeApps_;
  OptionalChild<CExcludeDomains> excludeDomains_;
  OptionalChild<CLocalProxies> localProxies_;
  OptionalChild<CExcludeJSInjectDomains> excludeJSInjectDomains_;
};

}  // namespace TolvaInterface
