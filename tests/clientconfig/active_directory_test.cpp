// The Active Directory document, as its callers know it.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>
#include <vector>

#include "support/nodes.h"

namespace tolva::test {
namespace {

using ClientConfig::IActiveDirectory;
using ClientConfig::IDefaultDomain;

using RootPtr = std::unique_ptr<IActiveDirectory>;

RootPtr MakeRoot() { return RootPtr(ClientConfig::ActiveDir_CreateNewInstance()); }

std::unique_ptr<IDefaultDomain> MakeDomain() {
  return std::unique_ptr<IDefaultDomain>(ClientConfig::DefaultDomain_CreateNewInstance());
}

constexpr std::string_view kFresh =
    "<ActiveDirectory><DefaultDomain Enabled=\"0\" Name=\"\"/></ActiveDirectory>";

TEST(ActiveDirectory, ReadsWhatItWrites) {
  struct Case {
    const wchar_t* document;
    ConfigResult result;
    Texts reports;
    std::string_view written;
  };
  const std::vector<Case> cases = {
      {L"<ActiveDirectory><!-- c --><x><DefaultDomain/></x><DefaultDomain Name='1st' Enabled='1'/>"
       L"<DefaultDomain Name='2nd'>text<y/></DefaultDomain></ActiveDirectory>",
       0,
       {},
       "<ActiveDirectory><DefaultDomain Enabled=\"0\" Name=\"2nd\"/></ActiveDirectory>"},
      {L"<ActiveDirectory/>", -101, {L"XMLManager: sub-element DefDomain is missing"}, kFresh},
      {L"<ActiveDirectory><DefDomain Name='x'/></ActiveDirectory>",
       -101,
       {L"XMLManager: sub-element DefDomain is missing"},
       kFresh},
      {L"<activeDirectory><DefaultDomain Name='x'/></activeDirectory>", -102, {}, kFresh},
  };
  const RootPtr root = MakeRoot();
  EXPECT_EQ(WriteText(*root), kFresh);
  Diagnostics diagnostics;
  for (const Case& one : cases) {
    SCOPED_TRACE(testing::PrintToString(one.document));
    EXPECT_EQ(ReadText(*root, one.document), one.result);
    EXPECT_EQ(diagnostics.Take(), one.reports);
    EXPECT_EQ(WriteText(*root), one.written);
  }
}

TEST(ActiveDirectory, ReadsADomainAlone) {
  const auto domain = MakeDomain();
  Diagnostics diagnostics;
  EXPECT_EQ(ReadText(*domain, L"<DefaultDomain Enabled='' Name=''/>"), 0);
  EXPECT_EQ(ReadText(*domain, L"<DefaultDomain Name='x'/>"), 0);
  EXPECT_EQ(domain->GetName(), L"x");
  EXPECT_EQ(ReadText(*domain, L"<DefaultDomain Enabled='99999999999' Name='x'/>"), 0);
  DWORD enabled = 0;
  EXPECT_EQ(domain->GetEnabled(&enabled), 0);
  EXPECT_EQ(enabled, 2147483647U);
  for (const wchar_t* const value : {L"+1", L"1 ", L"-1", L"true"}) {
    EXPECT_EQ(
        ReadText(*domain, L"<DefaultDomain Name='x' Enabled='" + std::wstring(value) + L"'/>"),
        -101);
    EXPECT_EQ(diagnostics.Take(), Texts{L"XMLManager: read required dword/bool Attribute failed. "
                                        L"element:DefaultDomain, attr:Enabled"});
    EXPECT_EQ(domain->GetName(), L"");
  }
  // By design such a value cannot be read back.
  const DWORD all_bits = 4294967295;
  EXPECT_EQ(domain->SetEnabled(&all_bits), 0);
  EXPECT_EQ(WriteText(*domain), "<DefaultDomain Enabled=\"-1\" Name=\"\"/>");
}

TEST(ActiveDirectory, HasItsOwnTexts) {
  const RootPtr root = MakeRoot();
  IDefaultDomain* const domain = root->GetDefaultDomain();
  const ManagerPtr closed_writer = MakeWriter();
  Diagnostics diagnostics;
  EXPECT_EQ(domain->SetEnabled(nullptr), -101);
  EXPECT_EQ(domain->SetName(nullptr), -101);
  EXPECT_EQ(root->SetDefaultDomain(nullptr), -101);
  EXPECT_EQ(root->WriteToXMLMgr(nullptr), -101);
  EXPECT_EQ(root->ReadFromXMLMgr(nullptr), -101);
  EXPECT_EQ(root->WriteToXMLMgr(closed_writer.get()), -101);
  EXPECT_EQ(domain->WriteToXMLMgr(closed_writer.get()), -101);
  EXPECT_EQ(diagnostics.Take(),
            (Texts{L"XMLManager: set Attribute failed due to param pointer is NULL. "
                   L"element:DefaultDomain, attr:Enabled",
                   L"XMLManager: set Attribute failed due to param pointer is NULL. "
                   L"element:DefaultDomain, attr:Name",
                   L"XMLManager: Set element failed due to param is NULL. element:DefaultDomain",
                   L"XMLManager: WriteToXMLMgr required xmlmanager pointer is NULL.",
                   L"XMLManager: ReadFromXMLMgr required xmlmanager pointer is NULL.",
                   L"XMLManager: fail to add element: ActiveDirectory",
                   L"XMLManager: failed to add element: DefaultDomain"}));
  EXPECT_EQ(domain->GetEnabled(nullptr), 0);
}

TEST(ActiveDirectory, IsCopiedThroughItsDomain) {
  const RootPtr root = MakeRoot();
  const RootPtr other = MakeRoot();
  const DWORD enabled = 1;
  const std::wstring name = L"caf\u00E9.example";
  root->GetDefaultDomain()->SetEnabled(&enabled);
  root->GetDefaultDomain()->SetName(&name);

  EXPECT_EQ(&other->CopyFrom(*root), other.get());
  EXPECT_EQ(WriteText(*other), kFresh);
  EXPECT_EQ(other->SetDefaultDomain(root->GetDefaultDomain()), 0);
  EXPECT_EQ(root->SetDefaultDomain(root->GetDefaultDomain()), 0);
  EXPECT_EQ(WriteText(*other), WriteText(*root));
  root->Clear();
  EXPECT_EQ(other->GetDefaultDomain()->GetName(), name);
  const auto domain = MakeDomain();
  EXPECT_EQ(&domain->CopyFrom(*other->GetDefaultDomain()), domain.get());
  EXPECT_EQ(domain->GetName(), name);
}

}  // namespace
}  // namespace tolva::test
