#include "cli/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "cli/interrupt.h"
#include "counted_stream.h"
#include "platform/posix/file.h"

namespace tolva::cli {
namespace {

HRESULT ResultOf(int error) {
  constexpr DWORD kTooManyLinks = 1921;
  constexpr DWORD kCancelled = 1223;
  if (error == EINTR) return HRESULT_FROM_WIN32(kCancelled);
  if (error == ENOENT) return HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
  return HRESULT_FROM_WIN32(error == ELOOP ? kTooManyLinks : posix::ErrorOf(error));
}

class DescriptorStream final : public CountedStream {
 public:
  explicit DescriptorStream(int file) : file_(file) {}
  ~DescriptorStream() override {
    if (file_ != STDIN_FILENO) close(file_);
  }

  HRESULT Read(void* buffer, ULONG size, ULONG* count) noexcept override {
    *count = 0;
    while (*count < size) {
      const ssize_t read_now = read(file_, static_cast<char*>(buffer) + *count, size - *count);
      if (read_now < 0 && errno == EINTR && !IsInterrupted()) continue;
      if (read_now < 0) return ResultOf(errno);
      if (read_now == 0) break;
      *count += static_cast<ULONG>(read_now);
    }
    return *count == size ? S_OK : S_FALSE;
  }

  HRESULT Write(const void* /*buffer*/, ULONG /*size*/, ULONG* /*written*/) noexcept override {
    return E_NOTIMPL;
  }

 private:
  const int file_;
};

}  // namespace

HRESULT OpenFile(const std::filesystem::path& path, ComPtr<ISequentialStream>& stream) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
  if (file < 0) return ResultOf(errno);
  stream.Attach(new DescriptorStream(file));
  return S_OK;
}

HRESULT OpenStandardInput(ComPtr<ISequentialStream>& stream) {
  stream.Attach(new DescriptorStream(STDIN_FILENO));
  return S_OK;
}

HRESULT ResultOf(const std::error_code& error) { return ResultOf(error.value()); }

}  // namespace tolva::cli
