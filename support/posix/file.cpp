#include "support/file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <tuple>

#include <tolva/support/text.h>

#include "support/unicode.h"

namespace tolva::support {
namespace internal {
namespace {

constexpr int kReadFlags = O_RDONLY | O_CLOEXEC | O_NOCTTY;

/// As many as the system follows itself.
constexpr int kMaxLinks = 40;

/// The Windows error code that says the same as `errno`.
DWORD ErrorOf(int error_number) {
  switch (error_number) {
    case ENOENT:
      return 2;
    case ENOTDIR:
      return kNoFolder;
    case EMFILE:
    case ENFILE:
      return 4;
    case EACCES:
    case EPERM:
    case EISDIR:
      return kAccessDenied;
    case ENOMEM:
      return kNotEnoughMemory;
    case EXDEV:
      return 17;
    case EROFS:
      return 19;
    case EBUSY:
    case ETXTBSY:
      return 170;
    case EEXIST:
      return kFileExists;
    case ENOSPC:
      return 112;
    case ENAMETOOLONG:
      return 206;
    case EFBIG:
      return 223;
    case EIO:
      return 1117;
    case EDQUOT:
      return 1295;
    case ELOOP:
      return 1921;
    default:
      return kGeneralFailure;
  }
}

DWORD LastError() { return ErrorOf(errno); }

/// Makes a call again as long as a signal interrupts it.
template <class Call>
auto Repeat(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// A descriptor that is closed with the object.
class Descriptor {
 public:
  explicit Descriptor(int file) : file_(file) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (file_ >= 0) close(file_);
  }

  int get() const { return file_; }

 private:
  const int file_;
};

/// The folder that a file is in.
std::filesystem::path FolderOf(const std::filesystem::path& file) {
  const std::filesystem::path folder = file.parent_path();
  return folder.empty() ? "." : folder;
}

/// Reads where a symbolic link leads.
DWORD ReadLink(const std::filesystem::path& link, std::filesystem::path& to) {
  std::string text(4096, '\0');  // PATH_MAX
  const ssize_t size = readlink(link.c_str(), text.data(), text.size());
  if (size < 0) return LastError();
  text.resize(static_cast<std::size_t>(size));
  to = FolderOf(link) / text;
  return 0;
}

constexpr const char* kAccessList = "system.posix_acl_access";

bool HasNoAttributes(int error_number) { return error_number == ENOTSUP || error_number == ENOSYS; }

DWORD CopyAttribute(const char* from, int to, const char* name) {
  const ssize_t size = getxattr(from, name, nullptr, 0);
  if (size < 0) return LastError();
  std::string value(static_cast<std::size_t>(size), '\0');
  const ssize_t count = getxattr(from, name, value.data(), value.size());
  if (count < 0) return LastError();
  const int result = fsetxattr(to, name, value.data(), static_cast<std::size_t>(count), 0);
  return result == 0 ? 0 : LastError();
}

/// The access list, and what the user has attached. Attributes of the system itself say where a
/// file belongs and what it holds; it sets them anew.
DWORD CopyAttributes(const char* from, int to) {
  // A new file may have an access list from its folder.
  if (fremovexattr(to, kAccessList) != 0 && errno != ENODATA && !HasNoAttributes(errno)) {
    return LastError();
  }
  const ssize_t size = listxattr(from, nullptr, 0);
  if (size < 0) return HasNoAttributes(errno) ? 0 : LastError();
  if (size == 0) return 0;
  std::string names(static_cast<std::size_t>(size), '\0');
  const ssize_t count = listxattr(from, names.data(), names.size());
  if (count < 0) return LastError();
  names.resize(static_cast<std::size_t>(count));
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const std::string_view name = names.c_str() + at;
    if (name != kAccessList && name.substr(0, 5) != "user.") continue;
    const DWORD error = CopyAttribute(from, to, name.data());
    if (error != 0) return error;
  }
  return 0;
}

/// Mode, owner, access list.
DWORD CopyProperties(const std::filesystem::path& from, int to) {
  struct stat wanted {};
  struct stat there {};
  if (stat(from.c_str(), &wanted) != 0 || fstat(to, &there) != 0) return LastError();
  const bool has_owner = wanted.st_uid == there.st_uid && wanted.st_gid == there.st_gid;
  // The mode comes after the owner, whose change takes a part of it away, and after the access
  // list, a part of which it is.
  if (!has_owner && fchown(to, wanted.st_uid, wanted.st_gid) != 0) return LastError();
  const DWORD error = CopyAttributes(from.c_str(), to);
  if (error != 0) return error;
  return fchmod(to, wanted.st_mode & 07777U) == 0 ? 0 : LastError();
}

}  // namespace

bool IsUsable(const std::filesystem::path& path) {
  return path.native().find('\0') == std::string::npos;
}

// ---- files -------------------------------------------------------------------------------------

File::~File() { Close(); }

DWORD File::OpenToRead(const std::filesystem::path& path) {
  if (!IsUsable(path)) return kInvalidName;
  const int file = Repeat([&] { return open(path.c_str(), kReadFlags | O_NONBLOCK); });
  if (file < 0) return LastError();
  handle_ = file;
  struct stat about {};
  if (fstat(file, &about) != 0) return LastError();
  return S_ISREG(about.st_mode) ? 0 : kAccessDenied;
}

DWORD File::Create(const std::filesystem::path& path, Kind kind) {
  const mode_t mode = kind == Kind::kPublic ? 0666 : 0600;
  const int file = Repeat([&] {
    return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
  });
  if (file < 0) return errno == ENOENT ? kNoFolder : LastError();
  handle_ = file;
  return 0;
}

DWORD File::Read(char* buffer, std::size_t size, std::size_t* count) const {
  const ssize_t result = Repeat([&] { return read(static_cast<int>(handle_), buffer, size); });
  *count = result < 0 ? 0 : static_cast<std::size_t>(result);
  return result < 0 ? LastError() : 0;
}

DWORD File::Write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t result =
        Repeat([&] { return write(static_cast<int>(handle_), bytes.data(), bytes.size()); });
    if (result < 0) return LastError();
    bytes.remove_prefix(static_cast<std::size_t>(result));
  }
  return 0;
}

DWORD File::Close() {
  if (handle_ < 0) return 0;
  const int result = close(static_cast<int>(handle_));
  handle_ = -1;  // even if `close` was interrupted
  return result == 0 || errno == EINTR ? 0 : LastError();
}

// ---- replacing ---------------------------------------------------------------------------------

Refusal FindTarget(const std::filesystem::path& path, bool break_hard_links, Target& target) {
  struct stat about {};
  target.exists = stat(path.c_str(), &about) == 0;
  if (!target.exists && errno != ENOENT) return {LastError()};

  target.file = path;
  for (int links = 0;; ++links) {
    if (lstat(target.file.c_str(), &about) != 0) {
      // Where there is something all the same, a link of the kernel's own under /proc leads to it.
      if (target.exists || errno != ENOENT) return {LastError()};
      return target.file.has_filename() ? Refusal{} : Refusal{kInvalidName};
    }
    if (!S_ISLNK(about.st_mode)) break;
    if (links == kMaxLinks) return {ErrorOf(ELOOP)};
    const DWORD error = ReadLink(target.file, target.file);
    if (error != 0) return {error};
  }

  if (S_ISDIR(about.st_mode)) return {kAccessDenied, kIsDirectory};
  if (!S_ISREG(about.st_mode)) return {kAccessDenied, kIsSpecial};
  if (about.st_nlink > 1 && !break_hard_links) return {kTooManyHardLinks, kHasHardLinks};
  if (faccessat(AT_FDCWD, target.file.c_str(), W_OK, AT_EACCESS) != 0) {
    return {LastError(), kIsReadOnly};
  }
  return {};
}

DWORD Finish(const Target& target, const std::filesystem::path& new_file, bool* is_about_target) {
  const Descriptor file(Repeat([&] { return open(new_file.c_str(), kReadFlags | O_NOFOLLOW); }));
  if (file.get() < 0) return LastError();
  if (target.exists) {
    const DWORD error = CopyProperties(target.file, file.get());
    *is_about_target = error != 0;
    if (error != 0) return error;
  }
  return Repeat([&] { return fsync(file.get()); }) == 0 ? 0 : LastError();
}

DWORD Replace(const Target& target, const std::filesystem::path& new_file,
              const std::filesystem::path& /*spare*/, bool* replaced) {
  *replaced = false;
  const Descriptor folder(
      Repeat([&] { return open(FolderOf(target.file).c_str(), kReadFlags | O_DIRECTORY); }));
  if (folder.get() < 0) return LastError();
  if (rename(new_file.c_str(), target.file.c_str()) != 0) return LastError();
  *replaced = true;
  if (Repeat([&] { return fsync(folder.get()); }) == 0) return 0;
  // Some file systems have no such thing as a folder to flush.
  return errno == EINVAL || errno == ENOTSUP ? 0 : LastError();
}

void Remove(const std::filesystem::path& file) { unlink(file.c_str()); }

}  // namespace internal

// ---- paths -------------------------------------------------------------------------------------

std::wstring PathToWide(const std::filesystem::path& path) {
  std::wstring wide;
  const bool has_form = internal::IsUsable(path) && internal::AppendWide(path.native(), wide);
  return has_form ? wide : std::wstring();
}

std::filesystem::path PathFromWide(std::wstring_view path) {
  std::string bytes;
  return internal::AppendUtf8(path, bytes) ? bytes : std::string();
}

std::string PathToUtf8(const std::filesystem::path& path) { return ToUtf8(ToWide(path.native())); }

std::filesystem::path PathFromUtf8(std::string_view path) {
  std::wstring checked;
  return internal::AppendWide(path, checked) ? std::filesystem::path(path)
                                             : std::filesystem::path();
}

}  // namespace tolva::support
