// What the fuzz targets share.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "platform/ref_counted.h"

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

/// A text in pieces of a size.
class PieceStream final : public platform::RefCounted<platform::ISequentialStream> {
 public:
  PieceStream(std::string_view text, std::size_t piece) : text_(text), piece_(piece) {}

  platform::HRESULT Read(void* buffer, platform::ULONG size,
                         platform::ULONG* count) noexcept override {
    const std::size_t given = std::min({static_cast<std::size_t>(size), piece_, text_.size()});
    std::copy_n(text_.data(), given, static_cast<char*>(buffer));
    text_.remove_prefix(given);
    *count = static_cast<platform::ULONG>(given);
    return given == size ? platform::S_OK : platform::S_FALSE;
  }
  platform::HRESULT Write(const void*, platform::ULONG, platform::ULONG*) noexcept override {
    return platform::E_NOTIMPL;
  }

 private:
  std::string_view text_;
  std::size_t piece_;
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
