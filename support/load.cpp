#include <tolva/support/handles.h>
#include <tolva/support/load.h>
#include <tolva/support/text.h>

#include <limits>
#include <system_error>

#include "support/collector.h"
#include "support/errors.h"
#include "support/file.h"

namespace tolva::support {
namespace {

using internal::PhraseOf;
using internal::Sentence;

void Fail(LoadReport& report, LoadOutcome outcome, DWORD error, const std::string& phrase) {
  report.outcome = outcome;
  report.error = error;
  report.message = Sentence(phrase);
}

/// The document is malformed, or could not be read.
void FailBy(LoadReport& report, DWORD error) {
  const bool is_malformed = internal::IsXmlFault(error);
  Fail(report, is_malformed ? LoadOutcome::kNotWellFormed : LoadOutcome::kUnreadable, error,
       PhraseOf(error));
}

/// Says what another document than expected is.
void FailByName(const DocumentKind& kind, std::string name, LoadReport& report) {
  const std::string expected = "'" + std::string(kind.root_element) + "'";
  Fail(report, LoadOutcome::kOtherDocument, 0,
       name.empty() ? "the root element is not " + expected
                    : "the root element is '" + name + "', not " + expected);
  report.root_element = std::move(name);
}

void FailByNode(LoadReport& report) {
  std::string phrase = "something required is missing or has a malformed value";
  if (!report.diagnostics.empty()) phrase += ": " + report.diagnostics.front();
  Fail(report, LoadOutcome::kRefused, 0, phrase);
}

/// Reads the root from an open reader, and the rest of the document. `root_name` finds the name of
/// the root element.
template <class RootNameOf>
std::unique_ptr<node::INode> Read(const DocumentKind& kind, IXMLLiteManager& reader,
                                  RootNameOf root_name, LoadReport& report) {
  auto root = kind.make();
  const ConfigResult result = root->ReadFromXMLMgr(&reader);
  // The last-error value of a failed read may be that of a later step: the parser repeats its own.
  const ConfigResult end = tolvaReadToEnd(&reader);
  const DWORD error = end == kSuccess ? 0 : tolvaGetLastError();
  report.result = result != kSuccess ? result : end;
  if (report.result == kSuccess) return root;
  if (result == kSuccess) {
    Fail(report, LoadOutcome::kDamaged, error,
         "the document was read, but what follows is damaged: " + PhraseOf(error));
    return root;
  }
  if (result == kInvalidArgument) {
    std::string name = root_name();
    if (!name.empty() && name != kind.root_element) {
      FailByName(kind, std::move(name), report);
      return nullptr;
    }
  }
  if (end != kSuccess) {
    FailBy(report, error);
  } else if (result == kInvalidArgument) {
    FailByName(kind, {}, report);
  } else {
    FailByNode(report);
  }
  return nullptr;
}

void FailToOpen(const std::filesystem::path& file, LoadReport& report) {
  const DWORD error = tolvaGetLastError();
  if (error != 0) {
    FailBy(report, error);
    return;
  }
  // The library opens nothing without a size, and leaves no code.
  std::error_code code;
  if (std::filesystem::is_regular_file(file, code)) {
    Fail(report, LoadOutcome::kNotWellFormed, 0, "the file is empty");
  } else {
    Fail(report, LoadOutcome::kUnreadable, 0, "it is not a regular file");
  }
}

void FailToOpen(const std::wstring& document, LoadReport& report) {
  if (document.empty()) {
    Fail(report, LoadOutcome::kNotWellFormed, 0, "the document is empty");
  } else if (report.result == kInvalidArgument) {
    Fail(report, LoadOutcome::kUnreadable, 0, "the document is too long");
  } else {
    const DWORD error = tolvaGetLastError();
    FailBy(report, error != 0 ? error : internal::kNotEnoughMemory);
  }
}

/// Makes a reader, opens the source with it and reads. `source` is a path or a document.
template <class Source, class Open, class RootNameOf>
Loaded<node::INode> LoadFrom(const DocumentKind& kind, const Source& source, Open open,
                             RootNameOf root_name) {
  Loaded<node::INode> loaded;
  LoadReport& report = loaded.report;
  const internal::Collector collector(report.diagnostics);
  tolvaSetLastError(0);
  const Manager reader = MakeReader();
  report.result = open(*reader);
  if (report.result == kSuccess) {
    loaded.root = Read(kind, *reader, root_name, report);
  } else {
    FailToOpen(source, report);
  }
  collector.Check();
  return loaded;
}

}  // namespace

Loaded<node::INode> Load(const DocumentKind& kind, const std::filesystem::path& file) {
  const std::wstring path = PathToWide(file);
  if (path.empty()) {
    Loaded<node::INode> refused;
    refused.report.result = kFailed;
    Fail(refused.report, LoadOutcome::kUnreadable, internal::kInvalidName,
         "the library cannot open a file of this name");
    return refused;
  }
  return LoadFrom(
      kind, file, [&path](IXMLLiteManager& reader) { return reader.OpenFile(path.c_str()); },
      [&file] { return RootName(file); });
}

Loaded<node::INode> LoadFromString(const DocumentKind& kind, const std::wstring& document) {
  if (document.find(L'\0') != std::wstring::npos) {
    // The library would not look at what comes after it.
    Loaded<node::INode> refused;
    refused.report.result = kFailed;
    FailBy(refused.report, 0xC00CEE2B);
    return refused;
  }
  return LoadFrom(
      kind, document,
      [&document](IXMLLiteManager& reader) { return reader.OpenFromString(document.c_str()); },
      [&document] { return RootNameFromString(document); });
}

}  // namespace tolva::support
