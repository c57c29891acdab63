#include "differential/compare.h"

#include <strings.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <utility>

#include "platform/utf.h"
#include "platform/xml/parser.h"
#include "support/streams.h"

namespace tolva::test {
namespace {

using namespace std::string_view_literals;
using own_xml::ValueKind;

// ---- the own parser ----------------------------------------------------------------------------

/// What a table of the library could know of the documents here.
struct AttributeRow {
  Name name;
};
constexpr AttributeRow kAttributeRows[] = {{L"a"}, {L"b"}, {L"x"}};
constexpr Names kAttributes(std::span<const AttributeRow>(kAttributeRows), &AttributeRow::name);
constexpr Names kNoAttributes;
constexpr struct TagRow {
  KnownTag tag;
} kTagRows[] = {{{L"a", &kAttributes}}, {{L"b", &kAttributes}}, {{L"c", &kNoAttributes}}};
const KnownTags kTagTable(std::span<const TagRow>(kTagRows), &TagRow::tag);

/// How a document is walked through.
enum class Way : std::uint8_t {
  kNodes,      ///< every node
  kTags,       ///< every node but white space between tags
  kKnownTags,  ///< the same, but tags that a table knows are read as such
};

class OwnReader {
 public:
  /// What is wrong with the document, or S_OK.
  HRESULT Read(std::string_view document, std::size_t block, Way way = Way::kNodes) {
    nodes_.Clear();
    depth_ = 0;
    way_ = way;
    TextStream stream(document, block);
    parser_.SetInput(&stream, false);
    own_xml::ReadResult result = own_xml::ReadResult::kNode;
    std::size_t nodes = 0;
    while ((result = Move()) == own_xml::ReadResult::kNode && nodes++ <= document.size()) AddNode();
    const HRESULT fault = result == own_xml::ReadResult::kFault ? parser_.fault() : S_OK;
    parser_.SetInput(nullptr, false);
    return fault;
  }

  const std::string& nodes() const { return nodes_.text(); }

 private:
  own_xml::ReadResult Move() {
    if (way_ == Way::kNodes) return parser_.Read();
    std::size_t index = 1;
    if (way_ == Way::kKnownTags && parser_.ReadKnownTag(kTagTable, index)) {
      if (parser_.type() == XmlNodeType_Element) CheckKnownTag(index);
      return own_xml::ReadResult::kNode;
    }
    return parser_.ReadTag();
  }

  /// The tag and its attributes are where their names are in the table.
  void CheckKnownTag(std::size_t index) {
    bool holds = kTagTable[index].name == parser_.name().text;
    const Names& names = *kTagTable[index].attributes;
    std::size_t found = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
      const own_xml::Attribute* const attribute = parser_.FoundAttribute(i);
      if (attribute == nullptr) continue;
      ++found;
      holds = holds && names[i] == attribute->name.text;
    }
    if (!holds || found != parser_.attributes().size()) nodes_.Begin('-', "not that tag");
  }

  void AddNode() {
    const std::string_view name = parser_.name().text;
    switch (parser_.type()) {
      case XmlNodeType_Element:
        nodes_.Begin('<', name);
        ++depth_;
        for (const own_xml::Attribute& attribute : parser_.attributes()) {
          nodes_.Add(attribute.name.text);
          nodes_.Add(Value(attribute.value, attribute.plain, ValueKind::kAttribute));
        }
        if (!parser_.is_empty_element()) break;
        [[fallthrough]];
      case XmlNodeType_EndElement:
        nodes_.Begin('>', name);
        --depth_;
        break;
      case XmlNodeType_Text:
        nodes_.Begin('T', NodeValue(ValueKind::kText));
        break;
      case XmlNodeType_Whitespace:
        if (way_ != Way::kNodes && depth_ != 0) break;
        // Outside the root expat tells of blanks as they stand there.
        nodes_.Begin('T', depth_ != 0 ? NodeValue(ValueKind::kLiteral) : parser_.value());
        break;
      case XmlNodeType_CDATA:
        nodes_.Begin('C', NodeValue(ValueKind::kLiteral));
        break;
      case XmlNodeType_Comment:
        nodes_.Begin('!', NodeValue(ValueKind::kLiteral));
        break;
      case XmlNodeType_ProcessingInstruction:
        nodes_.Begin('?', name);
        nodes_.Add(NodeValue(ValueKind::kLiteral));
        break;
      case XmlNodeType_XmlDeclaration:
        nodes_.Begin('D');
        break;
      default:
        nodes_.Begin('-');
    }
  }

  std::string_view NodeValue(ValueKind kind) {
    return Value(parser_.value(), parser_.value_is_plain(), kind);
  }

  std::string_view Value(std::string_view raw, bool plain, ValueKind kind) {
    if (plain) return raw;
    value_.Clear();
    own_xml::AppendValue(raw, kind, value_);
    return {value_.data(), value_.size()};
  }

  own_xml::Parser parser_;
  Way way_ = Way::kNodes;
  Nodes nodes_;
  Buffer<char> value_;
  std::size_t depth_ = 0;
};

// ---- expat -------------------------------------------------------------------------------------

class ExpatReader {
 public:
  /// Without namespaces, names are delivered as they stand in the document.
  explicit ExpatReader(bool namespaces)
      : parser_(namespaces ? XML_ParserCreateNS(nullptr, Nodes::kPart)
                           : XML_ParserCreate(nullptr)) {}

  bool Read(std::string_view document, bool with_nodes) {
    XML_Parser parser = parser_.get();
    XML_ParserReset(parser, nullptr);
    XML_SetHashSalt(parser, 1);  // otherwise each document asks the system for a random number
    XML_SetUserData(parser, this);
    nodes_.Clear();
    is_latin1_ = false;
    has_mark_ = document.starts_with("\xEF\xBB\xBF");
    XML_SetXmlDeclHandler(parser, OnDeclaration);
    XML_SetStartDoctypeDeclHandler(parser, [](void* self, const char*, const char*, const char*,
                                              int) { static_cast<ExpatReader*>(self)->Refuse(); });
    if (with_nodes) SetNodeHandlers();
    return XML_Parse(parser, document.data(), static_cast<int>(document.size()), XML_TRUE) ==
           XML_STATUS_OK;
  }

  XML_Error error() const { return XML_GetErrorCode(parser_.get()); }
  std::size_t error_at() const {
    return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_.get()));
  }
  bool is_latin1() const { return is_latin1_; }
  const std::string& nodes() const { return nodes_.text(); }

 private:
  static Nodes& NodesOf(void* self) { return static_cast<ExpatReader*>(self)->nodes_; }

  /// Expat does not look at the number of the version, and follows a declared encoding even when a
  /// byte-order mark has said another. XML 1.0 calls both an error.
  static void OnDeclaration(void* self, const char* version, const char* encoding, int) {
    auto* const reader = static_cast<ExpatReader*>(self);
    const std::string_view number = version == nullptr ? "" : version;
    const bool is_version_1 = number.size() > 2 && number.starts_with("1.") &&
                              number.find_first_not_of("0123456789", 2) == std::string_view::npos;
    const bool contradicts_mark =
        reader->has_mark_ && encoding != nullptr && strcasecmp(encoding, "UTF-8") != 0;
    if (!is_version_1 || contradicts_mark) reader->Refuse();
    reader->is_latin1_ = encoding != nullptr && strcasecmp(encoding, "ISO-8859-1") == 0;
    reader->nodes_.Begin('D');
  }

  void Refuse() { XML_StopParser(parser_.get(), XML_FALSE); }

  void SetNodeHandlers() {
    XML_Parser parser = parser_.get();
    const auto on_text = [](void* self, const char* text, int size) {
      NodesOf(self).AddText({text, static_cast<std::size_t>(size)});
    };
    XML_SetElementHandler(
        parser,
        [](void* self, const char* name, const char** attributes) {
          NodesOf(self).Begin('<', name);
          for (; *attributes != nullptr; ++attributes) NodesOf(self).Add(*attributes);
        },
        [](void* self, const char* name) { NodesOf(self).Begin('>', name); });
    XML_SetCharacterDataHandler(parser, on_text);
    XML_SetDefaultHandler(parser, on_text);  // white space outside the root
    XML_SetCdataSectionHandler(
        parser, [](void* self) { NodesOf(self).Begin('C'); },
        [](void* self) { NodesOf(self).EndText(); });
    XML_SetCommentHandler(parser,
                          [](void* self, const char* text) { NodesOf(self).Begin('!', text); });
    XML_SetProcessingInstructionHandler(parser,
                                        [](void* self, const char* target, const char* data) {
                                          NodesOf(self).Begin('?', target);
                                          NodesOf(self).Add(data);
                                        });
  }

  ExpatParser parser_;
  Nodes nodes_;
  bool is_latin1_ = false;
  bool has_mark_ = false;  ///< the document starts with UTF-8's byte-order mark
};

// ---- the comparison ----------------------------------------------------------------------------

ExpatReader& ReaderWithNamespaces() {
  static ExpatReader reader(true);
  return reader;
}

/// Whether it is in UTF-16, as its first bytes tell.
bool IsUtf16(std::string_view document) {
  return document.starts_with("\xFF\xFE") || document.starts_with("\xFE\xFF") ||
         document.substr(0, 2).find('\0') != std::string_view::npos;
}

/// The bytes of a document, or its characters if it is in UTF-16, with lone surrogates among them.
std::wstring UnitsOf(std::string_view document) {
  if (!IsUtf16(document)) {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(document.data());
    return {bytes, bytes + document.size()};
  }
  const std::size_t low = document.starts_with('\0') || document.starts_with("\xFE\xFF") ? 1 : 0;
  std::wstring units;
  for (std::size_t at = 0; at + 1 < document.size(); at += 2) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(document[at + i]); };
    units += static_cast<wchar_t>(byte(1 - low) << 8 | byte(low));
  }
  std::wstring characters;
  for (const wchar_t* unit = units.data(); unit != units.data() + units.size();) {
    characters += static_cast<wchar_t>(TakeCodePoint(unit, units.data() + units.size()));
  }
  return characters;
}

/// The character at a place in a document without faults.
char32_t CharacterAt(std::string_view document, std::size_t at) {
  if (IsUtf16(document)) {
    return static_cast<char32_t>(UnitsOf(document)[UnitsOf(document.substr(0, at)).size()]);
  }
  const std::string bytes(document.substr(at));
  const char* character = bytes.c_str();
  return TakeCodePoint(character);
}

/// Whether it is known of expat why only the own parser accepts the document.
bool IsKnownRefusal(std::string_view document, const ExpatReader& expat) {
  // Expat allows in names what the fourth edition of XML 1.0 did.
  const std::size_t at = expat.error_at();
  if (expat.error() != XML_ERROR_INVALID_TOKEN || at >= document.size()) return false;
  const std::wstring before = L'\0' + UnitsOf(document.substr(0, at));
  const bool starts_name = L"</?: \t\r\n"sv.find(before.back()) != std::wstring_view::npos;
  return IsNameCharacter(CharacterAt(document, at), starts_name);
}

/// Whether it is known of expat why it accepts a document that the own parser refuses.
bool IsKnownAcceptance(std::string_view document, HRESULT own, const ExpatReader& expat) {
  // Expat sets no limit.
  if (own == SC_E_MAXELEMENTDEPTH) return true;
  // Three characters of Latin-1 may stand in expat's names unless the document is in UTF-8. No
  // edition of XML 1.0 allows them.
  const std::wstring units = UnitsOf(document);
  const bool is_utf16 = IsUtf16(document);
  const bool has_those = units.find_first_of(L"\u00AA\u00B5\u00BA") != std::wstring::npos;
  if ((is_utf16 || expat.is_latin1()) && has_those) return true;
  if (!is_utf16) return false;
  // Expat takes whatever follows the first half of a surrogate pair for the second.
  if (own == WC_E_XMLCHARACTER) return std::ranges::any_of(units, IsSurrogate);
  // A zero byte tells expat that it is UTF-16. XML 1.0 wants a byte-order mark for that, and can do
  // without it where the document starts with a declaration.
  return own == WC_E_SYNTAX && !units.starts_with(L'\uFEFF') && !units.starts_with(L'<');
}

/// Text with its control characters and what is not ASCII as hexadecimal numbers.
std::string Show(std::string_view text) {
  std::string shown;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    char written[8] = {c};
    if (byte < 0x20 || byte > 0x7E || c == '\\') std::snprintf(written, 8, "\\x%02X", byte);
    shown += written;
  }
  return shown;
}

std::string Report(std::string_view document, const std::string& what) {
  return Show(document) + "\n  " + what;
}

}  // namespace

bool IsNameCharacter(char32_t c, bool starts_name) {
  using Range = std::pair<char32_t, char32_t>;
  constexpr Range kStart[] = {{0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},
                              {0x370, 0x37D},   {0x37F, 0x1FFF},  {0x200C, 0x200D},
                              {0x2070, 0x218F}, {0x2C00, 0x2FEF}, {0x3001, 0xD7FF},
                              {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};
  constexpr Range kRest[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};
  const auto holds_c = [c](const Range& range) { return c >= range.first && c <= range.second; };
  return std::any_of(std::begin(kStart), std::end(kStart), holds_c) ||
         (!starts_name && std::any_of(std::begin(kRest), std::end(kRest), holds_c));
}

bool ExpatAccepts(std::string_view document) {
  return ReaderWithNamespaces().Read(document, false);
}

HRESULT OwnFault(std::string_view document) { return OwnReader().Read(document, document.size()); }

std::string OwnTags(std::string_view document) {
  OwnReader reader;
  reader.Read(document, document.size(), Way::kTags);
  return reader.nodes();
}

std::optional<std::string> Difference(std::string_view document) {
  static OwnReader own;
  static OwnReader own_by_tags;
  static OwnReader other;
  static ExpatReader plain_expat(false);
  ExpatReader& expat = ReaderWithNamespaces();

  const std::size_t whole = document.size() + 1;
  const HRESULT result = own.Read(document, whole);
  const auto differs = [&](std::size_t block, Way way, const OwnReader& as) {
    return other.Read(document, block, way) != result || other.nodes() != as.nodes();
  };
  if (differs(1, Way::kNodes, own) || differs(7, Way::kNodes, own)) {
    return Report(document, "the own parser minds the size of blocks");
  }
  if (own_by_tags.Read(document, whole, Way::kTags) != result) {
    return Report(document, "the own parser minds white space being skipped");
  }
  if (differs(1, Way::kKnownTags, own_by_tags) || differs(whole, Way::kKnownTags, own_by_tags)) {
    return Report(document, "the own parser reads known tags otherwise");
  }

  const bool expat_accepts = expat.Read(document, false);
  if (result != S_OK) {
    if (!expat_accepts || IsKnownAcceptance(document, result, expat)) return std::nullopt;
    char code[16];
    std::snprintf(code, sizeof code, "0x%08X", static_cast<unsigned>(result));
    return Report(document, std::string("only the own parser refuses it: ") + code);
  }
  if (!expat_accepts) {
    if (IsKnownRefusal(document, expat)) return std::nullopt;
    return Report(document, std::string("only expat refuses it: ") +
                                XML_ErrorString(expat.error()) + " at byte " +
                                std::to_string(expat.error_at()));
  }
  plain_expat.Read(document, true);
  if (plain_expat.nodes() == own.nodes()) return std::nullopt;
  return Report(document,
                "nodes: " + Show(own.nodes()) + "\n  expat: " + Show(plain_expat.nodes()));
}

}  // namespace tolva::test
