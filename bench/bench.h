// What all benchmarks share.
#pragma once

#include <benchmark/benchmark.h>
#include <tolva/support/documents.h>
#include <tolva/tolva.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "documents.h"
#include "plan.h"

namespace tolva::bench {

/// The sizes that there are aims for, those between, and the largest one, in bytes.
const std::vector<std::size_t> kSizes = {4'000, 40'000, 400'000, 4'000'000, 10'000'000};
constexpr std::size_t kLargest = 100'000'000;

/// Registers a contender at a task: "<task>/<kind>/<size>/<contender>".
/// `run(state, kind, documents)` works on one of the documents after the other.
template <class Run>
void Register(const std::string& task, const std::string& contender, Kind kind, std::size_t size,
              Run run) {
  const std::string name = task + (kind == kPolicy ? "/policy/" : "/catalogue/") +
                           std::to_string(size) + "/" + contender;
  const auto least = [](const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
  };
  // Some milliseconds at a time, and always the same work: what would be found out about it while
  // something else disturbs the machine would hold for the whole run.
  constexpr std::size_t kBytesAtATime = 1'000'000;
  const int repetitions = size <= kBytesAtATime ? 100 : size < kLargest ? 20 : 3;
  benchmark::RegisterBenchmark(
      name.c_str(), [=](benchmark::State& state) { run(state, kind, GetDocuments(kind, size)); })
      ->Iterations(std::max<std::int64_t>(static_cast<std::int64_t>(kBytesAtATime / size), 1))
      ->Repetitions(repetitions)
      ->ReportAggregatesOnly(true)
      ->ComputeStatistics("min", least);
}

template <class Run>
void Register(const std::string& task, const std::string& contender, Run run) {
  for (const Kind kind : {kPolicy, kCatalogue}) {
    for (const std::size_t size : kSizes) Register(task, contender, kind, size, run);
  }
}

/// Also with the largest document.
template <class Run>
void RegisterUpToLargest(const std::string& task, const std::string& contender, Run run) {
  Register(task, contender, run);
  for (const Kind kind : {kPolicy, kCatalogue}) Register(task, contender, kind, kLargest, run);
}

/// Goes from one to the next, and from the last to the first.
template <class T>
class Round {
 public:
  explicit Round(T& all) : all_(all) {}
  auto& Next() {
    next_ = next_ + 1 < all_.size() ? next_ + 1 : 0;
    return all_[next_];
  }

 private:
  T& all_;
  std::size_t next_ = 0;
};

void RegisterWalks();
void RegisterReads();
void RegisterWrites();

// ---- nodes and managers -------------------------------------------------------------------------

using Root = std::unique_ptr<node::INode>;

inline Root MakeRoot(Kind kind) {
  if (kind == kPolicy) return Root(TolvaInterface::ILPClientConfiguration_CreateNewInstance());
  return Root(MessageConf::EndPointMessage_CreateNewInstance());
}

const Plan& PlanOf(Kind kind);

inline const support::DocumentKind& SupportKind(Kind kind) {
  return kind == kPolicy ? support::kDocument<TolvaInterface::IILPClientConfiguration>
                         : support::kDocument<MessageConf::IEndPointMessage>;
}

using Manager = std::unique_ptr<IXMLLiteManager, void (*)(IXMLLiteManager*)>;

inline Manager MakeReader() { return {tolvaCreateXMLManager(0), &tolvaDestroyXMLManager}; }
inline Manager MakeWriter() { return {tolvaCreateXMLManager(1), &tolvaDestroyXMLManager}; }

inline bool Read(IXMLLiteManager& reader, const std::wstring& path, node::INode& root) {
  return reader.OpenFile(path.c_str()) == 0 && root.ReadFromXMLMgr(&reader) == 0;
}

// ---- memory that is kept ------------------------------------------------------------------------

/// The bytes of a file or of a document, zero-terminated, for parsers that change what they parse.
/// The memory is used again for the next document.
class KeptBuffer {
 public:
  void Copy(const std::string& text);
  bool ReadFile(const std::filesystem::path& path);

  char* data() { return bytes_.data(); }
  std::size_t size() const { return size_; }

 private:
  void MakeRoom(std::size_t size);

  std::vector<char> bytes_;
  std::size_t size_ = 0;
};

}  // namespace tolva::bench
