// The reading manager: opening, the cursor, and what is left in the last-error cell.
#include "xml/reader.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <iterator>
#include <new>
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

constexpr DWORD kUntouched = 4711;

constexpr int kNone = 0;
constexpr int kElement = 1;
constexpr int kCData = 4;
constexpr int kComment = 8;
constexpr int kEndElement = 15;

class ManagerReader : public testing::Test {
 protected:
  ManagerReader() { tolvaSetLastError(kUntouched); }

  void Open(const wchar_t* document) { ASSERT_EQ(reader_.OpenFromString(document), 0); }

  std::wstring LocalName() { return Wide(reader_.GetLocalName()); }
  std::wstring Text() { return Wide(reader_.GetText()); }

  /// The attribute of that name, which has to be one of a few, and its last error.
  std::wstring Attribute(std::wstring_view name) {
    struct Row {
      Name name;
    };
    static constexpr Row kRows[] = {{L"a"},      {L"b"},     {L"v"},     {L"fourth"},
                                    {L"second"}, {L"third"}, {L"first"}, {L"unused"}};
    static const Names kNames(std::span<const Row>(kRows), &Row::name);
    std::size_t index = 0;
    while (kNames[index] != name) ++index;
    reader_.FindAttributes(kNames);
    std::wstring value = Wide(reader_.GetAttribute(index));
    reader_.StoreAttributeError();
    return value;
  }

  CXMLLiteManagerReader reader_;
};

TEST_F(ManagerReader, RefusesWhatCannotBeOpened) {
  EXPECT_EQ(reader_.OpenFile(nullptr), -102);
  EXPECT_EQ(reader_.OpenFromString(nullptr), -102);
  EXPECT_EQ(reader_.OpenFromString(L""), -102);
  EXPECT_EQ(tolvaGetLastError(), kUntouched);
  const TempFile empty("");
  EXPECT_EQ(reader_.OpenFile(empty.Wide().c_str()), -101);

  const TempFile folder;
  std::filesystem::create_directory(folder.path());
  EXPECT_EQ(reader_.OpenFile(folder.Wide().c_str()), -101);
  EXPECT_EQ(tolvaGetLastError(), 5U);
  EXPECT_EQ(reader_.OpenFile((folder.path() / "missing.xml").wstring().c_str()), -101);
  EXPECT_EQ(tolvaGetLastError(), 2U);
  EXPECT_EQ(reader_.OpenFile((folder.path() / "no" / "folder.xml").wstring().c_str()), -101);
  EXPECT_EQ(tolvaGetLastError(), 3U);
  EXPECT_EQ(reader_.OpenFile(L""), -101);
  EXPECT_EQ(tolvaGetLastError(), 3U);
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
#else
TEST_F(ManagerReader, DoesNotWaitForPipesAndDevices) {
  const TempFile pipe;
  ASSERT_EQ(std::system(("mkfifo " + pipe.path().string()).c_str()), 0);
  EXPECT_EQ(reader_.OpenFile(pipe.Wide().c_str()), -101);
  EXPECT_EQ(reader_.OpenFile(L"/dev/zero"), -101);
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
  Open(L"<A b='\u00E9\xD83D\xDE00'/>");
  EXPECT_EQ(Attribute(L"b"), L"\u00E9\U0001F600");
  Open(L"<A b='x\xD83Dy'/>");
  EXPECT_EQ(Attribute(L"b"), L"x\uFFFDy");
  Open(L"<A b='\xDC00\xDC00'/>");
  EXPECT_EQ(Attribute(L"b"), L"\uFFFD\uFFFD");
  Open(L"<A b='\U0010FFFF'/>");
  EXPECT_EQ(Attribute(L"b"), L"\U0010FFFF");
}

TEST_F(ManagerReader, FindsAttributes) {
  Open(L"<A first='1' second='&lt;&#x32;' third=''><B/></A>");
  EXPECT_EQ(Attribute(L"third"), L"");
  EXPECT_EQ(tolvaGetLastError(), 0U);
  EXPECT_EQ(Attribute(L"second"), L"<2");
  EXPECT_EQ(Attribute(L"fourth"), kNoValue);
  EXPECT_EQ(tolvaGetLastError(), static_cast<DWORD>(-104));
  EXPECT_EQ(Attribute(L"first"), L"1");
  EXPECT_EQ(reader_.NextNode(), kElement);
  EXPECT_EQ(Attribute(L"first"), kNoValue);
  EXPECT_EQ(reader_.NextNode(), kEndElement);
  EXPECT_EQ(Attribute(L"first"), kNoValue);
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

TEST_F(ManagerReader, TakesTheTextOfAnElement) {
  struct Case {
    const wchar_t* document;
    std::wstring text;
    int end;  ///< where FinishElement then stops
  };
  for (const Case& one : {
           Case{L"<A>text</A>", L"text", kEndElement},
           Case{L"<A>\n text &amp;<B><C/></B>more</A>", L"\n text &", kEndElement},
           Case{L"<A><![CDATA[<d>]]></A>", L"<d>", kEndElement},
           Case{L"<A><!-- c -->text</A>", L" c ", kEndElement},
           Case{L"<A><?p i ?>text</A>", L"i ", kEndElement},
           Case{L"<A> \n</A>", kNoValue, kEndElement},
           Case{L"<A><B/>text</A>", kNoValue, kEndElement},
           Case{L"<A></A>", kNoValue, kEndElement},
           Case{L"<A/>", kNoValue, kElement},
       }) {
    Open(one.document);
    EXPECT_EQ(Text(), one.text) << one.document;
    EXPECT_EQ(reader_.FinishElement(), one.end) << one.document;
  }
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
  EXPECT_EQ(LocalName(), L"G");
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
  const std::function<void()> moves[] = {
      [this] { reader_.SkipElement(); },
      [this] { reader_.FinishElement(); },
      [this] { EXPECT_NE(LocalName(), kNoValue); },
      [this] {
        Steps steps;
        while (steps.Take() && reader_.NextNode() != kNone) {
        }
      },
      [this] { reader_.GetText(); },
  };
  for (std::size_t size = 1; size < document.size(); ++size) {
    for (const auto& first : moves) {
      Open(document.substr(0, size).c_str());
      first();
      reader_.FinishElement();
      Steps steps;
      while (steps.Take() && reader_.NextNode() != kNone) {
      }
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
  const TempFile second("<C/>");
  ASSERT_EQ(reader_.OpenFile(first.Wide().c_str()), 0);
  EXPECT_EQ(reader_.NextNode(), kElement);
  ASSERT_EQ(reader_.OpenFile(second.Wide().c_str()), 0);
  EXPECT_EQ(LocalName(), L"C");
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
  EXPECT_EQ(Attribute(L"a"), kNoValue);
  EXPECT_TRUE(std::filesystem::remove(first.path()));  // nobody holds it any more
}

/// A document, and what reading to its end leaves as last error.
struct WholeDocument {
  const char* text;
  DWORD error;  ///< 0: it ends well
};

/// From wherever the reader stands, again and again, and of a file as of a string.
void ExpectReadsToTheEnd(const WholeDocument& document) {
  SCOPED_TRACE(document.text);
  const std::string text = document.text;
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
        ASSERT_EQ(tolvaReadToEnd(&reader), document.error == 0 ? 0 : -101);
        ASSERT_EQ(tolvaGetLastError(), document.error == 0 ? kUntouched : document.error);
      }
      EXPECT_EQ(reader.node_type(), kNone);
    }
  }
}

TEST_F(ManagerReader, ReadsToTheEnd) {
  for (const WholeDocument& one : {
           WholeDocument{"<A/>", 0},
           WholeDocument{"<A><B>x</B></A>\n<!-- c --><?p i?>\n", 0},
           WholeDocument{"<A><B></A>", 0xC00CEE3B},
       }) {
    ExpectReadsToTheEnd(one);
  }
  tolvaSetLastError(kUntouched);
  EXPECT_EQ(tolvaReadToEnd(&reader_), -101);  // it holds nothing
  EXPECT_EQ(tolvaReadToEnd(nullptr), -102);
  EXPECT_EQ(tolvaReadToEnd(MakeWriter().get()), -101);
  EXPECT_EQ(tolvaGetLastError(), kUntouched);
}

#if defined(TOLVA_OWN_XML_LAYER)
TEST_F(ManagerReader, FindsWhatIsWrongBehindTheRoot) {
  for (const WholeDocument& one : {
           WholeDocument{"<A/><B/>", 0xC00CEE3A},
           WholeDocument{"<A/>x", 0xC00CEE2D},
           WholeDocument{"<A/>\x01", 0xC00CEE2D},
       }) {
    ExpectReadsToTheEnd(one);
  }
  // A string that breaks off does so at the zero behind it.
  for (const char* const cut_off : {"<A/><!-- c", "<A><B", "<A>", "<!-- no root -->", " "}) {
    const TempFile file(cut_off);
    ASSERT_EQ(reader_.OpenFile(file.Wide().c_str()), 0);
    EXPECT_EQ(tolvaReadToEnd(&reader_), -101) << cut_off;
    const std::string text = cut_off;
    Open(std::wstring(text.begin(), text.end()).c_str());
    EXPECT_EQ(tolvaReadToEnd(&reader_), -101) << cut_off;
    EXPECT_EQ(tolvaGetLastError() >> 12, 0xC00CEU) << cut_off;
  }
}
#endif

#if !defined(_WIN32)
TEST_F(ManagerReader, IsClosedWhenMemoryRunsOutInAnOpen) {
  const TempFile file("<A/>");
  const std::wstring path = file.Wide();
  const std::function<ConfigResult()> opens[] = {
      [&] { return reader_.OpenFile(path.c_str()); },
      [&] { return reader_.OpenFromString(L"<A/>"); },
  };
  for (const auto& open : opens) {
    bool failed = true;
    for (std::size_t n = 0; failed; ++n) {
      ASSERT_LT(n, 1000U);
      reader_.Close();
      failed = false;
      try {
        const FailingAllocations failing(n);
        failed = open() != 0;
      } catch (const std::bad_alloc&) {
        failed = true;
      }
      EXPECT_EQ(reader_.node_type(), failed ? kNone : kElement);
      tolvaSetLastError(kUntouched);
      EXPECT_EQ(tolvaReadToEnd(&reader_), failed ? -101 : 0);
      EXPECT_EQ(tolvaGetLastError(), kUntouched);  // that of a reader that holds nothing
    }
  }
}
#endif

#if defined(TOLVA_OWN_XML_LAYER)
TEST_F(ManagerReader, IgnoresAnEncodingThatAStringDeclares) {
  Open(L"<?xml version='1.0' encoding='ISO-8859-1'?><A b='\u00E9'/>");
  EXPECT_EQ(Attribute(L"b"), L"\u00E9");
}

TEST_F(ManagerReader, SeesTheZeroBehindAString) {
  Open(L"<A/>");
  EXPECT_EQ(reader_.NextNode(), kNone);
  EXPECT_EQ(tolvaGetLastError(), 0xC00CEE2DU);
  const TempFile file("<A/>");
  ASSERT_EQ(reader_.OpenFile(file.Wide().c_str()), 0);
  EXPECT_EQ(reader_.NextNode(), kNone);
  EXPECT_EQ(tolvaGetLastError(), 1U);
  // A zero that a file ends with is no character.
  file.Write({"<A/>\0", 5});
  ASSERT_EQ(reader_.OpenFile(file.Wide().c_str()), 0);
  EXPECT_EQ(tolvaReadToEnd(&reader_), -101);
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
