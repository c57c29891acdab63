// Reads documents, changes them, writes them back:
//   tolva_demo <documents> <output> [part...]      all parts unless some are named
#include <algorithm>
#include <string>
#include <vector>

#include "demo.h"

namespace {

struct Part {
  const char* name;
  bool (*show)(const demo::Folders& folders);
};

constexpr Part kParts[] = {
    {"active-directory", &demo::ShowActiveDirectory},
    {"policy", &demo::ShowPolicy},
    {"modules", &demo::ShowModules},
    {"records", &demo::ShowRecords},
    {"broken", &demo::ShowBrokenDocuments},
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: " << argv[0] << " <documents> <output> [part...]\nparts:";
    for (const Part& part : kParts) std::cerr << " " << part.name;
    std::cerr << "\n";
    return 2;
  }
  const demo::Folders folders{argv[1], argv[2]};
  const std::vector<std::string> wanted(argv + 3, argv + argc);
  std::filesystem::create_directories(folders.output / "before");

  bool as_expected = true;
  for (const Part& part : kParts) {
    const bool is_wanted =
        wanted.empty() || std::find(wanted.begin(), wanted.end(), part.name) != wanted.end();
    if (is_wanted && !part.show(folders)) as_expected = false;
  }
  std::cout << (as_expected ? "\nAll as expected.\n" : "\nNot as expected!\n");
  return as_expected ? 0 : 1;
}
