#include "cli/source.h"

#include <algorithm>
#include <utility>

#include "cli/check_faults.h"
#include "cli/files.h"
#include "cli/load.h"
#include "cli/session.h"
#include "cli/text.h"
#include "platform/utf.h"
#include "platform/xml/decode.h"
#include "platform/xml/parser.h"

namespace tolva::cli {
namespace {

using own_xml::Encoding;
using Window = own_xml::Input;
using own_xml::InputObserver;
using own_xml::Parser;
using own_xml::PositionCounter;
using own_xml::ReadResult;
using own_xml::ValueKind;
using Kind = SourceContent::Kind;

constexpr std::string_view kSectionStart = "<![CDATA[";
constexpr std::string_view kCommentStart = "<!--";

std::string_view Between(const char* start, const char* end) {
  return {start, static_cast<std::size_t>(end - start)};
}

const char* EndOf(std::string_view text) { return text.data() + text.size(); }

std::string PlacedMessage(const std::string& name, const Position& position,
                          const std::string& message) {
  return Printable(name) + ":" + std::to_string(position.line) + ":" +
         std::to_string(position.column) + ": " + message;
}

/// Makes the tree of a text. The parser's window shows a part of the text at a time.
class TreeBuilder final : public InputObserver {
 public:
  TreeBuilder(std::string_view bytes, bool is_utf8, std::string_view text) : text_(text) {
    parser_.SetInput(StreamOf(bytes).Get(), is_utf8);
    parser_.Observe(this);
  }

  /// Returns null, with the fault in `parser` and `fault_at`, if the text is not well-formed.
  std::unique_ptr<SourceElement> Build() {
    ReadResult result = parser_.Read();
    for (; result == ReadResult::kNode; result = parser_.Read()) AddNode();
    if (result != ReadResult::kEnd) return nullptr;
    EndNode(EndOf(text_));
    return std::move(root_);
  }

  const Parser& parser() const { return parser_; }

  /// The place of the fault in the text.
  const char* fault_at() const { return Place(parser_.fault_at()); }

  void Dropping(std::string_view text) override { dropped_ += text.size(); }

 private:
  /// Where a place in the window is in the text.
  const char* Place(const char* at) const {
    return text_.data() + dropped_ + (at - parser_.input().start());
  }
  std::string_view Place(std::string_view slice) const {
    return {Place(slice.data()), slice.size()};
  }

  /// Where the parser's node starts. A node reaches to the start of the next one.
  const char* NodeStart() const {
    const char* const value = parser_.value().data();
    switch (parser_.type()) {
      case XmlNodeType_Element:
        return Place(parser_.name().text.data() - 1);
      case XmlNodeType_EndElement:
      case XmlNodeType_ProcessingInstruction:
        return Place(parser_.name().text.data() - 2);
      case XmlNodeType_Comment:
        return Place(value - kCommentStart.size());
      case XmlNodeType_CDATA:
        return Place(value - kSectionStart.size());
      case XmlNodeType_XmlDeclaration:
        return text_.data();
      default:
        return Place(value);
    }
  }

  /// Completes the piece that the last node is, or ends with.
  void EndNode(const char* at) {
    if (unfinished_ != nullptr) *unfinished_ = Between(unfinished_->data(), at);
    unfinished_ = nullptr;
  }

  void StartPiece(std::string_view& piece, const char* at) {
    piece = Between(at, at);
    unfinished_ = &piece;
  }

  void AddNode() {
    const char* const start = NodeStart();
    EndNode(start);
    switch (parser_.type()) {
      case XmlNodeType_Element:
        AddElement();
        break;
      case XmlNodeType_EndElement:
        StartPiece(open_->end_tag, start);
        open_ = open_->parent;
        break;
      case XmlNodeType_Text:
        AddContent(Kind::kText, start);
        break;
      case XmlNodeType_Whitespace:
        AddContent(Kind::kSpace, start);
        break;
      case XmlNodeType_CDATA:
        AddContent(Kind::kSection, start);
        break;
      default:
        AddContent(Kind::kComment, start);
        break;
    }
  }

  void AddContent(Kind kind, const char* start) {
    if (open_ == nullptr) return;  // outside the root
    open_->content.push_back({kind, {}});
    StartPiece(open_->content.back().text, start);
  }

  void AddElement() {
    auto made = std::make_unique<SourceElement>();
    SourceElement& element = *made;
    element.parent = open_;
    element.name = Place(parser_.name().text);
    element.attributes.reserve(parser_.attributes().size());
    const char* at = EndOf(element.name);
    for (const own_xml::Attribute& attribute : parser_.attributes()) {
      const std::string_view name = Place(attribute.name.text);
      const std::string_view value = Place(attribute.value);
      element.attributes.push_back(
          {Between(at, name.data()), name, Between(EndOf(name), value.data()), value});
      at = EndOf(value) + 1;
    }
    StartPiece(element.tag_end, at);
    if (open_ == nullptr) {
      root_ = std::move(made);
    } else {
      open_->content.push_back({Kind::kElement, {}, std::move(made)});
    }
    if (!parser_.is_empty_element()) open_ = &element;
  }

  Parser parser_;
  const std::string_view text_;
  std::size_t dropped_ = 0;
  std::unique_ptr<SourceElement> root_;
  SourceElement* open_ = nullptr;
  std::string_view* unfinished_ = nullptr;
};

void AppendText(const SourceElement& element, std::string& out) {
  out.append("<").append(element.name);
  for (const SourceAttribute& attribute : element.attributes) {
    out.append(attribute.space).append(attribute.name).append(attribute.equals);
    out.append(attribute.value).append(1, attribute.quote());
  }
  out.append(element.tag_end);
  for (const SourceContent& content : element.content) {
    if (content.element != nullptr) {
      AppendText(*content.element, out);
    } else {
      out.append(content.text);
    }
  }
  out.append(element.end_tag);
}

std::string Decoded(std::string_view source, ValueKind kind) {
  Buffer<char> value;
  own_xml::AppendValue(source, kind, value);
  return {value.data(), value.size()};
}

/// The text in an encoding, which has all of its characters.
std::string Encoded(std::string_view text, const Encoding& encoding) {
  if (encoding.convert == nullptr) return std::string(text);
  std::string bytes;
  bytes.reserve(text.size() * encoding.unit_size);
  const bool is_big_endian = encoding.alias == "UTF-16BE";
  const auto add_unit = [&](char32_t unit) {
    const auto high = static_cast<char>(unit >> 8);
    const auto low = static_cast<char>(unit & 0xFF);
    bytes += is_big_endian ? high : low;
    bytes += is_big_endian ? low : high;
  };
  const char* const end = EndOf(text);
  for (const char* at = text.data(); at != end;) {
    const char32_t c = TakeCodePoint(at);
    if (encoding.unit_size == 1) {
      bytes += static_cast<char>(c);
    } else if (c > 0xFFFF) {
      add_unit(0xD800 + ((c - 0x10000) >> 10));
      add_unit(0xDC00 + (c & 0x3FF));
    } else {
      add_unit(c);
    }
  }
  return bytes;
}

}  // namespace

// ---- elements ----------------------------------------------------------------------------------

std::string_view SourceElement::LocalName() const {
  const std::size_t colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

SourceAttribute* SourceElement::FindAttribute(std::string_view attribute) {
  const auto found = std::ranges::find(attributes, attribute, &SourceAttribute::name);
  return found == attributes.end() ? nullptr : &*found;
}

SourceContent* SourceElement::FindText() {
  if (content.empty()) return nullptr;
  SourceContent& first = content.front();
  return first.kind == Kind::kElement || first.kind == Kind::kSpace ? nullptr : &first;
}

std::vector<SourceElement*> SourceElement::Children(std::string_view local_name) const {
  std::vector<SourceElement*> children;
  for (const SourceContent& one : content) {
    if (one.element == nullptr || one.element->LocalName() != local_name) continue;
    children.push_back(one.element.get());
  }
  return children;
}

std::string ValueOf(const SourceContent& content) {
  const std::string_view text = content.text;
  switch (content.kind) {
    case Kind::kText:
      return Decoded(text, ValueKind::kText);
    case Kind::kSection:
      return Decoded(text.substr(kSectionStart.size(), text.size() - kSectionStart.size() - 3),
                     ValueKind::kLiteral);
    case Kind::kComment: {
      if (text.starts_with(kCommentStart)) {
        return Decoded(text.substr(kCommentStart.size(), text.size() - kCommentStart.size() - 3),
                       ValueKind::kLiteral);
      }
      const std::size_t target = std::min(text.find_first_of(" \t\r\n"), text.size() - 2);
      const std::size_t start = text.find_first_not_of(" \t\r\n", target);
      return Decoded(text.substr(start, text.size() - 2 - start), ValueKind::kLiteral);
    }
    default:
      return {};
  }
}

std::string ValueOf(const SourceAttribute& attribute) {
  return Decoded(attribute.value, ValueKind::kAttribute);
}

std::string TextOf(const SourceElement& element) {
  std::string text;
  AppendText(element, text);
  return text;
}

// ---- documents ---------------------------------------------------------------------------------

/// A whole text, in UTF-8, with what the parser may read after it.
struct Source::Text {
  Text(std::string_view bytes, bool is_utf8) {
    input.Open(StreamOf(bytes).Get(), is_utf8);
    const char* at = input.start();
    while (input.More(at)) {
    }
  }

  std::string_view view() const { return Between(input.start(), input.limit()); }

  Window input;
};

Source::Source(std::string name, std::string_view bytes) : name_(std::move(name)), bytes_(bytes) {
  texts_.push_back(std::make_unique<Text>(bytes, false));
  const Text& text = *texts_.front();
  positions_ = std::make_unique<PositionCounter>(text.input);
  TreeBuilder builder(bytes, false, text.view());
  root_ = builder.Build();
  if (root_ == nullptr) {
    const char* const at = builder.fault_at();
    const bool is_at_end =
        at == text.input.limit() && text.input.end() == Window::End::kEndOfStream;
    throw Trouble(PlacedMessage(name_,
                                is_at_end ? positions_->OfLastCharacter() : positions_->At(at),
                                WordsFor(builder.parser()).message));
  }
  const std::string_view whole = text.view();
  prolog_ = Between(whole.data(), root_->name.data() - 1);
  const std::string_view last = root_->end_tag.empty() ? root_->tag_end : root_->end_tag;
  epilog_ = Between(EndOf(last), EndOf(whole));
  const std::size_t line = whole.find_first_of("\r\n");
  if (line != std::string_view::npos) {
    line_end_ = whole.substr(line, whole.substr(line).starts_with("\r\n") ? 2 : 1);
  }
}

Source::~Source() = default;

const Document& Source::Recognise(const Document* expected) const {
  const std::string_view name = root_->LocalName();
  const Document* const document = FindDocument(name);
  const bool is_root = document != nullptr && document->root().name == name;
  if (is_root && (expected == nullptr || expected == document)) return *document;
  // What is wrong with the root element is the first thing that is.
  return *LoadBytes(std::string(bytes_), name_, expected).document;
}

std::string Source::Bytes() const {
  std::string text(prolog_);
  AppendText(*root_, text);
  text += epilog_;
  const Window& input = texts_.front()->input;
  return std::string(bytes_.substr(0, input.byte_order_mark_size())) +
         Encoded(text, input.encoding());
}

Position Source::PositionOf(std::string_view piece) { return positions_->At(piece.data()); }

std::string_view Source::Keep(std::string text) {
  const std::size_t size = text.size();
  // Values are decoded from what is kept, a block at a time.
  text.append(Window::kPadding, '\0');
  return {kept_.emplace_back(std::move(text)).data(), size};
}

std::unique_ptr<SourceElement> Source::ParseElement(std::string_view text) {
  texts_.push_back(std::make_unique<Text>(text, true));
  return TreeBuilder(text, true, texts_.back()->view()).Build();
}

bool Source::Has(char32_t character) const {
  const Encoding& encoding = texts_.front()->input.encoding();
  if (encoding.convert == nullptr || encoding.unit_size != 1) return true;
  return character < (encoding.name == "US-ASCII" ? 0x80 : 0x100);
}

}  // namespace tolva::cli
