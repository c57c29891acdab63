// The classes of tolva/ciconf/client_configuration.h.
#pragma once

#include <tolva/ciconf/client_configuration.h>

#include <string>

#include "ciconf/document.h"
#include "node/configuration_root.h"
#include "node/node.h"

namespace CIConfInterface {

class CEIMServer final : public Node<CEIMServer, IEIMServer> {
 public:
  static const Schema kSchema;

  const std::wstring& GetHostName() const override { return hostName_; }
  ConfigResult SetHostName(const std::wstring* value) override {
    return SetRequired(hostName_, value);
  }
  DWORD GetPortNumber() const override { return portNumber_; }
  ConfigResult SetPortNumber(const DWORD* value) override {
    return SetRequired(portNumber_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring hostName_;
  DWORD portNumber_ = 0;
};

class CEIMServerArray final : public Node<CEIMServerArray, IEIMServerArray> {
 public:
  static const Schema kSchema;

  DWORD GetEIMServerCount() const override { return eimServers_.Count(); }
  IEIMServer* GetEIMServerAt(DWORD index) override { return eimServers_.At(index); }
  ConfigResult AddEIMServer(const IEIMServer* item) override { return eimServers_.Add(item); }
  ConfigResult InsertEIMServerAt(DWORD index, const IEIMServer* item) override {
    return eimServers_.InsertAt(index, item);
  }
  void RemoveEIMServerAt(DWORD index) override { eimServers_.RemoveAt(index); }
  void RemoveAllEIMServer() override { eimServers_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CEIMServer> eimServers_;
};

class CEIMConnection final : public Node<CEIMConnection, IEIMConnection> {
 public:
  static const Schema kSchema;

  IEIMServerArray* GetEIMServerArray() override { return &eimServerArray_; }
  ConfigResult SetEIMServerArray(const IEIMServerArray* child) override {
    return SetRequiredChild(eimServerArray_, child);
  }

 private:
  static const Child kChildren[];

  CEIMServerArray eimServerArray_;
};

class CConnection final : public Node<CConnection, IConnection> {
 public:
  static const Schema kSchema;

  DWORD GetDoNotSendUserName() const override { return doNotSendUserName_; }
  ConfigResult SetDoNotSendUserName(const DWORD* value) override {
    return SetRequired(doNotSendUserName_, value);
  }
  DWORD GetFailClosed() const override { return failClosed_; }
  ConfigResult SetFailClosed(const DWORD* value) override {
    return SetRequired(failClosed_, value);
  }
  IEIMConnection* GetEIMConnection() override { return &eimConnection_; }
  ConfigResult SetEIMConnection(const IEIMConnection* child) override {
    return SetRequiredChild(eimConnection_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD doNotSendUserName_ = 0;
  DWORD failClosed_ = 0;
  CEIMConnection eimConnection_;
};

class CUserInterface final : public Node<CUserInterface, IUserInterface> {
 public:
  static const Schema kSchema;

  DWORD GetUISilentMode() const override { return uiSilentMode_; }
  ConfigResult SetUISilentMode(const DWORD* value) override {
    return SetRequired(uiSilentMode_, value);
  }
  DWORD GetDisplayHTTPSBlockMsg() const override { return displayHTTPSBlockMsg_; }
  ConfigResult SetDisplayHTTPSBlockMsg(const DWORD* value) override {
    return SetRequired(displayHTTPSBlockMsg_, value);
  }
  DWORD GetHTTPSBlockMsgInterval() const override { return httpsBlockMsgInterval_; }
  ConfigResult SetHTTPSBlockMsgInterval(const DWORD* value) override {
    return SetRequired(httpsBlockMsgInterval_, value);
  }
  DWORD GetDisplayFTPBlockMsg() const override { return displayFTPBlockMsg_; }
  ConfigResult SetDisplayFTPBlockMsg(const DWORD* value) override {
    return SetRequired(displayFTPBlockMsg_, value);
  }
  DWORD GetFTPBlockMsgInterval() const override { return ftpBlockMsgInterval_; }
  ConfigResult SetFTPBlockMsgInterval(const DWORD* value) override {
    return SetRequired(ftpBlockMsgInterval_, value);
  }
  DWORD GetUITimeout() const override { return uiTimeout_; }
  ConfigResult SetUITimeout(const DWORD* value) override { return SetRequired(uiTimeout_, value); }

 private:
  static const Attribute kAttributes[];

  DWORD uiSilentMode_ = 0;
  DWORD displayHTTPSBlockMsg_ = 0;
  DWORD httpsBlockMsgInterval_ = 0;
  DWORD displayFTPBlockMsg_ = 0;
  DWORD ftpBlockMsgInterval_ = 0;
  DWORD uiTimeout_ = 0;
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
  IUserInterface* GetUserInterface() override { return &userInterface_; }
  ConfigResult SetUserInterface(const IUserInterface* child) override {
    return SetRequiredChild(userInterface_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> enableTamperProtection_;
  Optional<DWORD> enableTelemetry_{.value = 0, .present = 1};
  CUserInterface userInterface_;
};

class CURLCondition final : public Node<CURLCondition, IURLCondition> {
 public:
  static const Schema kSchema;

  const std::wstring& GetSiteURL() const override { return siteURL_; }
  ConfigResult SetSiteURL(const std::wstring* value) override {
    return SetRequired(siteURL_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring siteURL_;
};

class CTrustedSites final : public Node<CTrustedSites, ITrustedSites> {
 public:
  static const Schema kSchema;

  DWORD GetURLConditionCount() const override { return urlConditions_.Count(); }
  IURLCondition* GetURLConditionAt(DWORD index) override { return urlConditions_.At(index); }
  ConfigResult AddURLCondition(const IURLCondition* item) override {
    return urlConditions_.Add(item);
  }
  ConfigResult InsertURLConditionAt(DWORD index, const IURLCondition* item) override {
    return urlConditions_.InsertAt(index, item);
  }
  void RemoveURLConditionAt(DWORD index) override { urlConditions_.RemoveAt(index); }
  void RemoveAllURLCondition() override { urlConditions_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CURLCondition> urlConditions_;
};

class CCIClientConfiguration final
    : public ConfigurationRoot<CCIClientConfiguration, ICIClientConfiguration> {
 public:
  static const Schema kSchema;

  IConnection* GetConnection() override { return &connection_; }
  ConfigResult SetConnection(const IConnection* child) override {
    return SetRequiredChild(connection_, child);
  }
  IClientSetting* GetClientSetting() override { return &clientSetting_; }
  ConfigResult SetClientSetting(const IClientSetting* child) override {
    return SetRequiredChild(clientSetting_, child);
  }
  ConfigResult GetTrustedSites(ITrustedSites** out) override { return trustedSites_.Get(out); }
  ConfigResult SetTrustedSites(const ITrustedSites* child) override {
    return trustedSites_.Set(child);
  }

 private:
  static const Child kChildren[];

  CConnection connection_;
  CClientSetting clientSetting_;
  OptionalChild<CTrustedSites> trustedSites_;
};

}  // namespace CIConfInterface
