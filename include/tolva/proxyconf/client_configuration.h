// The proxy client configuration: the PAC file, the applications exempt from it, the client's own
// settings, the proxy settings of the machine and its users, and log upload.
//
// Units are the agent's; numbers are unsigned.
#pragma once

#include <string>

#include <tolva/clientconfig/active_directory.h>
#include <tolva/export.h>
#include <tolva/node/browser_files.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace ProxyClientConfig {

/// Element `PACFile`.
class IPACFile : public tolva::node::INode {
 public:
  virtual IPACFile& CopyFrom(const IPACFile& other) = 0;

  /// `URL`: the file's address. Required.
  virtual const std::wstring& GetURL() const = 0;
  virtual ConfigResult SetURL(const std::wstring* value) = 0;
};

/// Element `AppWhiteList`.
class IAppWhiteList : public tolva::node::INode {
 public:
  virtual IAppWhiteList& CopyFrom(const IAppWhiteList& other) = 0;

  /// `AppNames`: the applications exempt from the proxy, as one text. Optional.
  virtual ConfigResult GetAppNames(std::wstring* out) const = 0;
  virtual ConfigResult SetAppNames(const std::wstring* value) = 0;
};

/// Element `ProxySetting`.
class IProxySetting : public tolva::node::INode {
 public:
  virtual IProxySetting& CopyFrom(const IProxySetting& other) = 0;

  /// The child `PACFile`. Required.
  virtual IPACFile* GetPACFile() = 0;
  virtual ConfigResult SetPACFile(const IPACFile* child) = 0;

  /// The child `AppWhiteList`. Optional.
  virtual ConfigResult GetAppWhiteList(IAppWhiteList** out) = 0;
  virtual ConfigResult SetAppWhiteList(const IAppWhiteList* child) = 0;

  /// Whether the child `ActiveDirectory` is present: 0 when not, any other number, kept as given,
  /// when it is. Absent, it keeps what it holds. Both return 0; setting null stores 0.
  virtual ConfigResult SetActiveDirectoryPresent(const DWORD* value) = 0;
  virtual ConfigResult GetActiveDirectoryPresent(DWORD* out) const = 0;

  /// The child `ActiveDirectory`. Optional; the getter hands it out, with 0, even when it is
  /// absent, and to fill it does not make it present. It is copied through its `DefaultDomain`.
  /// Null makes it absent, with a diagnostic and -101.
  virtual ConfigResult GetActiveDirectory(ClientConfig::IActiveDirectory** out) = 0;
  virtual ConfigResult SetActiveDirectory(const ClientConfig::IActiveDirectory* child) = 0;
};

/// Element `UserInterface`.
class IUserInterface : public tolva::node::INode {
 public:
  virtual IUserInterface& CopyFrom(const IUserInterface& other) = 0;

  /// `UISilentMode`: whether the user sees nothing of the client. Optional.
  virtual ConfigResult GetUISilentMode(DWORD* out) const = 0;
  virtual ConfigResult SetUISilentMode(const DWORD* value) = 0;
};

/// Element `Download`.
class IDownload : public tolva::node::INode {
 public:
  virtual IDownload& CopyFrom(const IDownload& other) = 0;

  /// `NewVersion`: the version to download. Required.
  virtual const std::wstring& GetNewVersion() const = 0;
  virtual ConfigResult SetNewVersion(const std::wstring* value) = 0;
};

/// Element `Update`.
class IUpdate : public tolva::node::INode {
 public:
  virtual IUpdate& CopyFrom(const IUpdate& other) = 0;

  /// `Frequency`: how often updates are looked for. Required.
  virtual DWORD GetFrequency() const = 0;
  virtual ConfigResult SetFrequency(const DWORD* value) = 0;

  /// The child `Download`. Required.
  virtual IDownload* GetDownload() = 0;
  virtual ConfigResult SetDownload(const IDownload* child) = 0;
};

/// Element `FirefoxSetting`.
class IFirefoxSetting : public tolva::node::IBrowserFiles<IFirefoxSetting> {};

/// Element `ClientSetting`.
class IClientSetting : public tolva::node::INode {
 public:
  virtual IClientSetting& CopyFrom(const IClientSetting& other) = 0;

  /// `EnableTamperProtection`: whether the agent defends itself. Optional.
  virtual ConfigResult GetEnableTamperProtection(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTamperProtection(const DWORD* value) = 0;

  /// `EnableTelemetry`: whether telemetry is collected. Optional; after `Clear`, and when a
  /// document does not mention it, it is present and 0.
  virtual ConfigResult GetEnableTelemetry(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTelemetry(const DWORD* value) = 0;

  /// `AdminPasswordHash`: a hash as text, never interpreted. Optional.
  virtual ConfigResult GetAdminPasswordHash(std::wstring* out) const = 0;
  virtual ConfigResult SetAdminPasswordHash(const std::wstring* value) = 0;

  /// The child `UserInterface`. Optional.
  virtual ConfigResult GetUserInterface(IUserInterface** out) = 0;
  virtual ConfigResult SetUserInterface(const IUserInterface* child) = 0;

  /// The child `Update`. Required.
  virtual IUpdate* GetUpdate() = 0;
  virtual ConfigResult SetUpdate(const IUpdate* child) = 0;

  /// The child `FirefoxSetting`. Optional.
  virtual ConfigResult GetFirefoxSetting(IFirefoxSetting** out) = 0;
  virtual ConfigResult SetFirefoxSetting(const IFirefoxSetting* child) = 0;
};

/// Element `IEProxySetting`.
class IIEProxySetting : public tolva::node::INode {
 public:
  virtual IIEProxySetting& CopyFrom(const IIEProxySetting& other) = 0;

  /// `ProxySetting`: the machine's saved setting, as text. Optional.
  virtual ConfigResult GetProxySetting(std::wstring* out) const = 0;
  virtual ConfigResult SetProxySetting(const std::wstring* value) = 0;
};

/// Element `IEUserProxySetting`.
class IIEUserProxySetting : public tolva::node::INode {
 public:
  virtual IIEUserProxySetting& CopyFrom(const IIEUserProxySetting& other) = 0;

  /// `UserID`: the user. Required.
  virtual const std::wstring& GetUserID() const = 0;
  virtual ConfigResult SetUserID(const std::wstring* value) = 0;

  /// `ProxySetting`: the user's saved setting, as text. Optional.
  virtual ConfigResult GetProxySetting(std::wstring* out) const = 0;
  virtual ConfigResult SetProxySetting(const std::wstring* value) = 0;

  /// `CurrentUserProxyURL`. Optional.
  virtual ConfigResult GetCurrentUserProxyURL(std::wstring* out) const = 0;
  virtual ConfigResult SetCurrentUserProxyURL(const std::wstring* value) = 0;
};

/// Element `UserProxySetting`.
class IUserProxySetting : public tolva::node::INode {
 public:
  virtual IUserProxySetting& CopyFrom(const IUserProxySetting& other) = 0;

  /// Children `IEUserProxySetting`.
  virtual DWORD GetIEUserProxySettingCount() const = 0;
  virtual IIEUserProxySetting* GetIEUserProxySettingAt(DWORD index) = 0;
  virtual ConfigResult AddIEUserProxySetting(const IIEUserProxySetting* item) = 0;
  virtual ConfigResult InsertIEUserProxySettingAt(DWORD index, const IIEUserProxySetting* item) = 0;
  virtual void RemoveIEUserProxySettingAt(DWORD index) = 0;
  virtual void RemoveAllIEUserProxySetting() = 0;
};

/// Element `LocalProxySetting`.
class ILocalProxySetting : public tolva::node::INode {
 public:
  virtual ILocalProxySetting& CopyFrom(const ILocalProxySetting& other) = 0;

  /// `EnableLocalProxySetting`. Required.
  virtual DWORD GetEnableLocalProxySetting() const = 0;
  virtual ConfigResult SetEnableLocalProxySetting(const DWORD* value) = 0;

  /// `SaveNetworkSettingMode`. Optional.
  virtual ConfigResult GetSaveNetworkSettingMode(DWORD* out) const = 0;
  virtual ConfigResult SetSaveNetworkSettingMode(const DWORD* value) = 0;

  /// The child `IEProxySetting`. Optional.
  virtual ConfigResult GetIEProxySetting(IIEProxySetting** out) = 0;
  virtual ConfigResult SetIEProxySetting(const IIEProxySetting* child) = 0;

  /// The child `UserProxySetting`. Optional.
  virtual ConfigResult GetUserProxySetting(IUserProxySetting** out) = 0;
  virtual ConfigResult SetUserProxySetting(const IUserProxySetting* child) = 0;
};

/// Element `LogUploadSetting`.
class ILogUploadSetting : public tolva::node::INode {
 public:
  virtual ILogUploadSetting& CopyFrom(const ILogUploadSetting& other) = 0;

  /// `LogUploadURL`. Required.
  virtual const std::wstring& GetLogUploadURL() const = 0;
  virtual ConfigResult SetLogUploadURL(const std::wstring* value) = 0;

  /// `LogUploadFrequency`. Required.
  virtual DWORD GetLogUploadFrequency() const = 0;
  virtual ConfigResult SetLogUploadFrequency(const DWORD* value) = 0;
};

/// Element `IPXYClientConfiguration`, the root.
class IIPXYClientConfiguration : public tolva::node::IConfigurationRoot<IIPXYClientConfiguration> {
 public:
  /// The child `ProxySetting`. Required.
  virtual IProxySetting* GetProxySetting() = 0;
  virtual ConfigResult SetProxySetting(const IProxySetting* child) = 0;

  /// The child `ClientSetting`. Required.
  virtual IClientSetting* GetClientSetting() = 0;
  virtual ConfigResult SetClientSetting(const IClientSetting* child) = 0;

  /// The child `LocalProxySetting`. Optional.
  virtual ConfigResult GetLocalProxySetting(ILocalProxySetting** out) = 0;
  virtual ConfigResult SetLocalProxySetting(const ILocalProxySetting* child) = 0;

  /// The child `LogUploadSetting`. Optional.
  virtual ConfigResult GetLogUploadSetting(ILogUploadSetting** out) = 0;
  virtual ConfigResult SetLogUploadSetting(const ILogUploadSetting* child) = 0;
};

// Each makes a node with default values, which the caller owns.
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
