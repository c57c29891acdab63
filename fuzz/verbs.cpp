// Any bytes as a document through the verbs that read and write documents: what they make is stable
// and means the same, what they refuse has a reason, and nothing else happens.
#include <nlohmann/json.hpp>

#include "cli/byte_form.h"
#include "cli/run.h"
#include "cli/text.h"
#include "support.h"

namespace {

using namespace tolva;
using namespace tolva::fuzz;
using Json = nlohmann::ordered_json;
using Pointer = Json::json_pointer;
using test::Outcome;

/// The file is the argument after the verb.
Outcome Run(const MemoryFile& file, std::vector<std::string> arguments) {
  arguments.insert(arguments.begin() + 1, cli::ToUtf8(file.path()));
  Outcome outcome = test::RunTool(arguments);
  Expect(outcome.status >= 0 && outcome.status <= 2, "an exit status");
  // JSON tells of absence itself.
  const bool is_absence =
      arguments[0] == "get" && outcome.status == 1 && arguments.back() != "json";
  Expect((outcome.status == 2 || is_absence) == !outcome.err.empty(),
         "words about trouble, and no others");
  std::string words = outcome.err;
  std::ranges::replace(words, '\n', ' ');
  Expect(cli::Printable(words) == words && (words.empty() || outcome.err.ends_with('\n')),
         "lines for a terminal");
  return outcome;
}

/// The result, or nothing if the document is refused.
std::string Result(const MemoryFile& file, const std::vector<std::string>& arguments) {
  Outcome outcome = Run(file, arguments);
  Expect(outcome.status != 1, "a result or a refusal");
  Expect((outcome.status == 0) == !outcome.out.empty(), "a whole result or none");
  return std::move(outcome.out);
}

/// What `fmt` has made is in its form, and goes to JSON and back.
void ExpectStable(const std::string& document) {
  static const MemoryFile file;
  file.Write(document);
  Expect(Result(file, {"fmt"}) == document, "that a formatted document stays as it is");
  Expect(Run(file, {"fmt", "--check"}).status == 0, "that it passes the check");
  const std::string json = Result(file, {"convert", "--to", "json"});
  Expect(!json.empty(), "that it can be converted");
  file.Write(json);
  const std::string back = Result(file, {"convert", "--to", "xml"});
  const cli::ByteForm form = cli::FormOf(*cli::StreamOf(document).Get());
  Expect(cli::FormEncoder(form).Encode(back) == document, "that it comes back");
}

// ---- get, set and diff -------------------------------------------------------------------------

/// The path of a value or an element in JSON, as the tool has it.
std::string PathOf(const Pointer& at) {
  if (at.parent_pointer().empty()) return "";
  const std::string parent = PathOf(at.parent_pointer());
  const std::string& name = at.back();
  if (name[0] <= '9') return parent + "[" + std::to_string(std::stoul(name) + 1) + "]";
  return parent.empty() ? name : parent + "/" + name;
}

Json JsonOf(std::string_view document) {
  static const MemoryFile file;
  file.Write(document);
  return Json::parse(Result(file, {"convert", "--to", "json", "--drop"}));
}

/// The exit status of `diff`, which has to see the same in all its formats.
int Diff(const MemoryFile& file, std::string_view document) {
  static const MemoryFile other;
  other.Write(document);
  const std::string name = cli::ToUtf8(other.path());
  const Outcome outcome = Run(file, {"diff", name, "--format", "json"});
  Expect(outcome.status != 2, "that what is read can be compared");
  const Json told = Json::parse(outcome.out);
  Expect(told["equal"] == (outcome.status == 0) && told["changes"].empty() == told["equal"],
         "changes where something differs");
  Expect(Run(file, {"diff", name}).status == outcome.status, "the same in text");
  return outcome.status;
}

/// The document after changes, or nothing if they are refused.
std::string Set(std::string_view document, std::vector<std::string> changes) {
  static const MemoryFile file;
  file.Write(document);
  changes.insert(changes.begin(), "set");
  return Result(file, changes);
}

/// Sets a value to another one and back.
void TryValue(const MemoryFile& file, std::string_view bytes, const Json& json, const Pointer& at) {
  const std::string path = PathOf(at);
  const Json& value = json[at];
  const bool is_number = value.is_number();
  const std::string text = is_number ? value.dump() : value.get<std::string>();
  const Outcome got = Run(file, {"get", path});
  const bool is_there = got.status == 0;
  if (is_there && got.out == text + "\n") {
    Expect(Set(bytes, {path + "=" + text}) == bytes, "that what is there can be set");
  } else {
    Expect(!is_there || text.find_first_not_of("0123456789") == std::string::npos,
           "the text that the library reads");
  }
  const Json found = Json::parse(Run(file, {"get", path, "--format", "json"}).out);
  const Json& matches = found["results"][0]["matches"];
  Expect(matches.empty() != is_there && (!is_there || matches[0]["value"] == value),
         "the value that the library reads");

  const std::string other = is_number ? (text == "1" ? "2" : "1") : text + "<" + text.substr(0, 3);
  const std::string after = Set(bytes, {path + "=" + other});
  if (after.empty()) {
    Expect(!is_number, "that a number can be set");
    return;
  }
  Json wanted = json;
  wanted[at] = is_number ? Json::parse(other) : Json(other);
  Expect(JsonOf(after) == wanted, "that this value changes and no other");
  Expect(Diff(file, after) == 1, "a difference");
  // How a value is written may change, but only once.
  const std::string back = Set(after, {path + "=" + text});
  if (back.empty()) return;
  Expect(Diff(file, back) == 0, "the same document");
  Expect(Set(back, {path + "=" + other, path + "=" + text}) == back, "the same bytes");
}

/// `bytes`: a document that the library reads.
void TryChanges(const MemoryFile& file, std::string_view bytes) {
  Expect(Diff(file, bytes) == 0, "that a document is equal to itself");
  const Json json = JsonOf(bytes);
  std::vector<Pointer> values;
  std::vector<std::string> items;
  const Json all = json.flatten();
  for (const auto& [key, value] : all.items()) {
    Pointer at(key);
    if (!value.is_null()) values.push_back(at);
    for (; !at.empty(); at.pop_back()) {
      if (at.back() == "0") items.push_back(PathOf(at));
    }
  }
  const std::size_t choice = std::hash<std::string_view>()(bytes);
  if (!values.empty()) TryValue(file, bytes, json, values[choice % values.size()]);
  if (items.empty()) return;
  const std::string& item = items[choice % items.size()];
  const std::string added = Set(bytes, {"--add", item});
  Expect(!added.empty() && Diff(file, added) == 1, "one item more");
  Expect(Diff(file, Set(added, {"--remove", item})) == 0, "that it can be removed again");
}

// ---- fmt and convert ---------------------------------------------------------------------------

void TryXml(const MemoryFile& file, std::string_view bytes) {
  const std::string formatted = Result(file, {"fmt"});
  const std::string dropped = Result(file, {"fmt", "--drop"});
  // Most bytes are no document: it is enough to ask of some of them what else is said.
  if (dropped.empty() && formatted.empty() && bytes.size() % 4 != 0) return;
  for (const char* const mode : {"--check", "--diff"}) {
    const int status = formatted.empty() ? 2 : formatted == bytes ? 0 : 1;
    Expect(Run(file, {"fmt", mode}).status == status, "that --check and --diff agree with fmt");
    const int status_if_dropped = dropped.empty() ? 2 : dropped == bytes ? 0 : 1;
    Expect(Run(file, {"fmt", mode, "--drop"}).status == status_if_dropped, "likewise");
  }
  if (dropped.empty()) {
    Expect(formatted.empty(), "that --drop refuses nothing more");
    return;
  }
  ExpectStable(dropped);
  TryChanges(file, bytes);
  if (formatted.empty()) return;
  Expect(formatted == dropped, "that --drop changes nothing where nothing is lost");
  const std::string json = Result(file, {"convert", "--to", "json"});
  static const MemoryFile again;
  again.Write(formatted);
  Expect(Result(again, {"convert", "--to", "json"}) == json, "that the document means the same");
  Expect(Diff(file, formatted) == 0, "that diff sees no difference");
}

void TryJson(const MemoryFile& file, std::string_view bytes) {
  const Outcome outcome = Run(file, {"convert", "--to", "xml", "--drop"});
  const bool is_json = nlohmann::json::accept(bytes);
  const bool is_called_malformed = outcome.err.find("JSON breaks off") != std::string::npos ||
                                   outcome.err.find("this is no JSON: ") != std::string::npos;
  Expect(!is_json || !is_called_malformed, "that only what is malformed is called so");
  Expect(is_json || outcome.status == 2, "that what is malformed is refused");
  if (outcome.status == 0) ExpectStable(outcome.out);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile file;
  const std::string_view bytes = Text(data, size);
  file.Write(bytes);
  TryXml(file, bytes);
  TryJson(file, bytes);
  return 0;
}
