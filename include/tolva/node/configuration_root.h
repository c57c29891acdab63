// What the roots of the agent's configurations have in common.
#pragma once

#include <string>

#include <tolva/node/node.h>
#include <tolva/types.h>

namespace tolva::node {

/// The attributes by which a configuration is identified; `Self` is the root's interface.
template <class Self>
class IConfigurationRoot : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// `SchemaVersion`: the version of the document's form. Required.
  virtual DWORD GetSchemaVersion() const = 0;
  virtual ConfigResult SetSchemaVersion(const DWORD* value) = 0;

  /// `SN`: the configuration's serial number, as text. Required.
  virtual const std::wstring& GetSN() const = 0;
  virtual ConfigResult SetSN(const std::wstring* value) = 0;

  /// `Name`: the configuration's name. Required.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;

  /// `UpdateDate`: when it was changed last; the form is its author's. Optional.
  virtual ConfigResult GetUpdateDate(std::wstring* out) const = 0;
  virtual ConfigResult SetUpdateDate(const std::wstring* value) = 0;

  /// `RefId`: a reference, carried unchanged. Optional.
  virtual ConfigResult GetRefId(std::wstring* out) const = 0;
  virtual ConfigResult SetRefId(const std::wstring* value) = 0;
};

}  // namespace tolva::node
