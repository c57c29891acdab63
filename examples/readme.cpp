// The example of the README; a check compares the two.
// [readme]
#include <tolva/tolva.h>

#include <clocale>
#include <cstdio>
#include <memory>

int main() {
  std::setlocale(LC_ALL, "");
  SetTolvaDebugDumpCallBack([](const wchar_t* text) { std::printf("%ls\n", text); });
  IXMLLiteManager* reader = tolvaCreateXMLManager(0);
  std::unique_ptr<ClientConfig::IActiveDirectory> root(ClientConfig::ActiveDir_CreateNewInstance());
  ConfigResult result = reader->OpenFile(L"active-directory.xml");
  if (result == 0) result = root->ReadFromXMLMgr(reader);
  if (result == 0) std::printf("domain: %ls\n", root->GetDefaultDomain()->GetName().c_str());
  tolvaDestroyXMLManager(reader);
  return result;
}
// [readme]
