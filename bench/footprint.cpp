// What reading takes: memory and allocations for nodes, time against size, and a walk through a
// file of a gigabyte.
#include <tolva/tolva.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <new>
#include <string>

#include "documents.h"
#include "platform/platform.h"
#include "platform/xml/parser.h"

namespace {

struct Heap {
  std::size_t calls;
  std::size_t bytes;
  std::size_t peak;
};

Heap heap = {};

constexpr std::size_t kHeader = alignof(std::max_align_t);

}  // namespace

void* operator new(std::size_t size) {
  auto* const block = static_cast<char*>(std::malloc(kHeader + size));
  if (block == nullptr) throw std::bad_alloc();
  std::memcpy(block, &size, sizeof size);
  ++heap.calls;
  heap.bytes += size;
  heap.peak = std::max(heap.peak, heap.bytes);
  return block + kHeader;
}

void operator delete(void* object) noexcept {
  if (object == nullptr) return;
  auto* const block = static_cast<char*>(object) - kHeader;
  std::size_t size = 0;
  std::memcpy(&size, block, sizeof size);
  heap.bytes -= size;
  std::free(block);
}

void operator delete(void* object, std::size_t) noexcept { operator delete(object); }

namespace tolva::bench {
namespace {

using Clock = std::chrono::steady_clock;

double Seconds(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// One read, and what it took: the best time of some.
void MeasureRead(Kind kind, std::size_t size, node::INode* (*make)()) {
  const Document& document = GetDocuments(kind, size).front();
  const std::wstring path = document.path.wstring();
  double best = 1e9;
  Heap before = {};
  Heap after = {};
  for (int i = 0; i < (size > 1'000'000 ? 5 : 50); ++i) {
    const auto start = Clock::now();
    before = heap;
    heap.peak = heap.bytes;
    const std::unique_ptr<node::INode> root(make());
    const std::unique_ptr<IXMLLiteManager> reader(tolvaCreateXMLManager(0));
    if (reader->OpenFile(path.c_str()) != 0 || root->ReadFromXMLMgr(reader.get()) != 0)
      std::exit(1);
    after = heap;
    best = std::min(best, Seconds(start));
  }
  const auto elements = static_cast<double>(document.elements);
  const auto bytes = static_cast<double>(document.text.size());
  const auto peak = static_cast<double>(after.peak - before.bytes);
  std::printf("| %s, %zu KB | %.2f | %.0f | %.1f | %.2f |\n",
              kind == kPolicy ? "policy" : "catalogue", document.text.size() / 1000,
              best * 1e9 / bytes, peak / elements, peak / bytes,
              static_cast<double>(after.calls - before.calls) / elements);
}

/// A file of a gigabyte, removed in the end.
class LargeFile {
 public:
  LargeFile()
      : path_(std::filesystem::temp_directory_path() /
              ("tolva-gigabyte-" + std::to_string(getpid()) + ".xml")) {
    std::string piece = GetDocuments(kPolicy, 40'000).front().text;
    piece.erase(0, piece.find("?>") + 2);
    std::ofstream file(path_, std::ios::binary);
    file << "<all>";
    for (std::size_t size = 0; size < 1'000'000'000; size += piece.size()) file << piece;
    file << "</all>";
    file.close();
    if (!file) Fail("no room for a file of a gigabyte");
  }
  LargeFile(const LargeFile&) = delete;
  LargeFile& operator=(const LargeFile&) = delete;
  ~LargeFile() { Remove(); }

  const std::filesystem::path& path() const { return path_; }

  [[noreturn]] void Fail(const char* why) const {
    Remove();
    std::fprintf(stderr, "%s: %s\n", path_.c_str(), why);
    std::exit(1);
  }

 private:
  void Remove() const {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }

  const std::filesystem::path path_;
};

void WalkGigabyte() {
  const LargeFile file;
  const auto start = Clock::now();
  const Heap before = heap;
  heap.peak = heap.bytes;
  {
    platform::ComPtr<platform::IStream> stream;
    const std::wstring path = file.path().wstring();
    platform::OpenToRead(path.c_str(), stream.Receive());
    if (!stream) file.Fail("not opened");
    platform::own_xml::Parser parser;
    parser.SetInput(stream.Get(), false);
    using platform::own_xml::ReadResult;
    ReadResult result = ReadResult::kNode;
    while (result == ReadResult::kNode) result = parser.Read();
    if (result != ReadResult::kEnd) file.Fail("not well-formed");
  }
  std::printf("\nA file of %.2f GB walked in %.2f s, %.0f KB of memory at most\n",
              static_cast<double>(std::filesystem::file_size(file.path())) * 1e-9, Seconds(start),
              static_cast<double>(heap.peak - before.bytes) / 1000);
}

}  // namespace
}  // namespace tolva::bench

int main() {
  using namespace tolva::bench;
  std::puts(
      "| Document | ns a byte | peak bytes an element | peak bytes a byte | allocations an "
      "element |\n| --- | --- | --- | --- | --- |");
  for (const std::size_t size :
       {std::size_t{100'000}, std::size_t{1'000'000}, std::size_t{10'000'000}}) {
    MeasureRead(kPolicy, size, []() -> tolva::node::INode* {
      return TolvaInterface::ILPClientConfiguration_CreateNewInstance();
    });
  }
  for (const std::size_t size :
       {std::size_t{100'000}, std::size_t{1'000'000}, std::size_t{10'000'000}}) {
    MeasureRead(kCatalogue, size, []() -> tolva::node::INode* {
      return MessageConf::EndPointMessage_CreateNewInstance();
    });
  }
  WalkGigabyte();
}
