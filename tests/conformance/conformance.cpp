// Runs the own XML parser over the W3C's XML conformance suite.
//   tolva_conformance <folder of the suite> <list of deviations>
//
// Each document for XML 1.0, fifth edition, is read as it stands: one with a document type
// declaration has to be refused for it; of the others those that are well-formed have to be
// accepted. Then it is read without the declaration, and has to fare as with expat. The deviations
// have to be exactly those that are listed.
#include <expat.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "differential/compare.h"
#include "platform/platform.h"

namespace tolva::test {
namespace {

using namespace platform;

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
    const XML_Status status =
        XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE);
    if (status != XML_STATUS_OK) throw std::runtime_error("cannot read the tests in " + path);
  }

  std::vector<Test> tests;

 private:
  void Enter(std::string_view name, const char** attributes) {
    std::map<std::string, std::string> values;
    for (; *attributes != nullptr; attributes += 2) values[attributes[0]] = attributes[1];
    bases_.push_back(bases_.back() + values["xml:base"]);
    if (name != "TEST") return;
    const std::string& recommendation = values["RECOMMENDATION"];
    const std::string& editions = values["EDITION"];
    if (recommendation == "XML1.1" || recommendation == "NS1.1") return;
    if (!editions.empty() && editions.find('5') == std::string::npos) return;
    tests.push_back({values["ID"], values["TYPE"], bases_.back() + values["URI"]});
  }

  std::vector<std::string> bases_ = {""};  ///< of the open elements
};

// ---- document type declarations ----------------------------------------------------------------

/// Where a document's type declaration is, as far as expat can tell.
struct Doctype {
  explicit Doctype(std::string_view document) : parser(XML_ParserCreate(nullptr)) {
    XML_SetUserData(parser.get(), this);
    // The handler for its start is called too late to know where that was, and the first word of it
    // goes to the default handler only while there is no such handler.
    XML_SetDefaultHandler(parser.get(), [](void* self, const char* text, int size) {
      auto& found = *static_cast<Doctype*>(self);
      const std::string_view token(text, static_cast<std::size_t>(size));
      if (token == "<!DOCTYPE" && !found.start) found.start = found.Position();
    });
    XML_SetEndDoctypeDeclHandler(parser.get(), [](void* self) {
      auto& found = *static_cast<Doctype*>(self);
      XML_Parser at = found.parser.get();
      found.end = found.Position() + static_cast<std::size_t>(XML_GetCurrentByteCount(at));
      XML_StopParser(at, XML_FALSE);
    });
    XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE);
  }

  std::size_t Position() const {
    return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser.get()));
  }

  ExpatParser parser;
  std::optional<std::size_t> start = {};
  std::optional<std::size_t> end = {};
};

// ---- the checks --------------------------------------------------------------------------------

/// A test's ID and the check in which the own parser does not do as expected.
using Deviation = std::pair<std::string, std::string>;

class Suite {
 public:
  explicit Suite(std::string folder) : folder_(std::move(folder)) {}

  void Run(const Test& test) {
    const std::string document = ReadFile(folder_ + "/xmlconf/" + test.path);
    const bool well_formed = test.type == "valid" || test.type == "invalid";
    const Doctype doctype(document);
    if (doctype.start) {
      ++with_doctype;
      const HRESULT result = OwnFault(document);
      if (result != WC_E_DTDPROHIBITED) Deviate(test, "as-is", "not refused for its DTD");
    } else if (test.type != "error") {
      Expect(test, "as-is", document, well_formed);
    }
    Compare(test, document);

    std::string rest;
    if (doctype.end) {
      rest = document.substr(0, *doctype.start) + document.substr(*doctype.end);
      Expect(test, "without-dtd", rest, ExpatAccepts(rest));
    } else if (doctype.start && well_formed) {
      rest = WithoutDeclarations(document);
      Expect(test, "without-dtd", rest, true);
    } else {
      return;
    }
    ++without_doctype;
    Compare(test, rest);
  }

  std::map<Deviation, std::string> deviations;
  int with_doctype = 0;
  int without_doctype = 0;

 private:
  /// Expat does not know the names that came with the fifth edition. The well-formed documents
  /// whose DTD it cannot read are all about these, within the DTD too: so of that only the
  /// declarations go, and the processing instructions stay. Colons go as well, as they stand where
  /// namespaces do not allow them.
  static std::string WithoutDeclarations(const std::string& document) {
    static const std::regex kDeclarations(
        R"(<!DOCTYPE[^\[>]*\[|<!(ELEMENT|ATTLIST|ENTITY)[^>]*>|\]>|:)");
    return std::regex_replace(document, kDeclarations, "");
  }

  void Expect(const Test& test, const char* check, std::string_view document, bool accepted) {
    const bool is_accepted = OwnFault(document) == S_OK;
    if (is_accepted != accepted) Deviate(test, check, accepted ? "refused" : "accepted");
  }

  /// The document's nodes, of which the suite says nothing, and the blocks in which it comes.
  void Compare(const Test& test, std::string_view document) {
    if (const auto difference = Difference(document)) Deviate(test, "nodes", *difference);
  }

  void Deviate(const Test& test, const char* check, const std::string& what) {
    deviations[{test.id, check}] = test.path + ": " + what;
  }

  std::string folder_;
};

/// Lines of ID, check and reason; those that start with "# " are remarks.
std::set<Deviation> ReadList(const std::string& path) {
  std::istringstream lines(ReadFile(path));
  std::set<Deviation> list;
  for (std::string id, check, reason; std::getline(lines >> id >> check, reason);) {
    if (reason.empty()) throw std::runtime_error(path + ": no reason: " + id);
    if (id != "#") list.insert({id, check});
  }
  return list;
}

int Run(const std::string& folder, const std::string& list_path) {
  const Catalogue catalogue(folder + "/cleaned/xmlconf-flattened.xml");
  const std::set<Deviation> listed = ReadList(list_path);
  Suite suite(folder);
  for (const Test& test : catalogue.tests) suite.Run(test);

  std::map<Deviation, std::string>& others = suite.deviations;
  for (const Deviation& deviation : listed) {
    if (others.erase(deviation) == 0) others[deviation] = "listed, but no longer so";
  }
  for (const auto& [deviation, what] : others) {
    std::cout << deviation.first << ' ' << deviation.second << ": " << what << '\n';
  }
  std::cout << "conformance: " << catalogue.tests.size() << " tests: " << suite.with_doctype
            << " documents with a DTD, " << suite.without_doctype << " of these also without it, "
            << catalogue.tests.size() - static_cast<std::size_t>(suite.with_doctype)
            << " that have none; " << listed.size() << " listed deviations, " << others.size()
            << " others\n";
  return others.empty() ? 0 : 1;
}

}  // namespace
}  // namespace tolva::test

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: tolva_conformance <folder of the suite> <list of deviations>\n";
    return 2;
  }
  try {
    return tolva::test::Run(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::cerr << "conformance: " << error.what() << '\n';
    return 2;
  }
}
