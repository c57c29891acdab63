// How the Active Directory document, and the client configurations that embed it, depart from their
// tables.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/nodes.h"

namespace tolva::test {
namespace {

using ClientConfig::IActiveDirectory;

constexpr DWORD kOne = 1;
const std::wstring kName = L"caf\u00E9.example";
const std::string kDirectory =
    "<ActiveDirectory><DefaultDomain Enabled=\"1\" "
    "Name=\"caf\xC3\xA9.example\"/></ActiveDirectory>";

std::unique_ptr<IActiveDirectory> MakeDirectory() {
  std::unique_ptr<IActiveDirectory> directory(ClientConfig::ActiveDir_CreateNewInstance());
  directory->GetDefaultDomain()->SetEnabled(&kOne);
  directory->GetDefaultDomain()->SetName(&kName);
  return directory;
}

/// What a node writes from the start of its directory on, as long as kDirectory; empty if it has
/// none.
std::string DirectoryIn(const node::IElement& node) {
  const std::string text = WriteText(node);
  const std::size_t at = text.find("ActiveDirectory");
  return at == std::string::npos ? "" : text.substr(at - 1, kDirectory.size());
}

TEST(ActiveDirectory, IsCopiedThroughItsDomain) {
  const auto root = MakeDirectory();
  const std::unique_ptr<IActiveDirectory> other(ClientConfig::ActiveDir_CreateNewInstance());
  EXPECT_EQ(&other->CopyFrom(*root), other.get());
  EXPECT_EQ(WriteText(*other),
            "<ActiveDirectory><DefaultDomain Enabled=\"0\" Name=\"\"/></ActiveDirectory>");
  EXPECT_EQ(other->SetDefaultDomain(root->GetDefaultDomain()), 0);
  EXPECT_EQ(root->SetDefaultDomain(root->GetDefaultDomain()), 0);
  EXPECT_EQ(WriteText(*root), kDirectory);
  root->Clear();
  EXPECT_EQ(WriteText(*other), kDirectory);
}

TEST(Policy, EmbedsTheActiveDirectory) {
  using namespace TolvaInterface;
  Diagnostics diagnostics;
  const std::unique_ptr<IILPClientConfiguration> root(ILPClientConfiguration_CreateNewInstance());
  IActiveDirectory* held = nullptr;
  EXPECT_EQ(root->GetActiveDirectory(&held), 1);
  EXPECT_EQ(held, nullptr);
  EXPECT_EQ(root->SetActiveDirectory(MakeDirectory().get()), 0);
  ASSERT_EQ(root->GetActiveDirectory(&held), 0);
  EXPECT_EQ(root->SetActiveDirectory(held), 0);  // itself
  EXPECT_EQ(held->GetDefaultDomain()->GetName(), kName);
  EXPECT_EQ(DirectoryIn(*root), kDirectory);
  const std::unique_ptr<IILPClientConfiguration> copy(ILPClientConfiguration_CreateNewInstance());
  copy->CopyFrom(*root);
  EXPECT_EQ(DirectoryIn(*copy), kDirectory);

  // The flag alone; any value but 0 is present, and is kept.
  DWORD present = 9;
  EXPECT_EQ(root->SetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(root->GetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(root->GetActiveDirectory(&held), 1);
  EXPECT_EQ(DirectoryIn(*root), "");
  EXPECT_EQ(root->SetActiveDirectoryPresent(&present), 0);
  present = 0;
  EXPECT_EQ(root->GetActiveDirectoryPresent(&present), 0);
  EXPECT_EQ(present, 9U);
  EXPECT_EQ(DirectoryIn(*root), kDirectory);
  EXPECT_EQ(root->SetActiveDirectory(nullptr), 0);
  root->GetActiveDirectoryPresent(&present);
  EXPECT_EQ(present, 0U);
  EXPECT_EQ(DirectoryIn(*root), "");
  root->SetActiveDirectoryPresent(&kOne);
  EXPECT_EQ(DirectoryIn(*root), kDirectory) << "absent, it keeps what it holds";
  EXPECT_EQ(diagnostics.Take(), Texts{});
}

TEST(NgConfiguration, ReachesTheActiveDirectoryByForwarding) {
  using namespace NGConfInterface;
  const std::unique_ptr<IClientManagement> management(ClientManagement_CreateNewInstance());
  Diagnostics diagnostics;
  DWORD number = 7;
  std::wstring text = L"kept";
  EXPECT_EQ(management->GetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(management->GetActiveDirectoryPresent(&number), 0);
  EXPECT_EQ(number, 0U);
  EXPECT_EQ(management->GetDefaultDomainName(&text), 1);
  EXPECT_EQ(text, L"kept");
  // What is set of an absent child is kept, and not written.
  EXPECT_EQ(management->SetDefaultDomainEnabled(&kOne), 0);
  EXPECT_EQ(management->SetDefaultDomainEnabled(nullptr), 0);
  EXPECT_EQ(management->GetDefaultDomainEnabled(&number), 0);
  EXPECT_EQ(number, 1U);
  EXPECT_EQ(DirectoryIn(*management), "");
  EXPECT_EQ(management->SetDefaultDomainName(&kName), 0);
  EXPECT_EQ(management->GetDefaultDomainName(nullptr), 0);
  EXPECT_EQ(management->GetDefaultDomainName(&text), 0);
  EXPECT_EQ(text, kName);
  EXPECT_EQ(DirectoryIn(*management), kDirectory);
  EXPECT_EQ(management->SetDefaultDomainName(nullptr), 0);
  EXPECT_EQ(DirectoryIn(*management), "");
  EXPECT_EQ(management->SetActiveDirectoryPresent(&kOne), 0);
  EXPECT_EQ(DirectoryIn(*management), kDirectory);
  EXPECT_EQ(management->SetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(DirectoryIn(*management), "");
  EXPECT_EQ(diagnostics.Take(), Texts{});
}

TEST(NgConfiguration, KeepsTheReservedSettingToItself) {
  using namespace NGConfInterface;
  const std::unique_ptr<IClientManagement> management(ClientManagement_CreateNewInstance());
  const std::string fresh = WriteText(*management);
  const DWORD value = 42;
  DWORD found = 0;
  EXPECT_EQ(management->GetReservedSetting(&found), 1);
  EXPECT_EQ(management->SetReservedSetting(&value), 0);
  EXPECT_EQ(WriteText(*management), fresh);
  EXPECT_EQ(ReadText(*management, L"<ClientManagement ReservedSetting='1'/>"), -101);
  EXPECT_EQ(management->GetReservedSetting(&found), 0);
  EXPECT_EQ(found, 42U);
  const std::unique_ptr<IClientManagement> copy(ClientManagement_CreateNewInstance());
  copy->CopyFrom(*management);
  EXPECT_EQ(copy->GetReservedSetting(&found), 0);
  EXPECT_EQ(management->SetReservedSetting(nullptr), 0);
  EXPECT_EQ(management->GetReservedSetting(nullptr), 1);
}

TEST(ProxyConfiguration, HandsTheActiveDirectoryOut) {
  using namespace ProxyClientConfig;
  const std::unique_ptr<IProxySetting> proxy(ProxySetting_CreateNewInstance());
  Diagnostics diagnostics;
  DWORD present = 7;
  IActiveDirectory* directory = nullptr;
  EXPECT_EQ(proxy->GetActiveDirectory(nullptr), 0);
  EXPECT_EQ(proxy->GetActiveDirectory(&directory), 0);  // absent or not
  ASSERT_NE(directory, nullptr);
  directory->SetDefaultDomain(MakeDirectory()->GetDefaultDomain());
  EXPECT_EQ(DirectoryIn(*proxy), "");
  EXPECT_EQ(proxy->SetActiveDirectoryPresent(&kOne), 0);
  EXPECT_EQ(DirectoryIn(*proxy), kDirectory);
  EXPECT_EQ(diagnostics.Take(), Texts{});

  EXPECT_EQ(proxy->SetActiveDirectory(nullptr), -101);
  EXPECT_EQ(diagnostics.Take(),
            Texts{L"XMLManager: Set element failed due to param is NULL. element:ActiveDirectory"});
  EXPECT_EQ(proxy->GetActiveDirectoryPresent(&present), 0);
  EXPECT_EQ(present, 0U);
  const std::unique_ptr<IProxySetting> other(ProxySetting_CreateNewInstance());
  EXPECT_EQ(other->SetActiveDirectory(directory), 0);
  EXPECT_EQ(DirectoryIn(*other), kDirectory);
  EXPECT_EQ(other->SetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(other->GetActiveDirectoryPresent(&present), 0);
  EXPECT_EQ(present, 0U);
}

}  // namespace
}  // namespace tolva::test
