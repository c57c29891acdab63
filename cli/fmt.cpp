// fmt: the form in which the library writes documents.
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/byte_form.h"
#include "cli/form_check.h"
#include "cli/line_diff.h"
#include "cli/load.h"
#include "cli/losses.h"
#include "cli/places.h"
#include "cli/secrets.h"
#include "cli/session.h"
#include "cli/text.h"
#include "cli/verb.h"
#include "cli/verbs.h"

namespace tolva::cli {
namespace {

struct Options {
  InputOptions inputs;
  ExpectedType type;
  bool checks = false;
  bool shows_diff = false;
  bool is_in_place = false;
  bool drops = false;
  bool shows_secrets = false;
  Destination destination;
};

class Formatter {
 public:
  Formatter(Session& session, const Options& options)
      : session_(session), options_(options), expected_(options.type.document()) {
    const bool has_mode = options.checks || options.shows_diff || options.is_in_place;
    if (options.is_in_place && (options.checks || options.shows_diff)) {
      throw Trouble("-i writes; it goes with neither --check nor --diff");
    }
    if (has_mode && !options.destination.file.empty()) {
      throw Trouble("-o is for one document; it goes with none of -i, --check and --diff");
    }
    makes_document_ = !has_mode;
  }

  int Run() {
    std::vector<std::string> troubles;
    const auto report = [&troubles](const std::string& message) { troubles.push_back(message); };
    const std::vector<Input> inputs = FindInputs(options_.inputs, report);
    if (makes_document_ && inputs.size() > 1) {
      throw Trouble("several documents need -i, --check or --diff");
    }
    for (const Input& input : inputs) {
      try {
        FormatFile(input);
      } catch (const Trouble& trouble) {
        report(trouble.what());
      }
    }
    if (count_ == 0 && troubles.empty()) report("there is no document of the agent");
    session_.out.Flush();
    for (const std::string& trouble : troubles) session_.err.Write("tolva: " + trouble + "\n");
    if (!troubles.empty()) return kTrouble;
    return differs_ ? kFindings : kFine;
  }

 private:
  void FormatFile(const Input& input) {
    const WalkOptions walk = {.expected = expected_, .skips_foreign = input.is_from_folder};
    std::error_code ignored;
    const bool is_streamed = options_.checks && !options_.shows_diff && !input.is_standard_input &&
                             std::filesystem::is_regular_file(PathOf(input.name), ignored);
    const std::string bytes = is_streamed ? std::string() : ReadBytes(input);
    const Reopen reopen = [&] { return is_streamed ? OpenInput(input) : StreamOf(bytes); };
    const Losses losses = FindLosses(*reopen().Get(), input.name, walk);
    if (losses.document == nullptr) return;
    ++count_;
    if (!options_.drops) RefuseLosses(losses, input.name);
    if (options_.checks && !options_.shows_diff) {
      if (losses.count != 0 || !HasWrittenForm(*losses.document, reopen)) TellName(input);
    } else {
      FormatBytes(input, bytes, *losses.document);
    }
  }

  void TellName(const Input& input) {
    differs_ = true;
    session_.out.Write(Printable(input.name) + "\n");
  }

  void FormatBytes(const Input& input, const std::string& before, const Document& document) {
    const Loaded loaded = LoadBytes(before, input.name, &document);
    const std::string written = StableForm(document, *loaded.root, input.name);
    const ByteForm form = FormOf(*StreamOf(before).Get());
    const std::string after = FormEncoder(form).Encode(written);
    if (options_.shows_diff) {
      if (after == before) return;
      TellDifference(input, TextOf(before, form), TextOf(after, form), document);
    } else if (!options_.is_in_place) {
      DeliverDocument(session_, options_.destination, after);
    } else if (input.is_standard_input) {
      throw Trouble("standard input cannot be written in place");
    } else if (after != before) {
      ReplaceFile(input, before, after, options_.destination.is_forced);
    }
  }

  void TellDifference(const Input& input, std::string before, std::string after,
                      const Document& document) {
    differs_ = true;
    if (!options_.shows_secrets) {
      before = WithoutSecrets(before, document);
      after = WithoutSecrets(after, document);
    }
    const std::string name = Printable(input.name);
    const std::string diff =
        UnifiedDiff(session_.out.IsTerminal() ? PrintableLines(before) : before,
                    session_.out.IsTerminal() ? PrintableLines(after) : after, name,
                    name + " (formatted)", session_.OutStyle());
    // Texts that are equal here differ in a byte order mark, in line ends, or in how a secret is
    // written.
    session_.out.Write(diff.empty() ? name + ": the bytes differ, the text does not\n" : diff);
  }

  Session& session_;
  const Options& options_;
  const Document* const expected_;
  bool makes_document_ = false;
  bool differs_ = false;
  std::size_t count_ = 0;  ///< documents of the agent
};

}  // namespace

void AddFmt(CLI::App& tool, Session& session) {
  Verb verb(
      tool, "fmt",
      "Brings documents into the form that the library writes.\n\n"
      "Without --check, --diff or -i, the result is printed. Encoding, byte order mark and line "
      "ends "
      "stay. What the library does not keep, such as a comment, is not dropped without --drop: the "
      "document is refused, with the places. The exit status is 0 if all is done, with --check or "
      "--diff 1 if a document has another form, and 2 if a document is refused or cannot be read "
      "or "
      "written. In folders, XML files that are no documents of the agent are skipped.");
  const auto options = std::make_shared<Options>();
  AddInputs(verb, options->inputs);
  options->type.AddTo(verb);
  verb.AddFlag("--check", options->checks, "prints the names of files that have another form.");
  verb.AddFlag("--diff", options->shows_diff, "prints what would change, as a unified diff.");
  verb.AddFlag("-i,--in-place", options->is_in_place,
               "writes the files; with --force also those that have further hard links.");
  AddDropOption(verb, options->drops);
  verb.AddFlag("--show-secrets", options->shows_secrets,
               "has --diff print key material and password hashes.");
  AddDestination(verb, options->destination);
  AddCommonOptions(verb, session);
  verb.SetExamples(
      "tolva fmt policy.xml\n"
      "tolva fmt --check -r documents\n"
      "tolva fmt --diff policy.xml\n"
      "tolva fmt -i policy.xml ng.xml");
  verb.SetAction(session, [&session, options] { return Formatter(session, *options).Run(); });
}

}  // namespace tolva::cli
