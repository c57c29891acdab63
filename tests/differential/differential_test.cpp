// All short documents over a few pieces of markup, compared with expat: what no list of cases
// thinks of.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "differential/compare.h"

namespace tolva::test {
namespace {

using namespace std::string_view_literals;

/// What is tried: every sequence of the pieces, between head and tail.
struct Context {
  const char* name;
  std::string_view head;
  std::string_view tail;
  std::vector<std::string_view> pieces;
  int fewer = 0;  ///< how much shorter than elsewhere the sequences are
};

const Context kContexts[] = {
    {"Document", "", "", {"<", ">", "/", "a", " ", "?", "!", "-", "=", "'", "&", "\n"}},
    {"Root", "<a>", "</a>", {"<", ">", "/", "a", " ", "?", "!", "-", "]", "&", ";", "[CDATA["}},
    {"StartTag", "<a", "/>", {"a", ":", "=", "'", "\"", " ", "\t", "/", ">", "<", "xmlns", "&"}},
    {"AttributeValue",
     "<a a='",
     "'/>",
     {"&", "#", "x", "1", ";", "lt", "\r", "\n", "\t", "<", "'", "\""}},
    {"LongAttributeValue",
     "<a a='13 characters.",
     "'/>",
     {"&", "#", "x", "1", ";", "lt", "\r", "\n", "\t", "<", "'", "\""}},
    {"Text",
     "<a>13 characters",
     "</a>",
     {"&", "#", "x", "1", ";", "amp", "\r", "\n", "]", ">", "<", "a"}},
    {"Reference",
     "<a a='&",
     ";'/>",
     {"#", "x", "0", "1", "9", "D", "F", "f", "8", ";", "amp", "X"}},
    {"BehindRoot",
     "<a/>",
     "",
     {"<", ">", "/", "a", " ", "?", "!", "-", "&", "[CDATA[", "]", "DOCTYPE"}},
    {"Comment", "<a><!--", "--></a>", {"-", ">", "<", "!", "a", "\r", "\n", "&", "]", "--"}},
    {"CData", "<a><![CDATA[", "]]></a>", {"]", ">", "<", "!", "a", "\r", "\n", "&", "[CDATA["}},
    {"Instruction", "<?", "?><a/>", {"x", "m", "l", "X", "a", ":", "-", "?", ">", " ", "\r", "\n"}},
    {"Declaration",
     "<?xml",
     "?><a/>",
     {" ", "=", "'", "\"", "version", "encoding", "standalone", "1.", "0", "utf-8", "yes", "?"}},
    {"Encoding",
     "<?xml version='1.0'",
     "?><a>\xC3\xA9</a>",
     {" encoding", "=", "'", "UTF-", "8", "16", "LE", "BE", "ISO-8859-1", "us-ascii", "-", "x"}},
    {"EndTag",
     "<a><b:c xmlns:b='a'",
     "</a>",
     {"<", "/", ">", "b", ":", "c", " ", "\n", "a", "b:c", "'", "<b"}},
    {"Namespaces",
     "<a",
     "</a>",
     {" xmlns:a='u'", " xmlns:b='u'", " xmlns:b='&#x75;'", " xmlns:b='v'", " xmlns='u'",
      " xmlns:a=''", " a:x=''", " b:x=''", " x=''", ">", "/>", "<b:x", "</b:x>"}},
    {"ReservedNamespaces",
     "<",
     "/>",
     {"a", "xml", "xmlns", ":", " ", "='", "'", "http://www.w3.org/XML/1998/namespace",
      "http://www.w3.org/2000/xmlns/", "&#47;", "b", "/"}},
    {"Bytes",
     "<a>",
     "</a>",
     {"\x80", "\xA9", "\xBE", "\xBF", "\xC0", "\xC3", "\xE0", "\xE2", "\xED", "\xEF", "\xF0",
      "\xF4", "\xF5", "a"}},
    {"Start",
     "",
     "<a/>",
     {"\xEF", "\xBB", "\xBF", "\xFE", "\xFF", "\0"sv, "<", " ", "\n", "<?xml version='1.0'",
      " encoding='iso-8859-1'", " encoding='utf-8'", "?>"}},
    {"StartBigEndian", "", "\0<\0a\0/\0>"sv, {"\xEF", "\xFE", "\xFF", "\0"sv, "<", " ", "\n"}},
    {"StartLittleEndian", "", "<\0a\0/\0>\0"sv, {"\xEF", "\xFE", "\xFF", "\0"sv, "<", " ", "\n"}},
    {"LittleEndian",
     "\xFF\xFE<\0a\0>\0"sv,
     "<\0/\0a\0>\0"sv,
     {"\0"sv, "<", "a", "\xD8", "\xDC", "\xFF", "\xFE", "\xFD", "\r", "\n", ">", "/"}},
    {"BigEndian",
     "\0<\0a\0>"sv,
     "\0<\0/\0a\0>"sv,
     {"\0"sv, "<", "a", "\xD8", "\xDC", "\xFF", "\xFE", "\xFD", "\r", "\n", ">", "/"}},
    {"Name",
     "<a",
     "/>",
     {"\xC3\xA9", "\xCC\x81", "\xC2\xB7", "\xC3\x97", "\xE4\xBA\xBA", "-", ".", "1", "_", ":", " ",
      "=''"}},
};

int Length() {
  const char* const wanted = std::getenv("TOLVA_DIFFERENTIAL_LENGTH");
  return wanted == nullptr ? 4 : std::atoi(wanted);
}

class Differential : public testing::TestWithParam<Context> {
 protected:
  void Try(const Context& context, std::string& middle, int length) {
    document_ = context.head;
    document_ += middle;
    document_ += context.tail;
    ++documents_;
    if (const auto difference = Difference(document_)) {
      ADD_FAILURE() << *difference;
      ++failures_;
    }
    if (length == 0) return;
    const std::size_t size = middle.size();
    for (const std::string_view piece : context.pieces) {
      if (failures_ >= 50) return;
      middle += piece;
      Try(context, middle, length - 1);
      middle.resize(size);
    }
  }

  std::size_t documents_ = 0;
  int failures_ = 0;

 private:
  std::string document_;
};

TEST_P(Differential, AgreesOnAllShortSequences) {
  const Context& context = GetParam();
  std::string middle;
  Try(context, middle, Length() - context.fewer);
  std::cout << documents_ << " documents\n";
}

INSTANTIATE_TEST_SUITE_P(All, Differential, testing::ValuesIn(kContexts),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace tolva::test
