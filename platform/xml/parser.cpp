#include "platform/xml/parser.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "platform/xml/characters.h"

namespace tolva::platform::own_xml {
namespace {

/// What is parsed before there is any input.
constexpr char kNoInput[Input::kPadding] = {};

/// So many attributes never take much memory.
constexpr std::size_t kFewAttributes = 64;

/// Start tags with more attributes than this do not keep their memory.
constexpr std::size_t kAttributesKept = 1024;

std::string_view Slice(const char* start, const char* end) {
  return {start, static_cast<std::size_t>(end - start)};
}

const char* EndOf(std::string_view text) { return text.data() + text.size(); }

bool IsSpace(char c) { return IsClass(c, kSpace); }

// ---- texts in the window -----------------------------------------------------------------------

enum class Match : std::uint8_t {
  kYes,
  kNo,
  kCutOff,  ///< the window ends within the text
};

Match MatchText(const char* at, std::string_view text) {
  for (const char c : text) {
    if (*at != c) return *at == '\0' ? Match::kCutOff : Match::kNo;
    ++at;
  }
  return Match::kYes;
}

/// Done if `text` is at `at`; `fault` if something else is.
Status Expect(const char* at, std::string_view text, HRESULT fault) {
  const Match match = MatchText(at, text);
  if (match == Match::kCutOff) return kMoreInput;
  return match == Match::kYes ? kDone : fault;
}

/// Whether `text`, a name, is at `at`. A vector's width is readable after both.
bool StartsWithName(const char* at, std::string_view name) {
  for (std::size_t i = 0; i < name.size(); i += Bytes::kCount) {
    const Mask equal = Bytes::Load(at + i).Is(Bytes::Load(name.data() + i)).ToMask();
    const unsigned same = FirstOf(~equal);
    // A name contains no zero, so a difference is found before the padding of the window ends.
    if (same != Bytes::kCount) return i + same >= name.size();
  }
  return true;
}

// ---- names -------------------------------------------------------------------------------------

/// Reads the rest of a name that has a prefix, from the colon on.
Status ReadLocalPart(const char* colon, QName& name) {
  const char* const end = SkipName(colon + 1);
  if (*end == '\0') return kMoreInput;
  if (end == colon + 1) return NC_E_QNAMECHARACTER;
  if (*end == ':') return NC_E_QNAMECOLON;
  name.prefix = name.text.size();
  name.text = Slice(name.text.data(), end);
  return kDone;
}

/// Reads a name that may have a prefix.
inline Status ReadQName(const char* at, QName& name) {
  const char* const end = SkipName(at);
  name.text = Slice(at, end);
  name.prefix = 0;
  if (*end == ':' && end != at) return ReadLocalPart(end, name);
  if (*end == '\0') return kMoreInput;
  return end == at ? NC_E_QNAMECHARACTER : kDone;
}

/// Whether an attribute without a prefix declares a namespace. With ==, GCC copies each name to
/// memory to call a function, and a walk takes 2 % longer.
bool IsXmlns(std::string_view name) {
  return name.size() == 5 && std::memcmp(name.data(), "xmlns", 5) == 0;
}

/// Whether a processing instruction's target is "xml" in upper or lower case.
bool IsReservedTarget(std::string_view target) {
  return target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' &&
         (target[2] | 0x20) == 'l';
}

// ---- attributes --------------------------------------------------------------------------------

/// Reads a value in quotes; `at` is moved from the first quote to after the last.
template <char Quote>
Status ReadQuotedValue(const char*& at, Attribute& attribute) {
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
      if (!reference.status.IsDone()) return reference.status;
      at = reference.end;
    } else {
      ++at;
    }
  }
  attribute.value = Slice(start, at);
  ++at;
  return kDone;
}

/// Does the same for a value in double quotes of less than a vector's width, if it is plain.
inline bool ReadShortValue(const char*& at, Attribute& attribute) {
  const char* const start = at + 1;
  const Bytes block = Bytes::Load(start);
  const Bytes ends = block.IsControl() | block.Is('"') | block.Is('<') | block.Is('&');
  const unsigned size = FirstOf(ends.ToMask());
  if (size == Bytes::kCount || start[size] != '"') return false;
  attribute.value = {start, size};
  attribute.plain = true;
  at = start + size + 1;
  return true;
}

/// Reads what follows an attribute's name: '=' and the value. `at` is moved after it.
inline Status ReadAttributeValue(const char*& at, Attribute& attribute) {
  if (*at != '=') {
    at = SkipSpace(at);
    if (*at != '=') return *at == '\0' ? kMoreInput : WC_E_EQUAL;
  }
  ++at;
  if (*at != '"') at = SkipSpace(at);
  if (*at == '"' && ReadShortValue(at, attribute)) return kDone;
  if (*at == '"') return ReadQuotedValue<'"'>(at, attribute);
  if (*at == '\'') return ReadQuotedValue<'\''>(at, attribute);
  return *at == '\0' ? kMoreInput : WC_E_QUOTE;
}

// ---- the XML declaration -----------------------------------------------------------------------

/// Reads white space, `name`, '=' and a value in quotes, and moves `at` after it. If something else
/// follows, `at` stays and `value` is left empty.
Status ReadPseudoAttribute(const char*& at, std::string_view name,
                           std::optional<std::string_view>& value) {
  const char* next = SkipSpace(at);
  const Match match = MatchText(next, name);
  if (match == Match::kCutOff) return kMoreInput;
  if (match == Match::kNo) return kDone;
  if (next == at) return WC_E_XMLDECL;  // no white space before it
  next = SkipSpace(next + name.size());
  if (*next == '\0') return kMoreInput;
  if (*next != '=') return WC_E_XMLDECL;
  next = SkipSpace(next + 1);
  if (*next == '\0') return kMoreInput;
  if (*next != '"' && *next != '\'') return WC_E_XMLDECL;
  const char quote = *next;
  const char* const start = ++next;
  // The three values consist of characters that are allowed in ASCII names.
  while (*next != quote) {
    if (*next == '\0') return kMoreInput;
    if (!IsClass(*next, kName)) return WC_E_XMLDECL;
    ++next;
  }
  value = Slice(start, next);
  at = next + 1;
  return kDone;
}

Status ParseVersion(const char*& at) {
  std::optional<std::string_view> version;
  const Status status = ReadPseudoAttribute(at, "version", version);
  if (!status.IsDone()) return status;
  const bool is_version_1 = version && version->size() > 2 && version->starts_with("1.") &&
                            std::all_of(version->begin() + 2, version->end(),
                                        [](char c) { return c >= '0' && c <= '9'; });
  if (is_version_1) return kDone;
  if (version) at = version->data();  // where the fault is
  return WC_E_XMLDECL;
}

Status ParseStandalone(const char*& at) {
  std::optional<std::string_view> standalone;
  const Status status = ReadPseudoAttribute(at, "standalone", standalone);
  if (!status.IsDone()) return status;
  const bool is_allowed = !standalone || *standalone == "yes" || *standalone == "no";
  if (is_allowed) return kDone;
  at = standalone->data();
  return WC_E_XMLDECL;
}

}  // namespace

inline void Parser::ClearNode() {
  type_ = XmlNodeType_None;
  name_ = {};
  value_ = {};
  is_empty_element_ = false;
  found_ = 0;
  if (attributes_.size() <= kFewAttributes) {
    attributes_.Truncate(0);
  } else {
    ClearAttributes();
  }
}

void Parser::ClearAttributes() {
  attributes_.Clear();
  if (sorted_names_.capacity() > kAttributesKept) sorted_names_ = std::vector<std::string_view>();
}

void Parser::SetInput(ISequentialStream* stream, bool converted) {
  if (stream == nullptr) {
    input_.Close();
    result_ = ReadResult::kFault;
    fault_ = E_UNEXPECTED;
  } else {
    input_.Open(stream, converted);
    result_ = ReadResult::kNode;
    fault_ = E_OUTOFMEMORY;  // until a call finds another
  }
  fault_at_ = nullptr;
  at_ = kNoInput;
  has_delivered_ = false;
  has_root_ = false;
  at_limit_ = false;
  ClearNode();
  open_names_.Clear();
  depth_ = 0;
  namespaces_.Clear();
}

/// `at` is after the '<'.
inline Status Parser::ParseMarkup(const char* at) {
  switch (*at) {
    case '/':
      // Where no element is open, this is a start tag whose name is malformed.
      return IsOutsideRoot() ? NC_E_QNAMECHARACTER : ParseEndTag(at + 1);
    case '?':
      return ParseProcessingInstruction(at + 1);
    case '!':
      return ParseExclamation(at + 1);
    case '\0':
      return kMoreInput;
    default:
      return ParseStartTag(at);
  }
}

/// Parses the node at `at_`.
template <bool skips_space>
inline Status Parser::ParseNode() {
  if (*at_ != '<') {
    if (*at_ == '\0') return kMoreInput;
    if (IsOutsideRoot()) return ParseOutsideRoot();
    if constexpr (!skips_space) return ParseText();
    const char* const end = SkipIndent(at_);
    if (*end != '<') return ParseCharacters(end);
    at_ = end;
  }
  return ParseMarkup(at_ + 1);
}

template <bool skips_space>
ReadResult Parser::ReadNode() {
  if (result_ != ReadResult::kNode) return result_;
  ClearNode();
  // After a call that has thrown, the state is not known: the document cannot be read on.
  result_ = ReadResult::kFault;
  Status status = ParseNode<skips_space>();
  while (status.NeedsMoreInput()) {
    // The node is parsed again from its start: `Input::More` sees to it that this is not done too
    // often. It moves the window, so nothing may point there any more.
    ClearNode();
    fault_at_ = nullptr;
    if (!input_.More(at_)) {
      if (at_limit_) return EndAtLimit();
      at_limit_ = true;
    }
    status = ParseNode<skips_space>();
  }
  if (!status.IsDone()) return Fail(status.fault());
  result_ = ReadResult::kNode;
  return result_;
}

template ReadResult Parser::ReadNode<false>();
template ReadResult Parser::ReadNode<true>();

ReadResult Parser::Fail(HRESULT fault) {
  ClearNode();
  if (fault_at_ == nullptr) fault_at_ = at_;
  fault_ = fault;
  result_ = ReadResult::kFault;
  return result_;
}

/// The document ends, or breaks off within a node.
ReadResult Parser::EndAtLimit() {
  const bool is_between_nodes = IsOutsideRoot() && at_ == input_.limit();
  fault_at_ = input_.limit();
  if (input_.end() == Input::End::kStreamFailure) return Fail(input_.stream_failure());
  if (input_.end() == Input::End::kIllegalCharacter) {
    // Outside the root any character that is not markup is a fault, whether it is legal or not.
    return Fail(is_between_nodes ? WC_E_SYNTAX : WC_E_XMLCHARACTER);
  }
  if (!is_between_nodes) return Fail(MX_E_INPUTEND);
  if (!has_root_) return Fail(WC_E_ROOTELEMENT);
  result_ = ReadResult::kEnd;
  return result_;
}

inline Status Parser::Deliver(XmlNodeType type, const char* end) {
  type_ = type;
  has_delivered_ = true;
  at_ = end;
  return kDone;
}

// ---- text --------------------------------------------------------------------------------------

Status Parser::ParseOutsideRoot() {
  const char* const end = SkipSpace(at_);
  if (end == at_) return WC_E_SYNTAX;
  if (*end == '\0' && !at_limit_) return kMoreInput;
  value_ = Slice(at_, end);
  value_is_plain_ = false;  // there may be a CR
  return Deliver(XmlNodeType_Whitespace, end);
}

/// In the root, white space before markup is a node. White space before other characters is a part
/// of the text.
Status Parser::ParseText() {
  const char* const end = SkipSpace(at_);
  if (*end != '<') return ParseCharacters(end);
  value_ = Slice(at_, end);
  value_is_plain_ = false;
  return Deliver(XmlNodeType_Whitespace, end);
}

/// A text whose white space at the start ends at `after_space`, perhaps with the window.
Status Parser::ParseCharacters(const char* after_space) {
  const bool is_space = *after_space == '\0';
  const char* at = at_;
  bool plain = true;
  for (;;) {
    at = Find<'<', '&', ']', '\r'>(at);
    if (*at == '<') break;
    if (*at == '\0') {
      // A text is delivered if the stream ends after it, but not if an illegal character follows.
      if (!at_limit_ || input_.end() == Input::End::kIllegalCharacter) return kMoreInput;
      break;
    }
    if (*at == '&') {
      const Reference reference = ReadReference(at);
      if (!reference.status.IsDone()) return FaultAt(at, reference.status);
      at = reference.end;
      plain = false;
      continue;
    }
    if (*at == ']' && at[1] == ']' && at[2] == '>') return FaultAt(at, WC_E_CDSECTEND);
    plain = plain && *at != '\r';
    ++at;
  }
  value_ = Slice(at_, at);
  value_is_plain_ = plain;
  return Deliver(is_space ? XmlNodeType_Whitespace : XmlNodeType_Text, at);
}

// ---- tags --------------------------------------------------------------------------------------

Status Parser::ParseStartTag(const char* at) {
  if (IsOutsideRoot() && has_root_) return WC_E_ROOTELEMENT;
  if (depth_ == kMaxDepth) return SC_E_MAXELEMENTDEPTH;

  QName name;  // a local, so that it stays in registers
  Status status = ReadQName(at, name);
  if (!status.IsDone()) return FaultAt(at, status);
  name_ = name;
  at = EndOf(name.text);
  TagTraits traits;
  traits.uses_namespaces = name.prefix != 0;
  if (*at != '>') {
    status = ParseAttributes(at, at, traits);
    if (!status.IsDone()) return status;
  }
  is_empty_element_ = *at == '/';
  if (is_empty_element_) {
    ++at;
    if (*at == '\0') return kMoreInput;
    if (*at != '>') return FaultAt(at, WC_E_GREATERTHAN);
  }
  status = OpenScope(traits);
  return status.IsDone() ? Deliver(XmlNodeType_Element, at + 1) : status;
}

inline void Parser::TagTraits::Add(const QName& attribute) {
  if (attribute.prefix != 0 || IsXmlns(attribute.text)) uses_namespaces = true;
  if (filter.MayBeDuplicate(attribute.text)) may_have_duplicates = true;
}

/// `at` is the end of the element's name. Sets `end` to the '>' or '/' that ends the tag.
Status Parser::ParseAttributes(const char* at, const char*& end, TagTraits& traits) {
  for (;;) {
    if (!IsSpace(*at)) {
      end = at;
      if (*at == '>' || *at == '/') return kDone;
      if (*at == '\0') return kMoreInput;
      return FaultAt(at, attributes_.size() == 0 ? NC_E_QNAMECHARACTER : WC_E_WHITESPACE);
    }
    at = SkipSpace(at + 1);

    Attribute& attribute = *attributes_.Room(1);
    Status status = ReadQName(at, attribute.name);
    if (!status.IsDone()) {
      end = at;
      return *at == '>' || *at == '/' ? kDone : FaultAt(at, status);
    }
    traits.Add(attribute.name);
    at = EndOf(attribute.name.text);
    status = ReadAttributeValue(at, attribute);
    if (!status.IsDone()) return FaultAt(at, status);
    attributes_.Commit(1);
  }
}

/// Validates the names in a start tag, and opens the element unless it is empty.
inline Status Parser::OpenScope(const TagTraits& traits) {
  if (traits.may_have_duplicates) {
    const Status status = CheckUniqueNames();
    if (!status.IsDone()) return status;
  }
  const std::size_t declarations = namespaces_.size();
  if (traits.uses_namespaces) {
    const Status status = namespaces_.Enter(name_, attributes());
    if (!status.IsDone()) return FaultAt(namespaces_.fault_at(), status);
    if (is_empty_element_) namespaces_.Leave(declarations);
  }
  if (!is_empty_element_) OpenElement(name_, declarations);
  has_root_ = true;
  return kDone;
}

inline void Parser::OpenElement(const QName& name, std::size_t declarations) {
  const std::size_t name_start = open_names_.size();
  PushName(name.text);
  scopes_[depth_++] = {name_start, name.prefix, declarations};
}

inline void Parser::CloseElement() {
  const Scope& closed = scopes_[--depth_];
  namespaces_.Leave(closed.declarations);
  open_names_.Truncate(closed.name_start);
}

/// Compares the names as they are written.
Status Parser::CheckUniqueNames() {
  constexpr std::size_t kFew = 16;
  const auto all = attributes();
  if (all.size() <= kFew) {
    for (std::size_t i = 1; i < all.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        if (all[i].name.text != all[j].name.text) continue;
        return FaultAt(all[i].name.text.data(), WC_E_UNIQUEATTRIBUTE);
      }
    }
    return kDone;
  }
  sorted_names_.clear();
  for (const Attribute& attribute : all) sorted_names_.push_back(attribute.name.text);
  std::sort(sorted_names_.begin(), sorted_names_.end());
  const auto duplicate = std::adjacent_find(sorted_names_.begin(), sorted_names_.end());
  if (duplicate == sorted_names_.end()) return kDone;
  return FaultAt(std::max(duplicate->data(), duplicate[1].data()), WC_E_UNIQUEATTRIBUTE);
}

/// Leaves a vector's width readable after the names.
inline void Parser::PushName(std::string_view name) {
  char* const room = open_names_.Room(name.size() + Bytes::kCount);
  for (std::size_t i = 0; i < name.size(); i += Bytes::kCount) {
    Bytes::Load(name.data() + i).Store(room + i);
  }
  open_names_.Commit(name.size());
}

std::string_view Parser::InnermostName() const {
  const std::size_t start = scopes_[depth_ - 1].name_start;
  return {open_names_.data() + start, open_names_.size() - start};
}

/// `at` is after "</".
Status Parser::ParseEndTag(const char* at) {
  const std::string_view expected = InnermostName();
  const bool matches =
      StartsWithName(at, expected) && (at[expected.size()] == '>' || IsSpace(at[expected.size()]));
  if (!matches) {
    QName other;
    const Status status = ReadQName(at, other);
    if (!status.IsDone()) return FaultAt(at, status);
    if (other.text != expected) return WC_E_ELEMENTMATCH;
    return FaultAt(EndOf(other.text), WC_E_GREATERTHAN);
  }
  name_.text = Slice(at, at + expected.size());
  at = SkipSpace(at + expected.size());
  if (*at == '\0') return kMoreInput;
  if (*at != '>') return FaultAt(at, WC_E_GREATERTHAN);

  name_.prefix = scopes_[depth_ - 1].prefix;
  CloseElement();
  return Deliver(XmlNodeType_EndElement, at + 1);
}

// ---- tags that a table knows -------------------------------------------------------------------

// These functions read what `ParseStartTag` and `ParseEndTag` read, but nothing unusual, so they
// have no faults to report. Until they are certain they change nothing that matters. The window
// ends with zeros, which match nothing, so they need no other check for its end.

bool Parser::ReadKnownTag(const KnownTags& tags, std::size_t& index) {
  if (result_ != ReadResult::kNode || IsOutsideRoot()) return false;
  const char* const at = IsClass(*at_, kSpace) ? SkipIndent(at_) : at_;
  if (*at != '<') return false;
  return at[1] == '/' ? ReadKnownEndTag(at + 2) : ReadKnownStartTag(at + 1, tags, index);
}

inline bool Parser::ReadKnownEndTag(const char* at) {
  const std::string_view name = InnermostName();
  if (!StartsWithName(at, name) || at[name.size()] != '>') return false;
  ClearNode();
  name_ = {Slice(at, at + name.size()), scopes_[depth_ - 1].prefix};
  CloseElement();
  return Deliver(XmlNodeType_EndElement, at + name.size() + 1).IsDone();
}

inline bool Parser::ReadKnownStartTag(const char* at, const KnownTags& tags, std::size_t& index) {
  if (tags.size() == 0) return false;
  std::size_t place = index;
  for (std::size_t tried = 0; !tags[place].name.IsAt(at); ++tried) {
    if (tried == tags.size()) return false;
    if (++place == tags.size()) place = 0;
  }
  if (depth_ == kMaxDepth) return false;
  const QName name = {Slice(at, at + tags[place].name.size()), 0};
  at = EndOf(name.text);
  ClearNode();
  if (*at == ' ' && !ReadKnownAttributes(at, *tags[place].attributes)) return false;
  const bool is_empty = *at == '/';
  if (is_empty) ++at;
  if (*at != '>') return false;
  if (!is_empty) OpenElement(name, namespaces_.size());
  name_ = name;
  is_empty_element_ = is_empty;
  index = place;
  return Deliver(XmlNodeType_Element, at + 1).IsDone();
}

/// `at` is moved from the space before the first attribute to the end of the last. Each attribute
/// is searched for from the name after the previous one.
inline bool Parser::ReadKnownAttributes(const char*& at, const Names& names) {
  if (names.size() == 0) return false;
  Attribute* const attributes = attributes_.Room(names.size());
  std::size_t count = 0;
  std::size_t place = 0;
  std::uint64_t found = 0;
  do {
    for (std::size_t tried = 0; !names[place].StartsAttributeAt(at); ++tried) {
      if (tried == names.size()) return false;
      if (++place == names.size()) place = 0;
    }
    const std::uint64_t bit = std::uint64_t{1} << place;
    if ((found & bit) != 0) return false;
    found |= bit;
    positions_[place] = static_cast<std::uint32_t>(count);
    Attribute& attribute = attributes[count++];
    const char* const name = at + 1;
    at = name + names[place].size() + 1;  // the first quote
    attribute.name = {Slice(name, at - 1), 0};
    if (!ReadShortValue(at, attribute) && !ReadQuotedValue<'"'>(at, attribute).IsDone()) {
      return false;
    }
    if (++place == names.size()) place = 0;
  } while (*at == ' ');
  attributes_.Commit(count);
  found_ = found;
  return true;
}

void Parser::FindAttributes(const Names& names) {
  found_ = 0;
  for (std::size_t i = 0; i < attributes_.size(); ++i) {
    const QName& name = attributes_.data()[i].name;
    if (name.prefix != 0) continue;
    for (std::size_t place = 0; place < names.size(); ++place) {
      if (names[place] != name.text) continue;
      found_ |= std::uint64_t{1} << place;
      positions_[place] = static_cast<std::uint32_t>(i);
      break;
    }
  }
}

// ---- other markup ------------------------------------------------------------------------------

/// `at` is after "<!".
Status Parser::ParseExclamation(const char* at) {
  if (*at == '-') {
    ++at;
    if (*at == '-') return ParseComment(at + 1);
    return *at == '\0' ? kMoreInput : WC_E_COMMENT;
  }
  if (*at == '[') {
    if (IsOutsideRoot()) return WC_E_SYNTAX;
    const Status status = Expect(at, "[CDATA[", WC_E_CDSECT);
    return status.IsDone() ? ParseCData(at + 7) : status;
  }
  const Status status = Expect(at, "DOCTYPE", WC_E_SYNTAX);
  if (!status.IsDone()) return status;
  return has_root_ ? WC_E_SYNTAX : WC_E_DTDPROHIBITED;
}

/// `at` is after "<!--".
Status Parser::ParseComment(const char* at) {
  const char* const start = at;
  for (;;) {
    at = Find<'-'>(at);
    if (*at == '\0') return kMoreInput;
    ++at;
    if (*at == '\0') return kMoreInput;
    if (*at == '-') break;
  }
  if (at[1] == '\0') return kMoreInput;
  if (at[1] != '>') return FaultAt(at - 1, WC_E_COMMENT);
  value_ = Slice(start, at - 1);
  value_is_plain_ = false;
  return Deliver(XmlNodeType_Comment, at + 2);
}

/// `at` is after "<![CDATA[".
Status Parser::ParseCData(const char* at) {
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

/// `at` is after "<?".
Status Parser::ParseProcessingInstruction(const char* at) {
  const char* const target_end = SkipName(at);
  if (*target_end == '\0') return kMoreInput;
  if (target_end == at) return FaultAt(at, WC_E_PI);
  if (*target_end == ':') return FaultAt(target_end, NC_E_NAMECOLON);
  const std::string_view target = Slice(at, target_end);
  if (target == "xml") return has_delivered_ ? WC_E_TEXTXMLDECL : ParseDeclaration(target_end);
  if (IsReservedTarget(target)) return WC_E_LEADINGXML;

  const char* const start = SkipSpace(target_end);
  const bool has_space = start != target_end;
  if (!has_space && *start != '?') return FaultAt(start, WC_E_PI);
  const char* end = start;
  for (;; ++end) {
    end = Find<'?'>(end);
    if (*end == '\0') return kMoreInput;
    if (end[1] == '>') break;
    if (end[1] == '\0') return kMoreInput;
    if (!has_space) return FaultAt(start, WC_E_PI);
  }
  name_ = {target, 0};
  value_ = Slice(start, end);
  value_is_plain_ = false;
  return Deliver(XmlNodeType_ProcessingInstruction, end + 2);
}

/// `at` is after "<?xml" at the start of the document.
Status Parser::ParseDeclaration(const char* at) {
  Status status = ParseVersion(at);
  if (status.IsDone()) status = ParseEncodingDeclaration(at);
  if (status.IsDone()) status = ParseStandalone(at);
  if (!status.IsDone()) return FaultAt(fault_at_ == nullptr ? SkipSpace(at) : fault_at_, status);
  at = SkipSpace(at);
  status = Expect(at, "?>", WC_E_XMLDECL);
  return status.IsDone() ? Deliver(XmlNodeType_XmlDeclaration, at + 2) : FaultAt(at, status);
}

Status Parser::ParseEncodingDeclaration(const char*& at) {
  std::optional<std::string_view> name;
  const Status status = ReadPseudoAttribute(at, "encoding", name);
  if (!status.IsDone() || !name) return status;
  const bool starts_with_letter =
      !name->empty() && IsClass(name->front(), kNameStart) && name->front() != '_';
  const Status found = starts_with_letter ? input_.CheckDeclaredEncoding(*name) : WC_E_XMLDECL;
  return found.IsDone() ? found : FaultAt(name->data(), found);
}

}  // namespace tolva::platform::own_xml
