// What a run of the benchmarks says: tables of ratios, the aims, and the times for the plots.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tolva::bench {

/// Collects the least time of each benchmark.
class Report : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;

  /// Prints the tables, as Markdown. Ratios are a contender's time divided by the library's.
  void Print() const;

  /// Writes the times, one line each: task, kind, size, contender, seconds.
  bool Save(const std::filesystem::path& path) const;

  /// Whether every benchmark did its work.
  bool is_complete() const { return is_complete_; }

 private:
  struct Key {
    std::string task;
    std::string kind;
    std::size_t size;
    std::string contender;
    auto operator<=>(const Key&) const = default;
  };

  void PrintTask(const std::string& task, const std::vector<std::string>& contenders) const;
  void PrintAims() const;
  double TimeOf(const Key& key) const;
  double RatioOf(const Key& key) const;
  double BestRatioOf(const Key& ours) const;

  std::map<Key, double> seconds_;
  bool is_complete_ = true;
};

}  // namespace tolva::bench
