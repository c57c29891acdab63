// The classes of tolva/globalconf/client_configuration.h.
#pragma once

#include <tolva/globalconf/client_configuration.h>

#include <string>

#include "globalconf/document.h"
#include "node/accessors.h"
#include "node/browser_files.h"
#include "node/configuration_root.h"

namespace GlobalConfInterface {

class CEPClientSetting final : public Node<CEPClientSetting, IEPClientSetting> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(EnableTamperProtection, enableTamperProtection_);
  TOLVA_NUMBER(EnableTelemetry, enableTelemetry_);
  TOLVA_OPTIONAL(std::wstring, AdminPasswordHash, adminPasswordHash_);
  TOLVA_OPTIONAL(std::wstring, InstallDirectory, installDirectory_);
};

class CUpdateServer final : public Node<CUpdateServer, IUpdateServer> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(URL, url_);
  TOLVA_OPTIONAL(DWORD, SendPII, sendPII_);
};

class CAutoUpdate final : public Node<CAutoUpdate, IAutoUpdate> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Frequency, frequency_);
  TOLVA_CHILD(CUpdateServer, UpdateServer, updateServer_);
};

class CSetting final : public Node<CSetting, ISetting> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(AppName, appName_);
  TOLVA_OPTIONAL(std::wstring, AppFileName, appFileName_);
  TOLVA_NUMBER(AppVersionMajor, appVersionMajor_);
  TOLVA_OPTIONAL(DWORD, AppVersionMinor, appVersionMinor_);
  TOLVA_OPTIONAL(DWORD, MinimumWindowsBuild, minimumWindowsBuild_);
  TOLVA_OPTIONAL(DWORD, MinimumMacBuild, minimumMacBuild_);
};

/// Base of a list of settings `C`, which implements `I`.
template <class C, class I>
class SettingList : public Node<C, I> {
 public:
  TOLVA_CHILDREN(CSetting, Setting, settings_);
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

  TOLVA_OPTIONAL(DWORD, EnableCustomSetting, enableCustomSetting_);
  TOLVA_OPTIONAL(std::wstring, SchemaVersion, schemaVersion_);
  TOLVA_OPTIONAL(std::wstring, Description, description_);
  TOLVA_OPTIONAL_CHILD(CWebProxyEndpoint, WebProxyEndpoint, webProxyEndpoint_);
  TOLVA_OPTIONAL_CHILD(CDataEndpoint, DataEndpoint, dataEndpoint_);
  TOLVA_OPTIONAL_CHILD(CWebDirectEndpoint, WebDirectEndpoint, webDirectEndpoint_);
  TOLVA_OPTIONAL_CHILD(CRemoteFilteringClient, RemoteFilteringClient, remoteFilteringClient_);
};

class CZanFirefoxSetting final : public BrowserFiles<CZanFirefoxSetting, IZanFirefoxSetting> {
 public:
  static const Schema kSchema;
};

class CIGLOBALClientConfiguration final
    : public ConfigurationRoot<CIGLOBALClientConfiguration, IIGLOBALClientConfiguration> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CEPClientSetting, EPClientSetting, epClientSetting_);
  TOLVA_CHILD(CAutoUpdate, AutoUpdate, autoUpdate_);
  TOLVA_OPTIONAL_CHILD(CCustomSetting, CustomSetting, customSetting_);
  TOLVA_OPTIONAL_CHILD(CZanFirefoxSetting, ZanFirefoxSetting, zanFirefoxSetting_);
};

}  // namespace GlobalConfInterface
