// The local web scan engine of the NG client configuration.
//
// Units, lists and file names are the agent's; they are carried as they stand.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace NGConfInterface {

/// Element `ScanEngineBasicSetting`: the engine's switches and ports.
class IScanEngineBasicSetting : public tolva::node::INode {
 public:
  virtual IScanEngineBasicSetting& CopyFrom(const IScanEngineBasicSetting& other) = 0;

  /// `EnableSSLProxy`. Required.
  virtual DWORD GetEnableSSLProxy() const = 0;
  virtual ConfigResult SetEnableSSLProxy(const DWORD* value) = 0;

  /// `EnableThreatScan`. Required.
  virtual DWORD GetEnableThreatScan() const = 0;
  virtual ConfigResult SetEnableThreatScan(const DWORD* value) = 0;

  /// `EnableURLLocalCache`. Required.
  virtual DWORD GetEnableURLLocalCache() const = 0;
  virtual ConfigResult SetEnableURLLocalCache(const DWORD* value) = 0;

  /// `EnableWebsiteVerification`. Required.
  virtual DWORD GetEnableWebsiteVerification() const = 0;
  virtual ConfigResult SetEnableWebsiteVerification(const DWORD* value) = 0;

  /// `InspectHostnameOnly`. Required.
  virtual DWORD GetInspectHostnameOnly() const = 0;
  virtual ConfigResult SetInspectHostnameOnly(const DWORD* value) = 0;

  /// `LocalNonSSLRedirPort`: a port number. Required.
  virtual DWORD GetLocalNonSSLRedirPort() const = 0;
  virtual ConfigResult SetLocalNonSSLRedirPort(const DWORD* value) = 0;

  /// `LocalSSLRedirPort`: a port number. Required.
  virtual DWORD GetLocalSSLRedirPort() const = 0;
  virtual ConfigResult SetLocalSSLRedirPort(const DWORD* value) = 0;

  /// `IgnoreInvalidCertificate`. Optional.
  virtual ConfigResult GetIgnoreInvalidCertificate(DWORD* out) const = 0;
  virtual ConfigResult SetIgnoreInvalidCertificate(const DWORD* value) = 0;

  /// `StatsPeriod`. Optional.
  virtual ConfigResult GetStatsPeriod(DWORD* out) const = 0;
  virtual ConfigResult SetStatsPeriod(const DWORD* value) = 0;

  /// `SSLStandbyDecryption`. Optional.
  virtual ConfigResult GetSSLStandbyDecryption(DWORD* out) const = 0;
  virtual ConfigResult SetSSLStandbyDecryption(const DWORD* value) = 0;
};

/// Element `ScanEngineSSLSetting`: the certificates with which TLS is intercepted.
class IScanEngineSSLSetting : public tolva::node::INode {
 public:
  virtual IScanEngineSSLSetting& CopyFrom(const IScanEngineSSLSetting& other) = 0;

  /// `CRLFileName`. Required.
  virtual const std::wstring& GetCRLFileName() const = 0;
  virtual ConfigResult SetCRLFileName(const std::wstring* value) = 0;

  /// `ClientCerFileName`. Required.
  virtual const std::wstring& GetClientCerFileName() const = 0;
  virtual ConfigResult SetClientCerFileName(const std::wstring* value) = 0;

  /// `RootCAFileName`. Required.
  virtual const std::wstring& GetRootCAFileName() const = 0;
  virtual ConfigResult SetRootCAFileName(const std::wstring* value) = 0;

  /// `RootDN`. Required.
  virtual const std::wstring& GetRootDN() const = 0;
  virtual ConfigResult SetRootDN(const std::wstring* value) = 0;

  /// `ServerCerFileName`. Required.
  virtual const std::wstring& GetServerCerFileName() const = 0;
  virtual ConfigResult SetServerCerFileName(const std::wstring* value) = 0;

  /// `ServerCertSubject`. Required.
  virtual const std::wstring& GetServerCertSubject() const = 0;
  virtual ConfigResult SetServerCertSubject(const std::wstring* value) = 0;
};

/// Element `IPNode`: a range of addresses.
class IIPNode : public tolva::node::INode {
 public:
  virtual IIPNode& CopyFrom(const IIPNode& other) = 0;

  /// `IPRange`: the range. Required.
  virtual const std::wstring& GetIPRange() const = 0;
  virtual ConfigResult SetIPRange(const std::wstring* value) = 0;

  /// `PortNumber`: its ports, as text that is not checked. Required.
  virtual const std::wstring& GetPortNumber() const = 0;
  virtual ConfigResult SetPortNumber(const std::wstring* value) = 0;
};

/// Element `ScanEngineEnforceLists`: what is always scanned.
class IScanEngineEnforceLists : public tolva::node::INode {
 public:
  virtual IScanEngineEnforceLists& CopyFrom(const IScanEngineEnforceLists& other) = 0;

  /// `DomainLists`: domains, as one text. Optional.
  virtual ConfigResult GetDomainLists(std::wstring* out) const = 0;
  virtual ConfigResult SetDomainLists(const std::wstring* value) = 0;

  /// `ProcessNames`: processes, as one text. Optional.
  virtual ConfigResult GetProcessNames(std::wstring* out) const = 0;
  virtual ConfigResult SetProcessNames(const std::wstring* value) = 0;

  /// The IP ranges: children `IPNode`.
  virtual DWORD GetIPNodeCount() const = 0;
  virtual IIPNode* GetIPNodeAt(DWORD index) = 0;
  virtual ConfigResult AddIPNode(const IIPNode* item) = 0;
  virtual ConfigResult InsertIPNodeAt(DWORD index, const IIPNode* item) = 0;
  virtual void RemoveIPNodeAt(DWORD index) = 0;
  virtual void RemoveAllIPNode() = 0;
};

/// Element `ScanEngineWhiteLists`: what is never scanned.
class IScanEngineWhiteLists : public tolva::node::INode {
 public:
  virtual IScanEngineWhiteLists& CopyFrom(const IScanEngineWhiteLists& other) = 0;

  /// `DomainLists`: domains, as one text. Optional.
  virtual ConfigResult GetDomainLists(std::wstring* out) const = 0;
  virtual ConfigResult SetDomainLists(const std::wstring* value) = 0;

  /// `ProcessNames`: processes, as one text. Optional.
  virtual ConfigResult GetProcessNames(std::wstring* out) const = 0;
  virtual ConfigResult SetProcessNames(const std::wstring* value) = 0;

  /// `VPNDescList`: descriptions of VPNs, as one text. Optional.
  virtual ConfigResult GetVPNDescList(std::wstring* out) const = 0;
  virtual ConfigResult SetVPNDescList(const std::wstring* value) = 0;

  /// `SNIHostList`: host names, as one text. Optional.
  virtual ConfigResult GetSNIHostList(std::wstring* out) const = 0;
  virtual ConfigResult SetSNIHostList(const std::wstring* value) = 0;

  /// The IP ranges: children `IPNode`.
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

  /// `DispServerHostname`. Required.
  virtual const std::wstring& GetDispServerHostname() const = 0;
  virtual ConfigResult SetDispServerHostname(const std::wstring* value) = 0;

  /// `EnableDetectHybrid`. Optional.
  virtual ConfigResult GetEnableDetectHybrid(DWORD* out) const = 0;
  virtual ConfigResult SetEnableDetectHybrid(const DWORD* value) = 0;

  /// `HybridModeDetectString`. Optional.
  virtual ConfigResult GetHybridModeDetectString(std::wstring* out) const = 0;
  virtual ConfigResult SetHybridModeDetectString(const std::wstring* value) = 0;

  /// `EnableFailureOpen`. Required.
  virtual DWORD GetEnableFailureOpen() const = 0;
  virtual ConfigResult SetEnableFailureOpen(const DWORD* value) = 0;

  /// `MaxConnectionsPerServer`. Required.
  virtual DWORD GetMaxConnectionsPerServer() const = 0;
  virtual ConfigResult SetMaxConnectionsPerServer(const DWORD* value) = 0;

  /// `UserAgent`. Required.
  virtual const std::wstring& GetUserAgent() const = 0;
  virtual ConfigResult SetUserAgent(const std::wstring* value) = 0;

  /// `EnforceProxyServer`. Optional.
  virtual ConfigResult GetEnforceProxyServer(DWORD* out) const = 0;
  virtual ConfigResult SetEnforceProxyServer(const DWORD* value) = 0;

  /// `BypassPrivateIP`. Optional.
  virtual ConfigResult GetBypassPrivateIP(DWORD* out) const = 0;
  virtual ConfigResult SetBypassPrivateIP(const DWORD* value) = 0;

  /// `BypassLocalIP`. Optional.
  virtual ConfigResult GetBypassLocalIP(DWORD* out) const = 0;
  virtual ConfigResult SetBypassLocalIP(const DWORD* value) = 0;

  /// `BypassPlainHostName`. Optional.
  virtual ConfigResult GetBypassPlainHostName(DWORD* out) const = 0;
  virtual ConfigResult SetBypassPlainHostName(const DWORD* value) = 0;

  /// The child `ScanEngineEnforceLists`. Optional.
  virtual ConfigResult GetScanEngineEnforceLists(IScanEngineEnforceLists** out) = 0;
  virtual ConfigResult SetScanEngineEnforceLists(const IScanEngineEnforceLists* child) = 0;

  /// The child `ScanEngineWhiteLists`. Optional.
  virtual ConfigResult GetScanEngineWhiteLists(IScanEngineWhiteLists** out) = 0;
  virtual ConfigResult SetScanEngineWhiteLists(const IScanEngineWhiteLists* child) = 0;
};

/// Element `ClientRequestHeader`: a header of requests.
class IClientRequestHeader : public tolva::node::INode {
 public:
  virtual IClientRequestHeader& CopyFrom(const IClientRequestHeader& other) = 0;

  /// `HeaderName`: its name. Required.
  virtual const std::wstring& GetHeaderName() const = 0;
  virtual ConfigResult SetHeaderName(const std::wstring* value) = 0;
};

/// Element `ContentUploadSetting`: which content is uploaded for scanning.
class IContentUploadSetting : public tolva::node::INode {
 public:
  virtual IContentUploadSetting& CopyFrom(const IContentUploadSetting& other) = 0;

  /// `ContentUpload`. Optional.
  virtual ConfigResult GetContentUpload(DWORD* out) const = 0;
  virtual ConfigResult SetContentUpload(const DWORD* value) = 0;

  /// `MaxSizeForScan`. Required.
  virtual DWORD GetMaxSizeForScan() const = 0;
  virtual ConfigResult SetMaxSizeForScan(const DWORD* value) = 0;

  /// `FileTypesToBlock`: types, as one text. Optional.
  virtual ConfigResult GetFileTypesToBlock(std::wstring* out) const = 0;
  virtual ConfigResult SetFileTypesToBlock(const std::wstring* value) = 0;

  /// `FileTypesToScan`: types, as one text. Optional.
  virtual ConfigResult GetFileTypesToScan(std::wstring* out) const = 0;
  virtual ConfigResult SetFileTypesToScan(const std::wstring* value) = 0;

  /// Children `ClientRequestHeader`.
  virtual DWORD GetClientRequestHeaderCount() const = 0;
  virtual IClientRequestHeader* GetClientRequestHeaderAt(DWORD index) = 0;
  virtual ConfigResult AddClientRequestHeader(const IClientRequestHeader* item) = 0;
  virtual ConfigResult InsertClientRequestHeaderAt(DWORD index,
                                                   const IClientRequestHeader* item) = 0;
  virtual void RemoveClientRequestHeaderAt(DWORD index) = 0;
  virtual void RemoveAllClientRequestHeader() = 0;
};

/// Element `ScanEngineConfiguration`.
class IScanEngineConfiguration : public tolva::node::INode {
 public:
  virtual IScanEngineConfiguration& CopyFrom(const IScanEngineConfiguration& other) = 0;

  /// The child `ScanEngineBasicSetting`. Required.
  virtual IScanEngineBasicSetting* GetScanEngineBasicSetting() = 0;
  virtual ConfigResult SetScanEngineBasicSetting(const IScanEngineBasicSetting* child) = 0;

  /// The child `ScanEngineSSLSetting`. Required.
  virtual IScanEngineSSLSetting* GetScanEngineSSLSetting() = 0;
  virtual ConfigResult SetScanEngineSSLSetting(const IScanEngineSSLSetting* child) = 0;

  /// The child `ScanSetting`. Required.
  virtual IScanSetting* GetScanSetting() = 0;
  virtual ConfigResult SetScanSetting(const IScanSetting* child) = 0;

  /// The child `ContentUploadSetting`. Required.
  virtual IContentUploadSetting* GetContentUploadSetting() = 0;
  virtual ConfigResult SetContentUploadSetting(const IContentUploadSetting* child) = 0;
};

// Each makes a node with default values, which the caller owns.
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
