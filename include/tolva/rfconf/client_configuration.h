// The remote filtering client configuration: the filtering servers, and what the user sees of the
// client. Numbers are signed; the agent defines their units.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace RFConfInterface {

/// Element `RFServer`: a remote filtering server.
class IRFServer : public tolva::node::INode {
 public:
  virtual IRFServer& CopyFrom(const IRFServer& other) = 0;

  /// `HostName`: the host name of the server. Required.
  virtual const std::wstring& GetHostName() const = 0;
  virtual ConfigResult SetHostName(const std::wstring* value) = 0;

  /// `PortNumber`: the port number of the server. Required.
  virtual DWORD GetPortNumber() const = 0;
  virtual ConfigResult SetPortNumber(const DWORD* value) = 0;
};

/// A list of servers. Two elements have this content and differ only in their names. `Self` is the
/// interface of one of them.
template <class Self>
class IRFServerList : public tolva::node::INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// `RFServer`: a remote filtering server. Repeated.
  virtual DWORD GetRFServerCount() const = 0;
  virtual IRFServer* GetRFServerAt(DWORD index) = 0;
  virtual ConfigResult AddRFServer(const IRFServer* item) = 0;
  virtual ConfigResult InsertRFServerAt(DWORD index, const IRFServer* item) = 0;
  virtual void RemoveRFServerAt(DWORD index) = 0;
  virtual void RemoveAllRFServer() = 0;
};

/// Element `InternalRFServerArray`: the internal filtering servers.
class IInternalRFServerArray : public IRFServerList<IInternalRFServerArray> {};

/// Element `ExternalRFServerArray`: the external filtering servers.
class IExternalRFServerArray : public IRFServerList<IExternalRFServerArray> {};

/// Element `InternalConnection`: the connection to the internal filtering servers.
class IInternalConnection : public tolva::node::INode {
 public:
  virtual IInternalConnection& CopyFrom(const IInternalConnection& other) = 0;

  /// `HeartbeatRetryInterval`: the interval after which a heartbeat is retried. Required.
  virtual DWORD GetHeartbeatRetryInterval() const = 0;
  virtual ConfigResult SetHeartbeatRetryInterval(const DWORD* value) = 0;

  /// `InternalRFServerArray`: the internal filtering servers. Required.
  virtual IInternalRFServerArray* GetInternalRFServerArray() = 0;
  virtual ConfigResult SetInternalRFServerArray(const IInternalRFServerArray* child) = 0;
};

/// Element `ExternalConnection`: the connection to the external filtering servers.
class IExternalConnection : public tolva::node::INode {
 public:
  virtual IExternalConnection& CopyFrom(const IExternalConnection& other) = 0;

  /// `HeartbeatRetryInterval`: the interval after which a heartbeat is retried. Required.
  virtual DWORD GetHeartbeatRetryInterval() const = 0;
  virtual ConfigResult SetHeartbeatRetryInterval(const DWORD* value) = 0;

  /// `FailClosed`: 1 if the client fails closed, 0 if not. Required.
  virtual DWORD GetFailClosed() const = 0;
  virtual ConfigResult SetFailClosed(const DWORD* value) = 0;

  /// `FailClosedTimeout`: the timeout of the fail-closed behaviour. Required.
  virtual DWORD GetFailClosedTimeout() const = 0;
  virtual ConfigResult SetFailClosedTimeout(const DWORD* value) = 0;

  /// `FilterHTTPS`: 1 if HTTPS traffic is filtered, 0 if not. Required.
  virtual DWORD GetFilterHTTPS() const = 0;
  virtual ConfigResult SetFilterHTTPS(const DWORD* value) = 0;

  /// `FilterFTP`: 1 if FTP traffic is filtered, 0 if not. Required.
  virtual DWORD GetFilterFTP() const = 0;
  virtual ConfigResult SetFilterFTP(const DWORD* value) = 0;

  /// `URLLookupAndLog`: 1 if URLs are looked up and logged, 0 if not. Required.
  virtual DWORD GetURLLookupAndLog() const = 0;
  virtual ConfigResult SetURLLookupAndLog(const DWORD* value) = 0;

  /// `ExternalRFServerArray`: the external filtering servers. Required.
  virtual IExternalRFServerArray* GetExternalRFServerArray() = 0;
  virtual ConfigResult SetExternalRFServerArray(const IExternalRFServerArray* child) = 0;
};

/// Element `Connection`: the connections to the filtering servers.
class IConnection : public tolva::node::INode {
 public:
  virtual IConnection& CopyFrom(const IConnection& other) = 0;

  /// `InternalConnection`: the connection to the internal filtering servers. Required.
  virtual IInternalConnection* GetInternalConnection() = 0;
  virtual ConfigResult SetInternalConnection(const IInternalConnection* child) = 0;

  /// `ExternalConnection`: the connection to the external filtering servers. Required.
  virtual IExternalConnection* GetExternalConnection() = 0;
  virtual ConfigResult SetExternalConnection(const IExternalConnection* child) = 0;
};

/// Element `UserInterface`: what the user sees of the client.
class IUserInterface : public tolva::node::INode {
 public:
  virtual IUserInterface& CopyFrom(const IUserInterface& other) = 0;

  /// `UISilentMode`: 1 if the user interface is in silent mode, 0 if not. Required.
  virtual DWORD GetUISilentMode() const = 0;
  virtual ConfigResult SetUISilentMode(const DWORD* value) = 0;

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
  /// The attribute is always written, and has the accessors of a required number.
  virtual DWORD GetEnableTelemetry() const = 0;
  virtual ConfigResult SetEnableTelemetry(const DWORD* value) = 0;

  /// `DisableFiltering`: 1 if filtering is disabled, 0 if not. Required.
  virtual DWORD GetDisableFiltering() const = 0;
  virtual ConfigResult SetDisableFiltering(const DWORD* value) = 0;

  /// `AdminPasswordHash`: the hash of the administrator password, as text that the library does not
  /// interpret. Optional.
  virtual ConfigResult GetAdminPasswordHash(std::wstring* out) const = 0;
  virtual ConfigResult SetAdminPasswordHash(const std::wstring* value) = 0;

  /// `UserInterface`: what the user sees of the client. Required.
  virtual IUserInterface* GetUserInterface() = 0;
  virtual ConfigResult SetUserInterface(const IUserInterface* child) = 0;
};

/// Element `RFURLCondition`: a trusted site.
class IRFURLCondition : public tolva::node::INode {
 public:
  virtual IRFURLCondition& CopyFrom(const IRFURLCondition& other) = 0;

  /// `SiteURL`: the URL of the site. Required.
  virtual const std::wstring& GetSiteURL() const = 0;
  virtual ConfigResult SetSiteURL(const std::wstring* value) = 0;
};

/// Element `RFTrustedSites`: the sites that are trusted.
class IRFTrustedSites : public tolva::node::INode {
 public:
  virtual IRFTrustedSites& CopyFrom(const IRFTrustedSites& other) = 0;

  /// `RFURLCondition`: a trusted site. Repeated.
  virtual DWORD GetRFURLConditionCount() const = 0;
  virtual IRFURLCondition* GetRFURLConditionAt(DWORD index) = 0;
  virtual ConfigResult AddRFURLCondition(const IRFURLCondition* item) = 0;
  virtual ConfigResult InsertRFURLConditionAt(DWORD index, const IRFURLCondition* item) = 0;
  virtual void RemoveRFURLConditionAt(DWORD index) = 0;
  virtual void RemoveAllRFURLCondition() = 0;
};

/// Element `IRFClientConfiguration`: the root of the remote filtering client configuration.
class IRFClientConfiguration : public tolva::node::IConfigurationRoot<IRFClientConfiguration> {
 public:
  /// `Connection`: the connections to the filtering servers. Required.
  virtual IConnection* GetConnection() = 0;
  virtual ConfigResult SetConnection(const IConnection* child) = 0;

  /// `ClientSetting`: the client's own settings. Required.
  virtual IClientSetting* GetClientSetting() = 0;
  virtual ConfigResult SetClientSetting(const IClientSetting* child) = 0;

  /// `RFTrustedSites`: the sites that are trusted. Optional.
  virtual ConfigResult GetRFTrustedSites(IRFTrustedSites** out) = 0;
  virtual ConfigResult SetRFTrustedSites(const IRFTrustedSites* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IRFServer* RFServer_CreateNewInstance();
TOLVA_API IInternalRFServerArray* InternalRFServerArray_CreateNewInstance();
TOLVA_API IExternalRFServerArray* ExternalRFServerArray_CreateNewInstance();
TOLVA_API IInternalConnection* InternalConnection_CreateNewInstance();
TOLVA_API IExternalConnection* ExternalConnection_CreateNewInstance();
TOLVA_API IConnection* Connection_CreateNewInstance();
TOLVA_API IUserInterface* UserInterface_CreateNewInstance();
TOLVA_API IClientSetting* ClientSetting_CreateNewInstance();
TOLVA_API IRFURLCondition* RFURLCondition_CreateNewInstance();
TOLVA_API IRFTrustedSites* RFTrustedSites_CreateNewInstance();
TOLVA_API IRFClientConfiguration* IRFClientConfiguration_CreateNewInstance();

}  // namespace RFConfInterface
