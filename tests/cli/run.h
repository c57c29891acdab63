// The tool run within the test.
#pragma once

#include <string>
#include <vector>

#include "cli/session.h"

namespace tolva::test {

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

/// Keeps what is written.
class TextOutput : public cli::Stream {
 public:
  explicit TextOutput(std::size_t width = kCommonWidth) : width_(width) {}

  void Write(std::string_view text) override { text_ += text; }
  std::size_t Width() const override { return width_; }
  const std::string& text() const { return text_; }
  void Clear() { text_.clear(); }

 private:
  const std::size_t width_;
  std::string text_;
};

class TerminalOutput final : public TextOutput {
 public:
  bool IsTerminal() const override { return true; }
};

inline Outcome RunTool(const std::vector<std::string>& arguments, std::size_t width = 80) {
  TextOutput out(width);
  TextOutput err(width);
  const int status = cli::Run(arguments, out, err);
  return {status, out.text(), err.text()};
}

/// What the Trouble that a call throws says, or "none".
template <class Call>
std::string TroubleOf(const Call& call) {
  try {
    call();
  } catch (const cli::Trouble& trouble) {
    return trouble.what();
  }
  return "none";
}

}  // namespace tolva::test
