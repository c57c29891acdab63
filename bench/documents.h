// The documents that are read and written: the example policy and a message catalogue, grown to a
// size. Processors learn to predict what comes again and again, and no program reads one document
// over and over. So no two parts of a document are alike, and there are several documents of each
// of the smaller sizes. They are the same in each run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tolva::bench {

enum Kind : std::int64_t {
  kPolicy = 0,     ///< attribute-dense: short attributes, no text
  kCatalogue = 1,  ///< text-dense: sentences in elements, one attribute each
};

/// A document in memory and in a file.
struct Document {
  std::string text;
  std::filesystem::path path;
  std::size_t elements;
};

using Documents = std::vector<Document>;

/// Documents of `size` bytes each, within three in a hundred: enough of them to make up
/// `kVariety`, and one if that is larger. Made once.
const Documents& GetDocuments(Kind kind, std::size_t size);
inline constexpr std::size_t kVariety = 400'000;

/// A file to write to.
std::filesystem::path OutputPath();

}  // namespace tolva::bench
