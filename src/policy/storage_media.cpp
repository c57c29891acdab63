#include "policy/storage_media.h"

namespace TolvaInterface {

constinit const Attribute CDeviceRule::kAttributes[] = {
    Attr<&CDeviceRule::action_>(L"Action", {kRuleActions}),
    Attr<&CDeviceRule::deviceName_>(L"DeviceName"),
    Attr<&CDeviceRule::serialNumber_>(L"SerialNumber"),
    Attr<&CDeviceRule::vendorID_>(L"VendorID"),
};
constinit const Schema CDeviceRule::kSchema = {
    .element = L"DeviceRule",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CRemoteDriveRule::kAttributes[] = {
    Attr<&CRemoteDriveRule::action_>(L"Action", {kRuleActions}),
    Attr<&CRemoteDriveRule::shareName_>(L"ShareName"),
};
constinit const Schema CRemoteDriveRule::kSchema = {
    .element = L"RemoteDriveRule",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CILPFixedMedia::kAttributes[] = {
    Attr<&CILPFixedMedia::sid_>(L"Sid"),
    Attr<&CILPFixedMedia::cid_>(L"Cid"),
};
constinit const Child CILPFixedMedia::kChildren[] = {
    Elem<&CILPFixedMedia::onlineApps_>(L"OnlineApps"),
};
constinit const Schema CILPFixedMedia::kSchema = {
    .element = L"ILPFixedMedia",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CILPOpticalMedia::kAttributes[] = {
    Attr<&CILPOpticalMedia::sid_>(L"Sid"),
    Attr<&CILPOpticalMedia::cid_>(L"Cid"),
};
constinit const Child CILPOpticalMedia::kChildren[] = {
    Elem<&CILPOpticalMedia::bypassedApps_>(L"BypassedApps"),
};
constinit const Schema CILPOpticalMedia::kSchema = {
    .element = L"ILPOpticalMedia",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CILPRemovableMedia::kAttributes[] = {
    Attr<&CILPRemovableMedia::sid_>(L"Sid"),
    Attr<&CILPRemovableMedia::cid_>(L"Cid"),
};
constinit const Child CILPRemovableMedia::kChildren[] = {
    Elem<&CILPRemovableMedia::deviceRules_>(L"DeviceRule"),
    Elem<&CILPRemovableMedia::bypassedApps_>(L"BypassedApps"),
    Elem<&CILPRemovableMedia::onlineApps_>(L"OnlineApps"),
};
constinit const Schema CILPRemovableMedia::kSchema = {
    .element = L"ILPRemovableMedia",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CILPRemoteMedia::kAttributes[] = {
    Attr<&CILPRemoteMedia::sid_>(L"Sid"),
    Attr<&CILPRemoteMedia::cid_>(L"Cid"),
};
constinit const Child CILPRemoteMedia::kChildren[] = {
    Elem<&CILPRemoteMedia::remoteDriveRules_>(L"RemoteDriveRule"),
    Elem<&CILPRemoteMedia::bypassedApps_>(L"BypassedApps"),
    Elem<&CILPRemoteMedia::onlineApps_>(L"OnlineApps"),
};
constinit const Schema CILPRemoteMedia::kSchema = {
    .element = L"ILPRemoteMedia",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

}  // namespace TolvaInterface
