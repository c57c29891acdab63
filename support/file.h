// Files, as saving and scanning need them: one source file per platform.
//
// Functions that return a DWORD return a Windows error code, whatever the platform; 0 is success.
// A path that holds a zero is refused by all of them.
#pragma once

#include <tolva/types.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>

namespace tolva::support::internal {

inline constexpr DWORD kNoFolder = 3;
inline constexpr DWORD kAccessDenied = 5;
inline constexpr DWORD kNotEnoughMemory = 8;
inline constexpr DWORD kGeneralFailure = 31;
inline constexpr DWORD kFileExists = 80;
inline constexpr DWORD kInvalidName = 123;
inline constexpr DWORD kTooManyHardLinks = 1142;

/// Whether the path can be handed to the system as it is.
bool IsUsable(const std::filesystem::path& path);

/// A file that is read or written from its start on. Closed with the object.
class File {
 public:
  enum class Kind {
    kPublic,   ///< a new file that others may read as the process's mask allows
    kPrivate,  ///< a new file that the process's user alone may read, where the platform has that
  };

  File() = default;
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File();

  /// Opens a regular file for reading; anything else is refused, without waiting for a process at
  /// its other end.
  DWORD OpenToRead(const std::filesystem::path& path);

  /// Makes a file that must not exist yet (kFileExists) and opens it for writing.
  DWORD Create(const std::filesystem::path& path, Kind kind);

  /// Reads up to `size` bytes; `*count` is 0 at the end of the file.
  DWORD Read(char* buffer, std::size_t size, std::size_t* count) const;

  DWORD Write(std::string_view bytes) const;

  /// Tells what the system could not store, too.
  DWORD Close();

 private:
  std::intptr_t handle_ = -1;  ///< the system's
};

/// The file that is to be replaced.
struct Target {
  std::filesystem::path file;  ///< no symbolic link
  bool exists = false;
};

/// Why a file is not to be replaced.
struct Refusal {
  DWORD error = 0;
  const char* phrase = nullptr;  ///< where there are better words for it than the code's
};

inline constexpr const char* kIsDirectory = "it is a directory";
inline constexpr const char* kIsSpecial = "it is not a regular file";
inline constexpr const char* kIsReadOnly = "it is read-only, or the process may not write it";
inline constexpr const char* kHasHardLinks = "it has further hard links";

/// Follows symbolic links, and judges what is there. `path` is usable.
Refusal FindTarget(const std::filesystem::path& path, bool break_hard_links, Target& target);

/// Gives the new file what the target has beside its content, if that has to be done before it is
/// replaced, and brings the new file to the disk. `*is_about_target`: the failure is one of the
/// former.
DWORD Finish(const Target& target, const std::filesystem::path& new_file, bool* is_about_target);

/// Gives the new file the target's name. `spare` is a name beside it that is not taken. `*replaced`
/// tells whether that has happened: a failure after it means that it may not last.
DWORD Replace(const Target& target, const std::filesystem::path& new_file,
              const std::filesystem::path& spare, bool* replaced);

/// Removes a file, if it is there.
void Remove(const std::filesystem::path& file);

}  // namespace tolva::support::internal
