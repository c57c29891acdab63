// The classes of tolva/rfconf/client_configuration.h.
#pragma once

#include <tolva/rfconf/client_configuration.h>

#include <string>

#include "node/accessors.h"
#include "node/configuration_root.h"
#include "rfconf/document.h"

namespace RFConfInterface {

class CRFServer final : public Node<CRFServer, IRFServer> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(HostName, hostName_);
  TOLVA_NUMBER(PortNumber, portNumber_);
};

/// Base of a list of servers `C`, which implements `I`.
template <class C, class I>
class RFServerList : public Node<C, I> {
 public:
  TOLVA_CHILDREN(CRFServer, RFServer, rfServers_);
};

class CInternalRFServerArray final
    : public RFServerList<CInternalRFServerArray, IInternalRFServerArray> {
 public:
  static const Schema kSchema;
};

class CExternalRFServerArray final
    : public RFServerList<CExternalRFServerArray, IExternalRFServerArray> {
 public:
  static const Schema kSchema;
};

class CInternalConnection final : public Node<CInternalConnection, IInternalConnection> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(HeartbeatRetryInterval, heartbeatRetryInterval_);
  TOLVA_CHILD(CInternalRFServerArray, InternalRFServerArray, internalRFServerArray_);
};

class CExternalConnection final : public Node<CExternalConnection, IExternalConnection> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(HeartbeatRetryInterval, heartbeatRetryInterval_);
  TOLVA_NUMBER(FailClosed, failClosed_);
  TOLVA_NUMBER(FailClosedTimeout, failClosedTimeout_);
  TOLVA_NUMBER(FilterHTTPS, filterHTTPS_);
  TOLVA_NUMBER(FilterFTP, filterFTP_);
  TOLVA_NUMBER(URLLookupAndLog, urlLookupAndLog_);
  TOLVA_CHILD(CExternalRFServerArray, ExternalRFServerArray, externalRFServerArray_);
};

class CConnection final : public Node<CConnection, IConnection> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CInternalConnection, InternalConnection, internalConnection_);
  TOLVA_CHILD(CExternalConnection, ExternalConnection, externalConnection_);
};

class CUserInterface final : public Node<CUserInterface, IUserInterface> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(UISilentMode, uiSilentMode_);
  TOLVA_NUMBER(UITimeout, uiTimeout_);
};

class CClientSetting final : public Node<CClientSetting, IClientSetting> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, EnableTamperProtection, enableTamperProtection_);
  TOLVA_NUMBER(EnableTelemetry, enableTelemetry_);
  TOLVA_NUMBER(DisableFiltering, disableFiltering_);
  TOLVA_OPTIONAL(std::wstring, AdminPasswordHash, adminPasswordHash_);
  TOLVA_CHILD(CUserInterface, UserInterface, userInterface_);
};

class CRFURLCondition final : public Node<CRFURLCondition, IRFURLCondition> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(SiteURL, siteURL_);
};

class CRFTrustedSites final : public Node<CRFTrustedSites, IRFTrustedSites> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CRFURLCondition, RFURLCondition, rfURLConditions_);
};

class CRFClientConfiguration final
    : public ConfigurationRoot<CRFClientConfiguration, IRFClientConfiguration> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CConnection, Connection, connection_);
  TOLVA_CHILD(CClientSetting, ClientSetting, clientSetting_);
  TOLVA_OPTIONAL_CHILD(CRFTrustedSites, RFTrustedSites, rfTrustedSites_);
};

}  // namespace RFConfInterface
