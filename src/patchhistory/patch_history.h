// The classes of tolva/patchhistory/patch_history.h.
#pragma once

#include <tolva/patchhistory/patch_history.h>

#include <string>

#include "node/accessors.h"
#include "patchhistory/document.h"

namespace PatchFileHistory {

class CWSModule final : public Node<CWSModule, IWSModule> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(Name, name_);
  TOLVA_OPTIONAL(std::wstring, Version, version_);
  TOLVA_OPTIONAL(std::wstring, ProductID, productID_);
  TOLVA_OPTIONAL(DWORD, PreviouslyExisted, previouslyExisted_);
  TOLVA_OPTIONAL(std::wstring, Description, description_);
  TOLVA_STRING(InstallationDir, installationDir_);
};

class CModuleListingArray final : public Node<CModuleListingArray, IModuleListingArray> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CWSModule, WSModule, wsModules_);
};

class CPatchFileInfo final : public Node<CPatchFileInfo, IPatchFileInfo> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(Name, name_);
  TOLVA_STRING(UpdateDate, updateDate_);
  TOLVA_STRING(PatchVersion, patchVersion_);
  TOLVA_OPTIONAL(std::wstring, ProductID, productID_);
  TOLVA_CHILD(CModuleListingArray, ModuleListingArray, moduleListingArray_);
};

class CEndpointFilePatches final : public Node<CEndpointFilePatches, IEndpointFilePatches> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, SchemaVersion, schemaVersion_);
  TOLVA_OPTIONAL(std::wstring, SN, sn_);
  TOLVA_OPTIONAL(std::wstring, Name, name_);
  TOLVA_OPTIONAL(std::wstring, LastAppliedPatchVersion, lastAppliedPatchVersion_);
  TOLVA_STRING(UpdateDate, updateDate_);
  TOLVA_OPTIONAL(std::wstring, RefId, refId_);
  TOLVA_CHILDREN(CPatchFileInfo, PatchFileInfo, patchFileInfos_);
};

}  // namespace PatchFileHistory
