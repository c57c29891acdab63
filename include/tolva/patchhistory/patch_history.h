// The history of the patches that were applied to the endpoint. The library does not interpret
// versions and dates.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace PatchFileHistory {

/// Element `WSModule`: a module that a patch installed.
class IWSModule : public tolva::node::INode {
 public:
  virtual IWSModule& CopyFrom(const IWSModule& other) = 0;

  /// `Name`: the name of the module. Required.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;

  /// `Version`: the version of the module. Optional.
  virtual ConfigResult GetVersion(std::wstring* out) const = 0;
  virtual ConfigResult SetVersion(const std::wstring* value) = 0;

  /// `ProductID`: the identifier of the product to which the module belongs. Optional.
  virtual ConfigResult GetProductID(std::wstring* out) const = 0;
  virtual ConfigResult SetProductID(const std::wstring* value) = 0;

  /// `PreviouslyExisted`: 1 if the module existed before the patch, 0 if not. Optional.
  virtual ConfigResult GetPreviouslyExisted(DWORD* out) const = 0;
  virtual ConfigResult SetPreviouslyExisted(const DWORD* value) = 0;

  /// `Description`: a description of the module. Optional.
  virtual ConfigResult GetDescription(std::wstring* out) const = 0;
  virtual ConfigResult SetDescription(const std::wstring* value) = 0;

  /// `InstallationDir`: the directory in which the module was installed. Required.
  virtual const std::wstring& GetInstallationDir() const = 0;
  virtual ConfigResult SetInstallationDir(const std::wstring* value) = 0;
};

/// Element `ModuleListingArray`: the modules that a patch installed.
class IModuleListingArray : public tolva::node::INode {
 public:
  virtual IModuleListingArray& CopyFrom(const IModuleListingArray& other) = 0;

  /// `WSModule`: a module that the patch installed. Repeated.
  virtual DWORD GetWSModuleCount() const = 0;
  virtual IWSModule* GetWSModuleAt(DWORD index) = 0;
  virtual ConfigResult AddWSModule(const IWSModule* item) = 0;
  virtual ConfigResult InsertWSModuleAt(DWORD index, const IWSModule* item) = 0;
  virtual void RemoveWSModuleAt(DWORD index) = 0;
  virtual void RemoveAllWSModule() = 0;
};

/// Element `PatchFileInfo`: a patch that was applied.
class IPatchFileInfo : public tolva::node::INode {
 public:
  virtual IPatchFileInfo& CopyFrom(const IPatchFileInfo& other) = 0;

  /// `Name`: the name of the patch. Required.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;

  /// `UpdateDate`: the date of the patch. Required.
  virtual const std::wstring& GetUpdateDate() const = 0;
  virtual ConfigResult SetUpdateDate(const std::wstring* value) = 0;

  /// `PatchVersion`: the version of the patch. Required.
  virtual const std::wstring& GetPatchVersion() const = 0;
  virtual ConfigResult SetPatchVersion(const std::wstring* value) = 0;

  /// `ProductID`: the identifier of the product that was patched. Optional.
  virtual ConfigResult GetProductID(std::wstring* out) const = 0;
  virtual ConfigResult SetProductID(const std::wstring* value) = 0;

  /// `ModuleListingArray`: the modules that the patch installed. Required.
  virtual IModuleListingArray* GetModuleListingArray() = 0;
  virtual ConfigResult SetModuleListingArray(const IModuleListingArray* child) = 0;
};

/// Element `EndpointFilePatches`: the root of the patch history.
class IEndpointFilePatches : public tolva::node::INode {
 public:
  virtual IEndpointFilePatches& CopyFrom(const IEndpointFilePatches& other) = 0;

  /// `SchemaVersion`: the version of the document's schema. Optional.
  virtual ConfigResult GetSchemaVersion(DWORD* out) const = 0;
  virtual ConfigResult SetSchemaVersion(const DWORD* value) = 0;

  /// `SN`: a serial number, as text. Optional.
  virtual ConfigResult GetSN(std::wstring* out) const = 0;
  virtual ConfigResult SetSN(const std::wstring* value) = 0;

  /// `Name`. Optional.
  virtual ConfigResult GetName(std::wstring* out) const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;

  /// `LastAppliedPatchVersion`: the version of the last patch that was applied. Optional.
  virtual ConfigResult GetLastAppliedPatchVersion(std::wstring* out) const = 0;
  virtual ConfigResult SetLastAppliedPatchVersion(const std::wstring* value) = 0;

  /// `UpdateDate`: the date of the history. Required.
  virtual const std::wstring& GetUpdateDate() const = 0;
  virtual ConfigResult SetUpdateDate(const std::wstring* value) = 0;

  /// `RefId`: a reference identifier. Optional.
  virtual ConfigResult GetRefId(std::wstring* out) const = 0;
  virtual ConfigResult SetRefId(const std::wstring* value) = 0;

  /// `PatchFileInfo`: a patch that was applied. Repeated.
  virtual DWORD GetPatchFileInfoCount() const = 0;
  virtual IPatchFileInfo* GetPatchFileInfoAt(DWORD index) = 0;
  virtual ConfigResult AddPatchFileInfo(const IPatchFileInfo* item) = 0;
  virtual ConfigResult InsertPatchFileInfoAt(DWORD index, const IPatchFileInfo* item) = 0;
  virtual void RemovePatchFileInfoAt(DWORD index) = 0;
  virtual void RemoveAllPatchFileInfo() = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IWSModule* WSModule_CreateNewInstance();
TOLVA_API IModuleListingArray* ModuleListingArray_CreateNewInstance();
TOLVA_API IPatchFileInfo* PatchFileInfo_CreateNewInstance();
TOLVA_API IEndpointFilePatches* EndpointFilePatches_CreateNewInstance();

}  // namespace PatchFileHistory
