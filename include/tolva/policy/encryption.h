// Encryption keys: the current one and its predecessors. They are carried and never used; their
// text is whatever the policy's author made it.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// Element `PrimaryKey`: the current key.
class IPrimaryKey : public tolva::node::INode {
 public:
  virtual IPrimaryKey& CopyFrom(const IPrimaryKey& other) = 0;

  /// `KeyID`: the number by which it is known. Required.
  virtual DWORD GetKeyID() const = 0;
  virtual ConfigResult SetKeyID(const DWORD* value) = 0;

  /// `Key`: the key itself. Required.
  virtual const std::wstring& GetKey() const = 0;
  virtual ConfigResult SetKey(const std::wstring* value) = 0;

  /// `FileHeader`: the text of file headers that belongs to it. Required.
  virtual const std::wstring& GetFileHeader() const = 0;
  virtual ConfigResult SetFileHeader(const std::wstring* value) = 0;
};

/// Element `OldKey`: an earlier key.
class IOldKey : public tolva::node::INode {
 public:
  virtual IOldKey& CopyFrom(const IOldKey& other) = 0;

  /// `KeyID`: the number by which it is known. Required.
  virtual DWORD GetKeyID() const = 0;
  virtual ConfigResult SetKeyID(const DWORD* value) = 0;

  /// `Key`: the key itself. Required.
  virtual const std::wstring& GetKey() const = 0;
  virtual ConfigResult SetKey(const std::wstring* value) = 0;
};

/// Element `Encryption`.
class IEncryption : public tolva::node::INode {
 public:
  virtual IEncryption& CopyFrom(const IEncryption& other) = 0;

  /// The child `PrimaryKey`. Required.
  virtual IPrimaryKey* GetPrimaryKey() = 0;
  virtual ConfigResult SetPrimaryKey(const IPrimaryKey* child) = 0;

  /// Children `OldKey`.
  virtual DWORD GetOldKeyCount() const = 0;
  virtual IOldKey* GetOldKeyAt(DWORD index) = 0;
  virtual ConfigResult AddOldKey(const IOldKey* item) = 0;
  virtual ConfigResult InsertOldKeyAt(DWORD index, const IOldKey* item) = 0;
  virtual void RemoveOldKeyAt(DWORD index) = 0;
  virtual void RemoveAllOldKey() = 0;
};

// Each makes a node with default values, which the caller owns.
TOLVA_API IPrimaryKey* PrimaryKey_CreateNewInstance();
TOLVA_API IOldKey* OldKey_CreateNewInstance();
TOLVA_API IEncryption* Encryption_CreateNewInstance();

}  // namespace TolvaInterface
