// The typed write: nodes into a file.
#include <libxml/xmlwriter.h>
#include <tolva/support/save.h>
#include <pugixml.hpp>

#include <cstdlib>

#include "bench.h"
#include "platform/utf.h"

namespace tolva::bench {
namespace {

std::vector<Root> Load(Kind kind, const Documents& documents) {
  std::vector<Root> roots;
  for (const Document& document : documents) {
    roots.push_back(MakeRoot(kind));
    if (!Read(*MakeReader(), document.path.wstring(), *roots.back())) std::exit(1);
  }
  return roots;
}

bool Write(IXMLLiteManager& writer, const std::wstring& path, const node::INode& root) {
  return writer.OpenFile(path.c_str()) == 0 && root.WriteToXMLMgr(&writer) == 0 &&
         writer.Close() == 0;
}

/// With a new writer each time.
void WriteTolva(benchmark::State& state, Kind kind, const Documents& documents) {
  const std::vector<Root> roots = Load(kind, documents);
  Round round(roots);
  const std::wstring path = OutputPath().wstring();
  for (auto _ : state) {
    if (!Write(*MakeWriter(), path, *round.Next())) state.SkipWithError("not written");
  }
}

void WriteTolvaKeptWriter(benchmark::State& state, Kind kind, const Documents& documents) {
  const std::vector<Root> roots = Load(kind, documents);
  Round round(roots);
  const std::wstring path = OutputPath().wstring();
  const Manager writer = MakeWriter();
  for (auto _ : state) {
    if (!Write(*writer, path, *round.Next())) state.SkipWithError("not written");
  }
}

/// By the support library: into a new file, which is flushed, read back, compared and then renamed.
void WriteTolvaSave(benchmark::State& state, Kind kind, const Documents& documents) {
  const std::vector<Root> roots = Load(kind, documents);
  Round round(roots);
  for (auto _ : state) {
    if (!support::Save(SupportKind(kind), *round.Next(), OutputPath()))
      state.SkipWithError("not written");
  }
}

/// Less work than the library's: the tree is there, with all values as texts in UTF-8.
void SavePugixml(benchmark::State& state, Kind /*kind*/, const Documents& documents) {
  std::vector<pugi::xml_document> trees(documents.size());
  for (std::size_t i = 0; i < trees.size(); ++i) trees[i].load_file(documents[i].path.c_str());
  Round round(trees);
  const std::string path = OutputPath().string();
  for (auto _ : state) {
    if (!round.Next().save_file(path.c_str(), "  ")) state.SkipWithError("not written");
  }
}

// ---- from nodes ---------------------------------------------------------------------------------

/// The values of nodes as texts in UTF-8, for writers that want these.
class Texts {
 public:
  const char* Of(const node::FieldRef& field) {
    const auto& wide = *static_cast<const std::wstring*>(field.value);
    constexpr std::size_t kLongest = 4;
    text_.resize(std::max(text_.size(), kLongest * wide.size() + 1));
    char* to = text_.data();
    for (const wchar_t c : wide) to = platform::EncodeUtf8(static_cast<char32_t>(c), to);
    *to = '\0';
    return text_.data();
  }

  const char* Of(const Plan::AttributeRow& attribute, const node::FieldRef& field) {
    switch (attribute.row->type) {
      case node::ValueType::kString:
        return Of(field);
      case node::ValueType::kEnum: {
        const DWORD value = *static_cast<const DWORD*>(field.value);
        return value < attribute.enum_texts.size() ? attribute.enum_texts[value].c_str() : "";
      }
      case node::ValueType::kLongNumber:
        return OfNumber(*static_cast<const std::uint64_t*>(field.value));
      default:
        return OfNumber(*static_cast<const DWORD*>(field.value));
    }
  }

 private:
  const char* OfNumber(std::uint64_t number) {
    *std::to_chars(number_, number_ + sizeof number_ - 1, number).ptr = '\0';
    return number_;
  }

  std::string text_;
  char number_[24];
};

/// Goes through nodes and passes names and texts to `Target`, which says what an element is to it.
template <class Target>
void Visit(const Plan& plan, node::IElement& node, Texts& texts, Target& target,
           typename Target::Element parent) {
  const typename Target::Element element = target.Start(parent, plan.name.c_str());
  for (const Plan::AttributeRow& attribute : plan.attributes) {
    const node::FieldRef field = attribute.row->locate(node);
    if (field.present != nullptr && *field.present == 0) continue;
    target.AddAttribute(element, attribute.name.c_str(), texts.Of(attribute, field));
  }
  if (plan.schema->content.locate != nullptr) {
    target.AddText(element, texts.Of(plan.schema->content.locate(node)));
  }
  for (const Plan::ChildRow& row : plan.children) {
    const node::ChildRef child = row.row->locate(node);
    if (child.items != nullptr) {
      for (std::size_t i = 0; i < child.items->Size(); ++i) {
        auto& item = const_cast<node::IElement&>(child.items->Item(i));
        Visit(*row.plan, item, texts, target, element);
      }
    } else if (child.present == nullptr || *child.present != 0) {
      Visit(*row.plan, *child.element, texts, target, element);
    }
  }
  target.End();
}

class PugixmlTarget {
 public:
  using Element = pugi::xml_node;

  static Element Start(Element parent, const char* name) { return parent.append_child(name); }
  static void AddAttribute(Element element, const char* name, const char* value) {
    element.append_attribute(name).set_value(value);
  }
  static void AddText(Element element, const char* text) {
    element.append_child(pugi::node_pcdata).set_value(text);
  }
  static void End() {}
};

void WritePugixml(benchmark::State& state, Kind kind, const Documents& documents) {
  const std::vector<Root> roots = Load(kind, documents);
  Round round(roots);
  const std::string path = OutputPath().string();
  Texts texts;
  PugixmlTarget target;
  for (auto _ : state) {
    pugi::xml_document tree;
    Visit(PlanOf(kind), *round.Next(), texts, target, tree);
    if (!tree.save_file(path.c_str(), "  ")) state.SkipWithError("not written");
  }
}

class Libxml2Target {
 public:
  struct Element {};

  explicit Libxml2Target(const char* path) : writer_(xmlNewTextWriterFilename(path, 0)) {
    xmlTextWriterSetIndent(writer_, 1);
    xmlTextWriterSetIndentString(writer_, Xml("  "));
    xmlTextWriterStartDocument(writer_, nullptr, "UTF-8", nullptr);
  }
  Libxml2Target(const Libxml2Target&) = delete;
  Libxml2Target& operator=(const Libxml2Target&) = delete;
  ~Libxml2Target() {
    xmlTextWriterEndDocument(writer_);
    xmlFreeTextWriter(writer_);
  }

  Element Start(Element /*parent*/, const char* name) {
    xmlTextWriterStartElement(writer_, Xml(name));
    return {};
  }
  void AddAttribute(Element /*element*/, const char* name, const char* value) {
    xmlTextWriterWriteAttribute(writer_, Xml(name), Xml(value));
  }
  void AddText(Element /*element*/, const char* text) {
    xmlTextWriterWriteString(writer_, Xml(text));
  }
  void End() { xmlTextWriterEndElement(writer_); }

 private:
  static const xmlChar* Xml(const char* text) { return reinterpret_cast<const xmlChar*>(text); }

  xmlTextWriterPtr writer_;
};

void WriteLibxml2(benchmark::State& state, Kind kind, const Documents& documents) {
  const std::vector<Root> roots = Load(kind, documents);
  Round round(roots);
  const std::string path = OutputPath().string();
  Texts texts;
  for (auto _ : state) {
    Libxml2Target target(path.c_str());
    Visit(PlanOf(kind), *round.Next(), texts, target, {});
  }
}

}  // namespace

void RegisterWrites() {
  RegisterUpToLargest("write", "tolva", WriteTolva);
  Register("write", "tolva-kept-writer", WriteTolvaKeptWriter);
  Register("write", "tolva-save", WriteTolvaSave);
  Register("write", "pugixml-saving", SavePugixml);
  Register("write", "pugixml", WritePugixml);
  Register("write", "libxml2", WriteLibxml2);
}

}  // namespace tolva::bench
