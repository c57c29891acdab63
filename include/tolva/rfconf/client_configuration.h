// The remote filtering client configuration: the filtering servers, and what the client's user
// sees of it.
//
// Units are the agent's; numbers are signed.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace RFConfInterface {

/// Element `RFServer`.
class IRFServer : public tolva::node::INode {
 public:
  virtual IRFServer& CopyFrom(const IRFServer& other) = 0;

  /// `HostName`: the server's host name. Required.
  virtual const std::wstring& GetHostName() const = 0;
  virtual ConfigResult SetHostName(const std::wstring* value) = 0;

  /// `PortNumber`: its port. Required.
  virtual DWORD GetPortNumber() const = 0;
  virtual ConfigResult SetPortNumber(const DWORD* value) = 0;
};

/// A list of servers. Two elements have this content and differ in their name alone; `Self` is the
/// interface of one of them.
template <class Self>
class IRFServerList : public tolva::node::INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// Children `RFServer`.
  virtual DWORD GetRFServerCount() const = 0;
  virtual IRFServer* GetRFServerAt(DWORD index) = 0;
  virtual ConfigResult AddRFServer(const IRFServer* item) = 0;
  virtual ConfigResult InsertRFServerAt(DWORD index, const IRFServer* item) = 0;
  virtual void RemoveRFServerAt(DWORD index) = 0;
  virtual void RemoveAllRFServer() = 0;
};

/// Element `InternalRFServerArray`: the internal servers.
class IInternalRFServerArray : public IRFServerList<IInternalRFServerArray> {};

/// Element `ExternalRFServerArray`: the external servers.
class IExternalRFServerArray : public IRFServerList<IExternalRFServerArray> {};

/// Element `InternalConnection`.
class IInternalConnection : public tolva::node::INode {
 public:
  virtual IInternalConnection& CopyFrom(const IInternalConnection& other) = 0;

  /// `HeartbeatRetryInterval`. Required.
  virtual DWORD GetHeartbeatRetryInterval() const = 0;
  virtual ConfigResult SetHeartbeatRetryInterval(const DWORD* value) = 0;

  /// The child `InternalRFServerArray`. Required.
  virtual IInternalRFServerArray* GetInternalRFServerArray() = 0;
  virtual ConfigResult SetInternalRFServerArray(const IInternalRFServerArray* child) = 0;
};

/// Element `ExternalConnection`.
class IExternalConnection : public tolva::node::INode {
 public:
  virtual IExternalConnection& CopyFrom(const IExternalConnection& other) = 0;

  /// `HeartbeatRetryInterval`. Required.
  virtual DWORD GetHeartbeatRetryInterval() const = 0;
  virtual ConfigResult SetHeartbeatRetryInterval(const DWORD* value) = 0;

  /// `FailClosed`. Required.
  virtual DWORD GetFailClosed() const = 0;
  virtual ConfigResult SetFailClosed(const DWORD* value) = 0;

  /// `FailClosedTimeout`. Required.
  virtual DWORD GetFailClosedTimeout() const = 0;
  virtual ConfigResult SetFailClosedTimeout(const DWORD* value) = 0;

  /// `FilterHTTPS`. Required.
  virtual DWORD GetFilterHTTPS() const = 0;
  virtual ConfigResult SetFilterHTTPS(const DWORD* value) = 0;

  /// `FilterFTP`. Required.
  virtual DWORD GetFilterFTP() const = 0;
  virtual ConfigResult SetFilterFTP(const DWORD* value) = 0;

  /// `URLLookupAndLog`. Required.
  virtual DWORD GetURLLookupAndLog() const = 0;
  virtual ConfigResult SetURLLookupAndLog(const DWORD* value) = 0;

  /// The child `ExternalRFServerArray`. Required.
  virtual IExternalRFServerArray* GetExternalRFServerArray() = 0;
  virtual ConfigResult SetExternalRFServerArray(const IExternalRFServerArray* child) = 0;
};

/// Element `Connection`.
class IConnection : public tolva::node::INode {
 public:
  virtual IConnection& CopyFrom(const IConnection& other) = 0;

  /// The child `InternalConnection`. Required.
  virtual IInternalConnection* GetInternalConnection() = 0;
  virtual ConfigResult SetInternalConnection(const IInternalConnection* child) = 0;

  /// The child `ExternalConnection`. Required.
  virtual IExternalConnection* GetExternalConnection() = 0;
  virtual ConfigResult SetExternalConnection(const IExternalConnection* child) = 0;
};

/// Element `UserInterface`.
class IUserInterface : public tolva::node::INode {
 public:
  virtual IUserInterface& CopyFrom(const IUserInterface& other) = 0;

  /// `UISilentMode`: whether the user sees nothing of the client. Required.
  virtual DWORD GetUISilentMode() const = 0;
  virtual ConfigResult SetUISilentMode(const DWORD* value) = 0;

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

  /// `EnableTelemetry`: whether telemetry is collected. Always written; absent in a document it
  /// reads as 0.
  virtual DWORD GetEnableTelemetry() const = 0;
  virtual ConfigResult SetEnableTelemetry(const DWORD* value) = 0;

  /// `DisableFiltering`. Required.
  virtual DWORD GetDisableFiltering() const = 0;
  virtual ConfigResult SetDisableFiltering(const DWORD* value) = 0;

  /// `AdminPasswordHash`: a hash as text, never interpreted. Optional.
  virtual ConfigResult GetAdminPasswordHash(std::wstring* out) const = 0;
  virtual ConfigResult SetAdminPasswordHash(const std::wstring* value) = 0;

  /// The child `UserInterface`. Required.
  virtual IUserInterface* GetUserInterface() = 0;
  virtual ConfigResult SetUserInterface(const IUserInterface* child) = 0;
};

/// Element `RFURLCondition`.
class IRFURLCondition : public tolva::node::INode {
 public:
  virtual IRFURLCondition& CopyFrom(const IRFURLCondition& other) = 0;

  /// `SiteURL`: the site's address. Required.
  virtual const std::wstring& GetSiteURL() const = 0;
  virtual ConfigResult SetSiteURL(const std::wstring* value) = 0;
};

/// Element `RFTrustedSites`.
class IRFTrustedSites : public tolva::node::INode {
 public:
  virtual IRFTrustedSites& CopyFrom(const IRFTrustedSites& other) = 0;

  /// Children `RFURLCondition`.
  virtual DWORD GetRFURLConditionCount() const = 0;
  virtual IRFURLCondition* GetRFURLConditionAt(DWORD index) = 0;
  virtual ConfigResult AddRFURLCondition(const IRFURLCondition* item) = 0;
  virtual ConfigResult InsertRFURLConditionAt(DWORD index, const IRFURLCondition* item) = 0;
  virtual void RemoveRFURLConditionAt(DWORD index) = 0;
  virtual void RemoveAllRFURLCondition() = 0;
};

/// Element `IRFClientConfiguration`, the root.
class IRFClientConfiguration : public tolva::node::IConfigurationRoot<IRFClientConfiguration> {
 public:
  /// The child `Connection`. Required.
  virtual IConnection* GetConnection() = 0;
  virtual ConfigResult SetConnection(const IConnection* child) = 0;

  /// The child `ClientSetting`. Required.
  virtual IClientSetting* GetClientSetting() = 0;
  virtual ConfigResult SetClientSetting(const IClientSetting* child) = 0;

  /// The child `RFTrustedSites`. Optional.
  virtual ConfigResult GetRFTrustedSites(IRFTrustedSites** out) = 0;
  virtual ConfigResult SetRFTrustedSites(const IRFTrustedSites* child) = 0;
};

// Each makes a node with default values, which the caller owns.
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
