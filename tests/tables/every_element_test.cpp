// What holds for every element, by its table.
#include <gtest/gtest.h>

#include <cwctype>
#include <memory>
#include <string>

#include "node/diagnostics.h"
#include "support/allocations.h"
#include "support/files.h"
#include "support/managers.h"
#include "support/nodes.h"
#include "tables/elements.h"
#include "tables/random_content.h"

namespace tolva::test {
namespace {

using namespace node;
using NodePtr = std::unique_ptr<INode>;

/// Whether accessors of that name belong to the row: their names begin with a capital, and three
/// have a name of their own.
bool IsNamed(std::wstring row, const std::wstring& accessors) {
  if (row == L"ExcludeJSInjectionDomains") row = L"ExcludeJSInjectDomains";
  if (row == L"ILPInlineProxy") row = L"ILPInLineProxy";
  if (row == L"ExcludeDomain" && accessors == L"ExcludeJSInjectDomain") return true;
  row[0] = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(row[0])));
  return row == accessors;
}

class EveryElement : public testing::TestWithParam<Element> {
 protected:
  static NodePtr Make() { return NodePtr(GetParam().make()); }
  static const Schema& Table() { return *GetParam().schema; }

  /// A node full of random content.
  static NodePtr MakeFull(unsigned seed = 1) {
    NodePtr node = Make();
    RandomContent(seed).Fill(Table(), *node);
    return node;
  }

  static NodePtr Copy(const NodePtr& node) { return NodePtr(GetParam().copy(*node)); }

  /// Whether two nodes hold the same in the row of the accessors of that name, if there is one.
  static bool RowIsEqual(const std::wstring& name, const IElement& left, const IElement& right) {
    std::vector<Attribute> attributes;
    std::vector<Child> children;
    for (const Attribute& row : Table().attributes) {
      if (IsNamed(row.name.c_str(), name)) attributes.push_back(row);
    }
    for (const Child& row : Table().children) {
      if (IsNamed(row.name().c_str(), name)) children.push_back(row);
    }
    const Schema one = {
        .element = L"", .dialect = Table().dialect, .attributes = attributes, .children = children};
    return AreEqual(one, left, right);
  }
};

/// By its factory, and as an item or a child that is made while its parent is read.
TEST_P(EveryElement, MakesANodeThatIsClear) {
  const NodePtr node = Make();
  EXPECT_TRUE(IsCleared(Table(), *node, *node));
  for (const Child& row : Table().children) {
    IElement& child = row.make(*node);
    EXPECT_TRUE(IsCleared(*row.schema, child, child));
  }
}

TEST_P(EveryElement, ForgetsWhatItHoldsWhenItIsCleared) {
  const NodePtr node = MakeFull();
  const NodePtr before = Copy(node);
  node->Clear();
  EXPECT_TRUE(IsCleared(Table(), *node, *before));
}

/// How a document words what it reports of null, and writes numbers: in one of two ways each.
struct Conventions {
  std::string_view document;
  std::wstring manager;
  std::wstring value;
  bool is_signed;
};

Conventions ConventionsOf(std::string_view element) {
  for (const auto& conventions : {
           Conventions{"ClientConfig::", L"required", L"param", true},
           Conventions{"TolvaInterface::TelemetryCollection", L"required", L"parama", false},
           Conventions{"TolvaInterface::", L"require", L"parama", false},
           Conventions{"NGConfInterface::", L"required", L"parama", false},
           Conventions{"GlobalConfInterface::", L"required", L"param", false},
           Conventions{"ProxyClientConfig::", L"required", L"parama", false},
           Conventions{"CIConfInterface::", L"required", L"parama", true},
           Conventions{"RFConfInterface::", L"required", L"parama", true},
           Conventions{"CpsAnalysisDetailsConf::", L"required", L"parama", false},
           Conventions{"MessageConf::", L"require", L"parama", false},
           Conventions{"IpbtConf::", L"require", L"parama", true},
           Conventions{"PatchFileHistory::", L"require", L"parama", true},
       }) {
    if (element.starts_with(conventions.document)) return conventions;
  }
  throw std::runtime_error("no conventions are known");
}

TEST_P(EveryElement, IsToldOfNullManagers) {
  const NodePtr node = MakeFull();
  const NodePtr before = Copy(node);
  Diagnostics diagnostics;
  EXPECT_EQ(node->WriteToXMLMgr(nullptr), -101);
  EXPECT_EQ(node->ReadFromXMLMgr(nullptr), -101);
  const std::wstring of = Table().element == std::wstring_view(L"ExcludeJSInjectionDomains")
                              ? L"JSExcudeDomain: "
                              : L"XMLManager: ";
  const std::wstring end = ConventionsOf(GetParam().name).manager + L" xmlmanager pointer is NULL.";
  EXPECT_EQ(diagnostics.Take(),
            (Texts{of + L"WriteToXMLMgr " + end, of + L"ReadFromXMLMgr " + end}));
  EXPECT_EQ(node->WriteToXMLMgr(MakeReader().get()), -101);
  EXPECT_EQ(node->ReadFromXMLMgr(MakeWriter().get()), -101);
  EXPECT_EQ(diagnostics.Take(), Texts{});
  EXPECT_TRUE(AreEqual(Table(), *node, *before));
}

TEST_P(EveryElement, WritesTheNumbersOfItsDocument) {
  const NodePtr node = Make();
  const bool is_signed = ConventionsOf(GetParam().name).is_signed;
  for (const Attribute& row : Table().attributes) {
    if (row.type != ValueType::kNumber) continue;
    const FieldRef field = row.locate(*node);
    *static_cast<DWORD*>(field.value) = 0x80000000;
    if (field.present != nullptr) *field.present = 1;
    const std::string written = is_signed ? "=\"-2147483648\"" : "=\"2147483648\"";
    EXPECT_NE(WriteText(*node).find(written), std::string::npos);
    *static_cast<DWORD*>(field.value) = 0;
  }
}

/// What a null value has to give, by the row of what is set.
struct NullResult {
  bool is_known = false;  ///< there is such a row, and it does not depart
  ConfigResult result = 0;
  Texts reports = {};
};

NullResult ExpectedOfNull(const Element& element, const std::wstring& name) {
  const Schema& table = *element.schema;
  const auto required = [&](const std::wstring& row) {
    return NullResult{
        true,
        -101,
        {L"XMLManager: set Attribute failed due to " + ConventionsOf(element.name).value +
         L" pointer is NULL. element:" + std::wstring(table.ReportedName()) + L", attr:" + row}};
  };
  if (name == L"ActiveDirectory") return {};
  for (const Attribute& row : table.attributes) {
    if (IsNamed(row.name.c_str(), name)) {
      return row.is_optional ? NullResult{true} : required(row.name.c_str());
    }
  }
  for (const Child& row : table.children) {
    if (!IsNamed(row.name().c_str(), name)) continue;
    if (row.occurrence == Occurrence::kOptional) return {true};
    if (row.may_be_absent) return {true, -101};  // silent
    return {true, -101, {std::wstring(kSetElement) + L" element:" + row.name().c_str()}};
  }
  if (table.content.locate != nullptr) {
    return table.content.is_optional ? NullResult{true} : required(L"Content");
  }
  return {};
}

TEST_P(EveryElement, TakesNullForWhatIsOptionalAlone) {
  for (const ValueAccessors& accessors : GetParam().values) {
    SCOPED_TRACE(testing::PrintToString(accessors.name));
    const NullResult expected = ExpectedOfNull(GetParam(), accessors.name);
    if (!expected.is_known) continue;
    const NodePtr node = MakeFull();
    const NodePtr before = Copy(node);
    Diagnostics diagnostics;
    EXPECT_EQ(accessors.set_null(*node), expected.result);
    EXPECT_EQ(diagnostics.Take(), expected.reports);
    EXPECT_TRUE(expected.result == 0 || AreEqual(Table(), *node, *before));
  }
}

/// What is got from one node and set in another, one thing after the other, comes to the same.
TEST_P(EveryElement, HasAccessorsForEverything) {
  for (unsigned seed = 0; seed < 8; ++seed) {
    const NodePtr from = MakeFull(seed);
    const NodePtr to = Make();
    for (const Child& row : Table().children) {
      // Absent, it cannot be told of by the accessors that some parents have.
      if (row.name() == std::wstring_view(L"ActiveDirectory")) *row.locate(*from).present = 1;
    }
    for (const ValueAccessors& accessors : GetParam().values) {
      SCOPED_TRACE(testing::PrintToString(accessors.name));
      EXPECT_EQ(accessors.transfer(*from, *to), 0);
      EXPECT_TRUE(RowIsEqual(accessors.name, *from, *to));
    }
    for (const ListAccessors& accessors : GetParam().lists) {
      SCOPED_TRACE(testing::PrintToString(accessors.name));
      accessors.transfer(*from, *to);
      EXPECT_TRUE(RowIsEqual(accessors.name, *from, *to));
    }
    // One list has accessors that read it, and none that fill it.
    const bool is_filled_by_reading =
        Table().element == std::wstring_view(L"ExcludeJSInjectionDomains");
    EXPECT_TRUE(is_filled_by_reading || AreEqual(Table(), *from, *to));
    for (const ListAccessors& accessors : GetParam().lists) accessors.check(*to);
  }
}

/// Random content goes into a document and comes back; a copy is whole, and its own.
TEST_P(EveryElement, KeepsWhateverItHolds) {
#if defined(_WIN32)
  constexpr unsigned kSeeds = 6;  // under Wine, files are slow
#else
  constexpr unsigned kSeeds = 30;
#endif
  for (unsigned seed = 0; seed < kSeeds; ++seed) {
    SCOPED_TRACE(seed);
    const NodePtr node = MakeFull(seed);
    const std::string written = WriteFile(*node);

    const NodePtr again = Make();
    Diagnostics diagnostics;
    ASSERT_EQ(ReadFile(*again, TempFile(written).path()), 0) << written;
    EXPECT_EQ(diagnostics.Take(), Texts{});
    ASSERT_TRUE(AreEqual(Table(), *node, *again)) << written;
    ASSERT_EQ(WriteFile(*again), written);

    const NodePtr copy = Copy(node);
    ASSERT_TRUE(AreEqual(Table(), *node, *copy)) << written;
    RandomContent(seed + 1000).Fill(Table(), *node);
    ASSERT_EQ(WriteFile(*copy), written);
  }
}

#if !defined(_WIN32)
/// A document that is made of the shortest items takes a bounded multiple of its size.
TEST(Items, TakeLittleMemory) {
  constexpr std::size_t kBytesPerByte = 18;
  constexpr std::size_t kCount = 1000;
  for (const Element& element : AllElements()) {
    for (const Child& row : element.schema->children) {
      if (row.occurrence != Occurrence::kRepeated) continue;
      const NodePtr node(element.make());
      const std::size_t before = CountAllocations().bytes;
      for (std::size_t i = 0; i < kCount; ++i) row.make(*node);
      const std::size_t held = CountAllocations().bytes - before;
      const std::string shortest = WriteText(row.locate(*node).items->Item(0));
      EXPECT_LE(held, kBytesPerByte * kCount * shortest.size()) << shortest;
    }
  }
}

/// Whichever allocation fails, alone or with all that follow: std::bad_alloc is all that comes out,
/// nothing is half done, nothing is lost, and everything can be used again.
TEST_P(EveryElement, SurvivesARunOutOfMemory) {
  const NodePtr whole = MakeFull(3);
  const TempFile file(WriteFile(*whole));
  const std::string written = file.Read();
  const std::wstring path = file.Wide();
  const auto fails = [](std::size_t n, auto operation) {
    return RunsOutOfMemory(n, n % 2 == 1, operation);
  };
  const std::size_t held = CountAllocations().bytes;
  bool reading_fails = true;
  bool writing_fails = true;
  bool copying_fails = true;
  for (std::size_t n = 0; reading_fails || writing_fails || copying_fails; ++n) {
    ASSERT_LT(n, 1000U);
    ASSERT_FALSE(HasFailure());
    const NodePtr node = Make();
    reading_fails = fails(n, [&] {
      const ManagerPtr reader = MakeReader();
      if (reader->OpenFile(path.c_str()) != 0) throw std::bad_alloc();
      EXPECT_EQ(node->ReadFromXMLMgr(reader.get()), 0);
    });
    EXPECT_TRUE(reading_fails ? IsCleared(Table(), *node, *node) : AreEqual(Table(), *node, *whole))
        << n;

    const TempFile output;
    const std::wstring output_path = output.Wide();
    writing_fails = fails(n, [&] {
      const ManagerPtr writer = MakeWriter();
      if (writer->OpenFile(output_path.c_str()) != 0) throw std::bad_alloc();
      EXPECT_EQ(whole->WriteToXMLMgr(writer.get()), 0);
      EXPECT_EQ(writer->Close(), 0);
    });
    EXPECT_TRUE(writing_fails || output.Read() == written) << n;

    NodePtr copy;
    copying_fails = fails(n, [&] { copy = Copy(whole); });
    EXPECT_EQ(copy == nullptr, copying_fails) << n;
    EXPECT_TRUE(copying_fails || AreEqual(Table(), *copy, *whole)) << n;
  }
  EXPECT_EQ(CountAllocations().bytes, held);
}
#endif

std::string NameOfElement(const testing::TestParamInfo<Element>& info) {
  std::string name = info.param.name;
  name.replace(name.find("::"), 2, "_");
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, EveryElement, testing::ValuesIn(AllElements()), NameOfElement);

}  // namespace

/// For GoogleTest, which finds it by its argument.
void PrintTo(const Element& element, std::ostream* stream) { *stream << element.name; }

}  // namespace tolva::test
