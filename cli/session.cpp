#include "cli/session.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <new>

#include <tolva/support/save.h>

#include "cli/options.h"
#include "cli/text.h"
#include "cli/verb.h"
#include "cli/verbs.h"
#include "support/errors.h"

namespace tolva::cli {
namespace {

bool IsSet(const char* variable) {
  const char* const value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

bool IsColoured(const Stream& stream, const std::string& color) {
  if (color != "auto") return color == "always";
  const char* const terminal = std::getenv("TERM");
  const bool is_dumb = terminal != nullptr && std::string_view(terminal) == "dumb";
  return stream.IsTerminal() && !IsSet("NO_COLOR") && !is_dumb;
}

/// A verb or option that is not there is the most common mistake: say which one is near.
std::string HintFor(const CLI::App& tool, const CLI::App& verb, const std::string& unexpected) {
  std::vector<std::string> names;
  if (unexpected.starts_with("-")) {
    // Options of one letter are all near.
    if (!unexpected.starts_with("--")) return {};
    for (const OptionView& option : ViewOfVerb(verb).options) {
      names.insert(names.end(), option.names.begin(), option.names.end());
    }
  } else if (&tool == &verb) {
    for (const VerbView& one : ViewOfVerbs(tool)) names.push_back(one.name);
  }
  return DidYouMean(unexpected.substr(0, unexpected.find('=')), names);
}

/// The verb that the command line names, or the tool itself.
const CLI::App& VerbOf(const CLI::App& tool) {
  const auto verbs = tool.get_subcommands();
  return verbs.empty() ? tool : *verbs.front();
}

/// What is wrong with the command line, in words that name what its author wrote.
std::string FaultOf(const CLI::App& tool, const CLI::App& verb, const CLI::ParseError& error) {
  const std::vector<std::string> unexpected = tool.remaining(true);
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr && !unexpected.empty()) {
    const std::string& first = unexpected.front();
    const bool is_option = first.starts_with("-");
    const bool is_verb = &verb == &tool && !is_option;
    return "there is no " +
           std::string(is_verb     ? "verb"
                       : is_option ? "option"
                                   : "place for the argument") +
           " '" + first + "'" + HintFor(tool, verb, first);
  }
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
    for (const CLI::Option* const option : verb.get_options()) {
      if (option->get_required() && option->count() == 0) {
        const OptionView view = ViewOf(*option);
        const std::string name = view.IsPositional() ? "" : view.names.back() + " ";
        return "'tolva " + verb.get_name() + "' needs " + name + view.value;
      }
    }
  }
  std::string message = error.what();
  const std::string name = message.substr(0, message.find_first_of(": "));
  const CLI::Option* const option = verb.get_option_no_throw(name);
  if (option == nullptr) return message;
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    if (option->get_expected_max() == 0) return name + " takes no value";
    return option->count() > 1 ? name + " is given more than once"
                               : name + " needs " + ViewOf(*option).value;
  }
  return message;
}

[[noreturn]] void FailUsage(const CLI::App& tool, const CLI::ParseError& error) {
  const CLI::App& verb = VerbOf(tool);
  const std::string help = "tolva " + (&verb == &tool ? "" : verb.get_name() + " ") + "--help";
  throw Trouble(Printable(FaultOf(tool, verb, error)) + "\nSee '" + help + "'");
}

struct NamedVerb {
  std::string_view name;
  void (*add)(CLI::App& tool, Session& session);
};

/// Completion and manual page are made from all verbs, so those that print them are not among
/// these.
constexpr NamedVerb kVerbs[] = {
    {"check", AddCheck},   {"diff", AddDiff}, {"explain", AddExplain},
    {"schema", AddSchema}, {"new", AddNew},   {"get", AddGet},
    {"set", AddSet},       {"fmt", AddFmt},   {"convert", AddConvert},
};

/// Adds what the tool's command line consists of: all verbs, or the one that it starts with. Adding
/// all of them would be a fifth of the instructions of a `get`.
void AddTool(CLI::App& tool, Session& session, std::string_view first) {
  tool.allow_windows_style_options(false);  // a path begins with a slash everywhere
  tool.require_subcommand(0, 1);            // what follows a verb is an argument
  tool.set_help_flag("-h,--help", "prints this help.");
  tool.set_version_flag("--version", "", "prints the version.");
  tool.footer(
      "tolva check policy.xml          what is wrong with a policy\n"
      "tolva diff old.xml new.xml      what differs between two documents\n"
      "tolva explain policy            what the policy holds\n"
      "tolva new policy --full         a policy to start from\n"
      "tolva fmt --check policy.xml    whether it is as the library writes it\n"
      "tolva schema html -o doc.html   a page about all documents");
  const NamedVerb* const named = std::ranges::find(kVerbs, first, &NamedVerb::name);
  if (named != std::ranges::end(kVerbs)) {
    named->add(tool, session);
    return;
  }
  for (const NamedVerb& verb : kVerbs) verb.add(tool, session);
  AddCompletion(tool, session);
}

int RunTool(const std::vector<std::string>& arguments, Session& session) {
  CLI::App tool("Checks, explains, describes and makes the configuration documents of the agent.",
                "tolva");
  AddTool(tool, session, arguments.empty() ? "" : arguments.front());
  try {
    // The parser takes the last argument first.
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    if (!reversed.empty() && reversed.back() == "help") {
      reversed.pop_back();
      reversed.insert(reversed.begin(), "--help");
    }
    tool.parse(reversed);
  } catch (const CLI::CallForHelp&) {
    session.out.Write(HelpOf(tool, VerbOf(tool), session.OutStyle(), session.TextWidth()));
    return kFine;
  } catch (const CLI::CallForVersion&) {
    session.out.Write("tolva " TOLVA_VERSION "\n");
    return kFine;
  } catch (const CLI::ParseError& error) {
    FailUsage(tool, error);
  }
  if (session.action) return session.action();
  session.err.Write(
      HelpOf(tool, tool, Style(IsColoured(session.err, session.color)), session.TextWidth()));
  return kTrouble;
}

}  // namespace

std::string Style::In(std::string_view code, std::string_view text) const {
  if (!is_coloured_ || text.empty()) return std::string(text);
  return "\x1B[" + std::string(code) + "m" + std::string(text) + "\x1B[0m";
}

Style Session::OutStyle() const { return Style(IsColoured(out, color)); }

std::size_t Session::TextWidth() const {
  constexpr std::size_t kWidest = 100;
  return std::min(out.Width(), kWidest);
}

void AddCommonOptions(Verb& verb, Session& session, const std::vector<std::string>& formats) {
  if (!formats.empty()) {
    verb.Add("--format", "FORMAT", session.format, "the form of the result.").AllowOnly(formats);
  }
  verb.Add("--color", "WHEN", session.color, "whether the result is coloured; auto: on a terminal.")
      .AllowOnly({"auto", "always", "never"});
}

void AddDestination(Verb& verb, Destination& destination) {
  verb.Add("-o,--output", "FILE", destination.file,
           "where the result is written; '-' is standard output.");
  verb.AddFlag("--force", destination.is_forced, "replaces the file if it exists.");
}

void Deliver(Session& session, const Destination& destination, std::string_view bytes) {
  if (!destination.IsFile()) {
    session.out.Write(bytes);
    return;
  }
  std::error_code ignored;
  if (!destination.is_forced && std::filesystem::exists(PathOf(destination.file), ignored)) {
    throw Trouble("'" + Printable(destination.file) + "' exists; --force replaces it");
  }
  const support::SaveReport report = support::SaveBytes(bytes, PathOf(destination.file));
  if (!report) {
    throw Trouble("'" + Printable(destination.file) +
                  "' is not written: " + support::internal::Phrase(report.message));
  }
}

int Run(const std::vector<std::string>& arguments, Stream& out, Stream& err) {
  Session session = {out, err};
  std::string message;
  int status = kTrouble;
  try {
    try {
      status = RunTool(arguments, session);
      out.Flush();
    } catch (const Trouble& trouble) {
      message = trouble.what();
    } catch (const std::bad_alloc&) {
      message = "there is too little memory";
    }
    // What was found before the trouble is printed before it.
    if (!message.empty()) {
      status = kTrouble;
      out.Flush();
      err.Write(Style(IsColoured(err, session.color)).Error("tolva:") + " " + message + "\n");
    }
    err.Flush();
  } catch (const ClosedPipe&) {
    return kTrouble;
  } catch (const Trouble&) {
    return kTrouble;  // the output, and nobody to tell
  }
  return status;
}

}  // namespace tolva::cli
