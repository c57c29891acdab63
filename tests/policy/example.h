// What the tests know of the policy document: its elements, and how its reports depart from the
// rules.
#pragma once

#include "support/active_directory.h"
#include "support/example.h"

namespace tolva::test {

inline Example PolicyExample() {
  return Example(
      "policy.xml",
      [] { return Example::Node(TolvaInterface::ILPClientConfiguration_CreateNewInstance()); },
      WithActiveDirectory({
          {L"ILPClientConfiguration",
           L"SchemaVersion:N! SN:S! Name:S! UpdateDate:S RefId:S BypassVersion:S",
           L"LocationArray! UserInterface! Log Discovery TamperProtection ExcludedApps "
           L"ContainedFiles Encryption TelemetryCollection ActiveDirectory"},
          {L"LocationArray", L"", L"Location*"},
          {L"Location", L"Name:S! Desc:S CriteriaCPSconnection:N", L"ILPProtection"},
          {L"ILPProtection",
           L"CloseActionOnAnalysisFailed:N DisableBlockingCapabilities:N "
           L"EnableMonitoringRemoteBypass:N EnableTamperProtection:N",
           L"ILPRemovableMedia ILPRemoteMedia ILPClipboard ILPPrinter ILPAppFile ILPPrintScreen "
           L"ILPWebApp ILPFixedMedia ILPEmail ILPOpticalMedia ILPInlineProxy"},
          {L"UserInterface",
           L"Mode:E! EnableSuperBypass:N! EnableRemoteBypass:N! "
           L"RemoteBypassPromptAdditionalMessage:S EnableLocalBypassButton:N "
           L"LocalBypassButtonTimeout:N DefaultActionOnUserPromptTimeout:E AdminPasswordHash:S "
           L"DisableScanProgressTooltip:N DisableFileOperationTooltip:N "
           L"ShowExportDecryptToolMenu:N ShowConfirmDialogTimer:N ShowConfirmViolatedDetails:N "
           L"ShowDetailsOnDataReviewCenter:N ShowDataReviewCenter:N",
           L"ConfirmDialogTime"},
          {L"ConfirmDialogTime",
           L"LanMaxTime:N PrintFileMaxTime:N RemovableMaxTime:N WebPostMaxTime:N "
           L"ApplicationMaxTime:N ClipboardMaxTime:N EmailMaxTime:N",
           L""},
          {L"Log", L"MaxLogSize:N", L""},
          {L"TamperProtection", L"Enable:N", L""},
          {L"TelemetryCollection", L"Enable:N", L""},
          {L"ContainedFiles", L"LifeTime:N UpperLimit:N MinDiskSpace:N IgnoreSpaceLimit:N", L""},
          {L"ExcludedApps", L"", L"ArCondition*"},

          {L"ArCondition", L"AppName:S ResFileDescription:S ResProductName:S ResCompany:S OS:S",
           L""},
          {L"UrlCondition", L"URL:S", L""},
          {L"AppRule", L"Action:E! Appid:S AllowAccessAfterFileCreation:N", L"ArCondition*"},
          {L"OnlineApps", L"Action:E! Appid:S", L"ArCondition* UrlCondition*"},
          {L"BypassedApps", L"", L"ArCondition*"},

          {L"ClipboardCopyCut", L"Sid:N Cid:N", L"AppRule* OnlineApps*"},
          {L"ClipboardPaste", L"Sid:N Cid:N", L"AppRule* OnlineApps*"},
          {L"ILPPrintScreen", L"Sid:N Cid:N", L"AppRule* OnlineApps*"},
          {L"ILPAppFile", L"Sid:N Cid:N", L"AppRule* OnlineApps*"},
          {L"ILPPrinter", L"Sid:N Cid:N AlwaysEMF:N", L"AppRule* OnlineApps* TrustedPrinters"},
          {L"TrustedPrinters", L"", L"Printer*"},
          {L"Printer", L"Name:S", L""},
          {L"ILPClipboard", L"", L"ClipboardCopyCut ClipboardPaste"},
          {L"ILPEmail", L"Sid:N Cid:N", L""},

          {L"ILPFixedMedia", L"Sid:N Cid:N", L"OnlineApps*"},
          {L"ILPOpticalMedia", L"Sid:N Cid:N", L"BypassedApps"},
          {L"ILPRemovableMedia", L"Sid:N Cid:N", L"DeviceRule* BypassedApps OnlineApps*"},
          {L"ILPRemoteMedia", L"Sid:N Cid:N", L"RemoteDriveRule* BypassedApps OnlineApps*"},
          {L"DeviceRule", L"Action:E! DeviceName:S SerialNumber:S VendorID:S", L""},
          {L"RemoteDriveRule", L"Action:E! ShareName:S", L""},

          {L"ILPWebApp", L"Sid:N Cid:N", L"WebAccessRule* OnlineApps* BrowserSettings"},
          {L"WebAccessRule", L"Action:E! DestinationHost:S", L""},
          {L"BrowserSettings", L"", L"BrowserExtension*"},
          {L"BrowserExtension", L"BrowserName:E! EnableExtension:N! EnableMonitorMode:N", L""},
          {L"ILPInlineProxy", L"Enable:N EnableDriverWebTraffic:N SystemPAC:N",
           L"IncludeApps ExcludeDomains LocalProxies ExcludeJSInjectionDomains", L"ILPInLineProxy"},
          {L"IncludeApps", L"", L"ArCondition*"},
          {L"ExcludeDomains", L"", L"ExcludeDomain*"},
          {L"ExcludeDomain", L"URL:S", L""},
          {L"ExcludeJSInjectionDomains", L"", L"ExcludeDomain*"},
          {L"ExcludeJSInjectionDomains/ExcludeDomain", L"URL:S", L""},
          {L"LocalProxies", L"", L"LocalProxy*"},
          {L"LocalProxy", L"IP:S Port:S", L""},

          {L"Schedule", L"RecurType:E! Duration:N TimeType:E ContinuousSchGap:N",
           L"Recurring InitialRecur"},
          {L"Recurring", L"Mask:S Frequence:N", L"StartAt! StopAt AvailableTimeSlots"},
          {L"StartAt", L"Time:S! Date:S", L""},
          {L"StopAt", L"Date:S Occurrences:N", L""},
          {L"AvailableTimeSlots", L"", L"TimeSlot*"},
          {L"TimeSlot", L"Weekday:N StartTime:S! EndTime:S!", L""},
          {L"InitialRecur", L"Type:E! Time:S Date:S", L""},

          {L"Encryption", L"", L"PrimaryKey! OldKey*"},
          {L"PrimaryKey", L"KeyID:N! Key:S! FileHeader:S!", L""},
          {L"OldKey", L"KeyID:N! Key:S!", L""},

          {L"Discovery", L"", L"DiscoveryJobs!"},
          {L"DiscoveryJobs", L"", L"DiscoveryJob*"},
          {L"DiscoveryJob", L"Id:S! Sid:N! Cid:N Taskid:N",
           L"Schedule! FileFilter! DiscoveryAction! DiscoverySettings!"},
          {L"FileFilter",
           L"Include:S! Exclude:S Age:N ModifiedBefore:N MinDate:S MaxDate:S MinSize:N MaxSize:N "
           L"DriveType:S Recursive:N",
           L""},
          {L"DiscoveryAction", L"Action:E!", L""},
          {L"DiscoverySettings",
           L"FullScanInterval:N PauseOnNotIdle:N IdleTimeout:N PauseOnBattery:N ScanMode:E "
           L"PreserveFileAccessTime:N FullScanOnFingerprintUpdate:N",
           L""},
      }),
      WithActiveDirectory(Departures{
          .texts =
              {
                  // The script-injection list: silent, and misattributed by its parent.
                  {L"XMLManager: fail to add element: ExcludeJSInjectionDomains/ExcludeDomain",
                   L"JSExcudeDomain: fail to add element"},
                  {L"XMLManager: fail to close element: ExcludeJSInjectionDomains/ExcludeDomain",
                   L"JSExcudeDomain: fail to close element"},
                  {L"XMLManager: write none to multiple element failed. "
                   L"element:ExcludeJSInjectionDomains/ExcludeDomain",
                   L""},
                  {L"XMLManager: fail to add element: ExcludeJSInjectionDomains", L""},
                  {L"XMLManager: fail to close element: ExcludeJSInjectionDomains", L""},
                  {L"XMLManager: write optional element failed. element:ExcludeJSInjectionDomains",
                   L"XMLManager: write optional element failed. element:LocalProxies"},

                  {L"XMLManager: write optional element failed. element:ActiveDirectory",
                   L"XMLManager: write element failed. element:ActiveDirectory"},
                  {L"XMLManager: read require element failed. element:ActiveDirectory",
                   L"XMLManager: read element failed. element:ActiveDirectory"},
              },
          .announced = {{L"ILPInlineProxy",
                         {L"XMLManager: writingelement:ILPInLineProxy",
                          L"XMLManager: writingelement:ILPInLineProxy was sucessful"}}}}));
}

}  // namespace tolva::test
