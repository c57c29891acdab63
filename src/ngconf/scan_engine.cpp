#include "ngconf/scan_engine.h"

namespace NGConfInterface {

constinit const Attribute CScanEngineBasicSetting::kAttributes[] = {
    Attr<&CScanEngineBasicSetting::enableSSLProxy_>(L"EnableSSLProxy"),
    Attr<&CScanEngineBasicSetting::enableThreatScan_>(L"EnableThreatScan"),
    Attr<&CScanEngineBasicSetting::enableURLLocalCache_>(L"EnableURLLocalCache"),
    Attr<&CScanEngineBasicSetting::enableWebsiteVerification_>(L"EnableWebsiteVerification"),
    Attr<&CScanEngineBasicSetting::inspectHostnameOnly_>(L"InspectHostnameOnly"),
    Attr<&CScanEngineBasicSetting::localNonSSLRedirPort_>(L"LocalNonSSLRedirPort"),
    Attr<&CScanEngineBasicSetting::localSSLRedirPort_>(L"LocalSSLRedirPort"),
    Attr<&CScanEngineBasicSetting::ignoreInvalidCertificate_>(L"IgnoreInvalidCertificate"),
    Attr<&CScanEngineBasicSetting::statsPeriod_>(L"StatsPeriod"),
    Attr<&CScanEngineBasicSetting::sslStandbyDecryption_>(L"SSLStandbyDecryption"),
};
constinit const Schema CScanEngineBasicSetting::kSchema = {
    .element = L"ScanEngineBasicSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CScanEngineSSLSetting::kAttributes[] = {
    Attr<&CScanEngineSSLSetting::crlFileName_>(L"CRLFileName"),
    Attr<&CScanEngineSSLSetting::clientCerFileName_>(L"ClientCerFileName"),
    Attr<&CScanEngineSSLSetting::rootCAFileName_>(L"RootCAFileName"),
    Attr<&CScanEngineSSLSetting::rootDN_>(L"RootDN"),
    Attr<&CScanEngineSSLSetting::serverCerFileName_>(L"ServerCerFileName"),
    Attr<&CScanEngineSSLSetting::serverCertSubject_>(L"ServerCertSubject"),
};
constinit const Schema CScanEngineSSLSetting::kSchema = {
    .element = L"ScanEngineSSLSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CIPNode::kAttributes[] = {
    Attr<&CIPNode::ipRange_>(L"IPRange"),
    Attr<&CIPNode::portNumber_>(L"PortNumber"),
};
constinit const Schema CIPNode::kSchema = {
    .element = L"IPNode",
    .dialect = kDialect,
    .attributes = kAttributes,
};

template <class C, class I>
constinit const Child NetworkLists<C, I>::kChildren[] = {
    Elem<&NetworkLists::ipNodes_>(L"IPNode"),
};

constinit const Attribute CScanEngineEnforceLists::kAttributes[] = {
    Attr<&CScanEngineEnforceLists::domainLists_>(L"DomainLists"),
    Attr<&CScanEngineEnforceLists::processNames_>(L"ProcessNames"),
};
constinit const Schema CScanEngineEnforceLists::kSchema = {
    .element = L"ScanEngineEnforceLists",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CScanEngineWhiteLists::kAttributes[] = {
    Attr<&CScanEngineWhiteLists::domainLists_>(L"DomainLists"),
    Attr<&CScanEngineWhiteLists::processNames_>(L"ProcessNames"),
    Attr<&CScanEngineWhiteLists::vpnDescList_>(L"VPNDescList"),
    Attr<&CScanEngineWhiteLists::sniHostList_>(L"SNIHostList"),
};
constinit const Schema CScanEngineWhiteLists::kSchema = {
    .element = L"ScanEngineWhiteLists",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CScanSetting::kAttributes[] = {
    Attr<&CScanSetting::context_>(L"Context"),
    Attr<&CScanSetting::dispServerHostname_>(L"DispServerHostname"),
    Attr<&CScanSetting::enableDetectHybrid_>(L"EnableDetectHybrid"),
    Attr<&CScanSetting::hybridModeDetectString_>(L"HybridModeDetectString"),
    Attr<&CScanSetting::enableFailureOpen_>(L"EnableFailureOpen"),
    Attr<&CScanSetting::maxConnectionsPerServer_>(L"MaxConnectionsPerServer"),
    Attr<&CScanSetting::userAgent_>(L"UserAgent"),
    Attr<&CScanSetting::enforceProxyServer_>(L"EnforceProxyServer"),
    Attr<&CScanSetting::bypassPrivateIP_>(L"BypassPrivateIP"),
    Attr<&CScanSetting::bypassLocalIP_>(L"BypassLocalIP"),
    Attr<&CScanSetting::bypassPlainHostName_>(L"BypassPlainHostName"),
};
constinit const Child CScanSetting::kChildren[] = {
    Elem<&CScanSetting::scanEngineEnforceLists_>(L"ScanEngineEnforceLists"),
    Elem<&CScanSetting::scanEngineWhiteLists_>(L"ScanEngineWhiteLists"),
};
constinit const Schema CScanSetting::kSchema = {
    .element = L"ScanSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CClientRequestHeader::kAttributes[] = {
    Attr<&CClientRequestHeader::headerName_>(L"HeaderName"),
};
constinit const Schema CClientRequestHeader::kSchema = {
    .element = L"ClientRequestHeader",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CContentUploadSetting::kAttributes[] = {
    Attr<&CContentUploadSetting::contentUpload_>(L"ContentUpload"),
    Attr<&CContentUploadSetting::maxSizeForScan_>(L"MaxSizeForScan"),
    Attr<&CContentUploadSetting::fileTypesToBlock_>(L"FileTypesToBlock"),
    Attr<&CContentUploadSetting::fileTypesToScan_>(L"FileTypesToScan"),
};
constinit const Child CContentUploadSetting::kChildren[] = {
    Elem<&CContentUploadSetting::clientRequestHeaders_>(L"ClientRequestHeader"),
};
constinit const Schema CContentUploadSetting::kSchema = {
    .element = L"ContentUploadSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Child CScanEngineConfiguration::kChildren[] = {
    Elem<&CScanEngineConfiguration::scanEngineBasicSetting_>(L"ScanEngineBasicSetting"),
    Elem<&CScanEngineConfiguration::scanEngineSSLSetting_>(L"ScanEngineSSLSetting"),
    Elem<&CScanEngineConfiguration::scanSetting_>(L"ScanSetting"),
    Elem<&CScanEngineConfiguration::contentUploadSetting_>(L"ContentUploadSetting"),
};
constinit const Schema CScanEngineConfiguration::kSchema = {
    .element = L"ScanEngineConfiguration",
    .dialect = kDialect,
    .children = kChildren,
};

}  // namespace NGConfInterface
