#include "platform/open_to_read.h"

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

}  // namespace tolva::platform
