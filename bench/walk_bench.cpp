// The walk: every node once, nothing kept. Everyone starts from a document in memory that has to
// stay as it is, and pays for the copies that it needs: the own parser takes the document from a
// stream, block by block; pugixml and rapidxml change what they parse, and get a copy in memory
// that is kept. Their trees are built, but not gone through.
#include <expat.h>
#include <libxml/xmlreader.h>
#include <pugixml.hpp>
#include <rapidxml/rapidxml.hpp>

#include <algorithm>
#include <cstring>

#include "bench.h"
#include "platform/platform.h"
#include "platform/ref_counted.h"
#include "platform/xml/parser.h"

namespace tolva::bench {
namespace {

class TextStream final : public platform::RefCounted<platform::IStream> {
 public:
  explicit TextStream(const std::string& text) : text_(text) {}

  platform::HRESULT Read(void* buffer, platform::ULONG size,
                         platform::ULONG* count) noexcept override {
    const std::size_t given = std::min<std::size_t>(size, text_.size() - at_);
    std::memcpy(buffer, text_.data() + at_, given);
    at_ += given;
    *count = static_cast<platform::ULONG>(given);
    return given == size ? platform::S_OK : platform::S_FALSE;
  }
  platform::HRESULT Write(const void*, platform::ULONG, platform::ULONG*) noexcept override {
    return platform::E_NOTIMPL;
  }
  platform::HRESULT Commit(DWORD) noexcept override { return platform::E_NOTIMPL; }

 private:
  const std::string& text_;
  std::size_t at_ = 0;
};

/// `open` makes a stream of the document. White space between tags is no node here, as it is none
/// to pugixml and rapidxml.
template <class Open>
void WalkTolva(benchmark::State& state, const Documents& documents, Open open) {
  using platform::own_xml::ReadResult;
  platform::own_xml::Parser parser;
  Round round(documents);
  for (auto _ : state) {
    const Document& document = round.Next();
    platform::ComPtr<platform::IStream> stream;
    open(document, stream);
    parser.SetInput(stream.Get(), false);
    std::size_t attributes = 0;
    ReadResult result = parser.ReadTag();
    for (; result == ReadResult::kNode; result = parser.ReadTag()) {
      attributes += parser.attributes().size();
    }
    if (result != ReadResult::kEnd) state.SkipWithError("not read");
    benchmark::DoNotOptimize(attributes);
  }
}

void WalkText(benchmark::State& state, Kind /*kind*/, const Documents& documents) {
  WalkTolva(state, documents,
            [](const Document& from, platform::ComPtr<platform::IStream>& stream) {
              stream.Attach(new TextStream(from.text));
            });
}

void WalkFile(benchmark::State& state, Kind /*kind*/, const Documents& documents) {
  WalkTolva(state, documents,
            [](const Document& from, platform::ComPtr<platform::IStream>& stream) {
              platform::OpenToRead(from.path.wstring().c_str(), stream.Receive());
            });
}

void Copy(benchmark::State& state, Kind /*kind*/, const Documents& documents) {
  static KeptBuffer buffer;
  Round round(documents);
  for (auto _ : state) {
    const Document& document = round.Next();
    buffer.Copy(document.text);
    benchmark::DoNotOptimize(buffer.data());
    benchmark::ClobberMemory();
  }
}

void WalkPugixml(benchmark::State& state, Kind /*kind*/, const Documents& documents) {
  static KeptBuffer buffer;
  Round round(documents);
  for (auto _ : state) {
    const Document& document = round.Next();
    buffer.Copy(document.text);
    pugi::xml_document tree;
    if (!tree.load_buffer_inplace(buffer.data(), buffer.size())) state.SkipWithError("not read");
  }
}

void WalkRapidxml(benchmark::State& state, Kind /*kind*/, const Documents& documents) {
  static KeptBuffer buffer;
  Round round(documents);
  for (auto _ : state) {
    const Document& document = round.Next();
    buffer.Copy(document.text);
    rapidxml::xml_document<> tree;
    tree.parse<rapidxml::parse_validate_closing_tags>(buffer.data());
    benchmark::DoNotOptimize(tree.first_node());
  }
}

void WalkExpat(benchmark::State& state, Kind /*kind*/, const Documents& documents) {
  Round round(documents);
  for (auto _ : state) {
    const Document& document = round.Next();
    const XML_Parser parser = XML_ParserCreateNS(nullptr, '|');
    std::size_t attributes = 0;
    XML_SetUserData(parser, &attributes);
    XML_SetStartElementHandler(parser, [](void* user, const char*, const char** values) {
      for (; *values != nullptr; values += 2) ++*static_cast<std::size_t*>(user);
    });
    if (XML_Parse(parser, document.text.data(), static_cast<int>(document.text.size()), 1) !=
        XML_STATUS_OK) {
      state.SkipWithError("not read");
    }
    XML_ParserFree(parser);
    benchmark::DoNotOptimize(attributes);
  }
}

void WalkLibxml2(benchmark::State& state, Kind /*kind*/, const Documents& documents) {
  Round round(documents);
  for (auto _ : state) {
    const Document& document = round.Next();
    const xmlTextReaderPtr reader = xmlReaderForMemory(
        document.text.data(), static_cast<int>(document.text.size()), "", nullptr, 0);
    std::size_t attributes = 0;
    int result = xmlTextReaderRead(reader);
    for (; result == 1; result = xmlTextReaderRead(reader)) {
      if (xmlTextReaderNodeType(reader) != XML_READER_TYPE_ELEMENT) continue;
      attributes += static_cast<std::size_t>(xmlTextReaderAttributeCount(reader));
    }
    if (result != 0) state.SkipWithError("not read");
    xmlFreeTextReader(reader);
    benchmark::DoNotOptimize(attributes);
  }
}

}  // namespace

void RegisterWalks() {
  RegisterUpToLargest("walk", "tolva", WalkText);
  Register("walk", "tolva-file", WalkFile);
  Register("walk", "copy", Copy);
  Register("walk", "pugixml", WalkPugixml);
  Register("walk", "rapidxml", WalkRapidxml);
  Register("walk", "expat", WalkExpat);
  Register("walk", "libxml2", WalkLibxml2);
}

}  // namespace tolva::bench
