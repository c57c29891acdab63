#include <memory>
#include <string>

#include "demo.h"

namespace demo {
namespace {

void Print(ClientConfig::IActiveDirectory& root) {
  ClientConfig::IDefaultDomain* const domain = root.GetDefaultDomain();
  DWORD enabled = 0;
  domain->GetEnabled(&enabled);
  std::cout << "  default domain " << ToUtf8(domain->GetName())
            << (enabled != 0 ? ", in force\n" : ", not in force\n");
}

bool Change(ClientConfig::IActiveDirectory& root) {
  const DWORD enabled = 0;
  const std::wstring name = L"b\u00FCro.corp.example";
  root.GetDefaultDomain()->SetEnabled(&enabled);
  root.GetDefaultDomain()->SetName(&name);
  return true;
}

}  // namespace

bool ShowActiveDirectory(const Folders& folders) {
  return ShowDocument<ClientConfig::IActiveDirectory>(folders, "Active Directory", &Print, &Change);
}

bool ShowBrokenDocuments(const Folders& folders) {
  std::cout << "\nBroken documents\n";
  bool all_refused = true;
  for (const char* const name :
       {"missing-attribute.xml", "malformed-number.xml", "truncated.xml"}) {
    const std::filesystem::path file = folders.documents / "broken" / name;
    const auto [root, report] = support::Load<ClientConfig::IActiveDirectory>(file);
    if (Say("read", file, report) || root != nullptr) all_refused = false;
  }
  return all_refused;
}

}  // namespace demo
