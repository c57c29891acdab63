#include "platform/xml/position.h"

#include <bit>

#include "platform/xml/characters.h"

namespace tolva::platform::own_xml {
namespace {

struct Counts {
  std::uint64_t characters = 0;
  std::uint64_t supplementary = 0;  ///< those beyond U+FFFF
  std::uint64_t line_ends = 0;
};

/// A CR before an LF is no line end: the LF is.
bool IsLineEnd(const char* at) { return *at == '\n' || (*at == '\r' && at[1] != '\n'); }

/// The first bits of `mask`.
Mask Front(Mask mask, std::ptrdiff_t count) {
  return count < 16 ? mask & ((Mask{1} << count) - 1) : mask;
}

Counts CountText(const char* from, const char* to) {
  Counts counts;
  for (const char* at = from; at < to; at += Bytes::kCount) {
    const Bytes block = Bytes::Load(at);
    const std::ptrdiff_t rest = to - at;
    const Mask feeds = block.Is('\n').ToMask();
    const Mask returns = block.Is('\r').ToMask();
    const Mask others = Front(block.ToMask(), rest);  // not ASCII
    counts.line_ends += static_cast<unsigned>(std::popcount(Front(feeds, rest)));
    counts.characters += static_cast<std::uint64_t>(rest < 16 ? rest : 16);
    for (Mask mask = Front(returns, rest); mask != 0; mask &= mask - 1) {
      if (at[FirstOf(mask) + 1] != '\n') ++counts.line_ends;
    }
    for (Mask mask = others; mask != 0; mask &= mask - 1) {
      const auto byte = static_cast<unsigned char>(at[FirstOf(mask)]);
      if (byte < 0xC0) --counts.characters;
      if (byte >= 0xF0) ++counts.supplementary;
    }
  }
  return counts;
}

/// Where the last character of a text starts. CR LF is one.
const char* LastCharacter(const char* start, const char* end) {
  const char* at = end - 1;
  while ((static_cast<unsigned char>(*at) & 0xC0) == 0x80) --at;
  return *at == '\n' && at != start && at[-1] == '\r' ? at - 1 : at;
}

}  // namespace

void PositionCounter::Count(const char* from, const char* to, Position& position) const {
  const Counts counts = CountText(from, to);
  const Encoding& encoding = input_.encoding();
  if (encoding.convert == nullptr) {
    position.offset += static_cast<std::uint64_t>(to - from);
  } else {
    const std::uint64_t unit = encoding.unit_size;
    position.offset += unit * counts.characters + (unit == 2 ? 2 * counts.supplementary : 0);
  }
  if (counts.line_ends == 0) {
    position.column += counts.characters;
    return;
  }
  const char* line = to;
  while (!IsLineEnd(line - 1)) --line;
  position.line += counts.line_ends;
  position.column = 1 + CountText(line, to).characters;
}

Position PositionCounter::At(const char* at) {
  if (at < AddressOf(last_)) last_ = at < AddressOf(earlier_) ? base_ : earlier_;
  Mark mark = {at, last_.position};
  Count(AddressOf(last_), at, mark.position);
  earlier_ = last_;
  last_ = mark;
  Position position = mark.position;
  position.offset += input_.byte_order_mark_size();
  return position;
}

Position PositionCounter::OfLastCharacter() {
  if (input_.limit() == input_.start()) return last_dropped_;
  return At(LastCharacter(input_.start(), input_.limit()));
}

void PositionCounter::Drop(std::string_view text) {
  if (text.empty()) {
    // The window may move even so.
    earlier_ = last_ = base_;
    return;
  }
  const char* const end = text.data() + text.size();
  last_dropped_ = At(LastCharacter(text.data(), end));
  Count(AddressOf(last_), end, last_.position);
  last_.at = nullptr;
  base_ = earlier_ = last_;
}

}  // namespace tolva::platform::own_xml
