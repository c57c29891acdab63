#include "platform/xml/input.h"

#include <algorithm>
#include <cstring>

#include "platform/utf.h"
#include "platform/xml/characters.h"

namespace tolva::platform::own_xml {
namespace {

/// How much is asked of the stream at a time.
constexpr std::size_t kBlock = std::size_t{64} * 1024;

/// A window that has grown beyond this for one long token is given up behind it.
constexpr std::size_t kLargestKept = 8 * kBlock;

/// Stands for what cannot be transcoded: no UTF-8 sequence holds it.
constexpr char kNoCharacter = '\xFF';

constexpr char ToLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return ToLower(x) == ToLower(y); });
}

bool IsAnyOf(std::string_view name, std::initializer_list<std::string_view> names) {
  return std::any_of(names.begin(), names.end(),
                     [name](std::string_view other) { return EqualsIgnoringCase(name, other); });
}

/// The value of the pseudo-attribute `encoding` in the bytes of an XML declaration, or nothing. The
/// declaration is parsed properly later; here it is only asked how to read it.
std::string_view FindDeclaredEncoding(std::string_view declaration) {
  const std::size_t word = declaration.find("encoding");
  if (word == std::string_view::npos) return {};
  const std::size_t start = declaration.find_first_of("'\"", word);
  if (start == std::string_view::npos) return {};
  const std::size_t end = declaration.find(declaration[start], start + 1);
  if (end == std::string_view::npos) return {};
  return declaration.substr(start + 1, end - start - 1);
}

}  // namespace

void Input::Open(ISequentialStream* stream, bool converted) {
  Close();
  stream_.Share(stream);
  converted_ = converted;
}

void Input::Close() {
  stream_.Reset();
  detected_ = false;
  encoding_ = Encoding::kUtf8;
  stream_result_ = S_OK;
  reason_ = S_OK;
  stopped_at_zero_ = false;
  limit_ = 0;
  window_.Clear();
  raw_.Clear();
}

bool Input::More(const char*& at) {
  if (reason_ != S_OK) return false;
  std::size_t kept = 0;
  if (detected_) {
    kept = limit_ - static_cast<std::size_t>(at - window_.data());
    if (window_.capacity() > kLargestKept && kept < kBlock) {
      Buffer<char> smaller;
      smaller.Append(at, kept);
      window_ = std::move(smaller);
    } else {
      std::memmove(window_.data(), at, kept);
      window_.Truncate(kept);
    }
  } else {
    DetectEncoding();
    detected_ = true;
  }
  limit_ = kept;

  const std::size_t wanted = std::max<std::size_t>(2 * kept, 1);
  while (limit_ < wanted && reason_ == S_OK) AddBlock();
  at = window_.data();
  return limit_ > kept;
}

HRESULT Input::CheckDeclaredEncoding(std::string_view name) const {
  if (converted_) return S_OK;
  const bool utf8 = IsAnyOf(name, {"UTF-8"});
  const bool latin1 = IsAnyOf(name, {"ISO-8859-1"});
  const bool ascii = IsAnyOf(name, {"US-ASCII"});
  const bool utf16 = IsAnyOf(name, {"UTF-16"});
  const bool little = IsAnyOf(name, {"UTF-16LE"});
  const bool big = IsAnyOf(name, {"UTF-16BE"});
  if (!utf8 && !latin1 && !ascii && !utf16 && !little && !big) return MX_E_ENCODING;
  switch (encoding_) {
    case Encoding::kUtf16LittleEndian:
      return utf16 || little ? S_OK : MX_E_ENCODINGSWITCH;
    case Encoding::kUtf16BigEndian:
      return utf16 || big ? S_OK : MX_E_ENCODINGSWITCH;
    case Encoding::kLatin1:
      return latin1 ? S_OK : MX_E_ENCODINGSWITCH;
    case Encoding::kAscii:
      return ascii ? S_OK : MX_E_ENCODINGSWITCH;
    case Encoding::kUtf8:
      break;
  }
  return utf8 ? S_OK : MX_E_ENCODINGSWITCH;
}

/// Asks the stream for up to `count` more bytes; false at its end and on a failure.
bool Input::ReadRaw(Buffer<char>& into, std::size_t count) {
  if (stream_result_ != S_OK) return false;
  ULONG got = 0;
  char* const room = into.Room(count + kPadding);
  const HRESULT result = stream_->Read(room, static_cast<ULONG>(count), &got);
  if (FAILED(result)) {
    stream_result_ = result;
    return false;
  }
  if (got == 0) stream_result_ = S_FALSE;
  into.Commit(got);
  return got != 0;
}

/// Reads as far as it takes to know the encoding, and drops a byte-order mark. What has been read
/// is left where the first block is looked for.
void Input::DetectEncoding() {
  while (window_.size() < 4 && ReadRaw(window_, kBlock)) {
  }
  const std::string_view head(window_.data(), window_.size());
  std::size_t bom = 0;
  if (head.starts_with("\xEF\xBB\xBF")) {
    bom = 3;
  } else if (converted_) {
    bom = 0;
  } else if (head.starts_with("\xFF\xFE")) {
    bom = 2;
    encoding_ = Encoding::kUtf16LittleEndian;
  } else if (head.starts_with("\xFE\xFF")) {
    bom = 2;
    encoding_ = Encoding::kUtf16BigEndian;
  } else if (head.starts_with(std::string_view("<\0", 2))) {
    encoding_ = Encoding::kUtf16LittleEndian;
  } else if (head.starts_with(std::string_view("\0<", 2))) {
    encoding_ = Encoding::kUtf16BigEndian;
  } else {
    encoding_ = SniffDeclaration();
  }
  if (encoding_ != Encoding::kUtf8) {
    raw_.Append(window_.data() + bom, window_.size() - bom);
    window_.Truncate(0);
  } else if (bom != 0) {
    const std::size_t rest = window_.size() - bom;
    std::memmove(window_.data(), window_.data() + bom, rest);
    window_.Truncate(rest);
  }
}

/// Of the encodings that start like ASCII, the one that the XML declaration asks for.
Input::Encoding Input::SniffDeclaration() {
  constexpr std::string_view kDeclaration = "<?xml";
  const auto head = [this] { return std::string_view(window_.data(), window_.size()); };
  while (window_.size() <= kDeclaration.size() && ReadRaw(window_, kBlock)) {
  }
  const bool is_declared = head().size() > kDeclaration.size() &&
                           head().starts_with(kDeclaration) &&
                           IsClass(head()[kDeclaration.size()], kSpace);
  if (!is_declared) return Encoding::kUtf8;
  std::size_t searched = 0;
  std::size_t end = std::string_view::npos;
  do {
    end = head().find('>', searched);
    searched = window_.size();
  } while (end == std::string_view::npos && ReadRaw(window_, kBlock));
  const std::string_view name = FindDeclaredEncoding(head().substr(0, end));
  if (IsAnyOf(name, {"ISO-8859-1"})) return Encoding::kLatin1;
  if (IsAnyOf(name, {"US-ASCII"})) return Encoding::kAscii;
  return Encoding::kUtf8;
}

void Input::AddBlock() {
  if (encoding_ == Encoding::kUtf8) {
    AddUtf8Block();
  } else {
    AddTranscodedBlock();
  }
  std::memset(window_.data() + limit_, 0, kPadding);
}

/// Reads straight into the window, which holds more than it shows when a document has just been
/// started. `raw_` holds the bytes of a character that the last block cut in two.
void Input::AddUtf8Block() {
  if (window_.size() == limit_) {
    window_.Append(raw_.data(), raw_.size());
    raw_.Clear();
    ReadRaw(window_, kBlock);
  }
  window_.Room(kPadding);
  Admit(window_.size() - limit_);
  if (reason_ == S_OK) {
    raw_.Append(window_.data() + limit_, window_.size() - limit_);
    if (stream_result_ != S_OK) {
      reason_ = raw_.size() != 0 && stream_result_ == S_FALSE ? WC_E_XMLCHARACTER : stream_result_;
    }
  }
  window_.Truncate(limit_);
}

/// Takes the next bytes of `raw_` into the window, as UTF-8.
void Input::AddTranscodedBlock() {
  while (raw_.size() < 4 && ReadRaw(raw_, kBlock)) {
  }
  const bool wide =
      encoding_ == Encoding::kUtf16LittleEndian || encoding_ == Encoding::kUtf16BigEndian;
  const auto* const bytes = reinterpret_cast<const unsigned char*>(raw_.data());
  const std::size_t size = raw_.size();
  const bool last = stream_result_ == S_FALSE;

  window_.Truncate(limit_);
  // Two bytes at most for each of a single-byte encoding, three for two of UTF-16, one for what is
  // no character.
  char* const start = window_.Room(2 * size + kPadding);
  char* to = start;
  std::size_t i = 0;
  if (!wide) {
    for (; i < size; ++i) {
      const bool legal = bytes[i] < 0x80 || encoding_ == Encoding::kLatin1;
      if (legal) {
        to = EncodeUtf8(bytes[i], to);
      } else {
        *to++ = kNoCharacter;
      }
    }
  } else {
    const bool big = encoding_ == Encoding::kUtf16BigEndian;
    const auto unit = [bytes, big](std::size_t at) {
      return static_cast<char32_t>(big ? bytes[at] << 8 | bytes[at + 1]
                                       : bytes[at + 1] << 8 | bytes[at]);
    };
    while (i + 2 <= size) {
      const char32_t first = unit(i);
      if (!IsSurrogate(first)) {
        to = EncodeUtf8(first, to);
        i += 2;
        continue;
      }
      if (i + 4 > size && !last) break;  // the other half is still to come
      const char32_t second = i + 4 <= size ? unit(i + 2) : 0;
      if (first > 0xDBFF || second < 0xDC00 || second > 0xDFFF) {
        *to++ = kNoCharacter;
        break;
      }
      to = EncodeUtf8(0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00), to);
      i += 4;
    }
    if (last && i + 1 == size) *to++ = kNoCharacter;  // half a unit
  }
  window_.Commit(static_cast<std::size_t>(to - start));
  if (i != size && i != 0) std::memmove(raw_.data(), raw_.data() + i, size - i);
  raw_.Truncate(size - i);

  Admit(window_.size() - limit_);
  if (reason_ == S_OK && stream_result_ != S_OK && to == start) reason_ = stream_result_;
}

/// Extends the window over as many of the next `count` bytes as are legal text.
void Input::Admit(std::size_t count) {
  const Utf8Prefix prefix = MeasureXmlUtf8(window_.data() + limit_, count);
  limit_ += prefix.size;
  if (!prefix.malformed) return;
  reason_ = WC_E_XMLCHARACTER;
  stopped_at_zero_ = window_.data()[limit_] == '\0';
}

}  // namespace tolva::platform::own_xml
