// The classes of tolva/proxyconf/client_configuration.h.
#pragma once

#include <tolva/proxyconf/client_configuration.h>

#include <string>

#include "clientconfig/active_directory.h"
#include "node/accessors.h"
#include "node/browser_files.h"
#include "node/configuration_root.h"
#include "proxyconf/document.h"

namespace ProxyClientConfig {

class CPACFile final : public Node<CPACFile, IPACFile> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(URL, url_);
};

class CAppWhiteList final : public Node<CAppWhiteList, IAppWhiteList> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, AppNames, appNames_);
};

class CProxySetting final : public Node<CProxySetting, IProxySetting> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CPACFile, PACFile, pacFile_);
  TOLVA_OPTIONAL_CHILD(CAppWhiteList, AppWhiteList, appWhiteList_);
  TOLVA_PRESENCE(ActiveDirectory, activeDirectory_);
  ConfigResult GetActiveDirectory(ClientConfig::IActiveDirectory** out) override;
  ConfigResult SetActiveDirectory(const ClientConfig::IActiveDirectory* child) override;
  OptionalChild<ClientConfig::CActiveDirectory> activeDirectory_;
};

class CUserInterface final : public Node<CUserInterface, IUserInterface> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, UISilentMode, uiSilentMode_);
};

class CDownload final : public Node<CDownload, IDownload> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(NewVersion, newVersion_);
};

class CUpdate final : public Node<CUpdate, IUpdate> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Frequency, frequency_);
  TOLVA_CHILD(CDownload, Download, download_);
};

class CFirefoxSetting final : public BrowserFiles<CFirefoxSetting, IFirefoxSetting> {
 public:
  static const Schema kSchema;
};

class CClientSetting final : public Node<CClientSetting, IClientSetting> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, EnableTamperProtection, enableTamperProtection_);
  TOLVA_OPTIONAL(DWORD, EnableTelemetry, enableTelemetry_){.value = 0, .present = 1};
  TOLVA_OPTIONAL(std::wstring, AdminPasswordHash, adminPasswordHash_);
  TOLVA_OPTIONAL_CHILD(CUserInterface, UserInterface, userInterface_);
  TOLVA_CHILD(CUpdate, Update, update_);
  TOLVA_OPTIONAL_CHILD(CFirefoxSetting, FirefoxSetting, firefoxSetting_);
};

class CIEProxySetting final : public Node<CIEProxySetting, IIEProxySetting> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, ProxySetting, proxySetting_);
};

class CIEUserProxySetting final : public Node<CIEUserProxySetting, IIEUserProxySetting> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(UserID, userID_);
  TOLVA_OPTIONAL(std::wstring, ProxySetting, proxySetting_);
  TOLVA_OPTIONAL(std::wstring, CurrentUserProxyURL, currentUserProxyURL_);
};

class CUserProxySetting final : public Node<CUserProxySetting, IUserProxySetting> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CIEUserProxySetting, IEUserProxySetting, ieUserProxySettings_);
};

class CLocalProxySetting final : public Node<CLocalProxySetting, ILocalProxySetting> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(EnableLocalProxySetting, enableLocalProxySetting_);
  TOLVA_OPTIONAL(DWORD, SaveNetworkSettingMode, saveNetworkSettingMode_);
  TOLVA_OPTIONAL_CHILD(CIEProxySetting, IEProxySetting, ieProxySetting_);
  TOLVA_OPTIONAL_CHILD(CUserProxySetting, UserProxySetting, userProxySetting_);
};

class CLogUploadSetting final : public Node<CLogUploadSetting, ILogUploadSetting> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(LogUploadURL, logUploadURL_);
  TOLVA_NUMBER(LogUploadFrequency, logUploadFrequency_);
};

class CIPXYClientConfiguration final
    : public ConfigurationRoot<CIPXYClientConfiguration, IIPXYClientConfiguration> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CProxySetting, ProxySetting, proxySetting_);
  TOLVA_CHILD(CClientSetting, ClientSetting, clientSetting_);
  TOLVA_OPTIONAL_CHILD(CLocalProxySetting, LocalProxySetting, localProxySetting_);
  TOLVA_OPTIONAL_CHILD(CLogUploadSetting, LogUploadSetting, logUploadSetting_);
};

}  // namespace ProxyClientConfig
