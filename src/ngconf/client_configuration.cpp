#include "ngconf/client_configuration.h"

namespace NGConfInterface {

constinit const Attribute CServerCommunication::kAttributes[] = {
    Attr<&CServerCommunication::managementQueryInterval_>(L"ManagementQueryInterval"),
    Attr<&CServerCommunication::managementServerHostname_>(L"ManagementServerHostname"),
};
constinit const Schema CServerCommunication::kSchema = {
    .element = L"ServerCommunication",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CLogReport::kAttributes[] = {
    Attr<&CLogReport::logReportInterval_>(L"LogReportInterval"),
    Attr<&CLogReport::logReportServerHostname_>(L"LogReportServerHostname"),
    Attr<&CLogReport::maxUploadSize_>(L"MaxUploadSize"),
    Attr<&CLogReport::eventLogReportServerHostname_>(L"EventLogReportServerHostname"),
};
constinit const Schema CLogReport::kSchema = {
    .element = L"LogReport",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CNGUser::kAttributes[] = {
    Attr<&CNGUser::name_>(L"Name"),
    Attr<&CNGUser::enableTrayIconMenu_>(L"EnableTrayIconMenu"),
};
constinit const Schema CNGUser::kSchema = {
    .element = L"NGUser",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CNGUserSetting::kChildren[] = {
    Elem<&CNGUserSetting::ngUsers_>(L"NGUser"),
};
constinit const Schema CNGUserSetting::kSchema = {
    .element = L"NGUserSetting",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Schema CNGFirefoxSetting::kSchema = {
    .element = L"NGFirefoxSetting",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CClientManagement::kAttributes[] = {
    Attr<&CClientManagement::enableTrayIconMenu_>(L"EnableTrayIconMenu"),
};
constinit const Child CClientManagement::kChildren[] = {
    Elem<&CClientManagement::serverCommunication_>(L"ServerCommunication"),
    Elem<&CClientManagement::logReport_>(L"LogReport"),
    Elem<&CClientManagement::ngUserSetting_>(L"NGUserSetting"),
    Elem<&CClientManagement::ngFirefoxSetting_>(L"NGFirefoxSetting"),
    Elem<&CClientManagement::activeDirectory_>(L"ActiveDirectory")
        .WriteFault(L"XMLManager: write element failed. element:ActiveDirectory")
        .ReadFault(L"XMLManager: read element failed. element:ActiveDirectory"),
};
constinit const Schema CClientManagement::kSchema = {
    .element = L"ClientManagement",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CHTTPHeader::kAttributes[] = {
    Attr<&CHTTPHeader::headerName_>(L"HeaderName"),
    Attr<&CHTTPHeader::headerValue_>(L"HeaderValue"),
};
constinit const Schema CHTTPHeader::kSchema = {
    .element = L"HTTPHeader",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CHTTPRequestHeaders::kChildren[] = {
    Elem<&CHTTPRequestHeaders::httpHeaders_>(L"HTTPHeader"),
};
constinit const Schema CHTTPRequestHeaders::kSchema = {
    .element = L"HTTPRequestHeaders",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Child CCloudServerComunication::kChildren[] = {
    Elem<&CCloudServerComunication::httpRequestHeaders_>(L"HTTPRequestHeaders"),
};
constinit const Schema CCloudServerComunication::kSchema = {
    .element = L"CloudServerComunication",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Child CINGClientConfiguration::kChildren[] = {
    Elem<&CINGClientConfiguration::clientManagement_>(L"ClientManagement"),
    Elem<&CINGClientConfiguration::scanEngineConfiguration_>(L"ScanEngineConfiguration"),
    Elem<&CINGClientConfiguration::cloudServerComunication_>(L"CloudServerComunication"),
};
constinit const Schema CINGClientConfiguration::kSchema = {
    .element = L"INGClientConfiguration",
    .dialect = kDialect,
    .attributes = kIdentity,
    .children = kChildren,
};

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
