#include "support/file.h"

#include <windows.h>

#include <string>

#include <tolva/support/text.h>

#include "support/unicode.h"

namespace tolva::support {
namespace internal {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A handle that is closed with the object.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (IsOpen()) CloseHandle(handle_);
  }

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }

 private:
  const HANDLE handle_;
};

HANDLE Open(const std::filesystem::path& path, DWORD access, DWORD disposition = OPEN_EXISTING) {
  return CreateFileW(path.c_str(), access, kShareAll, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                     nullptr);
}

HANDLE HandleOf(std::intptr_t value) { return reinterpret_cast<HANDLE>(value); }

/// The path of what a link leads to.
DWORD FollowLink(std::filesystem::path& path) {
  const Handle file(Open(path, 0));
  if (!file.IsOpen()) return GetLastError();
  std::wstring name(32768, L'\0');  // the longest path there is
  const auto capacity = static_cast<DWORD>(name.size());
  const DWORD size = GetFinalPathNameByHandleW(file.get(), name.data(), capacity, 0);
  if (size == 0 || size >= capacity) return size == 0 ? GetLastError() : ERROR_FILENAME_EXCED_RANGE;
  name.resize(size);
  path = name;
  return 0;
}

}  // namespace

bool IsUsable(const std::filesystem::path& path) {
  return path.native().find(L'\0') == std::wstring::npos;
}

// ---- files -------------------------------------------------------------------------------------

File::~File() { Close(); }

DWORD File::OpenToRead(const std::filesystem::path& path) {
  if (!IsUsable(path)) return kInvalidName;
  const HANDLE file = Open(path, GENERIC_READ);
  if (file == INVALID_HANDLE_VALUE) return GetLastError();
  handle_ = reinterpret_cast<std::intptr_t>(file);
  return GetFileType(file) == FILE_TYPE_DISK ? 0 : kAccessDenied;
}

DWORD File::Create(const std::filesystem::path& path, Kind /*kind*/) {
  const HANDLE file = Open(path, GENERIC_WRITE, CREATE_NEW);
  if (file == INVALID_HANDLE_VALUE) return GetLastError();
  handle_ = reinterpret_cast<std::intptr_t>(file);
  return 0;
}

DWORD File::Read(char* buffer, std::size_t size, std::size_t* count) const {
  DWORD got = 0;
  const BOOL ok = ReadFile(HandleOf(handle_), buffer, static_cast<DWORD>(size), &got, nullptr);
  *count = got;
  return ok != FALSE ? 0 : GetLastError();
}

DWORD File::Write(std::string_view bytes) const {
  constexpr std::size_t kAtOnce = std::size_t{1} << 30;  // more than a DWORD can count is possible
  while (!bytes.empty()) {
    const std::string_view part = bytes.substr(0, kAtOnce);
    DWORD count = 0;
    const BOOL ok =
        WriteFile(HandleOf(handle_), part.data(), static_cast<DWORD>(part.size()), &count, nullptr);
    if (ok == FALSE) return GetLastError();
    bytes.remove_prefix(count);
  }
  return 0;
}

DWORD File::Close() {
  if (handle_ == -1) return 0;
  const BOOL ok = CloseHandle(HandleOf(handle_));
  handle_ = -1;
  return ok != FALSE ? 0 : GetLastError();
}

// ---- replacing ---------------------------------------------------------------------------------

Refusal FindTarget(const std::filesystem::path& path, bool break_hard_links, Target& target) {
  target.file = path;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  target.exists = attributes != INVALID_FILE_ATTRIBUTES;
  if (!target.exists) {
    const DWORD error = GetLastError();
    if (error != ERROR_FILE_NOT_FOUND) return {error};
    return {path.has_filename() ? 0 : kInvalidName};
  }
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return {kAccessDenied, kIsDirectory};
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    const DWORD error = FollowLink(target.file);
    if (error != 0) return {error};
  }
  const Handle file(Open(target.file, GENERIC_WRITE));
  if (!file.IsOpen()) {
    const DWORD error = GetLastError();
    return {error, error == kAccessDenied ? kIsReadOnly : nullptr};
  }
  BY_HANDLE_FILE_INFORMATION about = {};
  if (GetFileType(file.get()) != FILE_TYPE_DISK) return {kAccessDenied, kIsSpecial};
  if (GetFileInformationByHandle(file.get(), &about) == FALSE) return {GetLastError()};
  if (about.nNumberOfLinks > 1 && !break_hard_links) return {kTooManyHardLinks, kHasHardLinks};
  return {};
}

DWORD Finish(const Target& /*target*/, const std::filesystem::path& new_file,
             bool* /*is_about_target*/) {
  const Handle file(Open(new_file, GENERIC_WRITE));
  if (!file.IsOpen() || FlushFileBuffers(file.get()) == FALSE) return GetLastError();
  return 0;
}

DWORD Replace(const Target& target, const std::filesystem::path& new_file,
              const std::filesystem::path& spare, bool* replaced) {
  if (!target.exists) {
    *replaced = MoveFileExW(new_file.c_str(), target.file.c_str(), MOVEFILE_WRITE_THROUGH) != FALSE;
    return *replaced ? 0 : GetLastError();
  }
  // Without a name for the old file, a failure half-way would lose it.
  *replaced = ReplaceFileW(target.file.c_str(), new_file.c_str(), spare.c_str(), 0, nullptr,
                           nullptr) != FALSE;
  if (*replaced) {
    Remove(spare);
    return 0;
  }
  const DWORD error = GetLastError();
  if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2) {
    MoveFileExW(spare.c_str(), target.file.c_str(), MOVEFILE_WRITE_THROUGH);
  }
  return error;
}

void Remove(const std::filesystem::path& file) { DeleteFileW(file.c_str()); }

}  // namespace internal

// ---- paths -------------------------------------------------------------------------------------

std::wstring PathToWide(const std::filesystem::path& path) {
  return internal::IsUsable(path) ? path.native() : std::wstring();
}

std::filesystem::path PathFromWide(std::wstring_view path) { return std::wstring(path); }

std::string PathToUtf8(const std::filesystem::path& path) { return ToUtf8(path.native()); }

std::filesystem::path PathFromUtf8(std::string_view path) {
  std::wstring wide;
  return internal::AppendWide(path, wide) ? wide : std::wstring();
}

}  // namespace tolva::support
