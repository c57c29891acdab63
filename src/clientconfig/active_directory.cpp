#include "clientconfig/active_directory.h"

namespace ClientConfig {
namespace {

using namespace tolva::node;  // for the tables

constexpr Dialect kDialect = {
    .numbers = Numbers::kSigned,
    .null_writer = kWriteRequiredManager,
    .null_reader = kReadRequiredManager,
    .null_value = kSetAttributeParam,
    .absent_string = kReadString,
};

}  // namespace

constexpr Attribute kDefaultDomainAttributes[] = {
    Attr<&CDefaultDomain::enabled_>(L"Enabled").MayBeAbsent().IgnoresWriteFailure(),
    Attr<&CDefaultDomain::name_>(L"Name").IgnoresWriteFailure(),
};
constinit const Schema CDefaultDomain::kSchema = Checked({
    .element = L"DefaultDomain",
    .dialect = kDialect,
    .attributes = kDefaultDomainAttributes,
    .add_report = L"XMLManager: failed to add element: DefaultDomain",
});

constexpr Child kActiveDirectoryChildren[] = {
    Elem<&CActiveDirectory::defaultDomain_>(L"DefaultDomain")
        .ReadReport(L"XMLManager: read require element failed. element:DefDomain")
        .AbsenceReport(L"XMLManager: sub-element DefDomain is missing"),
};
constinit const Schema CActiveDirectory::kSchema = Checked({
    .element = L"ActiveDirectory",
    .dialect = kDialect,
    .children = kActiveDirectoryChildren,
    .closes_as_empty_tag = true,
});

}  // namespace ClientConfig
