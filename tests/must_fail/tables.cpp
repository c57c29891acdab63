// Tables that contradict themselves. Each case but the first must not compile, for the reason
// beside it; tools/must-fail.sh compiles them one by one.
#include "node/accessors.h"
#include "node/schema.h"

namespace {

using namespace tolva::node;

constexpr Dialect kDialect = {};
constexpr Name kColours[] = {L"RED", L"GREEN"};
constexpr Name kRedTwice[] = {L"RED", L"GREEN", L"RED"};

class CLeaf;
class ILeaf : public INode {
 public:
  virtual ILeaf& CopyFrom(const ILeaf& other) = 0;
};
class CLeaf final : public Node<CLeaf, ILeaf> {
 public:
  static const Schema kSchema;
  DWORD number = 0;
  std::wstring string;
  Optional<DWORD> optional_number;
  Optional<std::wstring> optional_string;
};
class CTree final : public Node<CTree, ILeaf> {
 public:
  static const Schema kSchema;
  DWORD number = 0;
  CLeaf leaf;
  OptionalChild<CLeaf> optional_leaf;
  ChildList<CLeaf> leaves;
};

#if CASE == 0
constexpr Attribute kLeafAttributes[] = {
    Attr<&CLeaf::number>(L"Number", {kColours}).MayBeAbsent().IgnoresWriteFailure().KeepsValue(),
    Attr<&CLeaf::optional_number>(L"Optional").OneWhenAbsent().PresentWhenClear().KeepsPresence(),
    Attr<&CLeaf::string>(L"Key").Secret(),
};
constexpr Child kChildren[] = {
    Elem<&CTree::leaf>(L"Leaf").NamesItem().MayBeAbsent().AbsenceReportedFirst().AbsenceReport(L""),
    Elem<&CTree::optional_leaf>(L"OptionalLeaf").KeepsPresence(),
    Elem<&CTree::leaves>(L"Leaves"),
};
constexpr Content kText = TextOf<&CLeaf::number>().LeadingDigits();
constexpr Content kOptionalText = TextOf<&CLeaf::optional_string>().AlwaysWritten();
#elif CASE == 1   // only an optional number can be 1 when it is absent
constexpr Attribute kRow = Attr<&CLeaf::optional_string>(L"Name").OneWhenAbsent();
#elif CASE == 2   // a required attribute has no presence flag
constexpr Attribute kRow = Attr<&CLeaf::number>(L"Name").PresentWhenClear();
#elif CASE == 3   // a required attribute has no presence flag
constexpr Attribute kRow = Attr<&CLeaf::string>(L"Name").KeepsPresence();
#elif CASE == 4   // an optional attribute may be absent in any case
constexpr Attribute kRow = Attr<&CLeaf::optional_number>(L"Name").MayBeAbsent();
#elif CASE == 5   // a failed write of an optional attribute is ignored in any case
constexpr Attribute kRow = Attr<&CLeaf::optional_number>(L"Name").IgnoresWriteFailure();
#elif CASE == 6   // the field of an ENUM is a DWORD
constexpr Attribute kRow = Attr<&CLeaf::string>(L"Name", {kColours});
#elif CASE == 7   // an ENUM has texts
constexpr Attribute kRow = Attr<&CLeaf::number>(L"Name", EnumTexts{});
#elif CASE == 8   // two values of an ENUM have the same text
constexpr Attribute kRow = Attr<&CLeaf::number>(L"Name", {kRedTwice});
#elif CASE == 9   // only a required child can be missing
constexpr Child kRow = Elem<&CTree::optional_leaf>(L"Leaf").MayBeAbsent();
#elif CASE == 10  // only a required child can be missing
constexpr Child kRow = Elem<&CTree::leaves>(L"Leaf").AbsenceReportedFirst();
#elif CASE == 11  // only a required child can be missing
constexpr Child kRow = Elem<&CTree::leaves>(L"Leaf").AbsenceReport(L"none");
#elif CASE == 12  // only an optional child has a flag
constexpr Child kRow = Elem<&CTree::leaf>(L"Leaf").KeepsPresence();
#elif CASE == 13  // only a number has leading digits
constexpr Content kText = TextOf<&CLeaf::string>().LeadingDigits();
#elif CASE == 14  // a required text is always written
constexpr Content kText = TextOf<&CLeaf::string>().AlwaysWritten();
#elif CASE == 15  // two attributes have the same name
constexpr Attribute kRows[] = {Attr<&CLeaf::number>(L"Name"), Attr<&CLeaf::string>(L"Name")};
#define TOLVA_ROWS .attributes = kRows
#elif CASE == 16  // two children have the same name
constexpr Child kRows[] = {Elem<&CTree::leaf>(L"Leaf"), Elem<&CTree::leaves>(L"Leaf")};
#define TOLVA_ROWS .children = kRows
#elif CASE == 17  // an attribute and a child have the same name
constexpr Attribute kRow[] = {Attr<&CTree::number>(L"Leaf")};
constexpr Child kRows[] = {Elem<&CTree::leaf>(L"Leaf")};
#define TOLVA_ROWS .attributes = kRow, .children = kRows
#elif CASE == 18  // a text has neither attributes nor children
constexpr Attribute kRow[] = {Attr<&CLeaf::number>(L"Name")};
#define TOLVA_ROWS .attributes = kRow, .content = TextOf<&CLeaf::string>()
#elif CASE == 19  // a name consists of letters and digits
constexpr Attribute kRow[] = {Attr<&CLeaf::number>(L"p:Name")};
#define TOLVA_ROWS .attributes = kRow
#elif CASE == 20  // a name consists of letters and digits
constexpr Child kRows[] = {Elem<&CTree::leaf>(L"0")};
#define TOLVA_ROWS .children = kRows
#elif CASE == 21  // an element has 32 kinds of children at most
constexpr Child kLeaf = Elem<&CTree::leaf>(L"Leaf");
constexpr Child kRows[33] = {kLeaf};
#define TOLVA_ROWS .children = kRows
#elif CASE == 22  // only a string can be a secret
constexpr Attribute kRow = Attr<&CLeaf::number>(L"Name").Secret();
#elif CASE == 23  // what names an item cannot be a secret
constexpr Attribute kRow = Attr<&CLeaf::string>(L"Name").Secret().NamesItem();
#elif CASE == 24  // what names an item cannot be a secret
constexpr Attribute kRow = Attr<&CLeaf::string>(L"Name").NamesItem().Secret();
#elif CASE == 25  // only a required child names an item
constexpr Child kRow = Elem<&CTree::optional_leaf>(L"Leaf").NamesItem();
#endif

#if defined(TOLVA_ROWS)
constexpr Schema kTable = Checked({.element = L"Element", .dialect = kDialect, TOLVA_ROWS});
#endif

}  // namespace
