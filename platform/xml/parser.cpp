#include "platform/xml/parser.h"

#include <algorithm>

#include "platform/xml/characters.h"

namespace tolva::platform::own_xml {
namespace {

/// What is parsed before there is any input.
constexpr char kNoInput[Input::kPadding] = {};

/// Start tags with more attributes than this do not keep their memory.
constexpr std::size_t kAttributesKept = 1024;

std::string_view Slice(const char* start, const char* end) {
  return {start, static_cast<std::size_t>(end - start)};
}

/// Whether `text` stands at `at`: S_OK, kMoreInput when the window ends within it, else S_FALSE.
HRESULT Match(const char* at, std::string_view text) {
  for (const char c : text) {
    if (*at != c) return *at == '\0' ? kMoreInput : S_FALSE;
    ++at;
  }
  return S_OK;
}

/// Reads what follows the prefix of a name, from the colon on.
HRESULT ReadLocalPart(const char* colon, Name& name) {
  const char* const end = SkipName(colon + 1);
  if (*end == '\0') return kMoreInput;
  if (end == colon + 1) return NC_E_QNAMECHARACTER;
  if (*end == ':') return NC_E_QNAMECOLON;
  name.prefix = name.text.size();
  name.text = Slice(name.text.data(), end);
  return S_OK;
}

/// Reads a name that may have a prefix, up to a character that cannot belong to it.
inline HRESULT ReadQName(const char* at, Name& name) {
  const char* const end = SkipName(at);
  name.text = Slice(at, end);
  name.prefix = 0;
  if (*end == ':' && end != at) return ReadLocalPart(end, name);
  if (*end == '\0') return kMoreInput;
  return end == at ? NC_E_QNAMECHARACTER : S_OK;
}

/// Whether `text` stands at `at`, in the window. Behind the text, too, a vector's width is
/// readable.
bool StandsAt(const char* at, std::string_view text) {
  for (std::size_t i = 0; i < text.size(); i += Bytes::kCount) {
    const Mask equal = Bytes::Load(at + i).Is(Bytes::Load(text.data() + i)).ToMask();
    const Mask others = ~equal & kAllBytes;
    // Names hold no zero, so a difference is found before the padding of the window ends.
    if (others != 0) return FirstOf(others) + i >= text.size();
  }
  return true;
}

const char* EndOf(std::string_view text) { return text.data() + text.size(); }

bool IsSpace(char c) { return IsClass(c, kSpace); }

}  // namespace

inline void Parser::Forget() {
  type_ = XmlNodeType_None;
  name_ = {};
  value_ = {};
  is_empty_element_ = false;
  if (attributes_.size() != 0) ForgetAttributes();
}

void Parser::ForgetAttributes() {
  attributes_.Clear();
  attribute_initials_ = 0;
  if (sorted_names_.capacity() > kAttributesKept) sorted_names_ = std::vector<std::string_view>();
}

void Parser::SetInput(ISequentialStream* stream, bool converted) {
  if (stream == nullptr) {
    input_.Close();
  } else {
    input_.Open(stream, converted);
  }
  at_ = kNoInput;
  started_ = false;
  has_root_ = false;
  at_limit_ = false;
  result_ = stream == nullptr ? E_UNEXPECTED : S_OK;
  Forget();
  open_names_.Clear();
  open_elements_.Clear();
  namespaces_.Clear();
}

/// Parses what stands at `at_`; kMoreInput when it goes on behind the window.
inline HRESULT Parser::ParseNode() {
  if (*at_ == '<') return ParseMarkup(at_ + 1);
  if (*at_ == '\0') return kMoreInput;
  return IsOutsideRoot() ? ParseOutsideRoot() : ParseText();
}

HRESULT Parser::Read() {
  if (result_ != S_OK) return result_;
  Forget();
  // Should memory run out, what has been changed by then is not known: the document is given up.
  result_ = E_OUTOFMEMORY;
  HRESULT result = ParseNode();
  while (result == kMoreInput) {
    // Whatever stands there is parsed again from its start: `Input::More` sees to it that this is
    // not done too often. It moves the window, so nothing may point there any more.
    Forget();
    if (!input_.More(at_)) {
      if (at_limit_) {
        result = FaultAtLimit();
        break;
      }
      at_limit_ = true;
    }
    result = ParseNode();
  }
  result_ = result;
  if (result != S_OK) Forget();
  return result;
}

/// The document breaks off within something, or ends.
HRESULT Parser::FaultAtLimit() const {
  const HRESULT reason = input_.reason();
  const bool between_nodes = IsOutsideRoot() && at_ == input_.limit();
  if (reason != S_FALSE) {
    // An illegal character outside all markup offends in the first place by being there.
    return between_nodes && reason == WC_E_XMLCHARACTER ? WC_E_SYNTAX : reason;
  }
  if (!between_nodes) return MX_E_INPUTEND;
  return has_root_ ? S_FALSE : WC_E_ROOTELEMENT;
}

inline HRESULT Parser::Deliver(XmlNodeType type, const char* end) {
  type_ = type;
  started_ = true;
  at_ = end;
  return S_OK;
}

HRESULT Parser::ParseOutsideRoot() {
  const char* const end = SkipSpace(at_);
  if (end == at_) return WC_E_SYNTAX;
  if (*end == '\0' && !at_limit_) return kMoreInput;
  value_ = Slice(at_, end);
  value_is_plain_ = false;  // there may be a CR, which nobody minds to find out here
  return Deliver(XmlNodeType_Whitespace, end);
}

/// Within the root: white space up to markup is a node of its own, any other text is one with the
/// white space before it.
HRESULT Parser::ParseText() {
  const char* const end = SkipSpace(at_);
  if (*end != '<') return ParseCharacters(end);
  value_ = Slice(at_, end);
  value_is_plain_ = false;
  return Deliver(XmlNodeType_Whitespace, end);
}

/// A text whose first white space ends at `behind_space`, where the window may end as well.
HRESULT Parser::ParseCharacters(const char* behind_space) {
  const bool is_blank = *behind_space == '\0';
  const char* at = at_;
  bool plain = true;
  for (;;) {
    at = Find<'<', '&', ']', '\r'>(at);
    if (*at == '<') break;
    if (*at == '\0') {
      // What stands before the end of the stream is delivered; what stands before an illegal
      // character is part of the node at fault.
      if (!at_limit_ || input_.reason() == WC_E_XMLCHARACTER) return kMoreInput;
      break;
    }
    if (*at == '&') {
      const Reference reference = ReadReference(at);
      if (reference.result != S_OK) return reference.result;
      at = reference.end;
      plain = false;
      continue;
    }
    if (*at == ']' && at[1] == ']' && at[2] == '>') return WC_E_CDSECTEND;
    plain = plain && *at != '\r';
    ++at;
  }
  value_ = Slice(at_, at);
  value_is_plain_ = plain;
  return Deliver(is_blank ? XmlNodeType_Whitespace : XmlNodeType_Text, at);
}

/// `at` stands behind a '<', as in the functions below.
HRESULT Parser::ParseMarkup(const char* at) {
  switch (*at) {
    case '/':
      // Where no element is open, this is a start tag with an impossible name.
      return IsOutsideRoot() ? NC_E_QNAMECHARACTER : ParseEndTag(at + 1);
    case '?':
      return ParseProcessingInstruction(at + 1);
    case '!':
      break;
    case '\0':
      return kMoreInput;
    default:
      return ParseStartTag(at);
  }
  ++at;
  if (*at == '-') {
    ++at;
    if (*at == '-') return ParseComment(at + 1);
    return *at == '\0' ? kMoreInput : WC_E_COMMENT;
  }
  if (*at == '[') {
    if (IsOutsideRoot()) return WC_E_SYNTAX;
    const HRESULT match = Match(at, "[CDATA[");
    if (match == S_OK) return ParseCData(at + 7);
    return match == S_FALSE ? WC_E_CDSECT : match;
  }
  const HRESULT match = Match(at, "DOCTYPE");
  if (match == kMoreInput) return kMoreInput;
  return match == S_OK && !has_root_ ? WC_E_DTDPROHIBITED : WC_E_SYNTAX;
}

// ---- tags --------------------------------------------------------------------------------------

HRESULT Parser::ParseStartTag(const char* at) {
  if (IsOutsideRoot() && has_root_) return WC_E_ROOTELEMENT;
  if (open_elements_.size() == kMaxDepth) return SC_E_MAXELEMENTDEPTH;

  HRESULT result = ReadQName(at, name_);
  if (result != S_OK) return result;
  at = EndOf(name_.text);
  TagTraits traits;
  traits.has_namespaces = name_.prefix != 0;
  if (*at != '>') {
    result = ParseAttributes(at, at, traits);
    if (result != S_OK) return result;
  }
  attribute_initials_ = traits.initials;

  is_empty_element_ = *at == '/';
  if (is_empty_element_) {
    ++at;
    if (*at == '\0') return kMoreInput;
    if (*at != '>') return WC_E_GREATERTHAN;
  }
  ++at;

  if (traits.may_have_twins) {
    result = CheckUniqueNames();
    if (result != S_OK) return result;
  }
  const std::size_t declarations = namespaces_.size();
  if (traits.has_namespaces) {
    result = namespaces_.Enter(name_, attributes());
    if (result != S_OK) return result;
    if (is_empty_element_) namespaces_.Leave(declarations);
  }
  if (!is_empty_element_) {
    open_elements_.Append(OpenElement{open_names_.size(), name_.prefix, declarations});
    PushName(name_.text);
  }
  has_root_ = true;
  return Deliver(XmlNodeType_Element, at);
}

/// Leaves a vector's width behind the names.
void Parser::PushName(std::string_view name) {
  char* const room = open_names_.Room(name.size() + Bytes::kCount);
  for (std::size_t i = 0; i < name.size(); i += Bytes::kCount) {
    Bytes::Load(name.data() + i).Store(room + i);
  }
  open_names_.Commit(name.size());
}

/// Sets `end` to the '>' or '/' that ends the tag.
HRESULT Parser::ParseAttributes(const char* at, const char*& end, TagTraits& traits) {
  TwinNames names;
  for (;;) {
    end = at;
    if (!IsSpace(*at)) {
      if (*at == '>' || *at == '/') return S_OK;
      if (*at == '\0') return kMoreInput;
      return attributes_.size() == 0 ? NC_E_QNAMECHARACTER : WC_E_WHITESPACE;
    }
    at = SkipSpace(at + 1);

    Attribute& attribute = *attributes_.Room(1);
    HRESULT result = ReadQName(at, attribute.name);
    if (result != S_OK) {
      end = at;
      return *at == '>' || *at == '/' ? S_OK : result;
    }
    at = EndOf(attribute.name.text);
    const std::string_view name = attribute.name.text;
    if (attribute.name.prefix != 0 || name == "xmlns") traits.has_namespaces = true;
    if (names.MayHaveTwin(name)) traits.may_have_twins = true;
    traits.initials |= InitialOf(name.front());

    if (*at != '=') {
      at = SkipSpace(at);
      if (*at != '=') return *at == '\0' ? kMoreInput : WC_E_EQUAL;
    }
    ++at;
    if (*at != '"') at = SkipSpace(at);
    if (*at == '"') {
      result = ParseAttributeValue<'"'>(at, attribute);
    } else if (*at == '\'') {
      result = ParseAttributeValue<'\''>(at, attribute);
    } else {
      result = *at == '\0' ? kMoreInput : WC_E_QUOTE;
    }
    if (result != S_OK) return result;
    attributes_.Commit(1);
  }
}

/// `at` stands on the opening quote and is left behind the closing one.
template <char Quote>
HRESULT Parser::ParseAttributeValue(const char*& at, Attribute& attribute) {
  const char* const start = ++at;
  attribute.plain = true;
  for (;;) {
    at = FindInAttribute<Quote>(at);
    if (*at == Quote) break;
    if (*at == '\0') return kMoreInput;
    if (*at == '<') return WC_E_LESSTHAN;
    attribute.plain = false;
    if (*at == '&') {
      const Reference reference = ReadReference(at);
      if (reference.result != S_OK) return reference.result;
      at = reference.end;
    } else {
      ++at;
    }
  }
  attribute.value = Slice(start, at);
  ++at;
  return S_OK;
}

/// No two attributes have the same name as it stands there.
HRESULT Parser::CheckUniqueNames() {
  constexpr std::size_t kFew = 16;
  const auto all = attributes();
  if (all.size() <= kFew) {
    for (std::size_t i = 1; i < all.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        if (all[i].name.text == all[j].name.text) return WC_E_UNIQUEATTRIBUTE;
      }
    }
    return S_OK;
  }
  sorted_names_.clear();
  for (const Attribute& attribute : all) sorted_names_.push_back(attribute.name.text);
  std::sort(sorted_names_.begin(), sorted_names_.end());
  const auto twins = std::adjacent_find(sorted_names_.begin(), sorted_names_.end());
  return twins == sorted_names_.end() ? S_OK : WC_E_UNIQUEATTRIBUTE;
}

std::string_view Parser::InnermostName() const {
  const std::size_t start = open_elements_.data()[open_elements_.size() - 1].name_start;
  return {open_names_.data() + start, open_names_.size() - start};
}

/// `at` stands behind "</".
HRESULT Parser::ParseEndTag(const char* at) {
  const std::string_view expected = InnermostName();
  const bool matches =
      StandsAt(at, expected) && (at[expected.size()] == '>' || IsSpace(at[expected.size()]));
  if (!matches) {
    Name other;
    const HRESULT result = ReadQName(at, other);
    if (result != S_OK) return result;
    return other.text == expected ? WC_E_GREATERTHAN : WC_E_ELEMENTMATCH;
  }
  name_.text = Slice(at, at + expected.size());
  at = SkipSpace(at + expected.size());
  if (*at == '\0') return kMoreInput;
  if (*at != '>') return WC_E_GREATERTHAN;

  const OpenElement closed = open_elements_.data()[open_elements_.size() - 1];
  name_.prefix = closed.prefix;
  namespaces_.Leave(closed.declarations);
  open_names_.Truncate(closed.name_start);
  open_elements_.Truncate(open_elements_.size() - 1);
  return Deliver(XmlNodeType_EndElement, at + 1);
}

// ---- other markup ------------------------------------------------------------------------------

/// `at` stands behind "<!--".
HRESULT Parser::ParseComment(const char* at) {
  const char* const start = at;
  for (;;) {
    at = Find<'-'>(at);
    if (*at == '\0') return kMoreInput;
    ++at;
    if (*at == '\0') return kMoreInput;
    if (*at == '-') break;
  }
  if (at[1] == '\0') return kMoreInput;
  if (at[1] != '>') return WC_E_COMMENT;
  value_ = Slice(start, at - 1);
  value_is_plain_ = false;
  return Deliver(XmlNodeType_Comment, at + 2);
}

/// `at` stands behind "<![CDATA[".
HRESULT Parser::ParseCData(const char* at) {
  const char* const start = at;
  for (;; ++at) {
    at = Find<']'>(at);
    if (*at == '\0') return kMoreInput;
    if (at[1] == ']' && at[2] == '>') break;
  }
  value_ = Slice(start, at);
  value_is_plain_ = false;
  return Deliver(XmlNodeType_CDATA, at + 3);
}

/// `at` stands behind "<?".
HRESULT Parser::ParseProcessingInstruction(const char* at) {
  const char* const target = at;
  at = SkipName(at);
  if (*at == '\0') return kMoreInput;
  if (at == target) return WC_E_PI;
  if (*at == ':') return NC_E_NAMECOLON;
  const std::string_view name = Slice(target, at);
  if (name == "xml") return started_ ? WC_E_TEXTXMLDECL : ParseDeclaration(at);
  const bool reserved = name.size() == 3 && (name[0] | 0x20) == 'x' && (name[1] | 0x20) == 'm' &&
                        (name[2] | 0x20) == 'l';
  if (reserved) return WC_E_LEADINGXML;

  const char* const start = SkipSpace(at);
  if (start == at && *at != '?') return WC_E_PI;
  const char* end = start;
  for (;; ++end) {
    end = Find<'?'>(end);
    if (*end == '\0') return kMoreInput;
    if (end[1] == '>') break;
    if (end[1] == '\0') return kMoreInput;
    if (start == at) return WC_E_PI;  // the target is followed by '?', but not by "?>"
  }
  name_ = {name, 0};
  value_ = Slice(start, end);
  value_is_plain_ = false;
  return Deliver(XmlNodeType_ProcessingInstruction, end + 2);
}

/// `at` stands behind "<?xml", at the very start of the document.
HRESULT Parser::ParseDeclaration(const char* at) {
  std::string_view version;
  HRESULT result = ParseDeclarationItem(at, "version", version);
  if (result != S_OK) return result == S_FALSE ? WC_E_XMLDECL : result;
  const bool is_version_1 =
      version.size() > 2 && version.starts_with("1.") &&
      std::all_of(version.begin() + 2, version.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (!is_version_1) return WC_E_XMLDECL;

  std::string_view encoding;
  result = ParseDeclarationItem(at, "encoding", encoding);
  if (result != S_OK && result != S_FALSE) return result;
  if (result == S_OK) {
    const bool starts_with_letter =
        !encoding.empty() && IsClass(encoding[0], kNameStart) && encoding[0] != '_';
    if (!starts_with_letter) return WC_E_XMLDECL;
    const HRESULT judged = input_.CheckDeclaredEncoding(encoding);
    if (judged != S_OK) return judged;
  }

  std::string_view standalone;
  result = ParseDeclarationItem(at, "standalone", standalone);
  if (result != S_OK && result != S_FALSE) return result;
  if (result == S_OK && standalone != "yes" && standalone != "no") return WC_E_XMLDECL;

  at = SkipSpace(at);
  result = Match(at, "?>");
  if (result != S_OK) return result == S_FALSE ? WC_E_XMLDECL : result;
  return Deliver(XmlNodeType_XmlDeclaration, at + 2);
}

/// Reads white space, `name`, '=' and a quoted value; S_FALSE, with `at` as it was, when something
/// else follows.
HRESULT Parser::ParseDeclarationItem(const char*& at, std::string_view name,
                                     std::string_view& value) {
  const char* next = SkipSpace(at);
  const HRESULT match = Match(next, name);
  if (match != S_OK) return match;
  if (next == at) return WC_E_XMLDECL;  // no white space before it
  next = SkipSpace(next + name.size());
  if (*next == '\0') return kMoreInput;
  if (*next != '=') return WC_E_XMLDECL;
  next = SkipSpace(next + 1);
  if (*next == '\0') return kMoreInput;
  if (*next != '"' && *next != '\'') return WC_E_XMLDECL;
  const char quote = *next;
  const char* const start = ++next;
  // What the three values may hold is ASCII, and neither '<' nor '?'.
  while (*next != quote) {
    if (*next == '\0') return kMoreInput;
    if (!IsClass(*next, kName)) return WC_E_XMLDECL;
    ++next;
  }
  value = Slice(start, next);
  at = next + 1;
  return S_OK;
}

}  // namespace tolva::platform::own_xml
