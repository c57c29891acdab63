#include "documents.h"

#include <tolva/tolva.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>

namespace tolva::bench {
namespace {

/// In memory where the system has such files, so that no disk is measured.
std::filesystem::path Folder() {
  static const struct Made {
    Made() {
      const std::filesystem::path memory = "/dev/shm";
      path = std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path();
      path /= "tolva-bench-" + std::to_string(getpid());
      std::filesystem::create_directory(path);
    }
    Made(const Made&) = delete;
    Made& operator=(const Made&) = delete;
    ~Made() {
      std::error_code ignored;
      std::filesystem::remove_all(path, ignored);
    }
    std::filesystem::path path;
  } made;
  return made.path;
}

void Require(bool done, const char* what) {
  if (done) return;
  std::cerr << "benchmark: cannot " << what << "\n";
  std::exit(1);
}

std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void Load(node::IElement& root, const std::filesystem::path& path) {
  const std::unique_ptr<IXMLLiteManager> reader(tolvaCreateXMLManager(0));
  Require(reader->OpenFile(path.wstring().c_str()) == 0, "open a document");
  Require(root.ReadFromXMLMgr(reader.get()) == 0, "read a document");
}

std::string Save(const node::IElement& root, const std::filesystem::path& path) {
  const std::unique_ptr<IXMLLiteManager> writer(tolvaCreateXMLManager(1));
  Require(writer->OpenFile(path.wstring().c_str()) == 0, "create a document");
  Require(root.WriteToXMLMgr(writer.get()) == 0, "write a document");
  Require(writer->Close() == 0, "finish a document");
  return ReadBytes(path);
}

/// The example's locations, again and again.
std::string MakePolicy(std::size_t size, const std::filesystem::path& path) {
  using namespace TolvaInterface;
  const std::unique_ptr<IILPClientConfiguration> root(ILPClientConfiguration_CreateNewInstance());
  Load(*root, std::filesystem::path(TOLVA_DOCUMENTS) / "policy.xml");
  ILocationArray& locations = *root->GetLocationArray();
  const DWORD count = locations.GetLocationCount();
  const std::size_t whole = Save(*root, path).size();
  const std::unique_ptr<ILocationArray> some(LocationArray_CreateNewInstance());
  some->CopyFrom(locations);
  const std::size_t part = Save(*some, path).size();
  if (size < whole) {
    while (locations.GetLocationCount() > 1) locations.RemoveLocationAt(1);
    root->SetDiscovery(nullptr);
    return Save(*root, path);
  }
  for (std::size_t now = whole; now + part / 2 < size; now += part) {
    for (DWORD i = 0; i < count; ++i) locations.AddLocation(some->GetLocationAt(i));
  }
  return Save(*root, path);
}

/// Messages of some sentences.
std::string MakeCatalogue(std::size_t size, const std::filesystem::path& path) {
  using namespace MessageConf;
  std::wstring text;
  for (int sentence = 0; sentence < 6; ++sentence) {
    text += L"The file that you are about to copy holds data that must not leave this computer. ";
    if (sentence % 3 == 2) text += L"Ask your administrator & try again. ";
  }
  const std::wstring about = L"Shown when a copy is blocked.";
  const std::unique_ptr<IEndPointMessage> root(EndPointMessage_CreateNewInstance());
  const std::unique_ptr<IMessage> message(Message_CreateNewInstance());
  message->GetContent()->SetContent(&text);
  message->GetDescription()->SetContent(&about);
  for (DWORD id = 0; root->GetMessageCount() * (text.size() + 130) < size; ++id) {
    message->SetID(&id);
    root->AddMessage(message.get());
  }
  return Save(*root, path);
}

}  // namespace

const Document& GetDocument(Kind kind, std::size_t size) {
  static std::map<std::pair<Kind, std::size_t>, Document> made;
  Document& document = made[{kind, size}];
  if (document.text.empty()) {
    document.path = Folder() / (std::to_string(kind) + "-" + std::to_string(size) + ".xml");
    document.text =
        kind == kPolicy ? MakePolicy(size, document.path) : MakeCatalogue(size, document.path);
    for (std::size_t at = 0; (at = document.text.find('<', at)) != std::string::npos; ++at) {
      if (document.text[at + 1] != '/' && document.text[at + 1] != '?') ++document.elements;
    }
  }
  return document;
}

std::filesystem::path OutputPath() { return Folder() / "output.xml"; }

}  // namespace tolva::bench
