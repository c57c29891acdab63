// The CI client configuration: the servers that the client connects to, and what its user sees of
// it. Numbers are signed; the agent defines their units.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace CIConfInterface {

/// Element `EIMServer`: a server that the client connects to.
class IEIMServer : public tolva::node::INode {
 public:
  virtual IEIMServer& CopyFrom(const IEIMServer& other) = 0;

  /// `HostName`: the host name of the server. Required.
  virtual const std::wstring& GetHostName() const = 0;
  virtual ConfigResult SetHostName(const std::wstring* value) = 0;

  /// `PortNumber`: the port number of the server. Required.
  virtual DWORD GetPortNumber() const = 0;
  virtual ConfigResult SetPortNumber(const DWORD* value) = 0;
};

/// Element `EIMServerArray`: the servers that the client connects to.
class IEIMServerArray : public tolva::node::INode {
 public:
  virtual IEIMServerArray& CopyFrom(const IEIMServerArray& other) = 0;

  /// `EIMServer`: a server that the client connects to. Repeated.
  virtual DWORD GetEIMServerCount() const = 0;
  virtual IEIMServer* GetEIMServerAt(DWORD index) = 0;
  virtual ConfigResult AddEIMServer(const IEIMServer* item) = 0;
  virtual ConfigResult InsertEIMServerAt(DWORD index, const IEIMServer* item) = 0;
  virtual void RemoveEIMServerAt(DWORD index) = 0;
  virtual void RemoveAllEIMServer() = 0;
};

/// Element `EIMConnection`: the connection to the EIM servers.
class IEIMConnection : public tolva::node::INode {
 public:
  virtual IEIMConnection& CopyFrom(const IEIMConnection& other) = 0;

  /// `EIMServerArray`: the servers that the client connects to. Required.
  virtual IEIMServerArray* GetEIMServerArray() = 0;
  virtual ConfigResult SetEIMServerArray(const IEIMServerArray* child) = 0;
};

/// Element `Connection`: how the client connects to its servers.
class IConnection : public tolva::node::INode {
 public:
  virtual IConnection& CopyFrom(const IConnection& other) = 0;

  /// `DoNotSendUserName`: 1 if the client does not send the name of the user, 0 if it does.
  /// Required.
  virtual DWORD GetDoNotSendUserName() const = 0;
  virtual ConfigResult SetDoNotSendUserName(const DWORD* value) = 0;

  /// `FailClosed`: 1 if the client fails closed, 0 if not. Required.
  virtual DWORD GetFailClosed() const = 0;
  virtual ConfigResult SetFailClosed(const DWORD* value) = 0;

  /// `EIMConnection`: the connection to the EIM servers. Required.
  virtual IEIMConnection* GetEIMConnection() = 0;
  virtual ConfigResult SetEIMConnection(const IEIMConnection* child) = 0;
};

/// Element `UserInterface`: what the user sees of the client.
class IUserInterface : public tolva::node::INode {
 public:
  virtual IUserInterface& CopyFrom(const IUserInterface& other) = 0;

  /// `UISilentMode`: 1 if the user interface is in silent mode, 0 if not. Required.
  virtual DWORD GetUISilentMode() const = 0;
  virtual ConfigResult SetUISilentMode(const DWORD* value) = 0;

  /// `DisplayHTTPSBlockMsg`: 1 if a message is displayed when HTTPS traffic is blocked, 0 if not.
  /// Required.
  virtual DWORD GetDisplayHTTPSBlockMsg() const = 0;
  virtual ConfigResult SetDisplayHTTPSBlockMsg(const DWORD* value) = 0;

  /// `HTTPSBlockMsgInterval`: the interval between two messages about blocked HTTPS traffic.
  /// Required.
  virtual DWORD GetHTTPSBlockMsgInterval() const = 0;
  virtual ConfigResult SetHTTPSBlockMsgInterval(const DWORD* value) = 0;

  /// `DisplayFTPBlockMsg`: 1 if a message is displayed when FTP traffic is blocked, 0 if not.
  /// Required.
  virtual DWORD GetDisplayFTPBlockMsg() const = 0;
  virtual ConfigResult SetDisplayFTPBlockMsg(const DWORD* value) = 0;

  /// `FTPBlockMsgInterval`: the interval between two messages about blocked FTP traffic. Required.
  virtual DWORD GetFTPBlockMsgInterval() const = 0;
  virtual ConfigResult SetFTPBlockMsgInterval(const DWORD* value) = 0;

  /// `UITimeout`: the timeout of the user interface. Required.
  virtual DWORD GetUITimeout() const = 0;
  virtual ConfigResult SetUITimeout(const DWORD* value) = 0;
};

/// Element `ClientSetting`: the client's own settings.
class IClientSetting : public tolva::node::INode {
 public:
  virtual IClientSetting& CopyFrom(const IClientSetting& other) = 0;

  /// `EnableTamperProtection`: 1 if the agent protects itself against tampering, 0 if not.
  /// Optional.
  virtual ConfigResult GetEnableTamperProtection(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTamperProtection(const DWORD* value) = 0;

  /// `EnableTelemetry`: 1 if telemetry is collected, 0 if not. If the attribute is absent, 0
  /// applies. Optional.
  ///
  /// After `Clear`, and after a read of a document without it, the attribute is present and 0.
  virtual ConfigResult GetEnableTelemetry(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTelemetry(const DWORD* value) = 0;

  /// `UserInterface`: what the user sees of the client. Required.
  virtual IUserInterface* GetUserInterface() = 0;
  virtual ConfigResult SetUserInterface(const IUserInterface* child) = 0;
};

/// Element `URLCondition`: a trusted site.
class IURLCondition : public tolva::node::INode {
 public:
  virtual IURLCondition& CopyFrom(const IURLCondition& other) = 0;

  /// `SiteURL`: the URL of the site. Required.
  virtual const std::wstring& GetSiteURL() const = 0;
  virtual ConfigResult SetSiteURL(const std::wstring* value) = 0;
};

/// Element `TrustedSites`: the sites that are trusted.
class ITrustedSites : public tolva::node::INode {
 public:
  virtual ITrustedSites& CopyFrom(const ITrustedSites& other) = 0;

  /// `URLCondition`: a trusted site. Repeated.
  virtual DWORD GetURLConditionCount() const = 0;
  virtual IURLCondition* GetURLConditionAt(DWORD index) = 0;
  virtual ConfigResult AddURLCondition(const IURLCondition* item) = 0;
  virtual ConfigResult InsertURLConditionAt(DWORD index, const IURLCondition* item) = 0;
  virtual void RemoveURLConditionAt(DWORD index) = 0;
  virtual void RemoveAllURLCondition() = 0;
};

/// Element `ICIClientConfiguration`: the root of the CI client configuration.
class ICIClientConfiguration : public tolva::node::IConfigurationRoot<ICIClientConfiguration> {
 public:
  /// `Connection`: how the client connects to its servers. Required.
  virtual IConnection* GetConnection() = 0;
  virtual ConfigResult SetConnection(const IConnection* child) = 0;

  /// `ClientSetting`: the client's own settings. Required.
  virtual IClientSetting* GetClientSetting() = 0;
  virtual ConfigResult SetClientSetting(const IClientSetting* child) = 0;

  /// `TrustedSites`: the sites that are trusted. Optional.
  virtual ConfigResult GetTrustedSites(ITrustedSites** out) = 0;
  virtual ConfigResult SetTrustedSites(const ITrustedSites* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
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
