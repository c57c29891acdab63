// The writing manager: files, primitives, and failures of the platform's writer.
#include "xml/writer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

#include "support/allocations.h"
#include "support/capabilities.h"
#include "support/files.h"
#include "support/managers.h"
#include "support/writer_faults.h"

namespace tolva::test {
namespace {

using namespace platform;
using xml::CXMLLiteManagerWriter;
using End = CXMLLiteManagerWriter::End;

constexpr DWORD kFault = WriterFault::kCode;

class ManagerWriter : public testing::Test {
 protected:
  ManagerWriter() { tolvaSetLastError(kUntouched); }

  void Open() { ASSERT_EQ(writer_.OpenFile(file_.Wide().c_str()), 0); }

  bool Holds(const char* text) const { return file_.Read().find(text) != std::string::npos; }

  const TempFile file_{std::string(4096, 'x')};  // longer than what is written
  CXMLLiteManagerWriter writer_;
};

TEST_F(ManagerWriter, RefusesWhatCannotBeOpened) {
  EXPECT_EQ(writer_.OpenFile(nullptr), -102);
  EXPECT_EQ(writer_.OpenFromString(L"<a/>"), -101);
  EXPECT_EQ(tolvaGetLastError(), kUntouched);
  EXPECT_EQ(writer_.OpenFile((file_.Wide() + L"-no/folder.xml").c_str()), -101);
  EXPECT_EQ(tolvaGetLastError(), 0x80070003U);
  const TempFile folder;
  std::filesystem::create_directory(folder.path());
  EXPECT_EQ(writer_.OpenFile(folder.Wide().c_str()), -101);
  EXPECT_EQ(tolvaGetLastError(), 0x80070005U);
  EXPECT_EQ(writer_.Close(), 0);
}

TEST_F(ManagerWriter, RefusesWhatCannotBeWritten) {
  const std::function<ConfigResult()> early_calls[] = {
      [this] { return writer_.StartElement(L"early"); },
      [this] { return writer_.WriteAttribute(L"early", L"\x1"); },
      [this] { return writer_.EndElement(End::kEndTag); },
      [this] { return writer_.WriteElement(L"early", L"x"); },
  };
  for (const auto& call : early_calls) {
    tolvaSetLastError(kUntouched);
    EXPECT_EQ(call(), -101);
    EXPECT_EQ(tolvaGetLastError(), 0x8000FFFFU);
  }
  EXPECT_EQ(writer_.Close(), 0);
  Open();
  ASSERT_EQ(writer_.WriteElement(L"a", L""), 0);
  EXPECT_EQ(writer_.EndElement(End::kEmptyTag), -101);  // nothing is open
  EXPECT_EQ(tolvaGetLastError(), 0xC00CEF0BU);
}

/// A value that is refused, wherever its fault is, leaves nothing in the document.
TEST_F(ManagerWriter, RefusesWhatXmlDoesNotAllow) {
  const std::pair<std::wstring, DWORD> cases[] = {
      {{L"x\0y", 3}, 0xC00CEE2B},    {L"\x1", 0xC00CEE2B},         {L"ok\x0B", 0xC00CEE2B},
      {L"x\xFFFE", 0xC00CEE2B},      {L"\xD800", 0xC00CEF0C},      {L"x\xDC00\xD800", 0xC00CEF0C},
      {L"\xDC00\xDC00", 0xC00CEF0C}, {L"\xD800\xD800", 0xC00CEF0C}};
  const auto refuse = [&] {
    for (const auto& [text, error] : cases) {
      for (const std::size_t filler : {0U, 3000U}) {
        const std::wstring value = std::wstring(filler, L'x') + text;
        tolvaSetLastError(0);
        EXPECT_EQ(writer_.WriteAttribute(L"bad", value), -101);
        EXPECT_EQ(tolvaGetLastError(), error);
        EXPECT_EQ(writer_.WriteElement(L"bad", value), -101);
        EXPECT_EQ(tolvaGetLastError(), error);
      }
    }
  };
  const auto written = [&](bool with_refusals) {
    Open();
    EXPECT_EQ(writer_.StartElement(L"a"), 0);
    if (with_refusals) refuse();
    EXPECT_EQ(writer_.WriteAttribute(L"good", L"x"), 0);  // still in the start tag
    EXPECT_EQ(writer_.StartElement(L"b"), 0);
    EXPECT_EQ(writer_.EndElement(End::kEmptyTag), 0);
    if (with_refusals) {
      EXPECT_EQ(writer_.WriteElement(L"bad", L"\x1"), -101);
    }
    EXPECT_EQ(writer_.WriteElement(L"c", L"x"), 0);
    EXPECT_EQ(writer_.EndElement(End::kEmptyTag), 0);
    EXPECT_EQ(writer_.Close(), 0);
    return file_.Read();
  };
  EXPECT_EQ(written(true), written(false));
}

TEST_F(ManagerWriter, FinishesADocumentThatIsLeftOpen) {
  const TempFile second;
  Open();
  ASSERT_EQ(writer_.StartElement(L"a"), 0);
  ASSERT_EQ(writer_.StartElement(L"b"), 0);
  ASSERT_EQ(writer_.OpenFile(second.Wide().c_str()), 0);
  EXPECT_TRUE(Holds("</a>"));
  {
    CXMLLiteManagerWriter destroyed;
    ASSERT_EQ(destroyed.OpenFile(file_.Wide().c_str()), 0);
    ASSERT_EQ(destroyed.StartElement(L"c"), 0);
    ASSERT_EQ(destroyed.StartElement(L"d"), 0);
  }
  EXPECT_TRUE(Holds("</c>"));
  ASSERT_EQ(writer_.StartElement(L"e"), 0);
  EXPECT_EQ(writer_.Close(), 0);
  EXPECT_EQ(writer_.Close(), 0);
  EXPECT_NE(second.Read().find("<e"), std::string::npos);
  EXPECT_TRUE(std::filesystem::remove(second.path()));  // nobody holds it any more
}

TEST_F(ManagerWriter, ReportsFaultsOfThePlatformsWriter) {
  for (const int call : {0, 1}) {  // the output, the declaration
    const WriterFault fault(call);
    EXPECT_EQ(writer_.OpenFile(file_.Wide().c_str()), -101);
    EXPECT_EQ(tolvaGetLastError(), kFault);
    EXPECT_EQ(writer_.Close(), 0);  // nothing is open
  }
  Open();
  ASSERT_EQ(writer_.StartElement(L"a"), 0);
  ASSERT_EQ(writer_.StartElement(L"c"), 0);
  for (const int call : {0, 1}) {  // with the second the document ends, but is not flushed
    const WriterFault fault(call);
    EXPECT_EQ(writer_.Close(), -101);
    EXPECT_EQ(tolvaGetLastError(), kFault);
  }
  EXPECT_EQ(writer_.StartElement(L"late"), -101);
  EXPECT_EQ(tolvaGetLastError(), 0xC00CEF0BU);
  EXPECT_EQ(writer_.Close(), 0);
  EXPECT_TRUE(Holds("</a>"));
  EXPECT_FALSE(Holds("late"));
}

/// What a failing call should have written is missing: `Close` says so, once, and brings the rest
/// to the file. tests/faults tries every call.
TEST_F(ManagerWriter, RemembersThatSomethingIsLost) {
  Open();
  ASSERT_EQ(writer_.StartElement(L"a"), 0);
  {
    const WriterFault fault(0);
    EXPECT_EQ(writer_.WriteElement(L"lost", L"x"), -101);
    EXPECT_EQ(tolvaGetLastError(), kFault);
  }
  ASSERT_EQ(writer_.WriteElement(L"good", L"x"), 0);
  // It is the first failure that is told, and one of what was written is none.
  EXPECT_EQ(writer_.WriteElement(L"bad", L"\x1"), -101);
  EXPECT_EQ(writer_.Close(), -101);
  EXPECT_EQ(tolvaGetLastError(), kFault);
  EXPECT_EQ(writer_.Close(), 0);
  EXPECT_EQ(WithoutLayout(file_.Read()), "<a><good>x</good></a>");
  Open();  // the next document has lost nothing
  ASSERT_EQ(writer_.StartElement(L"a"), 0);
  EXPECT_EQ(writer_.Close(), 0);
#if defined(TOLVA_OWN_XML_LAYER)  // Wine's XmlLite ends a document that has no root
  Open();
  EXPECT_EQ(writer_.Close(), -101);
#endif
}

TEST_F(ManagerWriter, RefusesASecondRootAndKeepsTheFirst) {
  TOLVA_REQUIRE(WriterRefusesASecondRoot);
  Open();
  ASSERT_EQ(writer_.WriteElement(L"first", L"good"), 0);
  EXPECT_EQ(writer_.StartElement(L"second"), -101);
  EXPECT_EQ(tolvaGetLastError(), 0xC00CEF0BU);
  for (int again = 0; again < 2; ++again) {
    tolvaSetLastError(kUntouched);
    EXPECT_EQ(writer_.Close(), -101);
    EXPECT_EQ(tolvaGetLastError(), 0xC00CEF0BU);
    EXPECT_TRUE(Holds("<first>good</first>"));
  }
  EXPECT_FALSE(Holds("second"));
  Open();
  ASSERT_EQ(writer_.StartElement(L"next"), 0);
  EXPECT_EQ(writer_.Close(), 0);
}

#if !defined(_WIN32)
TEST_F(ManagerWriter, IsClosedWhenMemoryRunsOutInOpenFile) {
  Open();
  ASSERT_EQ(writer_.StartElement(L"a"), 0);  // to be finished by the next open
  const std::wstring path = file_.Wide();
  bool failed = true;
  for (std::size_t n = 0; failed; ++n) {
    CXMLLiteManagerWriter fresh;
    for (CXMLLiteManagerWriter* const writer : {&fresh, &writer_}) {
      tolvaSetLastError(0);
      ConfigResult result = 0;
      failed = RunsOutOfMemory(n, false, [&] { result = writer->OpenFile(path.c_str()); }) ||
               result != 0;
      if (!failed) continue;
      EXPECT_EQ(writer->StartElement(L"a"), -101);
      EXPECT_EQ(tolvaGetLastError(), 0x8000FFFFU);
      EXPECT_EQ(writer->Close(), 0);
      ASSERT_EQ(writer->OpenFile(path.c_str()), 0);
      EXPECT_EQ(writer->StartElement(L"a"), 0);
    }
  }
  EXPECT_EQ(writer_.StartElement(L"b"), 0);
  EXPECT_EQ(writer_.Close(), 0);
  EXPECT_TRUE(Holds("<?xml"));
}

TEST_F(ManagerWriter, RemembersThatMemoryRanOut) {
  const std::wstring value(1'000'000, L'v');
  Open();
  ASSERT_EQ(writer_.StartElement(L"a"), 0);
  EXPECT_TRUE(RunsOutOfMemory(0, false, [&] { writer_.WriteAttribute(L"b", value); }));
  {
    const WriterFault fault(0);  // it is the first loss that is told
    EXPECT_EQ(writer_.WriteAttribute(L"c", L""), -101);
  }
  EXPECT_EQ(writer_.Close(), -101);
  EXPECT_EQ(tolvaGetLastError(), 0x8007000EU);
  EXPECT_TRUE(Holds("<a/>"));
}
#endif

}  // namespace
}  // namespace tolva::test
