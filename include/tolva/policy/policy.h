// The endpoint data-loss-prevention policy: its root, the network locations with their
// protections, and the small sections under the root.
//
// Units are the agent's; numbers are carried as they stand.
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

  /// `DisableBlockingCapabilities`. Optional.
  virtual ConfigResult GetDisableBlockingCapabilities(DWORD* out) const = 0;
  virtual ConfigResult SetDisableBlockingCapabilities(const DWORD* value) = 0;

  /// `EnableMonitoringRemoteBypass`. Optional.
  virtual ConfigResult GetEnableMonitoringRemoteBypass(DWORD* out) const = 0;
  virtual ConfigResult SetEnableMonitoringRemoteBypass(const DWORD* value) = 0;

  /// `EnableTamperProtection`: whether the agent defends itself. Optional.
  virtual ConfigResult GetEnableTamperProtection(DWORD* out) const = 0;
  virtual ConfigResult SetEnableTamperProtection(const DWORD* value) = 0;

  /// The child `ILPRemovableMedia`. Optional.
  virtual ConfigResult GetILPRemovableMedia(IILPRemovableMedia** out) = 0;
  virtual ConfigResult SetILPRemovableMedia(const IILPRemovableMedia* child) = 0;

  /// The child `ILPRemoteMedia`. Optional.
  virtual ConfigResult GetILPRemoteMedia(IILPRemoteMedia** out) = 0;
  virtual ConfigResult SetILPRemoteMedia(const IILPRemoteMedia* child) = 0;

  /// The child `ILPClipboard`. Optional.
  virtual ConfigResult GetILPClipboard(IILPClipboard** out) = 0;
  virtual ConfigResult SetILPClipboard(const IILPClipboard* child) = 0;

  /// The child `ILPPrinter`. Optional.
  virtual ConfigResult GetILPPrinter(IILPPrinter** out) = 0;
  virtual ConfigResult SetILPPrinter(const IILPPrinter* child) = 0;

  /// The child `ILPAppFile`. Optional.
  virtual ConfigResult GetILPAppFile(IILPAppFile** out) = 0;
  virtual ConfigResult SetILPAppFile(const IILPAppFile* child) = 0;

  /// The child `ILPPrintScreen`. Optional.
  virtual ConfigResult GetILPPrintScreen(IILPPrintScreen** out) = 0;
  virtual ConfigResult SetILPPrintScreen(const IILPPrintScreen* child) = 0;

  /// The child `ILPWebApp`. Optional.
  virtual ConfigResult GetILPWebApp(IILPWebApp** out) = 0;
  virtual ConfigResult SetILPWebApp(const IILPWebApp* child) = 0;

  /// The child `ILPFixedMedia`. Optional.
  virtual ConfigResult GetILPFixedMedia(IILPFixedMedia** out) = 0;
  virtual ConfigResult SetILPFixedMedia(const IILPFixedMedia* child) = 0;

  /// The child `ILPEmail`. Optional.
  virtual ConfigResult GetILPEmail(IILPEmail** out) = 0;
  virtual ConfigResult SetILPEmail(const IILPEmail* child) = 0;

  /// The child `ILPOpticalMedia`. Optional.
  virtual ConfigResult GetILPOpticalMedia(IILPOpticalMedia** out) = 0;
  virtual ConfigResult SetILPOpticalMedia(const IILPOpticalMedia* child) = 0;

  /// The child `ILPInlineProxy`. Optional. Its writing is announced by two diagnostics.
  virtual ConfigResult GetILPInLineProxy(IILPInLineProxy** out) = 0;
  virtual ConfigResult SetILPInLineProxy(const IILPInLineProxy* child) = 0;
};

/// Element `Location`: a network location.
class ILocation : public tolva::node::INode {
 public:
  virtual ILocation& CopyFrom(const ILocation& other) = 0;

  /// `Name`: its name. Required.
  virtual const std::wstring& GetName() const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;

  /// `Desc`: a description. Optional.
  virtual ConfigResult GetDesc(std::wstring* out) const = 0;
  virtual ConfigResult SetDesc(const std::wstring* value) = 0;

  /// `CriteriaCPSconnection`. Optional.
  virtual ConfigResult GetCriteriaCPSconnection(DWORD* out) const = 0;
  virtual ConfigResult SetCriteriaCPSconnection(const DWORD* value) = 0;

  /// The child `ILPProtection`. Optional.
  virtual ConfigResult GetILPProtection(IILPProtection** out) = 0;
  virtual ConfigResult SetILPProtection(const IILPProtection* child) = 0;
};

/// Element `LocationArray`.
class ILocationArray : public tolva::node::INode {
 public:
  virtual ILocationArray& CopyFrom(const ILocationArray& other) = 0;

  /// Children `Location`.
  virtual DWORD GetLocationCount() const = 0;
  virtual ILocation* GetLocationAt(DWORD index) = 0;
  virtual ConfigResult AddLocation(const ILocation* item) = 0;
  virtual ConfigResult InsertLocationAt(DWORD index, const ILocation* item) = 0;
  virtual void RemoveLocationAt(DWORD index) = 0;
  virtual void RemoveAllLocation() = 0;
};

/// Element `ConfirmDialogTime`: how long a dialog waits, by channel.
class IConfirmDialogTime : public tolva::node::INode {
 public:
  virtual IConfirmDialogTime& CopyFrom(const IConfirmDialogTime& other) = 0;

  /// `LanMaxTime`. Optional.
  virtual ConfigResult GetLanMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetLanMaxTime(const DWORD* value) = 0;

  /// `PrintFileMaxTime`. Optional.
  virtual ConfigResult GetPrintFileMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetPrintFileMaxTime(const DWORD* value) = 0;

  /// `RemovableMaxTime`. Optional.
  virtual ConfigResult GetRemovableMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetRemovableMaxTime(const DWORD* value) = 0;

  /// `WebPostMaxTime`. Optional.
  virtual ConfigResult GetWebPostMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetWebPostMaxTime(const DWORD* value) = 0;

  /// `ApplicationMaxTime`. Optional.
  virtual ConfigResult GetApplicationMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetApplicationMaxTime(const DWORD* value) = 0;

  /// `ClipboardMaxTime`. Optional.
  virtual ConfigResult GetClipboardMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetClipboardMaxTime(const DWORD* value) = 0;

  /// `EmailMaxTime`. Optional.
  virtual ConfigResult GetEmailMaxTime(DWORD* out) const = 0;
  virtual ConfigResult SetEmailMaxTime(const DWORD* value) = 0;
};

/// The values of `UserInterface`'s `Mode`.
enum UserInterfaceMode : DWORD {
  kUserInterfaceModeNormal = 0,      ///< "NORMAL"
  kUserInterfaceModeSilent = 1,      ///< "SILENT"
  kUserInterfaceModeUnattended = 2,  ///< "UNATTENDED"
};

/// The values of `UserInterface`'s `DefaultActionOnUserPromptTimeout`.
enum UserPromptTimeoutAction : DWORD {
  kUserPromptTimeoutActionAllow = 0,        ///< "ALLOW"
  kUserPromptTimeoutActionBlock = 1,        ///< "BLOCK"
  kUserPromptTimeoutActionBlockReview = 2,  ///< "BLOCK_REVIEW"
};

/// Element `UserInterface`: what the user sees of the agent, and may do.
class IUserInterface : public tolva::node::INode {
 public:
  virtual IUserInterface& CopyFrom(const IUserInterface& other) = 0;

  /// `Mode`: a UserInterfaceMode. Required.
  virtual DWORD GetMode() const = 0;
  virtual ConfigResult SetMode(const DWORD* value) = 0;

  /// `EnableSuperBypass`. Required.
  virtual DWORD GetEnableSuperBypass() const = 0;
  virtual ConfigResult SetEnableSuperBypass(const DWORD* value) = 0;

  /// `EnableRemoteBypass`. Required.
  virtual DWORD GetEnableRemoteBypass() const = 0;
  virtual ConfigResult SetEnableRemoteBypass(const DWORD* value) = 0;

  /// `RemoteBypassPromptAdditionalMessage`. Optional.
  virtual ConfigResult GetRemoteBypassPromptAdditionalMessage(std::wstring* out) const = 0;
  virtual ConfigResult SetRemoteBypassPromptAdditionalMessage(const std::wstring* value) = 0;

  /// `EnableLocalBypassButton`. Optional.
  virtual ConfigResult GetEnableLocalBypassButton(DWORD* out) const = 0;
  virtual ConfigResult SetEnableLocalBypassButton(const DWORD* value) = 0;

  /// `LocalBypassButtonTimeout`. Optional.
  virtual ConfigResult GetLocalBypassButtonTimeout(DWORD* out) const = 0;
  virtual ConfigResult SetLocalBypassButtonTimeout(const DWORD* value) = 0;

  /// `DefaultActionOnUserPromptTimeout`: a UserPromptTimeoutAction. Optional.
  virtual ConfigResult GetDefaultActionOnUserPromptTimeout(DWORD* out) const = 0;
  virtual ConfigResult SetDefaultActionOnUserPromptTimeout(const DWORD* value) = 0;

  /// `AdminPasswordHash`: a hash as text, never interpreted. Optional.
  virtual ConfigResult GetAdminPasswordHash(std::wstring* out) const = 0;
  virtual ConfigResult SetAdminPasswordHash(const std::wstring* value) = 0;

  /// `DisableScanProgressTooltip`. Optional.
  virtual ConfigResult GetDisableScanProgressTooltip(DWORD* out) const = 0;
  virtual ConfigResult SetDisableScanProgressTooltip(const DWORD* value) = 0;

  /// `DisableFileOperationTooltip`. Optional.
  virtual ConfigResult GetDisableFileOperationTooltip(DWORD* out) const = 0;
  virtual ConfigResult SetDisableFileOperationTooltip(const DWORD* value) = 0;

  /// `ShowExportDecryptToolMenu`. Optional.
  virtual ConfigResult GetShowExportDecryptToolMenu(DWORD* out) const = 0;
  virtual ConfigResult SetShowExportDecryptToolMenu(const DWORD* value) = 0;

  /// `ShowConfirmDialogTimer`. Optional.
  virtual ConfigResult GetShowConfirmDialogTimer(DWORD* out) const = 0;
  virtual ConfigResult SetShowConfirmDialogTimer(const DWORD* value) = 0;

  /// `ShowConfirmViolatedDetails`. Optional.
  virtual ConfigResult GetShowConfirmViolatedDetails(DWORD* out) const = 0;
  virtual ConfigResult SetShowConfirmViolatedDetails(const DWORD* value) = 0;

  /// `ShowDetailsOnDataReviewCenter`. Optional.
  virtual ConfigResult GetShowDetailsOnDataReviewCenter(DWORD* out) const = 0;
  virtual ConfigResult SetShowDetailsOnDataReviewCenter(const DWORD* value) = 0;

  /// `ShowDataReviewCenter`. Optional.
  virtual ConfigResult GetShowDataReviewCenter(DWORD* out) const = 0;
  virtual ConfigResult SetShowDataReviewCenter(const DWORD* value) = 0;

  /// The child `ConfirmDialogTime`. Optional.
  virtual ConfigResult GetConfirmDialogTime(IConfirmDialogTime** out) = 0;
  virtual ConfigResult SetConfirmDialogTime(const IConfirmDialogTime* child) = 0;
};

/// Element `Log`.
class ILog : public tolva::node::INode {
 public:
  virtual ILog& CopyFrom(const ILog& other) = 0;

  /// `MaxLogSize`. Optional.
  virtual ConfigResult GetMaxLogSize(DWORD* out) const = 0;
  virtual ConfigResult SetMaxLogSize(const DWORD* value) = 0;
};

/// Element `TamperProtection`.
class ITamperProtection : public tolva::node::INode {
 public:
  virtual ITamperProtection& CopyFrom(const ITamperProtection& other) = 0;

  /// `Enable`: whether the agent defends itself. Optional.
  virtual ConfigResult GetEnable(DWORD* out) const = 0;
  virtual ConfigResult SetEnable(const DWORD* value) = 0;
};

/// Element `ExcludedApps`: applications that the policy does not concern.
class IExcludedApps : public tolva::node::INode {
 public:
  virtual IExcludedApps& CopyFrom(const IExcludedApps& other) = 0;

  /// The applications: children `ArCondition`.
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

  /// `LifeTime`. Optional.
  virtual ConfigResult GetLifeTime(DWORD* out) const = 0;
  virtual ConfigResult SetLifeTime(const DWORD* value) = 0;

  /// `UpperLimit`. Optional.
  virtual ConfigResult GetUpperLimit(DWORD* out) const = 0;
  virtual ConfigResult SetUpperLimit(const DWORD* value) = 0;

  /// `MinDiskSpace`. Optional.
  virtual ConfigResult GetMinDiskSpace(DWORD* out) const = 0;
  virtual ConfigResult SetMinDiskSpace(const DWORD* value) = 0;

  /// `IgnoreSpaceLimit`. Optional.
  virtual ConfigResult GetIgnoreSpaceLimit(DWORD* out) const = 0;
  virtual ConfigResult SetIgnoreSpaceLimit(const DWORD* value) = 0;
};

/// Element `TelemetryCollection`.
class ITelemetryCollection : public tolva::node::INode {
 public:
  virtual ITelemetryCollection& CopyFrom(const ITelemetryCollection& other) = 0;

  /// `Enable`: whether telemetry is collected. Optional.
  virtual ConfigResult GetEnable(DWORD* out) const = 0;
  virtual ConfigResult SetEnable(const DWORD* value) = 0;
};

/// Element `ILPClientConfiguration`, the root.
class IILPClientConfiguration : public tolva::node::IConfigurationRoot<IILPClientConfiguration> {
 public:
  /// `BypassVersion`. Optional.
  virtual ConfigResult GetBypassVersion(std::wstring* out) const = 0;
  virtual ConfigResult SetBypassVersion(const std::wstring* value) = 0;

  /// The child `LocationArray`. Required.
  virtual ILocationArray* GetLocationArray() = 0;
  virtual ConfigResult SetLocationArray(const ILocationArray* child) = 0;

  /// The child `UserInterface`. Required.
  virtual IUserInterface* GetUserInterface() = 0;
  virtual ConfigResult SetUserInterface(const IUserInterface* child) = 0;

  /// The child `Log`. Optional.
  virtual ConfigResult GetLog(ILog** out) = 0;
  virtual ConfigResult SetLog(const ILog* child) = 0;

  /// The child `Discovery`. Optional.
  virtual ConfigResult GetDiscovery(IDiscovery** out) = 0;
  virtual ConfigResult SetDiscovery(const IDiscovery* child) = 0;

  /// The child `TamperProtection`. Optional.
  virtual ConfigResult GetTamperProtection(ITamperProtection** out) = 0;
  virtual ConfigResult SetTamperProtection(const ITamperProtection* child) = 0;

  /// The child `ExcludedApps`. Optional.
  virtual ConfigResult GetExcludedApps(IExcludedApps** out) = 0;
  virtual ConfigResult SetExcludedApps(const IExcludedApps* child) = 0;

  /// The child `ContainedFiles`. Optional.
  virtual ConfigResult GetContainedFiles(IContainedFiles** out) = 0;
  virtual ConfigResult SetContainedFiles(const IContainedFiles* child) = 0;

  /// The child `Encryption`. Optional.
  virtual ConfigResult GetEncryption(IEncryption** out) = 0;
  virtual ConfigResult SetEncryption(const IEncryption* child) = 0;

  /// The child `TelemetryCollection`. Optional.
  virtual ConfigResult GetTelemetryCollection(ITelemetryCollection** out) = 0;
  virtual ConfigResult SetTelemetryCollection(const ITelemetryCollection* child) = 0;

  /// Whether the child `ActiveDirectory` is present: 0 when not, any other number, kept as given,
  /// when it is. Both return 0; setting null stores 0.
  virtual ConfigResult GetActiveDirectoryPresent(DWORD* out) const = 0;
  virtual ConfigResult SetActiveDirectoryPresent(const DWORD* value) = 0;

  /// The child `ActiveDirectory`. Optional. It is copied through its `DefaultDomain`; null makes it
  /// absent and returns 0.
  virtual ConfigResult GetActiveDirectory(ClientConfig::IActiveDirectory** out) = 0;
  virtual ConfigResult SetActiveDirectory(const ClientConfig::IActiveDirectory* child) = 0;
};

// Each makes a node with default values, which the caller owns.
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
