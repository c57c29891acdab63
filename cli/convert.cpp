// convert: documents from XML to JSON and back.
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>

#include "cli/json.h"
#include "cli/load.h"
#include "cli/losses.h"
#include "cli/places.h"
#include "cli/session.h"
#include "cli/text.h"
#include "cli/verb.h"
#include "cli/verbs.h"

namespace tolva::cli {
namespace {

struct Options {
  std::string form;
  std::string file = "-";
  std::string stdin_name = "standard input";
  ExpectedType type;
  bool drops = false;
  Destination destination;
};

std::string JsonOf(std::string bytes, const std::string& name, const Document* expected,
                   bool drops) {
  const Losses losses = FindLosses(*StreamOf(bytes).Get(), name, {.expected = expected});
  if (!drops) RefuseLosses(losses, name);
  const Loaded loaded = LoadBytes(std::move(bytes), name, losses.document);
  return JsonText(ToJson(*loaded.document, *loaded.root));
}

std::string XmlOf(const std::string& text, const std::string& name, const Document* expected,
                  bool drops) {
  FromJsonResult read = FromJson(text, name, expected);
  if (!drops) RefuseLosses({read.document, read.loss_count, std::move(read.losses)}, name);
  return StableForm(*read.document, *read.root, name);
}

int Convert(Session& session, const Options& options) {
  const Document* const expected = options.type.document();
  const Input input = InputOf(options.file, options.stdin_name);
  std::string bytes = ReadBytes(input);
  if (options.form == "json") {
    Deliver(session, options.destination,
            JsonOf(std::move(bytes), input.name, expected, options.drops));
  } else {
    DeliverDocument(session, options.destination,
                    XmlOf(bytes, input.name, expected, options.drops));
  }
  return kFine;
}

}  // namespace

void AddConvert(CLI::App& tool, Session& session) {
  Verb verb(
      tool, "convert",
      "Converts a document from XML to JSON, or back.\n\n"
      "The JSON is that which 'tolva schema json' describes. The XML is what the library writes. "
      "What the other form cannot hold, such as a comment, is not dropped without --drop: the "
      "document is refused, with the places.");
  const auto options = std::make_shared<Options>();
  verb.Add("file", "FILE", options->file, "the document; '-', or none, is standard input.");
  verb.Add("--to", "FORM", options->form, "the form to convert to.")
      .Require()
      .AllowOnly({"json", "xml"});
  options->type.AddTo(verb);
  AddStdinName(verb, options->stdin_name);
  AddDropOption(verb, options->drops);
  AddDestination(verb, options->destination);
  AddCommonOptions(verb, session);
  verb.SetExamples(
      "tolva convert --to json policy.xml -o policy.json\n"
      "tolva convert --to xml policy.json -o policy.xml --force\n"
      "tolva convert --to json message-catalogue.xml");
  verb.SetAction(session, [&session, options] { return Convert(session, *options); });
}

}  // namespace tolva::cli
