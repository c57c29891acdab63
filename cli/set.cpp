// set: changes documents.
#include <CLI/CLI.hpp>
#include <map>
#include <memory>
#include <optional>

#include "cli/edit.h"
#include "cli/load.h"
#include "cli/places.h"
#include "cli/text.h"
#include "cli/verbs.h"

namespace tolva::cli {
namespace {

struct Operation {
  enum class Kind : std::uint8_t { kSet, kUnset, kAdd, kRemove };

  Kind kind;
  std::string argument;  ///< the path; for kSet with '=' and the value
};

struct Options {
  std::string file;
  ExpectedType type;
  std::string stdin_name = "standard input";
  bool is_in_place = false;
  Destination destination;
  std::vector<std::string> assignments;
  std::vector<std::string> unset;
  std::vector<std::string> added;
  std::vector<std::string> removed;
};

/// The operations in the order of the command line.
std::vector<Operation> OperationsOf(const CLI::App& verb) {
  const std::map<const CLI::Option*, Operation::Kind> kinds = {
      {verb.get_option("change"), Operation::Kind::kSet},
      {verb.get_option("--unset"), Operation::Kind::kUnset},
      {verb.get_option("--add"), Operation::Kind::kAdd},
      {verb.get_option("--remove"), Operation::Kind::kRemove},
  };
  std::map<const CLI::Option*, std::size_t> taken;
  std::vector<Operation> operations;
  for (const CLI::Option* const option : verb.parse_order()) {
    const auto kind = kinds.find(option);
    if (kind == kinds.end()) continue;
    const std::size_t index = taken[option]++;
    // An argument in brackets, which is no path, may have given other arguments, or none.
    if (index >= option->results().size()) throw Trouble("'[...]' is no path: a name is missing");
    operations.push_back({kind->second, option->results()[index]});
  }
  return operations;
}

/// Where the '=' is that ends the path: the first one outside brackets.
std::size_t EndOfPath(std::string_view argument) {
  bool is_in_brackets = false;
  char quote = '\0';
  for (std::size_t i = 0; i < argument.size(); ++i) {
    const char c = argument[i];
    if (quote != '\0') {
      if (c == quote) quote = '\0';
    } else if (is_in_brackets && (c == '"' || c == '\'')) {
      quote = c;
    } else if (c == '[') {
      is_in_brackets = true;
    } else if (c == ']') {
      is_in_brackets = false;
    } else if (c == '=' && !is_in_brackets) {
      return i;
    }
  }
  throw Trouble("'" + Printable(argument) + "' is no PATH=VALUE");
}

void Apply(const Operation& operation, Editor& editor) {
  const std::string& argument = operation.argument;
  switch (operation.kind) {
    case Operation::Kind::kSet: {
      const std::size_t end = EndOfPath(argument);
      editor.Set(argument.substr(0, end), argument.substr(end + 1));
      break;
    }
    case Operation::Kind::kUnset:
      editor.Unset(argument);
      break;
    case Operation::Kind::kAdd:
      editor.Add(argument);
      break;
    case Operation::Kind::kRemove:
      editor.Remove(argument);
      break;
  }
}

/// What is wrong with a document, if the library refuses it.
std::optional<std::string> FaultOf(const std::string& bytes, const Input& input) {
  try {
    LoadBytes(bytes, input.name);
    return std::nullopt;
  } catch (const Trouble& trouble) {
    return trouble.what();
  }
}

int Run(Session& session, const Options& options, const std::vector<Operation>& operations) {
  if (operations.empty()) {
    throw Trouble("'tolva set' needs PATH=VALUE, --unset, --add or --remove");
  }
  const Input input = InputOf(options.file, options.stdin_name);
  if (options.is_in_place && input.is_standard_input) {
    throw Trouble("standard input cannot be changed in place");
  }
  const Document* const expected = options.type.document();
  const std::string before = ReadBytes(input);
  Source source(input.name, before);
  Editor editor(source, source.Recognise(expected));
  for (const Operation& operation : operations) Apply(operation, editor);
  const std::string after = source.Bytes();
  if (after != before) {
    // A document that was refused before may be repaired in several steps.
    const std::optional<std::string> fault = FaultOf(after, input);
    if (fault.has_value() && !FaultOf(before, input).has_value()) {
      throw Trouble("the library would refuse the document: " + *fault);
    }
  }
  if (!options.is_in_place) {
    DeliverDocument(session, options.destination, after);
  } else if (after != before) {
    ReplaceFile(input, before, after, options.destination.is_forced);
  }
  return kFine;
}

}  // namespace

void AddSet(CLI::App& tool, Session& session) {
  CLI::App& verb = *tool.add_subcommand(
      "set",
      "Changes values, adds and removes elements, and leaves all else in a document as it is.\n\n"
      "The changes are made in the order in which they are given, and each sees the document as it "
      "then is. All of them are made, or none. Values are judged first, and a document that the "
      "library reads is not made one that it refuses.\n\n"
      "Without -i and -o, the changed document is printed.");
  const auto options = std::make_shared<Options>();
  verb.add_option("file", options->file, "the document; '-' is standard input.")
      ->type_name("FILE")
      ->required();
  verb.add_option(
          "change", options->assignments,
          "gives an attribute, or an element that consists of text, a value. It is added if "
          "it is absent.")
      ->type_name("PATH=VALUE");
  const auto add_operation = [&verb](const char* name, std::vector<std::string>& paths,
                                     const char* description) {
    verb.add_option(name, paths, description)->type_name("PATH")->allow_extra_args(false);
  };
  add_operation("--unset", options->unset,
                "removes an optional attribute, or the text of an element that may do without.");
  add_operation("--add", options->added,
                "adds an element, as 'tolva new' makes it: to a list at its end or, as Name[2], as "
                "its second; Name[Attribute=\"value\"] gives it that attribute.");
  add_operation("--remove", options->removed, "removes an element of a list, or an optional one.");
  CLI::Option* const in_place = verb.add_flag("-i,--in-place", options->is_in_place,
                                              "changes the file itself, as a whole or not at all.");
  AddDestination(verb, options->destination);
  verb.get_option("--output")->excludes(in_place);
  verb.get_option("--force")->description(
      "replaces the file of -o if it exists; with -i, a file that has further hard links.");
  options->type.AddTo(verb);
  AddStdinName(verb, options->stdin_name);
  AddCommonOptions(verb, session, Formats::kTextOnly);
  verb.footer(
      "tolva set -i policy.xml UserInterface/Mode=SILENT Log/MaxLogSize=1000000\n"
      "tolva set -i policy.xml 'LocationArray/Location[Name=\"Lab\"]/Desc=No guests'\n"
      "tolva set -i policy.xml --unset 'LocationArray/Location[1]/Desc'\n"
      "tolva set policy.xml --add 'LocationArray/Location[Name=\"Lab\"]' -o new.xml\n"
      "tolva set -i policy.xml --remove 'LocationArray/Location[2]'");
  verb.callback([&session, &verb, options] {
    session.action = [&session, options, operations = OperationsOf(verb)] {
      return Run(session, *options, operations);
    };
  });
}

}  // namespace tolva::cli
