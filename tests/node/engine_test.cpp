// What the engine does that no table shows. tests/tables has what follows from the tables.
#include "node/engine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "globalconf/client_configuration.h"
#include "policy/policy.h"
#include "rfconf/client_configuration.h"
#include "support/allocations.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

/// Closed managers are like another element, and like a writer that refuses.
TEST(Engine, ReportsClosedManagers) {
  const DWORD port = 5;
  RFConfInterface::CRFServer server;
  server.SetPortNumber(&port);
  Diagnostics diagnostics;
  EXPECT_EQ(server.WriteToXMLMgr(MakeWriter().get(), 0, 1), -101);
  EXPECT_EQ(diagnostics.Take(), Texts{L"XMLManager: fail to add element: RFServer"});
  EXPECT_EQ(server.ReadFromXMLMgr(MakeReader().get(), 0), -102);
  EXPECT_EQ(diagnostics.Take(), Texts{});
  EXPECT_EQ(server.GetPortNumber(), 0U);
}

TEST(Engine, WritesEnumValuesBeyondTheTable) {
  const DWORD seven = 7;
  GlobalConfInterface::CSetting setting;
  TolvaInterface::CDiscoveryAction action;
  setting.SetAppName(&seven);
  action.SetAction(&seven);
  EXPECT_EQ(setting.GetAppName(), seven);
  EXPECT_EQ(WriteText(setting), "<Setting AppName=\"FIREFOX\" AppVersionMajor=\"0\"/>");
  EXPECT_EQ(WriteText(action), "<DiscoveryAction Action=\"\"/>");
}

class INote : public node::INode {
 public:
  virtual INote& CopyFrom(const INote& other) = 0;
};

/// Notes the positions at which it is written.
class CNote final : public node::Node<CNote, INote> {
 public:
  static const node::Schema kSchema;
  ConfigResult WriteToXMLMgr(IXMLLiteManager* /*manager*/, int reserved,
                             int position) const override {
    positions.push_back(reserved * 100 + position);
    return 0;
  }

  inline static std::vector<int> positions;
};

class CNotes final : public node::Node<CNotes, INote> {
 public:
  static const node::Schema kSchema;
  node::ChildList<CNote> notes;
  CNote last;
};

constexpr node::Dialect kNoDialect = {};
constexpr node::Child kNotesChildren[] = {node::Elem<&CNotes::notes>(L"Note"),
                                          node::Elem<&CNotes::last>(L"Last")};
constinit const node::Schema CNote::kSchema = {.element = L"Note", .dialect = kNoDialect};
constinit const node::Schema CNotes::kSchema = {
    .element = L"Notes", .dialect = kNoDialect, .children = kNotesChildren};

TEST(Engine, TellsChildrenTheirPositions) {
  CNotes notes;
  for (int i = 0; i < 3; ++i) notes.notes.Append();
  WriteText(notes);
  EXPECT_EQ(CNote::positions, (std::vector<int>{1, 2, 3, 1}));
}

#if !defined(_WIN32)
TEST(Engine, GivesMemoryBackWhenItClears) {
  TolvaInterface::CFileFilter filter;
  const std::size_t held = CountAllocations().bytes;
  const std::wstring text(1'000'000, L'x');
  filter.SetInclude(&text);
  filter.SetExclude(&text);
  filter.SetExclude(nullptr);
  filter.Clear();
  EXPECT_LT(CountAllocations().bytes - held, 5'000'000U);  // `text` itself
}
#endif

}  // namespace
}  // namespace tolva::test
