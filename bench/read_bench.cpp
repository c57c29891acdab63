// How fast documents are read: by the parser alone, and into nodes.
#include <benchmark/benchmark.h>
#include <expat.h>
#include <fcntl.h>
#include <libxml/xmlreader.h>
#include <tolva/tolva.h>
#include <unistd.h>
#include <pugixml.hpp>

#include <cstring>
#include <memory>
#include <string>

#include "documents.h"
#include "messageconf/message_catalogue.h"
#include "plan.h"
#include "platform/platform.h"
#include "platform/ref_counted.h"
#include "platform/utf.h"
#include "platform/xml/parser.h"
#include "policy/policy.h"
#include "policy_tree.h"

namespace tolva::bench {
namespace {

const Document& DocumentOf(const benchmark::State& state) {
  return GetDocument(static_cast<Kind>(state.range(1)), static_cast<std::size_t>(state.range(0)));
}

void Count(benchmark::State& state, const Document& document) {
  const auto iterations = static_cast<double>(state.iterations());
  state.SetBytesProcessed(static_cast<std::int64_t>(document.text.size()) * state.iterations());
  state.counters["ns/element"] =
      benchmark::Counter(iterations * static_cast<double>(document.elements) * 1e-9,
                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"bytes", "text"});
  for (const std::int64_t kind : {kPolicy, kCatalogue}) {
    for (const std::int64_t bytes : {4'000, 40'000, 400'000, 10'000'000}) {
      benchmark->Args({bytes, kind});
    }
  }
}

// ---- the walk: every node once, nothing kept ----------------------------------------------------

/// A document without copying it first, as a mapped file would be.
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

/// `open` makes a stream of the document.
template <class Open>
void Walk(benchmark::State& state, Open open) {
  const Document& document = DocumentOf(state);
  platform::own_xml::Parser parser;
  for (auto _ : state) {
    platform::ComPtr<platform::IStream> stream;
    open(document, stream);
    parser.SetInput(stream.Get(), false);
    std::size_t attributes = 0;
    while (parser.Read() == platform::own_xml::ReadResult::kNode) {
      attributes += parser.attributes().size();
    }
    if (attributes == 0) state.SkipWithError("not read");
    benchmark::DoNotOptimize(attributes);
  }
  Count(state, document);
}

void WalkTolva(benchmark::State& state) {
  Walk(state, [](const Document& document, platform::ComPtr<platform::IStream>& stream) {
    stream.Attach(new TextStream(document.text));
  });
}

void WalkTolvaFile(benchmark::State& state) {
  Walk(state, [](const Document& document, platform::ComPtr<platform::IStream>& stream) {
    platform::OpenToRead(document.path.wstring().c_str(), stream.Receive());
  });
}

void WalkPugixmlInPlace(benchmark::State& state) {
  const Document& document = DocumentOf(state);
  std::string copy;
  for (auto _ : state) {
    state.PauseTiming();
    copy = document.text;
    state.ResumeTiming();
    pugi::xml_document tree;
    benchmark::DoNotOptimize(tree.load_buffer_inplace(copy.data(), copy.size()));
  }
  Count(state, document);
}

void WalkPugixmlCopying(benchmark::State& state) {
  const Document& document = DocumentOf(state);
  for (auto _ : state) {
    pugi::xml_document tree;
    benchmark::DoNotOptimize(tree.load_buffer(document.text.data(), document.text.size()));
  }
  Count(state, document);
}

void WalkExpat(benchmark::State& state) {
  const Document& document = DocumentOf(state);
  for (auto _ : state) {
    const XML_Parser parser = XML_ParserCreateNS(nullptr, '|');
    std::size_t attributes = 0;
    XML_SetUserData(parser, &attributes);
    XML_SetStartElementHandler(parser, [](void* user, const char*, const char** values) {
      for (; *values != nullptr; values += 2) ++*static_cast<std::size_t*>(user);
    });
    XML_Parse(parser, document.text.data(), static_cast<int>(document.text.size()), 1);
    XML_ParserFree(parser);
    benchmark::DoNotOptimize(attributes);
  }
  Count(state, document);
}

void WalkLibxml2(benchmark::State& state) {
  const Document& document = DocumentOf(state);
  for (auto _ : state) {
    const xmlTextReaderPtr reader = xmlReaderForMemory(
        document.text.data(), static_cast<int>(document.text.size()), "", nullptr, 0);
    std::size_t attributes = 0;
    while (xmlTextReaderRead(reader) == 1) {
      if (xmlTextReaderNodeType(reader) != XML_READER_TYPE_ELEMENT) continue;
      attributes += static_cast<std::size_t>(xmlTextReaderAttributeCount(reader));
    }
    xmlFreeTextReader(reader);
    benchmark::DoNotOptimize(attributes);
  }
  Count(state, document);
}

// ---- the typed read: a file into nodes ----------------------------------------------------------

using Root = std::unique_ptr<node::INode>;

Root MakeRoot(const benchmark::State& state) {
  if (state.range(1) == kPolicy) {
    return Root(TolvaInterface::ILPClientConfiguration_CreateNewInstance());
  }
  return Root(MessageConf::EndPointMessage_CreateNewInstance());
}

const Plan& PlanOf(const benchmark::State& state) {
  static const Plans policy(TolvaInterface::CILPClientConfiguration::kSchema);
  static const Plans catalogue(MessageConf::CEndPointMessage::kSchema);
  return state.range(1) == kPolicy ? policy.root() : catalogue.root();
}

/// Runs a read again and again, each into a new root.
template <class Read>
void Typed(benchmark::State& state, Read read) {
  const Document& document = DocumentOf(state);
  for (auto _ : state) {
    Root root = MakeRoot(state);
    if (!read(document, *root)) state.SkipWithError("not read");
    benchmark::DoNotOptimize(root);
  }
  Count(state, document);
}

void ReadTolva(benchmark::State& state) {
  Typed(state, [](const Document& document, node::INode& root) {
    const std::unique_ptr<IXMLLiteManager> reader(tolvaCreateXMLManager(0));
    return reader->OpenFile(document.path.wstring().c_str()) == 0 &&
           root.ReadFromXMLMgr(reader.get()) == 0;
  });
}

/// With a reader that is kept, as an agent keeps it.
void ReadTolvaAgain(benchmark::State& state) {
  const std::unique_ptr<IXMLLiteManager> reader(tolvaCreateXMLManager(0));
  Typed(state, [&reader](const Document& document, node::INode& root) {
    return reader->OpenFile(document.path.wstring().c_str()) == 0 &&
           root.ReadFromXMLMgr(reader.get()) == 0;
  });
}

/// From a string in memory.
void ReadTolvaString(benchmark::State& state) {
  const std::wstring text = pugi::as_wide(DocumentOf(state).text);
  const std::unique_ptr<IXMLLiteManager> reader(tolvaCreateXMLManager(0));
  Typed(state, [&](const Document& /*document*/, node::INode& root) {
    return reader->OpenFromString(text.c_str()) == 0 && root.ReadFromXMLMgr(reader.get()) == 0;
  });
}

void Widen(const char* utf8, std::wstring& wide) { wide = pugi::as_wide(utf8); }

bool FillFromTree(const Plan& plan, const pugi::xml_node& element, node::IElement& node) {
  std::size_t next = 0;
  for (const pugi::xml_attribute attribute : element.attributes()) {
    const Plan::AttributeRow* const row = FindRow(plan.attributes, attribute.name(), next);
    if (row != nullptr && !StoreAttribute(*row, attribute.value(), node, Widen)) return false;
  }
  if (plan.schema->content.locate != nullptr) {
    const node::FieldRef field = plan.schema->content.locate(node);
    if (field.present != nullptr) *field.present = 1;
    Widen(element.child_value(), *static_cast<std::wstring*>(field.value));
    return true;
  }
  std::uint32_t found = 0;
  next = 0;
  for (const pugi::xml_node inner : element.children()) {
    const Plan::ChildRow* const row = FindRow(plan.children, inner.name(), next);
    if (row == nullptr) continue;
    const node::ChildRef child = row->row->locate(node);
    node::IElement& target = row->row->make(node);
    if (child.present != nullptr) *child.present = 1;
    if (!FillFromTree(*row->plan, inner, target)) return false;
    found |= std::uint32_t{1} << (row - plan.children.data());
  }
  return (plan.required & ~found) == 0;
}

void ReadPugixml(benchmark::State& state) {
  const Plan& plan = PlanOf(state);
  Typed(state, [&plan](const Document& document, node::INode& root) {
    pugi::xml_document tree;
    return tree.load_file(document.path.c_str()) &&
           FillFromTree(plan, tree.document_element(), root);
  });
}

/// Fills nodes while expat parses.
class ExpatFiller {
 public:
  ExpatFiller(const Plan& plan, node::IElement& root) : parser_(XML_ParserCreate(nullptr)) {
    frames_.push_back({nullptr, nullptr, 0, 0});
    root_plan_ = &plan;
    root_ = &root;
    XML_SetUserData(parser_, this);
    XML_SetElementHandler(
        parser_,
        [](void* self, const char* name, const char** attributes) {
          static_cast<ExpatFiller*>(self)->Start(name, attributes);
        },
        [](void* self, const char*) { static_cast<ExpatFiller*>(self)->End(); });
    XML_SetCharacterDataHandler(parser_, [](void* self, const char* text, int size) {
      static_cast<ExpatFiller*>(self)->text_.append(text, static_cast<std::size_t>(size));
    });
  }
  ExpatFiller(const ExpatFiller&) = delete;
  ExpatFiller& operator=(const ExpatFiller&) = delete;
  ~ExpatFiller() { XML_ParserFree(parser_); }

  bool Read(const std::filesystem::path& path) {
    const int file = open(path.c_str(), O_RDONLY);
    constexpr int kBlock = 65536;
    bool last = false;
    while (!last) {
      void* const buffer = XML_GetBuffer(parser_, kBlock);
      const ssize_t got = read(file, buffer, kBlock);
      last = got <= 0;
      if (XML_ParseBuffer(parser_, static_cast<int>(got < 0 ? 0 : got), last ? 1 : 0) ==
          XML_STATUS_ERROR) {
        failed_ = true;
        break;
      }
    }
    close(file);
    return !failed_;
  }

 private:
  struct Frame {
    const Plan* plan;  ///< null: nobody wants it
    node::IElement* node;
    std::uint32_t found;
    std::size_t next;
  };

  void WidenInto(const char* utf8, std::wstring& wide) {
    wide_.Clear();
    platform::AppendWide(utf8, wide_);
    wide.assign(wide_.data(), wide_.size());
  }

  void Start(const char* name, const char** attributes) {
    Frame frame = {nullptr, nullptr, 0, 0};
    text_.clear();
    if (frames_.size() == 1) {
      frame.plan = root_plan_;
      frame.node = root_;
    } else if (frames_.back().plan != nullptr) {
      Frame& outer = frames_.back();
      const Plan::ChildRow* const row = FindRow(outer.plan->children, name, outer.next);
      if (row != nullptr) {
        const node::ChildRef child = row->row->locate(*outer.node);
        if (child.present != nullptr) *child.present = 1;
        outer.found |= std::uint32_t{1} << (row - outer.plan->children.data());
        frame.plan = row->plan;
        frame.node = &row->row->make(*outer.node);
      }
    }
    std::size_t next = 0;
    for (; frame.plan != nullptr && *attributes != nullptr; attributes += 2) {
      const Plan::AttributeRow* const row = FindRow(frame.plan->attributes, attributes[0], next);
      const auto widen = [this](const char* utf8, std::wstring& wide) { WidenInto(utf8, wide); };
      if (row != nullptr && !StoreAttribute(*row, attributes[1], *frame.node, widen))
        failed_ = true;
    }
    frames_.push_back(frame);
  }

  void End() {
    const Frame& frame = frames_.back();
    if (frame.plan != nullptr) {
      if (frame.plan->schema->content.locate != nullptr) {
        const node::FieldRef field = frame.plan->schema->content.locate(*frame.node);
        if (field.present != nullptr) *field.present = 1;
        WidenInto(text_.c_str(), *static_cast<std::wstring*>(field.value));
      }
      if ((frame.plan->required & ~frame.found) != 0) failed_ = true;
    }
    frames_.pop_back();
  }

  XML_Parser parser_;
  const Plan* root_plan_ = nullptr;
  node::IElement* root_ = nullptr;
  std::vector<Frame> frames_;
  std::string text_;
  platform::Buffer<wchar_t> wide_;
  bool failed_ = false;
};

void ReadExpat(benchmark::State& state) {
  const Plan& plan = PlanOf(state);
  Typed(state, [&plan](const Document& document, node::INode& root) {
    return ExpatFiller(plan, root).Read(document.path);
  });
}

/// The tree that a data binding compiler makes of the policy's schema, by Xerces.
void ReadDataBinding(benchmark::State& state) {
  const Document& document = DocumentOf(state);
  for (auto _ : state) {
    if (!ReadPolicyTree(document.path)) state.SkipWithError("not read");
  }
  Count(state, document);
}

/// From a file that is not in memory.
void ReadTolvaCold(benchmark::State& state) {
  const Document& document = DocumentOf(state);
  const std::filesystem::path path =
      std::filesystem::current_path() / ("cold-" + std::to_string(getpid()) + ".xml");
  std::filesystem::copy_file(document.path, path);
  const int file = open(path.c_str(), O_RDONLY);
  fsync(file);
  for (auto _ : state) {
    state.PauseTiming();
    posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
    Root root = MakeRoot(state);
    state.ResumeTiming();
    const std::unique_ptr<IXMLLiteManager> reader(tolvaCreateXMLManager(0));
    if (reader->OpenFile(path.wstring().c_str()) != 0 || root->ReadFromXMLMgr(reader.get()) != 0) {
      state.SkipWithError("not read");
    }
  }
  close(file);
  std::filesystem::remove(path);
  Count(state, document);
}

BENCHMARK(WalkTolva)->Apply(Sizes);
BENCHMARK(WalkTolvaFile)->Apply(Sizes);
BENCHMARK(WalkPugixmlInPlace)->Apply(Sizes);
BENCHMARK(WalkPugixmlCopying)->Apply(Sizes);
BENCHMARK(WalkExpat)->Apply(Sizes);
BENCHMARK(WalkLibxml2)->Apply(Sizes);
BENCHMARK(ReadTolva)->Apply(Sizes);
BENCHMARK(ReadTolvaAgain)->Apply(Sizes);
BENCHMARK(ReadTolvaString)->Apply(Sizes);
BENCHMARK(ReadTolvaCold)->ArgNames({"bytes", "text"})->Args({10'000'000, kPolicy});
BENCHMARK(ReadPugixml)->Apply(Sizes);
BENCHMARK(ReadExpat)->Apply(Sizes);
BENCHMARK(ReadDataBinding)
    ->ArgNames({"bytes", "text"})
    ->Args({40'000, kPolicy})
    ->Args({400'000, kPolicy})
    ->Args({10'000'000, kPolicy});

}  // namespace
}  // namespace tolva::bench
