// The classes of tolva/rfconf/client_configuration.h.
#pragma once

#include <tolva/rfconf/client_configuration.h>

#include <string>

#include "node/configuration_root.h"
#include "node/node.h"
#include "rfconf/document.h"

namespace RFConfInterface {

class CRFServer final : public Node<CRFServer, IRFServer> {
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

/// The lists of servers: one class for both, `C` and `I` being the class and the interface of one.
template <class C, class I>
class RFServerList : public Node<C, I> {
 public:
  DWORD GetRFServerCount() const override { return rfServers_.Count(); }
  IRFServer* GetRFServerAt(DWORD index) override { return rfServers_.At(index); }
  ConfigResult AddRFServer(const IRFServer* item) override { return rfServers_.Add(item); }
  ConfigResult InsertRFServerAt(DWORD index, const IRFServer* item) override {
    return rfServers_.InsertAt(index, item);
  }
  void RemoveRFServerAt(DWORD index) override { rfServers_.RemoveAt(index); }
  void RemoveAllRFServer() override { rfServers_.RemoveAll(); }

 protected:
  static const Child kChildren[];

 private:
  ChildList<CRFServer> rfServers_;
};

class CInternalRFServerArray final
    : public RFServerList<CInternalRFServerArray, IInternalRFServerArray> {
 public:
  static const Schema kSchema;
};

class CExternalRFServerArray final
    : public RFServerList<CExternalRFServerArray, IExternalRFServerArray> {
 public:
  static const Schema kSchema;
};

class CInternalConnection final : public Node<CInternalConnection, IInternalConnection> {
 public:
  static const Schema kSchema;

  DWORD GetHeartbeatRetryInterval() const override { return heartbeatRetryInterval_; }
  ConfigResult SetHeartbeatRetryInterval(const DWORD* value) override {
    return SetRequired(heartbeatRetryInterval_, value);
  }
  IInternalRFServerArray* GetInternalRFServerArray() override { return &internalRFServerArray_; }
  ConfigResult SetInternalRFServerArray(const IInternalRFServerArray* child) override {
    return SetRequiredChild(internalRFServerArray_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD heartbeatRetryInterval_ = 0;
  CInternalRFServerArray internalRFServerArray_;
};

class CExternalConnection final : public Node<CExternalConnection, IExternalConnection> {
 public:
  static const Schema kSchema;

  DWORD GetHeartbeatRetryInterval() const override { return heartbeatRetryInterval_; }
  ConfigResult SetHeartbeatRetryInterval(const DWORD* value) override {
    return SetRequired(heartbeatRetryInterval_, value);
  }
  DWORD GetFailClosed() const override { return failClosed_; }
  ConfigResult SetFailClosed(const DWORD* value) override {
    return SetRequired(failClosed_, value);
  }
  DWORD GetFailClosedTimeout() const override { return failClosedTimeout_; }
  ConfigResult SetFailClosedTimeout(const DWORD* value) override {
    return SetRequired(failClosedTimeout_, value);
  }
  DWORD GetFilterHTTPS() const override { return filterHTTPS_; }
  ConfigResult SetFilterHTTPS(const DWORD* value) override {
    return SetRequired(filterHTTPS_, value);
  }
  DWORD GetFilterFTP() const override { return filterFTP_; }
  ConfigResult SetFilterFTP(const DWORD* value) override { return SetRequired(filterFTP_, value); }
  DWORD GetURLLookupAndLog() const override { return urlLookupAndLog_; }
  ConfigResult SetURLLookupAndLog(const DWORD* value) override {
    return SetRequired(urlLookupAndLog_, value);
  }
  IExternalRFServerArray* GetExternalRFServerArray() override { return &externalRFServerArray_; }
  ConfigResult SetExternalRFServerArray(const IExternalRFServerArray* child) override {
    return SetRequiredChild(externalRFServerArray_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD heartbeatRetryInterval_ = 0;
  DWORD failClosed_ = 0;
  DWORD failClosedTimeout_ = 0;
  DWORD filterHTTPS_ = 0;
  DWORD filterFTP_ = 0;
  DWORD urlLookupAndLog_ = 0;
  CExternalRFServerArray externalRFServerArray_;
};

class CConnection final : public Node<CConnection, IConnection> {
 public:
  static const Schema kSchema;

  IInternalConnection* GetInternalConnection() override { return &internalConnection_; }
  ConfigResult SetInternalConnection(const IInternalConnection* child) override {
    return SetRequiredChild(internalConnection_, child);
  }
  IExternalConnection* GetExternalConnection() override { return &externalConnection_; }
  ConfigResult SetExternalConnection(const IExternalConnection* child) override {
    return SetRequiredChild(externalConnection_, child);
  }

 private:
  static const Child kChildren[];

  CInternalConnection internalConnection_;
  CExternalConnection externalConnection_;
};

class CUserInterface final : public Node<CUserInterface, IUserInterface> {
 public:
  static const Schema kSchema;

  DWORD GetUISilentMode() const override { return uiSilentMode_; }
  ConfigResult SetUISilentMode(const DWORD* value) override {
    return SetRequired(uiSilentMode_, value);
  }
  DWORD GetUITimeout() const override { return uiTimeout_; }
  ConfigResult SetUITimeout(const DWORD* value) override { return SetRequired(uiTimeout_, value); }

 private:
  static const Attribute kAttributes[];

  DWORD uiSilentMode_ = 0;
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
  DWORD GetEnableTelemetry() const override { return enableTelemetry_; }
  ConfigResult SetEnableTelemetry(const DWORD* value) override {
    return SetRequired(enableTelemetry_, value);
  }
  DWORD GetDisableFiltering() const override { return disableFiltering_; }
  ConfigResult SetDisableFiltering(const DWORD* value) override {
    return SetRequired(disableFiltering_, value);
  }
  ConfigResult GetAdminPasswordHash(std::wstring* out) const override {
    return adminPasswordHash_.Get(out);
  }
  ConfigResult SetAdminPasswordHash(const std::wstring* value) override {
    return adminPasswordHash_.Set(value);
  }
  IUserInterface* GetUserInterface() override { return &userInterface_; }
  ConfigResult SetUserInterface(const IUserInterface* child) override {
    return SetRequiredChild(userInterface_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> enableTamperProtection_;
  DWORD enableTelemetry_ = 0;
  DWORD disableFiltering_ = 0;
  Optional<std::wstring> adminPasswordHash_;
  CUserInterface userInterface_;
};

class CRFURLCondition final : public Node<CRFURLCondition, IRFURLCondition> {
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

class CRFTrustedSites final : public Node<CRFTrustedSites, IRFTrustedSites> {
 public:
  static const Schema kSchema;

  DWORD GetRFURLConditionCount() const override { return rfURLConditions_.Count(); }
  IRFURLCondition* GetRFURLConditionAt(DWORD index) override { return rfURLConditions_.At(index); }
  ConfigResult AddRFURLCondition(const IRFURLCondition* item) override {
    return rfURLConditions_.Add(item);
  }
  ConfigResult InsertRFURLConditionAt(DWORD index, const IRFURLCondition* item) override {
    return rfURLConditions_.InsertAt(index, item);
  }
  void RemoveRFURLConditionAt(DWORD index) override { rfURLConditions_.RemoveAt(index); }
  void RemoveAllRFURLCondition() override { rfURLConditions_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CRFURLCondition> rfURLConditions_;
};

class CRFClientConfiguration final
    : public ConfigurationRoot<CRFClientConfiguration, IRFClientConfiguration> {
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
  ConfigResult GetRFTrustedSites(IRFTrustedSites** out) override {
    return rfTrustedSites_.Get(out);
  }
  ConfigResult SetRFTrustedSites(const IRFTrustedSites* child) override {
    return rfTrustedSites_.Set(child);
  }

 private:
  static const Child kChildren[];

  CConnection connection_;
  CClientSetting clientSetting_;
  OptionalChild<CRFTrustedSites> rfTrustedSites_;
};

}  // namespace RFConfInterface
