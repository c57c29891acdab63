// A folder of a test's own.
#pragma once

#include <iterator>
#include <string>

#include "support/files.h"

namespace tolva::test {

class Folder {
 public:
  Folder() { std::filesystem::create_directory(folder_.path()); }

  std::filesystem::path In(const std::filesystem::path& name) const {
    return folder_.path() / name;
  }
  std::string Content(const char* name) const { return TempFile::ReadFile(In(name)); }

  /// How many files are there.
  std::ptrdiff_t Count() const {
    return std::distance(std::filesystem::directory_iterator(folder_.path()), {});
  }

 private:
  TempFile folder_;
};

}  // namespace tolva::test
