// A wide text to write.
#pragma once

#include <cwchar>
#include <string>

namespace tolva::xml {

/// A zero-terminated string with its length, or null. The platform's writer takes the string; the
/// length reveals an embedded zero. Does not own the characters.
class Text {
 public:
  /// `characters` may be null.
  Text(const wchar_t* characters)
      : characters_(characters), size_(characters == nullptr ? 0 : std::wcslen(characters)) {}
  Text(const std::wstring& text) : characters_(text.c_str()), size_(text.size()) {}

  bool IsNull() const { return characters_ == nullptr; }
  bool IsEmpty() const { return size_ == 0; }
  const wchar_t* begin() const { return characters_; }
  const wchar_t* end() const { return characters_ + size_; }
  const wchar_t* c_str() const { return characters_; }

 private:
  const wchar_t* characters_;
  std::size_t size_;
};

}  // namespace tolva::xml
