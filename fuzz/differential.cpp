// Bytes through the own XML parser and through expat: they agree.
#include "differential/compare.h"
#include "support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto difference = tolva::test::Difference(tolva::fuzz::Text(data, size));
  if (difference) tolva::fuzz::Fail(difference->c_str());
  return 0;
}
