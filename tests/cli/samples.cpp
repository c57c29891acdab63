// Makes documents to try the tool's schemas on:
//   tolva_samples <folder> <number of random documents>
//
// For each document, the folder gets <document>/
//   random-N.xml   what the library writes of random content
//   refused-N.xml  the example with a fault, which the library refuses
//   altered-N.xml  the example with something changed that the library accepts
//   values.jsonl   a line for each value in JSON: {"definition", "valid", "json"}
#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <set>

#include "cli/layout.h"
#include "cli/new.h"
#include "cli/run.h"
#include "cli/text.h"
#include "support/nodes.h"
#include "tables/example.h"

namespace tolva::test {
namespace {

using namespace cli;
using Json = nlohmann::ordered_json;
using Pointer = Json::json_pointer;

class Samples {
 public:
  Samples(const Document& document, const std::filesystem::path& folder)
      : document_(document), folder_(folder / document.name) {
    std::filesystem::create_directories(folder_);
    values_.open(folder_ / "values.jsonl", std::ios::binary);
  }

  void AddRandom(unsigned count) {
    for (unsigned seed = 0; seed < count; ++seed) {
      const std::string text = RandomDocument(document_, seed);
      Write("random", text);
      AddValue("", ReadJson(text), true);
    }
  }

  /// The example's faults, and what the library says to each.
  void AddFaults() {
    static const Departures kNone;  // concern reports, which are not looked at
    const std::string name(document_.name);
    for (const auto& fault : Example(name.c_str(), *document_.root().schema, kNone).ReadFaults()) {
      const bool is_read = ReadText(*document_.make(), fault.document) == 0;
      Write(is_read ? "altered" : "refused", ToUtf8(fault.document));
    }
  }

  /// Values that take the place of each member of a new document in turn; and what comes of them is
  /// what the library accepts.
  void AddChangedMembers() {
    whole_ = ReadJson(NewDocument(document_, NewContent::kEverything));
    AddValue("", whole_, true);
    ChangeMembers(document_.root(), Pointer("/" + document_.root().name));
  }

 private:
  void Write(const std::string& kind, std::string_view text) {
    const std::string name = kind + "-" + std::to_string(++written_) + ".xml";
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }

  void AddValue(const std::string& definition, const Json& json, bool is_valid) {
    values_ << Json{{"definition", definition}, {"valid", is_valid}, {"json", json}}.dump() << "\n";
  }

  bool IsAccepted(const Json& json) const {
    return TroubleOf([&] { FromJson(json.dump(), "sample", &document_); }) == "none";
  }

  /// Each kind of element once.
  void ChangeMembers(const Element& element, const Pointer& at) {
    if (element.text.has_value() || !known_.insert(&element).second) return;
    std::vector<std::string> names = {"Unknown"};
    for (const auto& member : whole_[at].items()) names.push_back(member.key());
    for (const std::string& name : names) ChangeMember(element, at, name);
    for (const Child& child : element.children) {
      Pointer below = at / child.name;
      if (!whole_.contains(below)) continue;
      if (child.occurrence == Occurrence::kRepeated) below /= 0;
      ChangeMembers(*child.element, below);
    }
  }

  void ChangeMember(const Element& element, const Pointer& at, const std::string& name) {
    static const Json kValues = Json::parse(
        R"([null, true, 0, 1.0, 1.5, -1, 2147483647, 2147483648, 4294967295, 4294967296, "", "x", "0",
            "00", "18446744073709551615", "RESERVED", [], [{}], {}])");
    for (const Json& value : kValues) {
      Json changed = whole_;
      changed[at][name] = value;
      AddValue(element.id, changed[at], IsAccepted(changed));
    }
    Json changed = whole_;
    changed[at].erase(name);
    AddValue(element.id, changed[at], IsAccepted(changed));
  }

  const Document& document_;
  const std::filesystem::path folder_;
  std::ofstream values_;
  unsigned written_ = 0;
  Json whole_;
  std::set<const Element*> known_;
};

}  // namespace
}  // namespace tolva::test

int main(int argc, char** argv) {
  using namespace tolva::test;
  if (argc != 3) {
    std::cerr << "usage: tolva_samples <folder> <number>\n";
    return 2;
  }
  try {
    for (const Document& document : Documents()) {
      Samples samples(document, argv[1]);
      samples.AddRandom(static_cast<unsigned>(std::stoul(argv[2])));
      samples.AddFaults();
      samples.AddChangedMembers();
    }
    return testing::Test::HasFailure() ? 1 : 0;
  } catch (const std::exception& exception) {
    std::cerr << exception.what() << "\n";
    return 1;
  }
}
