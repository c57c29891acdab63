// The work whose instructions are counted, so that a change that costs more is noticed:
//   tolva_guard read|write <count>
// The difference between two counts has nothing of what comes before and after the work.
#include <tolva/tolva.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "documents.h"

namespace {

using namespace tolva::bench;

constexpr std::size_t kSize = 40'000;

using Manager = std::unique_ptr<IXMLLiteManager, void (*)(IXMLLiteManager*)>;

Manager MakeManager(int writer) { return {tolvaCreateXMLManager(writer), &tolvaDestroyXMLManager}; }

std::unique_ptr<tolva::node::INode> Read(const std::wstring& path) {
  std::unique_ptr<tolva::node::INode> root(
      TolvaInterface::ILPClientConfiguration_CreateNewInstance());
  const Manager reader = MakeManager(0);
  const bool is_read =
      reader->OpenFile(path.c_str()) == 0 && root->ReadFromXMLMgr(reader.get()) == 0;
  return is_read ? std::move(root) : nullptr;
}

bool Write(const tolva::node::INode& root, const std::wstring& path) {
  const Manager writer = MakeManager(1);
  return writer->OpenFile(path.c_str()) == 0 && root.WriteToXMLMgr(writer.get()) == 0 &&
         writer->Close() == 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const Document& document = GetDocument(kPolicy, kSize);
  const std::wstring input = document.path.wstring();
  const std::wstring output = OutputPath().wstring();
  const std::unique_ptr<tolva::node::INode> root = Read(input);
  if (root == nullptr) return 1;
  const bool reads = std::string_view(argv[1]) == "read";
  for (int i = std::atoi(argv[2]); i != 0; --i) {
    if (reads ? Read(input) == nullptr : !Write(*root, output)) return 1;
  }
  std::printf("%zu elements\n", document.elements);
  return 0;
}
