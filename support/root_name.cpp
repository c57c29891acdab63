#include <tolva/support/documents.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include "support/file.h"
#include "support/unicode.h"

namespace tolva::support {
namespace {

using internal::kMalformed;

/// In bytes of UTF-8. Names that are longer are taken for none, so that memory stays bounded.
constexpr std::size_t kLongestName = 1000;

/// Whether XML 1.0 allows the code point in a document.
bool IsXmlCharacter(char32_t c) {
  if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
  return c < 0xD800 || (c > 0xDFFF && c < 0xFFFE) || (c > 0xFFFF && c <= internal::kLastCodePoint);
}

bool IsSpace(char32_t c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

bool IsLetter(char32_t c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool IsDigit(char32_t c) { return c >= '0' && c <= '9'; }

struct Range {
  char32_t first;
  char32_t last;
};

// Productions [4] and [4a] of XML 1.0, fifth edition, beyond ASCII.
constexpr Range kStartRanges[] = {
    {0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},
    {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
    {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF},
};
constexpr Range kFurtherRanges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t Count>
bool IsIn(const Range (&ranges)[Count], char32_t c) {
  return std::any_of(ranges, ranges + Count,
                     [c](const Range& range) { return c >= range.first && c <= range.last; });
}

/// Whether a name, without its prefix, may start with the code point.
bool StartsName(char32_t c) { return IsLetter(c) || c == '_' || IsIn(kStartRanges, c); }

bool ContinuesName(char32_t c) {
  return StartsName(c) || IsDigit(c) || c == '-' || c == '.' || IsIn(kFurtherRanges, c);
}

/// The code points of a wide string, which is no longer subject to an encoding.
class WideCharacters {
 public:
  explicit WideCharacters(const std::wstring& text)
      : at_(text.data()), end_(text.data() + text.size()) {
    if (at_ != end_ && static_cast<char32_t>(*at_) == 0xFEFF) ++at_;
  }

  /// kMalformed at the end.
  char32_t Next() {
    if (at_ == end_) return kMalformed;
    const char32_t c = internal::TakeCodePoint(at_, end_);
    return c == kMalformed ? internal::kReplacement : c;  // as the library reads it
  }

  bool SetEncoding(const std::string& /*name*/) { return true; }

 private:
  const wchar_t* at_;
  const wchar_t* const end_;
};

/// The code points of a file.
class FileCharacters {
 public:
  explicit FileCharacters(const std::filesystem::path& path) {
    is_open_ = file_.OpenToRead(path) == 0;
    DetectEncoding();
  }

  /// kMalformed at the end, at what is malformed and when the file cannot be read.
  char32_t Next() {
    switch (encoding_) {
      case Encoding::kUtf8:
        return NextUtf8();
      case Encoding::kAscii:
      case Encoding::kLatin1: {
        const int byte = NextByte();
        const int last = encoding_ == Encoding::kAscii ? 0x7F : 0xFF;
        return byte < 0 || byte > last ? kMalformed : static_cast<char32_t>(byte);
      }
      case Encoding::kUtf16LittleEndian:
      case Encoding::kUtf16BigEndian:
        break;
    }
    const char32_t first = NextUnit();
    return internal::IsSurrogate(first) ? internal::JoinSurrogates(first, NextUnit()) : first;
  }

  /// Goes on in the encoding that the document declares; false when it cannot be.
  bool SetEncoding(const std::string& name) {
    switch (encoding_) {
      case Encoding::kUtf16LittleEndian:
        return name == "utf-16" || name == "utf-16le";
      case Encoding::kUtf16BigEndian:
        return name == "utf-16" || name == "utf-16be";
      default:
        break;
    }
    if (name == "utf-8") return true;
    if (name == "iso-8859-1") encoding_ = Encoding::kLatin1;
    if (name == "us-ascii") encoding_ = Encoding::kAscii;
    return encoding_ != Encoding::kUtf8 && !has_mark_;
  }

 private:
  enum class Encoding { kUtf8, kAscii, kLatin1, kUtf16LittleEndian, kUtf16BigEndian };

  bool Fill() {
    at_ = 0;
    size_ = 0;
    return is_open_ && file_.Read(block_.data(), block_.size(), &size_) == 0 && size_ != 0;
  }

  /// -1 at the end.
  int NextByte() {
    if (at_ == size_ && !Fill()) return -1;
    return static_cast<unsigned char>(block_[at_++]);
  }

  void DetectEncoding() {
    Fill();
    const std::string_view head(block_.data(), size_);
    const auto starts_with = [head](std::string_view start) {
      return head.substr(0, start.size()) == start;
    };
    const bool is_little = starts_with("\xFF\xFE");
    const bool is_big = starts_with("\xFE\xFF");
    if (is_little || is_big) at_ = 2;
    if (starts_with("\xEF\xBB\xBF")) at_ = 3;
    has_mark_ = at_ != 0;
    if (is_little || starts_with({"<\0", 2})) encoding_ = Encoding::kUtf16LittleEndian;
    if (is_big || starts_with({"\0<", 2})) encoding_ = Encoding::kUtf16BigEndian;
  }

  char32_t NextUnit() {
    const int first = NextByte();
    const int second = NextByte();
    if (second < 0) return kMalformed;
    const bool big = encoding_ == Encoding::kUtf16BigEndian;
    return static_cast<char32_t>(big ? first << 8 | second : second << 8 | first);
  }

  char32_t NextUtf8() {
    const int first = NextByte();
    if (first < 0x80) return first < 0 ? kMalformed : static_cast<char32_t>(first);
    char bytes[4] = {static_cast<char>(first)};
    const int size = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    for (int i = 1; i < size; ++i) {
      const int byte = NextByte();
      if (byte < 0) return kMalformed;
      bytes[i] = static_cast<char>(byte);
    }
    const char* at = bytes;
    const char32_t c = internal::TakeCodePoint(at, bytes + size);
    return at == bytes + size ? c : kMalformed;
  }

  internal::File file_;
  bool is_open_ = false;
  bool has_mark_ = false;  ///< the file starts with a byte order mark
  Encoding encoding_ = Encoding::kUtf8;
  std::size_t at_ = 0;
  std::size_t size_ = 0;
  std::array<char, 16384> block_ = {};
};

/// Finds the root element. Everything before it has to be well-formed.
template <class Characters>
class Scanner {
 public:
  explicit Scanner(Characters& characters) : characters_(characters) { Step(); }

  /// The root element's local name; empty when there is none.
  std::string FindRoot() {
    for (bool at_start = true;; at_start = false) {
      while (IsSpace(c_)) {
        at_start = false;
        Step();
      }
      if (!Take('<')) return {};
      if (StartsName(c_)) return ReadRootName();
      const bool passed = Take('?')   ? PassInstruction(at_start)
                          : Take('!') ? Take('-') && Take('-') && PassComment()
                                      : false;
      if (!passed) return {};
    }
  }

 private:
  /// `c_` is the next character, kMalformed where none that XML allows follows.
  void Step() {
    c_ = characters_.Next();
    if (!IsXmlCharacter(c_)) c_ = kMalformed;
  }

  bool Take(char32_t c) {
    if (c_ != c) return false;
    Step();
    return true;
  }

  bool TakeSpace() {
    if (!IsSpace(c_)) return false;
    while (IsSpace(c_)) Step();
    return true;
  }

  /// A name without a colon, cut off when it is too long.
  std::string ReadName() {
    std::string name;
    for (bool started = false; started ? ContinuesName(c_) : StartsName(c_); started = true) {
      if (name.size() <= kLongestName) internal::AppendUtf8(c_, name);
      Step();
    }
    return name;
  }

  std::string ReadRootName() {
    std::string name = ReadName();
    if (Take(':')) name = ReadName();
    const bool ends = IsSpace(c_) || c_ == '>' || (Take('/') && c_ == '>');
    return ends && name.size() <= kLongestName ? name : std::string();
  }

  /// "<?" has been taken, as "<!--" has for the next.
  bool PassInstruction(bool at_start) {
    std::string target = ReadName();
    if (target.empty()) return false;
    if (target == "xml") return at_start && PassDeclaration();
    std::transform(target.begin(), target.end(), target.begin(), ToLower);
    if (target == "xml") return false;
    if (!TakeSpace()) return Take('?') && Take('>');
    for (;;) {
      if (c_ == kMalformed) return false;
      if (!Take('?')) {
        Step();
      } else if (Take('>')) {
        return true;
      }
    }
  }

  bool PassComment() {
    for (;;) {
      if (c_ == kMalformed) return false;
      if (!Take('-')) {
        Step();
      } else if (Take('-')) {
        return Take('>');
      }
    }
  }

  /// "<?xml" has been taken.
  bool PassDeclaration() {
    std::string value;
    if (!TakeSpace() || !ReadItem("version", value)) return false;
    const bool is_version_1 = value.size() > 2 && value.compare(0, 2, "1.") == 0 &&
                              std::all_of(value.begin() + 2, value.end(), IsDigit);
    if (!is_version_1) return false;
    bool space = TakeSpace();
    std::string encoding;
    if (space && c_ == 'e') {
      if (!ReadItem("encoding", encoding) || !IsLetter(static_cast<unsigned char>(encoding[0]))) {
        return false;
      }
      space = TakeSpace();
    }
    if (space && c_ == 's') {
      if (!ReadItem("standalone", value) || (value != "yes" && value != "no")) return false;
      TakeSpace();
    }
    if (!Take('?') || c_ != '>') return false;
    if (!encoding.empty()) {
      std::transform(encoding.begin(), encoding.end(), encoding.begin(), ToLower);
      if (!characters_.SetEncoding(encoding)) return false;
    }
    Step();
    return true;
  }

  /// Reads `name="value"`.
  bool ReadItem(std::string_view name, std::string& value) {
    for (const char c : name) {
      if (!Take(static_cast<char32_t>(c))) return false;
    }
    TakeSpace();
    if (!Take('=')) return false;
    TakeSpace();
    const char32_t quote = c_;
    if (!Take('"') && !Take('\'')) return false;
    value.clear();
    for (; c_ != quote; Step()) {
      const bool legal = c_ < 0x80 && ContinuesName(c_) && value.size() < kLongestName;
      if (!legal) return false;
      value += static_cast<char>(c_);
    }
    Step();
    return !value.empty();
  }

  static char ToLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

  Characters& characters_;
  char32_t c_ = kMalformed;
};

}  // namespace

const DocumentKind* FindDocument(std::string_view root_element) noexcept {
  const auto* const found = std::find_if(
      kDocuments.begin(), kDocuments.end(),
      [root_element](const DocumentKind* kind) { return kind->root_element == root_element; });
  return found == kDocuments.end() ? nullptr : *found;
}

std::string RootName(const std::filesystem::path& file) {
  FileCharacters characters(file);
  return Scanner(characters).FindRoot();
}

std::string RootNameFromString(const std::wstring& document) {
  WideCharacters characters(document);
  return Scanner(characters).FindRoot();
}

}  // namespace tolva::support
