#include "platform/posix/file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cwchar>
#include <new>
#include <string>

#include "platform/utf.h"

namespace tolva::platform::posix {
namespace {

bool IsDirectory(const std::string& path) {
  struct stat about {};
  return stat(path.c_str(), &about) == 0 && S_ISDIR(about.st_mode);
}

/// POSIX has ENOENT for a missing file and for a missing folder. Windows has a code for each.
DWORD ErrorOfMissing(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (path.empty()) return ERROR_PATH_NOT_FOUND;
  if (slash == std::string::npos || slash == 0) return ERROR_FILE_NOT_FOUND;
  return IsDirectory(path.substr(0, slash)) ? ERROR_FILE_NOT_FOUND : ERROR_PATH_NOT_FOUND;
}

}  // namespace

DWORD ErrorOf(int error_number) noexcept {
  switch (error_number) {
    case ENOTDIR:
    case ELOOP:
      return ERROR_PATH_NOT_FOUND;
    case EMFILE:
    case ENFILE:
      return ERROR_TOO_MANY_OPEN_FILES;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
      return ERROR_ACCESS_DENIED;
    case ENOMEM:
      return ERROR_NOT_ENOUGH_MEMORY;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ERROR_DISK_FULL;
    case ENAMETOOLONG:
      return ERROR_FILENAME_EXCED_RANGE;
    case EIO:
      return ERROR_IO_DEVICE;
    default:
      return ERROR_GEN_FAILURE;
  }
}

int Open(const wchar_t* path, int flags, struct stat* about, DWORD* error) noexcept try {
  std::string name;
  AppendUtf8(path, name);
  // O_NONBLOCK: the opening of a named pipe must not wait for the process at its other end.
  const int file = open(name.c_str(), flags | O_CLOEXEC | O_NONBLOCK, 0666);
  if (file < 0) {
    *error = errno == ENOENT ? ErrorOfMissing(name) : ErrorOf(errno);
    return -1;
  }
  if (fstat(file, about) != 0 || S_ISDIR(about->st_mode)) {
    close(file);
    *error = ERROR_ACCESS_DENIED;
    return -1;
  }
  return file;
} catch (const std::bad_alloc&) {
  *error = ERROR_NOT_ENOUGH_MEMORY;
  return -1;
}

}  // namespace tolva::platform::posix
