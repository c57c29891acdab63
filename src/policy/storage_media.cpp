#include "policy/storage_media.h"

namespace TolvaInterface {

constexpr Attribute kDeviceRuleAttributes[] = {
    Attr<&CDeviceRule::action_>(L"Action", {kRuleActions}),
    Attr<&CDeviceRule::deviceName_>(L"DeviceName").NamesItem(),
    Attr<&CDeviceRule::serialNumber_>(L"SerialNumber").NamesItem(),
    Attr<&CDeviceRule::vendorID_>(L"VendorID").NamesItem(),
};
constinit const Schema CDeviceRule::kSchema = Checked({
    .element = L"DeviceRule",
    .dialect = kDialect,
    .attributes = kDeviceRuleAttributes,
});

constexpr Attribute kRemoteDriveRuleAttributes[] = {
    Attr<&CRemoteDriveRule::action_>(L"Action", {kRuleActions}),
    Attr<&CRemoteDriveRule::shareName_>(L"ShareName").NamesItem(),
};
constinit const Schema CRemoteDriveRule::kSchema = Checked({
    .element = L"RemoteDriveRule",
    .dialect = kDialect,
    .attributes = kRemoteDriveRuleAttributes,
});

constexpr Attribute kILPFixedMediaAttributes[] = {
    Attr<&CILPFixedMedia::sid_>(L"Sid"),
    Attr<&CILPFixedMedia::cid_>(L"Cid"),
};
constexpr Child kILPFixedMediaChildren[] = {
    Elem<&CILPFixedMedia::onlineApps_>(L"OnlineApps"),
};
constinit const Schema CILPFixedMedia::kSchema = Checked({
    .element = L"ILPFixedMedia",
    .dialect = kDialect,
    .attributes = kILPFixedMediaAttributes,
    .children = kILPFixedMediaChildren,
});

constexpr Attribute kILPOpticalMediaAttributes[] = {
    Attr<&CILPOpticalMedia::sid_>(L"Sid"),
    Attr<&CILPOpticalMedia::cid_>(L"Cid"),
};
constexpr Child kILPOpticalMediaChildren[] = {
    Elem<&CILPOpticalMedia::bypassedApps_>(L"BypassedApps"),
};
constinit const Schema CILPOpticalMedia::kSchema = Checked({
    .element = L"ILPOpticalMedia",
    .dialect = kDialect,
    .attributes = kILPOpticalMediaAttributes,
    .children = kILPOpticalMediaChildren,
});

constexpr Attribute kILPRemovableMediaAttributes[] = {
    Attr<&CILPRemovableMedia::sid_>(L"Sid"),
    Attr<&CILPRemovableMedia::cid_>(L"Cid"),
};
constexpr Child kILPRemovableMediaChildren[] = {
    Elem<&CILPRemovableMedia::deviceRules_>(L"DeviceRule"),
    Elem<&CILPRemovableMedia::bypassedApps_>(L"BypassedApps"),
    Elem<&CILPRemovableMedia::onlineApps_>(L"OnlineApps"),
};
constinit const Schema CILPRemovableMedia::kSchema = Checked({
    .element = L"ILPRemovableMedia",
    .dialect = kDialect,
    .attributes = kILPRemovableMediaAttributes,
    .children = kILPRemovableMediaChildren,
});

constexpr Attribute kILPRemoteMediaAttributes[] = {
    Attr<&CILPRemoteMedia::sid_>(L"Sid"),
    Attr<&CILPRemoteMedia::cid_>(L"Cid"),
};
constexpr Child kILPRemoteMediaChildren[] = {
    Elem<&CILPRemoteMedia::remoteDriveRules_>(L"RemoteDriveRule"),
    Elem<&CILPRemoteMedia::bypassedApps_>(L"BypassedApps"),
    Elem<&CILPRemoteMedia::onlineApps_>(L"OnlineApps"),
};
constinit const Schema CILPRemoteMedia::kSchema = Checked({
    .element = L"ILPRemoteMedia",
    .dialect = kDialect,
    .attributes = kILPRemoteMediaAttributes,
    .children = kILPRemoteMediaChildren,
});

}  // namespace TolvaInterface
