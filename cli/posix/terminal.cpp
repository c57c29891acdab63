#include "cli/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "cli/files.h"
#include "cli/session.h"

namespace tolva::cli {
namespace {

class Descriptor final : public Stream {
 public:
  explicit Descriptor(int descriptor) : descriptor_(descriptor) {}

  void Write(std::string_view text) override {
    buffer_ += text;
    if (buffer_.size() >= kBlock) Flush();
  }

  void Flush() override {
    std::string_view rest = buffer_;
    while (!rest.empty()) {
      const ssize_t written = write(descriptor_, rest.data(), rest.size());
      if (written >= 0) {
        rest.remove_prefix(static_cast<std::size_t>(written));
        continue;
      }
      if (errno == EINTR) continue;
      const std::error_code error(errno, std::generic_category());
      buffer_.clear();
      if (error == std::errc::broken_pipe) throw ClosedPipe();
      throw Trouble("the output cannot be written: " + ReasonOf(ResultOf(error)));
    }
    buffer_.clear();
  }

  bool IsTerminal() const override { return isatty(descriptor_) == 1; }

  std::size_t Width() const override {
    winsize size = {};
    const bool is_known = ioctl(descriptor_, TIOCGWINSZ, &size) == 0 && size.ws_col != 0;
    return is_known ? size.ws_col : kCommonWidth;
  }

 private:
  static constexpr std::size_t kBlock = 1 << 16;

  const int descriptor_;
  std::string buffer_;
};

}  // namespace

std::vector<std::string> Arguments(int argc, char** argv) {
  return argc < 1 ? std::vector<std::string>() : std::vector<std::string>(argv + 1, argv + argc);
}

std::unique_ptr<Stream> StandardOutput() { return std::make_unique<Descriptor>(STDOUT_FILENO); }

std::unique_ptr<Stream> StandardError() { return std::make_unique<Descriptor>(STDERR_FILENO); }

}  // namespace tolva::cli
