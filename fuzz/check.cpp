// Any bytes through the tool's `check` and through the library: they agree on whether the document
// is good and whether it can be written and read again, whatever pieces it comes in, and what is
// found has a place in it.
#include <algorithm>

#include "cli/findings.h"
#include "cli/text.h"
#include "support.h"
#include "xml/reader.h"

namespace {

using namespace tolva;
using namespace tolva::fuzz;
using cli::Code;
using cli::Finding;
using test::Findings;
using test::Has;

bool IsSame(const Finding& left, const Finding& right) {
  return left.code == right.code && left.position.offset == right.position.offset &&
         left.position.line == right.position.line &&
         left.position.column == right.position.column && left.path == right.path &&
         left.message == right.message;
}

/// Lines and columns counted in the simplest way, of a document in UTF-8.
void ExpectPlace(std::string_view document, const Finding& finding) {
  Expect(finding.position.offset <= document.size(), "a place in the document");
  if (document.size() < 4 || document.find('\0') < 4) return;
  if (!document.starts_with('<') || document.starts_with("<?xml")) return;
  std::uint64_t line = 1;
  std::uint64_t column = 1;
  for (std::size_t i = 0; i < finding.position.offset; ++i) {
    const bool is_cr_lf = document[i] == '\r' && document.substr(i + 1).starts_with('\n');
    if (document[i] == '\n' || (document[i] == '\r' && !is_cr_lf)) {
      ++line;
      column = 1;
    } else if ((static_cast<unsigned char>(document[i]) & 0xC0) != 0x80) {
      ++column;
    }
  }
  Expect(finding.position.line == line && finding.position.column == column, "the place");
}

bool IsRead(const MemoryFile& file, node::INode& node) {
  xml::CXMLLiteManagerReader reader;
  platform::SetLastError(0);
  return reader.OpenFile(file.path()) == 0 && node.ReadFromXMLMgr(&reader) == 0 &&
         reader.ReadToEnd() == 0;
}

const cli::Document* DocumentOf(const MemoryFile& file) {
  xml::CXMLLiteManagerReader reader;
  if (reader.OpenFile(file.path()) != 0) return nullptr;
  const cli::Document* const document = cli::FindDocument(reader.GetLocalName());
  const bool is_root = document != nullptr && document->root().name == reader.GetLocalName();
  return is_root ? document : nullptr;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile input;
  static const MemoryFile output;
  const std::string_view text = Text(data, size);
  const Findings findings = test::Check(text, size + 1);
  const Findings in_pieces = test::Check(text, 1 + size % 7);
  Expect(std::ranges::equal(findings, in_pieces, IsSame), "the same findings, whatever the pieces");
  for (const Finding& finding : findings) {
    ExpectPlace(text, finding);
    const bool is_end = finding.code <= Code::kEncoding;  // nothing can be said of what follows
    Expect(!is_end || &finding == &findings.back(), "nothing after what ends the walk");
    Expect(cli::Printable(finding.message) == finding.message, "a message for a terminal");
    Expect(cli::Printable(finding.path) == finding.path, "a path for a terminal");
  }

  input.Write(text);
  const bool has_error = test::HasError(findings);
  const cli::Document* const document = DocumentOf(input);
  if (document == nullptr) {
    Expect(has_error, "an error in what is no document");
    return 0;
  }
  const auto node = document->make();
  const bool is_read = IsRead(input, *node);
  Expect(has_error != is_read, "the library's verdict");
  if (!is_read || Has(findings, Code::kDuplicateChild)) return 0;
  Expect(IsWritten(output, *node), "that what was read can be written");
  const bool is_read_back = IsRead(output, *document->make());
  Expect(Has(findings, Code::kNotReadBack) != is_read_back, "a warning if it cannot be read again");
  return 0;
}
