// The own XML parser against expat: an implementation that shares nothing with it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tolva::test {

/// Whether XML 1.0, fifth edition, has the character, which is not in ASCII, in its NameStartChar
/// or NameChar. Expat knows the fourth. Written down a second time, so that a slip in the own
/// parser's ranges shows.
bool IsNameCharacter(char32_t c, bool starts_name);

/// Whether expat, minding namespaces, accepts the document; a document type declaration is refused.
bool ExpatAccepts(std::string_view document);

/// Reads the document with the own parser, in blocks of several sizes, and with expat: what they do
/// not agree in, or nothing. Both have to accept or to refuse it; if they accept it, their nodes
/// have to be the same. What is known of expat and cannot be helped is no difference.
std::optional<std::string> Difference(std::string_view document);

}  // namespace tolva::test
