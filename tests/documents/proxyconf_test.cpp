// How the proxy client configuration departs from its tables.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/nodes.h"

namespace tolva::test {
namespace {

using namespace ProxyClientConfig;

TEST(ProxyConfiguration, BringsTelemetryBack) {
  const std::unique_ptr<IClientSetting> setting(ClientSetting_CreateNewInstance());
  DWORD telemetry = 9;
  EXPECT_EQ(setting->GetEnableTelemetry(&telemetry), 0);
  EXPECT_EQ(telemetry, 0U);
  EXPECT_EQ(setting->SetEnableTelemetry(nullptr), 0);
  EXPECT_EQ(setting->GetEnableTelemetry(&telemetry), 1);
  EXPECT_EQ(WriteText(*setting).find("EnableTelemetry"), std::string::npos);
  setting->Clear();
  EXPECT_EQ(setting->GetEnableTelemetry(&telemetry), 0);
}

TEST(ProxyConfiguration, HandsTheActiveDirectoryOut) {
  const std::unique_ptr<IProxySetting> proxy(ProxySetting_CreateNewInstance());
  Diagnostics diagnostics;
  const DWORD one = 1;
  DWORD present = 7;
  ClientConfig::IActiveDirectory* directory = nullptr;
  EXPECT_EQ(proxy->GetActiveDirectory(nullptr), 0);
  EXPECT_EQ(proxy->GetActiveDirectory(&directory), 0);  // absent or not
  ASSERT_NE(directory, nullptr);
  const std::wstring name = L"corp";
  directory->GetDefaultDomain()->SetName(&name);
  EXPECT_EQ(WriteText(*proxy), "<ProxySetting><PACFile URL=\"\"/></ProxySetting>");
  EXPECT_EQ(proxy->SetActiveDirectoryPresent(&one), 0);
  const std::string with = WriteText(*proxy);
  EXPECT_EQ(with,
            "<ProxySetting><PACFile URL=\"\"/><ActiveDirectory><DefaultDomain "
            "Enabled=\"0\" Name=\"corp\"/></ActiveDirectory></ProxySetting>");
  EXPECT_EQ(diagnostics.Take(), Texts{});

  EXPECT_EQ(proxy->SetActiveDirectory(nullptr), -101);
  EXPECT_EQ(diagnostics.Take(),
            Texts{L"XMLManager: Set element failed due to param is NULL. element:ActiveDirectory"});
  EXPECT_EQ(proxy->GetActiveDirectoryPresent(&present), 0);
  EXPECT_EQ(present, 0U);
  const std::unique_ptr<IProxySetting> other(ProxySetting_CreateNewInstance());
  EXPECT_EQ(other->SetActiveDirectory(directory), 0);
  EXPECT_EQ(WriteText(*other), with);
  EXPECT_EQ(other->SetActiveDirectoryPresent(nullptr), 0);
  EXPECT_EQ(other->GetActiveDirectoryPresent(&present), 0);
  EXPECT_EQ(present, 0U);
}

}  // namespace
}  // namespace tolva::test
