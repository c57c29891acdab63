// The engine: reading, writing, clearing and copying by a table, and every report it makes.
#include "node/engine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "node/numbers.h"
#include "node/shelf.h"
#include "support/allocations.h"
#include "support/nodes.h"
#include "support/writer_faults.h"

namespace tolva::test {
namespace {

using namespace shelf;

constexpr std::string_view kDefaultShelf =
    "<Shelf Number=\"0\" Name=\"\" Wood=\"OAK\" Level=\"0\" Watched=\"0\"><Lamp Colour=\"OAK\"/>"
    "<Title></Title><Stamp></Stamp></Shelf>";

// The attributes and children that a shelf cannot do without.
const std::wstring kNeeded = L"Number='1' Name='n' Wood='ASH'";
const std::wstring kInside = L"<Lamp Colour='OAK'/><Title>t</Title><Stamp/>";

std::wstring Shelf(const std::wstring& attributes, const std::wstring& children) {
  return L"<Shelf " + attributes + L">" + children + L"</Shelf>";
}

struct Case {
  std::wstring document;
  ConfigResult result;
  Texts reports;
  std::string written;
};

/// Reads each document into one node, so that nothing may survive from the one before.
template <class C>
void ExpectAll(const std::vector<Case>& cases) {
  C node;
  Diagnostics diagnostics;
  for (const Case& one : cases) {
    SCOPED_TRACE(testing::PrintToString(one.document));
    EXPECT_EQ(ReadText(node, one.document), one.result);
    EXPECT_EQ(diagnostics.Take(), one.reports);
    EXPECT_EQ(WriteText(node), one.written);
  }
}

TEST(Engine, ReadsAndWritesAttributes) {
  const std::string defaults(kDefaultShelf);
  const auto shelf = [](const std::string& attributes) {
    return "<Shelf " + attributes +
           "><Lamp Colour=\"OAK\"/><Title>t</Title><Stamp></Stamp></Shelf>";
  };
  const auto fails = [&](const wchar_t* attributes, const wchar_t* report) {
    return Case{Shelf(attributes, kInside), -101, {report}, defaults};
  };
  ExpectAll<CShelf>({
      {Shelf(kNeeded, kInside),
       0,
       {},
       shelf("Number=\"1\" Name=\"n\" Wood=\"ASH\" Level=\"0\" Locked=\"1\" Watched=\"0\"")},
      {Shelf(
           L"Watched='5' Locked='' Level='007' Value='18446744073709551615' Finish='WAX' Place='' "
           L"Width='4294967295' Wood='OAK' Name='' Number='' Unknown='x'",
           kInside),
       0,
       {},
       shelf("Number=\"0\" Name=\"\" Wood=\"OAK\" Width=\"4294967295\" Place=\"\" Finish=\"WAX\" "
             "Value=\"18446744073709551615\" Level=\"7\" Locked=\"0\" Watched=\"5\"")},
      fails(L"Name='n' Wood='ASH'",
            L"XMLManager: read required dword/bool Attribute failed. element:Shelf, attr:Number"),
      fails(L"Number='1' Wood='ASH'",
            L"XMLManager: read required ENUM Attribute failed. element:Shelf, attr:Name"),
      fails(L"Number='1' Name='n'",
            L"XMLLITEManager: read required ENUM Attribute failed. element:Shelf, attr:Wood"),
      fails(L"Number='1' Name='n' Wood='oak'",
            L"XMLLiteManager: read required ENUM Attribute failed. element:Shelf, attr:Wood"),
      fails((kNeeded + L" Width='1 '").c_str(),
            L"XMLManager: read required dword/bool Attribute failed. element:Shelf, attr:Width"),
      fails((kNeeded + L" Finish=''").c_str(),
            L"XMLLiteManager: read optional ENUM Attribute failed due to unknow enum type. "
            L"element:Shelf, attr:Finish"),
      fails((kNeeded + L" Value='-1'").c_str(),
            L"XMLManager: read required dword/bool Attribute failed. element:Shelf, attr:Value"),
      fails((kNeeded + L" Level='x'").c_str(),
            L"XMLManager: read required dword/bool Attribute failed. element:Shelf, attr:Level"),
      fails((kNeeded + L" Watched='+1'").c_str(), L"watched is no number"),
      // The first fault in the table's order is the one reported.
      fails(L"Watched='x' Wood='?' Name='n' Number='x'",
            L"XMLManager: read required dword/bool Attribute failed. element:Shelf, attr:Number"),
  });
}

TEST(Engine, ReadsAndWritesChildren) {
  const std::wstring book = L"<Book><Title>b</Title><Pages>12</Pages></Book>";
  const auto shelf = [](const std::string& children) {
    return "<Shelf Number=\"1\" Name=\"n\" Wood=\"ASH\" Level=\"0\" Locked=\"1\" Watched=\"0\">" +
           children + "</Shelf>";
  };
  const std::string defaults(kDefaultShelf);
  ExpectAll<CShelf>({
      // Any order, unknown elements, comments and CDATA between them; the last of two single ones.
      {Shelf(kNeeded,
             L"<Stamp>s</Stamp>text<Book><Pages>1</Pages><Remark/><Title>a</Title></Book>"
             L"<!-- c --><Labels/><New><Book/><Lamp/>x</New><Title>1</Title>"
             L"<Lamp Colour='ASH' Watts='60'/><![CDATA[<Lamp/>]]>" +
                 book + L"<Title>2</Title><Lamp Colour='ASH'/>"),
       0,
       {},
       shelf("<Lamp Colour=\"ASH\"/><Title>2</Title><Book><Pages>1</Pages><Title>a</Title></Book>"
             "<Book><Pages>12</Pages><Title>b</Title></Book><Labels/><Stamp>s</Stamp>")},
      {Shelf(kNeeded, kInside + L"<Labels><Title>l1</Title><x/><Title>l2</Title></Labels>"),
       0,
       {},
       shelf("<Lamp Colour=\"OAK\"/><Title>t</Title><Labels><Title>l1</Title><Title>l2</Title>"
             "</Labels><Stamp></Stamp>")},
      {Shelf(kNeeded, L""), -101, {L"no lamp"}, defaults},
      {L"<Shelf " + kNeeded + L"/>", -101, {L"no lamp"}, defaults},
      {Shelf(kNeeded, L"<Lamp Colour='ASH'/><Stamp/>"),
       -101,
       {L"XMLManager: sub-element Title is missing"},
       // What the lamp keeps when it is cleared, it keeps in a shelf that is.
       "<Shelf Number=\"0\" Name=\"\" Wood=\"OAK\" Level=\"0\" Watched=\"0\"><Lamp Colour=\"ASH\"/>"
       "<Title></Title><Stamp></Stamp></Shelf>"},
      {Shelf(kNeeded, L"<Lamp Colour='OAK' Watts='x'/>"),
       -101,
       {L"XMLManager: read required dword/bool Attribute failed. element:LAMP, attr:Watts",
        L"XMLManager: read require element failed. element:Lamp"},
       defaults},
      {Shelf(kNeeded, kInside + book + L"<Book><Title>x</Title></Book>"),
       -101,
       {L"XMLManager: sub-element Pages is missing",
        L"XMLManager: read  multiple element failed. element:Book"},
       defaults},
      {Shelf(kNeeded, kInside + L"<Book/>"),
       -101,
       {L"XMLManager: sub-element Title is missing",
        L"XMLManager: read  multiple element failed. element:Book"},
       defaults},
      {Shelf(kNeeded, kInside + L"<Labels><Title/></Labels>"),
       -101,
       {L"XMLManager: read required string content failed. element:Content", L"a label failed",
        L"no labels"},
       defaults},
  });
}

TEST(Engine, ReadsAndWritesText) {
  const std::string empty_book = "<Book><Pages>0</Pages><Title></Title></Book>";
  ExpectAll<CTitle>({
      {L"<Title> a &#98;c. </Title>", 0, {}, "<Title> a bc. </Title>"},
      {L"<Title>first<x>second</x>third</Title>", 0, {}, "<Title>first</Title>"},
      {L"<Title><!--c-->x</Title>", 0, {}, "<Title>c</Title>"},
      {L"<Title></Title>",
       -102,
       {L"XMLManager: read required string content failed. element:Content"},
       "<Title></Title>"},
      {L"<Title> \n </Title>",
       -102,
       {L"XMLManager: read required string content failed. element:Content"},
       "<Title></Title>"},
  });
  ExpectAll<CPages>({
      {L"<Pages>0012</Pages>", 0, {}, "<Pages>12</Pages>"},
      {L"<Pages>99999999999</Pages>", 0, {}, "<Pages>2147483647</Pages>"},
      {L"<Pages>12x</Pages>",
       -101,
       {L"XMLManager: read required dword/bool content failed. element:Pages"},
       "<Pages>0</Pages>"},
      {L"<Pages/>",
       -102,
       {L"XMLManager: read required dword/bool content failed. element:Content"},
       "<Pages>0</Pages>"},
  });
  ExpectAll<CBook>({
      {L"<Book><Pages>1</Pages><Title>t</Title><Remark>r</Remark></Book>",
       0,
       {},
       "<Book><Pages>1</Pages><Title>t</Title><Remark>r</Remark></Book>"},
      // Present in its parent, but without a text: nothing is written of it.
      {L"<Book><Pages>1</Pages><Title>t</Title><Remark/></Book>",
       0,
       {},
       "<Book><Pages>1</Pages><Title>t</Title></Book>"},
      {L"<Book><Pages>1</Pages><Title/></Book>",
       -101,
       {L"XMLManager: read required string content failed. element:Content",
        L"XMLManager: read require element failed. element:Title"},
       empty_book},
  });
}

TEST(Engine, LeavesTheReaderBehindTheElement) {
  Diagnostics diagnostics;
  CLabels labels;
  EXPECT_EQ(ReadText(labels,
                     L"<Labels><Title>a<b><c/></b></Title><Title>d<!-- e --></Title>"
                     L"<Title><![CDATA[f]]></Title></Labels>"),
            0);
  EXPECT_EQ(labels.titles.Count(), 3U);
  CTitle title;
  EXPECT_EQ(ReadText(title, L"<title>x</title>"), -102);
  EXPECT_EQ(ReadText(title, L"<Titles>x</Titles>"), -102);
  EXPECT_EQ(diagnostics.Take(), Texts{});
}

TEST(Engine, WantsTheRightManager) {
  Diagnostics diagnostics;
  CShelf shelf;
  shelf.number = 5;
  CTitle title;
  CLabels labels;
  EXPECT_EQ(shelf.WriteToXMLMgr(nullptr, 0, 1), -101);
  EXPECT_EQ(shelf.ReadFromXMLMgr(nullptr, 0), -101);
  EXPECT_EQ(title.WriteToXMLMgr(nullptr, 0, 1), -101);
  EXPECT_EQ(title.ReadFromXMLMgr(nullptr, 0), -101);
  EXPECT_EQ(labels.WriteToXMLMgr(nullptr, 0, 1), -101);
  EXPECT_EQ(labels.ReadFromXMLMgr(nullptr, 0), -101);
  EXPECT_EQ(diagnostics.Take(),
            (Texts{L"XMLManager: WriteToXMLMgr require xmlmanager pointer is NULL.",
                   L"XMLManager: ReadFromXMLMgr require xmlmanager pointer is NULL.",
                   L"XMLManager: WriteToXMLMgr required xmlmanager pointer is NULL.",
                   L"XMLManager: ReadFromXMLMgr required xmlmanager pointer is NULL.",
                   L"no writer for labels", L"no reader for labels"}));
  const ManagerPtr reader = MakeReader();
  const ManagerPtr writer = MakeWriter();
  EXPECT_EQ(shelf.WriteToXMLMgr(reader.get(), 0, 1), -101);
  EXPECT_EQ(shelf.ReadFromXMLMgr(writer.get(), 0), -101);
  EXPECT_EQ(diagnostics.Take(), Texts{});
  EXPECT_EQ(shelf.number, 5U);
  // Closed managers: like a wrong name, and like a writer that refuses.
  EXPECT_EQ(shelf.WriteToXMLMgr(writer.get(), 0, 1), -101);
  EXPECT_EQ(diagnostics.Take(), Texts{L"no shelf"});
  EXPECT_EQ(shelf.ReadFromXMLMgr(reader.get(), 0), -102);
  EXPECT_EQ(diagnostics.Take(), Texts{});
  EXPECT_EQ(shelf.number, 0U);
}

TEST(Engine, ReportsFailedWritesLevelByLevel) {
  CShelf shelf;
  shelf.width.Set(&shelf.number);
  const CLabels no_labels;
  CBook book;
  shelf.books.Add(&book);
  const Texts none;
  const Texts lamp_text{L"XMLManager: fail to add element: LAMP", L"dark"};
  const std::vector<Texts> expected = {
      {L"no shelf"},
      {L"XMLManager: read required DWORD/BOOL Attribute failed. element:Shelf, attr:Number"},
      {L"XMLManager: write required string Attribute failed. element:Shelf, attr:Name"},
      {L"XMLLiteManager: write required ENUM Attribute failed. element:Shelf, attr:Wood"},
      none,  // Width: optional
      none,  // Level: not checked
      none,  // Watched: optional
      lamp_text,
      {L"XMLLiteManager: write required ENUM Attribute failed. element:LAMP, attr:Colour", L"dark"},
      {L"lamp not closed", L"dark"},
      none,  // the line feed
      {L"XMLManager: write required content string failed. element:Title",
       L"XMLManager: write require element failed. element:Title"},
      {L"XMLManager: fail to add element: Book",
       L"XMLManager: write none to multiple element failed. element:Book"},
      {L"XMLManager: write required content DWORD/BOOL failed. element:Pages",
       L"XMLManager: write require element failed. element:Pages",
       L"XMLManager: write none to multiple element failed. element:Book"},
      {L"XMLManager: write required content string failed. element:Title",
       L"XMLManager: write require element failed. element:Title",
       L"XMLManager: write none to multiple element failed. element:Book"},
      {L"XMLManager: fail to close element: Book",
       L"XMLManager: write none to multiple element failed. element:Book"},
      none,  // the line feed
      {L"XMLManager: write required content string failed. element:Stamp",
       L"XMLManager: write require element failed. element:Stamp"},
      {L"XMLManager: fail to close element: Shelf"},
      none,  // the line feed
      none,  // there is no further call
  };
  for (std::size_t n = 0; n < expected.size(); ++n) {
    ConfigResult result = 0;
    EXPECT_EQ(ReportsOfFault(shelf, static_cast<int>(n), &result), expected[n]) << n;
    EXPECT_EQ(result, expected[n].empty() ? 0 : -101) << n;
  }
  // A list that fails in silence is still reported by whoever holds it.
  CShelf labelled;
  labelled.labels.Set(&no_labels);
  const int labels_call = 11;
  EXPECT_EQ(ReportsOfFault(labelled, labels_call),
            Texts{L"XMLManager: write optional element failed. element:Labels"});
  // Optional text is written without a look at the result.
  CRemark remark;
  const std::wstring text = L"x";
  remark.content.Set(&text);
  EXPECT_EQ(ReportsOfFault(remark, 0), none);
}

TEST(Engine, RefusesCharactersThatXmlDoesNotAllow) {
  Diagnostics diagnostics;
  CShelf shelf;
  shelf.name = std::wstring(L"a\0b", 3);
  const TempFile file;
  const ManagerPtr writer = MakeWriter();
  ASSERT_EQ(writer->OpenFile(file.Wide().c_str()), 0);
  EXPECT_EQ(shelf.WriteToXMLMgr(writer.get(), 0, 1), -101);
  EXPECT_EQ(tolvaGetLastError(), 0xC00CEE2BU);
  EXPECT_EQ(diagnostics.Take(), Texts{L"XMLManager: write required string Attribute failed. "
                                      L"element:Shelf, attr:Name"});
}

TEST(Engine, WritesEnumValuesBeyondTheTable) {
  CShelf shelf;
  shelf.wood = 2;
  shelf.lamp.colour = 7;
  const std::string written = WriteText(shelf);
  EXPECT_NE(written.find("Wood=\"\""), std::string::npos) << written;
  EXPECT_NE(written.find("Colour=\"OTHER\""), std::string::npos) << written;
}

TEST(Engine, ReportsNullSetters) {
  Diagnostics diagnostics;
  CShelf shelf;
  CBook book;
  EXPECT_EQ(shelf.SetNumber(nullptr), -101);
  EXPECT_EQ(shelf.SetName(nullptr), -101);
  EXPECT_EQ(book.SetTitle(nullptr), -101);
  EXPECT_EQ(book.title.SetContent(nullptr), -101);
  EXPECT_EQ(diagnostics.Take(),
            (Texts{
                L"XMLManager: set Attribute failed due to parama pointer is NULL. element:Shelf, "
                L"attr:Number",
                L"XMLManager: set Attribute failed due to parama pointer is NULL. element:Shelf, "
                L"attr:Name",
                L"XMLManager: Set element failed due to param is NULL. element:Title",
                L"XMLManager: set Attribute failed due to param pointer is NULL. element:Title, "
                L"attr:Content",
            }));
}

TEST(Engine, CopiesDeeplyAndClears) {
  CShelf shelf;
  ASSERT_EQ(ReadText(shelf, Shelf(kNeeded + L" Width='2' Place='p' Value='3' Watched='4'",
                                  kInside + L"<Book><Title>b</Title><Pages>1</Pages></Book>"
                                            L"<Labels><Title>l</Title></Labels>")),
            0);
  const std::string written = WriteText(shelf);
  CShelf copy;
  EXPECT_EQ(&copy.CopyFrom(shelf), &copy);
  EXPECT_EQ(&copy.CopyFrom(copy), &copy);
  EXPECT_EQ(WriteText(copy), written);
  shelf.Clear();
  EXPECT_EQ(WriteText(shelf), kDefaultShelf);
  EXPECT_EQ(WriteText(copy), written);
  copy.books.RemoveAll();
  copy.CopyFrom(shelf);
  EXPECT_EQ(WriteText(copy), kDefaultShelf);
  EXPECT_EQ(copy.width.present, 0U);
}

TEST(Engine, KeepsOptionalValues) {
  CShelf shelf;
  DWORD number = 77;
  EXPECT_EQ(shelf.width.Get(&number), 1);
  EXPECT_EQ(number, 77U);
  EXPECT_EQ(shelf.width.Set(&number), 0);
  EXPECT_EQ(shelf.width.Get(nullptr), 0);
  EXPECT_EQ(shelf.width.Get(&number), 0);
  EXPECT_EQ(shelf.width.Set(nullptr), 0);
  EXPECT_EQ(shelf.width.Get(nullptr), 1);

  IOf<CLabels>* labels = nullptr;
  EXPECT_EQ(shelf.labels.Get(&labels), 1);
  EXPECT_EQ(labels, nullptr);
  CLabels other;
  const CTitle title;
  other.titles.Add(&title);
  EXPECT_EQ(shelf.labels.Set(&other), 0);
  EXPECT_EQ(shelf.labels.Get(&labels), 0);
  EXPECT_EQ(shelf.labels.Set(labels), 0);  // itself
  EXPECT_EQ(shelf.labels.child.titles.Count(), 1U);
  EXPECT_EQ(shelf.labels.Set(nullptr), 0);
  EXPECT_EQ(shelf.labels.Get(nullptr), 1);
}

TEST(Engine, KeepsLists) {
  node::ChildList<CTitle> list;
  const auto add = [&list](const wchar_t* text, DWORD at) {
    CTitle title;
    title.content = text;
    EXPECT_EQ(list.InsertAt(at, &title), 0);
  };
  const auto all = [&list] {
    std::wstring text;
    for (DWORD i = 0; i < list.Count(); ++i) {
      text += static_cast<CTitle*>(list.At(i))->content;
    }
    return text;
  };
  EXPECT_EQ(list.At(0), nullptr);
  list.RemoveAt(0);
  add(L"b", 5);  // into an empty list
  add(L"a", 0);
  add(L"d", 0xFFFFFFFF);
  add(L"c", 2);
  EXPECT_EQ(list.Add(list.At(0)), 0);  // one of its own
  EXPECT_EQ(list.InsertAt(0, list.At(3)), 0);
  EXPECT_EQ(all(), L"dabcda");
  EXPECT_EQ(list.Add(nullptr), -101);
  EXPECT_EQ(list.InsertAt(0, nullptr), -101);
  EXPECT_EQ(list.At(6), nullptr);
  list.RemoveAt(6);
  list.RemoveAt(0);
  list.RemoveAt(4);
  EXPECT_EQ(all(), L"abcd");
  node::ChildList<CTitle> copy(list);
  list.RemoveAll();
  EXPECT_EQ(list.Count(), 0U);
  EXPECT_EQ(copy.Count(), 4U);
}

/// Notes the positions at which it is written.
class CNote final : public node::INode {
 public:
  using Interface = node::INode;
  ConfigResult WriteToXMLMgr(IXMLLiteManager* /*manager*/, int reserved,
                             int position) const override {
    positions.push_back(reserved * 100 + position);
    return 0;
  }
  ConfigResult ReadFromXMLMgr(IXMLLiteManager* /*manager*/, int /*reserved*/) override { return 0; }
  void Clear() override {}

  inline static std::vector<int> positions;
};

constexpr node::Dialect kNoDialect = {};

class CNotes final : public NodeOf<CNotes> {
 public:
  static const node::Schema kSchema;
  node::ChildList<CNote> notes;
  CNote last;

 private:
  static const node::Child kChildren[];
};

constinit const node::Child CNotes::kChildren[] = {
    {L"Note", node::Occurrence::kRepeated, nullptr,
     [](node::IElement& node) {
       return tolva::node::ChildRef{nullptr, nullptr, &static_cast<CNotes&>(node).notes};
     },
     [](node::IElement& node) -> node::IElement& { return node; }, [](node::IElement&) {}},
    {L"Last", node::Occurrence::kRequired, nullptr,
     [](node::IElement& node) {
       return tolva::node::ChildRef{&static_cast<CNotes&>(node).last, nullptr, nullptr};
     },
     [](node::IElement& node) -> node::IElement& { return node; }, [](node::IElement&) {}},
};
constinit const node::Schema CNotes::kSchema = {
    .element = L"Notes", .dialect = kNoDialect, .children = kChildren};

/// A child that is made when it is needed behaves as one that is always there.
TEST(Engine, MakesALargeChildOnce) {
  const std::wstring_view lit =
      L"<Book><Pages>1</Pages><Title>t</Title><Lamp Colour='ASH' Watts='4'/></Book>";
  CBook book;
  EXPECT_EQ(book.lamp.Get(nullptr), 1);
  WriteText(book);
  book.Clear();
  EXPECT_EQ(book.lamp.Find(), nullptr);

  ASSERT_EQ(ReadText(book, lit), 0);
  const CLamp* const lamp = book.lamp.Find();
  ASSERT_NE(lamp, nullptr);
  EXPECT_EQ(book.lamp.Get(nullptr), 0);
  EXPECT_EQ(lamp->watts.value, 4U);
  const DWORD colour = lamp->colour;
  EXPECT_NE(colour, 0U);

  const CBook copy(book);
  EXPECT_NE(const_cast<CBook&>(copy).lamp.Find(), lamp);
  EXPECT_EQ(WriteText(copy), WriteText(book));

  // What survives a Clear within it survives, and callers may keep its address.
  ASSERT_EQ(ReadText(book, L"<Book><Lamp Colour='ASH' Watts='x'/></Book>"), -101);
  EXPECT_EQ(book.lamp.Get(nullptr), 1);
  EXPECT_EQ(lamp->watts.present, 0U);
  EXPECT_EQ(lamp->colour, colour);
  book.CopyFrom(copy);
  EXPECT_EQ(lamp->watts.value, 4U);
  book.CopyFrom(CBook());
  EXPECT_EQ(lamp->colour, 0U);
  EXPECT_EQ(book.lamp.Set(const_cast<CBook&>(copy).lamp.Find()), 0);
  EXPECT_EQ(lamp->colour, colour);
  EXPECT_EQ(book.lamp.Set(nullptr), 0);
  EXPECT_EQ(book.lamp.Get(nullptr), 1);
  EXPECT_EQ(lamp->watts.value, 4U);
  EXPECT_EQ(book.lamp.Find(), lamp);
}

TEST(Engine, TellsChildrenTheirPositions) {
  CNotes notes;
  const CNote note;
  for (int i = 0; i < 3; ++i) notes.notes.Add(&note);
  WriteText(notes);
  EXPECT_EQ(CNote::positions, (std::vector<int>{1, 2, 3, 1}));
}

#if !defined(_WIN32)
TEST(Engine, GivesMemoryBackWhenItClears) {
  CShelf shelf;
  const std::size_t held = CountAllocations().bytes;
  shelf.name.assign(1'000'000, L'x');
  const std::wstring place(1'000'000, L'x');
  shelf.place.Set(&place);
  shelf.place.Set(nullptr);
  shelf.Clear();
  EXPECT_LT(CountAllocations().bytes - held, 5'000'000U);  // `place` itself
}
#endif

// ---- numbers -----------------------------------------------------------------------------------

TEST(Numbers, AreDigitsAlone) {
  using node::Numbers;
  struct Reading {
    const wchar_t* text;
    DWORD as_signed;
    DWORD as_unsigned;
  };
  for (const Reading& one : {
           Reading{L"", 0, 0},
           Reading{L"007", 7, 7},
           Reading{L"2147483647", 2147483647, 2147483647},
           Reading{L"2147483648", 2147483647, 2147483648},
           Reading{L"4294967295", 2147483647, 4294967295},
           Reading{L"4294967296", 2147483647, 0},
           Reading{L"4294967303", 2147483647, 7},
           Reading{L"9223372036854775807", 2147483647, 4294967295},
           Reading{L"9223372036854775808", 2147483647, 4294967295},
           Reading{L"99999999999999999999999999999999", 2147483647, 4294967295},
           Reading{L"00000000000000000000000000000000000000000000000005", 5, 5},
       }) {
    DWORD value = 1;
    EXPECT_TRUE(node::ParseNumber(one.text, Numbers::kSigned, &value));
    EXPECT_EQ(value, one.as_signed) << one.text;
    EXPECT_TRUE(node::ParseNumber(one.text, Numbers::kUnsigned, &value));
    EXPECT_EQ(value, one.as_unsigned) << one.text;
  }
  for (const wchar_t* const text : {L"+1", L"-1", L" 1", L"1 ", L"1\t", L"0x1", L"12a", L"1.0",
                                    L"\u0661", L"\uFF11", L"\u00B2"}) {
    DWORD value = 4711;
    std::uint64_t long_value = 4711;
    EXPECT_FALSE(node::ParseNumber(text, Numbers::kSigned, &value)) << text;
    EXPECT_FALSE(node::ParseNumber(text, Numbers::kUnsigned, &value)) << text;
    EXPECT_FALSE(node::ParseLongNumber(text, &long_value)) << text;
    EXPECT_EQ(value, 4711U);
  }
  std::uint64_t value = 0;
  EXPECT_TRUE(node::ParseLongNumber(L"18446744073709551614", &value));
  EXPECT_EQ(value, 18446744073709551614U);
  EXPECT_TRUE(node::ParseLongNumber(L"18446744073709551616", &value));
  EXPECT_EQ(value, 18446744073709551615U);
}

TEST(Numbers, AreWrittenWithOrWithoutASign) {
  using node::Numbers;
  node::NumberText text;
  EXPECT_STREQ(node::FormatNumber(0, Numbers::kSigned, text), L"0");
  EXPECT_STREQ(node::FormatNumber(2147483647, Numbers::kSigned, text), L"2147483647");
  EXPECT_STREQ(node::FormatNumber(2147483648, Numbers::kSigned, text), L"-2147483648");
  EXPECT_STREQ(node::FormatNumber(4294967295, Numbers::kSigned, text), L"-1");
  EXPECT_STREQ(node::FormatNumber(4294967295, Numbers::kUnsigned, text), L"4294967295");
  EXPECT_STREQ(node::FormatLongNumber(18446744073709551615U, text), L"18446744073709551615");
}

}  // namespace
}  // namespace tolva::test
