// All short documents over a few pieces of markup, compared with expat: what no list of cases
// thinks of.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "differential/compare.h"
#include "platform/utf.h"
#include "platform/xml/characters.h"

namespace tolva::test {
namespace {

using namespace platform;
using namespace std::string_view_literals;

/// What is tried: all sequences of the pieces, in the place of the bar.
struct Context {
  const char* name;
  std::string_view frame;
  std::vector<std::string_view> pieces;
};

std::ostream& operator<<(std::ostream& out, const Context& context) { return out << context.name; }

const Context kContexts[] = {
    {"Document", "|", {"<", ">", "/", "a", " ", "?", "!", "-", "=", "'", "&", "["}},
    {"DocumentOfTokens",
     "|",
     {"<a", "<b", ">", "/>", "</a>", "</b>", "<!--", "-->", "<?a", "?>", " ", "\n", "a",
      "<!DOCTYPE"}},
    {"Root", "<a>|</a>", {"<", ">", "/", "a", " ", "?", "!", "-", "]", "&", ";", "[CDATA["}},
    {"BehindRoot",
     "<a/>|",
     {"<", ">", "/", "a", " ", "?", "!--", "--", "&", "![CDATA[", "]]>", "!DOCTYPE"}},
    {"StartTag", "<a|/>", {" ", "\n", "a", ":", "=", "''", "'", "\"", "/", ">", "<", "xmlns"}},
    {"KnownTags",
     "<a>\n  <b|</a>",
     {" a=\"", " b=\"", " y=\"", "13 characters", "\"", "/>", ">", "</b>", "\r\n\t", "<c", "&amp;",
      "<"}},
    {"EndTag",
     "<a><b:c xmlns:b='a'|</a>",
     {"<", "/", ">", "b", ":", "c", " ", "\n", "a", "b:c", "'", "<b"}},
    {"AttributeValue",
     "<a a='|'/>",
     {"&", "#", "x", "1", ";", "lt", "\r", "\n", "\t", "<", "'", "\""}},
    // Scans look at 16 bytes and more at a time.
    {"LongAttributeValue",
     "<a a='13 characters|'/>",
     {"&", "#", "x", "1", ";", "lt", "\r", "\n", "\t", "<", "'", "\""}},
    {"LongText",
     "<a>13 characters|</a>",
     {"&", "#", "x", "1", ";", "amp", "\r", "\n", "]", ">", "<", "a"}},
    {"Reference", "<a a='&|;'/>", {"#", "x", "0", "1", "9", "D", "F", "f", "8", ";", "amp", "X"}},
    {"Comment", "<a><!--|--></a>", {"-", ">", "<", "!", "a", "\r", "\n", "&", "]", "--"}},
    {"CData", "<a><![CDATA[|]]></a>", {"]", ">", "<", "!", "a", "\r", "\n", "&", "[CDATA["}},
    {"Instruction", "<?|?><a/>", {"x", "m", "l", "X", "a", ":", "-", "?", ">", " ", "\r", "\n"}},
    {"Declaration",
     "<?xml |?><a/>",
     {"version", "='1.0'", "=\"1.", "\"", " ", "\n", "encoding", "='utf-8'", "standalone", "='yes'",
      "'", "=", "0"}},
    {"Encoding",
     "<?xml version='1.0' encoding='|'?><a>\xC3\xA9</a>",
     {"UTF", "-", "8", "16", "LE", "BE", "ISO-8859-1", "us-ascii", "_", "x", " ", "'"}},
    {"Name",
     "<a|/>",
     {"\xC3\xA9", "\xCC\x81", "\xC2\xB7", "\xC3\x97", "\xE4\xBA\xBA", "-", ".", "1", "_", ":", " ",
      "=''"}},
    {"Namespaces",
     "<a|</a>",
     {" xmlns:a='u'", " xmlns:b='u'", " xmlns:b='&#x75;'", " xmlns:b='v'", " xmlns='u'",
      " xmlns:a=''", " a:x=''", " b:x=''", " x=''", ">", "/>", "<b:x", "</b:x>"}},
    {"ScopesOfNamespaces",
     "<a xmlns:p='u'><b|</a>",
     {">", "/>", "</b>", "<b", "<p:c", "<q:c", " xmlns:p='v'", " xmlns:q='u'", " p:x=''",
      " q:x=''"}},
    {"ReservedNamespaces",
     "<|/>",
     {"a", "xml", "xmlns", ":", " xmlns", " xml", "=''", "='u'",
      "='http://www.w3.org/XML/1998/namespace'", "='http&#58;//www.w3.org/XML/1998/namespace'",
      "='http://www.w3.org/2000/xmlns/'"}},
    // From here on another way is taken to find two that are the same.
    {"ManyAttributes",
     "<a xmlns:a='u' b='' c='' d='' e='' f='' g='' h='' i='' j='' k='' l='' m='' n='' o='' p=''|/>",
     {" b=''", " p=''", "q=''", " q=''", " r=''", " a:b=''", " xmlns:c='u'", " c:b=''", " c:q=''"}},
    {"Bytes",
     "<a>|</a>",
     {"\x80", "\xA9", "\xBE", "\xBF", "\xC0", "\xC3", "\xE0", "\xED", "\xEF", "\xF0", "\xF4", "a"}},
    {"Start",
     "|<a/>",
     {"\xEF", "\xBB", "\xBF", "\xFE", "\xFF", "\0"sv, "<", " ", "\n", "<?xml version='1.0'",
      " encoding='iso-8859-1'", " encoding='utf-8'", "?>"}},
    {"StartLittleEndian", "|<\0a\0/\0>\0"sv, {"\xEF", "\xFE", "\xFF", "\0"sv, "<", " ", "\n"}},
    {"StartBigEndian", "|\0<\0a\0/\0>"sv, {"\xEF", "\xFE", "\xFF", "\0"sv, "<", " ", "\n"}},
    {"LittleEndian",
     "\xFF\xFE<\0a\0>\0|<\0/\0a\0>\0"sv,
     {"\0"sv, "<", "a", "\xD8", "\xDC", "\xFF", "\xFE", "\xFD", "\r", "\n", ">", "/"}},
    {"BigEndian",
     "\0<\0a\0>|\0<\0/\0a\0>"sv,
     {"\0"sv, "<", "a", "\xD8", "\xDC", "\xFF", "\xFE", "\xFD", "\r", "\n", ">", "/"}},
};

/// How many pieces there may be.
int Length() {
  constexpr int kDefault = 5;
  const char* const wanted = std::getenv("TOLVA_DIFFERENTIAL_LENGTH");
  return wanted == nullptr ? kDefault : std::atoi(wanted);
}

class DifferentialContexts : public testing::TestWithParam<Context> {
 protected:
  /// Tries what there is in the place of the bar, and all that is made of it with `more` pieces.
  void Try(std::string& middle, int more) {
    const Context& context = GetParam();
    document_ = context.frame;
    document_.replace(document_.find('|'), 1, middle);
    const auto difference = Difference(document_);
    ASSERT_FALSE(difference) << *difference;
    if (more == 0) return;
    const std::size_t size = middle.size();
    for (const std::string_view piece : context.pieces) {
      middle += piece;
      ASSERT_NO_FATAL_FAILURE(Try(middle, more - 1));
      middle.resize(size);
    }
  }

 private:
  std::string document_;
};

TEST_P(DifferentialContexts, AgreesOnAllShortSequences) {
  std::string middle;
  Try(middle, Length());
}

INSTANTIATE_TEST_SUITE_P(All, DifferentialContexts, testing::ValuesIn(kContexts),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(Differential, AgreesOnEveryCharacter) {
  for (char32_t c = 0x80; c <= 0x110000; ++c) {
    ASSERT_EQ(own_xml::IsNameStartCharacter(c), IsNameCharacter(c, true))
        << "U+" << std::hex << static_cast<std::uint32_t>(c);
    ASSERT_EQ(own_xml::IsNameCharacter(c), IsNameCharacter(c, false))
        << "U+" << std::hex << static_cast<std::uint32_t>(c);
    // Documents take their time; beyond the first plane the ends of the others are enough.
    if (c > 0x10000 && (c & 0xFFFF) > 1 && (c & 0xFFFF) < 0xFFFE) continue;
    char bytes[4];
    const std::string character(bytes, EncodeUtf8(c, bytes));
    for (const auto& [head, tail] :
         {std::pair{"<", "/>"}, std::pair{"<a", "/>"}, std::pair{"<a ", "=''/>"},
          std::pair{"<a a='", "'/>"}, std::pair{"<a>", "</a>"}, std::pair{"<?", " ?><a/>"}}) {
      const auto difference = Difference(head + character + tail);
      ASSERT_FALSE(difference) << *difference;
    }
  }
}

}  // namespace
}  // namespace tolva::test
