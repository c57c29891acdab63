#include "cli/byte_form.h"

#include <algorithm>
#include <array>

#include "platform/utf.h"
#include "platform/xml/input.h"

namespace tolva::cli {
namespace {

using namespace platform;
using own_xml::Encoding;

/// The text in UTF-8, as its lines end.
std::string Decode(std::string_view bytes, const ByteForm& form) {
  if (form.has_mark) bytes.remove_prefix(form.encoding->byte_order_mark.size());
  if (form.encoding->convert == nullptr) return std::string(bytes);
  std::string text(2 * bytes.size() + 1, '\0');
  const own_xml::Conversion done = form.encoding->convert(bytes, text.data());
  text.resize(static_cast<std::size_t>(done.end - text.data()));
  return text;
}

void ReplaceAll(std::string& text, std::string_view old, char replacement) {
  std::string replaced;
  std::string_view rest = text;
  for (std::size_t at = 0; (at = rest.find(old)) != std::string_view::npos;) {
    replaced.append(rest.substr(0, at)) += replacement;
    rest.remove_prefix(at + old.size());
  }
  text = replaced.append(rest);
}

}  // namespace

ByteForm FormOf(ISequentialStream& stream) {
  own_xml::Input input;
  input.Open(&stream, false);
  const char* at = input.limit();
  do {
    at = std::find_if(at, input.limit(), [](char c) { return c == '\r' || c == '\n'; });
    // What follows a CR decides.
    if (at != input.limit() && (*at == '\n' || at + 1 != input.limit())) break;
  } while (input.More(at));
  ByteForm form = {.encoding = &input.encoding(), .has_mark = input.byte_order_mark_size() != 0};
  if (at != input.limit() && *at == '\r') form.line_end = at[1] == '\n' ? "\r\n" : "\r";
  return form;
}

std::string TextOf(std::string_view bytes, const ByteForm& form) {
  std::string text = Decode(bytes, form);
  if (form.line_end != "\n") ReplaceAll(text, form.line_end, '\n');
  return text;
}

std::string ReferenceTo(char32_t c) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  for (; c != 0; c >>= 4) digits.insert(digits.begin(), kDigits[c & 15]);
  return "&#x" + digits + ";";
}

std::string FormEncoder::Encode(std::string_view part) {
  std::string bytes;
  std::string declared;
  if (is_first_) {
    is_first_ = false;
    if (form_.has_mark) bytes = form_.encoding->byte_order_mark;
    declared = WithDeclaration(part);
    part = declared;
  }
  const bool is_utf8 = form_.encoding->convert == nullptr;
  if (is_utf8 && form_.line_end == "\n") return bytes.append(part);
  bytes.reserve(bytes.size() + part.size() * form_.encoding->unit_size);
  const char* const end = part.data() + part.size();
  for (const char* at = part.data(); at != end;) {
    const char32_t c = TakeCodePoint(at);
    if (c != '\n') {
      Append(c, bytes);
      continue;
    }
    for (const char one : form_.line_end) AppendUnits(static_cast<char32_t>(one), bytes);
  }
  return bytes;
}

std::string FormEncoder::WithDeclaration(std::string_view part) const {
  // Without a byte order mark, "UTF-16" does not say which of the two it is.
  const Encoding& encoding = *form_.encoding;
  const bool has_alias = !form_.has_mark && !encoding.alias.empty();
  std::string text(part);
  const std::size_t at = text.find(own_xml::kUtf8.name);
  return text.replace(at, own_xml::kUtf8.name.size(), has_alias ? encoding.alias : encoding.name);
}

/// A character of the text, or a reference to it.
void FormEncoder::Append(char32_t c, std::string& bytes) const {
  const bool is_utf = !form_.encoding->byte_order_mark.empty();
  const char32_t limit = form_.encoding->name == "US-ASCII" ? 0x80 : 0x100;
  if (is_utf || c < limit) {
    AppendUnits(c, bytes);
  } else {
    bytes += ReferenceTo(c);
  }
}

void FormEncoder::AppendUnits(char32_t c, std::string& bytes) const {
  if (form_.encoding->convert == nullptr) {
    std::array<char, 4> room = {};
    bytes.append(room.data(), EncodeUtf8(c, room.data()));
    return;
  }
  if (form_.encoding->unit_size == 1) {
    bytes += static_cast<char>(c);
    return;
  }
  const bool is_little = form_.encoding->alias == "UTF-16LE";
  const auto add = [&](char32_t unit) {
    const auto high = static_cast<char>(unit >> 8);
    const auto low = static_cast<char>(unit & 0xFF);
    bytes += is_little ? low : high;
    bytes += is_little ? high : low;
  };
  constexpr char32_t kFirstBeyond = 0x10000;
  if (c < kFirstBeyond) return add(c);
  add(0xD800 + ((c - kFirstBeyond) >> 10));
  add(0xDC00 + (c & 0x3FF));
}

}  // namespace tolva::cli
