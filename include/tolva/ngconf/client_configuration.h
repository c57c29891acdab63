// The NG client configuration: how the agent is managed, where it reports, which users see its tray
// icon menu, and which headers it adds to its requests. Numbers are unsigned; the agent defines
// their units.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/ngconf/scan_engine.h>
#include <tolva/node/browser_files.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace NGConfInterface {

/// Element `ServerCommunication`: the communication with the management server.
class IServerCommunication : public tolva::node::INode {
 public:
  virtual IServerCommunication& CopyFrom(const IServerCommunication& other) = 0;

  /// `ManagementQueryInterval`: the interval between two queries of the management server.
  /// Required.
  virtual DWORD GetManagementQueryInterval() const = 0;
  virtual ConfigResult SetManagementQueryInterval(const DWORD* value) = 0;

  /// `ManagementServerHostname`: the host name of the management server. Required.
  virtual const std::wstring& GetManagementServerHostname() const = 0;
  virtual ConfigResult SetManagementServerHostname(const std::wstring* value) = 0;
};

/// Element `LogReport`: where the agent reports its logs, and how often.
class ILogReport : public tolva::node::INode {
 public:
  virtual ILogReport& CopyFrom(const ILogReport& other) = 0;

  /// `LogReportInterval`: the interval between two reports. Required.
  virtual DWORD GetLogReportInterval() const = 0;
  virtual ConfigResult SetLogReportInterval(const DWORD* value) = 0;

  /// `LogReportServerHostname`: the host name of the server that receives the logs. Required.
  virtual const std::wstring& GetLogReportServerHostname() const = 0;
  virtual ConfigResult SetLogReportServerHostname(const std::wstring* value) = 0;

  /// `MaxUploadSize`: the largest size of an upload. Required.
  virtual DWORD GetMaxUploadSize() const = 0;
  virtual ConfigResult SetMaxUploadSize(const DWORD* value) = 0;

  /// `EventLogReportServerHostname`: the host name of the server that receives the event logs.
  /// Optional.
  virtual ConfigResult GetEventLogReportServerHostname(std::wstring* out) const = 0;
  virtual ConfigResult SetEventLogReportServerHostname(const std::wstring* value) = 0;
};

/// Element `NGUser`: a local user.
class INGUser : public tolva::node::INode {
 public:
  virtual INGUser& CopyFrom(const INGUser& other) = 0;

  /// `Name`: the name of the user. Required.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;

  /// `EnableTrayIconMenu`: 1 if the user sees the menu of the tray icon, 0 if not. Required.
  virtual DWORD GetEnableTrayIconMenu() const = 0;
  virtual ConfigResult SetEnableTrayIconMenu(const DWORD* value) = 0;
};

/// Element `NGUserSetting`: the settings of local users.
class INGUserSetting : public tolva::node::INode {
 public:
  virtual INGUserSetting& CopyFrom(const INGUserSetting& other) = 0;

  /// `NGUser`: a local user. Repeated.
  virtual DWORD GetNGUserCount() const = 0;
  virtual INGUser* GetNGUserAt(DWORD index) = 0;
  virtual ConfigResult AddNGUser(const INGUser* item) = 0;
  virtual ConfigResult InsertNGUserAt(DWORD index, const INGUser* item) = 0;
  virtual void RemoveNGUserAt(DWORD index) = 0;
  virtual void RemoveAllNGUser() = 0;
};

/// Element `NGFirefoxSetting`: the names of the Firefox configuration files.
class INGFirefoxSetting : public tolva::node::IBrowserFiles<INGFirefoxSetting> {};

/// Element `ClientManagement`: how the agent is managed, and where it reports.
class IClientManagement : public tolva::node::INode {
 public:
  virtual IClientManagement& CopyFrom(const IClientManagement& other) = 0;

  /// `EnableTrayIconMenu`: 1 if users see the menu of the tray icon, 0 if not. The setting applies
  /// to the whole document. Optional.
  virtual ConfigResult GetEnableTrayIconMenu(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTrayIconMenu(const DWORD* value) = 0;

  /// An optional number that belongs to the node only. `CopyFrom` copies it. It is neither written
  /// nor read, and `Clear` keeps it.
  virtual ConfigResult GetReservedSetting(DWORD* out) const = 0;
  virtual ConfigResult SetReservedSetting(const DWORD* value) = 0;

  /// `ActiveDirectory`: the agent's Active Directory settings. Optional.
  ///
  /// The child itself has no accessors. This pair gets and sets whether it is present: 0 if it is
  /// not, any other number if it is. The number is kept as given; null stores 0. An absent child
  /// keeps its content. Both functions return 0.
  virtual ConfigResult GetActiveDirectoryPresent(DWORD* out) const = 0;
  virtual ConfigResult SetActiveDirectoryPresent(const DWORD* value) = 0;

  /// The attribute `Enabled` of the child's `DefaultDomain`, whether or not the child is present.
  /// Setting it does not make the child present; null is ignored. Both functions return 0.
  virtual ConfigResult GetDefaultDomainEnabled(DWORD* out) const = 0;
  virtual ConfigResult SetDefaultDomainEnabled(const DWORD* value) = 0;

  /// The attribute `Name` of the child's `DefaultDomain`. The getter returns 1 if the child is
  /// absent. Setting a name makes the child present, and null makes it absent; the setter returns
  /// 0.
  virtual ConfigResult GetDefaultDomainName(std::wstring* out) const = 0;
  virtual ConfigResult SetDefaultDomainName(const std::wstring* value) = 0;

  /// `ServerCommunication`: the communication with the management server. Required.
  virtual IServerCommunication* GetServerCommunication() = 0;
  virtual ConfigResult SetServerCommunication(const IServerCommunication* child) = 0;

  /// `LogReport`: where the agent reports its logs, and how often. Required.
  virtual ILogReport* GetLogReport() = 0;
  virtual ConfigResult SetLogReport(const ILogReport* child) = 0;

  /// `NGUserSetting`: the settings of local users. Optional.
  virtual ConfigResult GetNGUserSetting(INGUserSetting** out) = 0;
  virtual ConfigResult SetNGUserSetting(const INGUserSetting* child) = 0;

  /// `NGFirefoxSetting`: the names of the Firefox configuration files. Optional.
  virtual ConfigResult GetNGFirefoxSetting(INGFirefoxSetting** out) = 0;
  virtual ConfigResult SetNGFirefoxSetting(const INGFirefoxSetting* child) = 0;
};

/// Element `HTTPHeader`: a header that the agent adds to its requests to the cloud service.
class IHTTPHeader : public tolva::node::INode {
 public:
  virtual IHTTPHeader& CopyFrom(const IHTTPHeader& other) = 0;

  /// `HeaderName`: the name of the header. Required.
  virtual const std::wstring& GetHeaderName() const = 0;
  virtual ConfigResult SetHeaderName(const std::wstring* value) = 0;

  /// `HeaderValue`: the value of the header. Required.
  virtual const std::wstring& GetHeaderValue() const = 0;
  virtual ConfigResult SetHeaderValue(const std::wstring* value) = 0;
};

/// Element `HTTPRequestHeaders`: the headers that the agent adds to its requests to the cloud
/// service.
class IHTTPRequestHeaders : public tolva::node::INode {
 public:
  virtual IHTTPRequestHeaders& CopyFrom(const IHTTPRequestHeaders& other) = 0;

  /// `HTTPHeader`: a header that the agent adds. Repeated.
  virtual DWORD GetHTTPHeaderCount() const = 0;
  virtual IHTTPHeader* GetHTTPHeaderAt(DWORD index) = 0;
  virtual ConfigResult AddHTTPHeader(const IHTTPHeader* item) = 0;
  virtual ConfigResult InsertHTTPHeaderAt(DWORD index, const IHTTPHeader* item) = 0;
  virtual void RemoveHTTPHeaderAt(DWORD index) = 0;
  virtual void RemoveAllHTTPHeader() = 0;
};

/// Element `CloudServerComunication`: the communication with the cloud service.
///
/// The name is spelled with one m in documents, too.
class ICloudServerComunication : public tolva::node::INode {
 public:
  virtual ICloudServerComunication& CopyFrom(const ICloudServerComunication& other) = 0;

  /// `HTTPRequestHeaders`: the headers that the agent adds to its requests. Required.
  virtual IHTTPRequestHeaders* GetHTTPRequestHeaders() = 0;
  virtual ConfigResult SetHTTPRequestHeaders(const IHTTPRequestHeaders* child) = 0;
};

/// Element `INGClientConfiguration`: the root of the NG client configuration.
class IINGClientConfiguration : public tolva::node::IConfigurationRoot<IINGClientConfiguration> {
 public:
  /// `ClientManagement`: how the agent is managed, and where it reports. Required.
  virtual IClientManagement* GetClientManagement() = 0;
  virtual ConfigResult SetClientManagement(const IClientManagement* child) = 0;

  /// `ScanEngineConfiguration`: the settings of the local web scan engine. Required.
  virtual IScanEngineConfiguration* GetScanEngineConfiguration() = 0;
  virtual ConfigResult SetScanEngineConfiguration(const IScanEngineConfiguration* child) = 0;

  /// `CloudServerComunication`: the communication with the cloud service. Optional.
  virtual ConfigResult GetCloudServerComunication(ICloudServerComunication** out) = 0;
  virtual ConfigResult SetCloudServerComunication(const ICloudServerComunication* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IServerCommunication* ServerCommunication_CreateNewInstance();
TOLVA_API ILogReport* LogReport_CreateNewInstance();
TOLVA_API INGUser* NGUser_CreateNewInstance();
TOLVA_API INGUserSetting* NGUserSetting_CreateNewInstance();
TOLVA_API INGFirefoxSetting* NGFirefoxSetting_CreateNewInstance();
TOLVA_API IClientManagement* ClientManagement_CreateNewInstance();
TOLVA_API IHTTPHeader* HTTPHeader_CreateNewInstance();
TOLVA_API IHTTPRequestHeaders* HTTPRequestHeaders_CreateNewInstance();
TOLVA_API ICloudServerComunication* CloudServerComunication_CreateNewInstance();
TOLVA_API IINGClientConfiguration* INGClientConfiguration_CreateNewInstance();

}  // namespace NGConfInterface
