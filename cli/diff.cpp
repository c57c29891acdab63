// diff: what differs between two documents.
#include <memory>
#include <string>

#include "cli/diff_formats.h"
#include "cli/load.h"
#include "cli/text.h"
#include "cli/verb.h"
#include "cli/verbs.h"

namespace tolva::cli {
namespace {

struct Options {
  std::string from;
  std::string to;
  std::string stdin_name = "standard input";
  bool ignores_order = false;
  bool shows_secrets = false;
  Destination destination;
};

/// Keeps what the document holds, and frees all else that was needed to read it.
std::unique_ptr<const Tree> TreeOf(const Loaded& loaded, Pool& pool) {
  return std::make_unique<const Tree>(*loaded.document, *loaded.root, pool);
}

std::unique_ptr<Comparison> CompareFiles(const Input& from, const Input& to, ListOrder order) {
  std::unique_ptr<Comparison> comparison;
  {
    const Loaded loaded = LoadDocument(from);
    comparison = std::make_unique<Comparison>(*loaded.document, order);
    comparison->from = TreeOf(loaded, comparison->pool);
  }
  const Loaded loaded = LoadDocument(to);
  if (loaded.document != &comparison->document) {
    throw Trouble("documents of different kinds cannot be compared: '" + Printable(from.name) +
                  "' is '" + std::string(comparison->document.name) + "', '" + Printable(to.name) +
                  "' is '" + std::string(loaded.document->name) + "'");
  }
  comparison->to = TreeOf(loaded, comparison->pool);
  return comparison;
}

int PrintDifferences(Session& session, const Options& options) {
  const Input from = InputOf(options.from, options.stdin_name);
  const Input to = InputOf(options.to, options.stdin_name);
  if (from.is_standard_input && to.is_standard_input) {
    throw Trouble("standard input can only be one of the documents");
  }
  const ListOrder order = options.ignores_order ? ListOrder::kIsIgnored : ListOrder::kCounts;
  const std::unique_ptr<Comparison> comparison = CompareFiles(from, to, order);
  Compare(*comparison);
  const DocumentPair names = {from.name, to.name};
  const Secrets secrets = options.shows_secrets ? Secrets::kShown : Secrets::kHidden;
  std::string result;
  if (session.IsJson()) {
    result = DiffJson(*comparison, names, secrets);
  } else if (session.format == "html") {
    result = DiffHtml(*comparison, names, secrets);
  } else {
    const Style style =
        options.destination.IsFile() ? Style(session.color == "always") : session.OutStyle();
    result = DiffText(*comparison, secrets, style, session.TextWidth());
  }
  Deliver(session, options.destination, result);
  return comparison->AreEqual() ? kFine : kFindings;
}

}  // namespace

void AddDiff(CLI::App& tool, Session& session) {
  Verb verb(
      tool, "diff",
      "Tells what differs between two documents.\n\n"
      "What counts is what the library reads: order of attributes, layout, comments and encoding "
      "do "
      "not. Items of lists are matched by what names them, or else by likeness. The exit status is "
      "0 if the documents are equal, 1 if they differ, and 2 if one of them cannot be read. "
      "Secrets "
      "are not shown.");
  const auto options = std::make_shared<Options>();
  verb.Add("old", "OLD", options->from, "the old document; '-' is standard input.").Require();
  verb.Add("new", "NEW", options->to, "the new document, likewise.").Require();
  verb.AddFlag("--ignore-order", options->ignores_order,
               "the order of the items of lists does not count.");
  verb.AddFlag("--show-secrets", options->shows_secrets,
               "shows key material and password hashes, too.");
  AddStdinName(verb, options->stdin_name);
  AddDestination(verb, options->destination);
  AddCommonOptions(verb, session, {"text", "json", "html"});
  verb.SetExamples(
      "tolva diff old.xml new.xml\n"
      "tolva diff --format html -o review.html old.xml new.xml\n"
      "git show main:policy.xml | tolva diff - policy.xml");
  verb.SetAction(session, [&session, options] { return PrintDifferences(session, *options); });
}

}  // namespace tolva::cli
