// The Active Directory document: the domain that the agent treats as its default, and whether that
// setting is in force.
//
//   <ActiveDirectory>
//     <DefaultDomain Enabled="1" Name="corp.example"/>
//   </ActiveDirectory>
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace ClientConfig {

/// Element `DefaultDomain`: the domain that the agent treats as its default.
class IDefaultDomain : public tolva::node::INode {
 public:
  virtual IDefaultDomain& CopyFrom(const IDefaultDomain& other) = 0;

  /// `Enabled`: 1 if the setting is in force, 0 if not. If the attribute is absent, 0 applies.
  /// Optional.
  ///
  /// The attribute is always written. It has the accessors of a required number; the getter stores
  /// the value in `out` and returns 0.
  virtual ConfigResult GetEnabled(DWORD* out) const = 0;
  virtual ConfigResult SetEnabled(const DWORD* value) = 0;

  /// `Name`: the name of the domain. Required.
  ///
  /// If the name cannot be written, it is left out without a diagnostic, and the document cannot be
  /// read back.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;
};

/// Element `ActiveDirectory`: the agent's Active Directory settings.
class IActiveDirectory : public tolva::node::INode {
 public:
  /// Does nothing. To copy the document, pass the child of the other node to `SetDefaultDomain`.
  virtual IActiveDirectory& CopyFrom(const IActiveDirectory& other) = 0;

  /// `DefaultDomain`: the domain that the agent treats as its default. Required.
  virtual IDefaultDomain* GetDefaultDomain() = 0;
  virtual ConfigResult SetDefaultDomain(const IDefaultDomain* child) = 0;
};

/// Returns a new node, which the caller owns.
TOLVA_API IDefaultDomain* DefaultDomain_CreateNewInstance();

/// Returns a new node, which the caller owns.
TOLVA_API IActiveDirectory* ActiveDir_CreateNewInstance();

}  // namespace ClientConfig
