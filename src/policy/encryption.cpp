#include "policy/encryption.h"

namespace TolvaInterface {

constinit const Attribute CPrimaryKey::kAttributes[] = {
    Attr<&CPrimaryKey::keyID_>(L"KeyID"),
    Attr<&CPrimaryKey::key_>(L"Key"),
    Attr<&CPrimaryKey::fileHeader_>(L"FileHeader"),
};
constinit const Schema CPrimaryKey::kSchema = {
    .element = L"PrimaryKey",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute COldKey::kAttributes[] = {
    Attr<&COldKey::keyID_>(L"KeyID"),
    Attr<&COldKey::key_>(L"Key"),
};
constinit const Schema COldKey::kSchema = {
    .element = L"OldKey",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CEncryption::kChildren[] = {
    Elem<&CEncryption::primaryKey_>(L"PrimaryKey"),
    Elem<&CEncryption::oldKeys_>(L"OldKey"),
};
constinit const Schema CEncryption::kSchema = {
    .element = L"Encryption",
    .dialect = kDialect,
    .children = kChildren,
};

}  // namespace TolvaInterface
