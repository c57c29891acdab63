// Wide strings and UTF-8, and paths as both; independent of the program's locale.
//
// A wide string is UTF-16 on Windows and a sequence of code points elsewhere, where a surrogate
// pair is accepted for the code point that it stands for.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tolva::support {

/// Converts to UTF-8. What is no code point (a lone surrogate, a value beyond U+10FFFF) becomes
/// U+FFFD.
std::string ToUtf8(std::wstring_view text);

/// Converts from UTF-8. Each malformed sequence becomes U+FFFD.
std::wstring ToWide(std::string_view utf8);

/// The path that `IXMLLiteManager::OpenFile` takes. Empty, which `OpenFile` refuses, when the
/// library has no way to open that file: its path holds a zero, or, off Windows, is not UTF-8.
/// (`std::filesystem::path::wstring` depends on the locale, and throws in the C locale.)
std::wstring PathToWide(const std::filesystem::path& path);

/// The path that a wide string names. Off Windows empty when it has no UTF-8 form.
std::filesystem::path PathFromWide(std::wstring_view path);

/// A path for people to read, or to store in UTF-8. Off Windows each malformed sequence becomes
/// U+FFFD, so that only the path of a path that is UTF-8 comes back.
std::string PathToUtf8(const std::filesystem::path& path);

/// The path that UTF-8 text names; empty when the text is malformed. (On Windows a path that is
/// made of narrow characters directly takes them for the system's code page.)
std::filesystem::path PathFromUtf8(std::string_view path);

}  // namespace tolva::support
