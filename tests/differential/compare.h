// The own XML parser against expat: an implementation that shares nothing with it.
#pragma once

#include <expat.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/system.h"

namespace tolva::test {

struct ExpatDeleter {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ExpatParser = std::unique_ptr<XML_ParserStruct, ExpatDeleter>;

/// The nodes of a document as a text that can be compared.
class Nodes {
 public:
  static constexpr char kPart = '\2';  ///< no document contains it

  void Clear() {
    text_.clear();
    in_text_ = false;
  }

  void Begin(char kind, std::string_view first = {}) {
    text_ += '\1';
    text_ += kind;
    text_ += first;
    in_text_ = kind == 'C' || kind == 'T';
  }

  void Add(std::string_view part) {
    text_ += kPart;
    text_ += part;
  }

  /// Adds to the text or CDATA section before it.
  void AddText(std::string_view piece) {
    if (!in_text_) Begin('T');
    text_ += piece;
  }

  void EndText() { in_text_ = false; }

  const std::string& text() const { return text_; }

 private:
  std::string text_;
  bool in_text_ = false;
};

/// Whether XML 1.0, fifth edition, has the character, which is not in ASCII, in its NameStartChar
/// or NameChar. Expat knows the fourth. Written down a second time, so that a slip in the own
/// parser's ranges shows.
bool IsNameCharacter(char32_t c, bool starts_name);

/// Whether expat, minding namespaces, accepts the document; a document type declaration is refused.
bool ExpatAccepts(std::string_view document);

/// What the own parser finds wrong with the document, or S_OK.
platform::HRESULT OwnFault(std::string_view document);

/// The nodes of the document as the own parser reads them, without white space between tags
/// within the root.
std::string OwnTags(std::string_view document);

/// Reads the document with the own parser, in blocks of several sizes, and with expat: what they do
/// not agree in, or nothing. Both have to accept or to refuse it; if they accept it, their nodes
/// have to be the same. What is known of expat and cannot be helped is no difference.
std::optional<std::string> Difference(std::string_view document);

}  // namespace tolva::test
