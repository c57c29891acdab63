#include "cli/check_faults.h"

#include <algorithm>

#include "cli/text.h"
#include "platform/xml/characters.h"
#include "platform/xml/hresults.h"

namespace tolva::cli {
namespace {

using namespace platform;
using own_xml::Input;
using own_xml::Parser;

/// Cuts text after that many bytes, but not within a character.
std::string_view Front(std::string_view text, std::size_t size) {
  if (text.size() <= size) return text;
  while (size != 0 && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80) --size;
  return text.substr(0, size);
}

/// What the window shows from `at` on.
std::string_view Rest(const Parser& parser, const char* at) {
  return {at, static_cast<std::size_t>(parser.input().limit() - at)};
}

/// The character at the fault, in quotes.
std::string Character(const Parser& parser) {
  const std::string_view rest = Rest(parser, parser.fault_at());
  std::size_t size = 1;
  while (size < rest.size() && (static_cast<unsigned char>(rest[size]) & 0xC0) == 0x80) ++size;
  return "'" + Printable(rest.substr(0, size)) + "'";
}

/// The name at the place, in quotes, as far as the parser has read it.
std::string NameAt(const char* at) {
  const char* end = own_xml::SkipName(at);
  if (*end == ':') end = own_xml::SkipName(end + 1);
  return Quoted({at, static_cast<std::size_t>(end - at)});
}

/// The reference at the fault, in quotes, with its semicolon.
std::string ReferenceAt(const Parser& parser) {
  const std::string_view rest = Rest(parser, parser.fault_at());
  const std::size_t end = rest.find_first_of("; \t\r\n<>\"'&", 1);
  const std::size_t size =
      end == std::string_view::npos ? rest.size() : end + (rest[end] == ';' ? 1 : 0);
  return Quoted(rest.substr(0, size));
}

/// What is in quotes or up to a space at the fault: an encoding's name.
std::string ValueAt(const Parser& parser) {
  const std::string_view rest = Rest(parser, parser.fault_at());
  return Quoted(rest.substr(0, std::min(rest.find_first_of("\"'"), rest.size())));
}

std::string CodePoint(char32_t c) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  for (int shift = c > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4) {
    digits += kDigits[c >> shift & 15];
  }
  return "U+" + digits;
}

FaultWords IllegalCharacter(const Parser& parser) {
  const std::string_view bytes = parser.input().illegal();
  const std::string encoding(parser.input().encoding().name);
  if (bytes.empty()) {
    return {Code::kEncoding, "the document breaks off within a character of " + encoding};
  }
  const auto first = static_cast<unsigned char>(bytes[0]);
  const bool is_last_of_plane =
      bytes.starts_with("\xEF\xBF\xBE") || bytes.starts_with("\xEF\xBF\xBF");
  if (first >= 0x20 && !is_last_of_plane) {
    return {Code::kEncoding, "the bytes that follow here are no character of " + encoding};
  }
  const char* at = bytes.data();
  const char32_t c = is_last_of_plane ? TakeCodePoint(at) : first;
  return {Code::kNotWellFormed, "XML does not allow the character " + CodePoint(c)};
}

std::string NamespaceWords(HRESULT fault, const Parser& parser) {
  const std::string name = NameAt(parser.fault_at());
  switch (fault) {
    case NC_E_UNDECLAREDPREFIX:
      return "the prefix of " + name + " is not declared";
    case NC_E_EMPTYURI:
      return "the namespace that " + name + " declares is empty";
    case NC_E_XMLPREFIXRESERVED:
    case NC_E_XMLURIRESERVED:
      return name + " takes the prefix 'xml' or its namespace, which are reserved";
    default:
      return name + " takes the prefix 'xmlns' or its namespace, which are reserved";
  }
}

std::string Words(HRESULT fault, const Parser& parser) {
  const auto character = [&parser] { return Character(parser); };
  switch (fault) {
    case MX_E_INPUTEND:
      return parser.depth() == 0
                 ? "the document breaks off here"
                 : "the document breaks off here: " + Quoted(parser.InnermostName()) +
                       " is still open";
    case WC_E_WHITESPACE:
      return "there has to be a space before the next attribute, not " + character();
    case WC_E_SEMICOLON:
    case WC_E_NAME:
      return "'&' begins a reference, which ends with ';'; '&' itself is written '&amp;'";
    case WC_E_GREATERTHAN:
      return "there has to be '>' here, not " + character();
    case WC_E_QUOTE:
      return "the value has to begin with a quote, not " + character();
    case WC_E_EQUAL:
      return "there has to be '=' after the attribute's name, not " + character();
    case WC_E_LESSTHAN:
      return "'<' in a value is written '&lt;'; or the quote that ends the value is missing";
    case WC_E_HEXDIGIT:
    case WC_E_DIGIT:
      return "this reference needs a number";
    case WC_E_XMLCHARACTER:
      return "XML does not allow the character that " + ReferenceAt(parser) + " stands for";
    case WC_E_UNDECLAREDENTITY:
      return "there is no entity " + ReferenceAt(parser) +
             ", only '&lt;', '&gt;', '&amp;', '&quot;' and '&apos;'";
    case WC_E_SYNTAX:
      return parser.fault_at()[0] == '<' ? "this markup may not stand here"
                                         : "text may not stand outside the root element";
    case WC_E_CDSECT:
      return "there has to be '<![CDATA[' here";
    case WC_E_CDSECTEND:
      return "']]>' in a text is written ']]&gt;'";
    case WC_E_COMMENT:
      return "a comment begins with '<!--', ends with '-->' and has no other '--'";
    case WC_E_ROOTELEMENT:
      return parser.depth() == 0 && parser.fault_at() != parser.input().limit()
                 ? "there is a second root element"
                 : "the document has no element";
    case WC_E_ELEMENTMATCH:
      return "the end tag " + NameAt(parser.fault_at() + 2) +
             " does not match the start "
             "tag " +
             Quoted(parser.InnermostName());
    case WC_E_UNIQUEATTRIBUTE:
      return "the attribute " + NameAt(parser.fault_at()) + " occurs twice";
    case WC_E_TEXTXMLDECL:
      return "'<?xml' may only stand at the very start of the document";
    case WC_E_LEADINGXML:
      return "a processing instruction cannot be called 'xml'";
    case WC_E_XMLDECL:
      return "the XML declaration is malformed here";
    case WC_E_PI:
    case NC_E_NAMECOLON:
      return "the processing instruction is malformed here";
    case NC_E_QNAMECHARACTER:
      return "there has to be a name here, not " + character();
    case NC_E_QNAMECOLON:
      return "the name that begins here has two colons";
    case WC_E_DTDPROHIBITED:
      return "the library refuses documents with a document type declaration";
    case SC_E_MAXELEMENTDEPTH:
      return "more than " + std::to_string(Parser::kMaxDepth) + " elements are open";
    case MX_E_ENCODING:
      return "the encoding " + ValueAt(parser) +
             " is not supported; UTF-8, UTF-16, ISO-8859-1 and US-ASCII are";
    case MX_E_ENCODINGSWITCH:
      return "the document declares the encoding " + ValueAt(parser) + ", but is in " +
             std::string(parser.input().encoding().name);
    default:
      return NamespaceWords(fault, parser);
  }
}

Code CodeOf(HRESULT fault) {
  switch (fault) {
    case WC_E_DTDPROHIBITED:
      return Code::kDtd;
    case SC_E_MAXELEMENTDEPTH:
      return Code::kTooDeep;
    case MX_E_ENCODING:
    case MX_E_ENCODINGSWITCH:
      return Code::kEncoding;
    default:
      return Code::kNotWellFormed;
  }
}

}  // namespace

std::string Excerpt(std::string_view text) {
  constexpr std::size_t kLongest = 60;
  const std::string_view front = Front(text, kLongest);
  return Printable(front) + (front.size() == text.size() ? "" : "...");
}

std::string Quoted(std::string_view text) { return "'" + Excerpt(text) + "'"; }

FaultWords WordsFor(const Parser& parser) {
  const Input& input = parser.input();
  const bool is_at_limit = parser.fault_at() == input.limit();
  if (is_at_limit && input.end() == Input::End::kIllegalCharacter) return IllegalCharacter(parser);
  return {CodeOf(parser.fault()), Words(parser.fault(), parser)};
}

}  // namespace tolva::cli
