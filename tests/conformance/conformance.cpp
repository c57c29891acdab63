// Runs the own XML parser over the W3C's XML conformance suite.
//   tolva_conformance <folder of the suite> <list of deviations>
//
// Each document for XML 1.0, fifth edition, is judged as it stands: one with a document type
// declaration has to be refused for it, of the others those that are well-formed accepted. Where
// expat can tell where the declaration is, the document is judged a second time without it, by what
// expat makes of the same bytes. The deviations have to be exactly those that are listed.
#include <expat.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "differential/compare.h"
#include "platform/xml/parser.h"
#include "support/streams.h"

namespace tolva::test {
namespace {

struct ParserDeleter {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ExpatParser = std::unique_ptr<XML_ParserStruct, ParserDeleter>;

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

// ---- the suite's catalogue ---------------------------------------------------------------------

struct Test {
  std::string id;
  std::string type;  ///< valid, invalid, not-wf or error
  std::string path;  ///< of the document, in the suite
};

/// The tests that are for XML 1.0 as it is now.
class Catalogue {
 public:
  explicit Catalogue(const std::string& path) {
    const ExpatParser parser(XML_ParserCreate(nullptr));
    XML_SetUserData(parser.get(), this);
    XML_SetElementHandler(
        parser.get(),
        [](void* self, const char* name, const char** attributes) {
          static_cast<Catalogue*>(self)->Enter(name, attributes);
        },
        [](void* self, const char*) { static_cast<Catalogue*>(self)->bases_.pop_back(); });
    const std::string text = ReadFile(path);
    if (XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE) !=
        XML_STATUS_OK)
      throw std::runtime_error("cannot read the tests in " + path);
  }

  std::vector<Test> tests;
  int left_out_xml11 = 0;
  int left_out_editions = 0;

 private:
  void Enter(std::string_view name, const char** attributes) {
    const auto value = [attributes](std::string_view wanted) -> std::string_view {
      for (const char** at = attributes; *at != nullptr; at += 2) {
        if (*at == wanted) return at[1];
      }
      return {};
    };
    const std::string outer = bases_.empty() ? "" : bases_.back();
    bases_.push_back(outer + std::string(value("xml:base")));
    if (name != "TEST") return;
    const std::string_view recommendation = value("RECOMMENDATION");
    const std::string_view editions = value("EDITION");
    if (recommendation == "XML1.1" || recommendation == "NS1.1") {
      ++left_out_xml11;
    } else if (!editions.empty() && editions.find('5') == std::string_view::npos) {
      ++left_out_editions;
    } else {
      tests.push_back({std::string(value("ID")), std::string(value("TYPE")),
                       bases_.back() + std::string(value("URI"))});
    }
  }

  std::vector<std::string> bases_;  ///< of the open elements
};

// ---- document type declarations ----------------------------------------------------------------

/// Where a document's type declaration is, as far as expat can tell.
struct Doctype {
  std::optional<std::size_t> start;
  std::optional<std::size_t> end;
};

class DoctypeFinder {
 public:
  Doctype Find(std::string_view document) {
    const ExpatParser parser(XML_ParserCreate(nullptr));
    parser_ = parser.get();
    found_ = {};
    XML_SetUserData(parser_, this);
    // The handler for its start is called too late to know where that was, and the first word of it
    // goes to the default handler only while there is no such handler.
    XML_SetDefaultHandler(parser_, [](void* self, const char* text, int size) {
      auto* const finder = static_cast<DoctypeFinder*>(self);
      const std::string_view token(text, static_cast<std::size_t>(size));
      if (token == "<!DOCTYPE" && !finder->found_.start) finder->found_.start = finder->Position();
    });
    XML_SetEndDoctypeDeclHandler(parser_, [](void* self) {
      auto* const finder = static_cast<DoctypeFinder*>(self);
      finder->found_.end =
          finder->Position() + static_cast<std::size_t>(XML_GetCurrentByteCount(finder->parser_));
      XML_StopParser(finder->parser_, XML_FALSE);
    });
    XML_Parse(parser_, document.data(), static_cast<int>(document.size()), XML_TRUE);
    return found_;
  }

 private:
  std::size_t Position() const {
    return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_));
  }

  XML_Parser parser_ = nullptr;
  Doctype found_;
};

// ---- the checks --------------------------------------------------------------------------------

/// What the own parser says of the document, in whatever pieces it comes.
HRESULT Judge(std::string_view document, std::size_t block) {
  TextStream stream(document, block);
  own_xml::Parser parser;
  parser.SetInput(&stream, false);
  HRESULT result = S_OK;
  while ((result = parser.Read()) == S_OK) {
  }
  return result;
}
}  // namespace
}  // namespace tolva::test

using namespace tolva::test;
int main(int, char** argv) {
  std::string suite = argv[1];
  Catalogue catalogue(suite + "/cleaned/xmlconf-flattened.xml");
  printf("%zu %d %d\n", catalogue.tests.size(), catalogue.left_out_xml11,
         catalogue.left_out_editions);
  DoctypeFinder finder;
  for (auto& t : catalogue.tests) {
    const std::string d = ReadFile(suite + "/xmlconf/" + t.path);
    HRESULT own = Judge(d, d.size() + 1);
    if (own != Judge(d, 1) || own != Judge(d, 7)) printf("BLOCKS %s\n", t.id.c_str());
    auto dt = finder.Find(d);
    if (dt.start) { fprintf(stderr,"S%d %s %s\n",dt.end.has_value(), t.type.c_str(), t.path.c_str());
      if (own != WC_E_DTDPROHIBITED)
        printf("as-is dtd %s %s %x\n", t.id.c_str(), t.path.c_str(), own);
    } else {
      bool expected = t.type == "valid" || t.type == "invalid";
      if (t.type != "error" && (own == S_FALSE) != expected)
        printf("as-is %s %s %s %x\n", t.type.c_str(), t.id.c_str(), t.path.c_str(), own);
      if (auto df = Difference(d)) printf("nodes %s %s\n", t.id.c_str(), df->c_str());
    }
    if (dt.start && !dt.end && t.type=="valid") {
      auto e = d.find("]>", *dt.start);
      if (e==std::string::npos) {printf("noend %s %s\n", t.path.c_str(), d.substr(0,60).c_str()); continue;}
      auto cut = d.substr(0, *dt.start) + d.substr(e+2);
      own = Judge(cut, cut.size() + 1);
      if (own != S_FALSE) printf("fifth %s %s %s %x %zd\n", t.type.c_str(), t.id.c_str(), t.path.c_str(), own, cut.size());
      if (auto df = Difference(cut)) printf("fifth %s %s\n", t.id.c_str(), df->c_str());
      if (ExpatAccepts(cut)) printf("expataccepts %s\n", t.path.c_str());
    }
    if (dt.end) {
      auto cut = d.substr(0, *dt.start) + d.substr(*dt.end);
      own = Judge(cut, cut.size() + 1);
      bool e = ExpatAccepts(cut); fprintf(stderr, "E%d\n", e);
      if (e != (own == S_FALSE))
        printf("cut %s %s %s %x\n", t.type.c_str(), t.id.c_str(), t.path.c_str(), own);
      if (auto df = Difference(cut)) printf("cutnodes %s %s\n", t.id.c_str(), df->c_str());
    }
  }
}
