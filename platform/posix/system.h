// The Windows interfaces that the library calls, for other systems. Names, signatures and results
// are those of the Windows SDK, limited to what the library uses. Flags that have no counterpart
// are accepted and have no effect.
#pragma once

#include <cstdint>

#include <tolva/types.h>

struct IMalloc;

namespace tolva::platform {

// ---- types -------------------------------------------------------------------------------------

using BOOL = int;
using BYTE = unsigned char;
using UINT = std::uint32_t;
using ULONG = std::uint32_t;
using HRESULT = std::int32_t;

inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;

// ---- results -----------------------------------------------------------------------------------

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;
inline constexpr auto E_NOTIMPL = static_cast<HRESULT>(0x80004001);
inline constexpr auto E_NOINTERFACE = static_cast<HRESULT>(0x80004002);
inline constexpr auto E_FAIL = static_cast<HRESULT>(0x80004005);
inline constexpr auto E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFF);
inline constexpr auto E_INVALIDARG = static_cast<HRESULT>(0x80070057);
inline constexpr auto E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000E);

constexpr bool SUCCEEDED(HRESULT result) { return result >= 0; }
constexpr bool FAILED(HRESULT result) { return result < 0; }

inline constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
inline constexpr DWORD ERROR_PATH_NOT_FOUND = 3;
inline constexpr DWORD ERROR_TOO_MANY_OPEN_FILES = 4;
inline constexpr DWORD ERROR_ACCESS_DENIED = 5;
inline constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
inline constexpr DWORD ERROR_GEN_FAILURE = 31;
inline constexpr DWORD ERROR_DISK_FULL = 112;
inline constexpr DWORD ERROR_FILENAME_EXCED_RANGE = 206;
inline constexpr DWORD ERROR_IO_DEVICE = 1117;

constexpr HRESULT HRESULT_FROM_WIN32(DWORD error) {
  return static_cast<HRESULT>(0x80070000U | (error & 0xFFFFU));
}

/// The last-error value of the calling thread. It is not `errno`, which any call of the C library
/// may change.
DWORD GetLastError() noexcept;
void SetLastError(DWORD error) noexcept;

// ---- streams -----------------------------------------------------------------------------------

/// A sequence of bytes. It is reference-counted: the last Release destroys it.
class ISequentialStream {
 public:
  ISequentialStream() = default;
  ISequentialStream(const ISequentialStream&) = delete;
  ISequentialStream& operator=(const ISequentialStream&) = delete;

  virtual ULONG AddRef() noexcept = 0;
  virtual ULONG Release() noexcept = 0;

  /// Reads up to `size` bytes and sets `*read` to their number. It is less than `size` only at the
  /// end and after a failure.
  virtual HRESULT Read(void* buffer, ULONG size, ULONG* read) noexcept = 0;

  /// Writes `size` bytes and sets `*written` to the number of those that have been taken.
  virtual HRESULT Write(const void* buffer, ULONG size, ULONG* written) noexcept = 0;

 protected:
  virtual ~ISequentialStream() = default;
};

inline constexpr DWORD STGC_DEFAULT = 0;

/// The library does not use seeking and the rest of the Windows interface.
class IStream : public ISequentialStream {
 public:
  /// Stores everything that has been written. Unlike on Windows, nothing can be written afterwards.
  virtual HRESULT Commit(DWORD flags) noexcept = 0;
};

inline constexpr DWORD STGM_WRITE = 1;
inline constexpr DWORD STGM_CREATE = 0x1000;

/// Creates or truncates a file and opens it for writing, whatever `mode` is. Anything that is
/// neither a regular file nor a character device fails with ERROR_ACCESS_DENIED.
HRESULT SHCreateStreamOnFileW(const wchar_t* path, DWORD mode, IStream** stream) noexcept;

}  // namespace tolva::platform
