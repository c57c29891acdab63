// schema: descriptions of documents for other programs and for people.
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/json.h"
#include "cli/places.h"
#include "cli/schemas.h"
#include "cli/verb.h"
#include "cli/verbs.h"

namespace tolva::cli {
namespace {

struct Options {
  std::string kind;
  std::string document;
  bool is_lax = false;
  Destination destination;
};

int PrintSchema(Session& session, const Options& options) {
  std::vector<const Document*> documents;
  if (!options.document.empty()) {
    documents.push_back(&DocumentOf(options.document));
  } else {
    for (const Document& document : Documents()) documents.push_back(&document);
  }
  if (options.is_lax && options.kind != "xsd") throw Trouble("--lax is for xsd alone");
  std::string text;
  if (options.kind == "xsd") {
    text = XsdOf(documents, options.is_lax ? XsdForm::kLax : XsdForm::kStrict);
  } else if (options.kind == "json") {
    text = JsonText(JsonSchemaOf(documents));
  } else {
    text = options.kind == "html" ? HtmlOf(documents) : MarkdownOf(documents);
  }
  Deliver(session, options.destination, text);
  return kFine;
}

}  // namespace

void AddSchema(CLI::App& tool, Session& session) {
  Verb verb(
      tool, "schema",
      "Describes documents for editors, validators and people.\n\n"
      "xsd is an XML Schema 1.0 of the documents, json a JSON Schema (2020-12) of their JSON form, "
      "html a page that needs no network, and md a page in Markdown.");
  const auto options = std::make_shared<Options>();
  verb.Add("kind", "KIND", options->kind, "the kind of description.")
      .Require()
      .AllowOnly({"xsd", "json", "html", "md"});
  verb.Add("document", "DOCUMENT", options->document,
           "which document to describe. Without it, all.");
  verb.AddFlag(
      "--lax", options->is_lax,
      "accepts what the library reads, as far as XML Schema can say it, instead of what it "
      "writes.");
  AddDestination(verb, options->destination);
  AddCommonOptions(verb, session);
  verb.SetExamples(
      "tolva schema xsd policy -o policy.xsd\n"
      "tolva schema json policy\n"
      "tolva schema html -o documents.html");
  verb.SetAction(session, [&session, options] { return PrintSchema(session, *options); });
}

}  // namespace tolva::cli
