// The writer behind XmlLite's interface: layout, escapes, and calls that cannot be.
#include "platform/xml/writer.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/com_ptr.h"
#include "platform/xml/xmllite.h"
#include "support/allocations.h"
#include "support/streams.h"

namespace tolva::test {
namespace {

using Calls = std::function<void(IXmlWriter&)>;

constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

ComPtr<IXmlWriter> MakeWriter() {
  void* made = nullptr;
  EXPECT_EQ(CreateXmlWriter(kIidXmlWriter, &made, nullptr), S_OK);
  ComPtr<IXmlWriter> writer;
  writer.Attach(static_cast<IXmlWriter*>(made));
  EXPECT_EQ(writer->SetProperty(XmlWriterProperty_Indent, TRUE), S_OK);
  return writer;
}

/// What calls leave in the file, behind the declaration.
std::string Written(const Calls& calls) {
  SinkStream sink;
  const ComPtr<IXmlWriter> writer = MakeWriter();
  EXPECT_EQ(writer->SetOutput(&sink), S_OK);
  EXPECT_EQ(writer->WriteStartDocument(XmlStandalone_Omit), S_OK);
  calls(*writer.Get());
  EXPECT_EQ(writer->Flush(), S_OK);
  return sink.text.substr(std::min(kDeclaration.size(), sink.text.size()));
}

void Start(IXmlWriter& writer, const wchar_t* name) {
  EXPECT_EQ(writer.WriteStartElement(nullptr, name, nullptr), S_OK);
}

HRESULT Attribute(IXmlWriter& writer, const wchar_t* name, const wchar_t* value) {
  return writer.WriteAttributeString(nullptr, name, nullptr, value);
}

TEST(Writer, LaysADocumentOut) {
  const auto written = Written([](IXmlWriter& writer) {
    Start(writer, L"a");
    Start(writer, L"b");
    EXPECT_EQ(Attribute(writer, L"x", L"1"), S_OK);
    EXPECT_EQ(Attribute(writer, L"y", L""), S_OK);
    EXPECT_EQ(writer.WriteEndElement(), S_OK);
    EXPECT_EQ(writer.WriteWhitespace(L"\n"), S_OK);
    Start(writer, L"c");
    EXPECT_EQ(writer.WriteFullEndElement(), S_OK);
    Start(writer, L"d");
    EXPECT_EQ(writer.WriteString(L"text"), S_OK);
    EXPECT_EQ(writer.WriteEndElement(), S_OK);
    EXPECT_EQ(writer.WriteElementString(nullptr, L"e", nullptr, L"more"), S_OK);
    EXPECT_EQ(writer.WriteElementString(nullptr, L"e", nullptr, L""), S_OK);
    EXPECT_EQ(writer.WriteElementString(nullptr, L"e", nullptr, nullptr), S_OK);
    Start(writer, L"f");
    Start(writer, L"g");
    EXPECT_EQ(writer.WriteString(L""), S_OK);
    EXPECT_EQ(writer.WriteEndDocument(), S_OK);
  });
  EXPECT_EQ(written,
            "<a>\n  <b x=\"1\" y=\"\"/>\n  <c></c>\n  <d>text</d>\n  <e>more</e>\n  <e></e>\n"
            "  <e/>\n  <f>\n    <g></g>\n  </f>\n</a>\n");
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
    EXPECT_EQ(Written([&](IXmlWriter& writer) {
                Start(writer, L"a");
                EXPECT_EQ(Attribute(writer, L"x", one.value), S_OK);
                EXPECT_EQ(writer.WriteString(one.value), S_OK);
                EXPECT_EQ(writer.WriteEndDocument(), S_OK);
              }),
              std::string("<a x=\"") + one.attribute + "\">" + one.text + "</a>\n");
  }
  const std::wstring longer(5000, L'"');
  std::string expected;
  for (std::size_t i = 0; i < longer.size(); ++i) expected += "&quot;";
  EXPECT_EQ(Written([&](IXmlWriter& writer) {
              Start(writer, L"a");
              EXPECT_EQ(Attribute(writer, L"b", longer.c_str()), S_OK);
              EXPECT_EQ(writer.WriteEndDocument(), S_OK);
            }),
            "<a b=\"" + expected + "\"/>\n");
}

TEST(Writer, RefusesBadNamesAndCharactersAndGoesOn) {
  const auto written = Written([](IXmlWriter& writer) {
    for (const wchar_t* const name : {L".a", L":a", L"a:b", L"a b", L"\u00D7", L"\xD800"}) {
      EXPECT_EQ(writer.WriteStartElement(nullptr, name, nullptr), WC_E_NAMECHARACTER);
    }
    EXPECT_EQ(writer.WriteStartElement(nullptr, nullptr, nullptr), E_INVALIDARG);
    EXPECT_EQ(writer.WriteStartElement(nullptr, L"", nullptr), E_INVALIDARG);
    EXPECT_EQ(writer.WriteWhitespace(L"ab"), WR_E_NONWHITESPACE);
    Start(writer, L"a");
    const wchar_t* const namespaces[][2] = {{L"p", nullptr}, {nullptr, L"u"}, {L"p", L"u"}};
    for (const auto& [prefix, uri] : namespaces) {
      EXPECT_EQ(writer.WriteStartElement(prefix, L"n", uri), E_NOTIMPL);
      EXPECT_EQ(writer.WriteAttributeString(prefix, L"n", uri, L""), E_NOTIMPL);
      EXPECT_EQ(writer.WriteElementString(prefix, L"n", uri, L""), E_NOTIMPL);
    }
    EXPECT_EQ(Attribute(writer, L"x", L"1"), S_OK);
    EXPECT_EQ(Attribute(writer, L"x", L"2"), WR_E_DUPLICATEATTRIBUTE);
    EXPECT_EQ(Attribute(writer, L"xmlns", L"u"), WR_E_XMLNSPREFIXDECLARATION);
    EXPECT_EQ(Attribute(writer, L"", L"u"), E_INVALIDARG);
    for (const wchar_t* const bad : {L"ok\x0B", L"\xFFFE", L"\x1"}) {
      EXPECT_EQ(Attribute(writer, L"y", bad), WC_E_XMLCHARACTER);
      EXPECT_EQ(writer.WriteElementString(nullptr, L"b", nullptr, bad), WC_E_XMLCHARACTER);
      EXPECT_EQ(writer.WriteString(bad), WC_E_XMLCHARACTER);
    }
    for (const wchar_t* const bad :
         {L"x\xDC00\xD800", L"\xD800", L"\xDC00\xDC00", L"\xD800\xD800"}) {
      EXPECT_EQ(Attribute(writer, L"y", bad), WR_E_INVALIDSURROGATEPAIR);
    }
    // Nothing of all that has been written, and nothing has been forgotten.
    EXPECT_EQ(Attribute(writer, L"y", nullptr), S_OK);
    EXPECT_EQ(Attribute(writer, L"y", nullptr), WR_E_DUPLICATEATTRIBUTE);
    EXPECT_EQ(writer.WriteEndElement(), S_OK);
  });
  EXPECT_EQ(written, "<a x=\"1\" y=\"\"/>");
}

TEST(Writer, LeavesNothingOfAFailedCall) {
  const wchar_t* const bad = L"good\x1";
  const auto written = Written([bad](IXmlWriter& writer) {
    Start(writer, L"a");
    EXPECT_EQ(writer.WriteElementString(nullptr, L"long", nullptr, bad), WC_E_XMLCHARACTER);
    EXPECT_EQ(Attribute(writer, L"x", L""), S_OK);  // still in the start tag
    EXPECT_EQ(writer.WriteString(bad), WC_E_XMLCHARACTER);
    EXPECT_EQ(writer.WriteElementString(nullptr, L"b", nullptr, nullptr), S_OK);
    EXPECT_EQ(writer.WriteWhitespace(L"\n"), S_OK);
    EXPECT_EQ(writer.WriteStartElement(nullptr, L".bad", nullptr), WC_E_NAMECHARACTER);
    EXPECT_EQ(writer.WriteElementString(nullptr, L"long", nullptr, bad), WC_E_XMLCHARACTER);
    Start(writer, L"c");
    EXPECT_EQ(writer.WriteEndDocument(), S_OK);
  });
  EXPECT_EQ(written, "<a x=\"\">\n  <b/>\n  <c/>\n</a>\n");
}

#if !defined(_WIN32)
TEST(Writer, SurvivesARunOutOfMemory) {
  const std::wstring value(3000, L'<');
  const Calls calls[] = {
      [&](IXmlWriter& writer) { writer.WriteStartElement(nullptr, L"a", nullptr); },
      [&](IXmlWriter& writer) {
        writer.WriteAttributeString(nullptr, L"b", nullptr, value.c_str());
      },
      [&](IXmlWriter& writer) { writer.WriteAttributeString(nullptr, L"c", nullptr, L"c"); },
      [&](IXmlWriter& writer) { writer.WriteElementString(nullptr, L"d", nullptr, value.c_str()); },
      [&](IXmlWriter& writer) { writer.WriteStartElement(nullptr, L"e", nullptr); },
      [&](IXmlWriter& writer) { writer.WriteString(value.c_str()); },
      [&](IXmlWriter& writer) { writer.WriteFullEndElement(); },
      [&](IXmlWriter& writer) { writer.WriteWhitespace(L"\n"); },
      [&](IXmlWriter& writer) { writer.WriteEndDocument(); },
  };
  const std::string expected = Written([&](IXmlWriter& writer) {
    for (const Calls& call : calls) call(writer);
  });
  bool failed = true;
  for (std::size_t n = 0; failed; ++n) {
    failed = false;
    ASSERT_LT(n, 1000U);
    EXPECT_EQ(Written([&](IXmlWriter& writer) {
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

TEST(Writer, StaysRefusingAfterACallOutOfPlace) {
  const Calls calls_out_of_place[] = {
      [](IXmlWriter& writer) { EXPECT_EQ(writer.WriteEndElement(), WR_E_INVALIDACTION); },
      [](IXmlWriter& writer) { EXPECT_EQ(writer.WriteFullEndElement(), WR_E_INVALIDACTION); },
      [](IXmlWriter& writer) { EXPECT_EQ(writer.WriteEndDocument(), WR_E_INVALIDACTION); },
      [](IXmlWriter& writer) { EXPECT_EQ(writer.WriteString(L"x"), WR_E_INVALIDACTION); },
      [](IXmlWriter& writer) { EXPECT_EQ(Attribute(writer, L"a", L""), WR_E_INVALIDACTION); },
      [](IXmlWriter& writer) {
        EXPECT_EQ(writer.WriteStartDocument(XmlStandalone_Omit), WR_E_INVALIDACTION);
      },
      [](IXmlWriter& writer) {
        EXPECT_EQ(writer.WriteElementString(nullptr, L"a", nullptr, nullptr), S_OK);
        EXPECT_EQ(writer.WriteStartElement(nullptr, L"b", nullptr), WR_E_INVALIDACTION);
      },
  };
  for (const Calls& call : calls_out_of_place) {
    Written([&call](IXmlWriter& writer) {
      call(writer);
      EXPECT_EQ(writer.WriteStartElement(nullptr, L"c", nullptr), WR_E_INVALIDACTION);
      EXPECT_EQ(writer.WriteEndDocument(), WR_E_INVALIDACTION);
      SinkStream next;
      EXPECT_EQ(writer.SetOutput(&next), S_OK);
      EXPECT_EQ(writer.WriteElementString(nullptr, L"a", nullptr, nullptr), S_OK);
      EXPECT_EQ(writer.SetOutput(nullptr), S_OK);
      EXPECT_EQ(next.text, "<a/>\n");
    });
  }
  // White space is something already: a declaration has to come first of all.
  SinkStream sink;
  const ComPtr<IXmlWriter> blank = MakeWriter();
  ASSERT_EQ(blank->SetOutput(&sink), S_OK);
  EXPECT_EQ(blank->WriteWhitespace(L"\n"), S_OK);
  EXPECT_EQ(blank->WriteStartDocument(XmlStandalone_Omit), WR_E_INVALIDACTION);
  EXPECT_EQ(blank->SetOutput(nullptr), S_OK);

  const ComPtr<IXmlWriter> writer = MakeWriter();
  EXPECT_EQ(writer->WriteStartElement(nullptr, L"a", nullptr), E_UNEXPECTED);
  EXPECT_EQ(writer->Flush(), S_OK);
  EXPECT_EQ(writer->WriteString(nullptr), S_OK);
}

TEST(Writer, EndsTheDocumentWhenItsOutputIsTakenAway) {
  SinkStream first;
  SinkStream second;
  {
    const ComPtr<IXmlWriter> writer = MakeWriter();
    ASSERT_EQ(writer->SetOutput(&first), S_OK);
    Start(*writer.Get(), L"a");
    Start(*writer.Get(), L"b");
    ASSERT_EQ(writer->SetOutput(&second), S_OK);
    EXPECT_EQ(first.references, 1U);
    Start(*writer.Get(), L"c");
  }
  EXPECT_EQ(second.references, 1U);
  EXPECT_EQ(first.text, "<a>\n  <b/>\n</a>\n");
  EXPECT_EQ(second.text, "<c/>\n");
}

TEST(Writer, KeepsWhatTheStreamRefuses) {
  SinkStream sink;
  const ComPtr<IXmlWriter> writer = MakeWriter();
  ASSERT_EQ(writer->SetOutput(&sink), S_OK);
  Start(*writer.Get(), L"a");
  const std::wstring value(1000, L'v');
  // More than the writer holds back: the failure comes to light while the document is written.
  sink.capacity = 100;
  HRESULT result = S_OK;
  int written = 0;
  while (SUCCEEDED(result) && written < 1000) {
    result = writer->WriteElementString(nullptr, L"b", nullptr, value.c_str());
    if (SUCCEEDED(result)) ++written;
  }
  EXPECT_EQ(result, HRESULT_FROM_WIN32(ERROR_DISK_FULL));
  EXPECT_EQ(writer->Flush(), HRESULT_FROM_WIN32(ERROR_DISK_FULL));
  sink.capacity = std::size_t{1} << 30;
  EXPECT_EQ(writer->WriteEndDocument(), S_OK);
  EXPECT_EQ(writer->Flush(), S_OK);
  std::string expected = "<a>\n";
  for (int i = 0; i < written; ++i) expected += "  <b>" + std::string(1000, 'v') + "</b>\n";
  EXPECT_TRUE(sink.text == expected + "</a>\n");
}

/// A stream's failure comes to light where an element starts or ends: nobody has to be told of an
/// attribute or of white space.
TEST(Writer, HandsItsBlocksOverBetweenElements) {
  const std::wstring value(100'000, L'v');
  const std::function<HRESULT(IXmlWriter&)> calls[] = {
      [](IXmlWriter& writer) { return writer.WriteStartElement(nullptr, L"c", nullptr); },
      [](IXmlWriter& writer) { return writer.WriteElementString(nullptr, L"c", nullptr, L""); },
      [](IXmlWriter& writer) { return writer.WriteEndElement(); },
      [](IXmlWriter& writer) { return writer.WriteFullEndElement(); },
      [](IXmlWriter& writer) { return writer.WriteEndDocument(); },
      [](IXmlWriter& writer) { return writer.Flush(); },
  };
  for (const auto& call : calls) {
    SinkStream sink;
    const ComPtr<IXmlWriter> writer = MakeWriter();
    ASSERT_EQ(writer->SetOutput(&sink), S_OK);
    Start(*writer.Get(), L"a");
    Start(*writer.Get(), L"b");
    EXPECT_EQ(Attribute(*writer.Get(), L"v", value.c_str()), S_OK);
    sink.capacity = 0;
    EXPECT_EQ(Attribute(*writer.Get(), L"w", L""), S_OK);
    EXPECT_EQ(writer->WriteString(value.c_str()), S_OK);
    EXPECT_EQ(writer->WriteWhitespace(L"\n"), S_OK);
    EXPECT_EQ(sink.text, "");
    EXPECT_EQ(call(*writer.Get()), HRESULT_FROM_WIN32(ERROR_DISK_FULL));
    sink.capacity = std::size_t{1} << 30;
    EXPECT_EQ(call(*writer.Get()), S_OK);
    EXPECT_GT(sink.text.size(), 2 * value.size());
    EXPECT_EQ(writer->SetOutput(nullptr), S_OK);
    EXPECT_TRUE(sink.text.ends_with("</a>\n"));
  }
}

}  // namespace
}  // namespace tolva::test
