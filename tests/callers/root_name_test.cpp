// The root element's name, found without the library; and that the library finds the same.
#include <gtest/gtest.h>
#include <tolva/support/documents.h>
#include <tolva/support/handles.h>
#include <tolva/support/text.h>

#include <string>
#include <string_view>
#include <vector>

#include "support/files.h"

namespace tolva::support {
namespace {

using namespace std::string_literals;
using test::TempFile;

/// ASCII and Latin-1 text in UTF-16.
std::string Utf16(std::string_view text, bool big) {
  std::string bytes;
  for (const char c : text) bytes += big ? std::string{'\0', c} : std::string{c, '\0'};
  return bytes;
}

std::string NameIn(std::string_view bytes) { return RootName(TempFile(bytes).path()); }

TEST(RootName, IsThatOfEveryDocumentInEveryEncoding) {
  for (const DocumentKind* const kind : kDocuments) {
    const auto example =
        std::filesystem::path(TOLVA_DOCUMENTS) / (std::string(kind->name) + ".xml");
    EXPECT_EQ(RootName(example), kind->root_element);
    EXPECT_EQ(FindDocument(kind->root_element), kind);
    const std::string text = TempFile::ReadFile(example);
    EXPECT_EQ(NameIn("\xEF\xBB\xBF" + text), kind->root_element);
    const std::string element = "<" + std::string(kind->root_element) + ">";
    for (const bool big : {false, true}) {
      const std::string declared = big ? "UTF-16BE" : "utf-16";
      const std::string mark = big ? "\xFE\xFF" : "\xFF\xFE";
      const std::string utf16 =
          Utf16("<?xml version='1.0' encoding='" + declared + "'?>" + element, big);
      EXPECT_EQ(NameIn(utf16), kind->root_element);
      EXPECT_EQ(NameIn(mark + utf16), kind->root_element);
    }
  }
  EXPECT_EQ(FindDocument(""), nullptr);
  EXPECT_EQ(FindDocument("policy"), nullptr);
}

TEST(RootName, IsFoundAfterAnyProlog) {
  const std::string declared = "<?xml version=\"1.0\" encoding=\"";
  EXPECT_EQ(NameIn(declared + "ISO-8859-1\"?><!-- \xFC --><B\xFC/>"), "B\xC3\xBC");
  EXPECT_EQ(NameIn(declared + "us-ascii\" standalone='no' ?>\r\n<p:a.b x='"), "a.b");
  EXPECT_EQ(
      NameIn("<!--" + std::string(100'000, 'x') + "--><?p " + std::string(100'000, '?') + "?><a>"),
      "a");
  EXPECT_EQ(NameIn("<" + std::string(1000, 'n') + ">"), std::string(1000, 'n'));
  EXPECT_EQ(RootNameFromString(L"\xFEFF<?xml version='1.0' encoding='x'?><!--\xD800--><\u65E5/>"),
            "\xE6\x97\xA5");
  for (const char* const bytes :
       {"<", "<a", "<!DOCTYPE a><a/>", "<!-- -- --><a/>", "<?xml?><a/>",
        " <?xml version='1.0'?><a/>", "<?XML version='1.0'?><a/>", "<a:/>", "<:a/>", "<a:b:c/>",
        "<1/>", "<!-- \xFC --><a/>", "<!-- \x01 --><a/>", "\xFF\xFE<a/>", "</a>", "<a/"}) {
    EXPECT_EQ(NameIn(bytes), "") << bytes;
  }
  for (const char* const end :
       {"us-ascii\"?><!-- \xFC --><a/>", "windows-1252\"?><a/>", "UTF-16\"?><a/>"}) {
    EXPECT_EQ(NameIn(declared + end), "") << end;
  }
  EXPECT_EQ(NameIn("\xEF\xBB\xBF" + declared + "ISO-8859-1\"?><a/>"), "");
  EXPECT_EQ(NameIn("<" + std::string(1001, 'n') + ">"), "");
  EXPECT_EQ(RootName("no-such-file.xml"), "");
  EXPECT_EQ(RootName(std::filesystem::temp_directory_path()), "");
  EXPECT_EQ(RootNameFromString(L"<!--\0--><a/>"s), "");
}

#if defined(TOLVA_OWN_XML_LAYER)
/// A prolog in which every byte in turn is another one, or the last: the name is found where the
/// library finds an element.
TEST(RootName, IsThereWhereTheLibraryFindsAnElement) {
  const std::string prolog =
      "<?xml version='1.0' encoding='UTF-8' standalone='yes'?>\n<!-- \xC3\xBC--><?p d?> <a";
  const std::string others = "<>!?-/'=  x1:.\t\xC3\xBC"s + '\0';
  std::vector<std::string> documents;
  for (std::size_t at = 0; at != prolog.size(); ++at) {
    documents.push_back(prolog.substr(0, at));
    documents.push_back(prolog.substr(0, at) + prolog.substr(at + 1) + "/>");
    for (const char other : others) {
      documents.push_back(prolog + "/>");
      documents.back()[at] = other;
    }
  }
  int found = 0;
  for (const std::string& document : documents) {
    const TempFile file(document);
    const Manager reader = MakeReader();
    tolvaSetLastError(0);
    const bool is_there = reader->OpenFile(file.Wide().c_str()) == 0 && tolvaGetLastError() == 0;
    const std::string name = RootName(file.path());
    // Another name is that of a mutilated declaration or instruction, malformed after its name.
    ASSERT_TRUE(is_there ? !name.empty() : name.substr(0, 1) != "a") << document;
    found += is_there ? 1 : 0;
  }
  EXPECT_GT(found, 100);
  EXPECT_LT(found, static_cast<int>(documents.size()) / 2);
}
#endif

}  // namespace
}  // namespace tolva::support
