// Writes a document with the installed library and reads it back: consumer <file>
#include <tolva/support.h>
#include <tolva/tolva.h>

#include <iostream>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::wstring path = tolva::support::PathToWide(argv[1]);
  const std::wstring name = L"corp.example";

  const auto written = tolva::support::MakeNode(&ClientConfig::ActiveDir_CreateNewInstance);
  written->GetDefaultDomain()->SetName(&name);
  IXMLLiteManager* const writer = tolvaCreateXMLManager(1);
  ConfigResult result = writer->OpenFile(path.c_str());
  if (result == tolva::kSuccess) result = written->WriteToXMLMgr(writer);
  if (result == tolva::kSuccess) result = writer->Close();
  tolvaDestroyXMLManager(writer);

  const auto [read, report] = tolva::support::Load<ClientConfig::IActiveDirectory>(argv[1]);
  const bool same =
      result == tolva::kSuccess && report && read->GetDefaultDomain()->GetName() == name;
  std::cout << (same ? "the same\n" : "not the same\n") << report.message;
  return same ? 0 : 1;
}
