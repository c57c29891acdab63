// The documents that the benchmarks read and write: the example policy and the example catalogue,
// grown to a size by repeating what they hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace tolva::bench {

enum Kind : std::int64_t {
  kPolicy = 0,     ///< attribute-dense: short attributes, no text
  kCatalogue = 1,  ///< text-dense: sentences in elements, one attribute each
};

/// A document of about `size` bytes, in memory and in a file. Made once.
struct Document {
  std::string text;
  std::filesystem::path path;
  std::size_t elements;
};

const Document& GetDocument(Kind kind, std::size_t size);

/// A file to write to.
std::filesystem::path OutputPath();

}  // namespace tolva::bench
