// The typed read: a file into nodes. Every rival compares names, looks up ENUM texts, parses
// numbers, makes wide strings of all others and checks for required children; the nodes are the
// library's for all but the data binding, which has classes of its own.
#include <expat.h>
#include <fcntl.h>
#include <tolva/support/load.h>
#include <unistd.h>
#include <pugixml.hpp>
#include <rapidxml/rapidxml.hpp>

#include "bench.h"
#include "platform/utf.h"
#include "policy_tree.h"

namespace tolva::bench {
namespace {

/// Runs a read again and again, each into a new root.
template <class All, class Read>
void Typed(benchmark::State& state, Kind kind, const All& documents, Read read) {
  Round round(documents);
  for (auto _ : state) {
    const Root root = MakeRoot(kind);
    if (!read(round.Next(), *root)) state.SkipWithError("not read");
  }
}

// ---- the library --------------------------------------------------------------------------------

/// With a reader that is kept, as an agent keeps it.
void ReadTolva(benchmark::State& state, Kind kind, const Documents& documents) {
  const Manager reader = MakeReader();
  Typed(state, kind, documents, [&](const Document& document, node::INode& root) {
    return Read(*reader, document.path.wstring(), root);
  });
}

void ReadTolvaNewReader(benchmark::State& state, Kind kind, const Documents& documents) {
  Typed(state, kind, documents, [&](const Document& document, node::INode& root) {
    return Read(*MakeReader(), document.path.wstring(), root);
  });
}

/// Into the same root each time.
void ReadTolvaSameRoot(benchmark::State& state, Kind kind, const Documents& documents) {
  const Manager reader = MakeReader();
  const Root root = MakeRoot(kind);
  Round round(documents);
  for (auto _ : state) {
    if (!Read(*reader, round.Next().path.wstring(), *root)) state.SkipWithError("not read");
  }
}

void ReadTolvaString(benchmark::State& state, Kind kind, const Documents& documents) {
  std::vector<std::wstring> texts;
  for (const Document& document : documents) texts.push_back(pugi::as_wide(document.text));
  const Manager reader = MakeReader();
  Typed(state, kind, texts, [&](const std::wstring& text, node::INode& root) {
    return reader->OpenFromString(text.c_str()) == 0 && root.ReadFromXMLMgr(reader.get()) == 0;
  });
}

/// By the support library, with a reader of its own, to the end of the document, with diagnostics.
void ReadTolvaLoad(benchmark::State& state, Kind kind, const Documents& documents) {
  Round round(documents);
  for (auto _ : state) {
    const auto loaded = support::Load(SupportKind(kind), round.Next().path);
    if (!loaded.report) state.SkipWithError("not read");
  }
}

// ---- parsers that build a tree ------------------------------------------------------------------

struct Pugixml {
  using Element = pugi::xml_node;
  using Attribute = pugi::xml_attribute;
  static Attribute FirstAttribute(Element element) { return element.first_attribute(); }
  static Attribute Next(Attribute attribute) { return attribute.next_attribute(); }
  static Element FirstChild(Element element) { return element.first_child(); }
  static Element Next(Element element) { return element.next_sibling(); }
  static std::string_view Name(Element element) { return element.name(); }
  static std::string_view Name(Attribute attribute) { return attribute.name(); }
  static std::string_view Value(Attribute attribute) { return attribute.value(); }
  static std::string_view Text(Element element) { return element.child_value(); }
};

struct Rapidxml {
  using Element = const rapidxml::xml_node<>*;
  using Attribute = const rapidxml::xml_attribute<>*;
  static Attribute FirstAttribute(Element element) { return element->first_attribute(); }
  static Attribute Next(Attribute attribute) { return attribute->next_attribute(); }
  static Element FirstChild(Element element) { return element->first_node(); }
  static Element Next(Element element) { return element->next_sibling(); }
  static std::string_view Name(const rapidxml::xml_base<>* node) {
    return {node->name(), node->name_size()};
  }
  static std::string_view Value(const rapidxml::xml_base<>* node) {
    return {node->value(), node->value_size()};
  }
  static std::string_view Text(Element element) { return Value(element); }
};

template <class Tree, class Filler>
bool Fill(typename Tree::Element element, typename Filler::Frame frame) {
  for (auto attribute = Tree::FirstAttribute(element); attribute;
       attribute = Tree::Next(attribute)) {
    if (!Filler::StoreAttribute(frame, Tree::Name(attribute), Tree::Value(attribute))) return false;
  }
  if (Filler::HasText(frame)) {
    Filler::StoreText(frame, Tree::Text(element));
    return true;
  }
  for (auto inner = Tree::FirstChild(element); inner; inner = Tree::Next(inner)) {
    const typename Filler::Frame child = Filler::MakeChild(frame, Tree::Name(inner));
    if (child.plan != nullptr && !Fill<Tree, Filler>(inner, child)) return false;
  }
  return Filler::IsComplete(frame);
}

void WidenWithPugixml(std::string_view utf8, std::wstring& wide) {
  wide = pugi::as_wide(utf8.data());  // zero-terminated
}

/// By what pugixml has itself, in the way its manual shows.
void ReadPugixml(benchmark::State& state, Kind kind, const Documents& documents) {
  using F = Filler<WidenWithPugixml>;
  Typed(state, kind, documents, [&](const Document& document, node::INode& root) {
    pugi::xml_document tree;
    return tree.load_file(document.path.c_str()) &&
           Fill<Pugixml, F>(tree.document_element(), {&PlanOf(kind), &root});
  });
}

// As fast as it gets: the file is read into memory that is kept and parsed there, and the library's
// own function makes the strings wide.

using FastFiller = Filler<platform::AssignWide>;

void ReadPugixmlTuned(benchmark::State& state, Kind kind, const Documents& documents) {
  static KeptBuffer buffer;
  Typed(state, kind, documents, [&](const Document& document, node::INode& root) {
    pugi::xml_document tree;
    return buffer.ReadFile(document.path) &&
           tree.load_buffer_inplace(buffer.data(), buffer.size()) &&
           Fill<Pugixml, FastFiller>(tree.document_element(), {&PlanOf(kind), &root});
  });
}

void ReadRapidxml(benchmark::State& state, Kind kind, const Documents& documents) {
  static KeptBuffer buffer;
  Typed(state, kind, documents, [&](const Document& document, node::INode& root) {
    if (!buffer.ReadFile(document.path)) return false;
    rapidxml::xml_document<> tree;
    tree.parse<rapidxml::parse_validate_closing_tags>(buffer.data());
    return Fill<Rapidxml, FastFiller>(tree.first_node(), {&PlanOf(kind), &root});
  });
}

// ---- expat --------------------------------------------------------------------------------------

/// Fills nodes while expat parses.
class ExpatFiller {
 public:
  ExpatFiller(const Plan& plan, node::IElement& root)
      : parser_(XML_ParserCreate(nullptr)), root_{&plan, &root} {
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
    constexpr int kBlock = 65536;
    const int file = open(path.c_str(), O_RDONLY);
    bool is_last = false;
    while (!is_last) {
      void* const buffer = XML_GetBuffer(parser_, kBlock);
      const ssize_t got = read(file, buffer, kBlock);
      is_last = got <= 0;
      if (XML_ParseBuffer(parser_, static_cast<int>(got < 0 ? 0 : got), is_last ? 1 : 0) ==
          XML_STATUS_ERROR) {
        has_failed_ = true;
        break;
      }
    }
    close(file);
    return !has_failed_;
  }

 private:
  // expat does not say what follows a value in memory.
  static void Widen(std::string_view utf8, std::wstring& wide) {
    static std::string copy;
    copy.assign(utf8);
    copy.append(platform::kReadAhead, '\0');
    platform::AssignWide({copy.data(), utf8.size()}, wide);
  }

  using F = Filler<Widen>;

  void Start(const char* name, const char** attributes) {
    text_.clear();
    F::Frame frame = {nullptr, nullptr};
    if (frames_.empty()) {
      frame = root_;
    } else if (frames_.back().plan != nullptr) {
      frame = F::MakeChild(frames_.back(), name);
    }
    for (; frame.plan != nullptr && *attributes != nullptr; attributes += 2) {
      if (!F::StoreAttribute(frame, attributes[0], attributes[1])) has_failed_ = true;
    }
    frames_.push_back(frame);
  }

  void End() {
    const F::Frame& frame = frames_.back();
    if (F::HasText(frame)) F::StoreText(frame, text_);
    if (!F::IsComplete(frame)) has_failed_ = true;
    frames_.pop_back();
  }

  XML_Parser parser_;
  const F::Frame root_;
  std::vector<F::Frame> frames_;
  std::string text_;
  bool has_failed_ = false;
};

void ReadExpat(benchmark::State& state, Kind kind, const Documents& documents) {
  Typed(state, kind, documents, [&](const Document& document, node::INode& root) {
    return ExpatFiller(PlanOf(kind), root).Read(document.path);
  });
}

// ---- data binding -------------------------------------------------------------------------------

/// The tree that a data binding compiler makes of the policy's schema, by Xerces.
void ReadDataBinding(benchmark::State& state, Kind /*kind*/, const Documents& documents) {
  Round round(documents);
  for (auto _ : state) {
    if (!ReadPolicyTree(round.Next().path)) state.SkipWithError("not read");
  }
}

}  // namespace

void RegisterReads() {
  RegisterUpToLargest("read", "tolva", ReadTolva);
  Register("read", "tolva-new-reader", ReadTolvaNewReader);
  Register("read", "tolva-same-root", ReadTolvaSameRoot);
  Register("read", "tolva-string", ReadTolvaString);
  Register("read", "tolva-load", ReadTolvaLoad);
  RegisterUpToLargest("read", "pugixml", ReadPugixml);
  Register("read", "pugixml-tuned", ReadPugixmlTuned);
  Register("read", "rapidxml", ReadRapidxml);
  Register("read", "expat", ReadExpat);
  for (const std::size_t size : kSizes) {
    Register("read", "data-binding", kPolicy, size, ReadDataBinding);
  }
}

}  // namespace tolva::bench
