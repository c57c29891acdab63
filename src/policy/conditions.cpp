#include "policy/conditions.h"

namespace TolvaInterface {

constexpr Attribute kArConditionAttributes[] = {
    Attr<&CArCondition::appName_>(L"AppName").NamesItem(),
    Attr<&CArCondition::resFileDescription_>(L"ResFileDescription"),
    Attr<&CArCondition::resProductName_>(L"ResProductName"),
    Attr<&CArCondition::resCompany_>(L"ResCompany"),
    Attr<&CArCondition::os_>(L"OS"),
};
constinit const Schema CArCondition::kSchema = Checked({
    .element = L"ArCondition",
    .dialect = kDialect,
    .attributes = kArConditionAttributes,
});

constexpr Attribute kUrlConditionAttributes[] = {
    Attr<&CUrlCondition::url_>(L"URL").NamesItem(),
};
constinit const Schema CUrlCondition::kSchema = Checked({
    .element = L"UrlCondition",
    .dialect = kDialect,
    .attributes = kUrlConditionAttributes,
});

constexpr Attribute kAppRuleAttributes[] = {
    Attr<&CAppRule::action_>(L"Action", {kRuleActions}),
    Attr<&CAppRule::appid_>(L"Appid").NamesItem(),
    Attr<&CAppRule::allowAccessAfterFileCreation_>(L"AllowAccessAfterFileCreation"),
};
constinit const Schema CAppRule::kSchema = Checked({
    .element = L"AppRule",
    .dialect = kDialect,
    .attributes = kAppRuleAttributes,
    .children = kArConditionsChildren<CAppRule>,
});

constexpr Attribute kOnlineAppsAttributes[] = {
    Attr<&COnlineApps::action_>(L"Action", {kRuleActions}),
    Attr<&COnlineApps::appid_>(L"Appid").NamesItem(),
};
constexpr Child kOnlineAppsChildren[] = {
    Elem<&COnlineApps::arConditions_>(L"ArCondition"),
    Elem<&COnlineApps::urlConditions_>(L"UrlCondition"),
};
constinit const Schema COnlineApps::kSchema = Checked({
    .element = L"OnlineApps",
    .dialect = kDialect,
    .attributes = kOnlineAppsAttributes,
    .children = kOnlineAppsChildren,
});

constinit const Schema CBypassedApps::kSchema = Checked({
    .element = L"BypassedApps",
    .dialect = kDialect,
    .children = kArConditionsChildren<CBypassedApps>,
});

}  // namespace TolvaInterface
