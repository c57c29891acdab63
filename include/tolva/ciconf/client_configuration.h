// The CI client configuration: the servers that the client connects to, and what its user sees of
// it.
//
// Units are the agent's; numbers are signed.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace CIConfInterface {

/// Element `EIMServer`.
class IEIMServer : public tolva::node::INode {
 public:
  virtual IEIMServer& CopyFrom(const IEIMServer& other) = 0;

  /// `HostName`: the server's host name. Required.
  virtual const std::wstring& GetHostName() const = 0;
  virtual ConfigResult SetHostName(const std::wstring* value) = 0;

  /// `PortNumber`: its port. Required.
  virtual DWORD GetPortNumber() const = 0;
  virtual ConfigResult SetPortNumber(const DWORD* value) = 0;
};

/// Element `EIMServerArray`.
class IEIMServerArray : public tolva::node::INode {
 public:
  virtual IEIMServerArray& CopyFrom(const IEIMServerArray& other) = 0;

  /// Children `EIMServer`.
  virtual DWORD GetEIMServerCount() const = 0;
  virtual IEIMServer* GetEIMServerAt(DWORD index) = 0;
  virtual ConfigResult AddEIMServer(const IEIMServer* item) = 0;
  virtual ConfigResult InsertEIMServerAt(DWORD index, const IEIMServer* item) = 0;
  virtual void RemoveEIMServerAt(DWORD index) = 0;
  virtual void RemoveAllEIMServer() = 0;
};

/// Element `EIMConnection`.
class IEIMConnection : public tolva::node::INode {
 public:
  virtual IEIMConnection& CopyFrom(const IEIMConnection& other) = 0;

  /// The child `EIMServerArray`. Required.
  virtual IEIMServerArray* GetEIMServerArray() = 0;
  virtual ConfigResult SetEIMServerArray(const IEIMServerArray* child) = 0;
};

/// Element `Connection`.
class IConnection : public tolva::node::INode {
 public:
  virtual IConnection& CopyFrom(const IConnection& other) = 0;

  /// `DoNotSendUserName`. Required.
  virtual DWORD GetDoNotSendUserName() const = 0;
  virtual ConfigResult SetDoNotSendUserName(const DWORD* value) = 0;

  /// `FailClosed`. Required.
  virtual DWORD GetFailClosed() const = 0;
  virtual ConfigResult SetFailClosed(const DWORD* value) = 0;

  /// The child `EIMConnection`. Required.
  virtual IEIMConnection* GetEIMConnection() = 0;
  virtual ConfigResult SetEIMConnection(const IEIMConnection* child) = 0;
};

/// Element `UserInterface`.
class IUserInterface : public tolva::node::INode {
 public:
  virtual IUserInterface& CopyFrom(const IUserInterface& other) = 0;

  /// `UISilentMode`: whether the user sees nothing of the client. Required.
  virtual DWORD GetUISilentMode() const = 0;
  virtual ConfigResult SetUISilentMode(const DWORD* value) = 0;

  /// `DisplayHTTPSBlockMsg`. Required.
  virtual DWORD GetDisplayHTTPSBlockMsg() const = 0;
  virtual ConfigResult SetDisplayHTTPSBlockMsg(const DWORD* value) = 0;

  /// `HTTPSBlockMsgInterval`. Required.
  virtual DWORD GetHTTPSBlockMsgInterval() const = 0;
  virtual ConfigResult SetHTTPSBlockMsgInterval(const DWORD* value) = 0;

  /// `DisplayFTPBlockMsg`. Required.
  virtual DWORD GetDisplayFTPBlockMsg() const = 0;
  virtual ConfigResult SetDisplayFTPBlockMsg(const DWORD* value) = 0;

  /// `FTPBlockMsgInterval`. Required.
  virtual DWORD GetFTPBlockMsgInterval() const = 0;
  virtual ConfigResult SetFTPBlockMsgInterval(const DWORD* value) = 0;

  /// `UITimeout`. Required.
  virtual DWORD GetUITimeout() const = 0;
  virtual ConfigResult SetUITimeout(const DWORD* value) = 0;
};

/// Element `ClientSetting`.
class IClientSetting : public tolva::node::INode {
 public:
  virtual IClientSetting& CopyFrom(const IClientSetting& other) = 0;

  /// `EnableTamperProtection`: whether the agent defends itself. Optional.
  virtual ConfigResult GetEnableTamperProtection(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTamperProtection(const DWORD* value) = 0;

  /// `EnableTelemetry`: whether telemetry is collected. Optional; after `Clear`, and when a
  /// document does not mention it, it is present and 0.
  virtual ConfigResult GetEnableTelemetry(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTelemetry(const DWORD* value) = 0;

  /// The child `UserInterface`. Required.
  virtual IUserInterface* GetUserInterface() = 0;
  virtual ConfigResult SetUserInterface(const IUserInterface* child) = 0;
};

/// Element `URLCondition`.
class IURLCondition : public tolva::node::INode {
 public:
  virtual IURLCondition& CopyFrom(const IURLCondition& other) = 0;

  /// `SiteURL`: the site's address. Required.
  virtual const std::wstring& GetSiteURL() const = 0;
  virtual ConfigResult SetSiteURL(const std::wstring* value) = 0;
};

/// Element `TrustedSites`.
class ITrustedSites : public tolva::node::INode {
 public:
  virtual ITrustedSites& CopyFrom(const ITrustedSites& other) = 0;

  /// Children `URLCondition`.
  virtual DWORD GetURLConditionCount() const = 0;
  virtual IURLCondition* GetURLConditionAt(DWORD index) = 0;
  virtual ConfigResult AddURLCondition(const IURLCondition* item) = 0;
  virtual ConfigResult InsertURLConditionAt(DWORD index, const IURLCondition* item) = 0;
  virtual void RemoveURLConditionAt(DWORD index) = 0;
  virtual void RemoveAllURLCondition() = 0;
};

/// Element `ICIClientConfiguration`, the root.
class ICIClientConfiguration : public tolva::node::IConfigurationRoot<ICIClientConfiguration> {
 public:
  /// The child `Connection`. Required.
  virtual IConnection* GetConnection() = 0;
  virtual ConfigResult SetConnection(const IConnection* child) = 0;

  /// The child `ClientSetting`. Required.
  virtual IClientSetting* GetClientSetting() = 0;
  virtual ConfigResult SetClientSetting(const IClientSetting* child) = 0;

  /// The child `TrustedSites`. Optional.
  virtual ConfigResult GetTrustedSites(ITrustedSites** out) = 0;
  virtual ConfigResult SetTrustedSites(const ITrustedSites* child) = 0;
};

// Each makes a node with default values, which the caller owns.
TOLVA_API IEIMServer* EIMServer_CreateNewInstance();
TOLVA_API IEIMServerArray* EIMServerArray_CreateNewInstance();
TOLVA_API IEIMConnection* EIMConnection_CreateNewInstance();
TOLVA_API IConnection* Connection_CreateNewInstance();
TOLVA_API IUserInterface* UserInterface_CreateNewInstance();
TOLVA_API IClientSetting* ClientSetting_CreateNewInstance();
TOLVA_API IURLCondition* URLCondition_CreateNewInstance();
TOLVA_API ITrustedSites* TrustedSites_CreateNewInstance();
TOLVA_API ICIClientConfiguration* ICIClientConfiguration_CreateNewInstance();

}  // namespace CIConfInterface
