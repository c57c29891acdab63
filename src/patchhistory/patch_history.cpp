#include "patchhistory/patch_history.h"

namespace PatchFileHistory {

constexpr Attribute kWSModuleAttributes[] = {
    Attr<&CWSModule::name_>(L"Name").NamesItem(),
    Attr<&CWSModule::version_>(L"Version"),
    Attr<&CWSModule::productID_>(L"ProductID"),
    Attr<&CWSModule::previouslyExisted_>(L"PreviouslyExisted"),
    Attr<&CWSModule::description_>(L"Description"),
    Attr<&CWSModule::installationDir_>(L"InstallationDir"),
};
constinit const Schema CWSModule::kSchema = Checked({
    .element = L"WSModule",
    .dialect = kDialect,
    .attributes = kWSModuleAttributes,
});

constexpr Child kModuleListingArrayChildren[] = {
    Elem<&CModuleListingArray::wsModules_>(L"WSModule"),
};
constinit const Schema CModuleListingArray::kSchema = Checked({
    .element = L"ModuleListingArray",
    .dialect = kDialect,
    .children = kModuleListingArrayChildren,
});

constexpr Attribute kPatchFileInfoAttributes[] = {
    Attr<&CPatchFileInfo::name_>(L"Name").NamesItem(),
    Attr<&CPatchFileInfo::updateDate_>(L"UpdateDate"),
    Attr<&CPatchFileInfo::patchVersion_>(L"PatchVersion"),
    Attr<&CPatchFileInfo::productID_>(L"ProductID"),
};
constexpr Child kPatchFileInfoChildren[] = {
    Elem<&CPatchFileInfo::moduleListingArray_>(L"ModuleListingArray"),
};
constinit const Schema CPatchFileInfo::kSchema = Checked({
    .element = L"PatchFileInfo",
    .dialect = kDialect,
    .attributes = kPatchFileInfoAttributes,
    .children = kPatchFileInfoChildren,
});

constexpr Attribute kEndpointFilePatchesAttributes[] = {
    Attr<&CEndpointFilePatches::schemaVersion_>(L"SchemaVersion"),
    Attr<&CEndpointFilePatches::sn_>(L"SN"),
    Attr<&CEndpointFilePatches::name_>(L"Name"),
    Attr<&CEndpointFilePatches::lastAppliedPatchVersion_>(L"LastAppliedPatchVersion"),
    Attr<&CEndpointFilePatches::updateDate_>(L"UpdateDate"),
    Attr<&CEndpointFilePatches::refId_>(L"RefId"),
};
constexpr Child kEndpointFilePatchesChildren[] = {
    Elem<&CEndpointFilePatches::patchFileInfos_>(L"PatchFileInfo"),
};
constinit const Schema CEndpointFilePatches::kSchema = Checked({
    .element = L"EndpointFilePatches",
    .dialect = kDialect,
    .attributes = kEndpointFilePatchesAttributes,
    .children = kEndpointFilePatchesChildren,
});

}  // namespace PatchFileHistory
