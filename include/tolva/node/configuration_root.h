// What the roots of the agent's configurations have in common.
#pragma once

#include <string>

#include <tolva/node/node.h>
#include <tolva/types.h>

namespace tolva::node {

/// The attributes that identify a configuration. `Self` is the interface of the root.
template <class Self>
class IConfigurationRoot : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// `SchemaVersion`: the version of the document's schema. Required.
  virtual DWORD GetSchemaVersion() const = 0;
  virtual ConfigResult SetSchemaVersion(const DWORD* value) = 0;

  /// `SN`: the serial number of the configuration, as text. Required.
  virtual const std::wstring& GetSN() const = 0;
  virtual ConfigResult SetSN(const std::wstring* value) = 0;

  /// `Name`: the name of the configuration. Required.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;

  /// `UpdateDate`: the date of the last change, in a format of the author's choice. Optional.
  virtual ConfigResult GetUpdateDate(std::wstring* out) const = 0;
  virtual ConfigResult SetUpdateDate(const std::wstring* value) = 0;

  /// `RefId`: a reference identifier. Optional.
  virtual ConfigResult GetRefId(std::wstring* out) const = 0;
  virtual ConfigResult SetRefId(const std::wstring* value) = 0;
};

}  // namespace tolva::node
