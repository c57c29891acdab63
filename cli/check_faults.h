// What the parser's faults mean, in words.
#pragma once

#include <string>
#include <string_view>

#include "cli/check_findings.h"
#include "platform/xml/parser.h"

namespace tolva::cli {

/// What a fault of the document is, and what to tell of it.
struct FaultWords {
  Code code;
  std::string message;
};

/// The fault on which the parser has stopped.
FaultWords WordsFor(const platform::own_xml::Parser& parser);

/// Text from a document, in quotes or as it is, for a message: printable, and cut off if it is
/// long.
std::string Excerpt(std::string_view text);
std::string Quoted(std::string_view text);

}  // namespace tolva::cli
