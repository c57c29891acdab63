// How the installation settings and the patch history depart from what all documents do.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/fragments.h"

namespace tolva::test {
namespace {

TEST(Records, JudgeFragments) {
  using namespace IpbtConf;
  using namespace PatchFileHistory;
  const std::wstring no_enable =
      L"XMLManager: read required dword/bool Attribute failed. element:Feature, attr:ILPEnable";
  constexpr std::string_view kFreshFeature = "<Feature ILPEnable=\"0\" DiscoveryEnable=\"0\"/>";
  constexpr std::string_view kFreshConfig =
      "<InstallConfig><Feature ILPEnable=\"0\" DiscoveryEnable=\"0\"/><InstallSetting "
      "AutoReboot=\"0\" InstallStartMenu=\"0\"/></InstallConfig>";
  ExpectAll({
      {Make<InstallConfig_CreateNewInstance>,
       L"<InstallConfig><InstallSetting AutoReboot='0' InstallStartMenu='1'/>"
       L"<Feature ILPEnable='1' DiscoveryEnable='99999999999'/></InstallConfig>",
       0,
       {},
       "<InstallConfig><Feature ILPEnable=\"1\" DiscoveryEnable=\"2147483647\"/><InstallSetting "
       "AutoReboot=\"0\" InstallStartMenu=\"1\"/></InstallConfig>"},
      {Make<Feature_CreateNewInstance>,
       L"<Feature DiscoveryEnable='1'/>",
       -101,
       {no_enable},
       kFreshFeature},
      {Make<Feature_CreateNewInstance>,
       L"<Feature ILPEnable='yes'/>",
       -101,
       {no_enable},
       kFreshFeature},
      {Make<InstallConfig_CreateNewInstance>,
       L"<InstallConfig/>",
       -101,
       {L"XMLManager: sub-element Feature is missing"},
       kFreshConfig},
      {Make<EndpointFilePatches_CreateNewInstance>,
       L"<EndpointFilePatches UpdateDate='2020-01-01'/>",
       0,
       {},
       "<EndpointFilePatches UpdateDate=\"2020-01-01\"></EndpointFilePatches>"},
      {Make<EndpointFilePatches_CreateNewInstance>,
       L"<EndpointFilePatches SchemaVersion='4294967295' UpdateDate=''><PatchFileInfo Name='' "
       L"UpdateDate='' PatchVersion=''/></EndpointFilePatches>",
       -101,
       {L"XMLManager: sub-element ModuleListingArray is missing",
        L"XMLManager: read  multiple element failed. element:PatchFileInfo"},
       "<EndpointFilePatches UpdateDate=\"\"></EndpointFilePatches>"},
      {Make<ModuleListingArray_CreateNewInstance>,
       L"<ModuleListingArray/>",
       0,
       {},
       "<ModuleListingArray></ModuleListingArray>"},
      {Make<WSModule_CreateNewInstance>,
       L"<WSModule Name='a' PreviouslyExisted='2147483648' InstallationDir=''/>",
       0,
       {},
       "<WSModule Name=\"a\" PreviouslyExisted=\"2147483647\" InstallationDir=\"\"/>"},
  });
}

TEST(Records, GetInstallationSwitchesThroughPointers) {
  const std::unique_ptr<IpbtConf::IFeature> feature(IpbtConf::Feature_CreateNewInstance());
  DWORD value = 4711;
  EXPECT_EQ(feature->GetILPEnable(&value), 0);
  EXPECT_EQ(value, 0U);
  EXPECT_EQ(feature->GetILPEnable(nullptr), 0);
}

}  // namespace
}  // namespace tolva::test
