// How the NG client configuration departs from its tables.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/nodes.h"

namespace tolva::test {
namespace {

using namespace NGConfInterface;

TEST(NgConfiguration, ReachesTheActiveDirectoryByForwarding) {
  const std::unique_ptr<IClientManagement> management(ClientManagement_CreateNewInstance());
  Diagnostics diagnostics;
  const auto written = [&management] {
    const std::string text = WriteText(*management);
    const std::size_t start = text.find("<ActiveDirectory>");
    return start == std::string::npos ? "" : text.substr(start, text.find("</ActiveD") - start);
  };
  const DWORD one = 1;
  const std::wstring name = L"corp";
  DWORD number = 7;
  std::wstring text = L"kept";
  EXPECT_EQ(management->GetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(management->GetActiveDirectoryPresent(&number), 0);
  EXPECT_EQ(number, 0U);
  EXPECT_EQ(management->GetDefaultDomainName(&text), 1);
  EXPECT_EQ(text, L"kept");
  // What is set of an absent child is kept, and not written.
  EXPECT_EQ(management->SetDefaultDomainEnabled(&one), 0);
  EXPECT_EQ(management->SetDefaultDomainEnabled(nullptr), 0);
  EXPECT_EQ(management->GetDefaultDomainEnabled(&number), 0);
  EXPECT_EQ(number, 1U);
  EXPECT_EQ(written(), "");
  EXPECT_EQ(management->SetDefaultDomainName(&name), 0);
  EXPECT_EQ(management->GetDefaultDomainName(nullptr), 0);
  EXPECT_EQ(management->GetDefaultDomainName(&text), 0);
  EXPECT_EQ(text, name);
  EXPECT_EQ(written(), "<ActiveDirectory><DefaultDomain Enabled=\"1\" Name=\"corp\"/>");
  EXPECT_EQ(management->SetDefaultDomainName(nullptr), 0);
  EXPECT_EQ(written(), "");
  EXPECT_EQ(management->SetActiveDirectoryPresent(&one), 0);
  EXPECT_EQ(written(), "<ActiveDirectory><DefaultDomain Enabled=\"1\" Name=\"corp\"/>");

  const std::unique_ptr<IClientManagement> copy(ClientManagement_CreateNewInstance());
  copy->CopyFrom(*management);
  EXPECT_EQ(WriteText(*copy), WriteText(*management));
  EXPECT_EQ(management->SetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(written(), "");
  EXPECT_EQ(diagnostics.Take(), Texts{});
}

TEST(NgConfiguration, KeepsTheReservedSettingToItself) {
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

}  // namespace
}  // namespace tolva::test
