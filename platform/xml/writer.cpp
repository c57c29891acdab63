#include "platform/xml/writer.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <new>

#include "platform/utf.h"
#include "platform/vector.h"

namespace tolva::platform {
namespace {

/// Output is passed on when there is this much of it.
constexpr std::size_t kWriteBlock = std::size_t{64} * 1024;

/// Values are escaped in stretches of this many characters, so that the room for one is bounded.
constexpr std::size_t kStretch = 1024;

/// No character takes more bytes: `&quot;`.
constexpr std::size_t kLongestEscape = 6;

/// Room for markup of fixed length, and for what is copied past the end of a name.
constexpr std::size_t kMarkupRoom = Name::kRoom + 32;

enum class Place : std::uint8_t { kAttribute = 1, kText = 2 };

/// The ASCII characters that cannot be written as they are, and in which places.
constexpr auto kEscapedIn = [] {
  constexpr auto kInAttribute = static_cast<std::uint8_t>(Place::kAttribute);
  constexpr auto kInText = static_cast<std::uint8_t>(Place::kText);
  std::array<std::uint8_t, 128> escaped{};
  for (unsigned c = 0; c < 0x20; ++c) escaped[c] = kInAttribute | kInText;
  escaped['\t'] = kInAttribute;
  escaped['\n'] = kInAttribute;
  escaped['"'] = kInAttribute;
  for (const char c : {'&', '<', '>'}) {
    escaped[static_cast<unsigned char>(c)] = kInAttribute | kInText;
  }
  return escaped;
}();

template <Place place>
bool IsEscaped(char32_t ascii) {
  return (kEscapedIn[ascii] & static_cast<std::uint8_t>(place)) != 0;
}

/// What is written for a character; empty for one that XML does not allow.
std::string_view EscapeOf(char32_t c) {
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

bool IsWhiteSpace(wchar_t c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// The functions below write to room that has been made, and return where the text ends.

template <std::size_t size>
char* Put(const char (&markup)[size], char* to) {
  std::memcpy(to, markup, size - 1);
  return to + size - 1;
}

char* PutSpaces(std::size_t count, char* to) {
  for (std::size_t i = 0; i < count; i += Bytes::kCount) Bytes::Fill(' ').Store(to + i);
  return to + count;
}

/// Writes the next character of a value. Returns null at one that XML does not allow, with the
/// reason in `result`.
template <Place place>
char* PutCharacter(const wchar_t*& at, const wchar_t* end, char* to, HRESULT& result) {
  const char32_t c = TakeCodePoint(at, end);
  if (c >= 0x80) {
    if (IsXmlCharacter(c)) return EncodeUtf8(c, to);
    result = IsSurrogate(c) ? WR_E_INVALIDSURROGATEPAIR : WC_E_XMLCHARACTER;
    return nullptr;
  }
  if (!IsEscaped<place>(c)) {
    *to = static_cast<char>(c);
    return to + 1;
  }
  const std::string_view escape = EscapeOf(c);
  if (!escape.empty()) return std::copy(escape.begin(), escape.end(), to);
  result = WC_E_XMLCHARACTER;
  return nullptr;
}

/// Stores a block of a value. Returns a bit for each character that is written as it is.
Mask StorePlain(Bytes block, char* to) {
  // '<' and '>' differ in one bit, '"' and '&' in another.
  const Bytes markup = (block | Bytes::Fill(2)).Is('>') | (block | Bytes::Fill(4)).Is('&');
  block.Store(to);
  return block.IsPrintable().AndNot(markup).ToMask();
}

/// Writes a stretch of a value up to `stop`, escaped for its place. There is room for all of it. A
/// surrogate pair may end after `stop`, but not after `end`.
template <Place place>
char* PutStretch(const wchar_t*& at, const wchar_t* stop, const wchar_t* end, char* to,
                 HRESULT& result) {
  constexpr auto kCount = static_cast<std::ptrdiff_t>(Bytes::kCount);
  constexpr std::ptrdiff_t kFew = 4;
  const wchar_t* plain = at;  // from here to `at` all is written as it is
  while (at < stop) {
    // Whole blocks are steps of a known size, so that the next does not wait for the count.
    const std::ptrdiff_t left = stop - at;
    std::ptrdiff_t count = 0;
    if (left >= kCount) {
      const Mask mask = StorePlain(Bytes::LoadNarrowed(at), to);
      if (mask == kAllBytes) {
        to += kCount;
        at += kCount;
        continue;
      }
      count = FirstOf(~mask);
    } else if (stop - plain >= kCount) {
      // The last block also has characters that are written already.
      const std::ptrdiff_t again = kCount - left;
      const Mask mask = StorePlain(Bytes::LoadNarrowed(at - again), to - again);
      if (mask == kAllBytes) {
        at = stop;
        return to + left;
      }
      count = FirstOf(~mask) - again;
    } else if (stop - plain >= kFew) {
      const std::ptrdiff_t again = std::max<std::ptrdiff_t>(kFew - left, 0);
      const std::ptrdiff_t step = kFew - again;
      count = FirstOf(~StorePlain(Bytes::LoadFourNarrowed(at - again), to - again)) - again;
      if (count == step) {
        to += step;
        at += step;
        continue;
      }
    }
    to += count;
    at += count;
    to = PutCharacter<place>(at, end, to, result);
    if (to == nullptr) return nullptr;
    plain = at;
  }
  return to;
}

/// Appends a value, escaped for its place. What a refused value has left in `out` is the caller's
/// to take back.
template <Place place>
HRESULT AppendEscaped(std::wstring_view text, Buffer<char>& out) {
  const wchar_t* at = text.data();
  const wchar_t* const end = at + text.size();
  HRESULT result = S_OK;
  do {
    const std::size_t count = std::min(kStretch, static_cast<std::size_t>(end - at));
    char* const room = out.Room(kLongestEscape * count + Bytes::kCount);
    char* const to = PutStretch<place>(at, at + count, end, room, result);
    if (to == nullptr) return result;
    out.Commit(static_cast<std::size_t>(to - room));
  } while (at != end);
  return S_OK;
}

/// A text of white space alone would not be read back as a text, so its first character is written
/// as a reference.
HRESULT AppendText(std::wstring_view text, Buffer<char>& out) {
  if (!text.empty() && std::all_of(text.begin(), text.end(), IsWhiteSpace)) {
    const std::string_view reference = EscapeOf(static_cast<char32_t>(text.front()));
    out.Append(reference.data(), reference.size());
    text.remove_prefix(1);
  }
  return AppendEscaped<Place::kText>(text, out);
}

}  // namespace

class XmlWriter::Draft {
 public:
  explicit Draft(Buffer<char>& out) : out_(&out), size_(out.size()) {}
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;
  ~Draft() {
    if (out_ != nullptr) out_->Truncate(size_);
  }

  void Keep() { out_ = nullptr; }

 private:
  Buffer<char>* out_;
  const std::size_t size_;
};

// ---- documents ---------------------------------------------------------------------------------

HRESULT XmlWriter::SetOutput(ISequentialStream* output) noexcept {
  if (output_) {
    try {
      if (IsInElement() || state_ == State::kEpilog) WriteEndDocument();
      Flush();
    } catch (const std::bad_alloc&) {
      // The last document keeps what has been written so far.
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

HRESULT XmlWriter::Begin() {
  if (!output_) return E_UNEXPECTED;
  return state_ == State::kClosed ? WR_E_INVALIDACTION : S_OK;
}

/// For calls that start or end an element or end the document: they also pass output on, because
/// callers never ignore their failures.
HRESULT XmlWriter::BeginElement() {
  const HRESULT result = Begin();
  return FAILED(result) || out_.size() < kWriteBlock ? result : Drain();
}

HRESULT XmlWriter::BeginAttribute() {
  const HRESULT result = Begin();
  return FAILED(result) || state_ == State::kStartTag ? result : Refuse();
}

HRESULT XmlWriter::Refuse() {
  state_ = State::kClosed;
  return WR_E_INVALIDACTION;
}

/// Passes all output to the stream. What the stream does not accept is kept.
HRESULT XmlWriter::Drain() {
  HRESULT result = S_OK;
  std::size_t done = 0;
  while (done < out_.size() && SUCCEEDED(result)) {
    const std::size_t left = out_.size() - done;
    const auto count =
        static_cast<ULONG>(std::min<std::size_t>(left, std::numeric_limits<ULONG>::max() / 2));
    ULONG written = 0;
    result = output_->Write(out_.data() + done, count, &written);
    done += written;
    if (SUCCEEDED(result) && written == 0) result = HRESULT_FROM_WIN32(ERROR_DISK_FULL);
  }
  const std::size_t left = out_.size() - done;
  if (done != 0 && left != 0) std::memmove(out_.data(), out_.data() + done, left);
  out_.Truncate(left);
  return FAILED(result) ? result : S_OK;
}

HRESULT XmlWriter::Flush() { return output_ ? Drain() : S_OK; }

HRESULT XmlWriter::WriteStartDocument() {
  const HRESULT result = Begin();
  if (FAILED(result)) return result;
  if (state_ != State::kNothing) return Refuse();
  out_.Room(kWriteBlock + kWriteBlock / 16);  // all that most documents need
  constexpr std::string_view kDeclaration = R"(<?xml version="1.0" encoding="UTF-8"?>)";
  out_.Append(kDeclaration.data(), kDeclaration.size());
  at_line_start_ = false;
  state_ = State::kProlog;
  return S_OK;
}

HRESULT XmlWriter::WriteEndDocument() {
  const HRESULT ready = BeginElement();
  if (FAILED(ready)) return ready;
  if (!IsInElement() && state_ != State::kEpilog) return Refuse();
  while (IsInElement()) {
    const HRESULT result = EndElement(false);
    if (FAILED(result)) return result;
  }
  if (!at_line_start_) out_.Append('\n');
  state_ = State::kClosed;
  return S_OK;
}

// ---- elements ----------------------------------------------------------------------------------

HRESULT XmlWriter::WriteStartElement(const Name& name) {
  const HRESULT result = BeginElement();
  if (FAILED(result)) return result;
  if (state_ == State::kEpilog) return Refuse();
  char* const room = out_.Room(RoomForStartTag());
  char* const names = open_names_.Room(Name::kRoom);
  std::size_t* const name_start = open_elements_.Room(1);
  // Nothing fails from here on.
  out_.Commit(static_cast<std::size_t>(PutStartTag(name, room) - room));
  *name_start = open_names_.size();
  open_elements_.Commit(1);
  name.Copy(names);
  open_names_.Commit(name.size());
  state_ = State::kStartTag;
  at_line_start_ = false;
  return S_OK;
}

HRESULT XmlWriter::WriteAttribute(const Name& name, std::wstring_view text) {
  const HRESULT ready = BeginAttribute();
  if (FAILED(ready)) return ready;
  Draft draft(out_);
  char* const room = out_.Room(kMarkupRoom);
  out_.Commit(static_cast<std::size_t>(name.CopyAsAttribute(room) - room));
  const HRESULT result = AppendEscaped<Place::kAttribute>(text, out_);
  if (FAILED(result)) return result;
  out_.Append('"');
  draft.Keep();
  return S_OK;
}

HRESULT XmlWriter::WritePlainAttribute(const Name& name, Value value) {
  const HRESULT result = BeginAttribute();
  if (FAILED(result)) return result;
  char* const room = out_.Room(kMarkupRoom + value.size());
  char* to = name.CopyAsAttribute(room);
  to = Put("\"", std::copy(value.begin(), value.end(), to));
  out_.Commit(static_cast<std::size_t>(to - room));
  return S_OK;
}

HRESULT XmlWriter::EndElement(bool has_end_tag) {
  const HRESULT result = BeginElement();
  if (FAILED(result)) return result;
  if (!IsInElement()) return Refuse();
  const std::string_view name = InnermostName();
  char* const room = out_.Room(kMarkupRoom + 2 * depth() + name.size());
  char* to = room;
  if (state_ == State::kStartTag && !has_end_tag) {
    to = Put("/>", to);
  } else {
    to = state_ == State::kStartTag ? Put(">", to) : PutLineBreak(depth() - 1, to);
    to = Put("</", to);
    CopyBlocks(name.data(), name.size(), to);
    to = Put(">", to + name.size());
  }
  out_.Commit(static_cast<std::size_t>(to - room));
  open_names_.Truncate(open_names_.size() - name.size());
  open_elements_.Truncate(depth() - 1);
  state_ = depth() == 0 ? State::kEpilog : State::kContent;
  at_line_start_ = false;
  return S_OK;
}

HRESULT XmlWriter::WriteLineFeed() {
  const HRESULT result = Begin();
  if (FAILED(result)) return result;
  if (state_ == State::kStartTag) {
    out_.Append(">\n", 2);
    state_ = State::kContent;
  } else {
    out_.Append('\n');
  }
  if (state_ == State::kNothing) state_ = State::kProlog;
  at_line_start_ = true;
  return S_OK;
}

/// Writes an element on one line. `put` appends its end, from the end of the name on.
template <class Put>
HRESULT XmlWriter::WriteWholeElement(const Name& name, Put put) {
  const HRESULT ready = BeginElement();
  if (FAILED(ready)) return ready;
  if (state_ == State::kEpilog) return Refuse();
  Draft draft(out_);
  char* const room = out_.Room(RoomForStartTag());
  out_.Commit(static_cast<std::size_t>(PutStartTag(name, room) - room));
  const HRESULT result = put();
  if (FAILED(result)) return result;
  draft.Keep();
  state_ = depth() == 0 ? State::kEpilog : State::kContent;
  at_line_start_ = false;
  return S_OK;
}

HRESULT XmlWriter::WriteElement(const Name& name, std::wstring_view text) {
  return WriteWholeElement(name, [&] {
    out_.Append('>');
    const HRESULT result = AppendText(text, out_);
    if (FAILED(result)) return result;
    char* const room = out_.Room(kMarkupRoom);
    char* const to = Put(">", name.Copy(Put("</", room)));
    out_.Commit(static_cast<std::size_t>(to - room));
    return S_OK;
  });
}

HRESULT XmlWriter::WritePlainElement(const Name& name, Value value) {
  return WriteWholeElement(name, [&] {
    char* const room = out_.Room(kMarkupRoom + value.size());
    char* to = Put(">", room);
    to = std::copy(value.begin(), value.end(), to);
    to = Put(">", name.Copy(Put("</", to)));
    out_.Commit(static_cast<std::size_t>(to - room));
    return S_OK;
  });
}

HRESULT XmlWriter::WriteEmptyElement(const Name& name) {
  return WriteWholeElement(name, [this] {
    out_.Append("/>", 2);
    return S_OK;
  });
}

// ---- pieces ------------------------------------------------------------------------------------

std::string_view XmlWriter::InnermostName() const {
  const std::size_t start = open_elements_.data()[depth() - 1];
  return {open_names_.data() + start, open_names_.size() - start};
}

std::size_t XmlWriter::RoomForStartTag() const { return kMarkupRoom + 2 * depth(); }

/// Ends the start tag before, if it is open, and puts `<name` on a new line.
char* XmlWriter::PutStartTag(const Name& name, char* to) const {
  if (state_ == State::kStartTag) to = Put(">", to);
  to = PutLineBreak(depth(), to);
  return name.Copy(Put("<", to));
}

/// Goes to the start of a new line, indented for an element at this depth.
char* XmlWriter::PutLineBreak(std::size_t depth, char* to) const {
  if (!at_line_start_) to = Put("\n", to);
  return PutSpaces(2 * depth, to);
}

}  // namespace tolva::platform
