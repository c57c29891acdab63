// How a parsing step ends.
#pragma once

#include "platform/xml/hresults.h"

namespace tolva::platform::own_xml {

/// How a parsing step ends: it is done, it needs more input, or it has found a fault in the
/// document.
class [[nodiscard]] Status {
 public:
  static constexpr Status Done() { return {0}; }
  static constexpr Status MoreInput() { return {1}; }

  /// A fault, by its failure code.
  constexpr Status(HRESULT fault) : value_(fault) {}

  constexpr bool IsDone() const { return value_ == 0; }
  constexpr bool NeedsMoreInput() const { return value_ == 1; }

  /// The failure code of a fault.
  constexpr HRESULT fault() const { return value_; }

 private:
  HRESULT value_;
};

inline constexpr Status kDone = Status::Done();

/// The step has reached the end of the window. It can be repeated when there is more input.
inline constexpr Status kMoreInput = Status::MoreInput();

}  // namespace tolva::platform::own_xml
