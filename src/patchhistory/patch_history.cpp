#include "patchhistory/patch_history.h"

namespace PatchFileHistory {

constinit const Attribute CWSModule::kAttributes[] = {
    Attr<&CWSModule::name_>(L"Name"),
    Attr<&CWSModule::version_>(L"Version"),
    Attr<&CWSModule::productID_>(L"ProductID"),
    Attr<&CWSModule::previouslyExisted_>(L"PreviouslyExisted"),
    Attr<&CWSModule::description_>(L"Description"),
    Attr<&CWSModule::installationDir_>(L"InstallationDir"),
};
constinit const Schema CWSModule::kSchema = {
    .element = L"WSModule",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CModuleListingArray::kChildren[] = {
    Elem<&CModuleListingArray::wsModules_>(L"WSModule"),
};
constinit const Schema CModuleListingArray::kSchema = {
    .element = L"ModuleListingArray",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CPatchFileInfo::kAttributes[] = {
    Attr<&CPatchFileInfo::name_>(L"Name"),
    Attr<&CPatchFileInfo::updateDate_>(L"UpdateDate"),
    Attr<&CPatchFileInfo::patchVersion_>(L"PatchVersion"),
    Attr<&CPatchFileInfo::productID_>(L"ProductID"),
};
constinit const Child CPatchFileInfo::kChildren[] = {
    Elem<&CPatchFileInfo::moduleListingArray_>(L"ModuleListingArray"),
};
constinit const Schema CPatchFileInfo::kSchema = {
    .element = L"PatchFileInfo",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CEndpointFilePatches::kAttributes[] = {
    Attr<&CEndpointFilePatches::schemaVersion_>(L"SchemaVersion"),
    Attr<&CEndpointFilePatches::sn_>(L"SN"),
    Attr<&CEndpointFilePatches::name_>(L"Name"),
    Attr<&CEndpointFilePatches::lastAppliedPatchVersion_>(L"LastAppliedPatchVersion"),
    Attr<&CEndpointFilePatches::updateDate_>(L"UpdateDate"),
    Attr<&CEndpointFilePatches::refId_>(L"RefId"),
};
constinit const Child CEndpointFilePatches::kChildren[] = {
    Elem<&CEndpointFilePatches::patchFileInfos_>(L"PatchFileInfo"),
};
constinit const Schema CEndpointFilePatches::kSchema = {
    .element = L"EndpointFilePatches",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

}  // namespace PatchFileHistory
