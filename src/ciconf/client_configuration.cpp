#include "ciconf/client_configuration.h"

namespace CIConfInterface {

constinit const Attribute CEIMServer::kAttributes[] = {
    Attr<&CEIMServer::hostName_>(L"HostName"),
    Attr<&CEIMServer::portNumber_>(L"PortNumber"),
};
constinit const Schema CEIMServer::kSchema = {
    .element = L"EIMServer",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CEIMServerArray::kChildren[] = {
    Elem<&CEIMServerArray::eimServers_>(L"EIMServer"),
};
constinit const Schema CEIMServerArray::kSchema = {
    .element = L"EIMServerArray",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Child CEIMConnection::kChildren[] = {
    Elem<&CEIMConnection::eimServerArray_>(L"EIMServerArray"),
};
constinit const Schema CEIMConnection::kSchema = {
    .element = L"EIMConnection",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CConnection::kAttributes[] = {
    Attr<&CConnection::doNotSendUserName_>(L"DoNotSendUserName"),
    Attr<&CConnection::failClosed_>(L"FailClosed"),
};
constinit const Child CConnection::kChildren[] = {
    Elem<&CConnection::eimConnection_>(L"EIMConnection"),
};
constinit const Schema CConnection::kSchema = {
    .element = L"Connection",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CUserInterface::kAttributes[] = {
    Attr<&CUserInterface::uiSilentMode_>(L"UISilentMode"),
    Attr<&CUserInterface::displayHTTPSBlockMsg_>(L"DisplayHTTPSBlockMsg"),
    Attr<&CUserInterface::httpsBlockMsgInterval_>(L"HTTPSBlockMsgInterval"),
    Attr<&CUserInterface::displayFTPBlockMsg_>(L"DisplayFTPBlockMsg"),
    Attr<&CUserInterface::ftpBlockMsgInterval_>(L"FTPBlockMsgInterval"),
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
        .PresentWhenClear()
        .ReadFault(L"XMLManager: read dword/bool Attribute failed. element:ClientSetting, "
                   L"attr:EnableTelemetry"),
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

constinit const Attribute CURLCondition::kAttributes[] = {
    Attr<&CURLCondition::siteURL_>(L"SiteURL"),
};
constinit const Schema CURLCondition::kSchema = {
    .element = L"URLCondition",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CTrustedSites::kChildren[] = {
    Elem<&CTrustedSites::urlConditions_>(L"URLCondition"),
};
constinit const Schema CTrustedSites::kSchema = {
    .element = L"TrustedSites",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Child CCIClientConfiguration::kChildren[] = {
    Elem<&CCIClientConfiguration::connection_>(L"Connection"),
    Elem<&CCIClientConfiguration::clientSetting_>(L"ClientSetting").MissedFirst(),
    Elem<&CCIClientConfiguration::trustedSites_>(L"TrustedSites"),
};
constinit const Schema CCIClientConfiguration::kSchema = {
    .element = L"ICIClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentity,
    .children = kChildren,
};

}  // namespace CIConfInterface
