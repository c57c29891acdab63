#include "clientconfig/active_directory.h"

namespace ClientConfig {
namespace {

using namespace tolva::node;  // the language of the tables

constexpr Dialect kDialect = {
    .numbers = Numbers::kSigned,
    .null_writer = kWriteRequiredManager,
    .null_reader = kReadRequiredManager,
    .null_value = kSetAttributeParam,
    .absent_string = kReadString,
};

}  // namespace

constinit const Attribute CDefaultDomain::kAttributes[] = {
    Attr<&CDefaultDomain::enabled_>(L"Enabled").KeptWhenAbsent().Unchecked(),
    Attr<&CDefaultDomain::name_>(L"Name").Unchecked(),
};
constinit const Schema CDefaultDomain::kSchema = {
    .element = L"DefaultDomain",
    .dialect = kDialect,
    .attributes = kAttributes,
    .add_fault = OwnText(L"XMLManager: failed to add element: DefaultDomain"),
};

constinit const Child CActiveDirectory::kChildren[] = {
    Elem<&CActiveDirectory::defaultDomain_>(L"DefaultDomain")
        .ReadFault(L"XMLManager: read require element failed. element:DefDomain")
        .Missing(L"XMLManager: sub-element DefDomain is missing"),
};
constinit const Schema CActiveDirectory::kSchema = {
    .element = L"ActiveDirectory",
    .dialect = kDialect,
    .children = kChildren,
    .is_closed_empty = true,
};

}  // namespace ClientConfig
