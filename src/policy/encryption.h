// The classes of tolva/policy/encryption.h.
#pragma once

#include <tolva/policy/encryption.h>

#include <string>

#include "node/accessors.h"
#include "policy/document.h"

namespace TolvaInterface {

class CPrimaryKey final : public Node<CPrimaryKey, IPrimaryKey> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(KeyID, keyID_);
  TOLVA_STRING(Key, key_);
  TOLVA_STRING(FileHeader, fileHeader_);
};

class COldKey final : public Node<COldKey, IOldKey> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(KeyID, keyID_);
  TOLVA_STRING(Key, key_);
};

class CEncryption final : public Node<CEncryption, IEncryption> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(CPrimaryKey, PrimaryKey, primaryKey_);
  TOLVA_CHILDREN(COldKey, OldKey, oldKeys_);
};

}  // namespace TolvaInterface
