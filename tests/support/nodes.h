// Nodes from and to text.
#pragma once

#include <gtest/gtest.h>
#include <tolva/node/node.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "support/files.h"
#include "support/managers.h"

namespace tolva::test {

/// Reads a node from a document that can be opened.
inline ConfigResult ReadText(node::IElement& node, std::wstring_view document) {
  const ManagerPtr reader = MakeReader();
  EXPECT_EQ(reader->OpenFromString(std::wstring(document).c_str()), 0);
  return node.ReadFromXMLMgr(reader.get());
}

/// Reads a node from a file that can be opened.
inline ConfigResult ReadFile(node::IElement& node, const std::filesystem::path& path) {
  const ManagerPtr reader = MakeReader();
  EXPECT_EQ(reader->OpenFile(path.wstring().c_str()), 0);
  return node.ReadFromXMLMgr(reader.get());
}

inline ManagerPtr OpenWriter(const TempFile& file) {
  ManagerPtr writer = MakeWriter();
  EXPECT_EQ(writer->OpenFile(file.Wide().c_str()), 0);
  return writer;
}

/// Writes a node to a file and returns the file's text.
inline std::string WriteFile(const node::IElement& node) {
  const TempFile file;
  const ManagerPtr writer = OpenWriter(file);
  EXPECT_EQ(node.WriteToXMLMgr(writer.get()), 0);
  EXPECT_EQ(writer->Close(), 0);
  return file.Read();
}

/// The elements alone: no declaration, nothing between the tags, empty tags in one form. So what
/// one XML layer writes can be compared with what another does.
inline std::string WithoutLayout(std::string_view text) {
  std::string result;
  if (text.starts_with("<?")) text.remove_prefix(text.find("?>") + 2);
  while (!text.empty()) {
    const std::size_t past = std::min(text.find_first_not_of(" \r\n"), text.size());
    const bool precedes_tag = past == text.size() || text[past] == '<';
    if (past != 0 && precedes_tag && (result.empty() || result.back() == '>')) {
      text.remove_prefix(past);
      continue;
    }
    if (!text.starts_with(" />")) result += text.front();
    text.remove_prefix(1);
  }
  return result;
}

inline std::string WriteText(const node::IElement& node) { return WithoutLayout(WriteFile(node)); }

}  // namespace tolva::test
