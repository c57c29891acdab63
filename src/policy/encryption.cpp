#include "policy/encryption.h"

namespace TolvaInterface {

constexpr Attribute kPrimaryKeyAttributes[] = {
    Attr<&CPrimaryKey::keyID_>(L"KeyID"),
    Attr<&CPrimaryKey::key_>(L"Key").Secret(),
    Attr<&CPrimaryKey::fileHeader_>(L"FileHeader").Secret(),
};
constinit const Schema CPrimaryKey::kSchema = Checked({
    .element = L"PrimaryKey",
    .dialect = kDialect,
    .attributes = kPrimaryKeyAttributes,
});

constexpr Attribute kOldKeyAttributes[] = {
    Attr<&COldKey::keyID_>(L"KeyID").NamesItem(),
    Attr<&COldKey::key_>(L"Key").Secret(),
};
constinit const Schema COldKey::kSchema = Checked({
    .element = L"OldKey",
    .dialect = kDialect,
    .attributes = kOldKeyAttributes,
});

constexpr Child kEncryptionChildren[] = {
    Elem<&CEncryption::primaryKey_>(L"PrimaryKey"),
    Elem<&CEncryption::oldKeys_>(L"OldKey"),
};
constinit const Schema CEncryption::kSchema = Checked({
    .element = L"Encryption",
    .dialect = kDialect,
    .children = kEncryptionChildren,
});

}  // namespace TolvaInterface
