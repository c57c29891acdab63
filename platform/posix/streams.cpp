#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

#include "platform/open_to_read.h"
#include "platform/posix/file.h"
#include "platform/ref_counted.h"

namespace tolva::platform {
namespace {

HRESULT ResultOfErrno() { return HRESULT_FROM_WIN32(posix::ErrorOf(errno)); }

class FileStream final : public RefCounted<IStream> {
 public:
  explicit FileStream(int file) : file_(file) {}
  ~FileStream() override { FileStream::Commit(STGC_DEFAULT); }

  HRESULT Read(void* buffer, ULONG size, ULONG* read_count) noexcept override {
    *read_count = 0;
    while (*read_count < size) {
      const ssize_t count =
          read(file_, static_cast<char*>(buffer) + *read_count, size - *read_count);
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return ResultOfErrno();
      if (count == 0) break;
      *read_count += static_cast<ULONG>(count);
    }
    return *read_count == size ? S_OK : S_FALSE;
  }

  HRESULT Write(const void* buffer, ULONG size, ULONG* written) noexcept override {
    *written = 0;
    while (*written < size) {
      const ssize_t count =
          write(file_, static_cast<const char*>(buffer) + *written, size - *written);
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return ResultOfErrno();
      if (count == 0) return HRESULT_FROM_WIN32(ERROR_DISK_FULL);
      *written += static_cast<ULONG>(count);
    }
    return S_OK;
  }

  /// Closes the file. Some file systems report only then that they have not stored it.
  HRESULT Commit(DWORD /*flags*/) noexcept override {
    // Linux releases the descriptor even if `close` is interrupted.
    const bool failed = file_ >= 0 && close(file_) != 0 && errno != EINTR;
    if (failed) committed_ = ResultOfErrno();
    file_ = -1;
    return committed_;
  }

 private:
  int file_;                  ///< -1 after it has been closed
  HRESULT committed_ = S_OK;  ///< the result of closing it
};

class MemoryStream final : public RefCounted<IStream> {
 public:
  MemoryStream(std::unique_ptr<BYTE[]> bytes, UINT size) : bytes_(std::move(bytes)), size_(size) {}

  HRESULT Read(void* buffer, ULONG size, ULONG* read_count) noexcept override {
    const ULONG count = std::min(size, size_ - position_);
    if (count != 0) std::memcpy(buffer, bytes_.get() + position_, count);
    position_ += count;
    *read_count = count;
    return count == size ? S_OK : S_FALSE;
  }

  HRESULT Write(const void* /*buffer*/, ULONG /*size*/, ULONG* /*written*/) noexcept override {
    return E_NOTIMPL;
  }

  HRESULT Commit(DWORD /*flags*/) noexcept override { return S_OK; }

 private:
  const std::unique_ptr<BYTE[]> bytes_;
  const UINT size_;
  UINT position_ = 0;
};

/// Makes a stream of an open file, or closes it.
HRESULT MakeStream(int file, IStream** stream) {
  *stream = new (std::nothrow) FileStream(file);
  if (*stream != nullptr) return S_OK;
  close(file);
  return E_OUTOFMEMORY;
}

}  // namespace

bool OpenToRead(const wchar_t* path, IStream** stream) noexcept {
  *stream = nullptr;
  struct stat about {};
  DWORD error = 0;
  const int file = posix::Open(path, O_RDONLY, &about, &error);
  if (file < 0) {
    SetLastError(error);
    return false;
  }
  // Pipes and devices have no size.
  if (static_cast<DWORD>(about.st_size) == 0) {
    close(file);
    return false;
  }
  const HRESULT result = MakeStream(file, stream);
  if (FAILED(result)) SetLastError(static_cast<DWORD>(result));
  return SUCCEEDED(result);
}

HRESULT SHCreateStreamOnFileW(const wchar_t* path, DWORD /*mode*/, IStream** stream) noexcept {
  *stream = nullptr;
  struct stat about {};
  DWORD error = 0;
  const int file = posix::Open(path, O_WRONLY | O_CREAT | O_TRUNC, &about, &error);
  if (file < 0) return HRESULT_FROM_WIN32(error);
  // Devices such as /dev/null can be written, but not pipes: the process that reads from a pipe may
  // end.
  if (!S_ISREG(about.st_mode) && !S_ISCHR(about.st_mode)) {
    close(file);
    return HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED);
  }
  if (S_ISCHR(about.st_mode)) fcntl(file, F_SETFL, fcntl(file, F_GETFL) & ~O_NONBLOCK);
  return MakeStream(file, stream);
}

IStream* SHCreateMemStream(const BYTE* bytes, UINT size) noexcept {
  std::unique_ptr<BYTE[]> copy(new (std::nothrow) BYTE[size]);
  if (copy == nullptr) return nullptr;
  std::memcpy(copy.get(), bytes, size);
  return new (std::nothrow) MemoryStream(std::move(copy), size);
}

}  // namespace tolva::platform
