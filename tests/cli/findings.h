// What `check` finds in a document in memory.
#pragma once

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/check_walk.h"
#include "support/streams.h"

namespace tolva::test {

using Findings = std::vector<cli::Finding>;

class Collector final : public cli::FindingSink {
 public:
  bool Count(cli::Code /*code*/) override { return true; }
  void Add(cli::Finding finding) override { findings.push_back(std::move(finding)); }

  Findings findings;
};

/// The document comes in blocks.
inline Findings Check(std::string_view document, std::size_t block = 1 << 16) {
  TextStream stream(document, block);
  Collector collector;
  cli::WalkDocument(stream, {}, collector);
  return std::move(collector.findings);
}

inline bool Has(const Findings& findings, cli::Code code) {
  return std::any_of(findings.begin(), findings.end(),
                     [code](const auto& one) { return one.code == code; });
}

inline bool HasError(const Findings& findings) {
  return std::any_of(findings.begin(), findings.end(),
                     [](const auto& one) { return cli::InfoOf(one.code).is_error; });
}

}  // namespace tolva::test
