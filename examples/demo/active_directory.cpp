#include <memory>
#include <string>

#include "demo.h"

namespace demo {
namespace {

void Print(ClientConfig::IActiveDirectory& root) {
  ClientConfig::IDefaultDomain* const domain = root.GetDefaultDomain();
  DWORD enabled = 0;
  domain->GetEnabled(&enabled);
  std::cout << "  default domain " << Utf8(domain->GetName())
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
  return ShowDocument(folders, "Active Directory", "active-directory.xml",
                      &ClientConfig::ActiveDir_CreateNewInstance, &Print, &Change);
}

bool ShowBrokenDocuments(const Folders& folders) {
  std::cout << "\nBroken documents\n";
  bool all_refused = true;
  for (const char* const name : {"missing-attribute", "malformed-number", "truncated"}) {
    const std::unique_ptr<ClientConfig::IActiveDirectory> root(
        ClientConfig::ActiveDir_CreateNewInstance());
    const bool read = Load(*root, folders.documents / "broken" / (std::string(name) + ".xml"));
    const bool at_defaults = root->GetDefaultDomain()->GetName().empty();
    std::cout << (at_defaults ? "  the node is at its defaults\n" : "  the node holds something\n");
    all_refused = all_refused && !read && at_defaults;
  }
  return all_refused;
}

}  // namespace demo
