#include "demo.h"

#include <algorithm>
#include <fstream>
#include <vector>

namespace demo {
namespace {

using Lines = std::vector<std::string>;

Lines ReadLines(const std::filesystem::path& path) {
  std::ifstream file(path);
  Lines lines;
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

void Say(const char* what, const std::filesystem::path& path, ConfigResult result) {
  std::cout << what << " " << path.generic_string() << ": " << result << "\n";
}

}  // namespace

std::string Utf8(const std::wstring& text) {
  std::string bytes;
  char32_t high = 0;  // the first half of a pair, where wide characters have sixteen bits
  for (const wchar_t unit : text) {
    auto c = static_cast<char32_t>(unit);
    if (c >= 0xD800 && c <= 0xDBFF) {
      high = c;
      continue;
    }
    if (c >= 0xDC00 && c <= 0xDFFF) c = 0x10000 + ((high - 0xD800) << 10) + (c - 0xDC00);
    const auto put = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
    const auto put_rest = [&](int shift) { put(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80) {
      put(c);
      continue;
    }
    put(c < 0x800 ? 0xC0 | (c >> 6) : c < 0x10000 ? 0xE0 | (c >> 12) : 0xF0 | (c >> 18));
    if (c >= 0x10000) put_rest(12);
    if (c >= 0x800) put_rest(6);
    put_rest(0);
  }
  return bytes;
}

bool Load(tolva::node::IElement& root, const std::filesystem::path& file) {
  const Manager reader(tolvaCreateXMLManager(0));
  tolvaSetLastError(0);
  ConfigResult result = reader->OpenFile(file.wstring().c_str());
  if (result == 0) result = root.ReadFromXMLMgr(reader.get());
  Say("read", file, result);
  const DWORD error = tolvaGetLastError();
  // After a success, these mean something: the document broke off, or the file could not be read.
  const bool broke_off = (error & 0xFFFFF000) == 0xC00CE000 || (error & 0xFFFF0000) == 0x80070000;
  if (result == 0 && !broke_off) return true;
  std::cout << "  last error: 0x" << std::hex << error << std::dec << "\n";
  return false;
}

bool Save(const tolva::node::IElement& root, const std::filesystem::path& file) {
  std::filesystem::path unfinished = file;
  unfinished += ".new";
  const Manager writer(tolvaCreateXMLManager(1));
  ConfigResult result = writer->OpenFile(unfinished.wstring().c_str());
  if (result == 0) result = root.WriteToXMLMgr(writer.get());
  if (result == 0) result = writer->Close();
  if (result == 0) std::filesystem::rename(unfinished, file);
  Say("wrote", file, result);
  return result == 0;
}

void PrintDifference(const std::filesystem::path& before, const std::filesystem::path& after) {
  const Lines old_lines = ReadLines(before);
  const Lines new_lines = ReadLines(after);
  // common[i][j]: how many lines the rests from i and j have in common.
  std::vector<std::vector<std::size_t>> common(old_lines.size() + 1,
                                               std::vector<std::size_t>(new_lines.size() + 1));
  for (std::size_t i = old_lines.size(); i-- != 0;) {
    for (std::size_t j = new_lines.size(); j-- != 0;) {
      common[i][j] = old_lines[i] == new_lines[j] ? common[i + 1][j + 1] + 1
                                                  : std::max(common[i + 1][j], common[i][j + 1]);
    }
  }
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < old_lines.size() || j < new_lines.size()) {
    const bool both = i < old_lines.size() && j < new_lines.size();
    if (both && old_lines[i] == new_lines[j]) {
      ++i;
      ++j;
    } else if (j == new_lines.size() || (both && common[i + 1][j] >= common[i][j + 1])) {
      std::cout << "  - " << old_lines[i++] << "\n";
    } else {
      std::cout << "  + " << new_lines[j++] << "\n";
    }
  }
}

}  // namespace demo
