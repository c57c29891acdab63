// The own XML parser against expat: an implementation that shares nothing with it.
#pragma once

#include <expat.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace tolva::test {

struct ExpatDeleter {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ExpatParser = std::unique_ptr<XML_ParserStruct, ExpatDeleter>;

/// Whether XML 1.0, fifth edition, has the character, which is not in ASCII, in its NameStartChar
/// or NameChar. Expat knows the fourth. Written down a second time, so that a slip in the own
/// parser's ranges shows.
bool IsNameCharacter(char32_t c, bool starts_name);

/// Whether expat, minding namespaces, accepts the document; a document type declaration is refused.
bool ExpatAccepts(std::string_view document);

/// What the own parser finds wrong with the document, or S_OK.
platform::HRESULT OwnFault(std::string_view document);

/// Reads the document with the own parser, in blocks of several sizes, and with expat: what they do
/// not agree in, or nothing. Both have to accept or to refuse it; if they accept it, their nodes
/// have to be the same. What is known of expat and cannot be helped is no difference.
std::optional<std::string> Difference(std::string_view document);

}  // namespace tolva::test
