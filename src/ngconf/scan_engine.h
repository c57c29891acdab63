// The classes of tolva/ngconf/scan_engine.h.
#pragma once

#include <tolva/ngconf/scan_engine.h>

#include <string>

#include "ngconf/document.h"
#include "node/node.h"

namespace NGConfInterface {

class CScanEngineBasicSetting final
    : public Node<CScanEngineBasicSetting, IScanEngineBasicSetting> {
 public:
  static const Schema kSchema;

  DWORD GetEnableSSLProxy() const override { return enableSSLProxy_; }
  ConfigResult SetEnableSSLProxy(const DWORD* value) override {
    return SetRequired(enableSSLProxy_, value);
  }
  DWORD GetEnableThreatScan() const override { return enableThreatScan_; }
  ConfigResult SetEnableThreatScan(const DWORD* value) override {
    return SetRequired(enableThreatScan_, value);
  }
  DWORD GetEnableURLLocalCache() const override { return enableURLLocalCache_; }
  ConfigResult SetEnableURLLocalCache(const DWORD* value) override {
    return SetRequired(enableURLLocalCache_, value);
  }
  DWORD GetEnableWebsiteVerification() const override { return enableWebsiteVerification_; }
  ConfigResult SetEnableWebsiteVerification(const DWORD* value) override {
    return SetRequired(enableWebsiteVerification_, value);
  }
  DWORD GetInspectHostnameOnly() const override { return inspectHostnameOnly_; }
  ConfigResult SetInspectHostnameOnly(const DWORD* value) override {
    return SetRequired(inspectHostnameOnly_, value);
  }
  DWORD GetLocalNonSSLRedirPort() const override { return localNonSSLRedirPort_; }
  ConfigResult SetLocalNonSSLRedirPort(const DWORD* value) override {
    return SetRequired(localNonSSLRedirPort_, value);
  }
  DWORD GetLocalSSLRedirPort() const override { return localSSLRedirPort_; }
  ConfigResult SetLocalSSLRedirPort(const DWORD* value) override {
    return SetRequired(localSSLRedirPort_, value);
  }
  ConfigResult GetIgnoreInvalidCertificate(DWORD* out) const override {
    return ignoreInvalidCertificate_.Get(out);
  }
  ConfigResult SetIgnoreInvalidCertificate(const DWORD* value) override {
    return ignoreInvalidCertificate_.Set(value);
  }
  ConfigResult GetStatsPeriod(DWORD* out) const override { return statsPeriod_.Get(out); }
  ConfigResult SetStatsPeriod(const DWORD* value) override { return statsPeriod_.Set(value); }
  ConfigResult GetSSLStandbyDecryption(DWORD* out) const override {
    return sslStandbyDecryption_.Get(out);
  }
  ConfigResult SetSSLStandbyDecryption(const DWORD* value) override {
    return sslStandbyDecryption_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  DWORD enableSSLProxy_ = 0;
  DWORD enableThreatScan_ = 0;
  DWORD enableURLLocalCache_ = 0;
  DWORD enableWebsiteVerification_ = 0;
  DWORD inspectHostnameOnly_ = 0;
  DWORD localNonSSLRedirPort_ = 0;
  DWORD localSSLRedirPort_ = 0;
  Optional<DWORD> ignoreInvalidCertificate_;
  Optional<DWORD> statsPeriod_;
  Optional<DWORD> sslStandbyDecryption_;
};

class CScanEngineSSLSetting final : public Node<CScanEngineSSLSetting, IScanEngineSSLSetting> {
 public:
  static const Schema kSchema;

  const std::wstring& GetCRLFileName() const override { return crlFileName_; }
  ConfigResult SetCRLFileName(const std::wstring* value) override {
    return SetRequired(crlFileName_, value);
  }
  const std::wstring& GetClientCerFileName() const override { return clientCerFileName_; }
  ConfigResult SetClientCerFileName(const std::wstring* value) override {
    return SetRequired(clientCerFileName_, value);
  }
  const std::wstring& GetRootCAFileName() const override { return rootCAFileName_; }
  ConfigResult SetRootCAFileName(const std::wstring* value) override {
    return SetRequired(rootCAFileName_, value);
  }
  const std::wstring& GetRootDN() const override { return rootDN_; }
  ConfigResult SetRootDN(const std::wstring* value) override { return SetRequired(rootDN_, value); }
  const std::wstring& GetServerCerFileName() const override { return serverCerFileName_; }
  ConfigResult SetServerCerFileName(const std::wstring* value) override {
    return SetRequired(serverCerFileName_, value);
  }
  const std::wstring& GetServerCertSubject() const override { return serverCertSubject_; }
  ConfigResult SetServerCertSubject(const std::wstring* value) override {
    return SetRequired(serverCertSubject_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring crlFileName_;
  std::wstring clientCerFileName_;
  std::wstring rootCAFileName_;
  std::wstring rootDN_;
  std::wstring serverCerFileName_;
  std::wstring serverCertSubject_;
};

class CIPNode final : public Node<CIPNode, IIPNode> {
 public:
  static const Schema kSchema;

  const std::wstring& GetIPRange() const override { return ipRange_; }
  ConfigResult SetIPRange(const std::wstring* value) override {
    return SetRequired(ipRange_, value);
  }
  const std::wstring& GetPortNumber() const override { return portNumber_; }
  ConfigResult SetPortNumber(const std::wstring* value) override {
    return SetRequired(portNumber_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring ipRange_;
  std::wstring portNumber_;
};

/// What the lists of what is enforced and what is exempt have in common.
template <class C, class I>
class NetworkLists : public Node<C, I> {
 public:
  ConfigResult GetDomainLists(std::wstring* out) const override { return domainLists_.Get(out); }
  ConfigResult SetDomainLists(const std::wstring* value) override {
    return domainLists_.Set(value);
  }
  ConfigResult GetProcessNames(std::wstring* out) const override { return processNames_.Get(out); }
  ConfigResult SetProcessNames(const std::wstring* value) override {
    return processNames_.Set(value);
  }
  DWORD GetIPNodeCount() const override { return ipNodes_.Count(); }
  IIPNode* GetIPNodeAt(DWORD index) override { return ipNodes_.At(index); }
  ConfigResult AddIPNode(const IIPNode* item) override { return ipNodes_.Add(item); }
  ConfigResult InsertIPNodeAt(DWORD index, const IIPNode* item) override {
    return ipNodes_.InsertAt(index, item);
  }
  void RemoveIPNodeAt(DWORD index) override { ipNodes_.RemoveAt(index); }
  void RemoveAllIPNode() override { ipNodes_.RemoveAll(); }

 protected:
  static const Child kChildren[];

  Optional<std::wstring> domainLists_;
  Optional<std::wstring> processNames_;

 private:
  ChildList<CIPNode> ipNodes_;
};

class CScanEngineEnforceLists final
    : public NetworkLists<CScanEngineEnforceLists, IScanEngineEnforceLists> {
 public:
  static const Schema kSchema;

 private:
  static const Attribute kAttributes[];
};

class CScanEngineWhiteLists final
    : public NetworkLists<CScanEngineWhiteLists, IScanEngineWhiteLists> {
 public:
  static const Schema kSchema;

  ConfigResult GetVPNDescList(std::wstring* out) const override { return vpnDescList_.Get(out); }
  ConfigResult SetVPNDescList(const std::wstring* value) override {
    return vpnDescList_.Set(value);
  }
  ConfigResult GetSNIHostList(std::wstring* out) const override { return sniHostList_.Get(out); }
  ConfigResult SetSNIHostList(const std::wstring* value) override {
    return sniHostList_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> vpnDescList_;
  Optional<std::wstring> sniHostList_;
};

class CScanSetting final : public Node<CScanSetting, IScanSetting> {
 public:
  static const Schema kSchema;

  const std::wstring& GetContext() const override { return context_; }
  ConfigResult SetContext(const std::wstring* value) override {
    return SetRequired(context_, value);
  }
  const std::wstring& GetDispServerHostname() const override { return dispServerHostname_; }
  ConfigResult SetDispServerHostname(const std::wstring* value) override {
    return SetRequired(dispServerHostname_, value);
  }
  ConfigResult GetEnableDetectHybrid(DWORD* out) const override {
    return enableDetectHybrid_.Get(out);
  }
  ConfigResult SetEnableDetectHybrid(const DWORD* value) override {
    return enableDetectHybrid_.Set(value);
  }
  ConfigResult GetHybridModeDetectString(std::wstring* out) const override {
    return hybridModeDetectString_.Get(out);
  }
  ConfigResult SetHybridModeDetectString(const std::wstring* value) override {
    return hybridModeDetectString_.Set(value);
  }
  DWORD GetEnableFailureOpen() const override { return enableFailureOpen_; }
  ConfigResult SetEnableFailureOpen(const DWORD* value) override {
    return SetRequired(enableFailureOpen_, value);
  }
  DWORD GetMaxConnectionsPerServer() const override { return maxConnectionsPerServer_; }
  ConfigResult SetMaxConnectionsPerServer(const DWORD* value) override {
    return SetRequired(maxConnectionsPerServer_, value);
  }
  const std::wstring& GetUserAgent() const override { return userAgent_; }
  ConfigResult SetUserAgent(const std::wstring* value) override {
    return SetRequired(userAgent_, value);
  }
  ConfigResult GetEnforceProxyServer(DWORD* out) const override {
    return enforceProxyServer_.Get(out);
  }
  ConfigResult SetEnforceProxyServer(const DWORD* value) override {
    return enforceProxyServer_.Set(value);
  }
  ConfigResult GetBypassPrivateIP(DWORD* out) const override { return bypassPrivateIP_.Get(out); }
  ConfigResult SetBypassPrivateIP(const DWORD* value) override {
    return bypassPrivateIP_.Set(value);
  }
  ConfigResult GetBypassLocalIP(DWORD* out) const override { return bypassLocalIP_.Get(out); }
  ConfigResult SetBypassLocalIP(const DWORD* value) override { return bypassLocalIP_.Set(value); }
  ConfigResult GetBypassPlainHostName(DWORD* out) const override {
    return bypassPlainHostName_.Get(out);
  }
  ConfigResult SetBypassPlainHostName(const DWORD* value) override {
    return bypassPlainHostName_.Set(value);
  }
  ConfigResult GetScanEngineEnforceLists(IScanEngineEnforceLists** out) override {
    return scanEngineEnforceLists_.Get(out);
  }
  ConfigResult SetScanEngineEnforceLists(const IScanEngineEnforceLists* child) override {
    return scanEngineEnforceLists_.Set(child);
  }
  ConfigResult GetScanEngineWhiteLists(IScanEngineWhiteLists** out) override {
    return scanEngineWhiteLists_.Get(out);
  }
  ConfigResult SetScanEngineWhiteLists(const IScanEngineWhiteLists* child) override {
    return scanEngineWhiteLists_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  std::wstring context_;
  std::wstring dispServerHostname_;
  Optional<DWORD> enableDetectHybrid_;
  Optional<std::wstring> hybridModeDetectString_;
  DWORD enableFailureOpen_ = 0;
  DWORD maxConnectionsPerServer_ = 0;
  std::wstring userAgent_;
  Optional<DWORD> enforceProxyServer_;
  Optional<DWORD> bypassPrivateIP_;
  Optional<DWORD> bypassLocalIP_;
  Optional<DWORD> bypassPlainHostName_;
  OptionalChild<CScanEngineEnforceLists> scanEngineEnforceLists_;
  OptionalChild<CScanEngineWhiteLists> scanEngineWhiteLists_;
};

class CClientRequestHeader final : public Node<CClientRequestHeader, IClientRequestHeader> {
 public:
  static const Schema kSchema;

  const std::wstring& GetHeaderName() const override { return headerName_; }
  ConfigResult SetHeaderName(const std::wstring* value) override {
    return SetRequired(headerName_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring headerName_;
};

class CContentUploadSetting final : public Node<CContentUploadSetting, IContentUploadSetting> {
 public:
  static const Schema kSchema;

  ConfigResult GetContentUpload(DWORD* out) const override { return contentUpload_.Get(out); }
  ConfigResult SetContentUpload(const DWORD* value) override { return contentUpload_.Set(value); }
  DWORD GetMaxSizeForScan() const override { return maxSizeForScan_; }
  ConfigResult SetMaxSizeForScan(const DWORD* value) override {
    return SetRequired(maxSizeForScan_, value);
  }
  ConfigResult GetFileTypesToBlock(std::wstring* out) const override {
    return fileTypesToBlock_.Get(out);
  }
  ConfigResult SetFileTypesToBlock(const std::wstring* value) override {
    return fileTypesToBlock_.Set(value);
  }
  ConfigResult GetFileTypesToScan(std::wstring* out) const override {
    return fileTypesToScan_.Get(out);
  }
  ConfigResult SetFileTypesToScan(const std::wstring* value) override {
    return fileTypesToScan_.Set(value);
  }
  DWORD GetClientRequestHeaderCount() const override { return clientRequestHeaders_.Count(); }
  IClientRequestHeader* GetClientRequestHeaderAt(DWORD index) override {
    return clientRequestHeaders_.At(index);
  }
  ConfigResult AddClientRequestHeader(const IClientRequestHeader* item) override {
    return clientRequestHeaders_.Add(item);
  }
  ConfigResult InsertClientRequestHeaderAt(DWORD index, const IClientRequestHeader* item) override {
    return clientRequestHeaders_.InsertAt(index, item);
  }
  void RemoveClientRequestHeaderAt(DWORD index) override { clientRequestHeaders_.RemoveAt(index); }
  void RemoveAllClientRequestHeader() override { clientRequestHeaders_.RemoveAll(); }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> contentUpload_;
  DWORD maxSizeForScan_ = 0;
  Optional<std::wstring> fileTypesToBlock_;
  Optional<std::wstring> fileTypesToScan_;
  ChildList<CClientRequestHeader> clientRequestHeaders_;
};

class CScanEngineConfiguration final
    : public Node<CScanEngineConfiguration, IScanEngineConfiguration> {
 public:
  static const Schema kSchema;

  IScanEngineBasicSetting* GetScanEngineBasicSetting() override { return &scanEngineBasicSetting_; }
  ConfigResult SetScanEngineBasicSetting(const IScanEngineBasicSetting* child) override {
    return SetRequiredChild(scanEngineBasicSetting_, child);
  }
  IScanEngineSSLSetting* GetScanEngineSSLSetting() override { return &scanEngineSSLSetting_; }
  ConfigResult SetScanEngineSSLSetting(const IScanEngineSSLSetting* child) override {
    return SetRequiredChild(scanEngineSSLSetting_, child);
  }
  IScanSetting* GetScanSetting() override { return &scanSetting_; }
  ConfigResult SetScanSetting(const IScanSetting* child) override {
    return SetRequiredChild(scanSetting_, child);
  }
  IContentUploadSetting* GetContentUploadSetting() override { return &contentUploadSetting_; }
  ConfigResult SetContentUploadSetting(const IContentUploadSetting* child) override {
    return SetRequiredChild(contentUploadSetting_, child);
  }

 private:
  static const Child kChildren[];

  CScanEngineBasicSetting scanEngineBasicSetting_;
  CScanEngineSSLSetting scanEngineSSLSetting_;
  CScanSetting scanSetting_;
  CContentUploadSetting contentUploadSetting_;
};

}  // namespace NGConfInterface
