// Collects the diagnostic texts of one call.
#pragma once

#include <string>
#include <vector>

namespace tolva::support::internal {

/// Collects the diagnostics of its thread while it lives. Of several that live, the last made one
/// gets them.
class Collector {
 public:
  explicit Collector(std::vector<std::string>& texts);
  Collector(const Collector&) = delete;
  Collector& operator=(const Collector&) = delete;
  ~Collector();

  /// Adds a text.
  void Add(const wchar_t* text) noexcept;

  /// Throws std::bad_alloc when a text was left out for want of memory.
  void Check() const;

 private:
  std::vector<std::string>& texts_;
  Collector* const outer_;
  bool incomplete_ = false;
};

}  // namespace tolva::support::internal
