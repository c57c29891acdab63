// The endpoint data-loss-prevention policy: its root, the network locations with their protections,
// and the small sections under the root. The library does not interpret numbers; the agent defines
// their units.
#pragma once

#include <string>

#include <tolva/clientconfig/active_directory.h>
#include <tolva/export.h>
#include <tolva/node/configuration_root.h>
#include <tolva/node/node.h>
#include <tolva/policy/channels.h>
#include <tolva/policy/conditions.h>
#include <tolva/policy/discovery.h>
#include <tolva/policy/encryption.h>
#include <tolva/policy/storage_media.h>
#include <tolva/policy/web.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// Element `ILPProtection`: what is protected in a location, channel by channel.
class IILPProtection : public tolva::node::INode {
 public:
  virtual IILPProtection& CopyFrom(const IILPProtection& other) = 0;

  /// `CloseActionOnAnalysisFailed`. Optional.
  virtual ConfigResult GetCloseActionOnAnalysisFailed(DWORD* out) const = 0;
  virtual ConfigResult SetCloseActionOnAnalysisFailed(const DWORD* value) = 0;

  /// `DisableBlockingCapabilities`: 1 if the blocking of operations is disabled, 0 if not.
  /// Optional.
  virtual ConfigResult GetDisableBlockingCapabilities(DWORD* out) const = 0;
  virtual ConfigResult SetDisableBlockingCapabilities(const DWORD* value) = 0;

  /// `EnableMonitoringRemoteBypass`. Optional.
  virtual ConfigResult GetEnableMonitoringRemoteBypass(DWORD* out) const = 0;
  virtual ConfigResult SetEnableMonitoringRemoteBypass(const DWORD* value) = 0;

  /// `EnableTamperProtection`: 1 if the agent protects itself against tampering, 0 if not.
  /// Optional.
  virtual ConfigResult GetEnableTamperProtection(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTamperProtection(const DWORD* value) = 0;

  /// `ILPRemovableMedia`: the rules for removable devices. Optional.
  virtual ConfigResult GetILPRemovableMedia(IILPRemovableMedia** out) = 0;
  virtual ConfigResult SetILPRemovableMedia(const IILPRemovableMedia* child) = 0;

  /// `ILPRemoteMedia`: the rules for network shares. Optional.
  virtual ConfigResult GetILPRemoteMedia(IILPRemoteMedia** out) = 0;
  virtual ConfigResult SetILPRemoteMedia(const IILPRemoteMedia* child) = 0;

  /// `ILPClipboard`: the rules for the clipboard. Optional.
  virtual ConfigResult GetILPClipboard(IILPClipboard** out) = 0;
  virtual ConfigResult SetILPClipboard(const IILPClipboard* child) = 0;

  /// `ILPPrinter`: the rules for printing. Optional.
  virtual ConfigResult GetILPPrinter(IILPPrinter** out) = 0;
  virtual ConfigResult SetILPPrinter(const IILPPrinter* child) = 0;

  /// `ILPAppFile`: the rules for the access of applications to files. Optional.
  virtual ConfigResult GetILPAppFile(IILPAppFile** out) = 0;
  virtual ConfigResult SetILPAppFile(const IILPAppFile* child) = 0;

  /// `ILPPrintScreen`: the rules for screen captures. Optional.
  virtual ConfigResult GetILPPrintScreen(IILPPrintScreen** out) = 0;
  virtual ConfigResult SetILPPrintScreen(const IILPPrintScreen* child) = 0;

  /// `ILPWebApp`: the rules for web traffic. Optional.
  virtual ConfigResult GetILPWebApp(IILPWebApp** out) = 0;
  virtual ConfigResult SetILPWebApp(const IILPWebApp* child) = 0;

  /// `ILPFixedMedia`: the rules for fixed disks. Optional.
  virtual ConfigResult GetILPFixedMedia(IILPFixedMedia** out) = 0;
  virtual ConfigResult SetILPFixedMedia(const IILPFixedMedia* child) = 0;

  /// `ILPEmail`: the e-mail channel. Optional.
  virtual ConfigResult GetILPEmail(IILPEmail** out) = 0;
  virtual ConfigResult SetILPEmail(const IILPEmail* child) = 0;

  /// `ILPOpticalMedia`: the rules for optical media. Optional.
  virtual ConfigResult GetILPOpticalMedia(IILPOpticalMedia** out) = 0;
  virtual ConfigResult SetILPOpticalMedia(const IILPOpticalMedia* child) = 0;

  /// `ILPInlineProxy`: the interception of web traffic on the machine. Optional.
  ///
  /// A write of the child is reported by a diagnostic before it, and by another one after it if it
  /// succeeds.
  virtual ConfigResult GetILPInLineProxy(IILPInLineProxy** out) = 0;
  virtual ConfigResult SetILPInLineProxy(const IILPInLineProxy* child) = 0;
};

/// Element `Location`: a network location, and what is protected there.
class ILocation : public tolva::node::INode {
 public:
  virtual ILocation& CopyFrom(const ILocation& other) = 0;

  /// `Name`: the name of the location. Required.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;

  /// `Desc`: a description of the location. Optional.
  virtual ConfigResult GetDesc(std::wstring* out) const = 0;
  virtual ConfigResult SetDesc(const std::wstring* value) = 0;

  /// `CriteriaCPSconnection`. Optional.
  virtual ConfigResult GetCriteriaCPSconnection(DWORD* out) const = 0;
  virtual ConfigResult SetCriteriaCPSconnection(const DWORD* value) = 0;

  /// `ILPProtection`: what is protected in the location, channel by channel. Optional.
  virtual ConfigResult GetILPProtection(IILPProtection** out) = 0;
  virtual ConfigResult SetILPProtection(const IILPProtection* child) = 0;
};

/// Element `LocationArray`: the network locations.
class ILocationArray : public tolva::node::INode {
 public:
  virtual ILocationArray& CopyFrom(const ILocationArray& other) = 0;

  /// `Location`: a network location, and what is protected there. Repeated.
  virtual DWORD GetLocationCount() const = 0;
  virtual ILocation* GetLocationAt(DWORD index) = 0;
  virtual ConfigResult AddLocation(const ILocation* item) = 0;
  virtual ConfigResult InsertLocationAt(DWORD index, const ILocation* item) = 0;
  virtual void RemoveLocationAt(DWORD index) = 0;
  virtual void RemoveAllLocation() = 0;
};

/// Element `ConfirmDialogTime`: how long a confirmation dialog waits for the user, by channel.
class IConfirmDialogTime : public tolva::node::INode {
 public:
  virtual IConfirmDialogTime& CopyFrom(const IConfirmDialogTime& other) = 0;

  /// `LanMaxTime`: the longest wait of a dialog about the local network. Optional.
  virtual ConfigResult GetLanMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetLanMaxTime(const DWORD* value) = 0;

  /// `PrintFileMaxTime`: the longest wait of a dialog about printing. Optional.
  virtual ConfigResult GetPrintFileMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetPrintFileMaxTime(const DWORD* value) = 0;

  /// `RemovableMaxTime`: the longest wait of a dialog about removable devices. Optional.
  virtual ConfigResult GetRemovableMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetRemovableMaxTime(const DWORD* value) = 0;

  /// `WebPostMaxTime`: the longest wait of a dialog about posting to the web. Optional.
  virtual ConfigResult GetWebPostMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetWebPostMaxTime(const DWORD* value) = 0;

  /// `ApplicationMaxTime`: the longest wait of a dialog about applications. Optional.
  virtual ConfigResult GetApplicationMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetApplicationMaxTime(const DWORD* value) = 0;

  /// `ClipboardMaxTime`: the longest wait of a dialog about the clipboard. Optional.
  virtual ConfigResult GetClipboardMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetClipboardMaxTime(const DWORD* value) = 0;

  /// `EmailMaxTime`: the longest wait of a dialog about e-mail. Optional.
  virtual ConfigResult GetEmailMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetEmailMaxTime(const DWORD* value) = 0;
};

/// The values of the attribute `Mode` of `UserInterface`.
enum UserInterfaceMode : DWORD {
  kUserInterfaceModeNormal = 0,      ///< "NORMAL"
  kUserInterfaceModeSilent = 1,      ///< "SILENT"
  kUserInterfaceModeUnattended = 2,  ///< "UNATTENDED"
};

/// The values of the attribute `DefaultActionOnUserPromptTimeout` of `UserInterface`.
enum UserPromptTimeoutAction : DWORD {
  kUserPromptTimeoutActionAllow = 0,        ///< "ALLOW"
  kUserPromptTimeoutActionBlock = 1,        ///< "BLOCK"
  kUserPromptTimeoutActionBlockReview = 2,  ///< "BLOCK_REVIEW"
};

/// Element `UserInterface`: what the user sees of the agent, and what the user may do.
class IUserInterface : public tolva::node::INode {
 public:
  virtual IUserInterface& CopyFrom(const IUserInterface& other) = 0;

  /// `Mode`: the mode of the user interface: normal, silent or unattended. Required.
  ///
  /// The value is a UserInterfaceMode.
  virtual DWORD GetMode() const = 0;
  virtual ConfigResult SetMode(const DWORD* value) = 0;

  /// `EnableSuperBypass`: 1 if the super bypass is enabled, 0 if not. Required.
  virtual DWORD GetEnableSuperBypass() const = 0;
  virtual ConfigResult SetEnableSuperBypass(const DWORD* value) = 0;

  /// `EnableRemoteBypass`: 1 if the remote bypass is enabled, 0 if not. Required.
  virtual DWORD GetEnableRemoteBypass() const = 0;
  virtual ConfigResult SetEnableRemoteBypass(const DWORD* value) = 0;

  /// `RemoteBypassPromptAdditionalMessage`: a message that is added to the prompt of the remote
  /// bypass. Optional.
  virtual ConfigResult GetRemoteBypassPromptAdditionalMessage(std::wstring* out) const = 0;
  virtual ConfigResult SetRemoteBypassPromptAdditionalMessage(const std::wstring* value) = 0;

  /// `EnableLocalBypassButton`: 1 if the button for the local bypass is enabled, 0 if not.
  /// Optional.
  virtual ConfigResult GetEnableLocalBypassButton(DWORD* out) const = 0;
  virtual ConfigResult SetEnableLocalBypassButton(const DWORD* value) = 0;

  /// `LocalBypassButtonTimeout`: the timeout of the button for the local bypass. Optional.
  virtual ConfigResult GetLocalBypassButtonTimeout(DWORD* out) const = 0;
  virtual ConfigResult SetLocalBypassButtonTimeout(const DWORD* value) = 0;

  /// `DefaultActionOnUserPromptTimeout`: what happens to an operation if the user does not answer a
  /// prompt in time. Optional.
  ///
  /// The value is a UserPromptTimeoutAction.
  virtual ConfigResult GetDefaultActionOnUserPromptTimeout(DWORD* out) const = 0;
  virtual ConfigResult SetDefaultActionOnUserPromptTimeout(const DWORD* value) = 0;

  /// `AdminPasswordHash`: the hash of the administrator password, as text that the library does not
  /// interpret. Optional.
  virtual ConfigResult GetAdminPasswordHash(std::wstring* out) const = 0;
  virtual ConfigResult SetAdminPasswordHash(const std::wstring* value) = 0;

  /// `DisableScanProgressTooltip`: 1 if the tooltip about the progress of a scan is disabled, 0 if
  /// not. Optional.
  virtual ConfigResult GetDisableScanProgressTooltip(DWORD* out) const = 0;
  virtual ConfigResult SetDisableScanProgressTooltip(const DWORD* value) = 0;

  /// `DisableFileOperationTooltip`: 1 if the tooltip about file operations is disabled, 0 if not.
  /// Optional.
  virtual ConfigResult GetDisableFileOperationTooltip(DWORD* out) const = 0;
  virtual ConfigResult SetDisableFileOperationTooltip(const DWORD* value) = 0;

  /// `ShowExportDecryptToolMenu`: 1 if the menu item for exporting the decryption tool is shown, 0
  /// if not. Optional.
  virtual ConfigResult GetShowExportDecryptToolMenu(DWORD* out) const = 0;
  virtual ConfigResult SetShowExportDecryptToolMenu(const DWORD* value) = 0;

  /// `ShowConfirmDialogTimer`: 1 if confirmation dialogs show a timer, 0 if not. Optional.
  virtual ConfigResult GetShowConfirmDialogTimer(DWORD* out) const = 0;
  virtual ConfigResult SetShowConfirmDialogTimer(const DWORD* value) = 0;

  /// `ShowConfirmViolatedDetails`: 1 if confirmation dialogs show the details of the violation, 0
  /// if not. Optional.
  virtual ConfigResult GetShowConfirmViolatedDetails(DWORD* out) const = 0;
  virtual ConfigResult SetShowConfirmViolatedDetails(const DWORD* value) = 0;

  /// `ShowDetailsOnDataReviewCenter`: 1 if the data review center shows details, 0 if not.
  /// Optional.
  virtual ConfigResult GetShowDetailsOnDataReviewCenter(DWORD* out) const = 0;
  virtual ConfigResult SetShowDetailsOnDataReviewCenter(const DWORD* value) = 0;

  /// `ShowDataReviewCenter`: 1 if the data review center is shown, 0 if not. Optional.
  virtual ConfigResult GetShowDataReviewCenter(DWORD* out) const = 0;
  virtual ConfigResult SetShowDataReviewCenter(const DWORD* value) = 0;

  /// `ConfirmDialogTime`: how long a confirmation dialog waits for the user, by channel. Optional.
  virtual ConfigResult GetConfirmDialogTime(IConfirmDialogTime** out) = 0;
  virtual ConfigResult SetConfirmDialogTime(const IConfirmDialogTime* child) = 0;
};

/// Element `Log`: the settings of the agent's log.
class ILog : public tolva::node::INode {
 public:
  virtual ILog& CopyFrom(const ILog& other) = 0;

  /// `MaxLogSize`: the largest size of the log. Optional.
  virtual ConfigResult GetMaxLogSize(DWORD* out) const = 0;
  virtual ConfigResult SetMaxLogSize(const DWORD* value) = 0;
};

/// Element `TamperProtection`: the agent's protection against tampering.
class ITamperProtection : public tolva::node::INode {
 public:
  virtual ITamperProtection& CopyFrom(const ITamperProtection& other) = 0;

  /// `Enable`: 1 if the agent protects itself against tampering, 0 if not. Optional.
  virtual ConfigResult GetEnable(DWORD* out) const = 0;
  virtual ConfigResult SetEnable(const DWORD* value) = 0;
};

/// Element `ExcludedApps`: the applications to which the policy does not apply.
class IExcludedApps : public tolva::node::INode {
 public:
  virtual IExcludedApps& CopyFrom(const IExcludedApps& other) = 0;

  /// `ArCondition`: an application to which the policy does not apply. Repeated.
  virtual DWORD GetArConditionCount() const = 0;
  virtual IArCondition* GetArConditionAt(DWORD index) = 0;
  virtual ConfigResult AddArCondition(const IArCondition* item) = 0;
  virtual ConfigResult InsertArConditionAt(DWORD index, const IArCondition* item) = 0;
  virtual void RemoveArConditionAt(DWORD index) = 0;
  virtual void RemoveAllArCondition() = 0;
};

/// Element `ContainedFiles`: the limits of the store of contained files.
class IContainedFiles : public tolva::node::INode {
 public:
  virtual IContainedFiles& CopyFrom(const IContainedFiles& other) = 0;

  /// `LifeTime`: how long a contained file is kept. Optional.
  virtual ConfigResult GetLifeTime(DWORD* out) const = 0;
  virtual ConfigResult SetLifeTime(const DWORD* value) = 0;

  /// `UpperLimit`: the upper limit of the store. Optional.
  virtual ConfigResult GetUpperLimit(DWORD* out) const = 0;
  virtual ConfigResult SetUpperLimit(const DWORD* value) = 0;

  /// `MinDiskSpace`: the minimum disk space. Optional.
  virtual ConfigResult GetMinDiskSpace(DWORD* out) const = 0;
  virtual ConfigResult SetMinDiskSpace(const DWORD* value) = 0;

  /// `IgnoreSpaceLimit`: 1 if the space limit is ignored, 0 if not. Optional.
  virtual ConfigResult GetIgnoreSpaceLimit(DWORD* out) const = 0;
  virtual ConfigResult SetIgnoreSpaceLimit(const DWORD* value) = 0;
};

/// Element `TelemetryCollection`: the collection of telemetry.
class ITelemetryCollection : public tolva::node::INode {
 public:
  virtual ITelemetryCollection& CopyFrom(const ITelemetryCollection& other) = 0;

  /// `Enable`: 1 if telemetry is collected, 0 if not. Optional.
  virtual ConfigResult GetEnable(DWORD* out) const = 0;
  virtual ConfigResult SetEnable(const DWORD* value) = 0;
};

/// Element `ILPClientConfiguration`: the root of the endpoint data-loss-prevention policy.
class IILPClientConfiguration : public tolva::node::IConfigurationRoot<IILPClientConfiguration> {
 public:
  /// `BypassVersion`. Optional.
  virtual ConfigResult GetBypassVersion(std::wstring* out) const = 0;
  virtual ConfigResult SetBypassVersion(const std::wstring* value) = 0;

  /// `LocationArray`: the network locations. Required.
  virtual ILocationArray* GetLocationArray() = 0;
  virtual ConfigResult SetLocationArray(const ILocationArray* child) = 0;

  /// `UserInterface`: what the user sees of the agent, and what the user may do. Required.
  virtual IUserInterface* GetUserInterface() = 0;
  virtual ConfigResult SetUserInterface(const IUserInterface* child) = 0;

  /// `Log`: the settings of the agent's log. Optional.
  virtual ConfigResult GetLog(ILog** out) = 0;
  virtual ConfigResult SetLog(const ILog* child) = 0;

  /// `Discovery`: the search for data in the files of the endpoint. Optional.
  virtual ConfigResult GetDiscovery(IDiscovery** out) = 0;
  virtual ConfigResult SetDiscovery(const IDiscovery* child) = 0;

  /// `TamperProtection`: the agent's protection against tampering. Optional.
  virtual ConfigResult GetTamperProtection(ITamperProtection** out) = 0;
  virtual ConfigResult SetTamperProtection(const ITamperProtection* child) = 0;

  /// `ExcludedApps`: the applications to which the policy does not apply. Optional.
  virtual ConfigResult GetExcludedApps(IExcludedApps** out) = 0;
  virtual ConfigResult SetExcludedApps(const IExcludedApps* child) = 0;

  /// `ContainedFiles`: the limits of the store of contained files. Optional.
  virtual ConfigResult GetContainedFiles(IContainedFiles** out) = 0;
  virtual ConfigResult SetContainedFiles(const IContainedFiles* child) = 0;

  /// `Encryption`: the encryption keys. Optional.
  virtual ConfigResult GetEncryption(IEncryption** out) = 0;
  virtual ConfigResult SetEncryption(const IEncryption* child) = 0;

  /// `TelemetryCollection`: the collection of telemetry. Optional.
  virtual ConfigResult GetTelemetryCollection(ITelemetryCollection** out) = 0;
  virtual ConfigResult SetTelemetryCollection(const ITelemetryCollection* child) = 0;

  /// Whether the child `ActiveDirectory` is present: 0 if it is not, any other number if it is. The
  /// number is kept as given; null stores 0. Both functions return 0.
  virtual ConfigResult GetActiveDirectoryPresent(DWORD* out) const = 0;
  virtual ConfigResult SetActiveDirectoryPresent(const DWORD* value) = 0;

  /// `ActiveDirectory`: the agent's Active Directory settings. Optional.
  ///
  /// The setter copies the `DefaultDomain` of the child, which the child's own `CopyFrom` does not.
  /// Null makes the child absent and returns 0.
  virtual ConfigResult GetActiveDirectory(ClientConfig::IActiveDirectory** out) = 0;
  virtual ConfigResult SetActiveDirectory(const ClientConfig::IActiveDirectory* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IILPProtection* ILPProtection_CreateNewInstance();
TOLVA_API ILocation* Location_CreateNewInstance();
TOLVA_API ILocationArray* LocationArray_CreateNewInstance();
TOLVA_API IConfirmDialogTime* ConfirmDialogTime_CreateNewInstance();
TOLVA_API IUserInterface* UserInterface_CreateNewInstance();
TOLVA_API ILog* Log_CreateNewInstance();
TOLVA_API ITamperProtection* TamperProtection_CreateNewInstance();
TOLVA_API IExcludedApps* ExcludedApps_CreateNewInstance();
TOLVA_API IContainedFiles* ContainedFiles_CreateNewInstance();
TOLVA_API ITelemetryCollection* TelemetryCollection_CreateNewInstance();
TOLVA_API IILPClientConfiguration* ILPClientConfiguration_CreateNewInstance();

}  // namespace TolvaInterface
