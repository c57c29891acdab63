// get: what stands in a document.
#include <memory>
#include <nlohmann/json.hpp>

#include "cli/json.h"
#include "cli/load.h"
#include "cli/select.h"
#include "cli/text.h"
#include "cli/verb.h"
#include "cli/verbs.h"

namespace tolva::cli {
namespace {

using Json = nlohmann::ordered_json;

struct Options {
  std::string file;
  std::vector<std::string> paths;
  ExpectedType type;
  std::string stdin_name = "standard input";
};

/// What the path names, as text: a value, or the XML of an element. Nothing: the element has no
/// text.
std::optional<std::string> TextAt(const Target& target, const Found& found) {
  if (found.attribute != nullptr) return ValueOf(*found.attribute);
  if (!target.element->text.has_value()) return TextOf(*found.element);
  const SourceContent* const text = found.element->FindText();
  if (text == nullptr) return std::nullopt;
  return ValueOf(*text);
}

class Get {
 public:
  Get(Session& session, const Options& options, Source& source, const Document& document)
      : session_(session), source_(source), document_(document) {
    for (const std::string& path : options.paths) targets_.push_back(ParseTarget(document_, path));
  }

  int PrintText() {
    int status = kFine;
    for (const Target& target : targets_) {
      bool is_absent = true;
      for (const Found& found : Select(source_, target)) {
        const std::optional<std::string> text = TextAt(target, found);
        if (!text.has_value()) continue;
        is_absent = false;
        session_.out.Write((session_.out.IsTerminal() ? PrintableLines(*text) : *text) + "\n");
      }
      if (!is_absent) continue;
      status = kFindings;
      absent_ += "tolva: " + AbsenceOf(source_, target) + WhatApplies(target) + "\n";
    }
    session_.out.Flush();
    session_.err.Write(absent_);
    return status;
  }

  /// `root`: the document as the library reads it.
  int PrintJson(const Json& root) {
    int status = kFine;
    Json results = Json::array();
    for (const Target& target : targets_) {
      Json matches = Json::array();
      for (const Found& found : Select(source_, target)) {
        if (TextAt(target, found).has_value()) matches.push_back(MatchOf(target, found, root));
      }
      Json result = {{"path", target.Spelling()}};
      if (matches.empty()) {
        status = kFindings;
        if (target.attribute != nullptr && target.attribute->when_absent.has_value()) {
          result["whenAbsent"] = *target.attribute->when_absent;
        }
      }
      result["matches"] = std::move(matches);
      results.push_back(std::move(result));
    }
    session_.out.Write(JsonText({{"version", kJsonVersion},
                                 {"file", source_.name()},
                                 {"document", document_.name},
                                 {"results", std::move(results)}}));
    return status;
  }

 private:
  static std::string WhatApplies(const Target& target) {
    const Attribute* const attribute = target.attribute;
    if (attribute == nullptr || !attribute->when_absent.has_value()) return {};
    return attribute->when_absent->empty() ? "; it counts as empty"
                                           : "; " + *attribute->when_absent + " applies";
  }

  Json MatchOf(const Target& target, const Found& found, const Json& root) {
    std::string path;
    const Json* value = &root.front();
    if (!found.counts) {
      throw Trouble("'" + target.Spelling() +
                    "' does not count: another one after it does; it has no JSON form");
    }
    for (std::size_t i = 0; i < target.elements.size(); ++i) {
      const Target::ElementStep& step = target.elements[i];
      const std::string& name = step.child->name;
      const std::size_t number = found.numbers[i];
      path += (path.empty() ? "" : "/") + name;
      value = &value->at(name);
      if (step.child->occurrence != Occurrence::kRepeated) continue;
      path += "[" + std::to_string(number) + "]";
      value = &value->at(number - 1);
    }
    std::string_view place = found.element->name;
    if (target.attribute != nullptr) {
      path += (path.empty() ? "" : "/") + target.attribute->name;
      value = &value->at(target.attribute->name);
      place = found.attribute->name;
    }
    const Position position = source_.PositionOf(
        target.attribute != nullptr ? place : std::string_view(place.data() - 1, 1));
    return {{"path", path},
            {"line", position.line},
            {"column", position.column},
            {"offset", position.offset},
            {"value", *value}};
  }

  Session& session_;
  Source& source_;
  const Document& document_;
  std::vector<Target> targets_;
  std::string absent_;
};

int Run(Session& session, const Options& options) {
  const Document* const expected = options.type.document();
  const Input input = InputOf(options.file, options.stdin_name);
  std::string bytes = ReadBytes(input);
  if (!session.IsJson()) {
    Source source(input.name, bytes);
    return Get(session, options, source, source.Recognise(expected)).PrintText();
  }
  const Loaded loaded = LoadBytes(std::move(bytes), input.name, expected);
  Source source(input.name, loaded.bytes);
  return Get(session, options, source, *loaded.document)
      .PrintJson(ToJson(*loaded.document, *loaded.root));
}

}  // namespace

void AddGet(CLI::App& tool, Session& session) {
  Verb verb(
      tool, "get",
      "Prints what stands in a document: values, or elements as they are written.\n\n"
      "A path names elements, and at its end perhaps an attribute, from the root's children on. "
      "Name[2] is the second of these elements, Name[Attribute=\"value\"] the one with that "
      "attribute or text. All that a path names is printed, one after the other. The exit status "
      "is "
      "1 if a path names nothing in the document.");
  const auto options = std::make_shared<Options>();
  verb.Add("file", "FILE", options->file, "the document; '-' is standard input.").Require();
  verb.Add("path", "PATH", options->paths, "what to print.").Require();
  options->type.AddTo(verb);
  AddStdinName(verb, options->stdin_name);
  AddCommonOptions(verb, session, {"text", "json"});
  verb.SetExamples(
      "tolva get policy.xml UserInterface/Mode\n"
      "tolva get policy.xml 'LocationArray/Location[Name=\"Office\"]'\n"
      "tolva get --format json policy.xml LocationArray/Location/Name");
  verb.SetAction(session, [&session, options] { return Run(session, *options); });
}

}  // namespace tolva::cli
