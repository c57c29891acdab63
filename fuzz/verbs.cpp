// Any bytes as a document through the verbs that read and write documents: what they make is stable
// and means the same, what they refuse has a reason, and nothing else happens.
#include <nlohmann/json.hpp>

#include "cli/byte_form.h"
#include "cli/text.h"
#include "support.h"
#include "tests/cli/run.h"

namespace {

using namespace tolva;
using namespace tolva::fuzz;
using test::Outcome;

Outcome Run(const MemoryFile& file, std::vector<std::string> arguments) {
  arguments.push_back(cli::ToUtf8(file.path()));
  Outcome outcome = test::RunTool(arguments);
  Expect(outcome.status >= 0 && outcome.status <= 2, "an exit status");
  Expect((outcome.status == 2) == !outcome.err.empty(), "words about trouble, and no others");
  std::string_view rest = outcome.err;
  while (!rest.empty()) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    Expect(cli::Printable(line) == line, "a message for a terminal");
    rest.remove_prefix(line.size() + 1);
  }
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
  const cli::ByteForm form = cli::FormOf(document);
  Expect(cli::FormEncoder(form).Encode(back) == document, "that it comes back");
}

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
  if (formatted.empty()) return;
  Expect(formatted == dropped, "that --drop changes nothing where nothing is lost");
  const std::string json = Result(file, {"convert", "--to", "json"});
  static const MemoryFile again;
  again.Write(formatted);
  Expect(Result(again, {"convert", "--to", "json"}) == json, "that the document means the same");
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
