// The classes of tolva/policy/web.h.
#pragma once

#include <tolva/policy/web.h>

#include <string>

#include "node/accessors.h"
#include "policy/conditions.h"
#include "policy/document.h"

namespace TolvaInterface {

class CWebAccessRule final : public Node<CWebAccessRule, IWebAccessRule> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Action, action_);
  TOLVA_OPTIONAL(std::wstring, DestinationHost, destinationHost_);
};

class CBrowserExtension final : public Node<CBrowserExtension, IBrowserExtension> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(BrowserName, browserName_);
  TOLVA_NUMBER(EnableExtension, enableExtension_);
  TOLVA_OPTIONAL(DWORD, EnableMonitorMode, enableMonitorMode_);
};

class CBrowserSettings final : public Node<CBrowserSettings, IBrowserSettings> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CBrowserExtension, BrowserExtension, browserExtensions_);
};

class CILPWebApp final : public Node<CILPWebApp, IILPWebApp> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Sid, sid_);
  TOLVA_OPTIONAL(DWORD, Cid, cid_);
  TOLVA_CHILDREN(CWebAccessRule, WebAccessRule, webAccessRules_);
  TOLVA_CHILDREN(COnlineApps, OnlineApps, onlineApps_);
  TOLVA_OPTIONAL_CHILD(CBrowserSettings, BrowserSettings, browserSettings_);
};

class CIncludeApps final : public ArConditions<CIncludeApps, IIncludeApps> {
 public:
  static const Schema kSchema;
};

class CExcludeDomain final : public Node<CExcludeDomain, IExcludeDomain> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, URL, url_);
};

class CExcludeDomains final : public Node<CExcludeDomains, IExcludeDomains> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CExcludeDomain, ExcludeDomain, excludeDomains_);
};

class CExcludeJSInjectDomain final : public Node<CExcludeJSInjectDomain, IExcludeJSInjectDomain> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, URL, url_);
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
  ChildList<CExcludeJSInjectDomain> excludeJSInjectDomains_;
};

#pragma push_macro("SetPort")
#undef SetPort
class CLocalProxy final : public Node<CLocalProxy, ILocalProxy> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, IP, ip_);
  TOLVA_OPTIONAL(std::wstring, Port, port_);
};
#pragma pop_macro("SetPort")

class CLocalProxies final : public Node<CLocalProxies, ILocalProxies> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CLocalProxy, LocalProxy, localProxies_);
};

class CILPInLineProxy final : public Node<CILPInLineProxy, IILPInLineProxy> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Enable, enable_);
  TOLVA_OPTIONAL(DWORD, EnableDriverWebTraffic, enableDriverWebTraffic_);
  TOLVA_OPTIONAL(DWORD, SystemPAC, systemPAC_);
  TOLVA_OPTIONAL_CHILD(CIncludeApps, IncludeApps, includeApps_);
  TOLVA_OPTIONAL_CHILD(CExcludeDomains, ExcludeDomains, excludeDomains_);
  TOLVA_OPTIONAL_CHILD(CLocalProxies, LocalProxies, localProxies_);
  TOLVA_OPTIONAL_CHILD(CExcludeJSInjectDomains, ExcludeJSInjectDomains, excludeJSInjectDomains_);
};

}  // namespace TolvaInterface
