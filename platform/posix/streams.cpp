#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cwchar>
#include <limits>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "platform/com_ptr.h"
#include "platform/open_to_read.h"
#include "platform/posix/file.h"
#include "platform/ref_counted.h"
#include "platform/utf.h"

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

/// Text in UTF-8, in pieces. A piece is released once it has been read.
class TextStream final : public RefCounted<IStream> {
 public:
  void Add(std::string_view text) {
    pieces_.emplace_back(text);
    size_ += text.size();
  }

  std::size_t size() const { return size_; }

  HRESULT Read(void* buffer, ULONG size, ULONG* read_count) noexcept override {
    char* out = static_cast<char*>(buffer);
    const char* const end = out + size;
    for (; out != end && piece_ != pieces_.size(); offset_ = 0) {
      std::string& piece = pieces_[piece_];
      const std::size_t count = piece.copy(out, static_cast<std::size_t>(end - out), offset_);
      out += count;
      offset_ += count;
      if (offset_ != piece.size()) break;
      std::string().swap(piece);
      ++piece_;
    }
    *read_count = size - static_cast<ULONG>(end - out);
    return out == end ? S_OK : S_FALSE;
  }

  HRESULT Write(const void* /*buffer*/, ULONG /*size*/, ULONG* /*written*/) noexcept override {
    return E_NOTIMPL;
  }

  HRESULT Commit(DWORD /*flags*/) noexcept override { return S_OK; }

 private:
  std::vector<std::string> pieces_;
  std::size_t size_ = 0;    ///< of all pieces together
  std::size_t piece_ = 0;   ///< the one to be read next
  std::size_t offset_ = 0;  ///< in it
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

HRESULT OpenText(const wchar_t* text, IStream** stream) noexcept try {
  constexpr std::size_t kPiece = 4096;
  constexpr auto kMost = static_cast<std::size_t>(std::numeric_limits<int>::max());
  *stream = nullptr;
  std::size_t left = std::wcslen(text);
  if (left == 0) return E_INVALIDARG;
  ComPtr<TextStream> made;
  made.Attach(new TextStream);
  std::string piece;
  while (left != 0) {
    std::size_t length = std::min(left, kPiece);
    // A surrogate pair stays whole.
    if (length != left && IsHighSurrogate(static_cast<char32_t>(text[length - 1]))) --length;
    piece.clear();
    AppendUtf8({text, length}, piece);
    made->Add(piece);
    if (made->size() > kMost) return E_INVALIDARG;
    text += length;
    left -= length;
  }
  constexpr char kEnd = '\0';
  made->Add({&kEnd, 1});
  made->AddRef();
  *stream = made.Get();
  return S_OK;
} catch (const std::bad_alloc&) {
  return E_OUTOFMEMORY;
}

}  // namespace tolva::platform
