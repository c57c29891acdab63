// Writes a document with the installed library and reads it back: consumer <file>
#include <tolva/tolva.h>

#include <iostream>
#include <memory>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::string narrow = argv[1];
  const std::wstring path(narrow.begin(), narrow.end());
  const std::wstring name = L"corp.example";
  using Root = std::unique_ptr<ClientConfig::IActiveDirectory>;

  const Root written(ClientConfig::ActiveDir_CreateNewInstance());
  written->GetDefaultDomain()->SetName(&name);
  IXMLLiteManager* const writer = tolvaCreateXMLManager(1);
  ConfigResult result = writer->OpenFile(path.c_str());
  if (result == tolva::kSuccess) result = written->WriteToXMLMgr(writer);
  if (result == tolva::kSuccess) result = writer->Close();
  tolvaDestroyXMLManager(writer);

  const Root read(ClientConfig::ActiveDir_CreateNewInstance());
  IXMLLiteManager* const reader = tolvaCreateXMLManager(0);
  if (result == tolva::kSuccess) result = reader->OpenFile(path.c_str());
  if (result == tolva::kSuccess) result = read->ReadFromXMLMgr(reader);
  tolvaDestroyXMLManager(reader);

  const bool same = result == tolva::kSuccess && read->GetDefaultDomain()->GetName() == name;
  std::cout << (same ? "the same\n" : "not the same\n");
  return same ? 0 : 1;
}
