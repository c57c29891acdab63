#include "cli/terminal.h"

#include <windows.h>
// (windows.h comes first)
#include <shellapi.h>

#include <algorithm>
#include <string>

#include "cli/files.h"
#include "cli/session.h"
#include "cli/text.h"

namespace tolva::cli {
namespace {

/// Text goes to a console as UTF-16 and elsewhere as it is.
class Handle final : public Stream {
 public:
  explicit Handle(DWORD which) : handle_(GetStdHandle(which)) {
    DWORD mode = 0;
    is_console_ = GetConsoleMode(handle_, &mode) != 0;
    // Colours; a console that knows none refuses.
    if (is_console_) SetConsoleMode(handle_, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }

  void Write(std::string_view text) override {
    buffer_ += text;
    if (buffer_.size() >= kBlock) Flush();
  }

  void Flush() override {
    std::string text;
    text.swap(buffer_);
    if (is_console_) {
      WriteToConsole(text);
      return;
    }
    std::string_view rest = text;
    while (!rest.empty()) {
      DWORD written = 0;
      Check(WriteFile(handle_, rest.data(), static_cast<DWORD>(rest.size()), &written, nullptr));
      rest.remove_prefix(written);
    }
  }

  bool IsTerminal() const override { return is_console_; }

  std::size_t Width() const override {
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (!is_console_ || GetConsoleScreenBufferInfo(handle_, &info) == 0) return kCommonWidth;
    return static_cast<std::size_t>(std::max(info.srWindow.Right - info.srWindow.Left + 1, 1));
  }

 private:
  static constexpr std::size_t kBlock = 1 << 16;
  static constexpr std::size_t kConsoleBlock = 1 << 13;  ///< older consoles refuse longer texts

  static void Check(BOOL succeeded) {
    if (succeeded != 0) return;
    const DWORD error = GetLastError();
    const bool is_closed =
        error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA || error == ERROR_PIPE_NOT_CONNECTED;
    if (is_closed) throw ClosedPipe();
    throw Trouble("the output cannot be written: " + ReasonOf(HRESULT_FROM_WIN32(error)));
  }

  void WriteToConsole(const std::string& text) const {
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                            static_cast<int>(wide.size()))));
    std::wstring_view rest = wide;
    while (!rest.empty()) {
      auto size = static_cast<DWORD>(std::min(rest.size(), kConsoleBlock));
      // A pair of surrogates stays whole.
      if (size != rest.size() && IS_HIGH_SURROGATE(rest[size - 1])) --size;
      DWORD written = 0;
      Check(WriteConsoleW(handle_, rest.data(), size, &written, nullptr));
      rest.remove_prefix(written);
    }
  }

  const HANDLE handle_;
  bool is_console_ = false;
  std::string buffer_;
};

}  // namespace

std::vector<std::string> Arguments(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(ToUtf8(wide[i]));
  LocalFree(wide);
  return arguments;
}

std::unique_ptr<Stream> StandardOutput() { return std::make_unique<Handle>(STD_OUTPUT_HANDLE); }

std::unique_ptr<Stream> StandardError() { return std::make_unique<Handle>(STD_ERROR_HANDLE); }

}  // namespace tolva::cli
