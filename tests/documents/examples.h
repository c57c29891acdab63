// The example documents as the tests know them.
#pragma once

#include "modules/examples.h"
#include "policy/example.h"
#include "support/example.h"

namespace tolva::test {

inline Example ActiveDirectoryExample() {
  const std::vector<ElementRule> no_more_rules;
  return {"active-directory.xml",
          [] { return Example::Node(ClientConfig::ActiveDir_CreateNewInstance()); },
          WithActiveDirectory(no_more_rules), WithActiveDirectory(Departures())};
}

inline Example AnalysisDetailsExample() {
  return Example(
      "analysis-details.xml",
      [] { return Example::Node(CpsAnalysisDetailsConf::analysisDetails_CreateNewInstance()); },
      {
          {L"analysisDetails", L"transactionID:S! version:S!", L"violations additionalData"},
          {L"violations", L"maxMatches:N!", L"violation*"},
          {L"violation", L"",
           L"name! policyID severity numOfMatches! detectedValues! customDisplayText?"},
          {L"name", L"#:S!", L""},
          {L"policyID", L"#:S", L""},
          {L"severity", L"#:S", L""},
          {L"numOfMatches", L"#:N!", L""},
          {L"detectedValues", L"", L"detectedValue*"},
          {L"detectedValue", L"", L"value! count! location context classifierType"},
          {L"value", L"#:S!", L""},
          {L"count", L"#:N!~", L""},
          {L"location", L"#:S", L""},
          {L"context", L"#:S", L""},
          {L"classifierType", L"#:S", L""},
          {L"customDisplayText", L"#:S?", L""},
          {L"additionalData", L"", L"destinations! extractedContents!"},
          {L"destinations", L"", L"addresses*"},
          {L"addresses", L"", L"address*"},
          {L"address", L"type:E! value:S!", L""},
          {L"extractedContents", L"", L"extractedContent*"},
          {L"extractedContent", L"type:E! value:S!", L""},
      });
}

inline Example MessageCatalogueExample() {
  return Example(
      "message-catalogue.xml",
      [] { return Example::Node(MessageConf::EndPointMessage_CreateNewInstance()); },
      {
          {L"EndPointMessage", L"SchemaVersion:N! Language:S", L"Message* EndpointLocalMsg*"},
          {L"Message", L"ID:N!", L"Content! Description!"},
          {L"Content", L"#:S", L""},
          {L"Description", L"#:S!", L""},
          {L"EndpointLocalMsg", L"", L"EndPointMessage*"},
      });
}

inline Example InstallConfigExample() {
  return Example(
      "install-config.xml",
      [] { return Example::Node(IpbtConf::InstallConfig_CreateNewInstance()); },
      {
          {L"InstallConfig", L"", L"Feature! InstallSetting!"},
          {L"Feature", L"ILPEnable:N! DiscoveryEnable:N!", L""},
          {L"InstallSetting", L"InstallDirectory:S AutoReboot:N! InstallStartMenu:N!", L""},
      });
}

inline Example PatchHistoryExample() {
  return Example(
      "patch-history.xml",
      [] { return Example::Node(PatchFileHistory::EndpointFilePatches_CreateNewInstance()); },
      {
          {L"EndpointFilePatches",
           L"SchemaVersion:N SN:S Name:S LastAppliedPatchVersion:S UpdateDate:S! RefId:S",
           L"PatchFileInfo*"},
          {L"PatchFileInfo", L"Name:S! UpdateDate:S! PatchVersion:S! ProductID:S",
           L"ModuleListingArray!"},
          {L"ModuleListingArray", L"", L"WSModule*"},
          {L"WSModule",
           L"Name:S! Version:S ProductID:S PreviouslyExisted:N Description:S InstallationDir:S!",
           L""},
      });
}

struct NamedExample {
  const char* name;
  Example (*make)();
};

inline constexpr NamedExample kExamples[] = {
    {"ActiveDirectory", &ActiveDirectoryExample},
    {"Policy", &PolicyExample},
    {"Ng", &NgExample},
    {"Global", &GlobalExample},
    {"Proxy", &ProxyExample},
    {"Ci", &CiExample},
    {"RemoteFiltering", &RemoteFilteringExample},
    {"AnalysisDetails", &AnalysisDetailsExample},
    {"MessageCatalogue", &MessageCatalogueExample},
    {"InstallConfig", &InstallConfigExample},
    {"PatchHistory", &PatchHistoryExample},
};

inline std::string NameOfExample(const testing::TestParamInfo<NamedExample>& info) {
  return info.param.name;
}

}  // namespace tolva::test
