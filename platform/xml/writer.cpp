#include "platform/xml/writer.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <cwchar>
#include <limits>
#include <new>

#include "platform/utf.h"
#include "platform/xml/characters.h"

namespace tolva::platform {
namespace {

/// The start or the end of an element hands over what has been written when there is this much of
/// it.
constexpr std::size_t kBlock = std::size_t{64} * 1024;

enum Escaped : std::uint8_t { kInAttribute = 1, kInText = 2 };

/// The ASCII characters that cannot be written as they are, and where.
constexpr auto kEscapes = [] {
  std::array<std::uint8_t, 128> escapes{};
  for (unsigned c = 0; c < 0x20; ++c) escapes[c] = kInAttribute | kInText;
  escapes['\t'] = kInAttribute;
  escapes['\n'] = kInAttribute;
  escapes['"'] = kInAttribute;
  for (const char c : {'&', '<', '>'}) {
    escapes[static_cast<unsigned char>(c)] = kInAttribute | kInText;
  }
  return escapes;
}();

/// What stands for a character of `kEscapes`; empty for one that XML does not allow.
std::string_view EscapeOf(wchar_t c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\t':
      return "&#x9;";
    case '\n':
      return "&#xA;";
    case '\r':
      return "&#xD;";
    case ' ':
      return "&#x20;";
    default:
      return {};
  }
}

/// Appends what can be taken as it is from the front of a text, up to a character that is not ASCII
/// or not `plain`, as zero never is; returns where it has stopped. Mostly that is the end: names
/// and values are short. Of longer ones no more is taken.
template <class IsPlain>
const wchar_t* AppendFront(const wchar_t* text, Buffer<char>& out, IsPlain is_plain) {
  constexpr std::size_t kShort = 24;
  char* const to = out.Room(kShort);
  std::size_t i = 0;
  for (; i < kShort; ++i) {
    const auto c = static_cast<char32_t>(text[i]);
    if (c >= 0x80 || !is_plain(static_cast<char>(c))) break;
    to[i] = static_cast<char>(c);
  }
  out.Commit(i);
  return text + i;
}

/// Appends a value, escaped for its place.
HRESULT AppendEscaped(const wchar_t* text, Escaped place, Buffer<char>& out) {
  text = AppendFront(text, out, [place](char c) {
    return (kEscapes[static_cast<unsigned char>(c)] & place) == 0;
  });
  if (*text == 0) return S_OK;
  // Room for a stretch of characters is made at once; no character takes more than six bytes.
  constexpr std::ptrdiff_t kStretch = 1024;
  const wchar_t* const end = text + std::wcslen(text);
  while (text != end) {
    const wchar_t* const stretch = text + std::min(kStretch, end - text);
    char* const start = out.Room(6 * kStretch);
    char* to = start;
    while (text < stretch) {
      constexpr auto kCount = static_cast<std::ptrdiff_t>(Bytes::kCount);
      if (stretch - text >= kCount) {
        const Bytes block = Bytes::LoadNarrowed(text);
        const Bytes escaped = block.Is('<') | block.Is('>') | block.Is('&') | block.Is('"');
        const auto plain =
            static_cast<std::ptrdiff_t>(FirstOf(~block.IsPrintable().AndNot(escaped).ToMask()));
        block.Store(to);
        to += plain;
        text += plain;
        if (plain == kCount) continue;
      }
      const auto unit = static_cast<char32_t>(*text);
      if (unit < 0x80) {
        ++text;
        if ((kEscapes[unit] & place) == 0) {
          *to++ = static_cast<char>(unit);
          continue;
        }
        const std::string_view escape = EscapeOf(static_cast<wchar_t>(unit));
        if (escape.empty()) return WC_E_XMLCHARACTER;
        to = std::copy(escape.begin(), escape.end(), to);
        continue;
      }
      do {
        const char32_t c = TakeCodePoint(text, end);
        if (IsSurrogate(c)) return WR_E_INVALIDSURROGATEPAIR;
        if (!IsXmlCharacter(c)) return WC_E_XMLCHARACTER;
        to = EncodeUtf8(c, to);
      } while (text < stretch && static_cast<char32_t>(*text) >= 0x80);
    }
    out.Commit(static_cast<std::size_t>(to - start));
  }
  return S_OK;
}

bool IsBlank(wchar_t c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

bool IsSet(const wchar_t* text) { return text != nullptr && *text != 0; }

}  // namespace

// ---- changes -----------------------------------------------------------------------------------

XmlWriter::Change::Change(XmlWriter& writer)
    : writer_(writer),
      size_(writer.out_.size()),
      names_size_(writer.open_names_.size()),
      depth_(writer.open_elements_.size()),
      state_(writer.state_),
      at_line_start_(writer.at_line_start_) {}

XmlWriter::Change::~Change() {
  if (kept_) return;
  writer_.out_.Truncate(size_);
  writer_.open_names_.Truncate(names_size_);
  writer_.open_elements_.Truncate(depth_);
  // A call out of place has closed the document.
  if (writer_.state_ != State::kClosed) writer_.state_ = state_;
  writer_.at_line_start_ = at_line_start_;
}

// ---- documents ---------------------------------------------------------------------------------

HRESULT XmlWriter::SetOutput(ISequentialStream* output) noexcept {
  if (output_) {
    try {
      if (IsInElement() || state_ == State::kEpilog) WriteEndDocument();
      Flush();
    } catch (const std::bad_alloc&) {
      // The last document is left as far as it came.
    }
  }
  output_.Share(output);
  state_ = State::kNothing;
  at_line_start_ = true;
  out_.Clear();
  open_names_.Clear();
  open_elements_.Clear();
  return S_OK;
}

HRESULT XmlWriter::SetProperty(UINT property, LONG_PTR value) {
  return property == XmlWriterProperty_Indent && value != FALSE ? S_OK : E_NOTIMPL;
}

/// What every call asks first.
HRESULT XmlWriter::Begin() const {
  if (!output_) return E_UNEXPECTED;
  return state_ == State::kClosed ? WR_E_INVALIDACTION : S_OK;
}

/// What the calls ask first whose failure a caller cannot overlook: the stream's failures come to
/// light here alone, and when the document is ended and flushed.
HRESULT XmlWriter::BeginAndDrain() {
  const HRESULT ready = Begin();
  return FAILED(ready) || out_.size() < kBlock ? ready : Drain();
}

HRESULT XmlWriter::Refuse() {
  state_ = State::kClosed;
  return WR_E_INVALIDACTION;
}

/// Empties `out_` into the stream; what the stream does not take stays.
HRESULT XmlWriter::Drain() {
  HRESULT result = S_OK;
  std::size_t gone = 0;
  while (gone < out_.size() && SUCCEEDED(result)) {
    const std::size_t left = out_.size() - gone;
    const auto count =
        static_cast<ULONG>(std::min<std::size_t>(left, std::numeric_limits<ULONG>::max() / 2));
    ULONG written = 0;
    result = output_->Write(out_.data() + gone, count, &written);
    gone += written;
    if (SUCCEEDED(result) && written == 0) result = HRESULT_FROM_WIN32(ERROR_DISK_FULL);
  }
  const std::size_t left = out_.size() - gone;
  if (gone != 0 && left != 0) std::memmove(out_.data(), out_.data() + gone, left);
  out_.Truncate(left);
  return FAILED(result) ? result : S_OK;
}

HRESULT XmlWriter::Flush() { return output_ ? Drain() : S_OK; }

HRESULT XmlWriter::WriteStartDocument(XmlStandalone standalone) {
  if (standalone != XmlStandalone_Omit) return E_NOTIMPL;
  const HRESULT ready = Begin();
  if (FAILED(ready)) return ready;
  if (state_ != State::kNothing) return Refuse();
  Change change(*this);
  Put(R"(<?xml version="1.0" encoding="UTF-8"?>)");
  at_line_start_ = false;
  state_ = State::kProlog;
  return change.Keep();
}

HRESULT XmlWriter::WriteEndDocument() {
  const HRESULT ready = BeginAndDrain();
  if (FAILED(ready)) return ready;
  if (!IsInElement() && state_ != State::kEpilog) return Refuse();
  while (IsInElement()) {
    const HRESULT result = EndElement(false);
    if (FAILED(result)) return result;
  }
  Change change(*this);
  if (!at_line_start_) Put("\n");
  state_ = State::kClosed;
  return change.Keep();
}

// ---- elements ----------------------------------------------------------------------------------

HRESULT XmlWriter::WriteStartElement(const wchar_t* prefix, const wchar_t* name,
                                     const wchar_t* uri) {
  if (!IsSet(name)) return E_INVALIDARG;
  if (IsSet(prefix) || IsSet(uri)) return E_NOTIMPL;
  const HRESULT ready = BeginAndDrain();
  if (FAILED(ready)) return ready;
  Change change(*this);
  const HRESULT result = StartElement(name);
  if (FAILED(result)) return result;
  duplicate_filter_.Clear();
  attribute_names_.Clear();
  attribute_name_ends_.Clear();
  return change.Keep();
}

HRESULT XmlWriter::StartElement(const wchar_t* name) {
  if (state_ == State::kEpilog) return Refuse();
  FinishStartTag();
  const bool on_new_line = open_elements_.size() == 0 || !Innermost().has_text;
  if (on_new_line) PutLineBreak(open_elements_.size());
  Put("<");
  const std::size_t name_start = out_.size();
  const HRESULT result = PutName(name);
  if (FAILED(result)) return result;
  open_elements_.Append(OpenElement{open_names_.size(), false});
  open_names_.Append(out_.data() + name_start, out_.size() - name_start);
  state_ = State::kStartTag;
  at_line_start_ = false;
  return S_OK;
}

HRESULT XmlWriter::WriteAttributeString(const wchar_t* prefix, const wchar_t* name,
                                        const wchar_t* uri, const wchar_t* value) {
  if (!IsSet(name)) return E_INVALIDARG;
  if (IsSet(prefix) || IsSet(uri)) return E_NOTIMPL;
  if (*name == L'x' && std::wcscmp(name, L"xmlns") == 0) return WR_E_XMLNSPREFIXDECLARATION;
  const HRESULT ready = Begin();
  if (FAILED(ready)) return ready;
  if (state_ != State::kStartTag) return Refuse();

  Change change(*this);
  Put(" ");
  const std::size_t name_start = out_.size();
  HRESULT result = PutName(name);
  if (FAILED(result)) return result;
  const std::size_t name_size = out_.size() - name_start;
  Put("=\"");
  result = PutAttributeValue(value);
  if (FAILED(result)) return result;
  Put("\"");

  const std::string_view new_name(out_.data() + name_start, name_size);
  const auto is_new_name = [this, new_name](std::size_t i) {
    const std::size_t start = i == 0 ? 0 : attribute_name_ends_.data()[i - 1];
    const std::size_t end = attribute_name_ends_.data()[i];
    return std::string_view(attribute_names_.data() + start, end - start) == new_name;
  };
  attribute_name_ends_.Room(1);
  attribute_names_.Room(name_size);
  bool has_twin = false;
  if (duplicate_filter_.MayBeDuplicate(new_name)) {
    for (std::size_t i = 0; i < attribute_name_ends_.size(); ++i) {
      has_twin = has_twin || is_new_name(i);
    }
  }
  if (has_twin) return WR_E_DUPLICATEATTRIBUTE;
  attribute_names_.Append(new_name.data(), name_size);
  attribute_name_ends_.Append(attribute_names_.size());
  return change.Keep();
}

HRESULT XmlWriter::WriteString(const wchar_t* text) {
  if (text == nullptr) return S_OK;
  const HRESULT ready = Begin();
  if (FAILED(ready)) return ready;
  if (!IsInElement()) return Refuse();
  Change change(*this);
  FinishStartTag();
  const HRESULT result = PutText(text);
  return FAILED(result) ? result : change.Keep();
}

HRESULT XmlWriter::WriteWhitespace(const wchar_t* text) {
  if (text == nullptr) return S_OK;
  const wchar_t* end = text;
  while (IsBlank(*end)) ++end;
  if (*end != 0) return WR_E_NONWHITESPACE;
  const HRESULT ready = Begin();
  if (FAILED(ready)) return ready;
  out_.Room(static_cast<std::size_t>(end - text) + 1);  // with the '>': nothing fails from here on
  FinishStartTag();
  for (const wchar_t* at = text; at != end; ++at) out_.Append(static_cast<char>(*at));
  if (state_ == State::kNothing) state_ = State::kProlog;
  if (end != text) at_line_start_ = end[-1] == '\n';
  return S_OK;
}

HRESULT XmlWriter::WriteEndElement() {
  const HRESULT ready = BeginAndDrain();
  return FAILED(ready) ? ready : EndElement(false);
}

HRESULT XmlWriter::WriteFullEndElement() {
  const HRESULT ready = BeginAndDrain();
  return FAILED(ready) ? ready : EndElement(true);
}

HRESULT XmlWriter::EndElement(bool full) {
  if (!IsInElement()) return Refuse();
  Change change(*this);
  const OpenElement element = Innermost();
  const bool is_empty = state_ == State::kStartTag;
  if (is_empty && !full) {
    Put("/>");
  } else {
    FinishStartTag();
    if (!is_empty && !element.has_text) PutLineBreak(open_elements_.size() - 1);
    Put("</");
    out_.Append(open_names_.data() + element.name_start, open_names_.size() - element.name_start);
    Put(">");
  }
  open_elements_.Truncate(open_elements_.size() - 1);
  open_names_.Truncate(element.name_start);
  state_ = open_elements_.size() == 0 ? State::kEpilog : State::kContent;
  at_line_start_ = false;
  return change.Keep();
}

HRESULT XmlWriter::WriteElementString(const wchar_t* prefix, const wchar_t* name,
                                      const wchar_t* uri, const wchar_t* text) {
  if (!IsSet(name)) return E_INVALIDARG;
  if (IsSet(prefix) || IsSet(uri)) return E_NOTIMPL;
  const HRESULT ready = BeginAndDrain();
  if (FAILED(ready)) return ready;
  Change change(*this);
  HRESULT result = StartElement(name);
  if (FAILED(result)) return result;
  if (text != nullptr) {
    FinishStartTag();
    result = PutText(text);
    if (FAILED(result)) return result;
  }
  result = EndElement(text != nullptr);
  return FAILED(result) ? result : change.Keep();
}

// ---- pieces ------------------------------------------------------------------------------------

HRESULT XmlWriter::PutName(const wchar_t* name) {
  const std::size_t start = out_.size();
  const wchar_t* at =
      AppendFront(name, out_, [](char c) { return own_xml::IsClass(c, own_xml::kName); });
  if (at != name && !own_xml::IsClass(out_.data()[start], own_xml::kNameStart)) {
    return WC_E_NAMECHARACTER;
  }
  if (*at == 0) return S_OK;

  const wchar_t* const end = at + std::wcslen(at);
  char* const room = out_.Room(4 * static_cast<std::size_t>(end - at));
  char* to = room;
  while (at != end) {
    const bool is_first = at == name;
    const char32_t c = TakeCodePoint(at, end);
    const bool legal = is_first ? own_xml::IsNameStartCharacter(c) : own_xml::IsNameCharacter(c);
    if (!legal) return WC_E_NAMECHARACTER;
    to = EncodeUtf8(c, to);
  }
  out_.Commit(static_cast<std::size_t>(to - room));
  return S_OK;
}

HRESULT XmlWriter::PutAttributeValue(const wchar_t* value) {
  return value == nullptr ? S_OK : AppendEscaped(value, kInAttribute, out_);
}

HRESULT XmlWriter::PutText(const wchar_t* text) {
  const wchar_t* at = text;
  while (IsBlank(*at)) ++at;
  const bool is_blank = at != text && *at == 0;
  if (is_blank) Put(EscapeOf(*text++));
  const HRESULT result = AppendEscaped(text, kInText, out_);
  if (FAILED(result)) return result;
  // Behind all that can fail: a Change does not put this back.
  Innermost().has_text = true;
  at_line_start_ = false;
  return S_OK;
}

/// Goes to the start of a new line, indented for an element at this depth.
void XmlWriter::PutLineBreak(std::size_t depth) {
  if (!at_line_start_) Put("\n");
  std::fill_n(out_.Room(2 * depth), 2 * depth, ' ');
  out_.Commit(2 * depth);
  at_line_start_ = false;
}

void XmlWriter::FinishStartTag() {
  if (state_ != State::kStartTag) return;
  Put(">");
  state_ = State::kContent;
}

}  // namespace tolva::platform
