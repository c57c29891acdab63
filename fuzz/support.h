// What the fuzz targets share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace tolva::fuzz {

/// A file in memory that has a name.
class MemoryFile {
 public:
  MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile();

  const wchar_t* path() const { return path_.c_str(); }
  void Write(std::string_view text) const;
  std::string Read() const;

 private:
  int descriptor_;
  std::wstring path_;
};

/// Ends the run: what should hold does not.
[[noreturn]] void Fail(const char* what);

inline void Expect(bool holds, const char* what) {
  if (!holds) Fail(what);
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace tolva::fuzz
