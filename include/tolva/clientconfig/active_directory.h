// The Active Directory document: which domain the agent treats as its default, and whether that
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

/// Element `DefaultDomain`.
class IDefaultDomain : public tolva::node::INode {
 public:
  virtual IDefaultDomain& CopyFrom(const IDefaultDomain& other) = 0;

  /// `Enabled`: 1 when the setting is in force, 0 when not. Always written, as a signed decimal;
  /// absent in a document it reads as 0. The getter stores the value and returns 0.
  virtual ConfigResult GetEnabled(DWORD* out) const = 0;
  virtual ConfigResult SetEnabled(const DWORD* value) = 0;

  /// `Name`: the domain's name. Required; but when it cannot be written it is left out without a
  /// word, and the document cannot be read back.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;
};

/// Element `ActiveDirectory`, the root.
class IActiveDirectory : public tolva::node::INode {
 public:
  /// Does nothing: to copy the document, pass the other one's child to `SetDefaultDomain`.
  virtual IActiveDirectory& CopyFrom(const IActiveDirectory& other) = 0;

  /// The child `DefaultDomain`. Required.
  virtual IDefaultDomain* GetDefaultDomain() = 0;
  virtual ConfigResult SetDefaultDomain(const IDefaultDomain* child) = 0;
};

/// The caller owns the new node.
TOLVA_API IDefaultDomain* DefaultDomain_CreateNewInstance();

/// The caller owns the new node.
TOLVA_API IActiveDirectory* ActiveDir_CreateNewInstance();

}  // namespace ClientConfig
