// How far long work has come, as a line on a terminal.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>

#include "cli/stream.h"
#include "platform/com_ptr.h"
#include "platform/system.h"

namespace tolva::cli {

using namespace platform;  // see platform.h

/// What there is to do, and how much of it has been done. May be used by several threads.
class Progress {
 public:
  using Clock = std::chrono::steady_clock;

  struct Amount {
    std::uint64_t bytes = 0;
    std::uint64_t files = 0;
  };

  /// Shows nothing if the stream is no terminal, or before the work has taken `delay`.
  Progress(Stream& err, Amount total, Clock::duration delay = std::chrono::seconds(1));
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Add(Amount done) noexcept;

  /// Calls a function that writes to the terminal, while the line is not there.
  void StepAside(const std::function<void()>& write);

 private:
  static constexpr auto kPause = std::chrono::milliseconds(100);

  std::string Line() const;
  void Remove();

  Stream& err_;
  const Amount total_;
  std::mutex mutex_;
  bool is_wanted_;
  Amount done_;
  Clock::time_point next_;  ///< when the line is to be shown again
  bool is_shown_ = false;
};

/// A stream that reads another, which fails after an interrupt. The progress gets what is read.
ComPtr<ISequentialStream> Watch(ISequentialStream& stream, Progress& progress);

}  // namespace tolva::cli
