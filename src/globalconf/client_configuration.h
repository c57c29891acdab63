// The classes of tolva/globalconf/client_configuration.h.
#pragma once

#include <tolva/globalconf/client_configuration.h>

#include <string>

#include "globalconf/document.h"
#include "node/browser_files.h"
#include "node/configuration_root.h"
#include "node/node.h"

namespace GlobalConfInterface {

class CEPClientSetting final : public Node<CEPClientSetting, IEPClientSetting> {
 public:
  static const Schema kSchema;

  DWORD GetEnableTamperProtection() const override { return enableTamperProtection_; }
  ConfigResult SetEnableTamperProtection(const DWORD* value) override {
    return SetRequired(enableTamperProtection_, value);
  }
  DWORD GetEnableTelemetry() const override { return enableTelemetry_; }
  ConfigResult SetEnableTelemetry(const DWORD* value) override {
    return SetRequired(enableTelemetry_, value);
  }
  ConfigResult GetAdminPasswordHash(std::wstring* out) const override {
    return adminPasswordHash_.Get(out);
  }
  ConfigResult SetAdminPasswordHash(const std::wstring* value) override {
    return adminPasswordHash_.Set(value);
  }
  ConfigResult GetInstallDirectory(std::wstring* out) const override {
    return installDirectory_.Get(out);
  }
  ConfigResult SetInstallDirectory(const std::wstring* value) override {
    return installDirectory_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  DWORD enableTamperProtection_ = 0;
  DWORD enableTelemetry_ = 0;
  Optional<std::wstring> adminPasswordHash_;
  Optional<std::wstring> installDirectory_;
};

class CUpdateServer final : public Node<CUpdateServer, IUpdateServer> {
 public:
  static const Schema kSchema;

  const std::wstring& GetURL() const override { return url_; }
  ConfigResult SetURL(const std::wstring* value) override { return SetRequired(url_, value); }
  ConfigResult GetSendPII(DWORD* out) const override { return sendPII_.Get(out); }
  ConfigResult SetSendPII(const DWORD* value) override { return sendPII_.Set(value); }

 private:
  static const Attribute kAttributes[];

  std::wstring url_;
  Optional<DWORD> sendPII_;
};

class CAutoUpdate final : public Node<CAutoUpdate, IAutoUpdate> {
 public:
  static const Schema kSchema;

  DWORD GetFrequency() const override { return frequency_; }
  ConfigResult SetFrequency(const DWORD* value) override { return SetRequired(frequency_, value); }
  IUpdateServer* GetUpdateServer() override { return &updateServer_; }
  ConfigResult SetUpdateServer(const IUpdateServer* child) override {
    return SetRequiredChild(updateServer_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD frequency_ = 0;
  CUpdateServer updateServer_;
};

class CSetting final : public Node<CSetting, ISetting> {
 public:
  static const Schema kSchema;

  DWORD GetAppName() const override { return appName_; }
  ConfigResult SetAppName(const DWORD* value) override { return SetRequired(appName_, value); }
  ConfigResult GetAppFileName(std::wstring* out) const override { return appFileName_.Get(out); }
  ConfigResult SetAppFileName(const std::wstring* value) override {
    return appFileName_.Set(value);
  }
  DWORD GetAppVersionMajor() const override { return appVersionMajor_; }
  ConfigResult SetAppVersionMajor(const DWORD* value) override {
    return SetRequired(appVersionMajor_, value);
  }
  ConfigResult GetAppVersionMinor(DWORD* out) const override { return appVersionMinor_.Get(out); }
  ConfigResult SetAppVersionMinor(const DWORD* value) override {
    return appVersionMinor_.Set(value);
  }
  ConfigResult GetMinimumWindowsBuild(DWORD* out) const override {
    return minimumWindowsBuild_.Get(out);
  }
  ConfigResult SetMinimumWindowsBuild(const DWORD* value) override {
    return minimumWindowsBuild_.Set(value);
  }
  ConfigResult GetMinimumMacBuild(DWORD* out) const override { return minimumMacBuild_.Get(out); }
  ConfigResult SetMinimumMacBuild(const DWORD* value) override {
    return minimumMacBuild_.Set(value);
  }

  /// All but `AppName`.
  void Clear() override;

 private:
  static const Attribute kAttributes[];

  DWORD appName_ = 0;
  Optional<std::wstring> appFileName_;
  DWORD appVersionMajor_ = 0;
  Optional<DWORD> appVersionMinor_;
  Optional<DWORD> minimumWindowsBuild_;
  Optional<DWORD> minimumMacBuild_;
};

/// The lists of settings: one class for all, `C` and `I` being the class and the interface of one.
template <class C, class I>
class SettingList : public Node<C, I> {
 public:
  DWORD GetSettingCount() const override { return settings_.Count(); }
  ISetting* GetSettingAt(DWORD index) override { return settings_.At(index); }
  ConfigResult AddSetting(const ISetting* item) override { return settings_.Add(item); }
  ConfigResult InsertSettingAt(DWORD index, const ISetting* item) override {
    return settings_.InsertAt(index, item);
  }
  void RemoveSettingAt(DWORD index) override { settings_.RemoveAt(index); }
  void RemoveAllSetting() override { settings_.RemoveAll(); }

 protected:
  static const Child kChildren[];

 private:
  ChildList<CSetting> settings_;
};

class CWebProxyEndpoint final : public SettingList<CWebProxyEndpoint, IWebProxyEndpoint> {
 public:
  static const Schema kSchema;
};

class CDataEndpoint final : public SettingList<CDataEndpoint, IDataEndpoint> {
 public:
  static const Schema kSchema;
};

class CWebDirectEndpoint final : public SettingList<CWebDirectEndpoint, IWebDirectEndpoint> {
 public:
  static const Schema kSchema;
};

class CRemoteFilteringClient final
    : public SettingList<CRemoteFilteringClient, IRemoteFilteringClient> {
 public:
  static const Schema kSchema;
};

class CCustomSetting final : public Node<CCustomSetting, ICustomSetting> {
 public:
  static const Schema kSchema;

  ConfigResult GetEnableCustomSetting(DWORD* out) const override {
    return enableCustomSetting_.Get(out);
  }
  ConfigResult SetEnableCustomSetting(const DWORD* value) override {
    return enableCustomSetting_.Set(value);
  }
  ConfigResult GetSchemaVersion(std::wstring* out) const override {
    return schemaVersion_.Get(out);
  }
  ConfigResult SetSchemaVersion(const std::wstring* value) override {
    return schemaVersion_.Set(value);
  }
  ConfigResult GetDescription(std::wstring* out) const override { return description_.Get(out); }
  ConfigResult SetDescription(const std::wstring* value) override {
    return description_.Set(value);
  }
  ConfigResult GetWebProxyEndpoint(IWebProxyEndpoint** out) override {
    return webProxyEndpoint_.Get(out);
  }
  ConfigResult SetWebProxyEndpoint(const IWebProxyEndpoint* child) override {
    return webProxyEndpoint_.Set(child);
  }
  ConfigResult GetDataEndpoint(IDataEndpoint** out) override { return dataEndpoint_.Get(out); }
  ConfigResult SetDataEndpoint(const IDataEndpoint* child) override {
    return dataEndpoint_.Set(child);
  }
  ConfigResult GetWebDirectEndpoint(IWebDirectEndpoint** out) override {
    return webDirectEndpoint_.Get(out);
  }
  ConfigResult SetWebDirectEndpoint(const IWebDirectEndpoint* child) override {
    return webDirectEndpoint_.Set(child);
  }
  ConfigResult GetRemoteFilteringClient(IRemoteFilteringClient** out) override {
    return remoteFilteringClient_.Get(out);
  }
  ConfigResult SetRemoteFilteringClient(const IRemoteFilteringClient* child) override {
    return remoteFilteringClient_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> enableCustomSetting_;
  Optional<std::wstring> schemaVersion_;
  Optional<std::wstring> description_;
  OptionalChild<CWebProxyEndpoint> webProxyEndpoint_;
  OptionalChild<CDataEndpoint> dataEndpoint_;
  OptionalChild<CWebDirectEndpoint> webDirectEndpoint_;
  OptionalChild<CRemoteFilteringClient> remoteFilteringClient_;
};

class CZanFirefoxSetting final : public BrowserFiles<CZanFirefoxSetting, IZanFirefoxSetting> {
 public:
  static const Schema kSchema;
};

class CIGLOBALClientConfiguration final
    : public ConfigurationRoot<CIGLOBALClientConfiguration, IIGLOBALClientConfiguration> {
 public:
  static const Schema kSchema;

  IEPClientSetting* GetEPClientSetting() override { return &epClientSetting_; }
  ConfigResult SetEPClientSetting(const IEPClientSetting* child) override {
    return SetRequiredChild(epClientSetting_, child);
  }
  IAutoUpdate* GetAutoUpdate() override { return &autoUpdate_; }
  ConfigResult SetAutoUpdate(const IAutoUpdate* child) override {
    return SetRequiredChild(autoUpdate_, child);
  }
  ConfigResult GetCustomSetting(ICustomSetting** out) override { return customSetting_.Get(out); }
  ConfigResult SetCustomSetting(const ICustomSetting* child) override {
    return customSetting_.Set(child);
  }
  ConfigResult GetZanFirefoxSetting(IZanFirefoxSetting** out) override {
    return zanFirefoxSetting_.Get(out);
  }
  ConfigResult SetZanFirefoxSetting(const IZanFirefoxSetting* child) override {
    return zanFirefoxSetting_.Set(child);
  }

 private:
  static const Child kChildren[];

  CEPClientSetting epClientSetting_;
  CAutoUpdate autoUpdate_;
  OptionalChild<CCustomSetting> customSetting_;
  OptionalChild<CZanFirefoxSetting> zanFirefoxSetting_;
};

}  // namespace GlobalConfInterface
