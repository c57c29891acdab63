// Text for terminals, in UTF-8.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <tolva/support/text.h>

namespace tolva::cli {

using support::ToUtf8;
using support::ToWide;

/// The path that UTF-8 names. Elsewhere than on Windows, any bytes are a path.
std::filesystem::path PathOf(std::string_view utf8);

/// The name of a path, which PathOf takes.
std::string NameOf(const std::filesystem::path& path);

/// Whether a terminal obeys the character instead of showing it (control characters, those that
/// change the direction of writing), or XML does not allow it.
bool IsControl(char32_t c);

/// The text as it may be sent to a terminal: such characters, and bytes that are not UTF-8, are
/// written as escapes such as \x1B.
std::string Printable(std::string_view text);

/// The same for lines of text: tabs and line feeds stay.
std::string PrintableLines(std::string_view text);

/// The number of columns that printable text takes: one for each character.
std::size_t Columns(std::string_view text);

/// The text, and as many spaces as fill it up to `width` columns.
std::string Padded(std::string_view text, std::size_t width);

/// Breaks text at spaces into lines of `width` columns. A longer word has a line of its own.
std::vector<std::string> Wrap(std::string_view text, std::size_t width);

/// Wrapped text, each line after `indent` spaces and with a line feed.
std::string Paragraph(std::string_view text, std::size_t indent, std::size_t width);

/// "a, b or c".
std::string Enumerate(std::span<const std::string> words, std::string_view last = "or");

/// A description with a capital letter: "the mode." becomes "The mode."
std::string Sentence(std::string_view description);

/// "1 element", "2 elements".
std::string Count(std::size_t number, std::string_view noun);

/// The candidate that somebody who wrote `name` may have meant, if one is near.
std::optional<std::string> Nearest(std::string_view name, std::span<const std::string> candidates);

/// "; did you mean 'Name'?", or nothing.
std::string DidYouMean(std::string_view name, std::span<const std::string> candidates);

}  // namespace tolva::cli
