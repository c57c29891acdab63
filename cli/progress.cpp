#include "cli/progress.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "cli/interrupt.h"
#include "cli/text.h"
#include "counted_stream.h"

namespace tolva::cli {
namespace {

constexpr DWORD kCancelled = 1223;

class WatchedStream final : public CountedStream {
 public:
  WatchedStream(ISequentialStream& stream, Progress& progress) : progress_(progress) {
    stream_.Share(&stream);
  }

  HRESULT Read(void* buffer, ULONG size, ULONG* count) noexcept override {
    *count = 0;
    if (IsInterrupted()) return HRESULT_FROM_WIN32(kCancelled);
    const HRESULT result = stream_->Read(buffer, size, count);
    progress_.Add({.bytes = *count});
    return result;
  }

  HRESULT Write(const void* /*buffer*/, ULONG /*size*/, ULONG* /*written*/) noexcept override {
    return E_NOTIMPL;
  }

 private:
  ComPtr<ISequentialStream> stream_;
  Progress& progress_;
};

}  // namespace

Progress::Progress(Stream& err, Amount total, Clock::duration delay)
    : err_(err), total_(total), is_wanted_(err.IsTerminal()), next_(Clock::now() + delay) {}

void Progress::Add(Amount done) noexcept try {
  const std::lock_guard lock(mutex_);
  done_.bytes += done.bytes;
  done_.files += done.files;
  const Clock::time_point now = Clock::now();
  if (!is_wanted_ || now < next_) return;
  next_ = now + kPause;
  is_shown_ = true;
  err_.Write("\r\x1B[K" + Line());
  err_.Flush();
} catch (const std::exception&) {
  is_wanted_ = false;  // whatever goes wrong here is no reason to stop
}

void Progress::StepAside(const std::function<void()>& write) {
  const std::lock_guard lock(mutex_);
  Remove();
  write();
}

void Progress::Remove() {
  if (!std::exchange(is_shown_, false)) return;
  err_.Write("\r\x1B[K");
  err_.Flush();
}

/// Short: a line that is wrapped cannot be replaced.
std::string Progress::Line() const {
  constexpr std::uint64_t kMegabyte = 1'000'000;
  std::string line = std::to_string(done_.bytes / kMegabyte) + " MB";
  if (total_.bytes != 0) {
    line = std::to_string(std::min<std::uint64_t>(100 * done_.bytes / total_.bytes, 100)) + " %";
  }
  if (total_.files > 1) {
    line += ", " + std::to_string(done_.files) + " of " + Count(total_.files, "file");
  }
  return line;
}

ComPtr<ISequentialStream> Watch(ISequentialStream& stream, Progress& progress) {
  ComPtr<ISequentialStream> watched;
  watched.Attach(new WatchedStream(stream, progress));
  return watched;
}

}  // namespace tolva::cli
