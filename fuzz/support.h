// What the fuzz targets share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "node/node.h"
#include "xml/writer.h"

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

/// Writes a node that has been read. An optional text that is absent leaves no document.
inline bool IsWritten(const MemoryFile& file, const node::INode& node) {
  xml::CXMLLiteManagerWriter writer;
  Expect(writer.OpenFile(file.path()) == 0, "a file to write");
  Expect(node.WriteToXMLMgr(&writer) == 0, "that what was read can be written");
  return writer.Close() == 0;
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace tolva::fuzz
