// The global client configuration: the settings that all installations of the agent share. Numbers
// are unsigned; the agent defines their units.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/browser_files.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace GlobalConfInterface {

/// Element `EPClientSetting`: the agent's own settings.
class IEPClientSetting : public tolva::node::INode {
 public:
  virtual IEPClientSetting& CopyFrom(const IEPClientSetting& other) = 0;

  /// `EnableTamperProtection`: 1 if the agent protects itself against tampering, 0 if not.
  /// Required.
  virtual DWORD GetEnableTamperProtection() const = 0;
  virtual ConfigResult SetEnableTamperProtection(const DWORD* value) = 0;

  /// `EnableTelemetry`: 1 if telemetry is collected, 0 if not. Required.
  virtual DWORD GetEnableTelemetry() const = 0;
  virtual ConfigResult SetEnableTelemetry(const DWORD* value) = 0;

  /// `AdminPasswordHash`: the hash of the administrator password, as text that the library does not
  /// interpret. Optional.
  virtual ConfigResult GetAdminPasswordHash(std::wstring* out) const = 0;
  virtual ConfigResult SetAdminPasswordHash(const std::wstring* value) = 0;

  /// `InstallDirectory`: the directory in which the agent is installed. Optional.
  virtual ConfigResult GetInstallDirectory(std::wstring* out) const = 0;
  virtual ConfigResult SetInstallDirectory(const std::wstring* value) = 0;
};

/// Element `UpdateServer`: the server from which the agent gets updates.
class IUpdateServer : public tolva::node::INode {
 public:
  virtual IUpdateServer& CopyFrom(const IUpdateServer& other) = 0;

  /// `URL`: the URL of the server. Required.
  virtual const std::wstring& GetURL() const = 0;
  virtual ConfigResult SetURL(const std::wstring* value) = 0;

  /// `SendPII`: 1 if personally identifiable information is sent to the server, 0 if not. Optional.
  virtual ConfigResult GetSendPII(DWORD* out) const = 0;
  virtual ConfigResult SetSendPII(const DWORD* value) = 0;
};

/// Element `AutoUpdate`: the automatic update of the agent.
class IAutoUpdate : public tolva::node::INode {
 public:
  virtual IAutoUpdate& CopyFrom(const IAutoUpdate& other) = 0;

  /// `Frequency`: how often the agent looks for updates. Required.
  virtual DWORD GetFrequency() const = 0;
  virtual ConfigResult SetFrequency(const DWORD* value) = 0;

  /// `UpdateServer`: the server from which the agent gets updates. Required.
  virtual IUpdateServer* GetUpdateServer() = 0;
  virtual ConfigResult SetUpdateServer(const IUpdateServer* child) = 0;
};

/// The values of the attribute `AppName` of `Setting`.
enum AppName : DWORD {
  kAppNameReserved = 0,  ///< "RESERVED"
  kAppNameChrome = 1,    ///< "CHROME"
  kAppNameFirefox = 2,   ///< "FIREFOX"
};

/// Element `Setting`: the settings for one application.
///
/// `Clear` keeps `AppName`, which is 0 in a new node.
class ISetting : public tolva::node::INode {
 public:
  virtual ISetting& CopyFrom(const ISetting& other) = 0;

  /// `AppName`: the application. Required.
  ///
  /// The value is an AppName. Any other number is written as "FIREFOX".
  virtual DWORD GetAppName() const = 0;
  virtual ConfigResult SetAppName(const DWORD* value) = 0;

  /// `AppFileName`: the name of the application's file. Optional.
  virtual ConfigResult GetAppFileName(std::wstring* out) const = 0;
  virtual ConfigResult SetAppFileName(const std::wstring* value) = 0;

  /// `AppVersionMajor`: the major version number of the application. Required.
  virtual DWORD GetAppVersionMajor() const = 0;
  virtual ConfigResult SetAppVersionMajor(const DWORD* value) = 0;

  /// `AppVersionMinor`: the minor version number of the application. Optional.
  virtual ConfigResult GetAppVersionMinor(DWORD* out) const = 0;
  virtual ConfigResult SetAppVersionMinor(const DWORD* value) = 0;

  /// `MinimumWindowsBuild`: the lowest build number of Windows. Optional.
  virtual ConfigResult GetMinimumWindowsBuild(DWORD* out) const = 0;
  virtual ConfigResult SetMinimumWindowsBuild(const DWORD* value) = 0;

  /// `MinimumMacBuild`: the lowest build number of macOS. Optional.
  virtual ConfigResult GetMinimumMacBuild(DWORD* out) const = 0;
  virtual ConfigResult SetMinimumMacBuild(const DWORD* value) = 0;
};

/// A list of settings. Several elements have this content and differ only in their names. `Self` is
/// the interface of one of them.
template <class Self>
class ISettingList : public tolva::node::INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// `Setting`: the settings for one application. Repeated.
  virtual DWORD GetSettingCount() const = 0;
  virtual ISetting* GetSettingAt(DWORD index) = 0;
  virtual ConfigResult AddSetting(const ISetting* item) = 0;
  virtual ConfigResult InsertSettingAt(DWORD index, const ISetting* item) = 0;
  virtual void RemoveSettingAt(DWORD index) = 0;
  virtual void RemoveAllSetting() = 0;
};

/// Element `WebProxyEndpoint`: the application settings of the web proxy endpoint.
class IWebProxyEndpoint : public ISettingList<IWebProxyEndpoint> {};

/// Element `DataEndpoint`: the application settings of the data endpoint.
class IDataEndpoint : public ISettingList<IDataEndpoint> {};

/// Element `WebDirectEndpoint`: the application settings of the direct web endpoint.
class IWebDirectEndpoint : public ISettingList<IWebDirectEndpoint> {};

/// Element `RemoteFilteringClient`: the application settings of the remote filtering client.
class IRemoteFilteringClient : public ISettingList<IRemoteFilteringClient> {};

/// Element `CustomSetting`: custom settings, which list application settings for four kinds of
/// endpoint.
class ICustomSetting : public tolva::node::INode {
 public:
  virtual ICustomSetting& CopyFrom(const ICustomSetting& other) = 0;

  /// `EnableCustomSetting`: 1 if the custom settings are enabled, 0 if not. Optional.
  virtual ConfigResult GetEnableCustomSetting(DWORD* out) const = 0;
  virtual ConfigResult SetEnableCustomSetting(const DWORD* value) = 0;

  /// `SchemaVersion`: the version of the custom settings, as text. Optional.
  virtual ConfigResult GetSchemaVersion(std::wstring* out) const = 0;
  virtual ConfigResult SetSchemaVersion(const std::wstring* value) = 0;

  /// `Description`: a description of the custom settings. Optional.
  virtual ConfigResult GetDescription(std::wstring* out) const = 0;
  virtual ConfigResult SetDescription(const std::wstring* value) = 0;

  /// `WebProxyEndpoint`: the application settings of the web proxy endpoint. Optional.
  virtual ConfigResult GetWebProxyEndpoint(IWebProxyEndpoint** out) = 0;
  virtual ConfigResult SetWebProxyEndpoint(const IWebProxyEndpoint* child) = 0;

  /// `DataEndpoint`: the application settings of the data endpoint. Optional.
  virtual ConfigResult GetDataEndpoint(IDataEndpoint** out) = 0;
  virtual ConfigResult SetDataEndpoint(const IDataEndpoint* child) = 0;

  /// `WebDirectEndpoint`: the application settings of the direct web endpoint. Optional.
  virtual ConfigResult GetWebDirectEndpoint(IWebDirectEndpoint** out) = 0;
  virtual ConfigResult SetWebDirectEndpoint(const IWebDirectEndpoint* child) = 0;

  /// `RemoteFilteringClient`: the application settings of the remote filtering client. Optional.
  virtual ConfigResult GetRemoteFilteringClient(IRemoteFilteringClient** out) = 0;
  virtual ConfigResult SetRemoteFilteringClient(const IRemoteFilteringClient* child) = 0;
};

/// Element `ZanFirefoxSetting`: the names of the Firefox configuration files.
class IZanFirefoxSetting : public tolva::node::IBrowserFiles<IZanFirefoxSetting> {};

/// Element `IGLOBALClientConfiguration`: the root of the global client configuration.
class IIGLOBALClientConfiguration
    : public tolva::node::IConfigurationRoot<IIGLOBALClientConfiguration> {
 public:
  /// `EPClientSetting`: the agent's own settings. Required.
  virtual IEPClientSetting* GetEPClientSetting() = 0;
  virtual ConfigResult SetEPClientSetting(const IEPClientSetting* child) = 0;

  /// `AutoUpdate`: the automatic update of the agent. Required.
  virtual IAutoUpdate* GetAutoUpdate() = 0;
  virtual ConfigResult SetAutoUpdate(const IAutoUpdate* child) = 0;

  /// `CustomSetting`: custom settings for four kinds of endpoint. Optional.
  virtual ConfigResult GetCustomSetting(ICustomSetting** out) = 0;
  virtual ConfigResult SetCustomSetting(const ICustomSetting* child) = 0;

  /// `ZanFirefoxSetting`: the names of the Firefox configuration files. Optional.
  virtual ConfigResult GetZanFirefoxSetting(IZanFirefoxSetting** out) = 0;
  virtual ConfigResult SetZanFirefoxSetting(const IZanFirefoxSetting* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IEPClientSetting* EPClientSetting_CreateNewInstance();
TOLVA_API IUpdateServer* UpdateServer_CreateNewInstance();
TOLVA_API IAutoUpdate* AutoUpdate_CreateNewInstance();
TOLVA_API ISetting* Setting_CreateNewInstance();
TOLVA_API IWebProxyEndpoint* WebProxyEndpoint_CreateNewInstance();
TOLVA_API IDataEndpoint* DataEndpoint_CreateNewInstance();
TOLVA_API IWebDirectEndpoint* WebDirectEndpoint_CreateNewInstance();
TOLVA_API IRemoteFilteringClient* RemoteFilteringClient_CreateNewInstance();
TOLVA_API ICustomSetting* CustomSetting_CreateNewInstance();
TOLVA_API IZanFirefoxSetting* ZanFirefoxSetting_CreateNewInstance();
TOLVA_API IIGLOBALClientConfiguration* IGLOBALClientConfiguration_CreateNewInstance();

}  // namespace GlobalConfInterface
