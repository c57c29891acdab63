#include "rfconf/client_configuration.h"

namespace RFConfInterface {

constexpr Attribute kRFServerAttributes[] = {
    Attr<&CRFServer::hostName_>(L"HostName").NamesItem(),
    Attr<&CRFServer::portNumber_>(L"PortNumber").NamesItem(),
};
constinit const Schema CRFServer::kSchema = Checked({
    .element = L"RFServer",
    .dialect = kDialect,
    .attributes = kRFServerAttributes,
});

template <class C>
constexpr Child kRFServerListChildren[] = {
    Elem<&C::rfServers_>(L"RFServer"),
};

constinit const Schema CInternalRFServerArray::kSchema = Checked({
    .element = L"InternalRFServerArray",
    .dialect = kDialect,
    .children = kRFServerListChildren<CInternalRFServerArray>,
});

constinit const Schema CExternalRFServerArray::kSchema = Checked({
    .element = L"ExternalRFServerArray",
    .dialect = kDialect,
    .children = kRFServerListChildren<CExternalRFServerArray>,
});

constexpr Attribute kInternalConnectionAttributes[] = {
    Attr<&CInternalConnection::heartbeatRetryInterval_>(L"HeartbeatRetryInterval"),
};
constexpr Child kInternalConnectionChildren[] = {
    Elem<&CInternalConnection::internalRFServerArray_>(L"InternalRFServerArray"),
};
constinit const Schema CInternalConnection::kSchema = Checked({
    .element = L"InternalConnection",
    .dialect = kDialect,
    .attributes = kInternalConnectionAttributes,
    .children = kInternalConnectionChildren,
});

constexpr Attribute kExternalConnectionAttributes[] = {
    Attr<&CExternalConnection::heartbeatRetryInterval_>(L"HeartbeatRetryInterval"),
    Attr<&CExternalConnection::failClosed_>(L"FailClosed"),
    Attr<&CExternalConnection::failClosedTimeout_>(L"FailClosedTimeout"),
    Attr<&CExternalConnection::filterHTTPS_>(L"FilterHTTPS"),
    Attr<&CExternalConnection::filterFTP_>(L"FilterFTP"),
    Attr<&CExternalConnection::urlLookupAndLog_>(L"URLLookupAndLog"),
};
constexpr Child kExternalConnectionChildren[] = {
    Elem<&CExternalConnection::externalRFServerArray_>(L"ExternalRFServerArray"),
};
constinit const Schema CExternalConnection::kSchema = Checked({
    .element = L"ExternalConnection",
    .dialect = kDialect,
    .attributes = kExternalConnectionAttributes,
    .children = kExternalConnectionChildren,
});

constexpr Child kConnectionChildren[] = {
    Elem<&CConnection::internalConnection_>(L"InternalConnection"),
    Elem<&CConnection::externalConnection_>(L"ExternalConnection"),
};
constinit const Schema CConnection::kSchema = Checked({
    .element = L"Connection",
    .dialect = kDialect,
    .children = kConnectionChildren,
});

constexpr Attribute kUserInterfaceAttributes[] = {
    Attr<&CUserInterface::uiSilentMode_>(L"UISilentMode"),
    Attr<&CUserInterface::uiTimeout_>(L"UITimeout"),
};
constinit const Schema CUserInterface::kSchema = Checked({
    .element = L"UserInterface",
    .dialect = kDialect,
    .attributes = kUserInterfaceAttributes,
});

constexpr Attribute kClientSettingAttributes[] = {
    Attr<&CClientSetting::enableTamperProtection_>(L"EnableTamperProtection"),
    Attr<&CClientSetting::enableTelemetry_>(L"EnableTelemetry")
        .MayBeAbsent()
        .ReadReport(kReadEnableTelemetry),
    Attr<&CClientSetting::disableFiltering_>(L"DisableFiltering"),
    Attr<&CClientSetting::adminPasswordHash_>(L"AdminPasswordHash").Secret(),
};
constexpr Child kClientSettingChildren[] = {
    Elem<&CClientSetting::userInterface_>(L"UserInterface"),
};
constinit const Schema CClientSetting::kSchema = Checked({
    .element = L"ClientSetting",
    .dialect = kDialect,
    .attributes = kClientSettingAttributes,
    .children = kClientSettingChildren,
});

constexpr Attribute kRFURLConditionAttributes[] = {
    Attr<&CRFURLCondition::siteURL_>(L"SiteURL").NamesItem(),
};
constinit const Schema CRFURLCondition::kSchema = Checked({
    .element = L"RFURLCondition",
    .dialect = kDialect,
    .attributes = kRFURLConditionAttributes,
});

constexpr Child kRFTrustedSitesChildren[] = {
    Elem<&CRFTrustedSites::rfURLConditions_>(L"RFURLCondition"),
};
constinit const Schema CRFTrustedSites::kSchema = Checked({
    .element = L"RFTrustedSites",
    .dialect = kDialect,
    .children = kRFTrustedSitesChildren,
});

constexpr Child kRFClientConfigurationChildren[] = {
    Elem<&CRFClientConfiguration::connection_>(L"Connection"),
    Elem<&CRFClientConfiguration::clientSetting_>(L"ClientSetting").AbsenceReportedFirst(),
    Elem<&CRFClientConfiguration::rfTrustedSites_>(L"RFTrustedSites"),
};
constinit const Schema CRFClientConfiguration::kSchema = Checked({
    .element = L"IRFClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentityAttributes<CRFClientConfiguration>,
    .children = kRFClientConfigurationChildren,
});

}  // namespace RFConfInterface
