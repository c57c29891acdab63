// The classes of tolva/policy/encryption.h.
#pragma once

#include <tolva/policy/encryption.h>

#include <string>

#include "node/node.h"
#include "policy/document.h"

namespace TolvaInterface {

class CPrimaryKey final : public Node<CPrimaryKey, IPrimaryKey> {
 public:
  static const Schema kSchema;

  DWORD GetKeyID() const override { return keyID_; }
  ConfigResult SetKeyID(const DWORD* value) override { return SetRequired(keyID_, value); }
  const std::wstring& GetKey() const override { return key_; }
  ConfigResult SetKey(const std::wstring* value) override { return SetRequired(key_, value); }
  const std::wstring& GetFileHeader() const override { return fileHeader_; }
  ConfigResult SetFileHeader(const std::wstring* value) override {
    return SetRequired(fileHeader_, value);
  }

 private:
  static const Attribute kAttributes[];

  DWORD keyID_ = 0;
  std::wstring key_;
  std::wstring fileHeader_;
};

class COldKey final : public Node<COldKey, IOldKey> {
 public:
  static const Schema kSchema;

  DWORD GetKeyID() const override { return keyID_; }
  ConfigResult SetKeyID(const DWORD* value) override { return SetRequired(keyID_, value); }
  const std::wstring& GetKey() const override { return key_; }
  ConfigResult SetKey(const std::wstring* value) override { return SetRequired(key_, value); }

 private:
  static const Attribute kAttributes[];

  DWORD keyID_ = 0;
  std::wstring key_;
};

class CEncryption final : public Node<CEncryption, IEncryption> {
 public:
  static const Schema kSchema;

  IPrimaryKey* GetPrimaryKey() override { return &primaryKey_; }
  ConfigResult SetPrimaryKey(const IPrimaryKey* child) override {
    return SetRequiredChild(primaryKey_, child);
  }
  DWORD GetOldKeyCount() const override { return oldKeys_.Count(); }
  IOldKey* GetOldKeyAt(DWORD index) override { return oldKeys_.At(index); }
  ConfigResult AddOldKey(const IOldKey* item) override { return oldKeys_.Add(item); }
  ConfigResult InsertOldKeyAt(DWORD index, const IOldKey* item) override {
    return oldKeys_.InsertAt(index, item);
  }
  void RemoveOldKeyAt(DWORD index) override { oldKeys_.RemoveAt(index); }
  void RemoveAllOldKey() override { oldKeys_.RemoveAll(); }

 private:
  static const Child kChildren[];

  CPrimaryKey primaryKey_;
  ChildList<COldKey> oldKeys_;
};

}  // namespace TolvaInterface
