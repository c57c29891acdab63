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

}  // namespace

bool Say(const char* what, const std::filesystem::path& file, const support::Report& report) {
  std::string path = support::PathToUtf8(file);
  std::replace(path.begin(), path.end(), '\\', '/');
  std::cout << what << " " << path << ": " << report.result << "\n";
  if (!report.message.empty()) std::cout << "  " << report.message << "\n";
  if (report.error != 0) std::cout << "  error: 0x" << std::hex << report.error << std::dec << "\n";
  for (const std::string& text : report.diagnostics) std::cout << "  diagnostic: " << text << "\n";
  return report.result == 0;
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
