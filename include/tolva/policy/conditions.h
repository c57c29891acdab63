// The conditions of the policy: which applications and web addresses a rule applies to, and what
// happens to their operations. The library does not interpret the texts; how they are matched is up
// to the agent.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// What happens to an operation: the values of the attribute `Action` of the rules.
enum RuleAction : DWORD {
  kUseContentPolicyAction = 0,  ///< "USE_CONTENT_POLICY_ACTION"
  kAllow = 1,                   ///< "ALLOW"
  kBlock = 2,                   ///< "BLOCK"
};

/// Element `ArCondition`: an application, described by any of the attributes.
class IArCondition : public tolva::node::INode {
 public:
  virtual IArCondition& CopyFrom(const IArCondition& other) = 0;

  /// `AppName`: the name of the application's file. Optional.
  virtual ConfigResult GetAppName(std::wstring* out) const = 0;
  virtual ConfigResult SetAppName(const std::wstring* value) = 0;

  /// `ResFileDescription`: the file description in the application's resources. Optional.
  virtual ConfigResult GetResFileDescription(std::wstring* out) const = 0;
  virtual ConfigResult SetResFileDescription(const std::wstring* value) = 0;

  /// `ResProductName`: the product name in the application's resources. Optional.
  virtual ConfigResult GetResProductName(std::wstring* out) const = 0;
  virtual ConfigResult SetResProductName(const std::wstring* value) = 0;

  /// `ResCompany`: the company in the application's resources. Optional.
  virtual ConfigResult GetResCompany(std::wstring* out) const = 0;
  virtual ConfigResult SetResCompany(const std::wstring* value) = 0;

  /// `OS`: the operating system on which the application runs. Optional.
  virtual ConfigResult GetOS(std::wstring* out) const = 0;
  virtual ConfigResult SetOS(const std::wstring* value) = 0;
};

/// Element `UrlCondition`: a web address.
class IUrlCondition : public tolva::node::INode {
 public:
  virtual IUrlCondition& CopyFrom(const IUrlCondition& other) = 0;

  /// `URL`: the address. Optional.
  virtual ConfigResult GetURL(std::wstring* out) const = 0;
  virtual ConfigResult SetURL(const std::wstring* value) = 0;
};

/// Element `AppRule`: an action for a set of applications.
class IAppRule : public tolva::node::INode {
 public:
  virtual IAppRule& CopyFrom(const IAppRule& other) = 0;

  /// `Action`: what happens to an operation: it is allowed, blocked, or left to the action of the
  /// content policy. Required.
  ///
  /// The value is a RuleAction.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `Appid`: an identifier of the set. Optional.
  virtual ConfigResult GetAppid(std::wstring* out) const = 0;
  virtual ConfigResult SetAppid(const std::wstring* value) = 0;

  /// `AllowAccessAfterFileCreation`. Optional.
  virtual ConfigResult GetAllowAccessAfterFileCreation(DWORD* out) const = 0;
  virtual ConfigResult SetAllowAccessAfterFileCreation(const DWORD* value) = 0;

  /// `ArCondition`: an application in the set. Repeated.
  virtual DWORD GetArConditionCount() const = 0;
  virtual IArCondition* GetArConditionAt(DWORD index) = 0;
  virtual ConfigResult AddArCondition(const IArCondition* item) = 0;
  virtual ConfigResult InsertArConditionAt(DWORD index, const IArCondition* item) = 0;
  virtual void RemoveArConditionAt(DWORD index) = 0;
  virtual void RemoveAllArCondition() = 0;
};

/// Element `OnlineApps`: an action for a set of applications and web addresses.
///
/// All applications are written before all addresses, regardless of the order in which they were
/// read.
class IOnlineApps : public tolva::node::INode {
 public:
  virtual IOnlineApps& CopyFrom(const IOnlineApps& other) = 0;

  /// `Action`: what happens to an operation: it is allowed, blocked, or left to the action of the
  /// content policy. Required.
  ///
  /// The value is a RuleAction.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `Appid`: an identifier of the set. Optional.
  virtual ConfigResult GetAppid(std::wstring* out) const = 0;
  virtual ConfigResult SetAppid(const std::wstring* value) = 0;

  /// `ArCondition`: an application in the set. Repeated.
  virtual DWORD GetArConditionCount() const = 0;
  virtual IArCondition* GetArConditionAt(DWORD index) = 0;
  virtual ConfigResult AddArCondition(const IArCondition* item) = 0;
  virtual ConfigResult InsertArConditionAt(DWORD index, const IArCondition* item) = 0;
  virtual void RemoveArConditionAt(DWORD index) = 0;
  virtual void RemoveAllArCondition() = 0;

  /// `UrlCondition`: a web address in the set. Repeated.
  virtual DWORD GetUrlConditionCount() const = 0;
  virtual IUrlCondition* GetUrlConditionAt(DWORD index) = 0;
  virtual ConfigResult AddUrlCondition(const IUrlCondition* item) = 0;
  virtual ConfigResult InsertUrlConditionAt(DWORD index, const IUrlCondition* item) = 0;
  virtual void RemoveUrlConditionAt(DWORD index) = 0;
  virtual void RemoveAllUrlCondition() = 0;
};

/// Element `BypassedApps`: the applications to which a channel does not apply.
class IBypassedApps : public tolva::node::INode {
 public:
  virtual IBypassedApps& CopyFrom(const IBypassedApps& other) = 0;

  /// `ArCondition`: an application to which the channel does not apply. Repeated.
  virtual DWORD GetArConditionCount() const = 0;
  virtual IArCondition* GetArConditionAt(DWORD index) = 0;
  virtual ConfigResult AddArCondition(const IArCondition* item) = 0;
  virtual ConfigResult InsertArConditionAt(DWORD index, const IArCondition* item) = 0;
  virtual void RemoveArConditionAt(DWORD index) = 0;
  virtual void RemoveAllArCondition() = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IArCondition* ArCondition_CreateNewInstance();
TOLVA_API IUrlCondition* UrlCondition_CreateNewInstance();
TOLVA_API IAppRule* AppRule_CreateNewInstance();
TOLVA_API IOnlineApps* OnlineApps_CreateNewInstance();
TOLVA_API IBypassedApps* BypassedApps_CreateNewInstance();

}  // namespace TolvaInterface
