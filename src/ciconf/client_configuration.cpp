#include "ciconf/client_configuration.h"

namespace CIConfInterface {

constexpr Attribute kEIMServerAttributes[] = {
    Attr<&CEIMServer::hostName_>(L"HostName").NamesItem(),
    Attr<&CEIMServer::portNumber_>(L"PortNumber").NamesItem(),
};
constinit const Schema CEIMServer::kSchema = Checked({
    .element = L"EIMServer",
    .dialect = kDialect,
    .attributes = kEIMServerAttributes,
});

constexpr Child kEIMServerArrayChildren[] = {
    Elem<&CEIMServerArray::eimServers_>(L"EIMServer"),
};
constinit const Schema CEIMServerArray::kSchema = Checked({
    .element = L"EIMServerArray",
    .dialect = kDialect,
    .children = kEIMServerArrayChildren,
});

constexpr Child kEIMConnectionChildren[] = {
    Elem<&CEIMConnection::eimServerArray_>(L"EIMServerArray"),
};
constinit const Schema CEIMConnection::kSchema = Checked({
    .element = L"EIMConnection",
    .dialect = kDialect,
    .children = kEIMConnectionChildren,
});

constexpr Attribute kConnectionAttributes[] = {
    Attr<&CConnection::doNotSendUserName_>(L"DoNotSendUserName"),
    Attr<&CConnection::failClosed_>(L"FailClosed"),
};
constexpr Child kConnectionChildren[] = {
    Elem<&CConnection::eimConnection_>(L"EIMConnection"),
};
constinit const Schema CConnection::kSchema = Checked({
    .element = L"Connection",
    .dialect = kDialect,
    .attributes = kConnectionAttributes,
    .children = kConnectionChildren,
});

constexpr Attribute kUserInterfaceAttributes[] = {
    Attr<&CUserInterface::uiSilentMode_>(L"UISilentMode"),
    Attr<&CUserInterface::displayHTTPSBlockMsg_>(L"DisplayHTTPSBlockMsg"),
    Attr<&CUserInterface::httpsBlockMsgInterval_>(L"HTTPSBlockMsgInterval"),
    Attr<&CUserInterface::displayFTPBlockMsg_>(L"DisplayFTPBlockMsg"),
    Attr<&CUserInterface::ftpBlockMsgInterval_>(L"FTPBlockMsgInterval"),
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
        .PresentWhenClear()
        .ReadReport(kReadEnableTelemetry),
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

constexpr Attribute kURLConditionAttributes[] = {
    Attr<&CURLCondition::siteURL_>(L"SiteURL").NamesItem(),
};
constinit const Schema CURLCondition::kSchema = Checked({
    .element = L"URLCondition",
    .dialect = kDialect,
    .attributes = kURLConditionAttributes,
});

constexpr Child kTrustedSitesChildren[] = {
    Elem<&CTrustedSites::urlConditions_>(L"URLCondition"),
};
constinit const Schema CTrustedSites::kSchema = Checked({
    .element = L"TrustedSites",
    .dialect = kDialect,
    .children = kTrustedSitesChildren,
});

constexpr Child kCIClientConfigurationChildren[] = {
    Elem<&CCIClientConfiguration::connection_>(L"Connection"),
    Elem<&CCIClientConfiguration::clientSetting_>(L"ClientSetting").AbsenceReportedFirst(),
    Elem<&CCIClientConfiguration::trustedSites_>(L"TrustedSites"),
};
constinit const Schema CCIClientConfiguration::kSchema = Checked({
    .element = L"ICIClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentityAttributes<CCIClientConfiguration>,
    .children = kCIClientConfigurationChildren,
});

}  // namespace CIConfInterface
