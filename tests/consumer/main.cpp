// Writes a document with the installed libraries and reads it back: consumer <file>
#include <tolva/support.h>
#include <tolva/tolva.h>

#include <iostream>
#include <memory>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::filesystem::path path = argv[1];
  const std::wstring name = L"corp.example";
  using Root = std::unique_ptr<ClientConfig::IActiveDirectory>;

  const Root written(ClientConfig::ActiveDir_CreateNewInstance());
  written->GetDefaultDomain()->SetName(&name);
  const auto saved = tolva::support::Save(*written, path);
  ConfigResult result = saved.result;

  const Root read(ClientConfig::ActiveDir_CreateNewInstance());
  IXMLLiteManager* const reader = tolvaCreateXMLManager(0);
  if (result == tolva::kSuccess) {
    result = reader->OpenFile(tolva::support::PathToWide(path).c_str());
  }
  if (result == tolva::kSuccess) result = read->ReadFromXMLMgr(reader);
  tolvaDestroyXMLManager(reader);

  const bool same = result == tolva::kSuccess && read->GetDefaultDomain()->GetName() == name;
  std::cout << (same ? "the same\n" : "not the same\n") << saved.message;
  return same ? 0 : 1;
}
