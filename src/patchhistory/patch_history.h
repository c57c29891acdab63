// The classes of tolva/patchhistory/patch_history.h.
#pragma once

#include <tolva/patchhistory/patch_history.h>

#include <string>

#include "node/node.h"
#include "patchhistory/document.h"

namespace PatchFileHistory {

class CWSModule final : public Node<CWSModule, IWSModule> {
 public:
  static const Schema kSchema;

  const std::wstring& GetName() const override { return name_; }
  ConfigResult SetName(const std::wstring* value) override { return SetRequired(name_, value); }
  ConfigResult GetVersion(std::wstring* out) const override { return version_.Get(out); }
  ConfigResult SetVersion(const std::wstring* value) override { return version_.Set(value); }
  ConfigResult GetProductID(std::wstring* out) const override { return productID_.Get(out); }
  ConfigResult SetProductID(const std::wstring* value) override { return productID_.Set(value); }
  ConfigResult GetPreviouslyExisted(DWORD* out) const override {
    return previouslyExisted_.Get(out);
  }
  ConfigResult SetPreviouslyExisted(const DWORD* value) override {
    return previouslyExisted_.Set(value);
  }
  ConfigResult GetDescription(std::wstring* out) const override { return description_.Get(out); }
  ConfigResult SetDescription(const std::wstring* value) override {
    return description_.Set(value);
  }
  const std::wstring& GetInstallationDir() const override { return installationDir_; }
  ConfigResult SetInstallationDir(const std::wstring* value) override {
    return SetRequired(installationDir_, value);
  }

 private:
  static const Attribute kAttributes[];

  std::wstring name_;
  Optional<std::wstring> version_;
  Optional<std::wstring> productID_;
  Optional<DWORD> previouslyExisted_;
  Optional<std::wstring> description_;
  std::wstring installationDir_;
};

class CModuleListingArray final : public Node<CModuleListingArray, IModuleListingArray> {
 public:
  static const Schema kSchema;

  DWORD GetWSModuleCount() const override { return wsModules_.Count(); }
  IWSModule* GetWSModuleAt(DWORD index) override { return wsModules_.At(index); }
  ConfigResult AddWSModule(const IWSModule* item) override { return wsModules_.Add(item); }
  ConfigResult InsertWSModuleAt(DWORD index, const IWSModule* item) override {
    return wsModules_.InsertAt(index, item);
  }
  void RemoveWSModuleAt(DWORD index) override { wsModules_.RemoveAt(index); }
  void RemoveAllWSModule() override { wsModules_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CWSModule> wsModules_;
};

class CPatchFileInfo final : public Node<CPatchFileInfo, IPatchFileInfo> {
 public:
  static const Schema kSchema;

  const std::wstring& GetName() const override { return name_; }
  ConfigResult SetName(const std::wstring* value) override { return SetRequired(name_, value); }
  const std::wstring& GetUpdateDate() const override { return updateDate_; }
  ConfigResult SetUpdateDate(const std::wstring* value) override {
    return SetRequired(updateDate_, value);
  }
  const std::wstring& GetPatchVersion() const override { return patchVersion_; }
  ConfigResult SetPatchVersion(const std::wstring* value) override {
    return SetRequired(patchVersion_, value);
  }
  ConfigResult GetProductID(std::wstring* out) const override { return productID_.Get(out); }
  ConfigResult SetProductID(const std::wstring* value) override { return productID_.Set(value); }
  IModuleListingArray* GetModuleListingArray() override { return &moduleListingArray_; }
  ConfigResult SetModuleListingArray(const IModuleListingArray* child) override {
    return SetRequiredChild(moduleListingArray_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  std::wstring name_;
  std::wstring updateDate_;
  std::wstring patchVersion_;
  Optional<std::wstring> productID_;
  CModuleListingArray moduleListingArray_;
};

class CEndpointFilePatches final : public Node<CEndpointFilePatches, IEndpointFilePatches> {
 public:
  static const Schema kSchema;

  ConfigResult GetSchemaVersion(DWORD* out) const override { return schemaVersion_.Get(out); }
  ConfigResult SetSchemaVersion(const DWORD* value) override { return schemaVersion_.Set(value); }
  ConfigResult GetSN(std::wstring* out) const override { return sn_.Get(out); }
  ConfigResult SetSN(const std::wstring* value) override { return sn_.Set(value); }
  ConfigResult GetName(std::wstring* out) const override { return name_.Get(out); }
  ConfigResult SetName(const std::wstring* value) override { return name_.Set(value); }
  ConfigResult GetLastAppliedPatchVersion(std::wstring* out) const override {
    return lastAppliedPatchVersion_.Get(out);
  }
  ConfigResult SetLastAppliedPatchVersion(const std::wstring* value) override {
    return lastAppliedPatchVersion_.Set(value);
  }
  const std::wstring& GetUpdateDate() const override { return updateDate_; }
  ConfigResult SetUpdateDate(const std::wstring* value) override {
    return SetRequired(updateDate_, value);
  }
  ConfigResult GetRefId(std::wstring* out) const override { return refId_.Get(out); }
  ConfigResult SetRefId(const std::wstring* value) override { return refId_.Set(value); }
  DWORD GetPatchFileInfoCount() const override { return patchFileInfos_.Count(); }
  IPatchFileInfo* GetPatchFileInfoAt(DWORD index) override { return patchFileInfos_.At(index); }
  ConfigResult AddPatchFileInfo(const IPatchFileInfo* item) override {
    return patchFileInfos_.Add(item);
  }
  ConfigResult InsertPatchFileInfoAt(DWORD index, const IPatchFileInfo* item) override {
    return patchFileInfos_.InsertAt(index, item);
  }
  void RemovePatchFileInfoAt(DWORD index) override { patchFileInfos_.RemoveAt(index); }
  void RemoveAllPatchFileInfo() override { patchFileInfos_.RemoveAll(); }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> schemaVersion_;
  Optional<std::wstring> sn_;
  Optional<std::wstring> name_;
  Optional<std::wstring> lastAppliedPatchVersion_;
  std::wstring updateDate_;
  Optional<std::wstring> refId_;
  ChildList<CPatchFileInfo> patchFileInfos_;
};

}  // namespace PatchFileHistory
