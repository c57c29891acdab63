#include <memory>
#include <string>

#include "demo.h"

namespace demo {
namespace {

using namespace TolvaInterface;

const char* NameOf(DWORD action) {
  switch (action) {
    case kAllow:
      return "allowed";
    case kBlock:
      return "blocked";
    default:
      return "left to the content policy";
  }
}

/// The text of an optional attribute, in quotes.
template <class Node>
std::string Quoted(const Node& node, ConfigResult (Node::*getter)(std::wstring*) const) {
  std::wstring text;
  return (node.*getter)(&text) == 0 ? "\"" + ToUtf8(text) + "\"" : "any";
}

void Print(IArCondition& condition) {
  std::cout << " application " << Quoted(condition, &IArCondition::GetAppName);
}

/// The decisions of a channel that go by application.
template <class Channel>
void PrintOnlineApps(Channel& channel) {
  for (DWORD i = 0; i < channel.GetOnlineAppsCount(); ++i) {
    IOnlineApps& apps = *channel.GetOnlineAppsAt(i);
    std::cout << "      " << NameOf(apps.GetAction()) << ":";
    for (DWORD k = 0; k < apps.GetArConditionCount(); ++k) Print(*apps.GetArConditionAt(k));
    for (DWORD k = 0; k < apps.GetUrlConditionCount(); ++k) {
      std::cout << " address " << Quoted(*apps.GetUrlConditionAt(k), &IUrlCondition::GetURL);
    }
    std::cout << "\n";
  }
}

template <class Channel>
void PrintAppRules(const char* name, Channel& channel) {
  std::cout << "    " << name << "\n";
  for (DWORD i = 0; i < channel.GetAppRuleCount(); ++i) {
    IAppRule& rule = *channel.GetAppRuleAt(i);
    std::cout << "      " << NameOf(rule.GetAction()) << ":";
    for (DWORD k = 0; k < rule.GetArConditionCount(); ++k) Print(*rule.GetArConditionAt(k));
    std::cout << "\n";
  }
  PrintOnlineApps(channel);
}

void Print(IILPClipboard& clipboard) {
  IClipboardCopyCut* copy = nullptr;
  if (clipboard.GetClipboardCopyCut(&copy) == 0) PrintAppRules("copying to the clipboard", *copy);
  IClipboardPaste* paste = nullptr;
  if (clipboard.GetClipboardPaste(&paste) == 0) PrintAppRules("pasting from the clipboard", *paste);
}

void Print(IILPRemovableMedia& media) {
  std::cout << "    removable devices\n";
  for (DWORD i = 0; i < media.GetDeviceRuleCount(); ++i) {
    const IDeviceRule& rule = *media.GetDeviceRuleAt(i);
    std::cout << "      " << NameOf(rule.GetAction()) << ": device "
              << Quoted(rule, &IDeviceRule::GetDeviceName) << " of vendor "
              << Quoted(rule, &IDeviceRule::GetVendorID) << "\n";
  }
  PrintOnlineApps(media);
}

void Print(IILPRemoteMedia& media) {
  std::cout << "    network shares\n";
  for (DWORD i = 0; i < media.GetRemoteDriveRuleCount(); ++i) {
    const IRemoteDriveRule& rule = *media.GetRemoteDriveRuleAt(i);
    std::cout << "      " << NameOf(rule.GetAction()) << ": share "
              << Quoted(rule, &IRemoteDriveRule::GetShareName) << "\n";
  }
  PrintOnlineApps(media);
}

void Print(IILPWebApp& web) {
  std::cout << "    the web\n";
  for (DWORD i = 0; i < web.GetWebAccessRuleCount(); ++i) {
    const IWebAccessRule& rule = *web.GetWebAccessRuleAt(i);
    std::cout << "      " << NameOf(rule.GetAction()) << ": host "
              << Quoted(rule, &IWebAccessRule::GetDestinationHost) << "\n";
  }
  PrintOnlineApps(web);
}

void Print(IILPInLineProxy& proxy) {
  DWORD enabled = 0;
  proxy.GetEnable(&enabled);
  std::cout << "    the inline proxy, " << (enabled != 0 ? "on" : "off") << "\n";
}

void Print(IILPProtection& protection) {
  IILPRemovableMedia* removable = nullptr;
  if (protection.GetILPRemovableMedia(&removable) == 0) Print(*removable);
  IILPRemoteMedia* remote = nullptr;
  if (protection.GetILPRemoteMedia(&remote) == 0) Print(*remote);
  IILPClipboard* clipboard = nullptr;
  if (protection.GetILPClipboard(&clipboard) == 0) Print(*clipboard);
  IILPPrinter* printer = nullptr;
  if (protection.GetILPPrinter(&printer) == 0) PrintAppRules("printing", *printer);
  IILPAppFile* app_file = nullptr;
  if (protection.GetILPAppFile(&app_file) == 0) PrintAppRules("application files", *app_file);
  IILPPrintScreen* screen = nullptr;
  if (protection.GetILPPrintScreen(&screen) == 0) PrintAppRules("screen captures", *screen);
  IILPWebApp* web = nullptr;
  if (protection.GetILPWebApp(&web) == 0) Print(*web);
  if (protection.GetILPFixedMedia(nullptr) == 0) std::cout << "    fixed disks\n";
  if (protection.GetILPEmail(nullptr) == 0) std::cout << "    e-mail\n";
  if (protection.GetILPOpticalMedia(nullptr) == 0) std::cout << "    optical media\n";
  IILPInLineProxy* proxy = nullptr;
  if (protection.GetILPInLineProxy(&proxy) == 0) Print(*proxy);
}

void Print(IILPClientConfiguration& root) {
  std::cout << "  policy \"" << ToUtf8(root.GetName()) << "\", serial number "
            << ToUtf8(root.GetSN()) << "\n";
  ILocationArray& locations = *root.GetLocationArray();
  for (DWORD i = 0; i < locations.GetLocationCount(); ++i) {
    ILocation& location = *locations.GetLocationAt(i);
    std::cout << "  location \"" << ToUtf8(location.GetName()) << "\"\n";
    IILPProtection* protection = nullptr;
    if (location.GetILPProtection(&protection) == 0) Print(*protection);
  }
}

/// Lets an address through that was left to the content policy, and adds a location like the first.
bool Change(IILPClientConfiguration& root) {
  ILocationArray& locations = *root.GetLocationArray();
  IILPProtection* protection = nullptr;
  IILPRemoteMedia* media = nullptr;
  if (locations.GetLocationCount() == 0) return false;
  if (locations.GetLocationAt(0)->GetILPProtection(&protection) != 0) return false;
  if (protection->GetILPRemoteMedia(&media) != 0) return false;
  const DWORD action = kBlock;
  media->GetRemoteDriveRuleAt(0)->SetAction(&action);

  locations.AddLocation(locations.GetLocationAt(1));
  const std::wstring name = L"Caf\u00E9 & train";
  locations.GetLocationAt(locations.GetLocationCount() - 1)->SetName(&name);
  return true;
}

}  // namespace

bool ShowPolicy(const Folders& folders) {
  return ShowDocument<IILPClientConfiguration>(
      folders, "Endpoint policy", [](IILPClientConfiguration& root) { Print(root); }, &Change);
}

}  // namespace demo
