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
  tolvaSetLastError(0);
  ConfigResult result = reader->OpenFile(L"active-directory.xml");
  if (result == 0) result = root->ReadFromXMLMgr(reader);
  if (result == 0) result = tolvaReadToEnd(reader);  // validates the rest of the document
  const auto error = static_cast<unsigned>(tolvaGetLastError());
  tolvaDestroyXMLManager(reader);
  if (result == 0) {
    std::printf("domain: %ls\n", root->GetDefaultDomain()->GetName().c_str());
  } else {
    std::printf("result %d, last error %08X\n", result, error);
  }
  return result == 0 ? 0 : 1;
}
// [readme]
