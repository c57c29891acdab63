// The classes of tolva/policy/policy.h.
#pragma once

#include <tolva/policy/policy.h>

#include <string>

#include "clientconfig/active_directory.h"
#include "node/configuration_root.h"
#include "policy/channels.h"
#include "policy/conditions.h"
#include "policy/discovery.h"
#include "policy/document.h"
#include "policy/encryption.h"
#include "policy/storage_media.h"
#include "policy/web.h"

namespace TolvaInterface {

// The largest children are created on first use: a protection takes less than 1 KB then, for the
// reason that ChildList has for the size of its blocks.
class CILPProtection final : public Node<CILPProtection, IILPProtection> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, CloseActionOnAnalysisFailed, closeActionOnAnalysisFailed_);
  TOLVA_OPTIONAL(DWORD, DisableBlockingCapabilities, disableBlockingCapabilities_);
  TOLVA_OPTIONAL(DWORD, EnableMonitoringRemoteBypass, enableMonitoringRemoteBypass_);
  TOLVA_OPTIONAL(DWORD, EnableTamperProtection, enableTamperProtection_);
  TOLVA_OPTIONAL_CHILD(CILPRemovableMedia, ILPRemovableMedia, ilpRemovableMedia_);
  TOLVA_OPTIONAL_CHILD(CILPRemoteMedia, ILPRemoteMedia, ilpRemoteMedia_);
  TOLVA_LAZY_CHILD(CILPClipboard, ILPClipboard, ilpClipboard_);
  TOLVA_LAZY_CHILD(CILPPrinter, ILPPrinter, ilpPrinter_);
  TOLVA_OPTIONAL_CHILD(CILPAppFile, ILPAppFile, ilpAppFile_);
  TOLVA_OPTIONAL_CHILD(CILPPrintScreen, ILPPrintScreen, ilpPrintScreen_);
  TOLVA_LAZY_CHILD(CILPWebApp, ILPWebApp, ilpWebApp_);
  TOLVA_OPTIONAL_CHILD(CILPFixedMedia, ILPFixedMedia, ilpFixedMedia_);
  TOLVA_OPTIONAL_CHILD(CILPEmail, ILPEmail, ilpEmail_);
  TOLVA_OPTIONAL_CHILD(CILPOpticalMedia, ILPOpticalMedia, ilpOpticalMedia_);
  TOLVA_LAZY_CHILD(CILPInLineProxy, ILPInLineProxy, ilpInLineProxy_);
};

class CLocation final : public Node<CLocation, ILocation> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(Name, name_);
  TOLVA_OPTIONAL(std::wstring, Desc, desc_);
  TOLVA_OPTIONAL(DWORD, CriteriaCPSconnection, criteriaCPSconnection_);
  TOLVA_LAZY_CHILD(CILPProtection, ILPProtection, ilpProtection_);
};

class CLocationArray final : public Node<CLocationArray, ILocationArray> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CLocation, Location, locations_);
};

class CConfirmDialogTime final : public Node<CConfirmDialogTime, IConfirmDialogTime> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, LanMaxTime, lanMaxTime_);
  TOLVA_OPTIONAL(DWORD, PrintFileMaxTime, printFileMaxTime_);
  TOLVA_OPTIONAL(DWORD, RemovableMaxTime, removableMaxTime_);
  TOLVA_OPTIONAL(DWORD, WebPostMaxTime, webPostMaxTime_);
  TOLVA_OPTIONAL(DWORD, ApplicationMaxTime, applicationMaxTime_);
  TOLVA_OPTIONAL(DWORD, ClipboardMaxTime, clipboardMaxTime_);
  TOLVA_OPTIONAL(DWORD, EmailMaxTime, emailMaxTime_);
};

class CUserInterface final : public Node<CUserInterface, IUserInterface> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Mode, mode_);
  TOLVA_NUMBER(EnableSuperBypass, enableSuperBypass_);
  TOLVA_NUMBER(EnableRemoteBypass, enableRemoteBypass_);
  TOLVA_OPTIONAL(std::wstring, RemoteBypassPromptAdditionalMessage,
                 remoteBypassPromptAdditionalMessage_);
  TOLVA_OPTIONAL(DWORD, EnableLocalBypassButton, enableLocalBypassButton_);
  TOLVA_OPTIONAL(DWORD, LocalBypassButtonTimeout, localBypassButtonTimeout_);
  TOLVA_OPTIONAL(DWORD, DefaultActionOnUserPromptTimeout, defaultActionOnUserPromptTimeout_);
  TOLVA_OPTIONAL(std::wstring, AdminPasswordHash, adminPasswordHash_);
  TOLVA_OPTIONAL(DWORD, DisableScanProgressTooltip, disableScanProgressTooltip_);
  TOLVA_OPTIONAL(DWORD, DisableFileOperationTooltip, disableFileOperationTooltip_);
  TOLVA_OPTIONAL(DWORD, ShowExportDecryptToolMenu, showExportDecryptToolMenu_);
  TOLVA_OPTIONAL(DWORD, ShowConfirmDialogTimer, showConfirmDialogTimer_);
  TOLVA_OPTIONAL(DWORD, ShowConfirmViolatedDetails, showConfirmViolatedDetails_);
  TOLVA_OPTIONAL(DWORD, ShowDetailsOnDataReviewCenter, showDetailsOnDataReviewCenter_);
  TOLVA_OPTIONAL(DWORD, ShowDataReviewCenter, showDataReviewCenter_);
  TOLVA_OPTIONAL_CHILD(CConfirmDialogTime, ConfirmDialogTime, confirmDialogTime_);
};

class CLog final : public Node<CLog, ILog> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, MaxLogSize, maxLogSize_);
};

class CTamperProtection final : public Node<CTamperProtection, ITamperProtection> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Enable, enable_);
};

class CExcludedApps final : public ArConditions<CExcludedApps, IExcludedApps> {
 public:
  static const Schema kSchema;
};

class CContainedFiles final : public Node<CContainedFiles, IContainedFiles> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, LifeTime, lifeTime_);
  TOLVA_OPTIONAL(DWORD, UpperLimit, upperLimit_);
  TOLVA_OPTIONAL(DWORD, MinDiskSpace, minDiskSpace_);
  TOLVA_OPTIONAL(DWORD, IgnoreSpaceLimit, ignoreSpaceLimit_);
};

class CTelemetryCollection final : public Node<CTelemetryCollection, ITelemetryCollection> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Enable, enable_);
};

class CILPClientConfiguration final
    : public ConfigurationRoot<CILPClientConfiguration, IILPClientConfiguration> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, BypassVersion, bypassVersion_);
  TOLVA_CHILD(CLocationArray, LocationArray, locationArray_);
  TOLVA_CHILD(CUserInterface, UserInterface, userInterface_);
  TOLVA_OPTIONAL_CHILD(CLog, Log, log_);
  TOLVA_OPTIONAL_CHILD(CDiscovery, Discovery, discovery_);
  TOLVA_OPTIONAL_CHILD(CTamperProtection, TamperProtection, tamperProtection_);
  TOLVA_OPTIONAL_CHILD(CExcludedApps, ExcludedApps, excludedApps_);
  TOLVA_OPTIONAL_CHILD(CContainedFiles, ContainedFiles, containedFiles_);
  TOLVA_OPTIONAL_CHILD(CEncryption, Encryption, encryption_);
  TOLVA_OPTIONAL_CHILD(CTelemetryCollection, TelemetryCollection, telemetryCollection_);
  TOLVA_PRESENCE(ActiveDirectory, activeDirectory_);
  TOLVA_OPTIONAL_CHILD(ClientConfig::CActiveDirectory, ActiveDirectory, activeDirectory_);
};

}  // namespace TolvaInterface
