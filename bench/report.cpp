#include "report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <limits>
#include <sstream>
#include <string_view>

#include "bench.h"

namespace tolva::bench {
namespace {

constexpr double kNone = std::numeric_limits<double>::infinity();
const std::string kOurs = "tolva";

/// The sizes that there are aims for.
constexpr std::array<std::size_t, 4> kAimSizes = {4'000, 40'000, 400'000, 10'000'000};

/// What the ratio is to be, for each size. docs/performance.md says against whom the aims were set.
struct Aim {
  const char* task;
  const char* kind;
  std::array<double, kAimSizes.size()> ratios;
};

constexpr Aim kAims[] = {
    {"read", "policy", {1.5, 1.6, 1.6, 1.5}},   {"read", "catalogue", {1.4, 1.5, 1.5, 1.4}},
    {"write", "policy", {1.15, 1.3, 1.3, 1.2}}, {"write", "catalogue", {1.1, 1.3, 1.2, 1.0}},
    {"walk", "policy", {1.0, 1.0, 1.0, 1.0}},   {"walk", "catalogue", {1.5, 1.5, 1.5, 1.3}},
};

std::string SizeName(std::size_t size) {
  return size < 1'000'000 ? std::to_string(size / 1000) + " KB"
                          : std::to_string(size / 1'000'000) + " MB";
}

void PrintHeader(const std::vector<std::string>& columns) {
  for (const std::string& column : columns) std::printf("| %s ", column.c_str());
  std::printf("|\n");
  for (std::size_t i = 0; i < columns.size(); ++i) std::printf("| --- ");
  std::printf("|\n");
}

void PrintRatio(double ratio) {
  if (std::isfinite(ratio)) {
    std::printf("| %.2f ", ratio);
  } else {
    std::printf("| ");
  }
}

/// `ratio_of` has the ratio for a size.
template <class RatioOf>
void PrintAim(const Aim& aim, const char* rival, RatioOf ratio_of) {
  std::printf("| %s, %s | %s ", aim.task, aim.kind, rival);
  for (std::size_t i = 0; i < kAimSizes.size(); ++i) {
    const double ratio = ratio_of(kAimSizes[i]);
    if (std::isfinite(ratio)) {
      std::printf("| %.2f of %.2f ", ratio, aim.ratios[i]);
    } else {
      std::printf("| ");
    }
  }
  std::printf("|\n");
}

}  // namespace

bool Report::ReportContext(const Context& context) {
  PrintBasicContext(&std::cerr, context);
  return true;
}

void Report::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.error_occurred) {
      std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
      is_complete_ = false;
    }
    if (run.aggregate_name != "min") continue;
    std::istringstream name(run.run_name.function_name);
    Key key;
    std::string size;
    std::getline(name, key.task, '/');
    std::getline(name, key.kind, '/');
    std::getline(name, size, '/');
    std::getline(name, key.contender, '/');
    key.size = std::stoul(size);
    seconds_[key] = run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
  }
}

double Report::TimeOf(const Key& key) const {
  const auto found = seconds_.find(key);
  return found == seconds_.end() ? kNone : found->second;
}

double Report::RatioOf(const Key& key) const {
  Key ours = key;
  ours.contender = kOurs;
  return TimeOf(key) / TimeOf(ours);
}

double Report::BestRatioOf(const Key& ours) const {
  double best = kNone;
  for (const auto& [key, seconds] : seconds_) {
    const bool is_rival = !key.contender.starts_with(kOurs) && key.contender != "copy";
    const bool is_same = key.task == ours.task && key.kind == ours.kind && key.size == ours.size;
    if (is_same && is_rival) best = std::min(best, RatioOf(key));
  }
  return best;
}

void Report::PrintTask(const std::string& task, const std::vector<std::string>& contenders) const {
  std::printf("\n%s\n\n", task.c_str());
  std::vector<std::string> columns = {"Document", "MB/s"};
  columns.insert(columns.end(), contenders.begin(), contenders.end());
  PrintHeader(columns);
  for (const std::string kind : {"policy", "catalogue"}) {
    for (const std::size_t size : kSizes) {
      const double seconds = TimeOf({task, kind, size, kOurs});
      if (seconds == kNone) continue;
      std::printf("| %s, %s | %.0f ", kind.c_str(), SizeName(size).c_str(),
                  static_cast<double>(size) * 1e-6 / seconds);
      for (const std::string& contender : contenders) {
        PrintRatio(RatioOf({task, kind, size, contender}));
      }
      std::printf("|\n");
    }
  }
}

void Report::PrintAims() const {
  std::printf("\nReached of what was aimed at\n\n");
  std::vector<std::string> columns = {"", "against"};
  for (const std::size_t size : kAimSizes) columns.push_back(SizeName(size));
  PrintHeader(columns);
  for (const Aim& aim : kAims) {
    PrintAim(aim, "the best rival", [&](std::size_t size) {
      return BestRatioOf({aim.task, aim.kind, size, kOurs});
    });
    if (std::string_view(aim.task) == "walk") continue;
    PrintAim(aim, "pugixml by itself", [&](std::size_t size) {
      return RatioOf({aim.task, aim.kind, size, "pugixml"});
    });
  }
  for (const char* const kind : {"policy", "catalogue"}) {
    const Aim aim = {"read from a string", kind, {1.3, 1.3, 1.3, 1.3}};
    PrintAim(aim, "the file, at most", [&](std::size_t size) {
      return RatioOf({"read", kind, size, "tolva-string"});
    });
  }
}

void Report::Print() const {
  PrintTask("walk", {"tolva-file", "copy", "pugixml", "rapidxml", "expat", "libxml2"});
  PrintTask("read", {"pugixml", "pugixml-tuned", "rapidxml", "expat", "data-binding",
                     "tolva-new-reader", "tolva-same-root", "tolva-string", "tolva-load"});
  PrintTask("write", {"pugixml-saving", "pugixml", "libxml2", "tolva-kept-writer", "tolva-save"});
  PrintAims();
}

bool Report::Save(const std::filesystem::path& path) const {
  std::ofstream file(path);
  for (const auto& [key, seconds] : seconds_) {
    file << key.task << '\t' << key.kind << '\t' << key.size << '\t' << key.contender << '\t'
         << seconds << '\n';
  }
  return static_cast<bool>(file.flush());
}

}  // namespace tolva::bench
