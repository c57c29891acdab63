// The classes of tolva/ngconf/client_configuration.h.
#pragma once

#include <tolva/ngconf/client_configuration.h>

#include <string>

#include "clientconfig/active_directory.h"
#include "ngconf/document.h"
#include "ngconf/scan_engine.h"
#include "node/browser_files.h"
#include "node/configuration_root.h"
#include "node/node.h"

namespace NGConfInterface {

class CServerCommunication final : public Node<CServerCommunication, IServerCommunication> {
 public:
  static const Schema kSchema;

  DWORD GetManagementQueryInterval() const override { return managementQueryInterval_; }
  ConfigResult SetManagementQueryInterval(const DWORD* value) override {
    return SetRequired(managementQueryInterval_, value);
  }
  const std::wstring& GetManagementServerHostname() const override {
    return managementServerHostname_;
  }
  ConfigResult SetManagementServerHostname(const std::wstring* value) override {
    return SetRequired(managementServerHostname_, value);
  }

 private:
  static const Attribute kAttributes[];

  DWORD managementQueryInterval_ = 0;
  std::wstring managementServerHostname_;
};

class CLogReport final : public Node<CLogReport, ILogReport> {
 public:
  static const Schema kSchema;

  DWORD GetLogReportInterval() const override { return logReportInterval_; }
  ConfigResult SetLogReportInterval(const DWORD* value) override {
    return SetRequired(logReportInterval_, value);
  }
  const std::wstring& GetLogReportServerHostname() const override {
    return logReportServerHostname_;
  }
  ConfigResult SetLogReportServerHostname(const std::wstring* value) override {
    return SetRequired(logReportServerHostname_, value);
  }
  DWORD GetMaxUploadSize() const override { return maxUploadSize_; }
  ConfigResult SetMaxUploadSize(const DWORD* value) override {
    return SetRequired(maxUploadSize_, value);
  }
  ConfigResult GetEventLogReportServerHostname(std::wstring* out) const override {
    return eventLogReportServerHostname_.Get(out);
  }
  ConfigResult SetEventLogReportServerHostname(const std::wstring* value) override {
    return eventLogReportServerHostname_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  DWORD logReportInterval_ = 0;
  std::wstring logReportServerHostname_;
  DWORD maxUploadSize_ = 0;
  Optional<std::wstring> eventLogReportServerHostname_;
};

class CNGUser final : public Node<CNGUser, INGUser> {
 public:
  static const Schema kSchema;

  const std::wstring& GetName() const override { return name_; }
  ConfigResult SetName(const std::wstring* value) override { return SetRequired(name_, value); }
  DWORD GetEnableTrayIconMenu() const override { return enableTrayIconMenu_; }
  ConfigResult SetEnableTrayIconMenu(const DWORD* value) override {
    return SetRequired(enableTrayIconMenu_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring name_;
  DWORD enableTrayIconMenu_ = 0;
};

class CNGUserSetting final : public Node<CNGUserSetting, INGUserSetting> {
 public:
  static const Schema kSchema;

  DWORD GetNGUserCount() const override { return ngUsers_.Count(); }
  INGUser* GetNGUserAt(DWORD index) override { return ngUsers_.At(index); }
  ConfigResult AddNGUser(const INGUser* item) override { return ngUsers_.Add(item); }
  ConfigResult InsertNGUserAt(DWORD index, const INGUser* item) override {
    return ngUsers_.InsertAt(index, item);
  }
  void RemoveNGUserAt(DWORD index) override { ngUsers_.RemoveAt(index); }
  void RemoveAllNGUser() override { ngUsers_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CNGUser> ngUsers_;
};

class CNGFirefoxSetting final : public BrowserFiles<CNGFirefoxSetting, INGFirefoxSetting> {
 public:
  static const Schema kSchema;
};

class CClientManagement final : public Node<CClientManagement, IClientManagement> {
 public:
  static const Schema kSchema;

  ConfigResult GetEnableTrayIconMenu(DWORD* out) const override {
    return enableTrayIconMenu_.Get(out);
  }
  ConfigResult SetEnableTrayIconMenu(const DWORD* value) override {
    return enableTrayIconMenu_.Set(value);
  }
  ConfigResult GetReservedSetting(DWORD* out) const override { return reservedSetting_.Get(out); }
  ConfigResult SetReservedSetting(const DWORD* value) override {
    return reservedSetting_.Set(value);
  }
  ConfigResult GetActiveDirectoryPresent(DWORD* out) const override {
    return activeDirectory_.GetPresent(out);
  }
  ConfigResult SetActiveDirectoryPresent(const DWORD* value) override {
    return activeDirectory_.SetPresent(value);
  }
  ConfigResult GetDefaultDomainEnabled(DWORD* out) const override;
  ConfigResult SetDefaultDomainEnabled(const DWORD* value) override;
  ConfigResult GetDefaultDomainName(std::wstring* out) const override;
  ConfigResult SetDefaultDomainName(const std::wstring* value) override;
  IServerCommunication* GetServerCommunication() override { return &serverCommunication_; }
  ConfigResult SetServerCommunication(const IServerCommunication* child) override {
    return SetRequiredChild(serverCommunication_, child);
  }
  ILogReport* GetLogReport() override { return &logReport_; }
  ConfigResult SetLogReport(const ILogReport* child) override {
    return SetRequiredChild(logReport_, child);
  }
  ConfigResult GetNGUserSetting(INGUserSetting** out) override { return ngUserSetting_.Get(out); }
  ConfigResult SetNGUserSetting(const INGUserSetting* child) override {
    return ngUserSetting_.Set(child);
  }
  ConfigResult GetNGFirefoxSetting(INGFirefoxSetting** out) override {
    return ngFirefoxSetting_.Get(out);
  }
  ConfigResult SetNGFirefoxSetting(const INGFirefoxSetting* child) override {
    return ngFirefoxSetting_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> enableTrayIconMenu_;
  Optional<DWORD> reservedSetting_;  ///< in no table: kept from reading, writing and clearing
  CServerCommunication serverCommunication_;
  CLogReport logReport_;
  OptionalChild<CNGUserSetting> ngUserSetting_;
  OptionalChild<CNGFirefoxSetting> ngFirefoxSetting_;
  OptionalChild<ClientConfig::CActiveDirectory> activeDirectory_;
};

class CHTTPHeader final : public Node<CHTTPHeader, IHTTPHeader> {
 public:
  static const Schema kSchema;

  const std::wstring& GetHeaderName() const override { return headerName_; }
  ConfigResult SetHeaderName(const std::wstring* value) override {
    return SetRequired(headerName_, value);
  }
  const std::wstring& GetHeaderValue() const override { return headerValue_; }
  ConfigResult SetHeaderValue(const std::wstring* value) override {
    return SetRequired(headerValue_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring headerName_;
  std::wstring headerValue_;
};

class CHTTPRequestHeaders final : public Node<CHTTPRequestHeaders, IHTTPRequestHeaders> {
 public:
  static const Schema kSchema;

  DWORD GetHTTPHeaderCount() const override { return httpHeaders_.Count(); }
  IHTTPHeader* GetHTTPHeaderAt(DWORD index) override { return httpHeaders_.At(index); }
  ConfigResult AddHTTPHeader(const IHTTPHeader* item) override { return httpHeaders_.Add(item); }
  ConfigResult InsertHTTPHeaderAt(DWORD index, const IHTTPHeader* item) override {
    return httpHeaders_.InsertAt(index, item);
  }
  void RemoveHTTPHeaderAt(DWORD index) override { httpHeaders_.RemoveAt(index); }
  void RemoveAllHTTPHeader() override { httpHeaders_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CHTTPHeader> httpHeaders_;
};

class CCloudServerComunication final
    : public Node<CCloudServerComunication, ICloudServerComunication> {
 public:
  static const Schema kSchema;

  IHTTPRequestHeaders* GetHTTPRequestHeaders() override { return &httpRequestHeaders_; }
  ConfigResult SetHTTPRequestHeaders(const IHTTPRequestHeaders* child) override {
    return SetRequiredChild(httpRequestHeaders_, child);
  }

 private:
  static const Child kChildren[];

  CHTTPRequestHeaders httpRequestHeaders_;
};

class CINGClientConfiguration final
    : public ConfigurationRoot<CINGClientConfiguration, IINGClientConfiguration> {
 public:
  static const Schema kSchema;

  IClientManagement* GetClientManagement() override { return &clientManagement_; }
  ConfigResult SetClientManagement(const IClientManagement* child) override {
    return SetRequiredChild(clientManagement_, child);
  }
  IScanEngineConfiguration* GetScanEngineConfiguration() override {
    return &scanEngineConfiguration_;
  }
  ConfigResult SetScanEngineConfiguration(const IScanEngineConfiguration* child) override {
    return SetRequiredChild(scanEngineConfiguration_, child);
  }
  ConfigResult GetCloudServerComunication(ICloudServerComunication** out) override {
    return cloudServerComunication_.Get(out);
  }
  ConfigResult SetCloudServerComunication(const ICloudServerComunication* child) override {
    return cloudServerComunication_.Set(child);
  }

 private:
  static const Child kChildren[];

  CClientManagement clientManagement_;
  CScanEngineConfiguration scanEngineConfiguration_;
  OptionalChild<CCloudServerComunication> cloudServerComunication_;
};

}  // namespace NGConfInterface
