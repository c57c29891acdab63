#include <algorithm>
#include <iterator>
#include <string>

#include "demo.h"

namespace demo {
namespace {

// ---- NG ----------------------------------------------------------------------------------------

void Print(NGConfInterface::IINGClientConfiguration& root) {
  auto& management = *root.GetClientManagement();
  auto& server = *management.GetServerCommunication();
  std::cout << "  managed by " << ToUtf8(server.GetManagementServerHostname()) << ", asked every "
            << server.GetManagementQueryInterval() << "\n";
  NGConfInterface::INGUserSetting* users = nullptr;
  if (management.GetNGUserSetting(&users) == 0) {
    for (DWORD i = 0; i < users->GetNGUserCount(); ++i) {
      std::cout << "  user " << ToUtf8(users->GetNGUserAt(i)->GetName()) << "\n";
    }
  }
  std::wstring domain;
  if (management.GetDefaultDomainName(&domain) == 0) {
    std::cout << "  default domain " << ToUtf8(domain) << "\n";
  }
  NGConfInterface::IScanEngineWhiteLists* lists = nullptr;
  auto& scan = *root.GetScanEngineConfiguration()->GetScanSetting();
  if (scan.GetScanEngineWhiteLists(&lists) != 0) return;
  for (DWORD i = 0; i < lists->GetIPNodeCount(); ++i) {
    std::cout << "  never scanned: " << ToUtf8(lists->GetIPNodeAt(i)->GetIPRange()) << "\n";
  }
}

bool Change(NGConfInterface::IINGClientConfiguration& root) {
  const std::wstring domain = L"neu.corp.example";
  root.GetClientManagement()->SetDefaultDomainName(&domain);
  return root.GetClientManagement()->SetNGUserSetting(nullptr) == 0;
}

// ---- global ------------------------------------------------------------------------------------

template <class List>
void PrintSettings(const char* name, const List& list) {
  std::cout << "  " << name << ": " << list.GetSettingCount() << " applications\n";
}

void Print(GlobalConfInterface::IIGLOBALClientConfiguration& root) {
  std::cout << "  updates from " << ToUtf8(root.GetAutoUpdate()->GetUpdateServer()->GetURL())
            << ", looked for every " << root.GetAutoUpdate()->GetFrequency() << "\n";
  GlobalConfInterface::ICustomSetting* custom = nullptr;
  if (root.GetCustomSetting(&custom) != 0) return;
  GlobalConfInterface::IWebProxyEndpoint* web_proxy = nullptr;
  if (custom->GetWebProxyEndpoint(&web_proxy) == 0) PrintSettings("web proxy", *web_proxy);
  GlobalConfInterface::IDataEndpoint* data = nullptr;
  if (custom->GetDataEndpoint(&data) == 0) PrintSettings("data", *data);
}

bool Change(GlobalConfInterface::IIGLOBALClientConfiguration& root) {
  GlobalConfInterface::ICustomSetting* custom = nullptr;
  GlobalConfInterface::IWebProxyEndpoint* endpoint = nullptr;
  if (root.GetCustomSetting(&custom) != 0 || custom->GetWebProxyEndpoint(&endpoint) != 0) {
    return false;
  }
  const DWORD version = 121;
  endpoint->InsertSettingAt(1, endpoint->GetSettingAt(0));
  return endpoint->GetSettingAt(1)->SetAppVersionMajor(&version) == 0;
}

// ---- proxy -------------------------------------------------------------------------------------

void Print(ProxyClientConfig::IIPXYClientConfiguration& root) {
  std::cout << "  PAC file " << ToUtf8(root.GetProxySetting()->GetPACFile()->GetURL()) << "\n";
  std::cout << "  next version "
            << ToUtf8(root.GetClientSetting()->GetUpdate()->GetDownload()->GetNewVersion()) << "\n";
}

bool Change(ProxyClientConfig::IIPXYClientConfiguration& root) {
  const std::wstring version = L"24.09 \"September\" <final>";
  root.GetClientSetting()->GetUpdate()->GetDownload()->SetNewVersion(&version);
  root.GetClientSetting()->SetEnableTelemetry(nullptr);
  return root.GetProxySetting()->SetActiveDirectoryPresent(nullptr) == 0;
}

// ---- CI ----------------------------------------------------------------------------------------

void Print(CIConfInterface::ICIClientConfiguration& root) {
  auto& servers = *root.GetConnection()->GetEIMConnection()->GetEIMServerArray();
  for (DWORD i = 0; i < servers.GetEIMServerCount(); ++i) {
    const auto& server = *servers.GetEIMServerAt(i);
    std::cout << "  server " << ToUtf8(server.GetHostName()) << ":" << server.GetPortNumber()
              << "\n";
  }
}

bool Change(CIConfInterface::ICIClientConfiguration& root) {
  root.GetConnection()->GetEIMConnection()->GetEIMServerArray()->RemoveEIMServerAt(0);
  return root.SetTrustedSites(nullptr) == 0;
}

// ---- remote filtering --------------------------------------------------------------------------

void Print(RFConfInterface::IRFClientConfiguration& root) {
  const auto print = [](const char* where, auto& servers) {
    for (DWORD i = 0; i < servers.GetRFServerCount(); ++i) {
      std::cout << "  " << where << " server " << ToUtf8(servers.GetRFServerAt(i)->GetHostName())
                << "\n";
    }
  };
  print("internal", *root.GetConnection()->GetInternalConnection()->GetInternalRFServerArray());
  print("external", *root.GetConnection()->GetExternalConnection()->GetExternalRFServerArray());
}

bool Change(RFConfInterface::IRFClientConfiguration& root) {
  const DWORD off = 1;
  return root.GetClientSetting()->SetDisableFiltering(&off) == 0;
}

/// The overloads above, for the document's interface.
template <class Interface>
bool Show(const Folders& folders, const char* title) {
  return ShowDocument<Interface>(
      folders, title, [](Interface& root) { Print(root); },
      [](Interface& root) { return Change(root); });
}

}  // namespace

bool ShowModules(const Folders& folders) {
  const bool all[] = {
      Show<NGConfInterface::IINGClientConfiguration>(folders, "NG client"),
      Show<GlobalConfInterface::IIGLOBALClientConfiguration>(folders, "All clients"),
      Show<ProxyClientConfig::IIPXYClientConfiguration>(folders, "Proxy client"),
      Show<CIConfInterface::ICIClientConfiguration>(folders, "CI client"),
      Show<RFConfInterface::IRFClientConfiguration>(folders, "Remote filtering client"),
  };
  return std::all_of(std::begin(all), std::end(all), [](bool shown) { return shown; });
}

}  // namespace demo
