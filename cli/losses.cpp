#include "cli/losses.h"

#include <utility>

#include "cli/files.h"
#include "cli/load.h"
#include "cli/session.h"
#include "cli/text.h"
#include "cli/verb.h"

namespace tolva::cli {
namespace {

class Collector final : public FindingSink, public LossSink {
 public:
  Collector(const std::string& name, Losses& losses) : name_(name), losses_(losses) {}

  bool Count(Code code) override {
    if (!IsFault(code)) ++losses_.count;
    return IsFault(code) ? fault.empty() : IsWanted();
  }

  void Add(Finding finding) override {
    std::string text =
        AtPlace(name_, finding.position.line, finding.position.column, finding.message);
    if (IsFault(finding.code)) {
      fault = std::move(text);
    } else {
      losses_.first.push_back(std::move(text));
    }
  }

  void AddLoss(const Position& position, std::string what) override {
    ++losses_.count;
    if (!IsWanted()) return;
    losses_.first.push_back(
        AtPlace(name_, position.line, position.column, what + " would be lost"));
  }

  std::string fault;  ///< the first; empty: none

 private:
  /// What is not read back is as bad as what is not read.
  static bool IsFault(Code code) { return InfoOf(code).is_error || code == Code::kNotReadBack; }

  bool IsWanted() const { return losses_.first.size() < kMostLossesTold; }

  const std::string& name_;
  Losses& losses_;
};

}  // namespace

Losses FindLosses(ISequentialStream& stream, const std::string& name, const WalkOptions& options) {
  Losses losses;
  Collector collector(name, losses);
  WalkOptions all = options;
  all.losses = &collector;
  const WalkOutcome outcome = WalkDocument(stream, all, collector);
  if (FAILED(outcome.failure)) {
    throw Trouble("'" + Printable(name) + "' cannot be read: " + ReasonOf(outcome.failure));
  }
  if (outcome.is_foreign) return {};
  if (!collector.fault.empty()) throw Trouble(collector.fault);
  losses.document = outcome.document;
  return losses;
}

void RefuseLosses(const Losses& losses, const std::string& name) {
  if (losses.count == 0) return;
  std::string message =
      "'" + Printable(name) + "' has what the library does not keep; --drop drops it:";
  for (const std::string& loss : losses.first) message += "\n" + loss;
  const std::uint64_t more = losses.count - losses.first.size();
  if (more != 0) message += "\nand " + std::to_string(more) + " more";
  throw Trouble(message);
}

std::string StableForm(const Document& document, const node::INode& root, const std::string& name) {
  // An empty text that is dropped is written as none at first, and then its element is not written.
  constexpr int kMostTimes = 3;
  std::string form = WrittenForm(document, root);
  for (int i = 0; i < kMostTimes; ++i) {
    const Loaded again = LoadBytes(std::move(form), name + ", as it would be written", &document);
    form = WrittenForm(document, *again.root);
    if (form == again.bytes) return form;
  }
  throw Trouble("'" + Printable(name) + "' would not be read back as it is written");
}

std::string AtPlace(const std::string& name, std::uint64_t line, std::uint64_t column,
                    const std::string& what) {
  return Printable(name) + ":" + std::to_string(line) + ":" + std::to_string(column) + ": " + what;
}

void AddDropOption(Verb& verb, bool& drops) {
  verb.AddFlag("--drop", drops, "drops what the library does not keep, such as comments.");
}

}  // namespace tolva::cli
