// Encryption keys: the current key and earlier ones. The library stores them, but neither uses nor
// interprets them; the author of the policy chooses their encoding.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// Element `PrimaryKey`: the current encryption key.
class IPrimaryKey : public tolva::node::INode {
 public:
  virtual IPrimaryKey& CopyFrom(const IPrimaryKey& other) = 0;

  /// `KeyID`: the number that identifies the key. Required.
  virtual DWORD GetKeyID() const = 0;
  virtual ConfigResult SetKeyID(const DWORD* value) = 0;

  /// `Key`: the key material, as text. Required.
  virtual const std::wstring& GetKey() const = 0;
  virtual ConfigResult SetKey(const std::wstring* value) = 0;

  /// `FileHeader`: the text of the file header that belongs to the key. Required.
  virtual const std::wstring& GetFileHeader() const = 0;
  virtual ConfigResult SetFileHeader(const std::wstring* value) = 0;
};

/// Element `OldKey`: an earlier encryption key.
class IOldKey : public tolva::node::INode {
 public:
  virtual IOldKey& CopyFrom(const IOldKey& other) = 0;

  /// `KeyID`: the number that identifies the key. Required.
  virtual DWORD GetKeyID() const = 0;
  virtual ConfigResult SetKeyID(const DWORD* value) = 0;

  /// `Key`: the key material, as text. Required.
  virtual const std::wstring& GetKey() const = 0;
  virtual ConfigResult SetKey(const std::wstring* value) = 0;
};

/// Element `Encryption`: the encryption keys.
class IEncryption : public tolva::node::INode {
 public:
  virtual IEncryption& CopyFrom(const IEncryption& other) = 0;

  /// `PrimaryKey`: the current encryption key. Required.
  virtual IPrimaryKey* GetPrimaryKey() = 0;
  virtual ConfigResult SetPrimaryKey(const IPrimaryKey* child) = 0;

  /// `OldKey`: an earlier encryption key. Repeated.
  virtual DWORD GetOldKeyCount() const = 0;
  virtual IOldKey* GetOldKeyAt(DWORD index) = 0;
  virtual ConfigResult AddOldKey(const IOldKey* item) = 0;
  virtual ConfigResult InsertOldKeyAt(DWORD index, const IOldKey* item) = 0;
  virtual void RemoveOldKeyAt(DWORD index) = 0;
  virtual void RemoveAllOldKey() = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IPrimaryKey* PrimaryKey_CreateNewInstance();
TOLVA_API IOldKey* OldKey_CreateNewInstance();
TOLVA_API IEncryption* Encryption_CreateNewInstance();

}  // namespace TolvaInterface
