// The XML writer of the own layer: layout, escapes, and calls that are not allowed.
#include "platform/xml/writer.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "support/allocations.h"
#include "support/streams.h"

namespace tolva::test {
namespace {

using Calls = std::function<void(XmlWriter&)>;

constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

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

TEST(Writer, LaysADocumentOut) {
  const auto written = Written([](XmlWriter& writer) {
    EXPECT_EQ(writer.WriteStartElement(L"a"), S_OK);
    EXPECT_EQ(writer.WriteStartElement(L"b"), S_OK);
    EXPECT_EQ(writer.WriteAttribute(L"x", L"1"), S_OK);
    EXPECT_EQ(writer.WritePlainAttribute(L"y", "2"), S_OK);
    EXPECT_EQ(writer.WriteAttribute(L"z", L""), S_OK);
    EXPECT_EQ(writer.WriteEnd(), S_OK);
    EXPECT_EQ(writer.WriteLineFeed(), S_OK);
    EXPECT_EQ(writer.WriteStartElement(L"c"), S_OK);
    EXPECT_EQ(writer.WriteFullEnd(), S_OK);
    EXPECT_EQ(writer.WriteElement(L"d", L"text"), S_OK);
    EXPECT_EQ(writer.WriteElement(L"e", L""), S_OK);
    EXPECT_EQ(writer.WritePlainElement(L"e", "12"), S_OK);
    EXPECT_EQ(writer.WriteEmptyElement(L"e"), S_OK);
    EXPECT_EQ(writer.WriteStartElement(L"ANameOfTheGreatestLengthThatATableCanHave123"), S_OK);
    EXPECT_EQ(writer.WriteAttribute(L"ANameOfTheGreatestLengthThatATableCanHave123", L""), S_OK);
    EXPECT_EQ(writer.WriteStartElement(L"f"), S_OK);
    EXPECT_EQ(writer.WriteEndDocument(), S_OK);
  });
  EXPECT_EQ(written,
            "<a>\n  <b x=\"1\" y=\"2\" z=\"\"/>\n  <c></c>\n  <d>text</d>\n  <e></e>\n"
            "  <e>12</e>\n  <e/>\n  <ANameOfTheGreatestLengthThatATableCanHave123 "
            "ANameOfTheGreatestLengthThatATableCanHave123=\"\">\n    <f/>\n"
            "  </ANameOfTheGreatestLengthThatATableCanHave123>\n</a>\n");
}

TEST(Writer, EscapesSoThatAllCanBeReadBack) {
  struct Case {
    const wchar_t* value;
    const char* attribute;
    const char* text;
  };
  for (const Case& one : {
           Case{L"<a href=\"x\">'&'", "&lt;a href=&quot;x&quot;&gt;'&amp;'",
                "&lt;a href=\"x\"&gt;'&amp;'"},
           Case{L"x\t\r\ny", "x&#x9;&#xD;&#xA;y", "x\t&#xD;\ny"},
           Case{L"]]>", "]]&gt;", "]]&gt;"},
           Case{L" ", " ", "&#x20;"},
           Case{L"\n\t ", "&#xA;&#x9; ", "&#xA;\t "},
           Case{L"\u00E9\u20AC\U0001F600\uE000\uFFFD",
                "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xEE\x80\x80\xEF\xBF\xBD",
                "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xEE\x80\x80\xEF\xBF\xBD"},
           Case{L"\xD83D\xDE00", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
       }) {
    EXPECT_EQ(Written([&](XmlWriter& writer) {
                EXPECT_EQ(writer.WriteStartElement(L"a"), S_OK);
                EXPECT_EQ(writer.WriteAttribute(L"x", one.value), S_OK);
                EXPECT_EQ(writer.WriteElement(L"t", one.value), S_OK);
                EXPECT_EQ(writer.WriteEndDocument(), S_OK);
              }),
              std::string("<a x=\"") + one.attribute + "\">\n  <t>" + one.text + "</t>\n</a>\n");
  }
  const std::wstring longer(5000, L'"');
  std::string expected;
  for (std::size_t i = 0; i < longer.size(); ++i) expected += "&quot;";
  EXPECT_EQ(Written([&](XmlWriter& writer) {
              EXPECT_EQ(writer.WriteStartElement(L"a"), S_OK);
              EXPECT_EQ(writer.WriteAttribute(L"b", longer), S_OK);
              EXPECT_EQ(writer.WriteEndDocument(), S_OK);
            }),
            "<a b=\"" + expected + "\"/>\n");
}

/// Wherever a character that needs care stands in a value, and wherever a value is cut into
/// stretches.
TEST(Writer, EscapesEveryPlaceOfAValue) {
  struct Special {
    std::wstring value;
    std::string written;
  };
  for (const Special& special : {Special{L"&", "&amp;"}, Special{L"\u20AC", "\xE2\x82\xAC"},
                                 Special{L"\xD83D\xDE00", "\xF0\x9F\x98\x80"}}) {
    for (const std::size_t size : {0U, 1U, 3U, 4U, 5U, 15U, 16U, 17U, 33U, 1023U, 1024U, 2050U}) {
      for (std::size_t at = 0; at <= size; at += size < 40 || at < 20 || at + 40 > size ? 1 : 13) {
        std::wstring value(size, L'v');
        std::string expected(size, 'v');
        value.insert(at, special.value);
        expected.insert(at, special.written);
        ASSERT_EQ(Written([&](XmlWriter& writer) { writer.WriteElement(L"a", value); }),
                  "<a>" + expected + "</a>")
            << size << " " << at;
      }
    }
  }
}

TEST(Writer, LeavesNothingOfACallThatIsRefused) {
  const std::wstring filler(3000, L'x');
  const auto written = Written([&](XmlWriter& writer) {
    EXPECT_EQ(writer.WriteStartElement(L"a"), S_OK);
    for (const std::wstring& front : {std::wstring(), filler}) {
      for (const std::wstring& bad : {std::wstring(L"ok\x0B"), std::wstring(L"\xFFFE"),
                                      std::wstring(L"\x1"), std::wstring(L"a\0b", 3)}) {
        EXPECT_EQ(writer.WriteAttribute(L"bad", front + bad), WC_E_XMLCHARACTER);
        EXPECT_EQ(writer.WriteElement(L"bad", front + bad), WC_E_XMLCHARACTER);
      }
      for (const wchar_t* const bad :
           {L"x\xDC00\xD800", L"\xD800", L"\xDC00\xDC00", L"\xD800\xD800"}) {
        EXPECT_EQ(writer.WriteAttribute(L"bad", front + bad), WR_E_INVALIDSURROGATEPAIR);
        EXPECT_EQ(writer.WriteElement(L"bad", front + bad), WR_E_INVALIDSURROGATEPAIR);
      }
    }
    EXPECT_EQ(writer.WriteAttribute(L"x", L""), S_OK);  // still in the start tag
    EXPECT_EQ(writer.WriteEmptyElement(L"b"), S_OK);
    EXPECT_EQ(writer.WriteLineFeed(), S_OK);
    EXPECT_EQ(writer.WriteElement(L"bad", L"\x1"), WC_E_XMLCHARACTER);
    EXPECT_EQ(writer.WriteStartElement(L"c"), S_OK);
    EXPECT_EQ(writer.WriteEndDocument(), S_OK);
  });
  EXPECT_EQ(written, "<a x=\"\">\n  <b/>\n  <c/>\n</a>\n");
}

#if !defined(_WIN32)
TEST(Writer, SurvivesARunOutOfMemory) {
  const std::wstring value(3000, L'<');
  const Calls calls[] = {
      [&](XmlWriter& writer) { writer.WriteStartElement(L"a"); },
      [&](XmlWriter& writer) { writer.WriteAttribute(L"b", value); },
      [&](XmlWriter& writer) { writer.WritePlainAttribute(L"c", "c"); },
      [&](XmlWriter& writer) { writer.WriteElement(L"d", value); },
      [&](XmlWriter& writer) { writer.WriteStartElement(L"e"); },
      [&](XmlWriter& writer) { writer.WriteFullEnd(); },
      [&](XmlWriter& writer) { writer.WriteLineFeed(); },
      [&](XmlWriter& writer) { writer.WritePlainElement(L"f", "1"); },
      [&](XmlWriter& writer) { writer.WriteEndDocument(); },
  };
  const std::string expected = Written([&](XmlWriter& writer) {
    for (const Calls& call : calls) call(writer);
  });
  bool failed = true;
  for (std::size_t n = 0; failed; ++n) {
    failed = false;
    ASSERT_LT(n, 1000U);
    EXPECT_EQ(Written([&](XmlWriter& writer) {
                for (const Calls& call : calls) {
                  try {
                    const FailingAllocations failing(n);
                    call(writer);
                  } catch (const std::bad_alloc&) {
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
  const Calls calls_out_of_place[] = {
      [](XmlWriter& writer) { EXPECT_EQ(writer.WriteEnd(), WR_E_INVALIDACTION); },
      [](XmlWriter& writer) { EXPECT_EQ(writer.WriteFullEnd(), WR_E_INVALIDACTION); },
      [](XmlWriter& writer) { EXPECT_EQ(writer.WriteEndDocument(), WR_E_INVALIDACTION); },
      [](XmlWriter& writer) { EXPECT_EQ(writer.WriteAttribute(L"a", L""), WR_E_INVALIDACTION); },
      [](XmlWriter& writer) {
        EXPECT_EQ(writer.WritePlainAttribute(L"a", ""), WR_E_INVALIDACTION);
      },
      [](XmlWriter& writer) { EXPECT_EQ(writer.WriteStartDocument(), WR_E_INVALIDACTION); },
      [](XmlWriter& writer) {
        EXPECT_EQ(writer.WriteEmptyElement(L"a"), S_OK);
        EXPECT_EQ(writer.WriteStartElement(L"b"), WR_E_INVALIDACTION);
      },
      [](XmlWriter& writer) {
        EXPECT_EQ(writer.WriteEmptyElement(L"a"), S_OK);
        EXPECT_EQ(writer.WriteElement(L"b", L""), WR_E_INVALIDACTION);
      },
  };
  for (const Calls& call : calls_out_of_place) {
    Written([&call](XmlWriter& writer) {
      call(writer);
      EXPECT_EQ(writer.WriteStartElement(L"c"), WR_E_INVALIDACTION);
      EXPECT_EQ(writer.WriteEndDocument(), WR_E_INVALIDACTION);
      SinkStream next;
      EXPECT_EQ(writer.SetOutput(&next), S_OK);
      EXPECT_EQ(writer.WriteEmptyElement(L"a"), S_OK);
      EXPECT_EQ(writer.SetOutput(nullptr), S_OK);
      EXPECT_EQ(next.text, "<a/>\n");
    });
  }
  // A line feed counts as content: a declaration has to come first.
  SinkStream sink;
  XmlWriter writer;
  EXPECT_EQ(writer.WriteStartDocument(), E_UNEXPECTED);
  EXPECT_EQ(writer.WriteStartElement(L"a"), E_UNEXPECTED);
  EXPECT_EQ(writer.WriteAttribute(L"a", L""), E_UNEXPECTED);
  EXPECT_EQ(writer.WriteLineFeed(), E_UNEXPECTED);
  EXPECT_EQ(writer.WriteEndDocument(), E_UNEXPECTED);
  EXPECT_EQ(writer.Flush(), S_OK);
  ASSERT_EQ(writer.SetOutput(&sink), S_OK);
  EXPECT_EQ(writer.WriteLineFeed(), S_OK);
  EXPECT_EQ(writer.WriteStartDocument(), WR_E_INVALIDACTION);
  EXPECT_EQ(writer.SetOutput(nullptr), S_OK);
}

TEST(Writer, EndsTheDocumentWhenItsOutputIsTakenAway) {
  SinkStream first;
  SinkStream second;
  {
    XmlWriter writer;
    ASSERT_EQ(writer.SetOutput(&first), S_OK);
    EXPECT_EQ(writer.WriteStartElement(L"a"), S_OK);
    EXPECT_EQ(writer.WriteStartElement(L"b"), S_OK);
    ASSERT_EQ(writer.SetOutput(&second), S_OK);
    EXPECT_EQ(first.references, 1U);
    EXPECT_EQ(writer.WriteStartElement(L"c"), S_OK);
  }
  EXPECT_EQ(second.references, 1U);
  EXPECT_EQ(first.text, "<a>\n  <b/>\n</a>\n");
  EXPECT_EQ(second.text, "<c/>\n");
}

TEST(Writer, KeepsWhatTheStreamRefuses) {
  SinkStream sink;
  XmlWriter writer;
  ASSERT_EQ(writer.SetOutput(&sink), S_OK);
  EXPECT_EQ(writer.WriteStartElement(L"a"), S_OK);
  const std::wstring value(1000, L'v');
  // More than the writer holds back: the failure comes to light while the document is written.
  sink.capacity = 100;
  HRESULT result = S_OK;
  int written = 0;
  while (SUCCEEDED(result) && written < 1000) {
    result = writer.WriteElement(L"b", value);
    if (SUCCEEDED(result)) ++written;
  }
  EXPECT_EQ(result, HRESULT_FROM_WIN32(ERROR_DISK_FULL));
  EXPECT_EQ(writer.Flush(), HRESULT_FROM_WIN32(ERROR_DISK_FULL));
  sink.capacity = std::size_t{1} << 30;
  EXPECT_EQ(writer.WriteEndDocument(), S_OK);
  EXPECT_EQ(writer.Flush(), S_OK);
  std::string expected = "<a>\n";
  for (int i = 0; i < written; ++i) expected += "  <b>" + std::string(1000, 'v') + "</b>\n";
  EXPECT_TRUE(sink.text == expected + "</a>\n");
}

/// A stream's failure comes to light where an element starts or ends: nobody has to be told of an
/// attribute or of a line feed.
TEST(Writer, HandsItsBlocksOverBetweenElements) {
  const std::wstring value(100'000, L'v');
  const std::function<HRESULT(XmlWriter&)> calls[] = {
      [](XmlWriter& writer) { return writer.WriteStartElement(L"c"); },
      [](XmlWriter& writer) { return writer.WriteElement(L"c", L""); },
      [](XmlWriter& writer) { return writer.WriteEnd(); },
      [](XmlWriter& writer) { return writer.WriteFullEnd(); },
      [](XmlWriter& writer) { return writer.WriteEndDocument(); },
      [](XmlWriter& writer) { return writer.Flush(); },
  };
  for (const auto& call : calls) {
    SinkStream sink;
    XmlWriter writer;
    ASSERT_EQ(writer.SetOutput(&sink), S_OK);
    EXPECT_EQ(writer.WriteStartElement(L"a"), S_OK);
    EXPECT_EQ(writer.WriteStartElement(L"b"), S_OK);
    sink.capacity = 0;
    EXPECT_EQ(writer.WriteAttribute(L"v", value), S_OK);
    EXPECT_EQ(writer.WriteAttribute(L"w", value), S_OK);
    EXPECT_EQ(writer.WritePlainAttribute(L"x", ""), S_OK);
    EXPECT_EQ(writer.WriteLineFeed(), S_OK);
    EXPECT_EQ(sink.text, "");
    EXPECT_EQ(call(writer), HRESULT_FROM_WIN32(ERROR_DISK_FULL));
    sink.capacity = std::size_t{1} << 30;
    EXPECT_EQ(call(writer), S_OK);
    EXPECT_GT(sink.text.size(), 2 * value.size());
    EXPECT_EQ(writer.SetOutput(nullptr), S_OK);
    EXPECT_TRUE(sink.text.ends_with("</a>\n"));
  }
}

}  // namespace
}  // namespace tolva::test
