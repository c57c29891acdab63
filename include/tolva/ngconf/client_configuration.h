// The NG client configuration: how the agent is managed, where it reports, which users see it, and
// what it adds to its requests.
//
// Units are the agent's; numbers are unsigned.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/ngconf/scan_engine.h>
#include <tolva/node/browser_files.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace NGConfInterface {

/// Element `ServerCommunication`: the management server.
class IServerCommunication : public tolva::node::INode {
 public:
  virtual IServerCommunication& CopyFrom(const IServerCommunication& other) = 0;

  /// `ManagementQueryInterval`: how often it is asked. Required.
  virtual DWORD GetManagementQueryInterval() const = 0;
  virtual ConfigResult SetManagementQueryInterval(const DWORD* value) = 0;

  /// `ManagementServerHostname`: its host name. Required.
  virtual const std::wstring& GetManagementServerHostname() const = 0;
  virtual ConfigResult SetManagementServerHostname(const std::wstring* value) = 0;
};

/// Element `LogReport`: where logs are reported.
class ILogReport : public tolva::node::INode {
 public:
  virtual ILogReport& CopyFrom(const ILogReport& other) = 0;

  /// `LogReportInterval`. Required.
  virtual DWORD GetLogReportInterval() const = 0;
  virtual ConfigResult SetLogReportInterval(const DWORD* value) = 0;

  /// `LogReportServerHostname`. Required.
  virtual const std::wstring& GetLogReportServerHostname() const = 0;
  virtual ConfigResult SetLogReportServerHostname(const std::wstring* value) = 0;

  /// `MaxUploadSize`. Required.
  virtual DWORD GetMaxUploadSize() const = 0;
  virtual ConfigResult SetMaxUploadSize(const DWORD* value) = 0;

  /// `EventLogReportServerHostname`. Optional.
  virtual ConfigResult GetEventLogReportServerHostname(std::wstring* out) const = 0;
  virtual ConfigResult SetEventLogReportServerHostname(const std::wstring* value) = 0;
};

/// Element `NGUser`: a local user.
class INGUser : public tolva::node::INode {
 public:
  virtual INGUser& CopyFrom(const INGUser& other) = 0;

  /// `Name`: the user's name. Required.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;

  /// `EnableTrayIconMenu`: whether this user's tray icon has a menu. Required.
  virtual DWORD GetEnableTrayIconMenu() const = 0;
  virtual ConfigResult SetEnableTrayIconMenu(const DWORD* value) = 0;
};

/// Element `NGUserSetting`.
class INGUserSetting : public tolva::node::INode {
 public:
  virtual INGUserSetting& CopyFrom(const INGUserSetting& other) = 0;

  /// Children `NGUser`.
  virtual DWORD GetNGUserCount() const = 0;
  virtual INGUser* GetNGUserAt(DWORD index) = 0;
  virtual ConfigResult AddNGUser(const INGUser* item) = 0;
  virtual ConfigResult InsertNGUserAt(DWORD index, const INGUser* item) = 0;
  virtual void RemoveNGUserAt(DWORD index) = 0;
  virtual void RemoveAllNGUser() = 0;
};

/// Element `NGFirefoxSetting`.
class INGFirefoxSetting : public tolva::node::IBrowserFiles<INGFirefoxSetting> {};

/// Element `ClientManagement`. Its child `ActiveDirectory` is reached through the accessors of its
/// presence and of the two attributes of its `DefaultDomain`.
class IClientManagement : public tolva::node::INode {
 public:
  virtual IClientManagement& CopyFrom(const IClientManagement& other) = 0;

  /// `EnableTrayIconMenu`: whether the tray icon has a menu. Optional.
  virtual ConfigResult GetEnableTrayIconMenu(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTrayIconMenu(const DWORD* value) = 0;

  /// A number that belongs to the node alone: it is copied with it, but neither written nor read,
  /// and `Clear` leaves it as it was. Optional.
  virtual ConfigResult GetReservedSetting(DWORD* out) const = 0;
  virtual ConfigResult SetReservedSetting(const DWORD* value) = 0;

  /// Whether the child `ActiveDirectory` is present: 0 when not, any other number, kept as given,
  /// when it is. Absent, it keeps what it holds. Both return 0; setting null stores 0.
  virtual ConfigResult GetActiveDirectoryPresent(DWORD* out) const = 0;
  virtual ConfigResult SetActiveDirectoryPresent(const DWORD* value) = 0;

  /// `Enabled` of the child's `DefaultDomain`, whether the child is present or not: an absent one
  /// stays so. Both return 0; null sets nothing.
  virtual ConfigResult GetDefaultDomainEnabled(DWORD* out) const = 0;
  virtual ConfigResult SetDefaultDomainEnabled(const DWORD* value) = 0;

  /// `Name` of the child's `DefaultDomain`. The getter returns 1 when the child is absent. Setting
  /// a name makes the child present, null makes it absent; both return 0.
  virtual ConfigResult GetDefaultDomainName(std::wstring* out) const = 0;
  virtual ConfigResult SetDefaultDomainName(const std::wstring* value) = 0;

  /// The child `ServerCommunication`. Required.
  virtual IServerCommunication* GetServerCommunication() = 0;
  virtual ConfigResult SetServerCommunication(const IServerCommunication* child) = 0;

  /// The child `LogReport`. Required.
  virtual ILogReport* GetLogReport() = 0;
  virtual ConfigResult SetLogReport(const ILogReport* child) = 0;

  /// The child `NGUserSetting`. Optional.
  virtual ConfigResult GetNGUserSetting(INGUserSetting** out) = 0;
  virtual ConfigResult SetNGUserSetting(const INGUserSetting* child) = 0;

  /// The child `NGFirefoxSetting`. Optional.
  virtual ConfigResult GetNGFirefoxSetting(INGFirefoxSetting** out) = 0;
  virtual ConfigResult SetNGFirefoxSetting(const INGFirefoxSetting* child) = 0;
};

/// Element `HTTPHeader`: a header of requests to the cloud service.
class IHTTPHeader : public tolva::node::INode {
 public:
  virtual IHTTPHeader& CopyFrom(const IHTTPHeader& other) = 0;

  /// `HeaderName`: its name. Required.
  virtual const std::wstring& GetHeaderName() const = 0;
  virtual ConfigResult SetHeaderName(const std::wstring* value) = 0;

  /// `HeaderValue`: its value. Required.
  virtual const std::wstring& GetHeaderValue() const = 0;
  virtual ConfigResult SetHeaderValue(const std::wstring* value) = 0;
};

/// Element `HTTPRequestHeaders`.
class IHTTPRequestHeaders : public tolva::node::INode {
 public:
  virtual IHTTPRequestHeaders& CopyFrom(const IHTTPRequestHeaders& other) = 0;

  /// Children `HTTPHeader`.
  virtual DWORD GetHTTPHeaderCount() const = 0;
  virtual IHTTPHeader* GetHTTPHeaderAt(DWORD index) = 0;
  virtual ConfigResult AddHTTPHeader(const IHTTPHeader* item) = 0;
  virtual ConfigResult InsertHTTPHeaderAt(DWORD index, const IHTTPHeader* item) = 0;
  virtual void RemoveHTTPHeaderAt(DWORD index) = 0;
  virtual void RemoveAllHTTPHeader() = 0;
};

/// Element `CloudServerComunication` (its name has one m).
class ICloudServerComunication : public tolva::node::INode {
 public:
  virtual ICloudServerComunication& CopyFrom(const ICloudServerComunication& other) = 0;

  /// The child `HTTPRequestHeaders`. Required.
  virtual IHTTPRequestHeaders* GetHTTPRequestHeaders() = 0;
  virtual ConfigResult SetHTTPRequestHeaders(const IHTTPRequestHeaders* child) = 0;
};

/// Element `INGClientConfiguration`, the root.
class IINGClientConfiguration : public tolva::node::IConfigurationRoot<IINGClientConfiguration> {
 public:
  /// The child `ClientManagement`. Required.
  virtual IClientManagement* GetClientManagement() = 0;
  virtual ConfigResult SetClientManagement(const IClientManagement* child) = 0;

  /// The child `ScanEngineConfiguration`. Required.
  virtual IScanEngineConfiguration* GetScanEngineConfiguration() = 0;
  virtual ConfigResult SetScanEngineConfiguration(const IScanEngineConfiguration* child) = 0;

  /// The child `CloudServerComunication`. Optional.
  virtual ConfigResult GetCloudServerComunication(ICloudServerComunication** out) = 0;
  virtual ConfigResult SetCloudServerComunication(const ICloudServerComunication* child) = 0;
};

// Each makes a node with default values, which the caller owns.
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
