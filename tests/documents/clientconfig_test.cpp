// The Active Directory document, as its callers know it.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

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
