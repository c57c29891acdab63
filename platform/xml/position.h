// Where slices of an `Input` are in the document, as people and programs count.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/xml/input.h"

namespace tolva::platform::own_xml {

/// A place in a document. A line ends with LF, CR or CR LF.
struct Position {
  std::uint64_t offset = 0;  ///< in bytes, as the document is encoded, with its byte order mark
  std::uint64_t line = 1;
  std::uint64_t column = 1;  ///< in characters; a byte order mark is none
};

/// Counts only what leaves the window, and what leads to a slice that somebody asks for.
class PositionCounter {
 public:
  explicit PositionCounter(const Input& input) : input_(input) {}

  /// The position of what is in the window at `at`. Fast if the calls go forward.
  Position At(const char* at);

  /// The position of the last character before the end of the window; the start of the document if
  /// there is none.
  Position OfLastCharacter();

  /// To be called with the text that leaves the window.
  void Drop(std::string_view text);

 private:
  /// What a place is counted from.
  struct Mark {
    const char* at;  ///< null: the start of the window
    Position position;
  };

  const char* AddressOf(const Mark& mark) const {
    return mark.at == nullptr ? input_.start() : mark.at;
  }
  void Count(const char* from, const char* to, Position& position) const;

  const Input& input_;
  Mark base_ = {nullptr, {}};
  Mark earlier_ = base_;
  Mark last_ = base_;
  Position last_dropped_;
};

}  // namespace tolva::platform::own_xml
