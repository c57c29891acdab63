// The work whose instructions and allocations are counted, so that a change that costs more is
// noticed:
//   tolva_guard read|write <count> [policy|catalogue]
// The difference between two counts has nothing of what comes before and after the work.
#include <tolva/tolva.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <string_view>

#include "documents.h"

namespace {

std::size_t allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }

namespace {

using namespace tolva::bench;

constexpr std::size_t kSize = 40'000;

using Root = std::unique_ptr<tolva::node::INode>;
using Manager = std::unique_ptr<IXMLLiteManager, void (*)(IXMLLiteManager*)>;

Manager MakeManager(int writer) { return {tolvaCreateXMLManager(writer), &tolvaDestroyXMLManager}; }

Root MakeRoot(Kind kind) {
  if (kind == kPolicy) return Root(TolvaInterface::ILPClientConfiguration_CreateNewInstance());
  return Root(MessageConf::EndPointMessage_CreateNewInstance());
}

bool Read(const std::wstring& path, tolva::node::INode& root) {
  const Manager reader = MakeManager(0);
  return reader->OpenFile(path.c_str()) == 0 && root.ReadFromXMLMgr(reader.get()) == 0;
}

bool Write(const tolva::node::INode& root, const std::wstring& path) {
  const Manager writer = MakeManager(1);
  return writer->OpenFile(path.c_str()) == 0 && root.WriteToXMLMgr(writer.get()) == 0 &&
         writer->Close() == 0;
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc < 3) return 2;
  const bool reads = std::string_view(argv[1]) == "read";
  const int count = std::atoi(argv[2]);
  const Kind kind = argc > 3 && std::string_view(argv[3]) == "catalogue" ? kCatalogue : kPolicy;
  const Document& document = GetDocuments(kind, kSize).front();
  const std::wstring input = document.path.wstring();
  const std::wstring output = OutputPath().wstring();
  const Root root = MakeRoot(kind);
  if (!Read(input, *root)) return 1;
  const std::size_t before = allocations;
  for (int i = 0; i < count; ++i) {
    if (reads ? !Read(input, *MakeRoot(kind)) : !Write(*root, output)) return 1;
  }
  std::printf("%zu elements, %zu allocations\n", document.elements, allocations - before);
  return 0;
} catch (const std::exception& problem) {
  std::fprintf(stderr, "%s\n", problem.what());
  return 1;
}
