// The classes of tolva/proxyconf/client_configuration.h.
#pragma once

#include <tolva/proxyconf/client_configuration.h>

#include <string>

#include "clientconfig/active_directory.h"
#include "node/browser_files.h"
#include "node/configuration_root.h"
#include "node/node.h"
#include "proxyconf/document.h"

namespace ProxyClientConfig {

class CPACFile final : public Node<CPACFile, IPACFile> {
 public:
  static const Schema kSchema;

  const std::wstring& GetURL() const override { return url_; }
  ConfigResult SetURL(const std::wstring* value) override { return SetRequired(url_, value); }

 private:
  static const Attribute kAttributes[];

  std::wstring url_;
};

class CAppWhiteList final : public Node<CAppWhiteList, IAppWhiteList> {
 public:
  static const Schema kSchema;

  ConfigResult GetAppNames(std::wstring* out) const override { return appNames_.Get(out); }
  ConfigResult SetAppNames(const std::wstring* value) override { return appNames_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> appNames_;
};

class CProxySetting final : public Node<CProxySetting, IProxySetting> {
 public:
  static const Schema kSchema;

  IPACFile* GetPACFile() override { return &pacFile_; }
  ConfigResult SetPACFile(const IPACFile* child) override {
    return SetRequiredChild(pacFile_, child);
  }
  ConfigResult GetAppWhiteList(IAppWhiteList** out) override { return appWhiteList_.Get(out); }
  ConfigResult SetAppWhiteList(const IAppWhiteList* child) override {
    return appWhiteList_.Set(child);
  }
  ConfigResult SetActiveDirectoryPresent(const DWORD* value) override {
    return activeDirectory_.SetPresent(value);
  }
  ConfigResult GetActiveDirectoryPresent(DWORD* out) const override {
    return activeDirectory_.GetPresent(out);
  }
  ConfigResult GetActiveDirectory(ClientConfig::IActiveDirectory** out) override;
  ConfigResult SetActiveDirectory(const ClientConfig::IActiveDirectory* child) override;

 private:
  static const Child kChildren[];

  CPACFile pacFile_;
  OptionalChild<ClientConfig::CActiveDirectory> activeDirectory_;
  OptionalChild<CAppWhiteList> appWhiteList_;
};

class CUserInterface final : public Node<CUserInterface, IUserInterface> {
 public:
  static const Schema kSchema;

  ConfigResult GetUISilentMode(DWORD* out) const override { return uiSilentMode_.Get(out); }
  ConfigResult SetUISilentMode(const DWORD* value) override { return uiSilentMode_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<DWORD> uiSilentMode_;
};

class CDownload final : public Node<CDownload, IDownload> {
 public:
  static const Schema kSchema;

  const std::wstring& GetNewVersion() const override { return newVersion_; }
  ConfigResult SetNewVersion(const std::wstring* value) override {
    return SetRequired(newVersion_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring newVersion_;
};

class CUpdate final : public Node<CUpdate, IUpdate> {
 public:
  static const Schema kSchema;

  DWORD GetFrequency() const override { return frequency_; }
  ConfigResult SetFrequency(const DWORD* value) override { return SetRequired(frequency_, value); }
  IDownload* GetDownload() override { return &download_; }
  ConfigResult SetDownload(const IDownload* child) override {
    return SetRequiredChild(download_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD frequency_ = 0;
  CDownload download_;
};

class CFirefoxSetting final : public BrowserFiles<CFirefoxSetting, IFirefoxSetting> {
 public:
  static const Schema kSchema;
};

class CClientSetting final : public Node<CClientSetting, IClientSetting> {
 public:
  static const Schema kSchema;

  ConfigResult GetEnableTamperProtection(DWORD* out) const override {
    return enableTamperProtection_.Get(out);
  }
  ConfigResult SetEnableTamperProtection(const DWORD* value) override {
    return enableTamperProtection_.Set(value);
  }
  ConfigResult GetEnableTelemetry(DWORD* out) const override { return enableTelemetry_.Get(out); }
  ConfigResult SetEnableTelemetry(const DWORD* value) override {
    return enableTelemetry_.Set(value);
  }
  ConfigResult GetAdminPasswordHash(std::wstring* out) const override {
    return adminPasswordHash_.Get(out);
  }
  ConfigResult SetAdminPasswordHash(const std::wstring* value) override {
    return adminPasswordHash_.Set(value);
  }
  ConfigResult GetUserInterface(IUserInterface** out) override { return userInterface_.Get(out); }
  ConfigResult SetUserInterface(const IUserInterface* child) override {
    return userInterface_.Set(child);
  }
  IUpdate* GetUpdate() override { return &update_; }
  ConfigResult SetUpdate(const IUpdate* child) override { return SetRequiredChild(update_, child); }
  ConfigResult GetFirefoxSetting(IFirefoxSetting** out) override {
    return firefoxSetting_.Get(out);
  }
  ConfigResult SetFirefoxSetting(const IFirefoxSetting* child) override {
    return firefoxSetting_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> enableTamperProtection_;
  Optional<DWORD> enableTelemetry_{.value = 0, .present = 1};
  Optional<std::wstring> adminPasswordHash_;
  OptionalChild<CUserInterface> userInterface_;
  CUpdate update_;
  OptionalChild<CFirefoxSetting> firefoxSetting_;
};

class CIEProxySetting final : public Node<CIEProxySetting, IIEProxySetting> {
 public:
  static const Schema kSchema;

  ConfigResult GetProxySetting(std::wstring* out) const override { return proxySetting_.Get(out); }
  ConfigResult SetProxySetting(const std::wstring* value) override {
    return proxySetting_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> proxySetting_;
};

class CIEUserProxySetting final : public Node<CIEUserProxySetting, IIEUserProxySetting> {
 public:
  static const Schema kSchema;

  const std::wstring& GetUserID() const override { return userID_; }
  ConfigResult SetUserID(const std::wstring* value) override { return SetRequired(userID_, value); }
  ConfigResult GetProxySetting(std::wstring* out) const override { return proxySetting_.Get(out); }
  ConfigResult SetProxySetting(const std::wstring* value) override {
    return proxySetting_.Set(value);
  }
  ConfigResult GetCurrentUserProxyURL(std::wstring* out) const override {
    return currentUserProxyURL_.Get(out);
  }
  ConfigResult SetCurrentUserProxyURL(const std::wstring* value) override {
    return currentUserProxyURL_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring userID_;
  Optional<std::wstring> proxySetting_;
  Optional<std::wstring> currentUserProxyURL_;
};

class CUserProxySetting final : public Node<CUserProxySetting, IUserProxySetting> {
 public:
  static const Schema kSchema;

  DWORD GetIEUserProxySettingCount() const override { return ieUserProxySettings_.Count(); }
  IIEUserProxySetting* GetIEUserProxySettingAt(DWORD index) override {
    return ieUserProxySettings_.At(index);
  }
  ConfigResult AddIEUserProxySetting(const IIEUserProxySetting* item) override {
    return ieUserProxySettings_.Add(item);
  }
  ConfigResult InsertIEUserProxySettingAt(DWORD index, const IIEUserProxySetting* item) override {
    return ieUserProxySettings_.InsertAt(index, item);
  }
  void RemoveIEUserProxySettingAt(DWORD index) override { ieUserProxySettings_.RemoveAt(index); }
  void RemoveAllIEUserProxySetting() override { ieUserProxySettings_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CIEUserProxySetting> ieUserProxySettings_;
};

class CLocalProxySetting final : public Node<CLocalProxySetting, ILocalProxySetting> {
 public:
  static const Schema kSchema;

  DWORD GetEnableLocalProxySetting() const override { return enableLocalProxySetting_; }
  ConfigResult SetEnableLocalProxySetting(const DWORD* value) override {
    return SetRequired(enableLocalProxySetting_, value);
  }
  ConfigResult GetSaveNetworkSettingMode(DWORD* out) const override {
    return saveNetworkSettingMode_.Get(out);
  }
  ConfigResult SetSaveNetworkSettingMode(const DWORD* value) override {
    return saveNetworkSettingMode_.Set(value);
  }
  ConfigResult GetIEProxySetting(IIEProxySetting** out) override {
    return ieProxySetting_.Get(out);
  }
  ConfigResult SetIEProxySetting(const IIEProxySetting* child) override {
    return ieProxySetting_.Set(child);
  }
  ConfigResult GetUserProxySetting(IUserProxySetting** out) override {
    return userProxySetting_.Get(out);
  }
  ConfigResult SetUserProxySetting(const IUserProxySetting* child) override {
    return userProxySetting_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD enableLocalProxySetting_ = 0;
  Optional<DWORD> saveNetworkSettingMode_;
  OptionalChild<CIEProxySetting> ieProxySetting_;
  OptionalChild<CUserProxySetting> userProxySetting_;
};

class CLogUploadSetting final : public Node<CLogUploadSetting, ILogUploadSetting> {
 public:
  static const Schema kSchema;

  const std::wstring& GetLogUploadURL() const override { return logUploadURL_; }
  ConfigResult SetLogUploadURL(const std::wstring* value) override {
    return SetRequired(logUploadURL_, value);
  }
  DWORD GetLogUploadFrequency() const override { return logUploadFrequency_; }
  ConfigResult SetLogUploadFrequency(const DWORD* value) override {
    return SetRequired(logUploadFrequency_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring logUploadURL_;
  DWORD logUploadFrequency_ = 0;
};

class CIPXYClientConfiguration final
    : public ConfigurationRoot<CIPXYClientConfiguration, IIPXYClientConfiguration> {
 public:
  static const Schema kSchema;

  IProxySetting* GetProxySetting() override { return &proxySetting_; }
  ConfigResult SetProxySetting(const IProxySetting* child) override {
    return SetRequiredChild(proxySetting_, child);
  }
  IClientSetting* GetClientSetting() override { return &clientSetting_; }
  ConfigResult SetClientSetting(const IClientSetting* child) override {
    return SetRequiredChild(clientSetting_, child);
  }
  ConfigResult GetLocalProxySetting(ILocalProxySetting** out) override {
    return localProxySetting_.Get(out);
  }
  ConfigResult SetLocalProxySetting(const ILocalProxySetting* child) override {
    return localProxySetting_.Set(child);
  }
  ConfigResult GetLogUploadSetting(ILogUploadSetting** out) override {
    return logUploadSetting_.Get(out);
  }
  ConfigResult SetLogUploadSetting(const ILogUploadSetting* child) override {
    return logUploadSetting_.Set(child);
  }

 private:
  static const Child kChildren[];

  CProxySetting proxySetting_;
  CClientSetting clientSetting_;
  OptionalChild<CLocalProxySetting> localProxySetting_;
  OptionalChild<CLogUploadSetting> logUploadSetting_;
};

}  // namespace ProxyClientConfig
