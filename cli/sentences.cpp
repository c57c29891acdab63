#include "cli/sentences.h"

#include <algorithm>
#include <iterator>

namespace tolva::cli {
namespace {

#include "sentences.inc"

}  // namespace

std::span<const ClassSentence> AllClasses() { return kClasses; }

const ClassSentence* FindClass(std::string_view interface_name) {
  const auto* const found =
      std::ranges::find(kClasses, interface_name, &ClassSentence::interface_name);
  return found == std::end(kClasses) ? nullptr : found;
}

const RowSentence* FindRow(const ClassSentence& element, std::string_view name) {
  for (const ClassSentence* one = &element; one != nullptr; one = FindClass(one->base)) {
    const auto found = std::ranges::find(one->rows, name, &RowSentence::name);
    if (found != one->rows.end()) return &*found;
  }
  return nullptr;
}

}  // namespace tolva::cli
