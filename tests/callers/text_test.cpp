// Texts, paths and error codes in words.
#include <gtest/gtest.h>
#include <tolva/support/errors.h>
#include <tolva/support/text.h>

#include <clocale>
#include <regex>
#include <set>
#include <string>

#include "support/files.h"

namespace tolva::support {
namespace {

using test::TempFile;

TEST(Text, IsConvertedBothWays) {
  const std::string all = "a\xC3\xBC\xE6\x97\xA5\xF0\x9F\x98\x80\xEF\xBF\xBF\xF4\x8F\xBF\xBF";
  EXPECT_EQ(ToUtf8(ToWide(all)), all);
  EXPECT_EQ(ToWide(all).size(), sizeof(wchar_t) == 2 ? 8U : 6U);
  EXPECT_EQ(ToUtf8(L"\xD83D\xDE00"), "\xF0\x9F\x98\x80");  // a pair, wherever
  EXPECT_EQ(ToUtf8(std::wstring(L"a\0b", 3)), std::string("a\0b", 3));
  for (const wchar_t* const lone : {L"\xD83Dx", L"\xDE00x", L"\xD83D\xD83Dx"}) {
    EXPECT_EQ(ToUtf8(lone).substr(0, 3), "\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(lone).back(), 'x');
  }
  // Overlong, surrogates, beyond the last code point, cut off, no lead.
  const char* const malformed[] = {
      "\xC0\x80", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF0\x8F\xBF", "\xE6\x97",
      "\x80",     "\xFF",         "\xC3"};
  for (const std::string bytes : malformed) {
    const std::wstring text = ToWide("<" + bytes + ">");
    EXPECT_EQ(text.front(), L'<');
    EXPECT_EQ(text[1], L'\xFFFD');
    EXPECT_EQ(text.back(), L'>');
  }
  EXPECT_EQ(ToWide("\xE6\x97>"), L"\xFFFD>");  // one for what might have become one character
}

TEST(Paths, DoNotDependOnTheLocale) {
  ASSERT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
  const std::string name = "Z\xC3\xBCrich-\xE6\x97\xA5\xE6\x9C\xAC.xml";
  const std::filesystem::path path = PathFromUtf8(name);
  EXPECT_EQ(PathToWide(path), L"Z\u00FCrich-\u65E5\u672C.xml");
  EXPECT_EQ(PathFromWide(PathToWide(path)), path);
  EXPECT_EQ(PathToUtf8(path), name);
  EXPECT_TRUE(PathFromUtf8("Z\xFCrich").empty());
  EXPECT_TRUE(PathToWide(PathFromUtf8(std::string("a\0b", 3))).empty());
#if !defined(_WIN32)
  EXPECT_TRUE(PathToWide("Z\xFCrich").empty());
  EXPECT_EQ(PathToUtf8("Z\xFCrich"), "Z\xEF\xBF\xBDrich");
  EXPECT_TRUE(PathFromWide(L"Z\xD83D").empty());
#endif
}

/// Every code of the own XML layer has words that no other has.
TEST(Errors, HaveWords) {
  const std::string header = TempFile::ReadFile(TOLVA_SOURCES "/platform/xml/hresults.h");
  const std::regex constant("HRESULT>\\((0xC00C[0-9A-F]{4})\\)", std::regex::icase);
  std::set<std::string> sentences;
  std::size_t count = 0;
  for (std::sregex_iterator at(header.begin(), header.end(), constant), end; at != end; ++at) {
    const std::string sentence =
        DescribeError(static_cast<DWORD>(std::stoul((*at)[1], nullptr, 16)));
    EXPECT_EQ(sentence.find("0x"), std::string::npos) << sentence;
    sentences.insert(sentence);
    ++count;
  }
  EXPECT_GT(count, 40U);
  EXPECT_EQ(sentences.size(), count);

  EXPECT_EQ(DescribeError(0xC00CEE01), "The document breaks off.");
  EXPECT_EQ(DescribeError(2), "The file does not exist.");
  EXPECT_EQ(DescribeError(0x80070002), DescribeError(2));
  EXPECT_NE(DescribeError(1), DescribeError(0x80070001));
  EXPECT_EQ(DescribeError(static_cast<DWORD>(-104)), "The attribute is absent.");
  EXPECT_EQ(DescribeError(0xC00CFFFF), "The document is refused with the code 0xC00CFFFF.");
  EXPECT_EQ(DescribeError(0x80070B0B), "The system fails with the code 0x80070B0B.");
}

}  // namespace
}  // namespace tolva::support
