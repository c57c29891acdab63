// The accessors of the policy document.
#include "support/accessors.h"

namespace tolva::test {
namespace {

using namespace TolvaInterface;

TEST(PolicyAccessors, ReachTheirFields) {
  Accessors<IArCondition>(L"ArCondition", &ArCondition_CreateNewInstance)
      .Attribute(L"AppName", &IArCondition::GetAppName, &IArCondition::SetAppName)
      .Attribute(L"ResFileDescription", &IArCondition::GetResFileDescription,
                 &IArCondition::SetResFileDescription)
      .Attribute(L"ResProductName", &IArCondition::GetResProductName,
                 &IArCondition::SetResProductName)
      .Attribute(L"ResCompany", &IArCondition::GetResCompany, &IArCondition::SetResCompany)
      .Attribute(L"OS", &IArCondition::GetOS, &IArCondition::SetOS);
  Accessors<IUrlCondition>(L"UrlCondition", &UrlCondition_CreateNewInstance)
      .Attribute(L"URL", &IUrlCondition::GetURL, &IUrlCondition::SetURL);
  Accessors<IAppRule>(L"AppRule", &AppRule_CreateNewInstance)
      .Enum(L"Action", &IAppRule::GetAction, &IAppRule::SetAction, 2, "BLOCK")
      .Attribute(L"Appid", &IAppRule::GetAppid, &IAppRule::SetAppid)
      .Attribute(L"AllowAccessAfterFileCreation", &IAppRule::GetAllowAccessAfterFileCreation,
                 &IAppRule::SetAllowAccessAfterFileCreation)
      .List(L"ArCondition", &IAppRule::GetArConditionCount, &IAppRule::GetArConditionAt,
            &IAppRule::AddArCondition, &IAppRule::InsertArConditionAt,
            &IAppRule::RemoveArConditionAt, &IAppRule::RemoveAllArCondition,
            &ArCondition_CreateNewInstance);
  Accessors<IOnlineApps>(L"OnlineApps", &OnlineApps_CreateNewInstance)
      .Enum(L"Action", &IOnlineApps::GetAction, &IOnlineApps::SetAction, 2, "BLOCK")
      .Attribute(L"Appid", &IOnlineApps::GetAppid, &IOnlineApps::SetAppid)
      .List(L"ArCondition", &IOnlineApps::GetArConditionCount, &IOnlineApps::GetArConditionAt,
            &IOnlineApps::AddArCondition, &IOnlineApps::InsertArConditionAt,
            &IOnlineApps::RemoveArConditionAt, &IOnlineApps::RemoveAllArCondition,
            &ArCondition_CreateNewInstance)
      .List(L"UrlCondition", &IOnlineApps::GetUrlConditionCount, &IOnlineApps::GetUrlConditionAt,
            &IOnlineApps::AddUrlCondition, &IOnlineApps::InsertUrlConditionAt,
            &IOnlineApps::RemoveUrlConditionAt, &IOnlineApps::RemoveAllUrlCondition,
            &UrlCondition_CreateNewInstance);
  Accessors<IBypassedApps>(L"BypassedApps", &BypassedApps_CreateNewInstance)
      .List(L"ArCondition", &IBypassedApps::GetArConditionCount, &IBypassedApps::GetArConditionAt,
            &IBypassedApps::AddArCondition, &IBypassedApps::InsertArConditionAt,
            &IBypassedApps::RemoveArConditionAt, &IBypassedApps::RemoveAllArCondition,
            &ArCondition_CreateNewInstance);
  Accessors<IClipboardCopyCut>(L"ClipboardCopyCut", &ClipboardCopyCut_CreateNewInstance)
      .Attribute(L"Sid", &IClipboardCopyCut::GetSid, &IClipboardCopyCut::SetSid)
      .Attribute(L"Cid", &IClipboardCopyCut::GetCid, &IClipboardCopyCut::SetCid)
      .List(L"AppRule", &IClipboardCopyCut::GetAppRuleCount, &IClipboardCopyCut::GetAppRuleAt,
            &IClipboardCopyCut::AddAppRule, &IClipboardCopyCut::InsertAppRuleAt,
            &IClipboardCopyCut::RemoveAppRuleAt, &IClipboardCopyCut::RemoveAllAppRule,
            &AppRule_CreateNewInstance)
      .List(L"OnlineApps", &IClipboardCopyCut::GetOnlineAppsCount,
            &IClipboardCopyCut::GetOnlineAppsAt, &IClipboardCopyCut::AddOnlineApps,
            &IClipboardCopyCut::InsertOnlineAppsAt, &IClipboardCopyCut::RemoveOnlineAppsAt,
            &IClipboardCopyCut::RemoveAllOnlineApps, &OnlineApps_CreateNewInstance);
  Accessors<IClipboardPaste>(L"ClipboardPaste", &ClipboardPaste_CreateNewInstance)
      .Attribute(L"Sid", &IClipboardPaste::GetSid, &IClipboardPaste::SetSid)
      .Attribute(L"Cid", &IClipboardPaste::GetCid, &IClipboardPaste::SetCid)
      .List(L"AppRule", &IClipboardPaste::GetAppRuleCount, &IClipboardPaste::GetAppRuleAt,
            &IClipboardPaste::AddAppRule, &IClipboardPaste::InsertAppRuleAt,
            &IClipboardPaste::RemoveAppRuleAt, &IClipboardPaste::RemoveAllAppRule,
            &AppRule_CreateNewInstance)
      .List(L"OnlineApps", &IClipboardPaste::GetOnlineAppsCount, &IClipboardPaste::GetOnlineAppsAt,
            &IClipboardPaste::AddOnlineApps, &IClipboardPaste::InsertOnlineAppsAt,
            &IClipboardPaste::RemoveOnlineAppsAt, &IClipboardPaste::RemoveAllOnlineApps,
            &OnlineApps_CreateNewInstance);
  Accessors<IILPPrintScreen>(L"ILPPrintScreen", &ILPPrintScreen_CreateNewInstance)
      .Attribute(L"Sid", &IILPPrintScreen::GetSid, &IILPPrintScreen::SetSid)
      .Attribute(L"Cid", &IILPPrintScreen::GetCid, &IILPPrintScreen::SetCid)
      .List(L"AppRule", &IILPPrintScreen::GetAppRuleCount, &IILPPrintScreen::GetAppRuleAt,
            &IILPPrintScreen::AddAppRule, &IILPPrintScreen::InsertAppRuleAt,
            &IILPPrintScreen::RemoveAppRuleAt, &IILPPrintScreen::RemoveAllAppRule,
            &AppRule_CreateNewInstance)
      .List(L"OnlineApps", &IILPPrintScreen::GetOnlineAppsCount, &IILPPrintScreen::GetOnlineAppsAt,
            &IILPPrintScreen::AddOnlineApps, &IILPPrintScreen::InsertOnlineAppsAt,
            &IILPPrintScreen::RemoveOnlineAppsAt, &IILPPrintScreen::RemoveAllOnlineApps,
            &OnlineApps_CreateNewInstance);
  Accessors<IILPAppFile>(L"ILPAppFile", &ILPAppFile_CreateNewInstance)
      .Attribute(L"Sid", &IILPAppFile::GetSid, &IILPAppFile::SetSid)
      .Attribute(L"Cid", &IILPAppFile::GetCid, &IILPAppFile::SetCid)
      .List(L"AppRule", &IILPAppFile::GetAppRuleCount, &IILPAppFile::GetAppRuleAt,
            &IILPAppFile::AddAppRule, &IILPAppFile::InsertAppRuleAt, &IILPAppFile::RemoveAppRuleAt,
            &IILPAppFile::RemoveAllAppRule, &AppRule_CreateNewInstance)
      .List(L"OnlineApps", &IILPAppFile::GetOnlineAppsCount, &IILPAppFile::GetOnlineAppsAt,
            &IILPAppFile::AddOnlineApps, &IILPAppFile::InsertOnlineAppsAt,
            &IILPAppFile::RemoveOnlineAppsAt, &IILPAppFile::RemoveAllOnlineApps,
            &OnlineApps_CreateNewInstance);
  Accessors<IPrinter>(L"Printer", &Printer_CreateNewInstance)
      .Attribute(L"Name", &IPrinter::GetName, &IPrinter::SetName);
  Accessors<ITrustedPrinters>(L"TrustedPrinters", &TrustedPrinters_CreateNewInstance)
      .List(L"Printer", &ITrustedPrinters::GetPrinterCount, &ITrustedPrinters::GetPrinterAt,
            &ITrustedPrinters::AddPrinter, &ITrustedPrinters::InsertPrinterAt,
            &ITrustedPrinters::RemovePrinterAt, &ITrustedPrinters::RemoveAllPrinter,
            &Printer_CreateNewInstance);
  Accessors<IILPPrinter>(L"ILPPrinter", &ILPPrinter_CreateNewInstance)
      .Attribute(L"Sid", &IILPPrinter::GetSid, &IILPPrinter::SetSid)
      .Attribute(L"Cid", &IILPPrinter::GetCid, &IILPPrinter::SetCid)
      .Attribute(L"AlwaysEMF", &IILPPrinter::GetAlwaysEMF, &IILPPrinter::SetAlwaysEMF)
      .List(L"AppRule", &IILPPrinter::GetAppRuleCount, &IILPPrinter::GetAppRuleAt,
            &IILPPrinter::AddAppRule, &IILPPrinter::InsertAppRuleAt, &IILPPrinter::RemoveAppRuleAt,
            &IILPPrinter::RemoveAllAppRule, &AppRule_CreateNewInstance)
      .List(L"OnlineApps", &IILPPrinter::GetOnlineAppsCount, &IILPPrinter::GetOnlineAppsAt,
            &IILPPrinter::AddOnlineApps, &IILPPrinter::InsertOnlineAppsAt,
            &IILPPrinter::RemoveOnlineAppsAt, &IILPPrinter::RemoveAllOnlineApps,
            &OnlineApps_CreateNewInstance)
      .Child(L"TrustedPrinters", &IILPPrinter::GetTrustedPrinters, &IILPPrinter::SetTrustedPrinters,
             &TrustedPrinters_CreateNewInstance);
  Accessors<IILPClipboard>(L"ILPClipboard", &ILPClipboard_CreateNewInstance)
      .Child(L"ClipboardCopyCut", &IILPClipboard::GetClipboardCopyCut,
             &IILPClipboard::SetClipboardCopyCut, &ClipboardCopyCut_CreateNewInstance)
      .Child(L"ClipboardPaste", &IILPClipboard::GetClipboardPaste,
             &IILPClipboard::SetClipboardPaste, &ClipboardPaste_CreateNewInstance);
  Accessors<IILPEmail>(L"ILPEmail", &ILPEmail_CreateNewInstance)
      .Attribute(L"Sid", &IILPEmail::GetSid, &IILPEmail::SetSid)
      .Attribute(L"Cid", &IILPEmail::GetCid, &IILPEmail::SetCid);
  Accessors<IDeviceRule>(L"DeviceRule", &DeviceRule_CreateNewInstance)
      .Enum(L"Action", &IDeviceRule::GetAction, &IDeviceRule::SetAction, 2, "BLOCK")
      .Attribute(L"DeviceName", &IDeviceRule::GetDeviceName, &IDeviceRule::SetDeviceName)
      .Attribute(L"SerialNumber", &IDeviceRule::GetSerialNumber, &IDeviceRule::SetSerialNumber)
      .Attribute(L"VendorID", &IDeviceRule::GetVendorID, &IDeviceRule::SetVendorID);
  Accessors<IRemoteDriveRule>(L"RemoteDriveRule", &RemoteDriveRule_CreateNewInstance)
      .Enum(L"Action", &IRemoteDriveRule::GetAction, &IRemoteDriveRule::SetAction, 2, "BLOCK")
      .Attribute(L"ShareName", &IRemoteDriveRule::GetShareName, &IRemoteDriveRule::SetShareName);
  Accessors<IILPFixedMedia>(L"ILPFixedMedia", &ILPFixedMedia_CreateNewInstance)
      .Attribute(L"Sid", &IILPFixedMedia::GetSid, &IILPFixedMedia::SetSid)
      .Attribute(L"Cid", &IILPFixedMedia::GetCid, &IILPFixedMedia::SetCid)
      .List(L"OnlineApps", &IILPFixedMedia::GetOnlineAppsCount, &IILPFixedMedia::GetOnlineAppsAt,
            &IILPFixedMedia::AddOnlineApps, &IILPFixedMedia::InsertOnlineAppsAt,
            &IILPFixedMedia::RemoveOnlineAppsAt, &IILPFixedMedia::RemoveAllOnlineApps,
            &OnlineApps_CreateNewInstance);
  Accessors<IILPOpticalMedia>(L"ILPOpticalMedia", &ILPOpticalMedia_CreateNewInstance)
      .Attribute(L"Sid", &IILPOpticalMedia::GetSid, &IILPOpticalMedia::SetSid)
      .Attribute(L"Cid", &IILPOpticalMedia::GetCid, &IILPOpticalMedia::SetCid)
      .Child(L"BypassedApps", &IILPOpticalMedia::GetBypassedApps,
             &IILPOpticalMedia::SetBypassedApps, &BypassedApps_CreateNewInstance);
  Accessors<IILPRemovableMedia>(L"ILPRemovableMedia", &ILPRemovableMedia_CreateNewInstance)
      .Attribute(L"Sid", &IILPRemovableMedia::GetSid, &IILPRemovableMedia::SetSid)
      .Attribute(L"Cid", &IILPRemovableMedia::GetCid, &IILPRemovableMedia::SetCid)
      .List(L"DeviceRule", &IILPRemovableMedia::GetDeviceRuleCount,
            &IILPRemovableMedia::GetDeviceRuleAt, &IILPRemovableMedia::AddDeviceRule,
            &IILPRemovableMedia::InsertDeviceRuleAt, &IILPRemovableMedia::RemoveDeviceRuleAt,
            &IILPRemovableMedia::RemoveAllDeviceRule, &DeviceRule_CreateNewInstance)
      .Child(L"BypassedApps", &IILPRemovableMedia::GetBypassedApps,
             &IILPRemovableMedia::SetBypassedApps, &BypassedApps_CreateNewInstance)
      .List(L"OnlineApps", &IILPRemovableMedia::GetOnlineAppsCount,
            &IILPRemovableMedia::GetOnlineAppsAt, &IILPRemovableMedia::AddOnlineApps,
            &IILPRemovableMedia::InsertOnlineAppsAt, &IILPRemovableMedia::RemoveOnlineAppsAt,
            &IILPRemovableMedia::RemoveAllOnlineApps, &OnlineApps_CreateNewInstance);
  Accessors<IILPRemoteMedia>(L"ILPRemoteMedia", &ILPRemoteMedia_CreateNewInstance)
      .Attribute(L"Sid", &IILPRemoteMedia::GetSid, &IILPRemoteMedia::SetSid)
      .Attribute(L"Cid", &IILPRemoteMedia::GetCid, &IILPRemoteMedia::SetCid)
      .List(L"RemoteDriveRule", &IILPRemoteMedia::GetRemoteDriveRuleCount,
            &IILPRemoteMedia::GetRemoteDriveRuleAt, &IILPRemoteMedia::AddRemoteDriveRule,
            &IILPRemoteMedia::InsertRemoteDriveRuleAt, &IILPRemoteMedia::RemoveRemoteDriveRuleAt,
            &IILPRemoteMedia::RemoveAllRemoteDriveRule, &RemoteDriveRule_CreateNewInstance)
      .Child(L"BypassedApps", &IILPRemoteMedia::GetBypassedApps, &IILPRemoteMedia::SetBypassedApps,
             &BypassedApps_CreateNewInstance)
      .List(L"OnlineApps", &IILPRemoteMedia::GetOnlineAppsCount, &IILPRemoteMedia::GetOnlineAppsAt,
            &IILPRemoteMedia::AddOnlineApps, &IILPRemoteMedia::InsertOnlineAppsAt,
            &IILPRemoteMedia::RemoveOnlineAppsAt, &IILPRemoteMedia::RemoveAllOnlineApps,
            &OnlineApps_CreateNewInstance);
  Accessors<IWebAccessRule>(L"WebAccessRule", &WebAccessRule_CreateNewInstance)
      .Enum(L"Action", &IWebAccessRule::GetAction, &IWebAccessRule::SetAction, 2, "BLOCK")
      .Attribute(L"DestinationHost", &IWebAccessRule::GetDestinationHost,
                 &IWebAccessRule::SetDestinationHost);
  Accessors<IBrowserExtension>(L"BrowserExtension", &BrowserExtension_CreateNewInstance)
      .Enum(L"BrowserName", &IBrowserExtension::GetBrowserName, &IBrowserExtension::SetBrowserName,
            1, "FIREFOX")
      .Attribute(L"EnableExtension", &IBrowserExtension::GetEnableExtension,
                 &IBrowserExtension::SetEnableExtension)
      .Attribute(L"EnableMonitorMode", &IBrowserExtension::GetEnableMonitorMode,
                 &IBrowserExtension::SetEnableMonitorMode);
  Accessors<IBrowserSettings>(L"BrowserSettings", &BrowserSettings_CreateNewInstance)
      .List(L"BrowserExtension", &IBrowserSettings::GetBrowserExtensionCount,
            &IBrowserSettings::GetBrowserExtensionAt, &IBrowserSettings::AddBrowserExtension,
            &IBrowserSettings::InsertBrowserExtensionAt,
            &IBrowserSettings::RemoveBrowserExtensionAt,
            &IBrowserSettings::RemoveAllBrowserExtension, &BrowserExtension_CreateNewInstance);
  Accessors<IILPWebApp>(L"ILPWebApp", &ILPWebApp_CreateNewInstance)
      .Attribute(L"Sid", &IILPWebApp::GetSid, &IILPWebApp::SetSid)
      .Attribute(L"Cid", &IILPWebApp::GetCid, &IILPWebApp::SetCid)
      .List(L"WebAccessRule", &IILPWebApp::GetWebAccessRuleCount, &IILPWebApp::GetWebAccessRuleAt,
            &IILPWebApp::AddWebAccessRule, &IILPWebApp::InsertWebAccessRuleAt,
            &IILPWebApp::RemoveWebAccessRuleAt, &IILPWebApp::RemoveAllWebAccessRule,
            &WebAccessRule_CreateNewInstance)
      .List(L"OnlineApps", &IILPWebApp::GetOnlineAppsCount, &IILPWebApp::GetOnlineAppsAt,
            &IILPWebApp::AddOnlineApps, &IILPWebApp::InsertOnlineAppsAt,
            &IILPWebApp::RemoveOnlineAppsAt, &IILPWebApp::RemoveAllOnlineApps,
            &OnlineApps_CreateNewInstance)
      .Child(L"BrowserSettings", &IILPWebApp::GetBrowserSettings, &IILPWebApp::SetBrowserSettings,
             &BrowserSettings_CreateNewInstance);
  Accessors<IIncludeApps>(L"IncludeApps", &IncludeApps_CreateNewInstance)
      .List(L"ArCondition", &IIncludeApps::GetArConditionCount, &IIncludeApps::GetArConditionAt,
            &IIncludeApps::AddArCondition, &IIncludeApps::InsertArConditionAt,
            &IIncludeApps::RemoveArConditionAt, &IIncludeApps::RemoveAllArCondition,
            &ArCondition_CreateNewInstance);
  Accessors<IExcludeDomain>(L"ExcludeDomain", &ExcludeDomain_CreateNewInstance)
      .Attribute(L"URL", &IExcludeDomain::GetURL, &IExcludeDomain::SetURL);
  Accessors<IExcludeDomains>(L"ExcludeDomains", &ExcludeDomains_CreateNewInstance)
      .List(L"ExcludeDomain", &IExcludeDomains::GetExcludeDomainCount,
            &IExcludeDomains::GetExcludeDomainAt, &IExcludeDomains::AddExcludeDomain,
            &IExcludeDomains::InsertExcludeDomainAt, &IExcludeDomains::RemoveExcludeDomainAt,
            &IExcludeDomains::RemoveAllExcludeDomain, &ExcludeDomain_CreateNewInstance);
  Accessors<IExcludeJSInjectDomain>(L"ExcludeJSInjectDomain",
                                    &ExcludeJSInjectDomain_CreateNewInstance)
      .Attribute(L"URL", &IExcludeJSInjectDomain::GetURL, &IExcludeJSInjectDomain::SetURL);
  Accessors<ILocalProxy>(L"LocalProxy", &LocalProxy_CreateNewInstance)
      .Attribute(L"IP", &ILocalProxy::GetIP, &ILocalProxy::SetIP)
      .Attribute(L"Port", &ILocalProxy::GetPort, &ILocalProxy::SetPort);
  Accessors<ILocalProxies>(L"LocalProxies", &LocalProxies_CreateNewInstance)
      .List(L"LocalProxy", &ILocalProxies::GetLocalProxyCount, &ILocalProxies::GetLocalProxyAt,
            &ILocalProxies::AddLocalProxy, &ILocalProxies::InsertLocalProxyAt,
            &ILocalProxies::RemoveLocalProxyAt, &ILocalProxies::RemoveAllLocalProxy,
            &LocalProxy_CreateNewInstance);
  Accessors<IStartAt>(L"StartAt", &StartAt_CreateNewInstance)
      .Attribute(L"Time", &IStartAt::GetTime, &IStartAt::SetTime)
      .Attribute(L"Date", &IStartAt::GetDate, &IStartAt::SetDate);
  Accessors<IStopAt>(L"StopAt", &StopAt_CreateNewInstance)
      .Attribute(L"Date", &IStopAt::GetDate, &IStopAt::SetDate)
      .Attribute(L"Occurrences", &IStopAt::GetOccurrences, &IStopAt::SetOccurrences);
  Accessors<ITimeSlot>(L"TimeSlot", &TimeSlot_CreateNewInstance)
      .Attribute(L"Weekday", &ITimeSlot::GetWeekday, &ITimeSlot::SetWeekday)
      .Attribute(L"StartTime", &ITimeSlot::GetStartTime, &ITimeSlot::SetStartTime)
      .Attribute(L"EndTime", &ITimeSlot::GetEndTime, &ITimeSlot::SetEndTime);
  Accessors<IAvailableTimeSlots>(L"AvailableTimeSlots", &AvailableTimeSlots_CreateNewInstance)
      .List(L"TimeSlot", &IAvailableTimeSlots::GetTimeSlotCount,
            &IAvailableTimeSlots::GetTimeSlotAt, &IAvailableTimeSlots::AddTimeSlot,
            &IAvailableTimeSlots::InsertTimeSlotAt, &IAvailableTimeSlots::RemoveTimeSlotAt,
            &IAvailableTimeSlots::RemoveAllTimeSlot, &TimeSlot_CreateNewInstance);
  Accessors<IRecurring>(L"Recurring", &Recurring_CreateNewInstance)
      .Attribute(L"Mask", &IRecurring::GetMask, &IRecurring::SetMask)
      .Attribute(L"Frequence", &IRecurring::GetFrequence, &IRecurring::SetFrequence)
      .Child(L"StartAt", &IRecurring::GetStartAt, &IRecurring::SetStartAt,
             &StartAt_CreateNewInstance)
      .Child(L"StopAt", &IRecurring::GetStopAt, &IRecurring::SetStopAt, &StopAt_CreateNewInstance)
      .Child(L"AvailableTimeSlots", &IRecurring::GetAvailableTimeSlots,
             &IRecurring::SetAvailableTimeSlots, &AvailableTimeSlots_CreateNewInstance);
  Accessors<IInitialRecur>(L"InitialRecur", &InitialRecur_CreateNewInstance)
      .Enum(L"Type", &IInitialRecur::GetType, &IInitialRecur::SetType, 1, "TIME")
      .Attribute(L"Time", &IInitialRecur::GetTime, &IInitialRecur::SetTime)
      .Attribute(L"Date", &IInitialRecur::GetDate, &IInitialRecur::SetDate);
  Accessors<ISchedule>(L"Schedule", &Schedule_CreateNewInstance)
      .Enum(L"RecurType", &ISchedule::GetRecurType, &ISchedule::SetRecurType, 4, "CONTINUOUSLY")
      .Attribute(L"Duration", &ISchedule::GetDuration, &ISchedule::SetDuration)
      .Enum(L"TimeType", &ISchedule::GetTimeType, &ISchedule::SetTimeType, 1, "UTC")
      .Attribute(L"ContinuousSchGap", &ISchedule::GetContinuousSchGap,
                 &ISchedule::SetContinuousSchGap)
      .Child(L"Recurring", &ISchedule::GetRecurring, &ISchedule::SetRecurring,
             &Recurring_CreateNewInstance)
      .Child(L"InitialRecur", &ISchedule::GetInitialRecur, &ISchedule::SetInitialRecur,
             &InitialRecur_CreateNewInstance);
  Accessors<IPrimaryKey>(L"PrimaryKey", &PrimaryKey_CreateNewInstance)
      .Attribute(L"KeyID", &IPrimaryKey::GetKeyID, &IPrimaryKey::SetKeyID)
      .Attribute(L"Key", &IPrimaryKey::GetKey, &IPrimaryKey::SetKey)
      .Attribute(L"FileHeader", &IPrimaryKey::GetFileHeader, &IPrimaryKey::SetFileHeader);
  Accessors<IOldKey>(L"OldKey", &OldKey_CreateNewInstance)
      .Attribute(L"KeyID", &IOldKey::GetKeyID, &IOldKey::SetKeyID)
      .Attribute(L"Key", &IOldKey::GetKey, &IOldKey::SetKey);
  Accessors<IEncryption>(L"Encryption", &Encryption_CreateNewInstance)
      .Child(L"PrimaryKey", &IEncryption::GetPrimaryKey, &IEncryption::SetPrimaryKey,
             &PrimaryKey_CreateNewInstance)
      .List(L"OldKey", &IEncryption::GetOldKeyCount, &IEncryption::GetOldKeyAt,
            &IEncryption::AddOldKey, &IEncryption::InsertOldKeyAt, &IEncryption::RemoveOldKeyAt,
            &IEncryption::RemoveAllOldKey, &OldKey_CreateNewInstance);
  Accessors<IFileFilter>(L"FileFilter", &FileFilter_CreateNewInstance)
      .Attribute(L"Include", &IFileFilter::GetInclude, &IFileFilter::SetInclude)
      .Attribute(L"Exclude", &IFileFilter::GetExclude, &IFileFilter::SetExclude)
      .Attribute(L"Age", &IFileFilter::GetAge, &IFileFilter::SetAge)
      .Attribute(L"ModifiedBefore", &IFileFilter::GetModifiedBefore,
                 &IFileFilter::SetModifiedBefore)
      .Attribute(L"MinDate", &IFileFilter::GetMinDate, &IFileFilter::SetMinDate)
      .Attribute(L"MaxDate", &IFileFilter::GetMaxDate, &IFileFilter::SetMaxDate)
      .Attribute(L"MinSize", &IFileFilter::GetMinSize, &IFileFilter::SetMinSize)
      .Attribute(L"MaxSize", &IFileFilter::GetMaxSize, &IFileFilter::SetMaxSize)
      .Attribute(L"DriveType", &IFileFilter::GetDriveType, &IFileFilter::SetDriveType)
      .Attribute(L"Recursive", &IFileFilter::GetRecursive, &IFileFilter::SetRecursive);
  Accessors<IDiscoveryAction>(L"DiscoveryAction", &DiscoveryAction_CreateNewInstance)
      .Enum(L"Action", &IDiscoveryAction::GetAction, &IDiscoveryAction::SetAction, 0, "ANALYZE");
  Accessors<IDiscoverySettings>(L"DiscoverySettings", &DiscoverySettings_CreateNewInstance)
      .Attribute(L"FullScanInterval", &IDiscoverySettings::GetFullScanInterval,
                 &IDiscoverySettings::SetFullScanInterval)
      .Attribute(L"PauseOnNotIdle", &IDiscoverySettings::GetPauseOnNotIdle,
                 &IDiscoverySettings::SetPauseOnNotIdle)
      .Attribute(L"IdleTimeout", &IDiscoverySettings::GetIdleTimeout,
                 &IDiscoverySettings::SetIdleTimeout)
      .Attribute(L"PauseOnBattery", &IDiscoverySettings::GetPauseOnBattery,
                 &IDiscoverySettings::SetPauseOnBattery)
      .Enum(L"ScanMode", &IDiscoverySettings::GetScanMode, &IDiscoverySettings::SetScanMode, 2,
            "ALTERNATIVE")
      .Attribute(L"PreserveFileAccessTime", &IDiscoverySettings::GetPreserveFileAccessTime,
                 &IDiscoverySettings::SetPreserveFileAccessTime)
      .Attribute(L"FullScanOnFingerprintUpdate",
                 &IDiscoverySettings::GetFullScanOnFingerprintUpdate,
                 &IDiscoverySettings::SetFullScanOnFingerprintUpdate);
  Accessors<IDiscoveryJob>(L"DiscoveryJob", &DiscoveryJob_CreateNewInstance)
      .Attribute(L"Id", &IDiscoveryJob::GetId, &IDiscoveryJob::SetId)
      .Attribute(L"Sid", &IDiscoveryJob::GetSid, &IDiscoveryJob::SetSid)
      .Attribute(L"Cid", &IDiscoveryJob::GetCid, &IDiscoveryJob::SetCid)
      .Attribute(L"Taskid", &IDiscoveryJob::GetTaskid, &IDiscoveryJob::SetTaskid)
      .Child(L"Schedule", &IDiscoveryJob::GetSchedule, &IDiscoveryJob::SetSchedule,
             &Schedule_CreateNewInstance)
      .Child(L"FileFilter", &IDiscoveryJob::GetFileFilter, &IDiscoveryJob::SetFileFilter,
             &FileFilter_CreateNewInstance)
      .Child(L"DiscoveryAction", &IDiscoveryJob::GetDiscoveryAction,
             &IDiscoveryJob::SetDiscoveryAction, &DiscoveryAction_CreateNewInstance)
      .Child(L"DiscoverySettings", &IDiscoveryJob::GetDiscoverySettings,
             &IDiscoveryJob::SetDiscoverySettings, &DiscoverySettings_CreateNewInstance);
  Accessors<IDiscoveryJobs>(L"DiscoveryJobs", &DiscoveryJobs_CreateNewInstance)
      .List(L"DiscoveryJob", &IDiscoveryJobs::GetDiscoveryJobCount,
            &IDiscoveryJobs::GetDiscoveryJobAt, &IDiscoveryJobs::AddDiscoveryJob,
            &IDiscoveryJobs::InsertDiscoveryJobAt, &IDiscoveryJobs::RemoveDiscoveryJobAt,
            &IDiscoveryJobs::RemoveAllDiscoveryJob, &DiscoveryJob_CreateNewInstance);
  Accessors<IDiscovery>(L"Discovery", &Discovery_CreateNewInstance)
      .Child(L"DiscoveryJobs", &IDiscovery::GetDiscoveryJobs, &IDiscovery::SetDiscoveryJobs,
             &DiscoveryJobs_CreateNewInstance);
  Accessors<IILPProtection>(L"ILPProtection", &ILPProtection_CreateNewInstance)
      .Attribute(L"CloseActionOnAnalysisFailed", &IILPProtection::GetCloseActionOnAnalysisFailed,
                 &IILPProtection::SetCloseActionOnAnalysisFailed)
      .Attribute(L"DisableBlockingCapabilities", &IILPProtection::GetDisableBlockingCapabilities,
                 &IILPProtection::SetDisableBlockingCapabilities)
      .Attribute(L"EnableMonitoringRemoteBypass", &IILPProtection::GetEnableMonitoringRemoteBypass,
                 &IILPProtection::SetEnableMonitoringRemoteBypass)
      .Attribute(L"EnableTamperProtection", &IILPProtection::GetEnableTamperProtection,
                 &IILPProtection::SetEnableTamperProtection)
      .Child(L"ILPRemovableMedia", &IILPProtection::GetILPRemovableMedia,
             &IILPProtection::SetILPRemovableMedia, &ILPRemovableMedia_CreateNewInstance)
      .Child(L"ILPRemoteMedia", &IILPProtection::GetILPRemoteMedia,
             &IILPProtection::SetILPRemoteMedia, &ILPRemoteMedia_CreateNewInstance)
      .Child(L"ILPClipboard", &IILPProtection::GetILPClipboard, &IILPProtection::SetILPClipboard,
             &ILPClipboard_CreateNewInstance)
      .Child(L"ILPPrinter", &IILPProtection::GetILPPrinter, &IILPProtection::SetILPPrinter,
             &ILPPrinter_CreateNewInstance)
      .Child(L"ILPAppFile", &IILPProtection::GetILPAppFile, &IILPProtection::SetILPAppFile,
             &ILPAppFile_CreateNewInstance)
      .Child(L"ILPPrintScreen", &IILPProtection::GetILPPrintScreen,
             &IILPProtection::SetILPPrintScreen, &ILPPrintScreen_CreateNewInstance)
      .Child(L"ILPWebApp", &IILPProtection::GetILPWebApp, &IILPProtection::SetILPWebApp,
             &ILPWebApp_CreateNewInstance)
      .Child(L"ILPFixedMedia", &IILPProtection::GetILPFixedMedia, &IILPProtection::SetILPFixedMedia,
             &ILPFixedMedia_CreateNewInstance)
      .Child(L"ILPEmail", &IILPProtection::GetILPEmail, &IILPProtection::SetILPEmail,
             &ILPEmail_CreateNewInstance)
      .Child(L"ILPOpticalMedia", &IILPProtection::GetILPOpticalMedia,
             &IILPProtection::SetILPOpticalMedia, &ILPOpticalMedia_CreateNewInstance);
  Accessors<ILocation>(L"Location", &Location_CreateNewInstance)
      .Attribute(L"Name", &ILocation::GetName, &ILocation::SetName)
      .Attribute(L"Desc", &ILocation::GetDesc, &ILocation::SetDesc)
      .Attribute(L"CriteriaCPSconnection", &ILocation::GetCriteriaCPSconnection,
                 &ILocation::SetCriteriaCPSconnection)
      .Child(L"ILPProtection", &ILocation::GetILPProtection, &ILocation::SetILPProtection,
             &ILPProtection_CreateNewInstance);
  Accessors<ILocationArray>(L"LocationArray", &LocationArray_CreateNewInstance)
      .List(L"Location", &ILocationArray::GetLocationCount, &ILocationArray::GetLocationAt,
            &ILocationArray::AddLocation, &ILocationArray::InsertLocationAt,
            &ILocationArray::RemoveLocationAt, &ILocationArray::RemoveAllLocation,
            &Location_CreateNewInstance);
  Accessors<IConfirmDialogTime>(L"ConfirmDialogTime", &ConfirmDialogTime_CreateNewInstance)
      .Attribute(L"LanMaxTime", &IConfirmDialogTime::GetLanMaxTime,
                 &IConfirmDialogTime::SetLanMaxTime)
      .Attribute(L"PrintFileMaxTime", &IConfirmDialogTime::GetPrintFileMaxTime,
                 &IConfirmDialogTime::SetPrintFileMaxTime)
      .Attribute(L"RemovableMaxTime", &IConfirmDialogTime::GetRemovableMaxTime,
                 &IConfirmDialogTime::SetRemovableMaxTime)
      .Attribute(L"WebPostMaxTime", &IConfirmDialogTime::GetWebPostMaxTime,
                 &IConfirmDialogTime::SetWebPostMaxTime)
      .Attribute(L"ApplicationMaxTime", &IConfirmDialogTime::GetApplicationMaxTime,
                 &IConfirmDialogTime::SetApplicationMaxTime)
      .Attribute(L"ClipboardMaxTime", &IConfirmDialogTime::GetClipboardMaxTime,
                 &IConfirmDialogTime::SetClipboardMaxTime)
      .Attribute(L"EmailMaxTime", &IConfirmDialogTime::GetEmailMaxTime,
                 &IConfirmDialogTime::SetEmailMaxTime);
  Accessors<IUserInterface>(L"UserInterface", &UserInterface_CreateNewInstance)
      .Enum(L"Mode", &IUserInterface::GetMode, &IUserInterface::SetMode, 2, "UNATTENDED")
      .Attribute(L"EnableSuperBypass", &IUserInterface::GetEnableSuperBypass,
                 &IUserInterface::SetEnableSuperBypass)
      .Attribute(L"EnableRemoteBypass", &IUserInterface::GetEnableRemoteBypass,
                 &IUserInterface::SetEnableRemoteBypass)
      .Attribute(L"RemoteBypassPromptAdditionalMessage",
                 &IUserInterface::GetRemoteBypassPromptAdditionalMessage,
                 &IUserInterface::SetRemoteBypassPromptAdditionalMessage)
      .Attribute(L"EnableLocalBypassButton", &IUserInterface::GetEnableLocalBypassButton,
                 &IUserInterface::SetEnableLocalBypassButton)
      .Attribute(L"LocalBypassButtonTimeout", &IUserInterface::GetLocalBypassButtonTimeout,
                 &IUserInterface::SetLocalBypassButtonTimeout)
      .Enum(L"DefaultActionOnUserPromptTimeout",
            &IUserInterface::GetDefaultActionOnUserPromptTimeout,
            &IUserInterface::SetDefaultActionOnUserPromptTimeout, 2, "BLOCK_REVIEW")
      .Attribute(L"AdminPasswordHash", &IUserInterface::GetAdminPasswordHash,
                 &IUserInterface::SetAdminPasswordHash)
      .Attribute(L"DisableScanProgressTooltip", &IUserInterface::GetDisableScanProgressTooltip,
                 &IUserInterface::SetDisableScanProgressTooltip)
      .Attribute(L"DisableFileOperationTooltip", &IUserInterface::GetDisableFileOperationTooltip,
                 &IUserInterface::SetDisableFileOperationTooltip)
      .Attribute(L"ShowExportDecryptToolMenu", &IUserInterface::GetShowExportDecryptToolMenu,
                 &IUserInterface::SetShowExportDecryptToolMenu)
      .Attribute(L"ShowConfirmDialogTimer", &IUserInterface::GetShowConfirmDialogTimer,
                 &IUserInterface::SetShowConfirmDialogTimer)
      .Attribute(L"ShowConfirmViolatedDetails", &IUserInterface::GetShowConfirmViolatedDetails,
                 &IUserInterface::SetShowConfirmViolatedDetails)
      .Attribute(L"ShowDetailsOnDataReviewCenter",
                 &IUserInterface::GetShowDetailsOnDataReviewCenter,
                 &IUserInterface::SetShowDetailsOnDataReviewCenter)
      .Attribute(L"ShowDataReviewCenter", &IUserInterface::GetShowDataReviewCenter,
                 &IUserInterface::SetShowDataReviewCenter)
      .Child(L"ConfirmDialogTime", &IUserInterface::GetConfirmDialogTime,
             &IUserInterface::SetConfirmDialogTime, &ConfirmDialogTime_CreateNewInstance);
  Accessors<ILog>(L"Log", &Log_CreateNewInstance)
      .Attribute(L"MaxLogSize", &ILog::GetMaxLogSize, &ILog::SetMaxLogSize);
  Accessors<ITamperProtection>(L"TamperProtection", &TamperProtection_CreateNewInstance)
      .Attribute(L"Enable", &ITamperProtection::GetEnable, &ITamperProtection::SetEnable);
  Accessors<IExcludedApps>(L"ExcludedApps", &ExcludedApps_CreateNewInstance)
      .List(L"ArCondition", &IExcludedApps::GetArConditionCount, &IExcludedApps::GetArConditionAt,
            &IExcludedApps::AddArCondition, &IExcludedApps::InsertArConditionAt,
            &IExcludedApps::RemoveArConditionAt, &IExcludedApps::RemoveAllArCondition,
            &ArCondition_CreateNewInstance);
  Accessors<IContainedFiles>(L"ContainedFiles", &ContainedFiles_CreateNewInstance)
      .Attribute(L"LifeTime", &IContainedFiles::GetLifeTime, &IContainedFiles::SetLifeTime)
      .Attribute(L"UpperLimit", &IContainedFiles::GetUpperLimit, &IContainedFiles::SetUpperLimit)
      .Attribute(L"MinDiskSpace", &IContainedFiles::GetMinDiskSpace,
                 &IContainedFiles::SetMinDiskSpace)
      .Attribute(L"IgnoreSpaceLimit", &IContainedFiles::GetIgnoreSpaceLimit,
                 &IContainedFiles::SetIgnoreSpaceLimit);
  Accessors<ITelemetryCollection>(L"TelemetryCollection", &TelemetryCollection_CreateNewInstance)
      .Attribute(L"Enable", &ITelemetryCollection::GetEnable, &ITelemetryCollection::SetEnable);
  Accessors<IILPClientConfiguration>(L"ILPClientConfiguration",
                                     &ILPClientConfiguration_CreateNewInstance)
      .Attribute(L"SchemaVersion", &IILPClientConfiguration::GetSchemaVersion,
                 &IILPClientConfiguration::SetSchemaVersion)
      .Attribute(L"SN", &IILPClientConfiguration::GetSN, &IILPClientConfiguration::SetSN)
      .Attribute(L"Name", &IILPClientConfiguration::GetName, &IILPClientConfiguration::SetName)
      .Attribute(L"UpdateDate", &IILPClientConfiguration::GetUpdateDate,
                 &IILPClientConfiguration::SetUpdateDate)
      .Attribute(L"RefId", &IILPClientConfiguration::GetRefId, &IILPClientConfiguration::SetRefId)
      .Attribute(L"BypassVersion", &IILPClientConfiguration::GetBypassVersion,
                 &IILPClientConfiguration::SetBypassVersion)
      .Child(L"LocationArray", &IILPClientConfiguration::GetLocationArray,
             &IILPClientConfiguration::SetLocationArray, &LocationArray_CreateNewInstance)
      .Child(L"UserInterface", &IILPClientConfiguration::GetUserInterface,
             &IILPClientConfiguration::SetUserInterface, &UserInterface_CreateNewInstance)
      .Child(L"Log", &IILPClientConfiguration::GetLog, &IILPClientConfiguration::SetLog,
             &Log_CreateNewInstance)
      .Child(L"Discovery", &IILPClientConfiguration::GetDiscovery,
             &IILPClientConfiguration::SetDiscovery, &Discovery_CreateNewInstance)
      .Child(L"TamperProtection", &IILPClientConfiguration::GetTamperProtection,
             &IILPClientConfiguration::SetTamperProtection, &TamperProtection_CreateNewInstance)
      .Child(L"ExcludedApps", &IILPClientConfiguration::GetExcludedApps,
             &IILPClientConfiguration::SetExcludedApps, &ExcludedApps_CreateNewInstance)
      .Child(L"ContainedFiles", &IILPClientConfiguration::GetContainedFiles,
             &IILPClientConfiguration::SetContainedFiles, &ContainedFiles_CreateNewInstance)
      .Child(L"Encryption", &IILPClientConfiguration::GetEncryption,
             &IILPClientConfiguration::SetEncryption, &Encryption_CreateNewInstance)
      .Child(L"TelemetryCollection", &IILPClientConfiguration::GetTelemetryCollection,
             &IILPClientConfiguration::SetTelemetryCollection,
             &TelemetryCollection_CreateNewInstance);
}

}  // namespace
}  // namespace tolva::test
