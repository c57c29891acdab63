#include "ngconf/scan_engine.h"

namespace NGConfInterface {

constexpr Attribute kScanEngineBasicSettingAttributes[] = {
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
constinit const Schema CScanEngineBasicSetting::kSchema = Checked({
    .element = L"ScanEngineBasicSetting",
    .dialect = kDialect,
    .attributes = kScanEngineBasicSettingAttributes,
});

constexpr Attribute kScanEngineSSLSettingAttributes[] = {
    Attr<&CScanEngineSSLSetting::crlFileName_>(L"CRLFileName"),
    Attr<&CScanEngineSSLSetting::clientCerFileName_>(L"ClientCerFileName"),
    Attr<&CScanEngineSSLSetting::rootCAFileName_>(L"RootCAFileName"),
    Attr<&CScanEngineSSLSetting::rootDN_>(L"RootDN"),
    Attr<&CScanEngineSSLSetting::serverCerFileName_>(L"ServerCerFileName"),
    Attr<&CScanEngineSSLSetting::serverCertSubject_>(L"ServerCertSubject"),
};
constinit const Schema CScanEngineSSLSetting::kSchema = Checked({
    .element = L"ScanEngineSSLSetting",
    .dialect = kDialect,
    .attributes = kScanEngineSSLSettingAttributes,
});

constexpr Attribute kIPNodeAttributes[] = {
    Attr<&CIPNode::ipRange_>(L"IPRange").NamesItem(),
    Attr<&CIPNode::portNumber_>(L"PortNumber").NamesItem(),
};
constinit const Schema CIPNode::kSchema = Checked({
    .element = L"IPNode",
    .dialect = kDialect,
    .attributes = kIPNodeAttributes,
});

template <class C>
constexpr Child kNetworkListsChildren[] = {
    Elem<&C::ipNodes_>(L"IPNode"),
};

constexpr Attribute kScanEngineEnforceListsAttributes[] = {
    Attr<&CScanEngineEnforceLists::domainLists_>(L"DomainLists"),
    Attr<&CScanEngineEnforceLists::processNames_>(L"ProcessNames"),
};
constinit const Schema CScanEngineEnforceLists::kSchema = Checked({
    .element = L"ScanEngineEnforceLists",
    .dialect = kDialect,
    .attributes = kScanEngineEnforceListsAttributes,
    .children = kNetworkListsChildren<CScanEngineEnforceLists>,
});

constexpr Attribute kScanEngineWhiteListsAttributes[] = {
    Attr<&CScanEngineWhiteLists::domainLists_>(L"DomainLists"),
    Attr<&CScanEngineWhiteLists::processNames_>(L"ProcessNames"),
    Attr<&CScanEngineWhiteLists::vpnDescList_>(L"VPNDescList"),
    Attr<&CScanEngineWhiteLists::sniHostList_>(L"SNIHostList"),
};
constinit const Schema CScanEngineWhiteLists::kSchema = Checked({
    .element = L"ScanEngineWhiteLists",
    .dialect = kDialect,
    .attributes = kScanEngineWhiteListsAttributes,
    .children = kNetworkListsChildren<CScanEngineWhiteLists>,
});

constexpr Attribute kScanSettingAttributes[] = {
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
constexpr Child kScanSettingChildren[] = {
    Elem<&CScanSetting::scanEngineEnforceLists_>(L"ScanEngineEnforceLists"),
    Elem<&CScanSetting::scanEngineWhiteLists_>(L"ScanEngineWhiteLists"),
};
constinit const Schema CScanSetting::kSchema = Checked({
    .element = L"ScanSetting",
    .dialect = kDialect,
    .attributes = kScanSettingAttributes,
    .children = kScanSettingChildren,
});

constexpr Attribute kClientRequestHeaderAttributes[] = {
    Attr<&CClientRequestHeader::headerName_>(L"HeaderName").NamesItem(),
};
constinit const Schema CClientRequestHeader::kSchema = Checked({
    .element = L"ClientRequestHeader",
    .dialect = kDialect,
    .attributes = kClientRequestHeaderAttributes,
});

constexpr Attribute kContentUploadSettingAttributes[] = {
    Attr<&CContentUploadSetting::contentUpload_>(L"ContentUpload"),
    Attr<&CContentUploadSetting::maxSizeForScan_>(L"MaxSizeForScan"),
    Attr<&CContentUploadSetting::fileTypesToBlock_>(L"FileTypesToBlock"),
    Attr<&CContentUploadSetting::fileTypesToScan_>(L"FileTypesToScan"),
};
constexpr Child kContentUploadSettingChildren[] = {
    Elem<&CContentUploadSetting::clientRequestHeaders_>(L"ClientRequestHeader"),
};
constinit const Schema CContentUploadSetting::kSchema = Checked({
    .element = L"ContentUploadSetting",
    .dialect = kDialect,
    .attributes = kContentUploadSettingAttributes,
    .children = kContentUploadSettingChildren,
});

constexpr Child kScanEngineConfigurationChildren[] = {
    Elem<&CScanEngineConfiguration::scanEngineBasicSetting_>(L"ScanEngineBasicSetting"),
    Elem<&CScanEngineConfiguration::scanEngineSSLSetting_>(L"ScanEngineSSLSetting"),
    Elem<&CScanEngineConfiguration::scanSetting_>(L"ScanSetting"),
    Elem<&CScanEngineConfiguration::contentUploadSetting_>(L"ContentUploadSetting"),
};
constinit const Schema CScanEngineConfiguration::kSchema = Checked({
    .element = L"ScanEngineConfiguration",
    .dialect = kDialect,
    .children = kScanEngineConfigurationChildren,
});

}  // namespace NGConfInterface
