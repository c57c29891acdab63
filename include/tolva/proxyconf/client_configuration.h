// The proxy client configuration: the PAC file, the applications that are exempt from the proxy,
// the client's own settings, the proxy settings of the machine and its users, and the upload of
// logs. Numbers are unsigned; the agent defines their units.
#pragma once

#include <string>

#include <tolva/clientconfig/active_directory.h>
#include <tolva/export.h>
#include <tolva/node/browser_files.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace ProxyClientConfig {

/// Element `PACFile`: the proxy auto-configuration (PAC) file.
class IPACFile : public tolva::node::INode {
 public:
  virtual IPACFile& CopyFrom(const IPACFile& other) = 0;

  /// `URL`: the URL of the file. Required.
  virtual const std::wstring& GetURL() const = 0;
  virtual ConfigResult SetURL(const std::wstring* value) = 0;
};

/// Element `AppWhiteList`: the applications that are exempt from the proxy.
class IAppWhiteList : public tolva::node::INode {
 public:
  virtual IAppWhiteList& CopyFrom(const IAppWhiteList& other) = 0;

  /// `AppNames`: the names of the applications, as one text. Optional.
  virtual ConfigResult GetAppNames(std::wstring* out) const = 0;
  virtual ConfigResult SetAppNames(const std::wstring* value) = 0;
};

/// Element `ProxySetting`: the proxy, and the applications that are exempt from it.
class IProxySetting : public tolva::node::INode {
 public:
  virtual IProxySetting& CopyFrom(const IProxySetting& other) = 0;

  /// `PACFile`: the proxy auto-configuration (PAC) file. Required.
  virtual IPACFile* GetPACFile() = 0;
  virtual ConfigResult SetPACFile(const IPACFile* child) = 0;

  /// `AppWhiteList`: the applications that are exempt from the proxy. Optional.
  virtual ConfigResult GetAppWhiteList(IAppWhiteList** out) = 0;
  virtual ConfigResult SetAppWhiteList(const IAppWhiteList* child) = 0;

  /// Whether the child `ActiveDirectory` is present: 0 if it is not, any other number if it is. The
  /// number is kept as given; null stores 0. An absent child keeps its content. Both functions
  /// return 0.
  virtual ConfigResult SetActiveDirectoryPresent(const DWORD* value) = 0;
  virtual ConfigResult GetActiveDirectoryPresent(DWORD* out) const = 0;

  /// `ActiveDirectory`: the agent's Active Directory settings. Optional.
  ///
  /// The getter stores the child and returns 0 even if the child is absent; changing it then does
  /// not make it present. The setter copies the `DefaultDomain` of the child, which the child's own
  /// `CopyFrom` does not. Null makes the child absent, with a diagnostic and -101.
  virtual ConfigResult GetActiveDirectory(ClientConfig::IActiveDirectory** out) = 0;
  virtual ConfigResult SetActiveDirectory(const ClientConfig::IActiveDirectory* child) = 0;
};

/// Element `UserInterface`: what the user sees of the client.
class IUserInterface : public tolva::node::INode {
 public:
  virtual IUserInterface& CopyFrom(const IUserInterface& other) = 0;

  /// `UISilentMode`: 1 if the user interface is in silent mode, 0 if not. Optional.
  virtual ConfigResult GetUISilentMode(DWORD* out) const = 0;
  virtual ConfigResult SetUISilentMode(const DWORD* value) = 0;
};

/// Element `Download`: the download of a new version.
class IDownload : public tolva::node::INode {
 public:
  virtual IDownload& CopyFrom(const IDownload& other) = 0;

  /// `NewVersion`: the version to download. Required.
  virtual const std::wstring& GetNewVersion() const = 0;
  virtual ConfigResult SetNewVersion(const std::wstring* value) = 0;
};

/// Element `Update`: the update of the client.
class IUpdate : public tolva::node::INode {
 public:
  virtual IUpdate& CopyFrom(const IUpdate& other) = 0;

  /// `Frequency`: how often the client looks for updates. Required.
  virtual DWORD GetFrequency() const = 0;
  virtual ConfigResult SetFrequency(const DWORD* value) = 0;

  /// `Download`: the download of a new version. Required.
  virtual IDownload* GetDownload() = 0;
  virtual ConfigResult SetDownload(const IDownload* child) = 0;
};

/// Element `FirefoxSetting`: the names of the Firefox configuration files.
class IFirefoxSetting : public tolva::node::IBrowserFiles<IFirefoxSetting> {};

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

  /// `AdminPasswordHash`: the hash of the administrator password, as text that the library does not
  /// interpret. Optional.
  virtual ConfigResult GetAdminPasswordHash(std::wstring* out) const = 0;
  virtual ConfigResult SetAdminPasswordHash(const std::wstring* value) = 0;

  /// `UserInterface`: what the user sees of the client. Optional.
  virtual ConfigResult GetUserInterface(IUserInterface** out) = 0;
  virtual ConfigResult SetUserInterface(const IUserInterface* child) = 0;

  /// `Update`: the update of the client. Required.
  virtual IUpdate* GetUpdate() = 0;
  virtual ConfigResult SetUpdate(const IUpdate* child) = 0;

  /// `FirefoxSetting`: the names of the Firefox configuration files. Optional.
  virtual ConfigResult GetFirefoxSetting(IFirefoxSetting** out) = 0;
  virtual ConfigResult SetFirefoxSetting(const IFirefoxSetting* child) = 0;
};

/// Element `IEProxySetting`: the saved proxy setting of the machine.
class IIEProxySetting : public tolva::node::INode {
 public:
  virtual IIEProxySetting& CopyFrom(const IIEProxySetting& other) = 0;

  /// `ProxySetting`: the saved proxy setting, as text. Optional.
  virtual ConfigResult GetProxySetting(std::wstring* out) const = 0;
  virtual ConfigResult SetProxySetting(const std::wstring* value) = 0;
};

/// Element `IEUserProxySetting`: the saved proxy setting of a user.
class IIEUserProxySetting : public tolva::node::INode {
 public:
  virtual IIEUserProxySetting& CopyFrom(const IIEUserProxySetting& other) = 0;

  /// `UserID`: the identifier of the user. Required.
  virtual const std::wstring& GetUserID() const = 0;
  virtual ConfigResult SetUserID(const std::wstring* value) = 0;

  /// `ProxySetting`: the saved proxy setting, as text. Optional.
  virtual ConfigResult GetProxySetting(std::wstring* out) const = 0;
  virtual ConfigResult SetProxySetting(const std::wstring* value) = 0;

  /// `CurrentUserProxyURL`: the URL of the user's current proxy. Optional.
  virtual ConfigResult GetCurrentUserProxyURL(std::wstring* out) const = 0;
  virtual ConfigResult SetCurrentUserProxyURL(const std::wstring* value) = 0;
};

/// Element `UserProxySetting`: the saved proxy settings of the users.
class IUserProxySetting : public tolva::node::INode {
 public:
  virtual IUserProxySetting& CopyFrom(const IUserProxySetting& other) = 0;

  /// `IEUserProxySetting`: the saved proxy setting of a user. Repeated.
  virtual DWORD GetIEUserProxySettingCount() const = 0;
  virtual IIEUserProxySetting* GetIEUserProxySettingAt(DWORD index) = 0;
  virtual ConfigResult AddIEUserProxySetting(const IIEUserProxySetting* item) = 0;
  virtual ConfigResult InsertIEUserProxySettingAt(DWORD index, const IIEUserProxySetting* item) = 0;
  virtual void RemoveIEUserProxySettingAt(DWORD index) = 0;
  virtual void RemoveAllIEUserProxySetting() = 0;
};

/// Element `LocalProxySetting`: the proxy settings of the machine and its users, which the client
/// saves and restores.
class ILocalProxySetting : public tolva::node::INode {
 public:
  virtual ILocalProxySetting& CopyFrom(const ILocalProxySetting& other) = 0;

  /// `EnableLocalProxySetting`: 1 if the local proxy settings are enabled, 0 if not. Required.
  virtual DWORD GetEnableLocalProxySetting() const = 0;
  virtual ConfigResult SetEnableLocalProxySetting(const DWORD* value) = 0;

  /// `SaveNetworkSettingMode`: the mode in which network settings are saved, as a number. Optional.
  virtual ConfigResult GetSaveNetworkSettingMode(DWORD* out) const = 0;
  virtual ConfigResult SetSaveNetworkSettingMode(const DWORD* value) = 0;

  /// `IEProxySetting`: the saved proxy setting of the machine. Optional.
  virtual ConfigResult GetIEProxySetting(IIEProxySetting** out) = 0;
  virtual ConfigResult SetIEProxySetting(const IIEProxySetting* child) = 0;

  /// `UserProxySetting`: the saved proxy settings of the users. Optional.
  virtual ConfigResult GetUserProxySetting(IUserProxySetting** out) = 0;
  virtual ConfigResult SetUserProxySetting(const IUserProxySetting* child) = 0;
};

/// Element `LogUploadSetting`: where the client uploads its logs, and how often.
class ILogUploadSetting : public tolva::node::INode {
 public:
  virtual ILogUploadSetting& CopyFrom(const ILogUploadSetting& other) = 0;

  /// `LogUploadURL`: the URL to which logs are uploaded. Required.
  virtual const std::wstring& GetLogUploadURL() const = 0;
  virtual ConfigResult SetLogUploadURL(const std::wstring* value) = 0;

  /// `LogUploadFrequency`: how often logs are uploaded. Required.
  virtual DWORD GetLogUploadFrequency() const = 0;
  virtual ConfigResult SetLogUploadFrequency(const DWORD* value) = 0;
};

/// Element `IPXYClientConfiguration`: the root of the proxy client configuration.
class IIPXYClientConfiguration : public tolva::node::IConfigurationRoot<IIPXYClientConfiguration> {
 public:
  /// `ProxySetting`: the proxy, and the applications that are exempt from it. Required.
  virtual IProxySetting* GetProxySetting() = 0;
  virtual ConfigResult SetProxySetting(const IProxySetting* child) = 0;

  /// `ClientSetting`: the client's own settings. Required.
  virtual IClientSetting* GetClientSetting() = 0;
  virtual ConfigResult SetClientSetting(const IClientSetting* child) = 0;

  /// `LocalProxySetting`: the proxy settings of the machine and its users, which the client saves
  /// and restores. Optional.
  virtual ConfigResult GetLocalProxySetting(ILocalProxySetting** out) = 0;
  virtual ConfigResult SetLocalProxySetting(const ILocalProxySetting* child) = 0;

  /// `LogUploadSetting`: where the client uploads its logs, and how often. Optional.
  virtual ConfigResult GetLogUploadSetting(ILogUploadSetting** out) = 0;
  virtual ConfigResult SetLogUploadSetting(const ILogUploadSetting* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IPACFile* PACFile_CreateNewInstance();
TOLVA_API IAppWhiteList* AppWhiteList_CreateNewInstance();
TOLVA_API IProxySetting* ProxySetting_CreateNewInstance();
TOLVA_API IUserInterface* UserInterface_CreateNewInstance();
TOLVA_API IDownload* Download_CreateNewInstance();
TOLVA_API IUpdate* Update_CreateNewInstance();
TOLVA_API IFirefoxSetting* FirefoxSetting_CreateNewInstance();
TOLVA_API IClientSetting* ClientSetting_CreateNewInstance();
TOLVA_API IIEProxySetting* IEProxySetting_CreateNewInstance();
TOLVA_API IIEUserProxySetting* IEUserProxySetting_CreateNewInstance();
TOLVA_API IUserProxySetting* UserProxySetting_CreateNewInstance();
TOLVA_API ILocalProxySetting* LocalProxySetting_CreateNewInstance();
TOLVA_API ILogUploadSetting* LogUploadSetting_CreateNewInstance();
TOLVA_API IIPXYClientConfiguration* IPXYClientConfiguration_CreateNewInstance();

}  // namespace ProxyClientConfig
