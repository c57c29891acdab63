#include "ngconf/client_configuration.h"

namespace NGConfInterface {

constexpr Attribute kServerCommunicationAttributes[] = {
    Attr<&CServerCommunication::managementQueryInterval_>(L"ManagementQueryInterval"),
    Attr<&CServerCommunication::managementServerHostname_>(L"ManagementServerHostname"),
};
constinit const Schema CServerCommunication::kSchema = Checked({
    .element = L"ServerCommunication",
    .dialect = kDialect,
    .attributes = kServerCommunicationAttributes,
});

constexpr Attribute kLogReportAttributes[] = {
    Attr<&CLogReport::logReportInterval_>(L"LogReportInterval"),
    Attr<&CLogReport::logReportServerHostname_>(L"LogReportServerHostname"),
    Attr<&CLogReport::maxUploadSize_>(L"MaxUploadSize"),
    Attr<&CLogReport::eventLogReportServerHostname_>(L"EventLogReportServerHostname"),
};
constinit const Schema CLogReport::kSchema = Checked({
    .element = L"LogReport",
    .dialect = kDialect,
    .attributes = kLogReportAttributes,
});

constexpr Attribute kNGUserAttributes[] = {
    Attr<&CNGUser::name_>(L"Name").NamesItem(),
    Attr<&CNGUser::enableTrayIconMenu_>(L"EnableTrayIconMenu"),
};
constinit const Schema CNGUser::kSchema = Checked({
    .element = L"NGUser",
    .dialect = kDialect,
    .attributes = kNGUserAttributes,
});

constexpr Child kNGUserSettingChildren[] = {
    Elem<&CNGUserSetting::ngUsers_>(L"NGUser"),
};
constinit const Schema CNGUserSetting::kSchema = Checked({
    .element = L"NGUserSetting",
    .dialect = kDialect,
    .children = kNGUserSettingChildren,
});

constinit const Schema CNGFirefoxSetting::kSchema = Checked({
    .element = L"NGFirefoxSetting",
    .dialect = kDialect,
    .attributes = kBrowserFilesAttributes<CNGFirefoxSetting>,
});

constexpr Attribute kClientManagementAttributes[] = {
    Attr<&CClientManagement::enableTrayIconMenu_>(L"EnableTrayIconMenu"),
};
constexpr Child kClientManagementChildren[] = {
    Elem<&CClientManagement::serverCommunication_>(L"ServerCommunication"),
    Elem<&CClientManagement::logReport_>(L"LogReport"),
    Elem<&CClientManagement::ngUserSetting_>(L"NGUserSetting"),
    Elem<&CClientManagement::ngFirefoxSetting_>(L"NGFirefoxSetting"),
    Elem<&CClientManagement::activeDirectory_>(L"ActiveDirectory")
        .WriteReport(kWriteActiveDirectory)
        .ReadReport(kReadActiveDirectory),
};
constinit const Schema CClientManagement::kSchema = Checked({
    .element = L"ClientManagement",
    .dialect = kDialect,
    .attributes = kClientManagementAttributes,
    .children = kClientManagementChildren,
});

constexpr Attribute kHTTPHeaderAttributes[] = {
    Attr<&CHTTPHeader::headerName_>(L"HeaderName").NamesItem(),
    Attr<&CHTTPHeader::headerValue_>(L"HeaderValue"),
};
constinit const Schema CHTTPHeader::kSchema = Checked({
    .element = L"HTTPHeader",
    .dialect = kDialect,
    .attributes = kHTTPHeaderAttributes,
});

constexpr Child kHTTPRequestHeadersChildren[] = {
    Elem<&CHTTPRequestHeaders::httpHeaders_>(L"HTTPHeader"),
};
constinit const Schema CHTTPRequestHeaders::kSchema = Checked({
    .element = L"HTTPRequestHeaders",
    .dialect = kDialect,
    .children = kHTTPRequestHeadersChildren,
});

constexpr Child kCloudServerComunicationChildren[] = {
    Elem<&CCloudServerComunication::httpRequestHeaders_>(L"HTTPRequestHeaders"),
};
constinit const Schema CCloudServerComunication::kSchema = Checked({
    .element = L"CloudServerComunication",
    .dialect = kDialect,
    .children = kCloudServerComunicationChildren,
});

constexpr Child kINGClientConfigurationChildren[] = {
    Elem<&CINGClientConfiguration::clientManagement_>(L"ClientManagement"),
    Elem<&CINGClientConfiguration::scanEngineConfiguration_>(L"ScanEngineConfiguration"),
    Elem<&CINGClientConfiguration::cloudServerComunication_>(L"CloudServerComunication"),
};
constinit const Schema CINGClientConfiguration::kSchema = Checked({
    .element = L"INGClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentityAttributes<CINGClientConfiguration>,
    .children = kINGClientConfigurationChildren,
});

ConfigResult CClientManagement::GetDefaultDomainEnabled(DWORD* out) const {
  return activeDirectory_.child.domain().GetEnabled(out);
}

ConfigResult CClientManagement::SetDefaultDomainEnabled(const DWORD* value) {
  if (value != nullptr) activeDirectory_.child.GetDefaultDomain()->SetEnabled(value);
  return tolva::kSuccess;
}

ConfigResult CClientManagement::GetDefaultDomainName(std::wstring* out) const {
  if (activeDirectory_.present == 0) return tolva::kAbsent;
  return Store(activeDirectory_.child.domain().GetName(), out);
}

ConfigResult CClientManagement::SetDefaultDomainName(const std::wstring* value) {
  if (value != nullptr) activeDirectory_.child.GetDefaultDomain()->SetName(value);
  activeDirectory_.present = value == nullptr ? 0 : 1;
  return tolva::kSuccess;
}

}  // namespace NGConfInterface
