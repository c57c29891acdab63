// Names that are known at compile time.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <type_traits>

#include "platform/vector.h"

namespace tolva::platform {

namespace internal {

/// Calling this is not a constant expression, so the name does not compile. The compiler's message
/// shows the reason.
void NameIsWrong(const char* reason);

consteval void RequireOfName(bool holds, const char* reason) {
  if (!holds) NameIsWrong(reason);
}

}  // namespace internal

/// The name of an element or attribute, or another short text that needs no escaping, in the forms
/// that readers and writers want: wide, and as the bytes of a document. Only made at compile time.
/// Names have no prefix, and "xmlns" is none.
class Name {
 public:
  static constexpr std::size_t kLongest = 44;

  /// The empty text, which is no name.
  constexpr Name() = default;

  consteval Name(const wchar_t* text) : wide_(text) {
    constexpr std::wstring_view kOthers = L"_-.";
    const std::wstring_view all = text;
    internal::RequireOfName(all.size() <= kLongest, "a name has at most 44 characters");
    internal::RequireOfName(all != L"xmlns", "xmlns is no name");
    for (const wchar_t c : all) {
      const bool is_letter = (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z');
      const bool may_follow =
          (c >= L'0' && c <= L'9') || kOthers.find(c) != std::wstring_view::npos;
      internal::RequireOfName(is_letter || (may_follow && size_ != 0),
                              "a name consists of letters and digits");
      bytes_[kStart + size_++] = static_cast<char>(c);
    }
    bytes_[0] = ' ';
    bytes_[kStart + size_] = '=';
    bytes_[kStart + size_ + 1] = '"';
  }

  constexpr std::size_t size() const { return size_; }
  constexpr std::string_view narrow() const { return {&bytes_[kStart], size_}; }
  constexpr std::wstring_view wide() const { return {wide_, size_}; }
  constexpr operator std::wstring_view() const { return wide(); }

  /// Zero-terminated.
  constexpr const wchar_t* c_str() const { return wide_; }

  /// The form that a reader or writer uses: std::string_view or std::wstring_view.
  template <class Value>
  constexpr Value As() const {
    if constexpr (std::is_same_v<Value, std::wstring_view>) {
      return wide();
    } else {
      return narrow();
    }
  }

  /// The copies below touch this many bytes.
  static constexpr std::size_t kRoom = 64;

  /// Copies the name. Returns its end.
  char* Copy(char* to) const {
    CopyBlocks(bytes_.data() + kStart, size_, to);
    return to + size_;
  }

  /// Copies ` name="`. Returns its end.
  char* CopyAsAttribute(char* to) const {
    CopyBlocks(bytes_.data(), kStart + size_ + 2, to);
    return to + kStart + size_ + 2;
  }

  // Whether the name, or ` name="`, is at `at`, where `kRoom` bytes are readable.

  bool IsAt(const char* at) const { return IsEqual(at, bytes_.data() + kStart, size_); }
  bool StartsAttributeAt(const char* at) const {
    return IsEqual(at, bytes_.data(), kStart + size_ + 2);
  }

  bool operator==(std::string_view text) const { return narrow() == text; }
  bool operator==(std::wstring_view text) const { return wide() == text; }

 private:
  static constexpr std::size_t kStart = 1;

  static bool IsEqual(const char* left, const char* right, std::size_t size) {
    for (std::size_t i = 0;; i += Bytes::kCount) {
      const Mask equal = Bytes::Load(left + i).Is(Bytes::Load(right + i)).ToMask();
      const std::size_t same = i + FirstOf(~equal);
      if (same >= size) return true;
      if (same != i + Bytes::kCount) return false;
    }
  }

  /// ` name="`: an attribute as it is written, up to its value. Padded, so that it can be read in
  /// large pieces.
  std::array<char, kRoom> bytes_ = {};
  const wchar_t* wide_ = L"";
  std::size_t size_ = 0;
};

/// One member of each element of an array.
template <class T>
class MemberSpan {
 public:
  /// Whoever keeps a bit for each element relies on this.
  static constexpr std::size_t kMost = 64;

  constexpr MemberSpan() = default;

  template <class Row, class Base>
  constexpr MemberSpan(std::span<const Row> rows, const T Base::*member)
      : first_(rows.empty() ? nullptr : &(rows.data()->*member)), size_(rows.size()) {
    stride_ = sizeof(Row);
  }

  constexpr std::size_t size() const { return size_; }
  const T& operator[](std::size_t i) const {
    return *reinterpret_cast<const T*>(reinterpret_cast<const char*>(first_) + i * stride_);
  }

 private:
  const T* first_ = nullptr;
  std::size_t size_ = 0;
  std::size_t stride_ = 0;  ///< in bytes
};

using Names = MemberSpan<Name>;

/// A start tag that a table knows.
struct KnownTag {
  Name name;
  const Names* attributes;  ///< those that the table knows
};

using KnownTags = MemberSpan<KnownTag>;

}  // namespace tolva::platform
