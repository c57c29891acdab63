// Conditions of the policy: which applications and addresses are meant, and what is done with
// them.
//
// How a condition is matched is the agent's business; its texts are carried as they stand.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// What is done with an operation: the values of the rules' `Action`.
enum RuleAction : DWORD {
  kUseContentPolicyAction = 0,  ///< "USE_CONTENT_POLICY_ACTION"
  kAllow = 1,                   ///< "ALLOW"
  kBlock = 2,                   ///< "BLOCK"
};

/// Element `ArCondition`: one application, described by any of its features.
class IArCondition : public tolva::node::INode {
 public:
  virtual IArCondition& CopyFrom(const IArCondition& other) = 0;

  /// `AppName`: the name of its file. Optional.
  virtual ConfigResult GetAppName(std::wstring* out) const = 0;
  virtual ConfigResult SetAppName(const std::wstring* value) = 0;

  /// `ResFileDescription`: the file description among its resources. Optional.
  virtual ConfigResult GetResFileDescription(std::wstring* out) const = 0;
  virtual ConfigResult SetResFileDescription(const std::wstring* value) = 0;

  /// `ResProductName`: the product name among its resources. Optional.
  virtual ConfigResult GetResProductName(std::wstring* out) const = 0;
  virtual ConfigResult SetResProductName(const std::wstring* value) = 0;

  /// `ResCompany`: the company among its resources. Optional.
  virtual ConfigResult GetResCompany(std::wstring* out) const = 0;
  virtual ConfigResult SetResCompany(const std::wstring* value) = 0;

  /// `OS`: the operating system it runs on. Optional.
  virtual ConfigResult GetOS(std::wstring* out) const = 0;
  virtual ConfigResult SetOS(const std::wstring* value) = 0;
};

/// Element `UrlCondition`: one address.
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

  /// `Action`: a RuleAction. Required.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `Appid`: an identifier of the set. Optional.
  virtual ConfigResult GetAppid(std::wstring* out) const = 0;
  virtual ConfigResult SetAppid(const std::wstring* value) = 0;

  /// `AllowAccessAfterFileCreation`: a number, carried unchanged. Optional.
  virtual ConfigResult GetAllowAccessAfterFileCreation(DWORD* out) const = 0;
  virtual ConfigResult SetAllowAccessAfterFileCreation(const DWORD* value) = 0;

  /// The applications: children `ArCondition`.
  virtual DWORD GetArConditionCount() const = 0;
  virtual IArCondition* GetArConditionAt(DWORD index) = 0;
  virtual ConfigResult AddArCondition(const IArCondition* item) = 0;
  virtual ConfigResult InsertArConditionAt(DWORD index, const IArCondition* item) = 0;
  virtual void RemoveArConditionAt(DWORD index) = 0;
  virtual void RemoveAllArCondition() = 0;
};

/// Element `OnlineApps`: an action for a set of applications and addresses. All applications are
/// written before all addresses, in whatever order they were read.
class IOnlineApps : public tolva::node::INode {
 public:
  virtual IOnlineApps& CopyFrom(const IOnlineApps& other) = 0;

  /// `Action`: a RuleAction. Required.
  virtual DWORD GetAction() const = 0;
  virtual ConfigResult SetAction(const DWORD* value) = 0;

  /// `Appid`: an identifier of the set. Optional.
  virtual ConfigResult GetAppid(std::wstring* out) const = 0;
  virtual ConfigResult SetAppid(const std::wstring* value) = 0;

  /// The applications: children `ArCondition`.
  virtual DWORD GetArConditionCount() const = 0;
  virtual IArCondition* GetArConditionAt(DWORD index) = 0;
  virtual ConfigResult AddArCondition(const IArCondition* item) = 0;
  virtual ConfigResult InsertArConditionAt(DWORD index, const IArCondition* item) = 0;
  virtual void RemoveArConditionAt(DWORD index) = 0;
  virtual void RemoveAllArCondition() = 0;

  /// The addresses: children `UrlCondition`.
  virtual DWORD GetUrlConditionCount() const = 0;
  virtual IUrlCondition* GetUrlConditionAt(DWORD index) = 0;
  virtual ConfigResult AddUrlCondition(const IUrlCondition* item) = 0;
  virtual ConfigResult InsertUrlConditionAt(DWORD index, const IUrlCondition* item) = 0;
  virtual void RemoveUrlConditionAt(DWORD index) = 0;
  virtual void RemoveAllUrlCondition() = 0;
};

/// Element `BypassedApps`: applications to which a channel does not apply.
class IBypassedApps : public tolva::node::INode {
 public:
  virtual IBypassedApps& CopyFrom(const IBypassedApps& other) = 0;

  /// The applications: children `ArCondition`.
  virtual DWORD GetArConditionCount() const = 0;
  virtual IArCondition* GetArConditionAt(DWORD index) = 0;
  virtual ConfigResult AddArCondition(const IArCondition* item) = 0;
  virtual ConfigResult InsertArConditionAt(DWORD index, const IArCondition* item) = 0;
  virtual void RemoveArConditionAt(DWORD index) = 0;
  virtual void RemoveAllArCondition() = 0;
};

// Each makes a node with default values, which the caller owns.
TOLVA_API IArCondition* ArCondition_CreateNewInstance();
TOLVA_API IUrlCondition* UrlCondition_CreateNewInstance();
TOLVA_API IAppRule* AppRule_CreateNewInstance();
TOLVA_API IOnlineApps* OnlineApps_CreateNewInstance();
TOLVA_API IBypassedApps* BypassedApps_CreateNewInstance();

}  // namespace TolvaInterface
