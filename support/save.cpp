#include <tolva/support/handles.h>
#include <tolva/support/load.h>
#include <tolva/support/save.h>
#include <tolva/support/text.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <vector>

#include "support/collector.h"
#include "support/errors.h"
#include "support/file.h"

namespace tolva::support {
namespace {

using internal::File;
using internal::PhraseOf;
using std::filesystem::path;

/// Says what failed; false.
bool Fail(SaveReport& report, SaveOutcome outcome, DWORD error, const std::string& phrase) {
  report.outcome = outcome;
  report.result = kFailed;
  report.error = error;
  report.message = internal::Sentence(phrase);
  return false;
}

bool FailToWrite(SaveReport& report, DWORD error) {
  return Fail(report, SaveOutcome::kNotWritten, error,
              "the new file cannot be written: " + PhraseOf(error));
}

bool FailToReadBack(SaveReport& report, DWORD error, const std::string& phrase) {
  return Fail(report, SaveOutcome::kNotReadBack, error,
              "the document cannot be read back as it is: " + phrase);
}

bool FailToReplace(SaveReport& report, DWORD error, const char* phrase) {
  return Fail(report, SaveOutcome::kTargetRefused, error,
              "the file cannot be replaced: " + (phrase != nullptr ? phrase : PhraseOf(error)));
}

/// A name that hardly anything else has.
std::string MakeName() {
  static std::atomic<std::uint64_t> made = 0;
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  // The time and a count, spread over all bits.
  std::uint64_t bits = (static_cast<std::uint64_t>(now) + ++made) * 0x9E3779B97F4A7C15;
  std::string name = ".tolva-";
  for (int digit = 0; digit < 16; ++digit, bits >>= 4) name += "0123456789abcdef"[bits & 0xF];
  return name + ".tmp";
}

/// The files of a save. Each step tells in the report why it failed; the target is untouched until
/// the last.
class Replacement {
 public:
  explicit Replacement(SaveReport& report) : report_(report) {}
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    for (const path& file : temporary_) internal::Remove(file);
  }

  /// Judges the target.
  bool Start(const path& file, const SaveOptions& options) {
    if (!internal::IsUsable(file)) return FailToReplace(report_, internal::kInvalidName, nullptr);
    const auto refusal = internal::FindTarget(file, options.break_hard_links, target_);
    if (refusal.error != 0) return FailToReplace(report_, refusal.error, refusal.phrase);
    return true;
  }

  /// Makes an empty file beside the target, opened as `file`. It is removed with the object, unless
  /// it becomes the target.
  bool AddFile(File& file, path& name, File::Kind kind) {
    constexpr int kAttempts = 100;
    DWORD error = internal::kFileExists;
    temporary_.emplace_back();  // what is made must not be forgotten for want of memory
    for (int i = 0; i < kAttempts && error == internal::kFileExists; ++i) {
      path attempt = NameBeside();
      error = file.Create(attempt, kind);
      if (error == 0) temporary_.back() = std::move(attempt);
    }
    if (error != 0) return FailToWrite(report_, error);
    name = temporary_.back();
    return true;
  }

  /// A file that is to replace one is private until it has the other's mode.
  File::Kind kind() const { return target_.exists ? File::Kind::kPrivate : File::Kind::kPublic; }

  /// The new file takes the target's place.
  bool Finish(const path& new_file) {
    bool is_about_target = false;
    DWORD error = internal::Finish(target_, new_file, &is_about_target);
    if (is_about_target) {
      return FailToReplace(report_, error, "its owner, mode or access list cannot be kept");
    }
    if (error != 0) return FailToWrite(report_, error);
    bool replaced = false;
    error = internal::Replace(target_, new_file, NameBeside(), &replaced);
    if (replaced) {
      temporary_.erase(std::find(temporary_.begin(), temporary_.end(), new_file));
    }
    if (error == 0) return true;
    return replaced ? Fail(report_, SaveOutcome::kNotFlushed, error,
                           "the file is replaced, but its folder cannot be brought to the disk: " +
                               PhraseOf(error))
                    : Fail(report_, SaveOutcome::kNotReplaced, error,
                           "the new file cannot take the old one's place: " + PhraseOf(error));
  }

 private:
  path NameBeside() const { return target_.file.parent_path() / MakeName(); }

  SaveReport& report_;
  internal::Target target_;
  std::vector<path> temporary_;
};

/// Whether a diagnostic tells that an element is being written, which is no fault.
bool IsAnnouncement(const std::string& text) {
  return text.find("writingelement") != std::string::npos;
}

/// Writes a document into a file that is there.
bool Write(const node::INode& root, const path& file, SaveReport& report) {
  const std::wstring wide = PathToWide(file);
  if (wide.empty()) return FailToWrite(report, internal::kInvalidName);
  tolvaSetLastError(0);
  const Manager writer = MakeWriter();
  if (writer->OpenFile(wide.c_str()) != kSuccess) return FailToWrite(report, tolvaGetLastError());

  const ConfigResult written = root.WriteToXMLMgr(writer.get());
  const DWORD error = tolvaGetLastError();
  // A failure of the file shows here, whatever the node has made of it.
  if (writer->Close() != kSuccess) return FailToWrite(report, tolvaGetLastError());
  if (written != kSuccess) {
    const auto fault =
        std::find_if_not(report.diagnostics.begin(), report.diagnostics.end(), &IsAnnouncement);
    std::string phrase = "the document cannot be written as it is";
    if (fault != report.diagnostics.end()) phrase += ": " + *fault;
    return Fail(report, SaveOutcome::kContentRefused, internal::IsXmlFault(error) ? error : 0,
                phrase);
  }
  constexpr DWORD kMisplaced = 0xC00CEF0B;  // a line feed after the root, as some writers see it
  if (internal::IsXmlFault(error) && error != kMisplaced) {
    return Fail(report, SaveOutcome::kContentRefused, error,
                "a value would be lost: " + PhraseOf(error));
  }
  return true;
}

DWORD ReadAll(const path& name, std::string& bytes) {
  File file;
  DWORD error = file.OpenToRead(name);
  std::size_t size = 0;
  for (std::size_t count = 1; error == 0 && count != 0; size += count) {
    bytes.resize(size + 65536);
    error = file.Read(bytes.data() + size, bytes.size() - size, &count);
  }
  bytes.resize(size);
  return error;
}

/// Where two documents differ, not counting attributes that the second has in addition: reading
/// supplies some that are absent. npos: nowhere.
std::size_t FindDifference(std::string_view written, std::string_view again) {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  constexpr std::size_t kNone = std::string_view::npos;
  std::size_t i = 0;
  std::size_t j = 0;
  while (i != written.size() || j != again.size()) {
    if (i != written.size() && j != again.size() && written[i] == again[j]) {
      ++i;
      ++j;
      continue;
    }
    // An attribute that is added may start like the one that follows it.
    const std::size_t start = again.rfind(' ', j);
    if (start == kNone) return i;
    const std::size_t equals = again.find_first_not_of(kLetters, start + 1);
    if (equals == kNone || equals < j || again.substr(equals, 2) != "=\"") return i;
    const std::size_t end = again.find('"', equals + 2);
    if (end == kNone) return i;
    i -= j - start;
    j = end + 1;
  }
  return kNone;
}

/// The name of the element in whose tag or text something stands.
std::string_view ElementAt(std::string_view document, std::size_t at) {
  const std::size_t start = document.find_first_not_of("</", document.rfind('<', at));
  return document.substr(start, document.find_first_of(" />", start) - start);
}

/// Reads the new file into a node of its own, writes that, and compares.
bool ReadBack(const DocumentKind& kind, const path& new_file, Replacement& files,
              SaveReport& report) {
  const std::size_t diagnostics = report.diagnostics.size();
  auto [again, loading] = Load(kind, new_file);
  if (!loading) {
    report.diagnostics.insert(report.diagnostics.end(), loading.diagnostics.begin(),
                              loading.diagnostics.end());
    return FailToReadBack(report, loading.error, internal::Phrase(loading.message));
  }
  path copy;
  File made;
  if (!files.AddFile(made, copy, File::Kind::kPrivate)) return false;
  made.Close();
  if (!Write(*again, copy, report)) return false;
  std::string written;
  std::string again_written;
  DWORD error = ReadAll(new_file, written);
  if (error == 0) error = ReadAll(copy, again_written);
  if (error != 0) return FailToReadBack(report, error, PhraseOf(error));
  const std::size_t difference = FindDifference(written, again_written);
  if (difference != std::string::npos) {
    return FailToReadBack(
        report, 0, "the element '" + std::string(ElementAt(written, difference)) + "' changes");
  }
  report.diagnostics.resize(diagnostics);  // those of the first write say it all
  return true;
}

}  // namespace

SaveReport Save(const DocumentKind& kind, const node::INode& root, const path& file,
                const SaveOptions& options) {
  SaveReport report;
  const internal::Collector collector(report.diagnostics);
  const auto save = [&] {
    if (PathToWide(file).empty()) {
      return FailToReplace(report, internal::kInvalidName,
                           "the library cannot open a file of this name");
    }
    Replacement files(report);
    path new_file;
    File made;
    if (!files.Start(file, options) || !files.AddFile(made, new_file, files.kind())) return false;
    made.Close();
    return Write(root, new_file, report) && ReadBack(kind, new_file, files, report) &&
           files.Finish(new_file);
  };
  if (!save()) collector.Check();
  return report;
}

SaveReport SaveBytes(std::string_view bytes, const path& file, const SaveOptions& options) {
  SaveReport report;
  Replacement files(report);
  path new_file;
  File made;
  if (!files.Start(file, options) || !files.AddFile(made, new_file, files.kind())) return report;
  DWORD error = made.Write(bytes);
  const DWORD closed = made.Close();
  if (error == 0) error = closed;
  if (error != 0) {
    FailToWrite(report, error);
    return report;
  }
  std::string written;
  error = ReadAll(new_file, written);
  if (error != 0) {
    Fail(report, SaveOutcome::kNotReadBack, error,
         "the new file cannot be read back: " + PhraseOf(error));
  } else if (written != bytes) {
    Fail(report, SaveOutcome::kNotReadBack, 0, "the new file does not hold what was written");
  } else {
    files.Finish(new_file);
  }
  return report;
}

}  // namespace tolva::support
