// How fast documents are read: the parser alone, against the parsers that people compare with.
#include <benchmark/benchmark.h>
#include <expat.h>
#include <pugixml.hpp>

#include <cstring>
#include <map>
#include <string>

#include "documents.h"
#include "platform/platform.h"
#include "platform/ref_counted.h"
#include "platform/xml/parser.h"

namespace tolva::bench {
namespace {

using namespace platform;

/// A document without copying it first, as a mapped file would be.
class TextStream final : public RefCounted<IStream> {
 public:
  explicit TextStream(const std::string& text) : text_(text) {}

  HRESULT Read(void* buffer, ULONG size, ULONG* count) noexcept override {
    const std::size_t given = std::min<std::size_t>(size, text_.size() - at_);
    std::memcpy(buffer, text_.data() + at_, given);
    at_ += given;
    *count = static_cast<ULONG>(given);
    return given == size ? S_OK : S_FALSE;
  }
  HRESULT Write(const void*, ULONG, ULONG*) noexcept override { return E_NOTIMPL; }

 private:
  const std::string& text_;
  std::size_t at_ = 0;
};

/// The document that a benchmark's arguments ask for: bytes, and 1 for text instead of attributes.
const std::string& Document(const benchmark::State& state) {
  static std::map<std::pair<std::int64_t, std::int64_t>, std::string> made;
  std::string& document = made[{state.range(0), state.range(1)}];
  const auto size = static_cast<std::size_t>(state.range(0));
  if (document.empty())
    document = state.range(1) != 0 ? MakeTextDense(size) : MakeAttributeDense(size);
  return document;
}

void Count(benchmark::State& state, const std::string& document) {
  state.SetBytesProcessed(static_cast<std::int64_t>(document.size()) * state.iterations());
}

void Tolva(benchmark::State& state) {
  const std::string& document = Document(state);
  own_xml::Parser parser;
  for (auto _ : state) {
    TextStream* const stream = new TextStream(document);
    parser.SetInput(stream, false);
    stream->Release();
    std::size_t attributes = 0;
    while (parser.Read() == S_OK) attributes += parser.attributes().size();
    benchmark::DoNotOptimize(attributes);
  }
  Count(state, document);
}

void PugixmlInPlace(benchmark::State& state) {
  const std::string& document = Document(state);
  std::string copy;
  for (auto _ : state) {
    state.PauseTiming();
    copy = document;
    state.ResumeTiming();
    pugi::xml_document tree;
    benchmark::DoNotOptimize(tree.load_buffer_inplace(copy.data(), copy.size()));
  }
  Count(state, document);
}

void PugixmlCopying(benchmark::State& state) {
  const std::string& document = Document(state);
  for (auto _ : state) {
    pugi::xml_document tree;
    benchmark::DoNotOptimize(tree.load_buffer(document.data(), document.size()));
  }
  Count(state, document);
}

void Expat(benchmark::State& state) {
  const std::string& document = Document(state);
  for (auto _ : state) {
    const XML_Parser parser = XML_ParserCreateNS(nullptr, '|');
    std::size_t attributes = 0;
    XML_SetUserData(parser, &attributes);
    XML_SetStartElementHandler(parser, [](void* user, const char*, const char** values) {
      for (; *values != nullptr; values += 2) ++*static_cast<std::size_t*>(user);
    });
    XML_Parse(parser, document.data(), static_cast<int>(document.size()), 1);
    XML_ParserFree(parser);
    benchmark::DoNotOptimize(attributes);
  }
  Count(state, document);
}

void Documents(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"bytes", "text"});
  for (const std::int64_t text : {0, 1}) {
    for (const std::int64_t bytes : {4'000, 40'000, 400'000, 10'000'000}) {
      benchmark->Args({bytes, text});
    }
  }
}

BENCHMARK(Tolva)->Apply(Documents);
BENCHMARK(PugixmlInPlace)->Apply(Documents);
BENCHMARK(PugixmlCopying)->Apply(Documents);
BENCHMARK(Expat)->Apply(Documents);

}  // namespace
}  // namespace tolva::bench
