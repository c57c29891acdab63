// The walk does what the library's engine and reading manager do, node for node, because their
// verdict is the one to tell. Where the library would stop, it goes on.
#include "cli/check_walk.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "cli/check_faults.h"
#include "cli/fields.h"
#include "cli/text.h"
#include "platform/xml/decode.h"
#include "platform/xml/parser.h"

namespace tolva::cli {
namespace {

using own_xml::Input;
using own_xml::InputObserver;
using own_xml::Parser;
using own_xml::PositionCounter;
using own_xml::QName;
using own_xml::ReadResult;
using own_xml::ValueKind;
using XmlAttribute = own_xml::Attribute;

/// White space, as it is written.
constexpr std::string_view kSpaces = " \t\r\n";

/// An element that is open, as the library sees it.
struct Frame {
  const Element* element;
  const char* at;        ///< its start tag; null once that has left the window
  Position position;     ///< if `at` is null
  bool is_repeated;      ///< in its parent
  std::uint64_t number;  ///< among the parent's elements of the name, from 1
};

/// Names that are near one that is not known. To find them takes long, and the same unknown name
/// may occur often.
class Hints {
 public:
  explicit Hints(const Document& document) : document_(document) {}

  std::string ForAttribute(const Element& element, std::string_view name) {
    return Find(element, name, true);
  }
  std::string ForElement(const Element& element, std::string_view name) {
    return Find(element, name, false);
  }

 private:
  using Key = std::pair<const Element*, std::string>;

  std::string Find(const Element& element, std::string_view name, bool is_attribute) {
    constexpr std::size_t kMost = 1000;
    constexpr std::size_t kLongest = 200;
    if (name.size() > kLongest) return {};
    if (known_.size() > kMost) known_.clear();
    const auto [found, is_new] =
        known_.try_emplace(Key(&element, (is_attribute ? "@" : "") + std::string(name)));
    if (is_new) found->second = Make(element, std::string(name), is_attribute);
    return found->second;
  }

  std::string Make(const Element& element, const std::string& name, bool is_attribute) const {
    if (is_attribute && element.FindChild(name) != nullptr) return "; it is an element";
    if (!is_attribute && element.FindAttribute(name) != nullptr) return "; it is an attribute";
    std::vector<std::string> names;
    if (is_attribute) {
      for (const Attribute& attribute : element.attributes) names.push_back(attribute.name);
    } else {
      for (const Child& child : element.children) names.push_back(child.name);
    }
    std::string hint = DidYouMean(name, names);
    if (!hint.empty() || is_attribute) return hint;
    for (const auto& other : document_.elements) {
      if (other->FindChild(name) != nullptr) return "; it belongs in '" + other->name + "'";
    }
    return {};
  }

  const Document& document_;
  std::map<Key, std::string> known_;
};

class Walk final : public InputObserver {
 public:
  Walk(ISequentialStream& stream, const WalkOptions& options, FindingSink& sink)
      : options_(options), sink_(sink), positions_(parser_.input()) {
    parser_.SetInput(&stream, false);
    parser_.Observe(this);
  }

  WalkOutcome Run() {
    XmlNodeType type = Read();
    while (type != XmlNodeType_None && type != XmlNodeType_Element) type = Read();
    if (type == XmlNodeType_Element && Recognise()) {
      Hints hints(*outcome_.document);
      hints_ = &hints;
      ReadElement(outcome_.document->root(), false, 1);
    }
    while (!has_ended_ && !outcome_.is_foreign) Read();
    return outcome_;
  }

  void Dropping(std::string_view text) override {
    // Of all frames the start tags are within the text.
    for (Frame& frame : frames_) {
      if (frame.at == nullptr) continue;
      frame.position = positions_.At(frame.at);
      frame.at = nullptr;
    }
    positions_.Drop(text);
  }

 private:
  // ---- findings --------------------------------------------------------------------------------

  /// Counts a finding; whether it is to be told.
  bool Wants(Code code) {
    if (InfoOf(code).is_error) has_error_ = true;
    return sink_.Count(code);
  }

  void Add(Code code, const Position& position, std::string message,
           std::string_view attribute = {}) {
    std::string path = Path();
    if (!attribute.empty()) (path += path.empty() ? "" : "/") += Printable(attribute);
    sink_.Add({code, position, std::move(path), std::move(message)});
  }

  std::string Path() const {
    std::string path;
    for (std::size_t i = 1; i < frames_.size(); ++i) {
      const Frame& frame = frames_[i];
      if (i > 1) path += '/';
      path += frame.element->name;
      if (frame.is_repeated || frame.number > 1) path += "[" + std::to_string(frame.number) + "]";
    }
    return path;
  }

  Position PositionOf(const Frame& frame) {
    return frame.at == nullptr ? frame.position : positions_.At(frame.at);
  }

  /// Where the node starts that the parser is on.
  Position PositionOfNode() {
    const char* const value = parser_.value().data();
    switch (parser_.type()) {
      case XmlNodeType_Element:
        return positions_.At(parser_.name().text.data() - 1);
      case XmlNodeType_ProcessingInstruction:
        return positions_.At(parser_.name().text.data() - 2);
      case XmlNodeType_Comment:
        return positions_.At(value - std::string_view("<!--").size());
      case XmlNodeType_CDATA:
        return positions_.At(value - std::string_view("<![CDATA[").size());
      default:
        return positions_.At(value);
    }
  }

  // ---- nodes -----------------------------------------------------------------------------------

  /// Moves to the next node. None: the document has ended, or is not well-formed, which has been
  /// told.
  XmlNodeType Read() { return Take(parser_.Read()); }
  XmlNodeType ReadTag() { return Take(parser_.ReadTag()); }

  XmlNodeType Take(ReadResult result) {
    is_known_tag_ = false;
    if (result == ReadResult::kNode) {
      if (WantsLosses()) TellLostNode();
      return parser_.type();
    }
    const bool is_first = !std::exchange(has_ended_, true);
    if (result == ReadResult::kFault && is_first) TellFault();
    return XmlNodeType_None;
  }

  void TellFault() {
    const Input& input = parser_.input();
    const bool is_at_limit = parser_.fault_at() == input.limit();
    if (is_at_limit && input.end() == Input::End::kStreamFailure) {
      outcome_.failure = input.stream_failure();
      return;
    }
    if (options_.skips_foreign && outcome_.document == nullptr && HasForeignType()) {
      outcome_.is_foreign = true;
      return;
    }
    FaultWords words = WordsFor(parser_);
    if (!Wants(words.code)) return;
    words.message += LineOfStartTag();
    const bool is_at_end = is_at_limit && input.end() == Input::End::kEndOfStream;
    Add(words.code, is_at_end ? positions_.OfLastCharacter() : positions_.At(parser_.fault_at()),
        std::move(words.message));
  }

  void TellLostNode() {
    switch (parser_.type()) {
      case XmlNodeType_Comment:
        return Lose(PositionOfNode(), "this comment");
      case XmlNodeType_ProcessingInstruction:
        return Lose(PositionOfNode(), "this processing instruction");
      default:
        return;
    }
  }

  bool WantsLosses() const { return options_.losses != nullptr; }

  void Lose(const Position& position, std::string what) const {
    options_.losses->AddLoss(position, std::move(what));
  }

  /// Where the innermost element starts, if the fault is about that; or nothing.
  std::string LineOfStartTag() {
    const bool is_mismatch = parser_.fault() == WC_E_ELEMENTMATCH;
    const bool is_known = !frames_.empty() && frames_.size() == parser_.depth();
    if (!is_known || (!is_mismatch && parser_.fault() != MX_E_INPUTEND)) return {};
    const std::string line = std::to_string(PositionOf(frames_.back()).line);
    return (is_mismatch ? " in line " : " since line ") + line;
  }

  /// Whether the fault is a document type declaration for another root.
  bool HasForeignType() const {
    constexpr std::string_view kStart = "<!DOCTYPE";
    const auto rest = static_cast<std::size_t>(parser_.input().limit() - parser_.fault_at());
    const std::string_view text(parser_.fault_at(), rest);
    if (!text.starts_with(kStart)) return false;
    const std::size_t start = std::min(text.find_first_not_of(kSpaces, kStart.size()), rest);
    const std::size_t end = text.find_first_of(" \t\r\n>[", start);
    return end != std::string_view::npos &&
           FindDocument(text.substr(start, end - start)) == nullptr;
  }

  /// Skips what is in an element that is not known.
  void SkipUnknown() {
    if (parser_.is_empty_element()) return;
    const std::size_t outside = parser_.depth() - 1;
    while (ReadTag() != XmlNodeType_None && parser_.depth() != outside) {
    }
  }

  // ---- the root --------------------------------------------------------------------------------

  bool Recognise() {
    const std::string_view name = parser_.name().Local();
    const Document* const document = FindDocument(name);
    const bool is_root = document != nullptr && document->root().name == name;
    const bool is_expected = options_.expected == nullptr || options_.expected == document;
    if (is_root && is_expected) {
      outcome_.document = document;
      return true;
    }
    if (options_.skips_foreign && !is_root) {
      outcome_.is_foreign = true;
    } else if (Wants(Code::kUnknownRoot)) {
      Add(Code::kUnknownRoot, PositionOfNode(), RootWords(name));
    }
    return false;
  }

  std::string RootWords(std::string_view name) const {
    if (options_.expected != nullptr) {
      return "the root element is " + Quoted(name) + ", not '" + options_.expected->root().name +
             "'";
    }
    std::vector<std::string> roots;
    for (const Document& document : Documents()) roots.push_back(document.root().name);
    return "the root element " + Quoted(name) + " is not that of a document of the agent" +
           DidYouMean(std::string(name), roots);
  }

  // ---- elements --------------------------------------------------------------------------------

  /// Reads the element on whose start tag the parser is.
  void ReadElement(const Element& element, bool is_repeated, std::uint64_t number) {
    const bool is_empty = parser_.is_empty_element();
    frames_.push_back({&element, parser_.name().text.data() - 1, {}, is_repeated, number});
    if (WantsLosses() && parser_.name().prefix != 0) {
      const std::string_view name = parser_.name().text;
      Lose(positions_.At(name.data()), "the prefix of " + Quoted(name));
    }
    ReadAttributes(element);
    if (!element.text.has_value()) {
      ReadChildren(element, is_empty);
    } else if (!is_empty) {
      ReadText(element);
    } else {
      TellNoText(element);
    }
    frames_.pop_back();
  }

  void ReadChildren(const Element& element, bool is_empty) {
    const node::Schema& schema = *element.schema;
    std::array<std::uint64_t, node::Schema::kMostChildren> counts = {};
    std::size_t last = 0;
    const std::size_t depth = parser_.depth();
    while (!is_empty) {
      std::size_t index = last;
      const XmlNodeType type = ReadKnownTag(schema.child_tags, index);
      if (type == XmlNodeType_None) return;
      // Of whatever element it is the end tag, the library takes it for this one's.
      if (type == XmlNodeType_EndElement) break;
      const std::size_t parent = parser_.depth() - (IsOpening() ? 1 : 0);
      if (type == XmlNodeType_Text || type == XmlNodeType_CDATA) {
        if (parent == depth) TellIgnoredText(element);
      } else if (type == XmlNodeType_Element && index != element.children.size()) {
        const Child& child = element.children[index];
        const bool is_repeated = child.occurrence == Occurrence::kRepeated;
        const std::uint64_t number = ++counts[index];
        if (number > 1 && !is_repeated) TellDuplicate(element, child);
        ReadElement(*child.element, is_repeated, number);
        if (has_ended_) return;
        last = index;
      } else if (type == XmlNodeType_Element) {
        if (parent == depth) TellUnknownElement(element);
        SkipUnknown();
      }
    }
    for (std::size_t i = 0; i < element.children.size(); ++i) {
      const bool is_required = (schema.required_children >> i & 1) != 0;
      if (!is_required || counts[i] != 0 || !Wants(Code::kMissingChild)) continue;
      Add(Code::kMissingChild, PositionOf(frames_.back()),
          "'" + element.name + "' needs the element '" + element.children[i].name + "'");
    }
  }

  /// Whether the node opens an element.
  bool IsOpening() const {
    return parser_.type() == XmlNodeType_Element && !parser_.is_empty_element();
  }

  /// Moves to the next node. `index` is where an element's name is looked for among the tags, and
  /// then its place there, or their number.
  XmlNodeType ReadKnownTag(const KnownTags& tags, std::size_t& index) {
    if (parser_.ReadKnownTag(tags, index)) {
      is_known_tag_ = true;
      return parser_.type();
    }
    const XmlNodeType type = ReadTag();
    if (type != XmlNodeType_Element) return type;
    const std::string_view name = parser_.name().Local();
    for (std::size_t tried = 0; tried < tags.size(); ++tried) {
      if (index >= tags.size()) index = 0;
      if (tags[index].name == name) return type;
      ++index;
    }
    index = tags.size();
    return type;
  }

  void TellUnknownElement(const Element& parent) {
    if (!Wants(Code::kUnknownElement)) return;
    const std::string_view name = parser_.name().Local();
    Add(Code::kUnknownElement, PositionOfNode(),
        "element " + Quoted(name) + " of '" + parent.name + "' is not known and ignored" +
            HintForElement(parent, name),
        Excerpt(name));
  }

  /// An element that has its place further out probably stands here for want of an end tag.
  std::string HintForElement(const Element& parent, std::string_view name) {
    for (std::size_t i = frames_.size(); i-- > 1;) {
      const Element& outer = *frames_[i - 1].element;
      if (outer.FindChild(name) == nullptr || &outer == &parent) continue;
      return "; it belongs in '" + outer.name + "': is the end tag of '" +
             frames_[i].element->name + "' missing?";
    }
    return hints_->ForElement(parent, name);
  }

  void TellDuplicate(const Element& parent, const Child& child) {
    if (!Wants(Code::kDuplicateChild)) return;
    Add(Code::kDuplicateChild, PositionOfNode(),
        "'" + parent.name + "' has another '" + child.name + "'; the last one counts", child.name);
  }

  void TellIgnoredText(const Element& element) {
    const std::string_view text = parser_.value();
    const std::size_t start = text.find_first_not_of(kSpaces);
    if (start == std::string_view::npos || !Wants(Code::kTextIgnored)) return;
    Add(Code::kTextIgnored, positions_.At(text.data() + start),
        "text in '" + element.name + "' is ignored");
  }

  // ---- attributes ------------------------------------------------------------------------------

  void ReadAttributes(const Element& element) {
    std::uint64_t found = 0;  // one bit for each row
    if (is_known_tag_) {
      for (std::size_t i = 0; i < element.attributes.size(); ++i) {
        const XmlAttribute* const attribute = parser_.FoundAttribute(i);
        if (attribute == nullptr) continue;
        found |= std::uint64_t{1} << i;
        ReadAttribute(element, element.attributes[i], *attribute);
      }
    } else {
      found = ReadAnyAttributes(element);
    }
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
      const Attribute& attribute = element.attributes[i];
      const bool is_missing =
          (found >> i & 1) == 0 && attribute.occurrence == Occurrence::kRequired;
      if (!is_missing || !Wants(Code::kMissingAttribute)) continue;
      Add(Code::kMissingAttribute, PositionOf(frames_.back()),
          "'" + element.name + "' needs the attribute '" + attribute.name + "'");
    }
  }

  std::uint64_t ReadAnyAttributes(const Element& element) {
    const Names& names = element.schema->attribute_names;
    std::uint64_t found = 0;
    std::size_t place = 0;
    for (const XmlAttribute& attribute : parser_.attributes()) {
      std::size_t tried = attribute.name.prefix == 0 ? 0 : names.size();
      for (; tried < names.size(); ++tried) {
        if (place == names.size()) place = 0;
        if (names[place] == attribute.name.text) break;
        ++place;
      }
      if (tried == names.size()) {
        TellUnknownAttribute(element, attribute.name);
        continue;
      }
      found |= std::uint64_t{1} << place;
      ReadAttribute(element, element.attributes[place], attribute);
      ++place;
    }
    return found;
  }

  void TellUnknownAttribute(const Element& element, const QName& name) {
    const std::string_view prefix = name.PrefixText();
    const bool is_about_xml = name.text == "xmlns" || prefix == "xmlns" || prefix == "xsi";
    if (is_about_xml && WantsLosses()) {
      Lose(positions_.At(name.text.data()), "the attribute " + Quoted(name.text));
    }
    if (is_about_xml || !Wants(Code::kUnknownAttribute)) return;
    std::string message =
        "attribute " + Quoted(name.text) + " of '" + element.name + "' is not known and ignored";
    const bool is_known_without =
        name.prefix != 0 && element.FindAttribute(name.Local()) != nullptr;
    message += is_known_without ? "; without its prefix it is"
                                : hints_->ForAttribute(element, name.Local());
    Add(Code::kUnknownAttribute, positions_.At(name.text.data()), std::move(message),
        Excerpt(name.text));
  }

  void ReadAttribute(const Element& element, const Attribute& attribute,
                     const XmlAttribute& found) {
    if (attribute.value.type == Value::Type::kText) return;
    const std::string_view text =
        found.plain ? found.value : Decode(found.value, ValueKind::kAttribute);
    if (attribute.value.type == Value::Type::kEnum) {
      ReadEnum(attribute, found, text);
    } else {
      ReadNumber(element, attribute.value, attribute.name, found.value.data(), text);
    }
  }

  std::string_view Decode(std::string_view source, ValueKind kind) {
    decoded_.Clear();
    own_xml::AppendValue(source, kind, decoded_);
    return {decoded_.data(), decoded_.size()};
  }

  void ReadEnum(const Attribute& attribute, const XmlAttribute& found, std::string_view text) {
    for (const Name& allowed : attribute.row->enum_texts.texts) {
      if (allowed == text) return;
    }
    if (!Wants(Code::kBadEnum)) return;
    std::string all;
    for (const std::string& allowed : attribute.value.texts) {
      all += (all.empty() ? "" : ", ") + allowed;
    }
    Add(Code::kBadEnum, positions_.At(found.value.data()),
        attribute.name + "=\"" + Excerpt(text) + "\" is none of " + all +
            DidYouMean(std::string(text.substr(0, 60)), attribute.value.texts),
        attribute.name);
  }

  /// A number: the value of an attribute, or the text of an element if `attribute` is empty.
  void ReadNumber(const Element& element, const Value& value, std::string_view attribute,
                  const char* at, std::string_view text) {
    constexpr std::size_t kAlwaysInRange = 9;
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    const char* const start = text.data();
    const char* const end = std::find_if_not(start, start + text.size(), is_digit);
    const auto count = static_cast<std::size_t>(end - start);
    if (count == text.size() && count != 0 && count <= kAlwaysInRange) return;
    const std::string what = attribute.empty()
                                 ? "'" + Excerpt(text) + "' in '" + element.name + "'"
                                 : std::string(attribute) + "=\"" + Excerpt(text) + "\"";
    if (count != text.size() && !value.takes_leading_digits) {
      if (!Wants(Code::kBadNumber)) return;
      Add(Code::kBadNumber, positions_.At(at),
          what + " is no number from 0 to " + std::to_string(value.greatest) + " in digits",
          attribute);
      return;
    }
    const std::string written(Digits(text.substr(0, count)));
    const std::string read = *NumberAsRead(element, value, text);
    const bool is_read_as_written = count == text.size() && count != 0 && written == read;
    if (is_read_as_written || !Wants(Code::kNumberRange)) return;
    Add(Code::kNumberRange, positions_.At(at), what + " is read as " + read, attribute);
  }

  /// Without leading zeros.
  static std::string_view Digits(std::string_view text) {
    const std::size_t start = text.find_first_not_of('0');
    if (start != std::string_view::npos) return text.substr(start);
    return text.empty() ? text : text.substr(0, 1);
  }

  // ---- texts -----------------------------------------------------------------------------------

  /// The element is empty, or does not begin with a text.
  void TellNoText(const Element& element) {
    if (element.is_text_required) {
      TellMissingText(element);
    } else if (WantsLosses() && element.IsLostWithoutText()) {
      Lose(PositionOf(frames_.back()), "the empty element '" + element.name + "'");
    }
  }

  void TellMissingText(const Element& element) {
    if (!Wants(Code::kMissingContent)) return;
    Add(Code::kMissingContent, PositionOf(frames_.back()), "'" + element.name + "' needs a text");
  }

  /// Reads the text of an element that is not an empty tag. The first node is the text, if it is
  /// one that has a value.
  void ReadText(const Element& element) {
    const std::size_t depth = parser_.depth();
    const XmlNodeType first = Read();
    switch (first) {
      case XmlNodeType_None:
        return;
      case XmlNodeType_Text:
        ReadValue(element, ValueKind::kText);
        break;
      case XmlNodeType_Comment:
      case XmlNodeType_ProcessingInstruction:
        TellCut("this comment or instruction is read as the text of '" + element.name + "'");
        [[fallthrough]];
      case XmlNodeType_CDATA:
        ReadValue(element, ValueKind::kLiteral);
        break;
      default:
        TellNoText(element);
    }
    if (first != XmlNodeType_EndElement) FinishText(element, first, depth);
  }

  void ReadValue(const Element& element, ValueKind kind) {
    const char* const at = parser_.value().data();
    const std::string_view text =
        parser_.value_is_plain() ? parser_.value() : Decode(parser_.value(), kind);
    if (element.text->type == Value::Type::kNumber) {
      ReadNumber(element, *element.text, {}, at, text);
      return;
    }
    if (!text.empty() || element.text->may_be_empty) return;
    if (!element.is_text_required) {
      if (WantsLosses()) {
        Lose(PositionOf(frames_.back()), "the empty text of '" + element.name + "'");
      }
      return;
    }
    if (!Wants(Code::kNotReadBack)) return;
    Add(Code::kNotReadBack, PositionOf(frames_.back()),
        "the text of '" + element.name +
            "' is empty: written by the library, the document could not be read again");
  }

  void TellCut(std::string message) {
    if (Wants(Code::kContentCut)) Add(Code::kContentCut, PositionOfNode(), std::move(message));
  }

  /// Moves to where the library goes on after a text: to the end tag of the element; but it takes
  /// some end tags within the element for that.
  void FinishText(const Element& element, XmlNodeType first, std::size_t depth) {
    // After an error the library reads no further, so nothing misleads it.
    const bool is_read = !has_error_;
    const bool stops_anywhere = is_read && element.schema->content.stops_at_first_end_tag;
    const bool stops_in_first = is_read && first == XmlNodeType_Element && IsOpening();
    const std::size_t end = stops_in_first ? depth : depth - 1;
    const bool has_value = first == XmlNodeType_Text || first == XmlNodeType_CDATA;
    const bool is_replaced =
        first == XmlNodeType_Comment || first == XmlNodeType_ProcessingInstruction;
    bool is_told = is_replaced;
    bool is_value = has_value || is_replaced;  // the node
    std::optional<Position> broken;
    for (XmlNodeType type = first; type != XmlNodeType_None; type = Read()) {
      if (type == XmlNodeType_EndElement && (stops_anywhere || parser_.depth() == end)) return;
      const std::size_t parent = parser_.depth() - (IsOpening() ? 1 : 0);
      if (type == XmlNodeType_EndElement || is_value || parent != depth) {
        is_value = false;
        continue;
      }
      const bool misleads = IsOpening() && (stops_anywhere || (stops_in_first && !broken));
      if (misleads) {
        TellCut("the library takes the end of " + Quoted(parser_.name().Local()) +
                " for the end of '" + element.name +
                "': what follows is read in the wrong place or not at all");
        is_told = true;
      } else if (type == XmlNodeType_Element) {
        TellUnknownElement(element);
      }
      const bool is_text = type == XmlNodeType_Text || type == XmlNodeType_CDATA;
      const bool is_blank =
          type == XmlNodeType_Whitespace ||
          (is_text && parser_.value().find_first_not_of(kSpaces) == std::string_view::npos);
      if (WantsLosses() && has_value && is_text && is_blank && !parser_.value().empty()) {
        Lose(PositionOfNode(), "this space");
      }
      if (is_told || type == XmlNodeType_Whitespace) continue;
      if (!broken) broken = PositionOfNode();
      if (!is_text || is_blank) continue;
      is_told = true;
      if (!Wants(Code::kContentCut)) continue;
      Add(Code::kContentCut, *broken,
          has_value ? "the text of '" + element.name + "' is read only up to here"
                    : "the text of '" + element.name + "' is not read: it does not begin with it");
    }
  }

  const WalkOptions& options_;
  FindingSink& sink_;
  Parser parser_;
  PositionCounter positions_;
  WalkOutcome outcome_;
  std::vector<Frame> frames_;
  Hints* hints_ = nullptr;
  Buffer<char> decoded_;
  bool has_ended_ = false;
  bool has_error_ = false;     ///< the library would have stopped
  bool is_known_tag_ = false;  ///< the parser has found the attributes of the current element
};

}  // namespace

WalkOutcome WalkDocument(ISequentialStream& stream, const WalkOptions& options, FindingSink& sink) {
  return Walk(stream, options, sink).Run();
}

}  // namespace tolva::cli
