// Where the tool's output goes.
#pragma once

#include <cstddef>
#include <exception>
#include <string_view>

namespace tolva::cli {

/// Whoever read the output has closed it. The tool then ends without a word.
class ClosedPipe : public std::exception {
 public:
  const char* what() const noexcept override { return "the output was closed"; }
};

/// Output in UTF-8.
class Stream {
 public:
  Stream() = default;
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  virtual ~Stream() = default;

  /// Throws ClosedPipe, or Trouble if the text cannot be written.
  virtual void Write(std::string_view text) = 0;

  /// Writes what was kept back.
  virtual void Flush() {}

  virtual bool IsTerminal() const { return false; }

  /// The width of the terminal; of other output, what a terminal commonly has.
  virtual std::size_t Width() const { return kCommonWidth; }

 protected:
  static constexpr std::size_t kCommonWidth = 80;
};

}  // namespace tolva::cli
