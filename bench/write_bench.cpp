// How fast nodes are written.
#include <benchmark/benchmark.h>
#include <libxml/xmlwriter.h>
#include <tolva/tolva.h>
#include <pugixml.hpp>

#include <memory>
#include <string>

#include "documents.h"
#include "messageconf/message_catalogue.h"
#include "plan.h"
#include "platform/utf.h"
#include "policy/policy.h"

namespace tolva::bench {
namespace {

using Root = std::unique_ptr<node::INode>;

const Document& DocumentOf(const benchmark::State& state) {
  return GetDocument(static_cast<Kind>(state.range(1)), static_cast<std::size_t>(state.range(0)));
}

Root Load(const benchmark::State& state) {
  Root root(
      state.range(1) == kPolicy
          ? static_cast<node::INode*>(TolvaInterface::ILPClientConfiguration_CreateNewInstance())
          : MessageConf::EndPointMessage_CreateNewInstance());
  const std::unique_ptr<IXMLLiteManager> reader(tolvaCreateXMLManager(0));
  reader->OpenFile(DocumentOf(state).path.wstring().c_str());
  root->ReadFromXMLMgr(reader.get());
  return root;
}

void Count(benchmark::State& state) {
  state.SetBytesProcessed(static_cast<std::int64_t>(DocumentOf(state).text.size()) *
                          state.iterations());
}

void WriteTolva(benchmark::State& state) {
  const Root root = Load(state);
  const std::wstring path = OutputPath().wstring();
  for (auto _ : state) {
    const std::unique_ptr<IXMLLiteManager> writer(tolvaCreateXMLManager(1));
    if (writer->OpenFile(path.c_str()) != 0 || root->WriteToXMLMgr(writer.get()) != 0 ||
        writer->Close() != 0) {
      state.SkipWithError("not written");
    }
  }
  Count(state);
}

/// The tree alone is saved: it is there, and in UTF-8, beforehand.
void WritePugixml(benchmark::State& state) {
  pugi::xml_document tree;
  tree.load_file(DocumentOf(state).path.c_str());
  const std::string path = OutputPath().string();
  for (auto _ : state) {
    if (!tree.save_file(path.c_str(), "  ")) state.SkipWithError("not written");
  }
  Count(state);
}

/// The library's nodes through libxml2's writer.
class Libxml2Writer {
 public:
  explicit Libxml2Writer(const char* path) : writer_(xmlNewTextWriterFilename(path, 0)) {
    xmlTextWriterSetIndent(writer_, 1);
    xmlTextWriterSetIndentString(writer_, Xml("  "));
    xmlTextWriterStartDocument(writer_, nullptr, "UTF-8", nullptr);
  }
  Libxml2Writer(const Libxml2Writer&) = delete;
  Libxml2Writer& operator=(const Libxml2Writer&) = delete;
  ~Libxml2Writer() {
    xmlTextWriterEndDocument(writer_);
    xmlFreeTextWriter(writer_);
  }

  void Write(const Plan& plan, node::IElement& node) {
    xmlTextWriterStartElement(writer_, Xml(plan.name.c_str()));
    for (const Plan::AttributeRow& attribute : plan.attributes) {
      const node::FieldRef field = attribute.row->locate(node);
      if (field.present != nullptr && *field.present == 0) continue;
      xmlTextWriterWriteAttribute(writer_, Xml(attribute.name.c_str()),
                                  Xml(TextOf(attribute, field)));
    }
    if (plan.schema->content.locate != nullptr) {
      const node::FieldRef field = plan.schema->content.locate(node);
      xmlTextWriterWriteString(writer_, Xml(Narrow(field)));
    }
    for (const Plan::ChildRow& row : plan.children) {
      const node::ChildRef child = row.row->locate(node);
      if (child.items != nullptr) {
        for (std::size_t i = 0; i < child.items->Size(); ++i) {
          Write(*row.plan, const_cast<node::IElement&>(child.items->Item(i)));
        }
      } else if (child.present == nullptr || *child.present != 0) {
        Write(*row.plan, *child.element);
      }
    }
    xmlTextWriterEndElement(writer_);
  }

 private:
  static const xmlChar* Xml(const char* text) { return reinterpret_cast<const xmlChar*>(text); }

  const char* Narrow(const node::FieldRef& field) {
    text_.clear();
    platform::AppendUtf8(*static_cast<const std::wstring*>(field.value), text_);
    return text_.c_str();
  }

  const char* TextOf(const Plan::AttributeRow& attribute, const node::FieldRef& field) {
    switch (attribute.row->type) {
      case node::ValueType::kString:
        return Narrow(field);
      case node::ValueType::kEnum: {
        const DWORD value = *static_cast<const DWORD*>(field.value);
        return value < attribute.enum_texts.size() ? attribute.enum_texts[value].c_str() : "";
      }
      case node::ValueType::kLongNumber:
        text_ = std::to_string(*static_cast<const std::uint64_t*>(field.value));
        break;
      case node::ValueType::kNumber:
        text_ = std::to_string(*static_cast<const DWORD*>(field.value));
        break;
    }
    return text_.c_str();
  }

  xmlTextWriterPtr writer_;
  std::string text_;
};

void WriteLibxml2(benchmark::State& state) {
  const Root root = Load(state);
  const Plans plans(state.range(1) == kPolicy ? TolvaInterface::CILPClientConfiguration::kSchema
                                              : MessageConf::CEndPointMessage::kSchema);
  const std::string path = OutputPath().string();
  for (auto _ : state) Libxml2Writer(path.c_str()).Write(plans.root(), *root);
  Count(state);
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"bytes", "text"});
  for (const std::int64_t kind : {kPolicy, kCatalogue}) {
    for (const std::int64_t bytes : {4'000, 40'000, 400'000, 10'000'000}) {
      benchmark->Args({bytes, kind});
    }
  }
}

BENCHMARK(WriteTolva)->Apply(Sizes);
BENCHMARK(WritePugixml)->Apply(Sizes);
BENCHMARK(WriteLibxml2)->Apply(Sizes);

}  // namespace
}  // namespace tolva::bench
