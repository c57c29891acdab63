// The reading manager: opening, the cursor, and what is left in the last-error cell.
#include "xml/reader.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <iterator>
#include <string>
#include <thread>

#include "support/allocations.h"
#include "support/capabilities.h"
#include "support/files.h"
#include "support/managers.h"
#include "support/steps.h"
#include "support/values.h"
#include "xml/writer.h"

namespace tolva::test {
namespace {

using namespace platform;
using xml::CXMLLiteManagerReader;

constexpr int kNone = 0;
constexpr int kElement = 1;
constexpr int kCData = 4;
constexpr int kComment = 8;
constexpr int kEndElement = 15;

struct Row {
  Name name;
};
constexpr Row kRows[] = {{L"b"},     {L"fourth"}, {L"second"},
                         {L"third"}, {L"first"},  {L"ANameThatIsLongerThanOneVector"}};
enum : std::size_t { kB, kFourth, kSecond, kThird, kFirst, kLong };

class ManagerReader : public testing::Test {
 protected:
  ManagerReader() { tolvaSetLastError(kUntouched); }

  void Open(const wchar_t* document) { ASSERT_EQ(reader_.OpenFromString(document), 0); }

  std::wstring LocalName() { return Wide(reader_.GetLocalName()); }
  std::wstring Text() { return Wide(reader_.GetText()); }

  /// The attribute that has the name at this place of `kRows`, and its last error.
  std::wstring Attribute(std::size_t index) {
    static const Names kNames(std::span<const Row>(kRows), &Row::name);
    reader_.FindAttributes(kNames);
    std::wstring value = Wide(reader_.GetAttribute(index));
    reader_.StoreAttributeError();
    return value;
  }

  CXMLLiteManagerReader reader_;
};

/// tests/callers/load_test.cpp has the other files.
TEST_F(ManagerReader, RefusesWhatCannotBeOpened) {
  EXPECT_EQ(reader_.OpenFile(nullptr), -102);
  EXPECT_EQ(reader_.OpenFromString(nullptr), -102);
  EXPECT_EQ(reader_.OpenFromString(L""), -102);
  EXPECT_EQ(tolvaGetLastError(), kUntouched);
  const TempFile empty("");
  EXPECT_EQ(reader_.OpenFile(empty.Wide().c_str()), -101);

  for (const wchar_t* const path : {L"no-such-folder/file.xml", L""}) {
    EXPECT_EQ(reader_.OpenFile(path), -101);
    EXPECT_EQ(tolvaGetLastError(), 3U);
  }
}

#if defined(_WIN32)
TEST_F(ManagerReader, RefusesAFileThatAnotherHoldsOpen) {
  const TempFile file("<a/>");
  const HANDLE held = CreateFileW(file.Wide().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(reader_.OpenFile(file.Wide().c_str()), -101);
  EXPECT_EQ(tolvaGetLastError(), DWORD{ERROR_SHARING_VIOLATION});
  CloseHandle(held);
  EXPECT_EQ(reader_.OpenFile(file.Wide().c_str()), 0);
}
#endif

TEST_F(ManagerReader, StopsOnTheRoot) {
  Open(L"<?xml version='1.0'?>\n<!-- c --><?p i?>\n<A><B/></A>");
  EXPECT_EQ(reader_.node_type(), kElement);
  EXPECT_FALSE(reader_.is_empty_element());
  EXPECT_EQ(LocalName(), L"A");

  const TempFile file("\xEF\xBB\xBF<p:\xC3\xA9 xmlns:p='u' />");
  ASSERT_EQ(reader_.OpenFile(file.Wide().c_str()), 0);
  EXPECT_TRUE(reader_.is_empty_element());
  EXPECT_EQ(LocalName(), L"\u00E9");
  EXPECT_EQ(reader_.FinishElement(), kElement);
}

TEST_F(ManagerReader, OpensWhatHasNoRoot) {
  Open(L"<!DOCTYPE A><A/>");
  EXPECT_EQ(tolvaGetLastError(), 0xC00CEE4FU);
  EXPECT_EQ(reader_.node_type(), kNone);
  EXPECT_EQ(LocalName(), L"");
  EXPECT_EQ(tolvaGetLastError(), 1U);
  TOLVA_REQUIRE(ReaderEndsTruncatedInput);
  for (const wchar_t* const document : {L"xml", L"<!-- only -->", L"<A", L"<A b='&x;'/>"}) {
    tolvaSetLastError(0);
    Open(document);
    EXPECT_EQ(reader_.node_type(), kNone) << document;
    EXPECT_NE(tolvaGetLastError(), 0U) << document;
  }
}

TEST_F(ManagerReader, ConvertsStrings) {
#if defined(TOLVA_OWN_XML_LAYER)
  Open(L"<?xml version='1.0' encoding='ISO-8859-1'?><A b='\u00E9\xD83D\xDE00'/>");
#else
  Open(L"<A b='\u00E9\xD83D\xDE00'/>");
#endif
  EXPECT_EQ(Attribute(kB), L"\u00E9\U0001F600");
  Open(L"<A b='x\xD83Dy'/>");
  EXPECT_EQ(Attribute(kB), L"x\uFFFDy");
  Open(L"<A b='\xDC00\xDC00'/>");
  EXPECT_EQ(Attribute(kB), L"\uFFFD\uFFFD");
  Open(L"<A b='\U0010FFFF'/>");
  EXPECT_EQ(Attribute(kB), L"\U0010FFFF");
  for (const std::size_t size : {62U, 63U, 1022U, 1023U, 5000U}) {
    const std::wstring value = L'\u00E9' + std::wstring(size, L'x');
    Open((L"<A b='" + value + L"'/>").c_str());
    EXPECT_EQ(Attribute(kB), value);
  }
}

TEST_F(ManagerReader, FindsAttributes) {
  Open(
      L"<A xmlns='u' first='1' second='&lt;&#x32;' third='' xmlns:p='v' p:fourth='4' p:b=''"
      L" ANameThatIsLongerThanOneVector='long' ANameThatIsLongerThanOneVectorAndMore=''><B/></A>");
  EXPECT_EQ(Attribute(kThird), L"");
  EXPECT_EQ(tolvaGetLastError(), 0U);
  EXPECT_EQ(Attribute(kSecond), L"<2");
  EXPECT_EQ(Attribute(kFourth), kNoValue);
  EXPECT_EQ(tolvaGetLastError(), static_cast<DWORD>(-104));
  EXPECT_EQ(Attribute(kFirst), L"1");
  EXPECT_EQ(Attribute(kLong), L"long");
  EXPECT_EQ(Attribute(kFirst), L"1");
  EXPECT_EQ(reader_.NextNode(), kElement);
  EXPECT_EQ(Attribute(kFirst), kNoValue);
  EXPECT_EQ(reader_.NextNode(), kEndElement);
  EXPECT_EQ(Attribute(kFirst), kNoValue);
  EXPECT_EQ(tolvaGetLastError(), static_cast<DWORD>(-102));
}

TEST_F(ManagerReader, SeesElementsCDataAndComments) {
  Open(L"<A>text<!-- c --><B/>\n<![CDATA[d]]><?p i?><C>x</C></A>");
  EXPECT_EQ(reader_.NextNode(), kComment);
  EXPECT_EQ(LocalName(), L"");
  EXPECT_EQ(reader_.NextNode(), kElement);
  EXPECT_TRUE(reader_.is_empty_element());
  EXPECT_EQ(reader_.NextNode(), kCData);
  EXPECT_TRUE(reader_.is_empty_element());  // still that of B
  EXPECT_EQ(reader_.NextNode(), kElement);
  EXPECT_FALSE(reader_.is_empty_element());
  EXPECT_EQ(LocalName(), L"C");
  EXPECT_EQ(reader_.NextNode(), kEndElement);
  EXPECT_EQ(reader_.NextNode(), kEndElement);
}

/// tests/documents/fragments_test.cpp shows what the text of an element is.
TEST_F(ManagerReader, TakesTheTextOfAnElement) {
  Open(L"<A>\n text &amp;<B><C/></B>more</A>");
  EXPECT_EQ(Text(), L"\n text &");
  EXPECT_EQ(reader_.FinishElement(), kEndElement);
  Open(L"<A> <B/></A>");
  reader_.GetText();
  EXPECT_EQ(tolvaGetLastError(), 1U);
  // The cursor may come to stand on a processing instruction, which has a name.
  Open(L"<A><?target data?></A>");
  EXPECT_EQ(Text(), L"data");
  EXPECT_EQ(LocalName(), L"target");
  // An end tag right behind the start tag makes an empty element of it.
  Open(L"<A></A>");
  reader_.GetText();
  EXPECT_TRUE(reader_.is_empty_element());
  EXPECT_EQ(Text(), kNoValue);
}

TEST_F(ManagerReader, SkipsAndFinishesElements) {
  Open(L"<A><B><C><D/>x</C><!-- c --><C/></B><E/><F><G></G></F></A>");
  EXPECT_EQ(reader_.NextNode(), kElement);
  EXPECT_EQ(reader_.SkipElement(), kElement);
  EXPECT_EQ(LocalName(), L"E");
  EXPECT_EQ(reader_.SkipElement(), kElement);
  EXPECT_EQ(LocalName(), L"F");
  EXPECT_EQ(reader_.NextNode(), kElement);
  EXPECT_EQ(reader_.FinishElement(), kEndElement);
  EXPECT_EQ(reader_.FinishElement(), kEndElement);
  EXPECT_EQ(reader_.SkipElement(), kEndElement);  // of F: on anything but an element, one step
  EXPECT_EQ(reader_.NextNode(), kEndElement);
  Open(L"<A><B><C/></B><!-- c --><D>x</D></A>");
  EXPECT_EQ(reader_.FinishElement(), kEndElement);
}

TEST_F(ManagerReader, EndsWhereTheInputEnds) {
  TOLVA_REQUIRE(ReaderEndsTruncatedInput);
  const std::wstring document = L"<A a='1'><B><C>x</C><D/></B><!-- c --><E>y</E></A>";
  const auto read_on = [this] {
    Steps steps;
    while (steps.Take() && reader_.NextNode() != kNone) {
    }
  };
  for (std::size_t size = 1; size < document.size(); ++size) {
    for (const int first : {0, 1, 2}) {
      Open(document.substr(0, size).c_str());
      if (first == 1) reader_.SkipElement();
      if (first == 2) reader_.GetText();
      reader_.FinishElement();
      read_on();
      EXPECT_EQ(tolvaGetLastError() & 0xFFFFF000U, 0xC00CE000U) << size;
    }
  }
  // Skipping goes by what the last step found, not by the element before it.
  Open(L"<A><B><C><D>");
  EXPECT_EQ(reader_.NextNode(), kElement);
  EXPECT_EQ(reader_.SkipElement(), kNone);
  EXPECT_EQ(reader_.FinishElement(), kNone);
  EXPECT_EQ(reader_.node_type(), kNone);
}

TEST_F(ManagerReader, OpensOneDocumentAfterAnother) {
  const TempFile first("<A><B/></A>");
  ASSERT_EQ(reader_.OpenFile(first.Wide().c_str()), 0);
  EXPECT_EQ(reader_.NextNode(), kElement);
  Open(L"<D/>");
  EXPECT_EQ(LocalName(), L"D");
  // A failed open of a string leaves the document, one of a file does not.
  EXPECT_EQ(reader_.OpenFromString(L""), -102);
  EXPECT_EQ(LocalName(), L"D");
  EXPECT_EQ(reader_.OpenFile((first.Wide() + L"-missing").c_str()), -101);
  EXPECT_EQ(reader_.node_type(), kNone);
  ASSERT_EQ(reader_.OpenFile(first.Wide().c_str()), 0);
  EXPECT_EQ(reader_.Close(), 0);
  EXPECT_EQ(reader_.Close(), 0);
  EXPECT_EQ(reader_.node_type(), kNone);
  tolvaSetLastError(kUntouched);
  EXPECT_EQ(reader_.NextNode(), kNone);
  EXPECT_EQ(reader_.SkipElement(), kNone);
  EXPECT_EQ(tolvaGetLastError(), kUntouched);
  EXPECT_EQ(reader_.FinishElement(), kNone);
  EXPECT_EQ(Text(), kNoValue);
  EXPECT_EQ(Attribute(kB), kNoValue);
  EXPECT_TRUE(std::filesystem::remove(first.path()));  // nobody holds it any more
}

/// Reads a document to its end, from wherever the reader stands, again and again, and of a file as
/// of a string. `error` is what that leaves as last error; 0: it ends well.
void ExpectReadsToTheEnd(const std::string& text, DWORD error) {
  SCOPED_TRACE(text);
  const TempFile file(text);
  CXMLLiteManagerReader reader;
  for (const bool is_string : {false, true}) {
    for (const int moves : {0, 1, 3}) {
      ASSERT_EQ(is_string ? reader.OpenFromString(std::wstring(text.begin(), text.end()).c_str())
                          : reader.OpenFile(file.Wide().c_str()),
                0);
      for (int i = 0; i < moves; ++i) reader.NextNode();
      tolvaSetLastError(kUntouched);
      for (int again = 0; again < 2; ++again) {
        ASSERT_EQ(tolvaReadToEnd(&reader), error == 0 ? 0 : -101);
        ASSERT_EQ(tolvaGetLastError(), error == 0 ? kUntouched : error);
      }
      EXPECT_EQ(reader.node_type(), kNone);
    }
  }
}

TEST_F(ManagerReader, ReadsToTheEnd) {
  ExpectReadsToTheEnd("<A/>", 0);
  ExpectReadsToTheEnd("<A><B>x</B></A>\n<!-- c --><?p i?>\n", 0);
  ExpectReadsToTheEnd("<A><B></A>", 0xC00CEE3B);
#if defined(TOLVA_OWN_XML_LAYER)
  ExpectReadsToTheEnd("<A/><B/>", 0xC00CEE3A);
  ExpectReadsToTheEnd("<A/>x", 0xC00CEE2D);
  ExpectReadsToTheEnd("<A/>\x01", 0xC00CEE2D);
  // A string that breaks off does so at the zero behind it.
  for (const std::string text : {"<A/><!-- c", "<A><B", "<A>", "<!-- no root -->", " "}) {
    const TempFile file(text);
    ASSERT_EQ(reader_.OpenFile(file.Wide().c_str()), 0);
    EXPECT_EQ(tolvaReadToEnd(&reader_), -101) << text;
    Open(std::wstring(text.begin(), text.end()).c_str());
    EXPECT_EQ(tolvaReadToEnd(&reader_), -101) << text;
    EXPECT_EQ(tolvaGetLastError() >> 12, 0xC00CEU) << text;
  }
  // The cursor meets that zero; one that a file ends with is no character.
  Open(L"<A/>");
  tolvaSetLastError(kUntouched);
  EXPECT_EQ(reader_.NextNode(), kNone);
  EXPECT_EQ(tolvaGetLastError(), 0xC00CEE2DU);
  const TempFile file("<A/>");
  ASSERT_EQ(reader_.OpenFile(file.Wide().c_str()), 0);
  EXPECT_EQ(reader_.NextNode(), kNone);
  EXPECT_EQ(tolvaGetLastError(), 1U);
  file.Write({"<A/>\0", 5});
  ASSERT_EQ(reader_.OpenFile(file.Wide().c_str()), 0);
  EXPECT_EQ(tolvaReadToEnd(&reader_), -101);
#endif
  CXMLLiteManagerReader holds_nothing;
  tolvaSetLastError(kUntouched);
  EXPECT_EQ(tolvaReadToEnd(&holds_nothing), -101);
  EXPECT_EQ(tolvaReadToEnd(nullptr), -102);
  EXPECT_EQ(tolvaReadToEnd(MakeWriter().get()), -101);
  EXPECT_EQ(tolvaGetLastError(), kUntouched);
}

#if !defined(_WIN32)
TEST_F(ManagerReader, IsClosedWhenMemoryRunsOutInAnOpen) {
  const TempFile file("<A/>");
  const std::wstring path = file.Wide();
  for (const bool is_string : {false, true}) {
    bool failed = true;
    for (std::size_t n = 0; failed; ++n) {
      ASSERT_LT(n, 1000U);
      reader_.Close();
      ConfigResult result = 0;
      const auto open = [&] {
        result = is_string ? reader_.OpenFromString(L"<A/>") : reader_.OpenFile(path.c_str());
      };
      failed = RunsOutOfMemory(n, false, open) || result != 0;
      EXPECT_EQ(reader_.node_type(), failed ? kNone : kElement);
      tolvaSetLastError(kUntouched);
      EXPECT_EQ(tolvaReadToEnd(&reader_), failed ? -101 : 0);
      EXPECT_EQ(tolvaGetLastError(), kUntouched);  // that of a reader that holds nothing
    }
  }
}
#endif

#if !defined(_WIN32)
TEST(Manager, LetsFilesGo) {
  const auto open_files = [] {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return std::distance(begin(all), end(all));
  };
  const TempFile file("<a/>");
  const auto before = open_files();
  const ManagerPtr reader = MakeReader();
  const ManagerPtr writer = MakeWriter();
  ASSERT_EQ(reader->OpenFile(file.Wide().c_str()), 0);
  EXPECT_EQ(reader->Close(), 0);
  ASSERT_EQ(writer->OpenFile(file.Wide().c_str()), 0);
  static_cast<xml::CXMLLiteManagerWriter*>(writer.get())->StartElement(L"b");
  EXPECT_EQ(writer->Close(), 0);
  EXPECT_EQ(open_files(), before);
}
#endif

TEST(Manager, HasALastErrorForEachThread) {
  // No system call of this thread's may come between: it could change the value itself.
  std::atomic<int> turn = 0;
  std::thread other([&] {
    while (turn != 1) {
    }
    tolvaSetLastError(2);
    turn = 2;
  });
  tolvaSetLastError(1);
  turn = 1;
  while (turn != 2) {
  }
  const DWORD error = tolvaGetLastError();
  other.join();
  EXPECT_EQ(error, 1U);
}

TEST(Manager, IsReaderOrWriterByTheArgument) {
  const ManagerPtr reader = MakeReader();
  EXPECT_EQ(reader->OpenFromString(L"<a/>"), 0);
  const ManagerPtr writer(tolvaCreateXMLManager(7));
  EXPECT_EQ(writer->OpenFromString(L"<a/>"), -101);
  EXPECT_EQ(writer->Close(), 0);
  tolvaDestroyXMLManager(nullptr);
}

}  // namespace
}  // namespace tolva::test
