// set: changes documents.
#include <map>
#include <memory>
#include <optional>

#include "cli/edit.h"
#include "cli/load.h"
#include "cli/places.h"
#include "cli/text.h"
#include "cli/verb.h"
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
std::vector<Operation> OperationsOf(const Verb& verb) {
  const std::map<std::string_view, Operation::Kind> kinds = {
      {"change", Operation::Kind::kSet},
      {"unset", Operation::Kind::kUnset},
      {"add", Operation::Kind::kAdd},
      {"remove", Operation::Kind::kRemove},
  };
  std::vector<Operation> operations;
  for (const Verb::Given& given : verb.AllGiven()) {
    const auto kind = kinds.find(given.name);
    if (kind == kinds.end()) continue;
    if (!given.value.has_value()) throw Trouble("'[...]' is no path: a name is missing");
    operations.push_back({kind->second, *given.value});
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
  Verb verb(
      tool, "set",
      "Changes values, adds and removes elements, and leaves all else in a document as it is.\n\n"
      "The changes are made in the order in which they are given, and each sees the document as it "
      "then is. All of them are made, or none. Values are judged first, and a document that the "
      "library reads is not made one that it refuses.\n\n"
      "Without -i and -o, the changed document is printed.");
  const auto options = std::make_shared<Options>();
  verb.Add("file", "FILE", options->file, "the document; '-' is standard input.").Require();
  verb.Add("change", "PATH=VALUE", options->assignments,
           "gives an attribute, or an element that consists of text, a value. It is added "
           "if it is absent.");
  const auto add_operation = [&verb](const char* name, std::vector<std::string>& paths,
                                     const char* description) {
    verb.Add(name, "PATH", paths, description).TakeOneEach();
  };
  add_operation("--unset", options->unset,
                "removes an optional attribute, or the text of an element that may do without.");
  add_operation("--add", options->added,
                "adds an element, as 'tolva new' makes it: to a list at its end or, as Name[2], as "
                "its second; Name[Attribute=\"value\"] gives it that attribute.");
  add_operation("--remove", options->removed, "removes an element of a list, or an optional one.");
  const Option in_place = verb.AddFlag("-i,--in-place", options->is_in_place,
                                       "changes the file itself, as a whole or not at all.");
  AddDestination(verb, options->destination);
  verb.Find("--output").Exclude(in_place);
  verb.Find("--force").Describe(
      "replaces the file of -o if it exists; with -i, a file that has further hard links.");
  options->type.AddTo(verb);
  AddStdinName(verb, options->stdin_name);
  AddCommonOptions(verb, session);
  verb.SetExamples(
      "tolva set -i policy.xml UserInterface/Mode=SILENT Log/MaxLogSize=1000000\n"
      "tolva set -i policy.xml 'LocationArray/Location[Name=\"Lab\"]/Desc=No guests'\n"
      "tolva set -i policy.xml --unset 'LocationArray/Location[1]/Desc'\n"
      "tolva set policy.xml --add 'LocationArray/Location[Name=\"Lab\"]' -o new.xml\n"
      "tolva set -i policy.xml --remove 'LocationArray/Location[2]'");
  verb.SetAction(session,
                 [&session, verb, options] { return Run(session, *options, OperationsOf(verb)); });
}

}  // namespace tolva::cli
