// An example of docs/support.md; a check compares the two.
// [example]
#include <tolva/support.h>

#include <iostream>

namespace support = tolva::support;

/// Renames the default domain; whether the file holds the new name now.
bool Rename(const std::filesystem::path& file, const std::wstring& name) {
  const auto [root, loaded] = support::Load<ClientConfig::IActiveDirectory>(file);
  if (!loaded) {
    std::cerr << loaded.message << "\n";
    return false;
  }
  root->GetDefaultDomain()->SetName(&name);
  const support::SaveReport saved = support::Save(*root, file);
  if (!saved) std::cerr << saved.message << "\n";
  return static_cast<bool>(saved);
}

int main(int argc, char** argv) {
  return argc == 3 && Rename(argv[1], support::ToWide(argv[2])) ? 0 : 1;
}
// [example]
