// The classes of tolva/ngconf/scan_engine.h.
#pragma once

#include <tolva/ngconf/scan_engine.h>

#include <string>

#include "ngconf/document.h"
#include "node/accessors.h"

namespace NGConfInterface {

class CScanEngineBasicSetting final
    : public Node<CScanEngineBasicSetting, IScanEngineBasicSetting> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(EnableSSLProxy, enableSSLProxy_);
  TOLVA_NUMBER(EnableThreatScan, enableThreatScan_);
  TOLVA_NUMBER(EnableURLLocalCache, enableURLLocalCache_);
  TOLVA_NUMBER(EnableWebsiteVerification, enableWebsiteVerification_);
  TOLVA_NUMBER(InspectHostnameOnly, inspectHostnameOnly_);
  TOLVA_NUMBER(LocalNonSSLRedirPort, localNonSSLRedirPort_);
  TOLVA_NUMBER(LocalSSLRedirPort, localSSLRedirPort_);
  TOLVA_OPTIONAL(DWORD, IgnoreInvalidCertificate, ignoreInvalidCertificate_);
  TOLVA_OPTIONAL(DWORD, StatsPeriod, statsPeriod_);
  TOLVA_OPTIONAL(DWORD, SSLStandbyDecryption, sslStandbyDecryption_);
};

class CScanEngineSSLSetting final : public Node<CScanEngineSSLSetting, IScanEngineSSLSetting> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(CRLFileName, crlFileName_);
  TOLVA_STRING(ClientCerFileName, clientCerFileName_);
  TOLVA_STRING(RootCAFileName, rootCAFileName_);
  TOLVA_STRING(RootDN, rootDN_);
  TOLVA_STRING(ServerCerFileName, serverCerFileName_);
  TOLVA_STRING(ServerCertSubject, serverCertSubject_);
};

class CIPNode final : public Node<CIPNode, IIPNode> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(IPRange, ipRange_);
  TOLVA_STRING(PortNumber, portNumber_);
};

/// What the enforce list and the white list have in common.
template <class C, class I>
class NetworkLists : public Node<C, I> {
 public:
  TOLVA_OPTIONAL(std::wstring, DomainLists, domainLists_);
  TOLVA_OPTIONAL(std::wstring, ProcessNames, processNames_);
  TOLVA_CHILDREN(CIPNode, IPNode, ipNodes_);
};

class CScanEngineEnforceLists final
    : public NetworkLists<CScanEngineEnforceLists, IScanEngineEnforceLists> {
 public:
  static const Schema kSchema;
};

class CScanEngineWhiteLists final
    : public NetworkLists<CScanEngineWhiteLists, IScanEngineWhiteLists> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, VPNDescList, vpnDescList_);
  TOLVA_OPTIONAL(std::wstring, SNIHostList, sniHostList_);
};

class CScanSetting final : public Node<CScanSetting, IScanSetting> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(Context, context_);
  TOLVA_STRING(DispServerHostname, dispServerHostname_);
  TOLVA_OPTIONAL(DWORD, EnableDetectHybrid, enableDetectHybrid_);
  TOLVA_OPTIONAL(std::wstring, HybridModeDetectString, hybridModeDetectString_);
  TOLVA_NUMBER(EnableFailureOpen, enableFailureOpen_);
  TOLVA_NUMBER(MaxConnectionsPerServer, maxConnectionsPerServer_);
  TOLVA_STRING(UserAgent, userAgent_);
  TOLVA_OPTIONAL(DWORD, EnforceProxyServer, enforceProxyServer_);
  TOLVA_OPTIONAL(DWORD, BypassPrivateIP, bypassPrivateIP_);
  TOLVA_OPTIONAL(DWORD, BypassLocalIP, bypassLocalIP_);
  TOLVA_OPTIONAL(DWORD, BypassPlainHostName, bypassPlainHostName_);
  TOLVA_OPTIONAL_CHILD(CScanEngineEnforceLists, ScanEngineEnforceLists, scanEngineEnforceLists_);
  TOLVA_OPTIONAL_CHILD(CScanEngineWhiteLists, ScanEngineWhiteLists, scanEngineWhiteLists_);
};

class CClientRequestHeader final : public Node<CClientRequestHeader, IClientRequestHeader> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(HeaderName, headerName_);
};

class CContentUploadSetting final : public Node<CContentUploadSetting, IContentUploadSetting> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, ContentUpload, contentUpload_);
  TOLVA_NUMBER(MaxSizeForScan, maxSizeForScan_);
  TOLVA_OPTIONAL(std::wstring, FileTypesToBlock, fileTypesToBlock_);
  TOLVA_OPTIONAL(std::wstring, FileTypesToScan, fileTypesToScan_);
  TOLVA_CHILDREN(CClientRequestHeader, ClientRequestHeader, clientRequestHeaders_);
};

class CScanEngineConfiguration final
    : public Node<CScanEngineConfiguration, IScanEngineConfiguration> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CScanEngineBasicSetting, ScanEngineBasicSetting, scanEngineBasicSetting_);
  TOLVA_CHILD(CScanEngineSSLSetting, ScanEngineSSLSetting, scanEngineSSLSetting_);
  TOLVA_CHILD(CScanSetting, ScanSetting, scanSetting_);
  TOLVA_CHILD(CContentUploadSetting, ContentUploadSetting, contentUploadSetting_);
};

}  // namespace NGConfInterface
