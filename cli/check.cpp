// check: what is wrong with documents.
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <filesystem>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include "cli/check_formats.h"
#include "cli/check_walk.h"
#include "cli/inputs.h"
#include "cli/interrupt.h"
#include "cli/places.h"
#include "cli/progress.h"
#include "cli/text.h"
#include "cli/verb.h"
#include "cli/verbs.h"

namespace tolva::cli {
namespace {

constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();

struct Options {
  InputOptions inputs;
  ExpectedType type;
  std::vector<std::string> ignored;
  std::uint64_t most = kNoLimit;
  bool is_strict = false;
  bool is_quiet = false;
};

/// What a file is like before it is read.
class FileState {
 public:
  explicit FileState(const Input& input)
      : path_(input.is_standard_input ? std::filesystem::path() : PathOf(input.name)),
        before_(Now()) {}

  bool HasChanged() const { return Now() != before_; }

 private:
  struct State {
    bool operator==(const State&) const = default;

    std::uintmax_t size = 0;
    std::filesystem::file_time_type time = {};
  };

  /// Of what is no file, always the same.
  State Now() const {
    std::error_code error;
    State state;
    if (!std::filesystem::is_regular_file(path_, error)) return state;
    state.size = std::filesystem::file_size(path_, error);
    state.time = std::filesystem::last_write_time(path_, error);
    return state;
  }

  const std::filesystem::path path_;
  const State before_;
};

/// The size of the files, as far as they have one.
std::uint64_t SizeOf(const std::vector<Input>& files) {
  std::uint64_t size = 0;
  for (const Input& file : files) {
    std::error_code error;
    if (file.is_standard_input) return 0;
    const std::uintmax_t one = std::filesystem::file_size(PathOf(file.name), error);
    if (!error) size += one;
  }
  return size;
}

/// What was found in one file.
struct FileResult {
  std::uint64_t errors = 0;
  std::uint64_t warnings = 0;
  bool is_foreign = false;
  std::string trouble;  ///< empty: the file was read
};

/// Prints the records of files in the order of the files, although several are checked at once.
/// Records of a file whose turn has not come are kept, up to a limit: then its thread waits.
class Printer {
 public:
  Printer(Session& session, const CheckFormat& format, std::uint64_t most, bool is_quiet)
      : session_(session),
        format_(format),
        most_(is_quiet ? 0 : most),
        is_quiet_(is_quiet),
        is_terminal_(session.out.IsTerminal()) {}

  /// Prints what comes before the first record.
  void Start(Progress& progress) {
    progress_ = &progress;
    Print(format_.Start());
  }

  /// Whether a file that has so many records needs no more: none would be shown.
  bool IsEnough(std::uint64_t records) const { return records >= most_; }

  void Add(std::size_t file, std::string record) {
    std::unique_lock lock(mutex_);
    turned_.wait(lock, [&] { return file == turn_ || kept_ <= kMostKept || failure_ != nullptr; });
    if (failure_ != nullptr) std::rethrow_exception(failure_);
    if (file == turn_) {
      PrintRecord(record);
      return;
    }
    kept_ += record.size();
    waiting_[file].records.push_back(std::move(record));
  }

  void Finish(std::size_t file, const std::string& name, FileResult result) {
    const std::lock_guard lock(mutex_);
    Waiting& waiting = waiting_[file];
    waiting.name = name;
    waiting.result = std::move(result);
    waiting.is_done = true;
    while (TakeTurn()) {
    }
    turned_.notify_all();
  }

  /// No more is printed: all threads end.
  void Fail(const std::exception_ptr& failure) {
    const std::lock_guard lock(mutex_);
    if (failure_ == nullptr) failure_ = failure;
    turned_.notify_all();
  }

  void AddTrouble(FileTrouble trouble) { summary_.troubles.push_back(std::move(trouble)); }

  const Summary& End() {
    if (failure_ != nullptr) std::rethrow_exception(failure_);
    Print(format_.End(summary_));
    progress_->StepAside([this] { session_.out.Flush(); });
    for (const FileTrouble& trouble : summary_.troubles) {
      session_.err.Write("tolva: " + trouble.message + "\n");
    }
    return summary_;
  }

 private:
  static constexpr std::size_t kMostKept = std::size_t{1} << 20;

  /// The records of a file whose turn has not come.
  struct Waiting {
    std::vector<std::string> records;
    bool is_done = false;
    std::string name;
    FileResult result;
  };

  void Print(std::string_view text) {
    if (is_quiet_ || text.empty()) return;
    if (!is_terminal_) {
      session_.out.Write(text);
      return;
    }
    progress_->StepAside([&] {
      session_.out.Write(text);
      session_.out.Flush();
    });
  }

  void PrintRecord(std::string_view record) {
    if (summary_.shown == most_) return;
    if (has_printed_) Print(format_.Separator());
    has_printed_ = true;
    ++summary_.shown;
    Print(record);
  }

  /// Prints what is kept of the file whose turn it is. Returns whether it is another one's turn.
  bool TakeTurn() {
    const auto found = waiting_.find(turn_);
    if (found == waiting_.end()) return false;
    Waiting& waiting = found->second;
    for (const std::string& record : waiting.records) {
      PrintRecord(record);
      kept_ -= record.size();
    }
    waiting.records.clear();
    if (!waiting.is_done) return false;
    const FileResult& result = waiting.result;
    if (!result.trouble.empty()) {
      summary_.troubles.push_back({waiting.name, result.trouble});
    } else if (result.is_foreign) {
      ++summary_.skipped;
    } else {
      ++summary_.files;
      if (result.errors + result.warnings == 0) Print(format_.RecordOfFine(waiting.name));
    }
    summary_.errors += result.errors;
    summary_.warnings += result.warnings;
    waiting_.erase(found);
    ++turn_;
    return true;
  }

  Session& session_;
  const CheckFormat& format_;
  const std::uint64_t most_;
  const bool is_quiet_;
  const bool is_terminal_;
  Progress* progress_ = nullptr;
  std::mutex mutex_;
  std::condition_variable turned_;
  std::size_t turn_ = 0;
  std::map<std::size_t, Waiting> waiting_;
  std::size_t kept_ = 0;  ///< the size of all records that wait
  std::exception_ptr failure_;
  bool has_printed_ = false;
  Summary summary_;
};

/// Counts what is found in one file, and has the printer print it.
class FileSink final : public FindingSink {
 public:
  FileSink(Printer& printer, const CheckFormat& format, const std::set<Code>& ignored,
           std::size_t file, const std::string& name)
      : printer_(printer), format_(format), ignored_(ignored), file_(file), name_(name) {}

  bool Count(Code code) override {
    if (ignored_.contains(code)) return false;
    const std::uint64_t records = result.errors + result.warnings;
    ++(InfoOf(code).is_error ? result.errors : result.warnings);
    return !printer_.IsEnough(records);
  }

  void Add(Finding finding) override { printer_.Add(file_, format_.Record(name_, finding)); }

  FileResult result;

 private:
  Printer& printer_;
  const CheckFormat& format_;
  const std::set<Code>& ignored_;
  const std::size_t file_;
  const std::string& name_;
};

class Check {
 public:
  Check(Session& session, const Options& options)
      : session_(session),
        options_(options),
        expected_(options.type.document()),
        format_(MakeCheckFormat(session.format, session.OutStyle(), options.is_strict)),
        printer_(session, *format_, options.most, options.is_quiet) {
    for (const CodeInfo& info : Codes()) {
      if (std::ranges::find(options.ignored, info.name) != options.ignored.end()) {
        ignored_.insert(info.code);
      }
    }
  }

  int Run() {
    files_ = FindInputs(options_.inputs, [this](const std::string& message) {
      printer_.AddTrouble({"", message});
    });
    const std::size_t count = files_.size();
    const bool is_shown = session_.err.IsTerminal();
    Progress progress(session_.err, {.bytes = is_shown ? SizeOf(files_) : 0, .files = count});
    progress_ = &progress;
    printer_.Start(progress);
    CatchInterrupt();
    const std::size_t threads =
        std::min<std::size_t>(count, std::max(1U, std::thread::hardware_concurrency()));
    std::vector<std::jthread> others;
    try {
      for (std::size_t i = 1; i < threads; ++i) others.emplace_back([this] { CheckFiles(); });
    } catch (const std::system_error&) {
      // There are no more threads to be had: those that there are do all the work.
    }
    CheckFiles();
    others.clear();
    if (checked_ != count && IsInterrupted()) {
      const std::string rest = Count(count - checked_, "file");
      printer_.AddTrouble({"", "it was interrupted: " + rest + " left out"});
    }
    const Summary& summary = printer_.End();
    const bool has_findings = summary.errors != 0 || (options_.is_strict && summary.warnings != 0);
    if (!summary.troubles.empty() || count == 0) return kTrouble;
    return has_findings ? kFindings : kFine;
  }

 private:
  void CheckFiles() {
    try {
      for (std::size_t file = next_++; file < files_.size(); file = next_++) {
        if (IsInterrupted()) break;
        CheckFile(file);
        ++checked_;
        progress_->Add({.files = 1});
      }
    } catch (...) {
      next_ = files_.size();
      printer_.Fail(std::current_exception());
    }
  }

  void CheckFile(std::size_t file) {
    const Input& input = files_[file];
    FileSink sink(printer_, *format_, ignored_, file, input.name);
    if (const auto stream = Open(input, sink.result.trouble)) {
      const FileState state(input);
      const bool skips_foreign = input.is_from_folder && !options_.is_strict;
      const WalkOutcome outcome =
          WalkDocument(*Watch(*stream.Get(), *progress_).Get(),
                       {.expected = expected_, .skips_foreign = skips_foreign}, sink);
      sink.result.is_foreign = outcome.is_foreign;
      const std::string name = "'" + Printable(input.name) + "' ";
      if (FAILED(outcome.failure)) {
        sink.result.trouble = name + "cannot be read: " + ReasonOf(outcome.failure);
      } else if (state.HasChanged()) {
        sink.result.trouble = name + "changed while it was read";
      }
    }
    printer_.Finish(file, input.name, std::move(sink.result));
  }

  /// Null, with the reason in `trouble`, if the file cannot be opened.
  static ComPtr<ISequentialStream> Open(const Input& input, std::string& trouble) {
    try {
      return OpenInput(input);
    } catch (const Trouble& reason) {
      trouble = reason.what();
      return {};
    }
  }

  Session& session_;
  const Options& options_;
  const Document* const expected_;
  const std::unique_ptr<CheckFormat> format_;
  Printer printer_;
  std::set<Code> ignored_;
  Progress* progress_ = nullptr;
  std::vector<Input> files_;
  std::atomic<std::size_t> next_ = 0;
  std::atomic<std::size_t> checked_ = 0;
};

}  // namespace

void AddCheck(CLI::App& tool, Session& session) {
  Verb verb(
      tool, "check",
      "Finds what is wrong with documents.\n\n"
      "Errors: the library refuses the document, or it is not well-formed. Warnings: the library "
      "accepts the document, but ignores or changes something. The exit status is 0 if there is no "
      "error, 1 if there is one, and 2 if a file cannot be read. In folders, XML files that are no "
      "documents of the agent are skipped.");
  const auto options = std::make_shared<Options>();
  AddInputs(verb, options->inputs);
  options->type.AddTo(verb);
  verb.AddFlag("--strict", options->is_strict,
               "warnings count as errors for the exit status, and nothing is skipped.");
  std::vector<std::string> codes;
  for (const CodeInfo& info : Codes()) codes.emplace_back(info.name);
  verb.Add("--ignore", "CODE", options->ignored, "leaves findings with the code out.")
      .TakeOneEach()
      .AllowOnly(codes);
  verb.Add("--max-findings", "N", options->most, "shows so many findings; all are counted.");
  verb.AddFlag("-q,--quiet", options->is_quiet, "prints no findings.");
  AddCommonOptions(verb, session, CheckFormats());
  verb.SetExamples(
      "tolva check policy.xml\n"
      "tolva check -r --strict /etc/agent\n"
      "tolva check --format sarif policy.xml > policy.sarif");
  verb.SetAction(session, [&session, options] { return Check(session, *options).Run(); });
}

}  // namespace tolva::cli
