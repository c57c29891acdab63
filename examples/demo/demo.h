// What the parts of the demonstration share.
#pragma once

#include <tolva/support.h>

#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

namespace demo {

namespace support = tolva::support;

/// Wide text for the console.
using support::ToUtf8;

/// Says what came of reading or writing a file; whether it went well.
bool Say(const char* what, const std::filesystem::path& file, const support::Report& report);

/// Prints the lines in which two files differ.
void PrintDifference(const std::filesystem::path& before, const std::filesystem::path& after);

/// The folders that the demonstration works with.
struct Folders {
  std::filesystem::path documents;
  std::filesystem::path output;
};

/// Reads a document, prints what it holds, changes it, writes it, reads it again, and prints the
/// difference. False when something did not succeed.
template <class Interface, class Print, class Change>
bool ShowDocument(const Folders& folders, const char* title, Print print, Change change) {
  std::cout << "\n" << title << "\n";
  const std::string name = std::string(support::kDocument<Interface>.name) + ".xml";
  const std::filesystem::path file = folders.documents / name;
  auto [root, loaded] = support::Load<Interface>(file);
  if (!Say("read", file, loaded)) return false;
  print(*root);

  const std::filesystem::path before = folders.output / "before" / name;
  const std::filesystem::path after = folders.output / name;
  if (!Say("wrote", before, support::Save(*root, before)) || !change(*root)) return false;
  if (!Say("wrote", after, support::Save(*root, after))) return false;
  if (!Say("read", after, support::Load<Interface>(after).report)) return false;
  std::cout << "difference:\n";
  PrintDifference(before, after);
  return true;
}

bool ShowActiveDirectory(const Folders& folders);
bool ShowPolicy(const Folders& folders);
bool ShowModules(const Folders& folders);
bool ShowRecords(const Folders& folders);

/// What broken documents give.
bool ShowBrokenDocuments(const Folders& folders);

}  // namespace demo
