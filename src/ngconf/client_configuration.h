// The classes of tolva/ngconf/client_configuration.h.
#pragma once

#include <tolva/ngconf/client_configuration.h>

#include <string>

#include "clientconfig/active_directory.h"
#include "ngconf/document.h"
#include "ngconf/scan_engine.h"
#include "node/accessors.h"
#include "node/browser_files.h"
#include "node/configuration_root.h"

namespace NGConfInterface {

class CServerCommunication final : public Node<CServerCommunication, IServerCommunication> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(ManagementQueryInterval, managementQueryInterval_);
  TOLVA_STRING(ManagementServerHostname, managementServerHostname_);
};

class CLogReport final : public Node<CLogReport, ILogReport> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(LogReportInterval, logReportInterval_);
  TOLVA_STRING(LogReportServerHostname, logReportServerHostname_);
  TOLVA_NUMBER(MaxUploadSize, maxUploadSize_);
  TOLVA_OPTIONAL(std::wstring, EventLogReportServerHostname, eventLogReportServerHostname_);
};

class CNGUser final : public Node<CNGUser, INGUser> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(Name, name_);
  TOLVA_NUMBER(EnableTrayIconMenu, enableTrayIconMenu_);
};

class CNGUserSetting final : public Node<CNGUserSetting, INGUserSetting> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CNGUser, NGUser, ngUsers_);
};

class CNGFirefoxSetting final : public BrowserFiles<CNGFirefoxSetting, INGFirefoxSetting> {
 public:
  static const Schema kSchema;
};

class CClientManagement final : public Node<CClientManagement, IClientManagement> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, EnableTrayIconMenu, enableTrayIconMenu_);
  /// In no table, so reading, writing and clearing do not touch it.
  TOLVA_OPTIONAL(DWORD, ReservedSetting, reservedSetting_);
  TOLVA_PRESENCE(ActiveDirectory, activeDirectory_);
  ConfigResult GetDefaultDomainEnabled(DWORD* out) const override;
  ConfigResult SetDefaultDomainEnabled(const DWORD* value) override;
  ConfigResult GetDefaultDomainName(std::wstring* out) const override;
  ConfigResult SetDefaultDomainName(const std::wstring* value) override;
  TOLVA_CHILD(CServerCommunication, ServerCommunication, serverCommunication_);
  TOLVA_CHILD(CLogReport, LogReport, logReport_);
  TOLVA_OPTIONAL_CHILD(CNGUserSetting, NGUserSetting, ngUserSetting_);
  TOLVA_OPTIONAL_CHILD(CNGFirefoxSetting, NGFirefoxSetting, ngFirefoxSetting_);
  OptionalChild<ClientConfig::CActiveDirectory> activeDirectory_;
};

class CHTTPHeader final : public Node<CHTTPHeader, IHTTPHeader> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(HeaderName, headerName_);
  TOLVA_STRING(HeaderValue, headerValue_);
};

class CHTTPRequestHeaders final : public Node<CHTTPRequestHeaders, IHTTPRequestHeaders> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CHTTPHeader, HTTPHeader, httpHeaders_);
};

class CCloudServerComunication final
    : public Node<CCloudServerComunication, ICloudServerComunication> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CHTTPRequestHeaders, HTTPRequestHeaders, httpRequestHeaders_);
};

class CINGClientConfiguration final
    : public ConfigurationRoot<CINGClientConfiguration, IINGClientConfiguration> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CClientManagement, ClientManagement, clientManagement_);
  TOLVA_CHILD(CScanEngineConfiguration, ScanEngineConfiguration, scanEngineConfiguration_);
  TOLVA_OPTIONAL_CHILD(CCloudServerComunication, CloudServerComunication, cloudServerComunication_);
};

}  // namespace NGConfInterface
