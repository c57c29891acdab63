#include "rfconf/client_configuration.h"

namespace RFConfInterface {

constinit const Attribute CRFServer::kAttributes[] = {
    Attr<&CRFServer::hostName_>(L"HostName"),
    Attr<&CRFServer::portNumber_>(L"PortNumber"),
};
constinit const Schema CRFServer::kSchema = {
    .element = L"RFServer",
    .dialect = kDialect,
    .attributes = kAttributes,
};

template <class C, class I>
constinit const Child RFServerList<C, I>::kChildren[] = {
    Elem<&RFServerList::rfServers_>(L"RFServer"),
};

constinit const Schema CInternalRFServerArray::kSchema = {
    .element = L"InternalRFServerArray",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Schema CExternalRFServerArray::kSchema = {
    .element = L"ExternalRFServerArray",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CInternalConnection::kAttributes[] = {
    Attr<&CInternalConnection::heartbeatRetryInterval_>(L"HeartbeatRetryInterval"),
};
constinit const Child CInternalConnection::kChildren[] = {
    Elem<&CInternalConnection::internalRFServerArray_>(L"InternalRFServerArray"),
};
constinit const Schema CInternalConnection::kSchema = {
    .element = L"InternalConnection",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CExternalConnection::kAttributes[] = {
    Attr<&CExternalConnection::heartbeatRetryInterval_>(L"HeartbeatRetryInterval"),
    Attr<&CExternalConnection::failClosed_>(L"FailClosed"),
    Attr<&CExternalConnection::failClosedTimeout_>(L"FailClosedTimeout"),
    Attr<&CExternalConnection::filterHTTPS_>(L"FilterHTTPS"),
    Attr<&CExternalConnection::filterFTP_>(L"FilterFTP"),
    Attr<&CExternalConnection::urlLookupAndLog_>(L"URLLookupAndLog"),
};
constinit const Child CExternalConnection::kChildren[] = {
    Elem<&CExternalConnection::externalRFServerArray_>(L"ExternalRFServerArray"),
};
constinit const Schema CExternalConnection::kSchema = {
    .element = L"ExternalConnection",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Child CConnection::kChildren[] = {
    Elem<&CConnection::internalConnection_>(L"InternalConnection"),
    Elem<&CConnection::externalConnection_>(L"ExternalConnection"),
};
constinit const Schema CConnection::kSchema = {
    .element = L"Connection",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CUserInterface::kAttributes[] = {
    Attr<&CUserInterface::uiSilentMode_>(L"UISilentMode"),
    Attr<&CUserInterface::uiTimeout_>(L"UITimeout"),
};
constinit const Schema CUserInterface::kSchema = {
    .element = L"UserInterface",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CClientSetting::kAttributes[] = {
    Attr<&CClientSetting::enableTamperProtection_>(L"EnableTamperProtection"),
    Attr<&CClientSetting::enableTelemetry_>(L"EnableTelemetry")
        .KeptWhenAbsent()
        .ReadFault(L"XMLManager: read dword/bool Attribute failed. element:ClientSetting, "
                   L"attr:EnableTelemetry"),
    Attr<&CClientSetting::disableFiltering_>(L"DisableFiltering"),
    Attr<&CClientSetting::adminPasswordHash_>(L"AdminPasswordHash"),
};
constinit const Child CClientSetting::kChildren[] = {
    Elem<&CClientSetting::userInterface_>(L"UserInterface"),
};
constinit const Schema CClientSetting::kSchema = {
    .element = L"ClientSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CRFURLCondition::kAttributes[] = {
    Attr<&CRFURLCondition::siteURL_>(L"SiteURL"),
};
constinit const Schema CRFURLCondition::kSchema = {
    .element = L"RFURLCondition",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CRFTrustedSites::kChildren[] = {
    Elem<&CRFTrustedSites::rfURLConditions_>(L"RFURLCondition"),
};
constinit const Schema CRFTrustedSites::kSchema = {
    .element = L"RFTrustedSites",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Child CRFClientConfiguration::kChildren[] = {
    Elem<&CRFClientConfiguration::connection_>(L"Connection"),
    Elem<&CRFClientConfiguration::clientSetting_>(L"ClientSetting").MissedFirst(),
    Elem<&CRFClientConfiguration::rfTrustedSites_>(L"RFTrustedSites"),
};
constinit const Schema CRFClientConfiguration::kSchema = {
    .element = L"IRFClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentity,
    .children = kChildren,
};

}  // namespace RFConfInterface
