#include "policy/policy.h"

namespace TolvaInterface {
namespace {

constexpr Name kModes[] = {L"NORMAL", L"SILENT", L"UNATTENDED"};
constexpr Name kPromptActions[] = {L"ALLOW", L"BLOCK", L"BLOCK_REVIEW"};

}  // namespace

constexpr Attribute kILPProtectionAttributes[] = {
    Attr<&CILPProtection::closeActionOnAnalysisFailed_>(L"CloseActionOnAnalysisFailed"),
    Attr<&CILPProtection::disableBlockingCapabilities_>(L"DisableBlockingCapabilities"),
    Attr<&CILPProtection::enableMonitoringRemoteBypass_>(L"EnableMonitoringRemoteBypass"),
    Attr<&CILPProtection::enableTamperProtection_>(L"EnableTamperProtection"),
};
constexpr Child kILPProtectionChildren[] = {
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
        .WriteReport(L"XMLManager: write optional element failed. element:ILPInLineProxy")
        .ReadReport(L"XMLManager: read require element failed. element:ILPInLineProxy")
        .Announced(L"XMLManager: writingelement:ILPInLineProxy",
                   L"XMLManager: writingelement:ILPInLineProxy was sucessful"),
};
constinit const Schema CILPProtection::kSchema = Checked({
    .element = L"ILPProtection",
    .dialect = kDialect,
    .attributes = kILPProtectionAttributes,
    .children = kILPProtectionChildren,
});

constexpr Attribute kLocationAttributes[] = {
    Attr<&CLocation::name_>(L"Name").NamesItem(),
    Attr<&CLocation::desc_>(L"Desc"),
    Attr<&CLocation::criteriaCPSconnection_>(L"CriteriaCPSconnection"),
};
constexpr Child kLocationChildren[] = {
    Elem<&CLocation::ilpProtection_>(L"ILPProtection"),
};
constinit const Schema CLocation::kSchema = Checked({
    .element = L"Location",
    .dialect = kDialect,
    .attributes = kLocationAttributes,
    .children = kLocationChildren,
});

constexpr Child kLocationArrayChildren[] = {
    Elem<&CLocationArray::locations_>(L"Location"),
};
constinit const Schema CLocationArray::kSchema = Checked({
    .element = L"LocationArray",
    .dialect = kDialect,
    .children = kLocationArrayChildren,
});

constexpr Attribute kConfirmDialogTimeAttributes[] = {
    Attr<&CConfirmDialogTime::lanMaxTime_>(L"LanMaxTime"),
    Attr<&CConfirmDialogTime::printFileMaxTime_>(L"PrintFileMaxTime"),
    Attr<&CConfirmDialogTime::removableMaxTime_>(L"RemovableMaxTime"),
    Attr<&CConfirmDialogTime::webPostMaxTime_>(L"WebPostMaxTime"),
    Attr<&CConfirmDialogTime::applicationMaxTime_>(L"ApplicationMaxTime"),
    Attr<&CConfirmDialogTime::clipboardMaxTime_>(L"ClipboardMaxTime"),
    Attr<&CConfirmDialogTime::emailMaxTime_>(L"EmailMaxTime"),
};
constinit const Schema CConfirmDialogTime::kSchema = Checked({
    .element = L"ConfirmDialogTime",
    .dialect = kDialect,
    .attributes = kConfirmDialogTimeAttributes,
});

constexpr Attribute kUserInterfaceAttributes[] = {
    Attr<&CUserInterface::mode_>(L"Mode", {kModes}),
    Attr<&CUserInterface::enableSuperBypass_>(L"EnableSuperBypass"),
    Attr<&CUserInterface::enableRemoteBypass_>(L"EnableRemoteBypass"),
    Attr<&CUserInterface::remoteBypassPromptAdditionalMessage_>(
        L"RemoteBypassPromptAdditionalMessage"),
    Attr<&CUserInterface::enableLocalBypassButton_>(L"EnableLocalBypassButton"),
    Attr<&CUserInterface::localBypassButtonTimeout_>(L"LocalBypassButtonTimeout"),
    Attr<&CUserInterface::defaultActionOnUserPromptTimeout_>(L"DefaultActionOnUserPromptTimeout",
                                                             {kPromptActions}),
    Attr<&CUserInterface::adminPasswordHash_>(L"AdminPasswordHash").Secret(),
    Attr<&CUserInterface::disableScanProgressTooltip_>(L"DisableScanProgressTooltip"),
    Attr<&CUserInterface::disableFileOperationTooltip_>(L"DisableFileOperationTooltip"),
    Attr<&CUserInterface::showExportDecryptToolMenu_>(L"ShowExportDecryptToolMenu"),
    Attr<&CUserInterface::showConfirmDialogTimer_>(L"ShowConfirmDialogTimer"),
    Attr<&CUserInterface::showConfirmViolatedDetails_>(L"ShowConfirmViolatedDetails"),
    Attr<&CUserInterface::showDetailsOnDataReviewCenter_>(L"ShowDetailsOnDataReviewCenter"),
    Attr<&CUserInterface::showDataReviewCenter_>(L"ShowDataReviewCenter"),
};
constexpr Child kUserInterfaceChildren[] = {
    Elem<&CUserInterface::confirmDialogTime_>(L"ConfirmDialogTime"),
};
constinit const Schema CUserInterface::kSchema = Checked({
    .element = L"UserInterface",
    .dialect = kDialect,
    .attributes = kUserInterfaceAttributes,
    .children = kUserInterfaceChildren,
});

constexpr Attribute kLogAttributes[] = {
    Attr<&CLog::maxLogSize_>(L"MaxLogSize"),
};
constinit const Schema CLog::kSchema = Checked({
    .element = L"Log",
    .dialect = kDialect,
    .attributes = kLogAttributes,
});

constexpr Attribute kTamperProtectionAttributes[] = {
    Attr<&CTamperProtection::enable_>(L"Enable"),
};
constinit const Schema CTamperProtection::kSchema = Checked({
    .element = L"TamperProtection",
    .dialect = kDialect,
    .attributes = kTamperProtectionAttributes,
});

constinit const Schema CExcludedApps::kSchema = Checked({
    .element = L"ExcludedApps",
    .dialect = kDialect,
    .children = kArConditionsChildren<CExcludedApps>,
});

constexpr Attribute kContainedFilesAttributes[] = {
    Attr<&CContainedFiles::lifeTime_>(L"LifeTime"),
    Attr<&CContainedFiles::upperLimit_>(L"UpperLimit"),
    Attr<&CContainedFiles::minDiskSpace_>(L"MinDiskSpace"),
    Attr<&CContainedFiles::ignoreSpaceLimit_>(L"IgnoreSpaceLimit"),
};
constinit const Schema CContainedFiles::kSchema = Checked({
    .element = L"ContainedFiles",
    .dialect = kDialect,
    .attributes = kContainedFilesAttributes,
});

constexpr Attribute kTelemetryCollectionAttributes[] = {
    Attr<&CTelemetryCollection::enable_>(L"Enable"),
};
constinit const Schema CTelemetryCollection::kSchema = Checked({
    .element = L"TelemetryCollection",
    .dialect = kDialect,
    .attributes = kTelemetryCollectionAttributes,
    .null_writer_report = kWriteRequiredManager,
    .null_reader_report = kReadRequiredManager,
});

constexpr Attribute kILPClientConfigurationAttributes[] = {
    Attr<&CILPClientConfiguration::schemaVersion_>(L"SchemaVersion"),
    Attr<&CILPClientConfiguration::sn_>(L"SN"),
    Attr<&CILPClientConfiguration::name_>(L"Name"),
    Attr<&CILPClientConfiguration::updateDate_>(L"UpdateDate"),
    Attr<&CILPClientConfiguration::refId_>(L"RefId"),
    Attr<&CILPClientConfiguration::bypassVersion_>(L"BypassVersion"),
};
constexpr Child kILPClientConfigurationChildren[] = {
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
        .WriteReport(kWriteActiveDirectory)
        .ReadReport(kReadActiveDirectory),
};
constinit const Schema CILPClientConfiguration::kSchema = Checked({
    .element = L"ILPClientConfiguration",
    .dialect = kDialect,
    .attributes = kILPClientConfigurationAttributes,
    .children = kILPClientConfigurationChildren,
});

}  // namespace TolvaInterface
