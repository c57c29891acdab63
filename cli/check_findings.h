// What `check` finds in documents.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/xml/position.h"

namespace tolva::cli {

using platform::own_xml::Position;

enum class Code : std::uint8_t {
  kNotWellFormed,
  kDtd,
  kTooDeep,
  kEncoding,
  kUnknownRoot,
  kMissingAttribute,
  kMissingChild,
  kMissingContent,
  kBadNumber,
  kBadEnum,
  kUnknownAttribute,
  kUnknownElement,
  kDuplicateChild,
  kNumberRange,
  kTextIgnored,
  kContentCut,
  kNotReadBack,
};

struct CodeInfo {
  Code code;
  std::string_view name;  ///< "not-well-formed"
  /// Errors: the library refuses the document, or it is not well-formed. Warnings: the library
  /// accepts it, but ignores or changes something.
  bool is_error;
  std::string_view sentence;  ///< what it means
};

/// All codes, in the order of the enumeration.
std::span<const CodeInfo> Codes();

const CodeInfo& InfoOf(Code code);

struct Finding {
  Code code;
  Position position;
  std::string path;     ///< of the element or attribute, from the root's children on
  std::string message;  ///< fit for a terminal, without a full stop
};

/// Receives what is found in one document.
class FindingSink {
 public:
  FindingSink() = default;
  FindingSink(const FindingSink&) = delete;
  FindingSink& operator=(const FindingSink&) = delete;

  /// Counts a finding. Returns whether `Add` is to be called with it.
  virtual bool Count(Code code) = 0;
  virtual void Add(Finding finding) = 0;

 protected:
  virtual ~FindingSink() = default;
};

}  // namespace tolva::cli
