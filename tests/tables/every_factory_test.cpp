// What holds for the node of every exported factory, by its table.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

#include "node/diagnostics.h"
#include "support/nodes.h"
#include "tables/factories.h"
#include "tables/random_content.h"

namespace tolva::test {
namespace {

using namespace node;
using NodePtr = std::unique_ptr<INode>;

class EveryFactory : public testing::TestWithParam<Factory> {
 protected:
  static NodePtr Make() { return NodePtr(GetParam().make()); }
  static const Schema& Table() { return *GetParam().schema; }

  /// An optional text that is absent writes nothing: no document.
  static bool CanBeWrittenFresh() {
    return !Table().content.is_optional || Table().content.is_always_written;
  }
};

TEST_P(EveryFactory, HasATableThatIsSound) {
  std::set<std::wstring> names;
  for (const Attribute& row : Table().attributes) {
    EXPECT_TRUE(names.insert(row.name).second) << testing::PrintToString(row.name);
    EXPECT_EQ(row.type == ValueType::kEnum, !row.enum_texts.texts.empty());
    std::set<std::wstring> texts;
    for (const wchar_t* const text : row.enum_texts.texts) {
      EXPECT_TRUE(texts.insert(text).second) << testing::PrintToString(text);
    }
  }
  names.clear();
  for (const Child& row : Table().children) {
    EXPECT_TRUE(names.insert(row.name).second) << testing::PrintToString(row.name);
    EXPECT_STREQ(row.name, row.schema->element);
  }
}

TEST_P(EveryFactory, MakesANodeThatIsClear) {
  const NodePtr fresh = Make();
  const NodePtr cleared = Make();
  cleared->Clear();
  EXPECT_TRUE(AreEqual(Table(), *fresh, *cleared));
  const NodePtr copy(GetParam().copy(*fresh));
  EXPECT_TRUE(AreEqual(Table(), *fresh, *copy));
  if (CanBeWrittenFresh()) {
    EXPECT_EQ(WriteText(*fresh), WriteText(*cleared));
  }
}

/// Nothing is left of what was there, not even where it cannot be seen for now.
TEST_P(EveryFactory, ForgetsEverythingWhenItIsCleared) {
  // Elements that keep a value on purpose, and those that consist of one.
  const std::set<std::wstring_view> keeping = {L"Setting",      L"Schedule", L"DiscoveryAction",
                                               L"DiscoveryJob", L"address",  L"extractedContent"};
  if (keeping.contains(Table().element)) return;
  const NodePtr node = Make();
  const NodePtr fresh = Make();
  RandomContent(1).Fill(Table(), *node);
  Reveal(Table(), *node);
  node->Clear();
  Reveal(Table(), *node);
  Reveal(Table(), *fresh);
  EXPECT_TRUE(AreEqual(Table(), *node, *fresh));
}

TEST_P(EveryFactory, IsToldOfNullManagers) {
  const NodePtr node = Make();
  RandomContent(1).Fill(Table(), *node);
  const NodePtr before(GetParam().copy(*node));
  Diagnostics diagnostics;
  EXPECT_EQ(node->WriteToXMLMgr(nullptr), -101);
  EXPECT_EQ(node->ReadFromXMLMgr(nullptr), -101);
  const auto own_or = [](OwnText own, std::wstring_view text) {
    return std::wstring(own.IsSet() ? own.Get() : text);
  };
  EXPECT_EQ(diagnostics.Take(), (Texts{own_or(Table().null_writer, Table().dialect.null_writer),
                                       own_or(Table().null_reader, Table().dialect.null_reader)}));
  EXPECT_EQ(node->WriteToXMLMgr(MakeReader().get()), -101);
  EXPECT_EQ(node->ReadFromXMLMgr(MakeWriter().get()), -101);
  EXPECT_EQ(diagnostics.Take(), Texts{});
  EXPECT_TRUE(AreEqual(Table(), *node, *before));
}

/// What a null value has to give, by the row of what is set; null: no row has the setter's name.
struct NullResult {
  bool is_known = false;
  ConfigResult result = 0;
  Texts reports = {};
};

NullResult ExpectedOfNull(const Schema& table, const std::wstring& name) {
  const auto is_named = [&](std::wstring row) {
    row[0] = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(row[0])));
    return row == name;
  };
  const auto required = [&](const std::wstring& row) {
    return NullResult{true,
                      -101,
                      {std::wstring(table.dialect.null_value) + L" element:" +
                       std::wstring(table.ReportedName()) + L", attr:" + row}};
  };
  for (const Attribute& row : table.attributes) {
    if (is_named(row.name)) return row.is_optional ? NullResult{true} : required(row.name);
  }
  for (const Child& row : table.children) {
    if (!is_named(row.name)) continue;
    if (row.occurrence == Occurrence::kOptional) return {true};
    if (row.is_dispensable) return {true, -101};  // silent
    return {true, -101, {std::wstring(kSetElement) + L" element:" + row.name}};
  }
  if (table.content.locate != nullptr) {
    return table.content.is_optional ? NullResult{true} : required(L"Content");
  }
  return {};
}

TEST_P(EveryFactory, TakesNullForWhatIsOptionalAlone) {
  const std::set<std::wstring> departing = {L"ActiveDirectory"};  // the proxy's, tested with it
  std::size_t known = 0;
  for (const NullSetter& setter : GetParam().null_setters) {
    SCOPED_TRACE(testing::PrintToString(setter.name));
    const NodePtr node = Make();
    RandomContent(1).Fill(Table(), *node);
    const NodePtr before(GetParam().copy(*node));
    Diagnostics diagnostics;
    const ConfigResult result = setter.call(*node);
    const Texts reports = diagnostics.Take();
    if (result != 0) {
      EXPECT_EQ(result, -101);
      EXPECT_TRUE(departing.contains(setter.name) || AreEqual(Table(), *node, *before));
    }
    const NullResult expected = ExpectedOfNull(Table(), setter.name);
    if (!expected.is_known || departing.contains(setter.name)) continue;
    ++known;
    EXPECT_EQ(result, expected.result);
    EXPECT_EQ(reports, expected.reports);
  }
  // Every attribute, text and single child has its setter, but for children of other names.
  const std::set<std::wstring_view> renamed = {L"ActiveDirectory", L"ExcludeJSInjectionDomains",
                                               L"ILPInlineProxy"};
  std::size_t rows = Table().attributes.size() + (Table().content.locate != nullptr ? 1 : 0);
  for (const Child& row : Table().children) {
    if (row.occurrence != Occurrence::kRepeated && !renamed.contains(row.name)) ++rows;
  }
  EXPECT_EQ(known, rows);
}

/// Random content goes into a document and comes back; a copy is whole, and its own.
TEST_P(EveryFactory, KeepsWhateverItHolds) {
  for (unsigned seed = 0; seed < 30; ++seed) {
    SCOPED_TRACE(seed);
    const NodePtr node = Make();
    RandomContent(seed).Fill(Table(), *node);
    const std::string written = WriteFile(*node);

    const TempFile file(written);
    const NodePtr again = Make();
    const ManagerPtr reader = MakeReader();
    Diagnostics diagnostics;
    ASSERT_EQ(reader->OpenFile(file.Wide().c_str()), 0);
    ASSERT_EQ(again->ReadFromXMLMgr(reader.get()), 0) << written;
    EXPECT_EQ(diagnostics.Take(), Texts{});
    ASSERT_TRUE(AreEqual(Table(), *node, *again)) << written;
    ASSERT_EQ(WriteFile(*again), written);

    const NodePtr copy(GetParam().copy(*node));
    ASSERT_TRUE(AreEqual(Table(), *node, *copy)) << written;
    RandomContent(seed + 1000).Fill(Table(), *node);
    ASSERT_EQ(WriteFile(*copy), written);
  }
}

std::string NameOfFactory(const testing::TestParamInfo<Factory>& info) {
  std::string name = info.param.name;
  name.replace(name.find("::"), 2, "_");
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, EveryFactory, testing::ValuesIn(AllFactories()), NameOfFactory);

}  // namespace

/// For GoogleTest, which finds it by its argument.
void PrintTo(const Factory& factory, std::ostream* stream) { *stream << factory.name; }

}  // namespace tolva::test
