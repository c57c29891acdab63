// The XML writer of the own layer: layout, escapes, and calls that are not allowed.
#include "platform/xml/writer.h"
#include "platform/utf.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "support/allocations.h"
#include "support/streams.h"

namespace tolva::test {
namespace {

using Calls = std::function<void(XmlWriter&)>;
using Call = std::function<HRESULT(XmlWriter&)>;

constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
constexpr HRESULT kDiskFull = HRESULT_FROM_WIN32(ERROR_DISK_FULL);

/// What calls leave in the file after the declaration.
std::string Written(const Calls& calls) {
  SinkStream sink;
  XmlWriter writer;
  EXPECT_EQ(writer.SetOutput(&sink), S_OK);
  EXPECT_EQ(writer.WriteStartDocument(), S_OK);
  calls(writer);
  EXPECT_EQ(writer.Flush(), S_OK);
  return sink.text.substr(std::min(kDeclaration.size(), sink.text.size()));
}

/// tests/tables/documents_test.cpp shows how documents are laid out, and tests/xml/writer_test.cpp
/// what is refused.
TEST(Writer, EscapesSoThatAllCanBeReadBack) {
  struct Case {
    std::wstring value;
    std::string attribute;
    std::string text;
  };
  for (const Case& one : {
           Case{L"<a href=\"x\">'&'", "&lt;a href=&quot;x&quot;&gt;'&amp;'",
                "&lt;a href=\"x\"&gt;'&amp;'"},
           Case{L"x\t\r\ny", "x&#x9;&#xD;&#xA;y", "x\t&#xD;\ny"},
           Case{L"]]>", "]]&gt;", "]]&gt;"},
           Case{L" ", " ", "&#x20;"},
           Case{L"\n\t ", "&#xA;&#x9; ", "&#xA;\t "},
           Case{L"\uE000\uFFFD", "\xEE\x80\x80\xEF\xBF\xBD", "\xEE\x80\x80\xEF\xBF\xBD"},
       }) {
    EXPECT_EQ(Written([&](XmlWriter& writer) {
                EXPECT_EQ(writer.WriteStartElement(L"a"), S_OK);
                EXPECT_EQ(writer.WriteAttribute(L"x", one.value), S_OK);
                EXPECT_EQ(writer.WriteElement(L"t", one.value), S_OK);
                EXPECT_EQ(writer.WriteEndDocument(), S_OK);
              }),
              "<a x=\"" + one.attribute + "\">\n  <t>" + one.text + "</t>\n</a>\n");
  }
}

/// Wherever a character that needs care stands in a value, and wherever a value is cut into
/// stretches.
TEST(Writer, EscapesEveryPlaceOfAValue) {
  const std::pair<std::wstring, std::string> specials[] = {{L"&", "&amp;"},
                                                           {L"\u00E9", "\xC3\xA9"},
                                                           {L"\u20AC", "\xE2\x82\xAC"},
                                                           {L"\U0001F600", "\xF0\x9F\x98\x80"},
                                                           {L"\xD83D\xDE00", "\xF0\x9F\x98\x80"}};
  std::string letters;
  for (std::size_t i = 0; i < 2050; ++i) letters += static_cast<char>('a' + i % 26);
  for (const auto& [special, written] : specials) {
    for (const std::size_t size :
         {0U, 1U, 2U, 3U, 4U, 5U, 7U, 15U, 16U, 17U, 22U, 33U, 1023U, 1024U, 2050U}) {
      for (std::size_t at = 0; at <= size; at += size < 40 || at < 20 || at + 40 > size ? 1 : 13) {
        std::string expected = letters.substr(0, size);
        std::wstring value(expected.begin(), expected.end());
        value.insert(at, special);
        expected.insert(at, written);
        ASSERT_EQ(Written([&](XmlWriter& writer) { writer.WriteElement(L"a", value); }),
                  "<a>" + expected + "</a>")
            << size << " " << at;
        ASSERT_EQ(Written([&](XmlWriter& writer) { writer.WriteElement(L"a", L"<" + value); }),
                  "<a>&lt;" + expected + "</a>")
            << size << " " << at;
      }
    }
  }
}

/// The scan keeps to its text, whatever follows.
TEST(Writer, KnowsWhatXmlForbids) {
  for (std::size_t size = 0; size <= 40; ++size) {
    const std::wstring text = std::wstring(size, L'v') + L"\x1";
    const wchar_t* const end = text.data() + size;
    for (const wchar_t* at = text.data(); at <= end; ++at) {
      EXPECT_EQ(FindForbidden(text.data(), at), at);
    }
    EXPECT_EQ(FindForbidden(text.data(), end + 1), end);
  }
}

#if !defined(_WIN32)
TEST(Writer, SurvivesARunOutOfMemory) {
  constexpr Name kLongest = L"ANameOfTheGreatestLengthThatATableCanHave123";
  const std::wstring value(3000, L'<');
  const Calls calls[] = {
      [&](XmlWriter& writer) { writer.WriteStartElement(kLongest); },
      [&](XmlWriter& writer) { writer.WriteAttribute(kLongest, value); },
      [&](XmlWriter& writer) { writer.WritePlainAttribute(L"c", "c"); },
      [&](XmlWriter& writer) { writer.WriteElement(L"d", value); },
      [&](XmlWriter& writer) { writer.WriteStartElement(L"e"); },
      [&](XmlWriter& writer) { writer.WriteFullEnd(); },
      [&](XmlWriter& writer) { writer.WriteLineFeed(); },
      [&](XmlWriter& writer) { writer.WriteElement(L"f", L""); },
      [&](XmlWriter& writer) { writer.WritePlainElement(L"f", "12"); },
      [&](XmlWriter& writer) { writer.WriteStartElement(L"g"); },
      [&](XmlWriter& writer) { writer.WriteEndDocument(); },
  };
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) text += "&lt;";
  const std::string name(kLongest.narrow());
  const std::string expected = "<" + name + " " + name + "=\"" + text + "\" c=\"c\">\n  <d>" +
                               text + "</d>\n  <e></e>\n  <f></f>\n  <f>12</f>\n  <g/>\n</" + name +
                               ">\n";
  bool failed = true;
  for (std::size_t n = 0; failed; ++n) {
    failed = false;
    ASSERT_LT(n, 1000U);
    EXPECT_EQ(Written([&](XmlWriter& writer) {
                for (const Calls& call : calls) {
                  if (RunsOutOfMemory(n, false, [&] { call(writer); })) {
                    failed = true;
                    call(writer);  // as if nothing had happened
                  }
                }
              }),
              expected);
  }
}
#endif

TEST(Writer, StaysRefusingAfterACallThatIsNotAllowed) {
  const Call root = [](XmlWriter& writer) { return writer.WriteEmptyElement(L"a"); };
  const Call start = [](XmlWriter& writer) { return writer.WriteStartElement(L"b"); };
  const Call end = [](XmlWriter& writer) { return writer.WriteEndDocument(); };
  const Call attribute = [](XmlWriter& writer) { return writer.WriteAttribute(L"a", L""); };
  const Call declaration = [](XmlWriter& writer) { return writer.WriteStartDocument(); };
  const Call line_feed = [](XmlWriter& writer) { return writer.WriteLineFeed(); };
  SinkStream sink;
  XmlWriter refusing;
  for (const Call& call : {declaration, start, attribute, line_feed, end}) {
    EXPECT_EQ(call(refusing), E_UNEXPECTED);
  }
  EXPECT_EQ(refusing.Flush(), S_OK);
  const auto expect_refusal = [&](const Call& call, const Call& before) {
    EXPECT_EQ(refusing.SetOutput(&sink), S_OK);
    EXPECT_EQ(before(refusing), S_OK);
    for (const Call& refused : {call, start, end}) EXPECT_EQ(refused(refusing), WR_E_INVALIDACTION);
    SinkStream next;
    EXPECT_EQ(refusing.SetOutput(&next), S_OK);
    EXPECT_EQ(root(refusing), S_OK);
    EXPECT_EQ(refusing.SetOutput(nullptr), S_OK);
    EXPECT_EQ(next.text, "<a/>\n");
  };
  for (const Call& call :
       {Call([](XmlWriter& writer) { return writer.WriteEnd(); }),
        Call([](XmlWriter& writer) { return writer.WriteFullEnd(); }),
        Call([](XmlWriter& writer) { return writer.WritePlainAttribute(L"a", ""); }), end,
        attribute, declaration}) {
    expect_refusal(call, declaration);
  }
  expect_refusal(start, root);
  expect_refusal([](XmlWriter& writer) { return writer.WriteElement(L"b", L""); }, root);
  // A line feed counts as content: a declaration has to come first.
  expect_refusal(declaration, line_feed);
}

/// A stream's failure comes to light where an element starts or ends: nobody has to be told of an
/// attribute or of a line feed. Nothing is lost by it.
TEST(Writer, HandsItsBlocksOverBetweenElements) {
  const std::wstring value(100'000, L'v');
  const auto written = [&value](const Call& call, std::initializer_list<std::size_t> capacities) {
    SinkStream sink;
    SinkStream next;
    {
      XmlWriter writer;
      EXPECT_EQ(writer.SetOutput(&sink), S_OK);
      EXPECT_EQ(writer.WriteStartElement(L"a"), S_OK);
      EXPECT_EQ(writer.WriteStartElement(L"b"), S_OK);
      EXPECT_EQ(writer.WriteAttribute(L"v", value), S_OK);
      EXPECT_EQ(writer.WriteAttribute(L"w", value), S_OK);
      EXPECT_EQ(writer.WritePlainAttribute(L"x", ""), S_OK);
      EXPECT_EQ(writer.WriteLineFeed(), S_OK);
      EXPECT_EQ(sink.text, "");
      for (const std::size_t capacity : capacities) {
        sink.capacity = capacity;
        EXPECT_EQ(call(writer), kDiskFull);
        EXPECT_EQ(sink.text.size(), capacity);
      }
      sink.capacity = std::size_t{1} << 30;
      EXPECT_EQ(call(writer), S_OK);
      EXPECT_GT(sink.text.size(), 2 * value.size());
      EXPECT_EQ(writer.SetOutput(&next), S_OK);
      EXPECT_EQ(sink.references, 1U);
      EXPECT_EQ(writer.WriteStartElement(L"c"), S_OK);
    }
    EXPECT_EQ(next.references, 1U);
    EXPECT_EQ(next.text, "<c/>\n");
    EXPECT_TRUE(sink.text.ends_with("</a>\n"));
    return sink.text;
  };
  for (const Call& call : {
           Call([](XmlWriter& writer) { return writer.WriteStartElement(L"c"); }),
           Call([](XmlWriter& writer) { return writer.WriteElement(L"c", L""); }),
           Call([](XmlWriter& writer) { return writer.WriteEnd(); }),
           Call([](XmlWriter& writer) { return writer.WriteFullEnd(); }),
           Call([](XmlWriter& writer) { return writer.WriteEndDocument(); }),
           Call([](XmlWriter& writer) { return writer.Flush(); }),
       }) {
    EXPECT_TRUE(written(call, {0, 100}) == written(call, {}));
  }
}

}  // namespace
}  // namespace tolva::test
