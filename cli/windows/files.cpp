#include "cli/files.h"

#include "counted_stream.h"

namespace tolva::cli {
namespace {

HRESULT LastResult() { return HRESULT_FROM_WIN32(GetLastError()); }

class HandleStream final : public CountedStream {
 public:
  HandleStream(HANDLE file, bool is_owned) : file_(file), is_owned_(is_owned) {}
  ~HandleStream() override {
    if (is_owned_) CloseHandle(file_);
  }

  HRESULT Read(void* buffer, ULONG size, ULONG* count) noexcept override {
    *count = 0;
    while (*count < size) {
      DWORD read_now = 0;
      if (ReadFile(file_, static_cast<char*>(buffer) + *count, size - *count, &read_now, nullptr) ==
          0) {
        if (GetLastError() == ERROR_BROKEN_PIPE) break;  // the end of a pipe
        return LastResult();
      }
      if (read_now == 0) break;
      *count += read_now;
    }
    return *count == size ? S_OK : S_FALSE;
  }

  HRESULT Write(const void* /*buffer*/, ULONG /*size*/, ULONG* /*written*/) noexcept override {
    return E_NOTIMPL;
  }

 private:
  const HANDLE file_;
  const bool is_owned_;
};

}  // namespace

HRESULT OpenFile(const std::filesystem::path& path, ComPtr<ISequentialStream>& stream) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, kShared, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
  if (file == INVALID_HANDLE_VALUE) return LastResult();
  stream.Attach(new HandleStream(file, true));
  return S_OK;
}

HRESULT OpenStandardInput(ComPtr<ISequentialStream>& stream) {
  const HANDLE file = GetStdHandle(STD_INPUT_HANDLE);
  if (file == nullptr || file == INVALID_HANDLE_VALUE)
    return HRESULT_FROM_WIN32(ERROR_INVALID_HANDLE);
  stream.Attach(new HandleStream(file, false));
  return S_OK;
}

HRESULT ResultOf(const std::error_code& error) {
  return HRESULT_FROM_WIN32(static_cast<DWORD>(error.value()));
}

}  // namespace tolva::cli
