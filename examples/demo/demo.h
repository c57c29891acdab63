// What the parts of the demonstration share.
#pragma once

#include <tolva/tolva.h>

#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

namespace demo {

/// Gives a manager back.
struct Destroy {
  void operator()(IXMLLiteManager* manager) const { tolvaDestroyXMLManager(manager); }
};
using Manager = std::unique_ptr<IXMLLiteManager, Destroy>;

/// Wide text for the console.
std::string Utf8(const std::wstring& text);

/// Reads a document's root from a file; says what came of it.
bool Load(tolva::node::IElement& root, const std::filesystem::path& file);

/// Writes a document's root so that an earlier file is replaced by a whole one or not at all.
bool Save(const tolva::node::IElement& root, const std::filesystem::path& file);

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
bool ShowDocument(const Folders& folders, const char* title, const char* file,
                  Interface* (*factory)(), Print print, Change change) {
  std::cout << "\n" << title << "\n";
  const std::unique_ptr<Interface> root(factory());
  if (!Load(*root, folders.documents / file)) return false;
  print(*root);

  const std::filesystem::path before = folders.output / "before" / file;
  const std::filesystem::path after = folders.output / file;
  if (!Save(*root, before) || !change(*root) || !Save(*root, after)) return false;

  const std::unique_ptr<Interface> again(factory());
  if (!Load(*again, after)) return false;
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
