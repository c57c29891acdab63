// The global client configuration: what all installations of the agent share.
//
// Units are the agent's; numbers are unsigned.
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

  /// `EnableTamperProtection`: whether the agent defends itself. Required.
  virtual DWORD GetEnableTamperProtection() const = 0;
  virtual ConfigResult SetEnableTamperProtection(const DWORD* value) = 0;

  /// `EnableTelemetry`: whether telemetry is collected. Required.
  virtual DWORD GetEnableTelemetry() const = 0;
  virtual ConfigResult SetEnableTelemetry(const DWORD* value) = 0;

  /// `AdminPasswordHash`: a hash as text, never interpreted. Optional.
  virtual ConfigResult GetAdminPasswordHash(std::wstring* out) const = 0;
  virtual ConfigResult SetAdminPasswordHash(const std::wstring* value) = 0;

  /// `InstallDirectory`. Optional.
  virtual ConfigResult GetInstallDirectory(std::wstring* out) const = 0;
  virtual ConfigResult SetInstallDirectory(const std::wstring* value) = 0;
};

/// Element `UpdateServer`.
class IUpdateServer : public tolva::node::INode {
 public:
  virtual IUpdateServer& CopyFrom(const IUpdateServer& other) = 0;

  /// `URL`: the server's address. Required.
  virtual const std::wstring& GetURL() const = 0;
  virtual ConfigResult SetURL(const std::wstring* value) = 0;

  /// `SendPII`. Optional.
  virtual ConfigResult GetSendPII(DWORD* out) const = 0;
  virtual ConfigResult SetSendPII(const DWORD* value) = 0;
};

/// Element `AutoUpdate`.
class IAutoUpdate : public tolva::node::INode {
 public:
  virtual IAutoUpdate& CopyFrom(const IAutoUpdate& other) = 0;

  /// `Frequency`: how often updates are looked for. Required.
  virtual DWORD GetFrequency() const = 0;
  virtual ConfigResult SetFrequency(const DWORD* value) = 0;

  /// The child `UpdateServer`. Required.
  virtual IUpdateServer* GetUpdateServer() = 0;
  virtual ConfigResult SetUpdateServer(const IUpdateServer* child) = 0;
};

/// The values of `Setting`'s `AppName`.
enum AppName : DWORD {
  kAppNameReserved = 0,  ///< "RESERVED"
  kAppNameChrome = 1,    ///< "CHROME"
  kAppNameFirefox = 2,   ///< "FIREFOX"
};

/// Element `Setting`: an application. `Clear` leaves `AppName` as it was.
class ISetting : public tolva::node::INode {
 public:
  virtual ISetting& CopyFrom(const ISetting& other) = 0;

  /// `AppName`: which application, an AppName; any other number is written as "FIREFOX". Required.
  virtual DWORD GetAppName() const = 0;
  virtual ConfigResult SetAppName(const DWORD* value) = 0;

  /// `AppFileName`: the name of its file. Optional.
  virtual ConfigResult GetAppFileName(std::wstring* out) const = 0;
  virtual ConfigResult SetAppFileName(const std::wstring* value) = 0;

  /// `AppVersionMajor`. Required.
  virtual DWORD GetAppVersionMajor() const = 0;
  virtual ConfigResult SetAppVersionMajor(const DWORD* value) = 0;

  /// `AppVersionMinor`. Optional.
  virtual ConfigResult GetAppVersionMinor(DWORD* out) const = 0;
  virtual ConfigResult SetAppVersionMinor(const DWORD* value) = 0;

  /// `MinimumWindowsBuild`. Optional.
  virtual ConfigResult GetMinimumWindowsBuild(DWORD* out) const = 0;
  virtual ConfigResult SetMinimumWindowsBuild(const DWORD* value) = 0;

  /// `MinimumMacBuild`. Optional.
  virtual ConfigResult GetMinimumMacBuild(DWORD* out) const = 0;
  virtual ConfigResult SetMinimumMacBuild(const DWORD* value) = 0;
};

/// A list of settings. Several elements have this content and differ in their name alone; `Self` is
/// the interface of one of them.
template <class Self>
class ISettingList : public tolva::node::INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// Children `Setting`.
  virtual DWORD GetSettingCount() const = 0;
  virtual ISetting* GetSettingAt(DWORD index) = 0;
  virtual ConfigResult AddSetting(const ISetting* item) = 0;
  virtual ConfigResult InsertSettingAt(DWORD index, const ISetting* item) = 0;
  virtual void RemoveSettingAt(DWORD index) = 0;
  virtual void RemoveAllSetting() = 0;
};

/// Element `WebProxyEndpoint`: the applications of the web proxy endpoint.
class IWebProxyEndpoint : public ISettingList<IWebProxyEndpoint> {};

/// Element `DataEndpoint`: the applications of the data endpoint.
class IDataEndpoint : public ISettingList<IDataEndpoint> {};

/// Element `WebDirectEndpoint`: the applications of the direct web endpoint.
class IWebDirectEndpoint : public ISettingList<IWebDirectEndpoint> {};

/// Element `RemoteFilteringClient`: the applications of the remote filtering client.
class IRemoteFilteringClient : public ISettingList<IRemoteFilteringClient> {};

/// Element `CustomSetting`.
class ICustomSetting : public tolva::node::INode {
 public:
  virtual ICustomSetting& CopyFrom(const ICustomSetting& other) = 0;

  /// `EnableCustomSetting`. Optional.
  virtual ConfigResult GetEnableCustomSetting(DWORD* out) const = 0;
  virtual ConfigResult SetEnableCustomSetting(const DWORD* value) = 0;

  /// `SchemaVersion`: the version of these settings, as text. Optional.
  virtual ConfigResult GetSchemaVersion(std::wstring* out) const = 0;
  virtual ConfigResult SetSchemaVersion(const std::wstring* value) = 0;

  /// `Description`. Optional.
  virtual ConfigResult GetDescription(std::wstring* out) const = 0;
  virtual ConfigResult SetDescription(const std::wstring* value) = 0;

  /// The child `WebProxyEndpoint`. Optional.
  virtual ConfigResult GetWebProxyEndpoint(IWebProxyEndpoint** out) = 0;
  virtual ConfigResult SetWebProxyEndpoint(const IWebProxyEndpoint* child) = 0;

  /// The child `DataEndpoint`. Optional.
  virtual ConfigResult GetDataEndpoint(IDataEndpoint** out) = 0;
  virtual ConfigResult SetDataEndpoint(const IDataEndpoint* child) = 0;

  /// The child `WebDirectEndpoint`. Optional.
  virtual ConfigResult GetWebDirectEndpoint(IWebDirectEndpoint** out) = 0;
  virtual ConfigResult SetWebDirectEndpoint(const IWebDirectEndpoint* child) = 0;

  /// The child `RemoteFilteringClient`. Optional.
  virtual ConfigResult GetRemoteFilteringClient(IRemoteFilteringClient** out) = 0;
  virtual ConfigResult SetRemoteFilteringClient(const IRemoteFilteringClient* child) = 0;
};

/// Element `ZanFirefoxSetting`.
class IZanFirefoxSetting : public tolva::node::IBrowserFiles<IZanFirefoxSetting> {};

/// Element `IGLOBALClientConfiguration`, the root.
class IIGLOBALClientConfiguration
    : public tolva::node::IConfigurationRoot<IIGLOBALClientConfiguration> {
 public:
  /// The child `EPClientSetting`. Required.
  virtual IEPClientSetting* GetEPClientSetting() = 0;
  virtual ConfigResult SetEPClientSetting(const IEPClientSetting* child) = 0;

  /// The child `AutoUpdate`. Required.
  virtual IAutoUpdate* GetAutoUpdate() = 0;
  virtual ConfigResult SetAutoUpdate(const IAutoUpdate* child) = 0;

  /// The child `CustomSetting`. Optional.
  virtual ConfigResult GetCustomSetting(ICustomSetting** out) = 0;
  virtual ConfigResult SetCustomSetting(const ICustomSetting* child) = 0;

  /// The child `ZanFirefoxSetting`. Optional.
  virtual ConfigResult GetZanFirefoxSetting(IZanFirefoxSetting** out) = 0;
  virtual ConfigResult SetZanFirefoxSetting(const IZanFirefoxSetting* child) = 0;
};

// Each makes a node with default values, which the caller owns.
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
