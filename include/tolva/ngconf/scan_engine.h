// The local web scan engine of the NG client configuration. The library does not interpret numbers,
// lists and file names; the agent defines their units and formats.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace NGConfInterface {

/// Element `ScanEngineBasicSetting`: the switches and ports of the scan engine.
class IScanEngineBasicSetting : public tolva::node::INode {
 public:
  virtual IScanEngineBasicSetting& CopyFrom(const IScanEngineBasicSetting& other) = 0;

  /// `EnableSSLProxy`: 1 if the SSL proxy is enabled, 0 if not. Required.
  virtual DWORD GetEnableSSLProxy() const = 0;
  virtual ConfigResult SetEnableSSLProxy(const DWORD* value) = 0;

  /// `EnableThreatScan`: 1 if traffic is scanned for threats, 0 if not. Required.
  virtual DWORD GetEnableThreatScan() const = 0;
  virtual ConfigResult SetEnableThreatScan(const DWORD* value) = 0;

  /// `EnableURLLocalCache`: 1 if the local cache of URLs is enabled, 0 if not. Required.
  virtual DWORD GetEnableURLLocalCache() const = 0;
  virtual ConfigResult SetEnableURLLocalCache(const DWORD* value) = 0;

  /// `EnableWebsiteVerification`: 1 if the verification of web sites is enabled, 0 if not.
  /// Required.
  virtual DWORD GetEnableWebsiteVerification() const = 0;
  virtual ConfigResult SetEnableWebsiteVerification(const DWORD* value) = 0;

  /// `InspectHostnameOnly`: 1 if only host names are inspected, 0 if not. Required.
  virtual DWORD GetInspectHostnameOnly() const = 0;
  virtual ConfigResult SetInspectHostnameOnly(const DWORD* value) = 0;

  /// `LocalNonSSLRedirPort`: the number of the local port to which traffic without SSL is
  /// redirected. Required.
  virtual DWORD GetLocalNonSSLRedirPort() const = 0;
  virtual ConfigResult SetLocalNonSSLRedirPort(const DWORD* value) = 0;

  /// `LocalSSLRedirPort`: the number of the local port to which SSL traffic is redirected.
  /// Required.
  virtual DWORD GetLocalSSLRedirPort() const = 0;
  virtual ConfigResult SetLocalSSLRedirPort(const DWORD* value) = 0;

  /// `IgnoreInvalidCertificate`: 1 if invalid certificates are ignored, 0 if not. Optional.
  virtual ConfigResult GetIgnoreInvalidCertificate(DWORD* out) const = 0;
  virtual ConfigResult SetIgnoreInvalidCertificate(const DWORD* value) = 0;

  /// `StatsPeriod`: the period of the statistics. Optional.
  virtual ConfigResult GetStatsPeriod(DWORD* out) const = 0;
  virtual ConfigResult SetStatsPeriod(const DWORD* value) = 0;

  /// `SSLStandbyDecryption`: 1 if SSL standby decryption is enabled, 0 if not. Optional.
  virtual ConfigResult GetSSLStandbyDecryption(DWORD* out) const = 0;
  virtual ConfigResult SetSSLStandbyDecryption(const DWORD* value) = 0;
};

/// Element `ScanEngineSSLSetting`: the certificates that are used to intercept TLS traffic.
class IScanEngineSSLSetting : public tolva::node::INode {
 public:
  virtual IScanEngineSSLSetting& CopyFrom(const IScanEngineSSLSetting& other) = 0;

  /// `CRLFileName`: the file name of the certificate revocation list. Required.
  virtual const std::wstring& GetCRLFileName() const = 0;
  virtual ConfigResult SetCRLFileName(const std::wstring* value) = 0;

  /// `ClientCerFileName`: the file name of the client certificate. Required.
  virtual const std::wstring& GetClientCerFileName() const = 0;
  virtual ConfigResult SetClientCerFileName(const std::wstring* value) = 0;

  /// `RootCAFileName`: the file name of the root CA certificate. Required.
  virtual const std::wstring& GetRootCAFileName() const = 0;
  virtual ConfigResult SetRootCAFileName(const std::wstring* value) = 0;

  /// `RootDN`: the distinguished name of the root certificate. Required.
  virtual const std::wstring& GetRootDN() const = 0;
  virtual ConfigResult SetRootDN(const std::wstring* value) = 0;

  /// `ServerCerFileName`: the file name of the server certificate. Required.
  virtual const std::wstring& GetServerCerFileName() const = 0;
  virtual ConfigResult SetServerCerFileName(const std::wstring* value) = 0;

  /// `ServerCertSubject`: the subject of the server certificate. Required.
  virtual const std::wstring& GetServerCertSubject() const = 0;
  virtual ConfigResult SetServerCertSubject(const std::wstring* value) = 0;
};

/// Element `IPNode`: a range of IP addresses with their ports.
class IIPNode : public tolva::node::INode {
 public:
  virtual IIPNode& CopyFrom(const IIPNode& other) = 0;

  /// `IPRange`: the range of IP addresses. Required.
  virtual const std::wstring& GetIPRange() const = 0;
  virtual ConfigResult SetIPRange(const std::wstring* value) = 0;

  /// `PortNumber`: the ports, as text. The text is not validated. Required.
  virtual const std::wstring& GetPortNumber() const = 0;
  virtual ConfigResult SetPortNumber(const std::wstring* value) = 0;
};

/// Element `ScanEngineEnforceLists`: the traffic that is always scanned.
class IScanEngineEnforceLists : public tolva::node::INode {
 public:
  virtual IScanEngineEnforceLists& CopyFrom(const IScanEngineEnforceLists& other) = 0;

  /// `DomainLists`: the domains, as one text. Optional.
  virtual ConfigResult GetDomainLists(std::wstring* out) const = 0;
  virtual ConfigResult SetDomainLists(const std::wstring* value) = 0;

  /// `ProcessNames`: the names of the processes, as one text. Optional.
  virtual ConfigResult GetProcessNames(std::wstring* out) const = 0;
  virtual ConfigResult SetProcessNames(const std::wstring* value) = 0;

  /// `IPNode`: a range of IP addresses with their ports. Repeated.
  virtual DWORD GetIPNodeCount() const = 0;
  virtual IIPNode* GetIPNodeAt(DWORD index) = 0;
  virtual ConfigResult AddIPNode(const IIPNode* item) = 0;
  virtual ConfigResult InsertIPNodeAt(DWORD index, const IIPNode* item) = 0;
  virtual void RemoveIPNodeAt(DWORD index) = 0;
  virtual void RemoveAllIPNode() = 0;
};

/// Element `ScanEngineWhiteLists`: the traffic that is never scanned.
class IScanEngineWhiteLists : public tolva::node::INode {
 public:
  virtual IScanEngineWhiteLists& CopyFrom(const IScanEngineWhiteLists& other) = 0;

  /// `DomainLists`: the domains, as one text. Optional.
  virtual ConfigResult GetDomainLists(std::wstring* out) const = 0;
  virtual ConfigResult SetDomainLists(const std::wstring* value) = 0;

  /// `ProcessNames`: the names of the processes, as one text. Optional.
  virtual ConfigResult GetProcessNames(std::wstring* out) const = 0;
  virtual ConfigResult SetProcessNames(const std::wstring* value) = 0;

  /// `VPNDescList`: the descriptions of VPNs, as one text. Optional.
  virtual ConfigResult GetVPNDescList(std::wstring* out) const = 0;
  virtual ConfigResult SetVPNDescList(const std::wstring* value) = 0;

  /// `SNIHostList`: the SNI host names, as one text. Optional.
  virtual ConfigResult GetSNIHostList(std::wstring* out) const = 0;
  virtual ConfigResult SetSNIHostList(const std::wstring* value) = 0;

  /// `IPNode`: a range of IP addresses with their ports. Repeated.
  virtual DWORD GetIPNodeCount() const = 0;
  virtual IIPNode* GetIPNodeAt(DWORD index) = 0;
  virtual ConfigResult AddIPNode(const IIPNode* item) = 0;
  virtual ConfigResult InsertIPNodeAt(DWORD index, const IIPNode* item) = 0;
  virtual void RemoveIPNodeAt(DWORD index) = 0;
  virtual void RemoveAllIPNode() = 0;
};

/// Element `ScanSetting`: how traffic is scanned.
class IScanSetting : public tolva::node::INode {
 public:
  virtual IScanSetting& CopyFrom(const IScanSetting& other) = 0;

  /// `Context`. Required.
  virtual const std::wstring& GetContext() const = 0;
  virtual ConfigResult SetContext(const std::wstring* value) = 0;

  /// `DispServerHostname`: the host name of a server. Required.
  virtual const std::wstring& GetDispServerHostname() const = 0;
  virtual ConfigResult SetDispServerHostname(const std::wstring* value) = 0;

  /// `EnableDetectHybrid`: 1 if the detection of hybrid mode is enabled, 0 if not. Optional.
  virtual ConfigResult GetEnableDetectHybrid(DWORD* out) const = 0;
  virtual ConfigResult SetEnableDetectHybrid(const DWORD* value) = 0;

  /// `HybridModeDetectString`: the text by which hybrid mode is detected. Optional.
  virtual ConfigResult GetHybridModeDetectString(std::wstring* out) const = 0;
  virtual ConfigResult SetHybridModeDetectString(const std::wstring* value) = 0;

  /// `EnableFailureOpen`: 1 if the engine fails open, 0 if not. Required.
  virtual DWORD GetEnableFailureOpen() const = 0;
  virtual ConfigResult SetEnableFailureOpen(const DWORD* value) = 0;

  /// `MaxConnectionsPerServer`: the largest number of connections to one server. Required.
  virtual DWORD GetMaxConnectionsPerServer() const = 0;
  virtual ConfigResult SetMaxConnectionsPerServer(const DWORD* value) = 0;

  /// `UserAgent`: the user agent that the engine sends in its requests. Required.
  virtual const std::wstring& GetUserAgent() const = 0;
  virtual ConfigResult SetUserAgent(const std::wstring* value) = 0;

  /// `EnforceProxyServer`: 1 if the use of the proxy server is enforced, 0 if not. Optional.
  virtual ConfigResult GetEnforceProxyServer(DWORD* out) const = 0;
  virtual ConfigResult SetEnforceProxyServer(const DWORD* value) = 0;

  /// `BypassPrivateIP`: 1 if traffic to private IP addresses bypasses the scan, 0 if not. Optional.
  virtual ConfigResult GetBypassPrivateIP(DWORD* out) const = 0;
  virtual ConfigResult SetBypassPrivateIP(const DWORD* value) = 0;

  /// `BypassLocalIP`: 1 if traffic to local IP addresses bypasses the scan, 0 if not. Optional.
  virtual ConfigResult GetBypassLocalIP(DWORD* out) const = 0;
  virtual ConfigResult SetBypassLocalIP(const DWORD* value) = 0;

  /// `BypassPlainHostName`: 1 if traffic to plain host names bypasses the scan, 0 if not. Optional.
  virtual ConfigResult GetBypassPlainHostName(DWORD* out) const = 0;
  virtual ConfigResult SetBypassPlainHostName(const DWORD* value) = 0;

  /// `ScanEngineEnforceLists`: the traffic that is always scanned. Optional.
  virtual ConfigResult GetScanEngineEnforceLists(IScanEngineEnforceLists** out) = 0;
  virtual ConfigResult SetScanEngineEnforceLists(const IScanEngineEnforceLists* child) = 0;

  /// `ScanEngineWhiteLists`: the traffic that is never scanned. Optional.
  virtual ConfigResult GetScanEngineWhiteLists(IScanEngineWhiteLists** out) = 0;
  virtual ConfigResult SetScanEngineWhiteLists(const IScanEngineWhiteLists* child) = 0;
};

/// Element `ClientRequestHeader`: a header of client requests.
class IClientRequestHeader : public tolva::node::INode {
 public:
  virtual IClientRequestHeader& CopyFrom(const IClientRequestHeader& other) = 0;

  /// `HeaderName`: the name of the header. Required.
  virtual const std::wstring& GetHeaderName() const = 0;
  virtual ConfigResult SetHeaderName(const std::wstring* value) = 0;
};

/// Element `ContentUploadSetting`: the content that is uploaded for scanning.
class IContentUploadSetting : public tolva::node::INode {
 public:
  virtual IContentUploadSetting& CopyFrom(const IContentUploadSetting& other) = 0;

  /// `ContentUpload`: 1 if content is uploaded, 0 if not. Optional.
  virtual ConfigResult GetContentUpload(DWORD* out) const = 0;
  virtual ConfigResult SetContentUpload(const DWORD* value) = 0;

  /// `MaxSizeForScan`: the largest size of the content to scan. Required.
  virtual DWORD GetMaxSizeForScan() const = 0;
  virtual ConfigResult SetMaxSizeForScan(const DWORD* value) = 0;

  /// `FileTypesToBlock`: the file types to block, as one text. Optional.
  virtual ConfigResult GetFileTypesToBlock(std::wstring* out) const = 0;
  virtual ConfigResult SetFileTypesToBlock(const std::wstring* value) = 0;

  /// `FileTypesToScan`: the file types to scan, as one text. Optional.
  virtual ConfigResult GetFileTypesToScan(std::wstring* out) const = 0;
  virtual ConfigResult SetFileTypesToScan(const std::wstring* value) = 0;

  /// `ClientRequestHeader`: a header of client requests. Repeated.
  virtual DWORD GetClientRequestHeaderCount() const = 0;
  virtual IClientRequestHeader* GetClientRequestHeaderAt(DWORD index) = 0;
  virtual ConfigResult AddClientRequestHeader(const IClientRequestHeader* item) = 0;
  virtual ConfigResult InsertClientRequestHeaderAt(DWORD index,
                                                   const IClientRequestHeader* item) = 0;
  virtual void RemoveClientRequestHeaderAt(DWORD index) = 0;
  virtual void RemoveAllClientRequestHeader() = 0;
};

/// Element `ScanEngineConfiguration`: the settings of the local web scan engine.
class IScanEngineConfiguration : public tolva::node::INode {
 public:
  virtual IScanEngineConfiguration& CopyFrom(const IScanEngineConfiguration& other) = 0;

  /// `ScanEngineBasicSetting`: the switches and ports of the engine. Required.
  virtual IScanEngineBasicSetting* GetScanEngineBasicSetting() = 0;
  virtual ConfigResult SetScanEngineBasicSetting(const IScanEngineBasicSetting* child) = 0;

  /// `ScanEngineSSLSetting`: the certificates that are used to intercept TLS traffic. Required.
  virtual IScanEngineSSLSetting* GetScanEngineSSLSetting() = 0;
  virtual ConfigResult SetScanEngineSSLSetting(const IScanEngineSSLSetting* child) = 0;

  /// `ScanSetting`: how traffic is scanned. Required.
  virtual IScanSetting* GetScanSetting() = 0;
  virtual ConfigResult SetScanSetting(const IScanSetting* child) = 0;

  /// `ContentUploadSetting`: the content that is uploaded for scanning. Required.
  virtual IContentUploadSetting* GetContentUploadSetting() = 0;
  virtual ConfigResult SetContentUploadSetting(const IContentUploadSetting* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IScanEngineBasicSetting* ScanEngineBasicSetting_CreateNewInstance();
TOLVA_API IScanEngineSSLSetting* ScanEngineSSLSetting_CreateNewInstance();
TOLVA_API IIPNode* IPNode_CreateNewInstance();
TOLVA_API IScanEngineEnforceLists* ScanEngineEnforceLists_CreateNewInstance();
TOLVA_API IScanEngineWhiteLists* ScanEngineWhiteLists_CreateNewInstance();
TOLVA_API IScanSetting* ScanSetting_CreateNewInstance();
TOLVA_API IClientRequestHeader* ClientRequestHeader_CreateNewInstance();
TOLVA_API IContentUploadSetting* ContentUploadSetting_CreateNewInstance();
TOLVA_API IScanEngineConfiguration* ScanEngineConfiguration_CreateNewInstance();

}  // namespace NGConfInterface
