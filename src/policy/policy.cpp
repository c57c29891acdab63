#include "policy/policy.h"

namespace TolvaInterface {
namespace {

constexpr const wchar_t* kModes[] = {L"NORMAL", L"SILENT", L"UNATTENDED"};
constexpr const wchar_t* kPromptActions[] = {L"ALLOW", L"BLOCK", L"BLOCK_REVIEW"};

}  // namespace

constinit const Attribute CILPProtection::kAttributes[] = {
    Attr<&CILPProtection::closeActionOnAnalysisFailed_>(L"CloseActionOnAnalysisFailed"),
    Attr<&CILPProtection::disableBlockingCapabilities_>(L"DisableBlockingCapabilities"),
    Attr<&CILPProtection::enableMonitoringRemoteBypass_>(L"EnableMonitoringRemoteBypass"),
    Attr<&CILPProtection::enableTamperProtection_>(L"EnableTamperProtection"),
};
constinit const Child CILPProtection::kChildren[] = {
    Elem<&CILPProtection::ilpRemovableMedia_>(L"ILPRemovableMedia"),
    Elem<&CILPProtection::ilpRemoteMedia_>(L"ILPRemoteMedia"),
    Elem<&CILPProtection::ilpClipboard_>(L"ILPClipboard"),
    Elem<&CILPProtection::ilpPrinter_>(L"ILPPrinter"),
    Elem<&CILPProtection::ilpAppFile_>(L"ILPAppFile"),
    Elem<&CILPProtection::ilpPrintScreen_>(L"ILPPrintScreen"),
    Elem<&CILPProtection::ilpWebApp_>(L"ILPWebApp"),
    Elem<&CILPProtection::ilpFixedMedia_>(L"ILPFixedMedia"),
    Elem<&CILPProtection::ilpEmail_>(L"ILPEmail"),
    Elem<&CILPProtection::ilpOpticalMedia_>(L"ILPOpticalMedia"),
    Elem<&CILPProtection::ilpInLineProxy_>(L"ILPInlineProxy")
        .WriteFault(L"XMLManager: write optional element failed. element:ILPInLineProxy")
        .ReadFault(L"XMLManager: read require element failed. element:ILPInLineProxy")
        .Announced(L"XMLManager: writingelement:ILPInLineProxy",
                   L"XMLManager: writingelement:ILPInLineProxy was sucessful"),
};
constinit const Schema CILPProtection::kSchema = {
    .element = L"ILPProtection",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CLocation::kAttributes[] = {
    Attr<&CLocation::name_>(L"Name"),
    Attr<&CLocation::desc_>(L"Desc"),
    Attr<&CLocation::criteriaCPSconnection_>(L"CriteriaCPSconnection"),
};
constinit const Child CLocation::kChildren[] = {
    Elem<&CLocation::ilpProtection_>(L"ILPProtection"),
};
constinit const Schema CLocation::kSchema = {
    .element = L"Location",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Child CLocationArray::kChildren[] = {
    Elem<&CLocationArray::locations_>(L"Location"),
};
constinit const Schema CLocationArray::kSchema = {
    .element = L"LocationArray",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CConfirmDialogTime::kAttributes[] = {
    Attr<&CConfirmDialogTime::lanMaxTime_>(L"LanMaxTime"),
    Attr<&CConfirmDialogTime::printFileMaxTime_>(L"PrintFileMaxTime"),
    Attr<&CConfirmDialogTime::removableMaxTime_>(L"RemovableMaxTime"),
    Attr<&CConfirmDialogTime::webPostMaxTime_>(L"WebPostMaxTime"),
    Attr<&CConfirmDialogTime::applicationMaxTime_>(L"ApplicationMaxTime"),
    Attr<&CConfirmDialogTime::clipboardMaxTime_>(L"ClipboardMaxTime"),
    Attr<&CConfirmDialogTime::emailMaxTime_>(L"EmailMaxTime"),
};
constinit const Schema CConfirmDialogTime::kSchema = {
    .element = L"ConfirmDialogTime",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CUserInterface::kAttributes[] = {
    Attr<&CUserInterface::mode_>(L"Mode", {kModes}),
    Attr<&CUserInterface::enableSuperBypass_>(L"EnableSuperBypass"),
    Attr<&CUserInterface::enableRemoteBypass_>(L"EnableRemoteBypass"),
    Attr<&CUserInterface::remoteBypassPromptAdditionalMessage_>(
        L"RemoteBypassPromptAdditionalMessage"),
    Attr<&CUserInterface::enableLocalBypassButton_>(L"EnableLocalBypassButton"),
    Attr<&CUserInterface::localBypassButtonTimeout_>(L"LocalBypassButtonTimeout"),
    Attr<&CUserInterface::defaultActionOnUserPromptTimeout_>(L"DefaultActionOnUserPromptTimeout",
                                                             {kPromptActions}),
    Attr<&CUserInterface::adminPasswordHash_>(L"AdminPasswordHash"),
    Attr<&CUserInterface::disableScanProgressTooltip_>(L"DisableScanProgressTooltip"),
    Attr<&CUserInterface::disableFileOperationTooltip_>(L"DisableFileOperationTooltip"),
    Attr<&CUserInterface::showExportDecryptToolMenu_>(L"ShowExportDecryptToolMenu"),
    Attr<&CUserInterface::showConfirmDialogTimer_>(L"ShowConfirmDialogTimer"),
    Attr<&CUserInterface::showConfirmViolatedDetails_>(L"ShowConfirmViolatedDetails"),
    Attr<&CUserInterface::showDetailsOnDataReviewCenter_>(L"ShowDetailsOnDataReviewCenter"),
    Attr<&CUserInterface::showDataReviewCenter_>(L"ShowDataReviewCenter"),
};
constinit const Child CUserInterface::kChildren[] = {
    Elem<&CUserInterface::confirmDialogTime_>(L"ConfirmDialogTime"),
};
constinit const Schema CUserInterface::kSchema = {
    .element = L"UserInterface",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CLog::kAttributes[] = {
    Attr<&CLog::maxLogSize_>(L"MaxLogSize"),
};
constinit const Schema CLog::kSchema = {
    .element = L"Log",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CTamperProtection::kAttributes[] = {
    Attr<&CTamperProtection::enable_>(L"Enable"),
};
constinit const Schema CTamperProtection::kSchema = {
    .element = L"TamperProtection",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Schema CExcludedApps::kSchema = {
    .element = L"ExcludedApps",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CContainedFiles::kAttributes[] = {
    Attr<&CContainedFiles::lifeTime_>(L"LifeTime"),
    Attr<&CContainedFiles::upperLimit_>(L"UpperLimit"),
    Attr<&CContainedFiles::minDiskSpace_>(L"MinDiskSpace"),
    Attr<&CContainedFiles::ignoreSpaceLimit_>(L"IgnoreSpaceLimit"),
};
constinit const Schema CContainedFiles::kSchema = {
    .element = L"ContainedFiles",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Attribute CTelemetryCollection::kAttributes[] = {
    Attr<&CTelemetryCollection::enable_>(L"Enable"),
};
constinit const Schema CTelemetryCollection::kSchema = {
    .element = L"TelemetryCollection",
    .dialect = kDialect,
    .attributes = kAttributes,
    .null_writer = OwnText(kWriteRequiredManager),
    .null_reader = OwnText(kReadRequiredManager),
};

constinit const Attribute CILPClientConfiguration::kAttributes[] = {
    Attr<&CILPClientConfiguration::schemaVersion_>(L"SchemaVersion"),
    Attr<&CILPClientConfiguration::sn_>(L"SN"),
    Attr<&CILPClientConfiguration::name_>(L"Name"),
    Attr<&CILPClientConfiguration::updateDate_>(L"UpdateDate"),
    Attr<&CILPClientConfiguration::refId_>(L"RefId"),
    Attr<&CILPClientConfiguration::bypassVersion_>(L"BypassVersion"),
};
constinit const Child CILPClientConfiguration::kChildren[] = {
    Elem<&CILPClientConfiguration::locationArray_>(L"LocationArray"),
    Elem<&CILPClientConfiguration::userInterface_>(L"UserInterface"),
    Elem<&CILPClientConfiguration::log_>(L"Log"),
    Elem<&CILPClientConfiguration::discovery_>(L"Discovery"),
    Elem<&CILPClientConfiguration::tamperProtection_>(L"TamperProtection"),
    Elem<&CILPClientConfiguration::excludedApps_>(L"ExcludedApps"),
    Elem<&CILPClientConfiguration::containedFiles_>(L"ContainedFiles"),
    Elem<&CILPClientConfiguration::encryption_>(L"Encryption"),
    Elem<&CILPClientConfiguration::telemetryCollection_>(L"TelemetryCollection"),
    Elem<&CILPClientConfiguration::activeDirectory_>(L"ActiveDirectory")
        .WriteFault(L"XMLManager: write element failed. element:ActiveDirectory")
        .ReadFault(L"XMLManager: read element failed. element:ActiveDirectory"),
};
constinit const Schema CILPClientConfiguration::kSchema = {
    .element = L"ILPClientConfiguration",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

}  // namespace TolvaInterface
