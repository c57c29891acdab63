// The classes of tolva/ciconf/client_configuration.h.
#pragma once

#include <tolva/ciconf/client_configuration.h>

#include <string>

#include "ciconf/document.h"
#include "node/accessors.h"
#include "node/configuration_root.h"

namespace CIConfInterface {

class CEIMServer final : public Node<CEIMServer, IEIMServer> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(HostName, hostName_);
  TOLVA_NUMBER(PortNumber, portNumber_);
};

class CEIMServerArray final : public Node<CEIMServerArray, IEIMServerArray> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CEIMServer, EIMServer, eimServers_);
};

class CEIMConnection final : public Node<CEIMConnection, IEIMConnection> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CEIMServerArray, EIMServerArray, eimServerArray_);
};

class CConnection final : public Node<CConnection, IConnection> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(DoNotSendUserName, doNotSendUserName_);
  TOLVA_NUMBER(FailClosed, failClosed_);
  TOLVA_CHILD(CEIMConnection, EIMConnection, eimConnection_);
};

class CUserInterface final : public Node<CUserInterface, IUserInterface> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(UISilentMode, uiSilentMode_);
  TOLVA_NUMBER(DisplayHTTPSBlockMsg, displayHTTPSBlockMsg_);
  TOLVA_NUMBER(HTTPSBlockMsgInterval, httpsBlockMsgInterval_);
  TOLVA_NUMBER(DisplayFTPBlockMsg, displayFTPBlockMsg_);
  TOLVA_NUMBER(FTPBlockMsgInterval, ftpBlockMsgInterval_);
  TOLVA_NUMBER(UITimeout, uiTimeout_);
};

class CClientSetting final : public Node<CClientSetting, IClientSetting> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, EnableTamperProtection, enableTamperProtection_);
  TOLVA_OPTIONAL(DWORD, EnableTelemetry, enableTelemetry_){.value = 0, .present = 1};
  TOLVA_CHILD(CUserInterface, UserInterface, userInterface_);
};

class CURLCondition final : public Node<CURLCondition, IURLCondition> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(SiteURL, siteURL_);
};

class CTrustedSites final : public Node<CTrustedSites, ITrustedSites> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CURLCondition, URLCondition, urlConditions_);
};

class CCIClientConfiguration final
    : public ConfigurationRoot<CCIClientConfiguration, ICIClientConfiguration> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CConnection, Connection, connection_);
  TOLVA_CHILD(CClientSetting, ClientSetting, clientSetting_);
  TOLVA_OPTIONAL_CHILD(CTrustedSites, TrustedSites, trustedSites_);
};

}  // namespace CIConfInterface
