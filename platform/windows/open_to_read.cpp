#include "platform/open_to_read.h"

#include <cwchar>
#include <limits>
#include <new>
#include <vector>

namespace tolva::platform {

bool OpenToRead(const wchar_t* path, IStream** stream) noexcept {
  *stream = nullptr;
  const HANDLE file = CreateFileW(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OVERLAPPED, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const DWORD size_low = GetFileSize(file, nullptr);
  CloseHandle(file);
  if (size_low == 0) return false;

  const HRESULT result = SHCreateStreamOnFileW(path, STGM_READ, stream);
  if (FAILED(result)) SetLastError(static_cast<DWORD>(result));
  return SUCCEEDED(result);
}

HRESULT OpenText(const wchar_t* text, IStream** stream) noexcept try {
  *stream = nullptr;
  const std::size_t length = std::wcslen(text);
  // Of nothing, the conversion would change the last error; of more than this, it takes nothing.
  constexpr auto kMost = static_cast<std::size_t>(std::numeric_limits<int>::max());
  if (length == 0 || length > kMost) return E_INVALIDARG;
  const auto wide_size = static_cast<int>(length);
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, wide_size, nullptr, 0, nullptr, nullptr);
  if (size == 0) return E_INVALIDARG;

  std::vector<BYTE> bytes(static_cast<std::size_t>(size) + 1);
  char* const buffer = reinterpret_cast<char*>(bytes.data());
  const int converted =
      WideCharToMultiByte(CP_UTF8, 0, text, wide_size, buffer, size, nullptr, nullptr);
  if (converted != 0) *stream = SHCreateMemStream(bytes.data(), static_cast<UINT>(bytes.size()));
  return *stream != nullptr ? S_OK : E_OUTOFMEMORY;
} catch (const std::bad_alloc&) {
  return E_OUTOFMEMORY;
}

}  // namespace tolva::platform
