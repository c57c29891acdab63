#include "policy/conditions.h"

namespace TolvaInterface {

constinit const Attribute CArCondition::kAttributes[] = {
    Attr<&CArCondition::appName_>(L"AppName"),
    Attr<&CArCondition::resFileDescription_>(L"ResFileDescription"),
    Attr<&CArCondition::resProductName_>(L"ResProductName"),
    Attr<&CArCondition::resCompany_>(L"ResCompany"),
    Attr<&CArCondition::os_>(L"OS"),
};
constinit const Schema CArCondition::kSchema = {
    .element = L"ArCondition",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CUrlCondition::kAttributes[] = {
    Attr<&CUrlCondition::url_>(L"URL"),
};
constinit const Schema CUrlCondition::kSchema = {
    .element = L"UrlCondition",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CAppRule::kAttributes[] = {
    Attr<&CAppRule::action_>(L"Action", {kRuleActions}),
    Attr<&CAppRule::appid_>(L"Appid"),
    Attr<&CAppRule::allowAccessAfterFileCreation_>(L"AllowAccessAfterFileCreation"),
};
constinit const Schema CAppRule::kSchema = {
    .element = L"AppRule",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute COnlineApps::kAttributes[] = {
    Attr<&COnlineApps::action_>(L"Action", {kRuleActions}),
    Attr<&COnlineApps::appid_>(L"Appid"),
};
constinit const Child COnlineApps::kChildren[] = {
    Elem<&COnlineApps::arConditions_>(L"ArCondition"),
    Elem<&COnlineApps::urlConditions_>(L"UrlCondition"),
};
constinit const Schema COnlineApps::kSchema = {
    .element = L"OnlineApps",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Schema CBypassedApps::kSchema = {
    .element = L"BypassedApps",
    .dialect = kDialect,
    .children = kChildren,
};

}  // namespace TolvaInterface
