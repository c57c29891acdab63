#include "support.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace tolva::fuzz {

MemoryFile::MemoryFile()
    : descriptor_(memfd_create("document", 0)),
      path_(L"/proc/self/fd/" + std::to_wstring(descriptor_)) {}

MemoryFile::~MemoryFile() { close(descriptor_); }

void MemoryFile::Write(std::string_view text) const {
  Expect(ftruncate(descriptor_, 0) == 0, "a file to read");
  const auto size = static_cast<ssize_t>(text.size());
  Expect(pwrite(descriptor_, text.data(), text.size(), 0) == size, "a file to read");
}

std::string MemoryFile::Read() const {
  struct stat status = {};
  Expect(fstat(descriptor_, &status) == 0, "a file that was written");
  std::string text(static_cast<std::size_t>(status.st_size), '\0');
  Expect(pread(descriptor_, text.data(), text.size(), 0) == status.st_size,
         "a file that was written");
  return text;
}

void Fail(const char* what) {
  std::fprintf(stderr, "fuzz: expected %s\n", what);
  std::abort();
}

}  // namespace tolva::fuzz
