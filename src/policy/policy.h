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

class CILPProtection final : public Node<CILPProtection, IILPProtection> {
 public:
  static const Schema kSchema;

  ConfigResult GetCloseActionOnAnalysisFailed(DWORD* out) const override {
    return closeActionOnAnalysisFailed_.Get(out);
  }
  ConfigResult SetCloseActionOnAnalysisFailed(const DWORD* value) override {
    return closeActionOnAnalysisFailed_.Set(value);
  }
  ConfigResult GetDisableBlockingCapabilities(DWORD* out) const override {
    return disableBlockingCapabilities_.Get(out);
  }
  ConfigResult SetDisableBlockingCapabilities(const DWORD* value) override {
    return disableBlockingCapabilities_.Set(value);
  }
  ConfigResult GetEnableMonitoringRemoteBypass(DWORD* out) const override {
    return enableMonitoringRemoteBypass_.Get(out);
  }
  ConfigResult SetEnableMonitoringRemoteBypass(const DWORD* value) override {
    return enableMonitoringRemoteBypass_.Set(value);
  }
  ConfigResult GetEnableTamperProtection(DWORD* out) const override {
    return enableTamperProtection_.Get(out);
  }
  ConfigResult SetEnableTamperProtection(const DWORD* value) override {
    return enableTamperProtection_.Set(value);
  }
  ConfigResult GetILPRemovableMedia(IILPRemovableMedia** out) override {
    return ilpRemovableMedia_.Get(out);
  }
  ConfigResult SetILPRemovableMedia(const IILPRemovableMedia* child) override {
    return ilpRemovableMedia_.Set(child);
  }
  ConfigResult GetILPRemoteMedia(IILPRemoteMedia** out) override {
    return ilpRemoteMedia_.Get(out);
  }
  ConfigResult SetILPRemoteMedia(const IILPRemoteMedia* child) override {
    return ilpRemoteMedia_.Set(child);
  }
  ConfigResult GetILPClipboard(IILPClipboard** out) override { return ilpClipboard_.Get(out); }
  ConfigResult SetILPClipboard(const IILPClipboard* child) override {
    return ilpClipboard_.Set(child);
  }
  ConfigResult GetILPPrinter(IILPPrinter** out) override { return ilpPrinter_.Get(out); }
  ConfigResult SetILPPrinter(const IILPPrinter* child) override { return ilpPrinter_.Set(child); }
  ConfigResult GetILPAppFile(IILPAppFile** out) override { return ilpAppFile_.Get(out); }
  ConfigResult SetILPAppFile(const IILPAppFile* child) override { return ilpAppFile_.Set(child); }
  ConfigResult GetILPPrintScreen(IILPPrintScreen** out) override {
    return ilpPrintScreen_.Get(out);
  }
  ConfigResult SetILPPrintScreen(const IILPPrintScreen* child) override {
    return ilpPrintScreen_.Set(child);
  }
  ConfigResult GetILPWebApp(IILPWebApp** out) override { return ilpWebApp_.Get(out); }
  ConfigResult SetILPWebApp(const IILPWebApp* child) override { return ilpWebApp_.Set(child); }
  ConfigResult GetILPFixedMedia(IILPFixedMedia** out) override { return ilpFixedMedia_.Get(out); }
  ConfigResult SetILPFixedMedia(const IILPFixedMedia* child) override {
    return ilpFixedMedia_.Set(child);
  }
  ConfigResult GetILPEmail(IILPEmail** out) override { return ilpEmail_.Get(out); }
  ConfigResult SetILPEmail(const IILPEmail* child) override { return ilpEmail_.Set(child); }
  ConfigResult GetILPOpticalMedia(IILPOpticalMedia** out) override {
    return ilpOpticalMedia_.Get(out);
  }
  ConfigResult SetILPOpticalMedia(const IILPOpticalMedia* child) override {
    return ilpOpticalMedia_.Set(child);
  }
  ConfigResult GetILPInLineProxy(IILPInLineProxy** out) override {
    return ilpInLineProxy_.Get(out);
  }
  ConfigResult SetILPInLineProxy(const IILPInLineProxy* child) override {
    return ilpInLineProxy_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> closeActionOnAnalysisFailed_;
  Optional<DWORD> disableBlockingCapabilities_;
  Optional<DWORD> enableMonitoringRemoteBypass_;
  Optional<DWORD> enableTamperProtection_;
  OptionalChild<CILPRemovableMedia> ilpRemovableMedia_;
  OptionalChild<CILPRemoteMedia> ilpRemoteMedia_;
  OptionalChild<CILPClipboard> ilpClipboard_;
  OptionalChild<CILPPrinter> ilpPrinter_;
  OptionalChild<CILPAppFile> ilpAppFile_;
  OptionalChild<CILPPrintScreen> ilpPrintScreen_;
  OptionalChild<CILPWebApp> ilpWebApp_;
  OptionalChild<CILPFixedMedia> ilpFixedMedia_;
  OptionalChild<CILPEmail> ilpEmail_;
  OptionalChild<CILPOpticalMedia> ilpOpticalMedia_;
  OptionalChild<CILPInLineProxy> ilpInLineProxy_;
};

class CLocation final : public Node<CLocation, ILocation> {
 public:
  static const Schema kSchema;

  const std::wstring& GetName() const override { return name_; }
  ConfigResult SetName(const std::wstring* value) override { return SetRequired(name_, value); }
  ConfigResult GetDesc(std::wstring* out) const override { return desc_.Get(out); }
  ConfigResult SetDesc(const std::wstring* value) override { return desc_.Set(value); }
  ConfigResult GetCriteriaCPSconnection(DWORD* out) const override {
    return criteriaCPSconnection_.Get(out);
  }
  ConfigResult SetCriteriaCPSconnection(const DWORD* value) override {
    return criteriaCPSconnection_.Set(value);
  }
  ConfigResult GetILPProtection(IILPProtection** out) override { return ilpProtection_.Get(out); }
  ConfigResult SetILPProtection(const IILPProtection* child) override {
    return ilpProtection_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  std::wstring name_;
  Optional<std::wstring> desc_;
  Optional<DWORD> criteriaCPSconnection_;
  LazyChild<CILPProtection> ilpProtection_;
};

class CLocationArray final : public Node<CLocationArray, ILocationArray> {
 public:
  static const Schema kSchema;

  DWORD GetLocationCount() const override { return locations_.Count(); }
  ILocation* GetLocationAt(DWORD index) override { return locations_.At(index); }
  ConfigResult AddLocation(const ILocation* item) override { return locations_.Add(item); }
  ConfigResult InsertLocationAt(DWORD index, const ILocation* item) override {
    return locations_.InsertAt(index, item);
  }
  void RemoveLocationAt(DWORD index) override { locations_.RemoveAt(index); }
  void RemoveAllLocation() override { locations_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CLocation> locations_;
};

class CConfirmDialogTime final : public Node<CConfirmDialogTime, IConfirmDialogTime> {
 public:
  static const Schema kSchema;

  ConfigResult GetLanMaxTime(DWORD* out) const override { return lanMaxTime_.Get(out); }
  ConfigResult SetLanMaxTime(const DWORD* value) override { return lanMaxTime_.Set(value); }
  ConfigResult GetPrintFileMaxTime(DWORD* out) const override { return printFileMaxTime_.Get(out); }
  ConfigResult SetPrintFileMaxTime(const DWORD* value) override {
    return printFileMaxTime_.Set(value);
  }
  ConfigResult GetRemovableMaxTime(DWORD* out) const override { return removableMaxTime_.Get(out); }
  ConfigResult SetRemovableMaxTime(const DWORD* value) override {
    return removableMaxTime_.Set(value);
  }
  ConfigResult GetWebPostMaxTime(DWORD* out) const override { return webPostMaxTime_.Get(out); }
  ConfigResult SetWebPostMaxTime(const DWORD* value) override { return webPostMaxTime_.Set(value); }
  ConfigResult GetApplicationMaxTime(DWORD* out) const override {
    return applicationMaxTime_.Get(out);
  }
  ConfigResult SetApplicationMaxTime(const DWORD* value) override {
    return applicationMaxTime_.Set(value);
  }
  ConfigResult GetClipboardMaxTime(DWORD* out) const override { return clipboardMaxTime_.Get(out); }
  ConfigResult SetClipboardMaxTime(const DWORD* value) override {
    return clipboardMaxTime_.Set(value);
  }
  ConfigResult GetEmailMaxTime(DWORD* out) const override { return emailMaxTime_.Get(out); }
  ConfigResult SetEmailMaxTime(const DWORD* value) override { return emailMaxTime_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<DWORD> lanMaxTime_;
  Optional<DWORD> printFileMaxTime_;
  Optional<DWORD> removableMaxTime_;
  Optional<DWORD> webPostMaxTime_;
  Optional<DWORD> applicationMaxTime_;
  Optional<DWORD> clipboardMaxTime_;
  Optional<DWORD> emailMaxTime_;
};

class CUserInterface final : public Node<CUserInterface, IUserInterface> {
 public:
  static const Schema kSchema;

  DWORD GetMode() const override { return mode_; }
  ConfigResult SetMode(const DWORD* value) override { return SetRequired(mode_, value); }
  DWORD GetEnableSuperBypass() const override { return enableSuperBypass_; }
  ConfigResult SetEnableSuperBypass(const DWORD* value) override {
    return SetRequired(enableSuperBypass_, value);
  }
  DWORD GetEnableRemoteBypass() const override { return enableRemoteBypass_; }
  ConfigResult SetEnableRemoteBypass(const DWORD* value) override {
    return SetRequired(enableRemoteBypass_, value);
  }
  ConfigResult GetRemoteBypassPromptAdditionalMessage(std::wstring* out) const override {
    return remoteBypassPromptAdditionalMessage_.Get(out);
  }
  ConfigResult SetRemoteBypassPromptAdditionalMessage(const std::wstring* value) override {
    return remoteBypassPromptAdditionalMessage_.Set(value);
  }
  ConfigResult GetEnableLocalBypassButton(DWORD* out) const override {
    return enableLocalBypassButton_.Get(out);
  }
  ConfigResult SetEnableLocalBypassButton(const DWORD* value) override {
    return enableLocalBypassButton_.Set(value);
  }
  ConfigResult GetLocalBypassButtonTimeout(DWORD* out) const override {
    return localBypassButtonTimeout_.Get(out);
  }
  ConfigResult SetLocalBypassButtonTimeout(const DWORD* value) override {
    return localBypassButtonTimeout_.Set(value);
  }
  ConfigResult GetDefaultActionOnUserPromptTimeout(DWORD* out) const override {
    return defaultActionOnUserPromptTimeout_.Get(out);
  }
  ConfigResult SetDefaultActionOnUserPromptTimeout(const DWORD* value) override {
    return defaultActionOnUserPromptTimeout_.Set(value);
  }
  ConfigResult GetAdminPasswordHash(std::wstring* out) const override {
    return adminPasswordHash_.Get(out);
  }
  ConfigResult SetAdminPasswordHash(const std::wstring* value) override {
    return adminPasswordHash_.Set(value);
  }
  ConfigResult GetDisableScanProgressTooltip(DWORD* out) const override {
    return disableScanProgressTooltip_.Get(out);
  }
  ConfigResult SetDisableScanProgressTooltip(const DWORD* value) override {
    return disableScanProgressTooltip_.Set(value);
  }
  ConfigResult GetDisableFileOperationTooltip(DWORD* out) const override {
    return disableFileOperationTooltip_.Get(out);
  }
  ConfigResult SetDisableFileOperationTooltip(const DWORD* value) override {
    return disableFileOperationTooltip_.Set(value);
  }
  ConfigResult GetShowExportDecryptToolMenu(DWORD* out) const override {
    return showExportDecryptToolMenu_.Get(out);
  }
  ConfigResult SetShowExportDecryptToolMenu(const DWORD* value) override {
    return showExportDecryptToolMenu_.Set(value);
  }
  ConfigResult GetShowConfirmDialogTimer(DWORD* out) const override {
    return showConfirmDialogTimer_.Get(out);
  }
  ConfigResult SetShowConfirmDialogTimer(const DWORD* value) override {
    return showConfirmDialogTimer_.Set(value);
  }
  ConfigResult GetShowConfirmViolatedDetails(DWORD* out) const override {
    return showConfirmViolatedDetails_.Get(out);
  }
  ConfigResult SetShowConfirmViolatedDetails(const DWORD* value) override {
    return showConfirmViolatedDetails_.Set(value);
  }
  ConfigResult GetShowDetailsOnDataReviewCenter(DWORD* out) const override {
    return showDetailsOnDataReviewCenter_.Get(out);
  }
  ConfigResult SetShowDetailsOnDataReviewCenter(const DWORD* value) override {
    return showDetailsOnDataReviewCenter_.Set(value);
  }
  ConfigResult GetShowDataReviewCenter(DWORD* out) const override {
    return showDataReviewCenter_.Get(out);
  }
  ConfigResult SetShowDataReviewCenter(const DWORD* value) override {
    return showDataReviewCenter_.Set(value);
  }
  ConfigResult GetConfirmDialogTime(IConfirmDialogTime** out) override {
    return confirmDialogTime_.Get(out);
  }
  ConfigResult SetConfirmDialogTime(const IConfirmDialogTime* child) override {
    return confirmDialogTime_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD mode_ = 0;
  DWORD enableSuperBypass_ = 0;
  DWORD enableRemoteBypass_ = 0;
  Optional<std::wstring> remoteBypassPromptAdditionalMessage_;
  Optional<DWORD> enableLocalBypassButton_;
  Optional<DWORD> localBypassButtonTimeout_;
  Optional<DWORD> defaultActionOnUserPromptTimeout_;
  Optional<std::wstring> adminPasswordHash_;
  Optional<DWORD> disableScanProgressTooltip_;
  Optional<DWORD> disableFileOperationTooltip_;
  Optional<DWORD> showExportDecryptToolMenu_;
  Optional<DWORD> showConfirmDialogTimer_;
  Optional<DWORD> showConfirmViolatedDetails_;
  Optional<DWORD> showDetailsOnDataReviewCenter_;
  Optional<DWORD> showDataReviewCenter_;
  OptionalChild<CConfirmDialogTime> confirmDialogTime_;
};

class CLog final : public Node<CLog, ILog> {
 public:
  static const Schema kSchema;

  ConfigResult GetMaxLogSize(DWORD* out) const override { return maxLogSize_.Get(out); }
  ConfigResult SetMaxLogSize(const DWORD* value) override { return maxLogSize_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<DWORD> maxLogSize_;
};

class CTamperProtection final : public Node<CTamperProtection, ITamperProtection> {
 public:
  static const Schema kSchema;

  ConfigResult GetEnable(DWORD* out) const override { return enable_.Get(out); }
  ConfigResult SetEnable(const DWORD* value) override { return enable_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<DWORD> enable_;
};

class CExcludedApps final : public ArConditions<CExcludedApps, IExcludedApps> {
 public:
  static const Schema kSchema;
};

class CContainedFiles final : public Node<CContainedFiles, IContainedFiles> {
 public:
  static const Schema kSchema;

  ConfigResult GetLifeTime(DWORD* out) const override { return lifeTime_.Get(out); }
  ConfigResult SetLifeTime(const DWORD* value) override { return lifeTime_.Set(value); }
  ConfigResult GetUpperLimit(DWORD* out) const override { return upperLimit_.Get(out); }
  ConfigResult SetUpperLimit(const DWORD* value) override { return upperLimit_.Set(value); }
  ConfigResult GetMinDiskSpace(DWORD* out) const override { return minDiskSpace_.Get(out); }
  ConfigResult SetMinDiskSpace(const DWORD* value) override { return minDiskSpace_.Set(value); }
  ConfigResult GetIgnoreSpaceLimit(DWORD* out) const override { return ignoreSpaceLimit_.Get(out); }
  ConfigResult SetIgnoreSpaceLimit(const DWORD* value) override {
    return ignoreSpaceLimit_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  Optional<DWORD> lifeTime_;
  Optional<DWORD> upperLimit_;
  Optional<DWORD> minDiskSpace_;
  Optional<DWORD> ignoreSpaceLimit_;
};

class CTelemetryCollection final : public Node<CTelemetryCollection, ITelemetryCollection> {
 public:
  static const Schema kSchema;

  ConfigResult GetEnable(DWORD* out) const override { return enable_.Get(out); }
  ConfigResult SetEnable(const DWORD* value) override { return enable_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<DWORD> enable_;
};

class CILPClientConfiguration final
    : public ConfigurationRoot<CILPClientConfiguration, IILPClientConfiguration> {
 public:
  static const Schema kSchema;

  ConfigResult GetBypassVersion(std::wstring* out) const override {
    return bypassVersion_.Get(out);
  }
  ConfigResult SetBypassVersion(const std::wstring* value) override {
    return bypassVersion_.Set(value);
  }
  ILocationArray* GetLocationArray() override { return &locationArray_; }
  ConfigResult SetLocationArray(const ILocationArray* child) override {
    return SetRequiredChild(locationArray_, child);
  }
  IUserInterface* GetUserInterface() override { return &userInterface_; }
  ConfigResult SetUserInterface(const IUserInterface* child) override {
    return SetRequiredChild(userInterface_, child);
  }
  ConfigResult GetLog(ILog** out) override { return log_.Get(out); }
  ConfigResult SetLog(const ILog* child) override { return log_.Set(child); }
  ConfigResult GetDiscovery(IDiscovery** out) override { return discovery_.Get(out); }
  ConfigResult SetDiscovery(const IDiscovery* child) override { return discovery_.Set(child); }
  ConfigResult GetTamperProtection(ITamperProtection** out) override {
    return tamperProtection_.Get(out);
  }
  ConfigResult SetTamperProtection(const ITamperProtection* child) override {
    return tamperProtection_.Set(child);
  }
  ConfigResult GetExcludedApps(IExcludedApps** out) override { return excludedApps_.Get(out); }
  ConfigResult SetExcludedApps(const IExcludedApps* child) override {
    return excludedApps_.Set(child);
  }
  ConfigResult GetContainedFiles(IContainedFiles** out) override {
    return containedFiles_.Get(out);
  }
  ConfigResult SetContainedFiles(const IContainedFiles* child) override {
    return containedFiles_.Set(child);
  }
  ConfigResult GetEncryption(IEncryption** out) override { return encryption_.Get(out); }
  ConfigResult SetEncryption(const IEncryption* child) override { return encryption_.Set(child); }
  ConfigResult GetTelemetryCollection(ITelemetryCollection** out) override {
    return telemetryCollection_.Get(out);
  }
  ConfigResult SetTelemetryCollection(const ITelemetryCollection* child) override {
    return telemetryCollection_.Set(child);
  }
  ConfigResult GetActiveDirectoryPresent(DWORD* out) const override {
    return activeDirectory_.GetPresent(out);
  }
  ConfigResult SetActiveDirectoryPresent(const DWORD* value) override {
    return activeDirectory_.SetPresent(value);
  }
  ConfigResult GetActiveDirectory(ClientConfig::IActiveDirectory** out) override {
    return activeDirectory_.Get(out);
  }
  ConfigResult SetActiveDirectory(const ClientConfig::IActiveDirectory* child) override {
    return activeDirectory_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<std::wstring> bypassVersion_;
  CLocationArray locationArray_;
  CUserInterface userInterface_;
  OptionalChild<CLog> log_;
  OptionalChild<CDiscovery> discovery_;
  OptionalChild<CTamperProtection> tamperProtection_;
  OptionalChild<CExcludedApps> excludedApps_;
  OptionalChild<CContainedFiles> containedFiles_;
  OptionalChild<CEncryption> encryption_;
  OptionalChild<CTelemetryCollection> telemetryCollection_;
  OptionalChild<ClientConfig::CActiveDirectory> activeDirectory_;
};

}  // namespace TolvaInterface
