// Every row and table that departs from the rules, by name: what the other tests take from the
// tables is what a reader of the documents expects. Reports are left to documents_test.cpp.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "tables/elements.h"

namespace tolva::test {
namespace {

using namespace node;

void AddDepartures(const std::string& name, const Schema& table, std::set<std::string>& found) {
  const auto add = [&](bool departs, const std::string& what) {
    if (departs) found.insert(name + what);
  };
  if (table.dialect.numbers == Numbers::kSigned) {
    found.insert(name.substr(0, name.find(':')) + ": numbers are signed");
  }
  add(table.closes_as_empty_tag, ": closes as an empty tag");
  add(table.content.takes_leading_digits, ": takes leading digits");
  add(table.content.is_always_written, ": is always written");
  add(table.content.stops_at_first_end_tag, ": stops at the first end tag");
  for (const Attribute& row : table.attributes) {
    const std::string attribute = "/" + std::string(row.name.narrow());
    add(row.may_be_absent, attribute + ": may be absent");
    add(row.is_one_when_absent, attribute + ": is 1 when absent");
    add(row.ignores_write_failure, attribute + ": ignores a failed write");
    add(row.is_present_when_clear, attribute + ": is present when clear");
    add(row.keeps_value, attribute + ": keeps its value");
    add(row.keeps_presence, attribute + ": keeps its presence");
    add(row.enum_texts.otherwise.size() != 0,
        attribute + ": else " + std::string(row.enum_texts.otherwise.narrow()));
  }
  for (const Child& row : table.children) {
    const std::string child = "/" + std::string(row.name().narrow());
    add(row.may_be_absent, child + ": may be absent");
    add(row.is_reported_first, child + ": is reported first");
    add(row.keeps_presence, child + ": keeps its presence");
  }
}

TEST(Tables, DepartFromTheRulesHereAlone) {
  const std::set<std::string> expected = {
      "CIConfInterface: numbers are signed",
      "CIConfInterface::ClientSetting/EnableTelemetry: is present when clear",
      "CIConfInterface::ICIClientConfiguration/ClientSetting: is reported first",
      "ClientConfig: numbers are signed",
      "ClientConfig::ActiveDir: closes as an empty tag",
      "ClientConfig::DefaultDomain/Enabled: ignores a failed write",
      "ClientConfig::DefaultDomain/Enabled: may be absent",
      "ClientConfig::DefaultDomain/Name: ignores a failed write",
      "CpsAnalysisDetailsConf::address/type: keeps its value",
      "CpsAnalysisDetailsConf::count: takes leading digits",
      "CpsAnalysisDetailsConf::detectedValue/count: is reported first",
      "CpsAnalysisDetailsConf::extractedContent/type: keeps its value",
      "CpsAnalysisDetailsConf::violation/customDisplayText: may be absent",
      "GlobalConfInterface::Setting/AppName: else FIREFOX",
      "GlobalConfInterface::Setting/AppName: keeps its value",
      "IpbtConf: numbers are signed",
      "MessageConf::Content: is always written",
      "MessageConf::Content: stops at the first end tag",
      "MessageConf::Description: stops at the first end tag",
      "PatchFileHistory: numbers are signed",
      "ProxyClientConfig::ClientSetting/EnableTelemetry: is present when clear",
      "RFConfInterface: numbers are signed",
      "RFConfInterface::ClientSetting/EnableTelemetry: may be absent",
      "RFConfInterface::IRFClientConfiguration/ClientSetting: is reported first",
      "TolvaInterface::DiscoveryAction/Action: keeps its value",
      "TolvaInterface::ILPInLineProxy/Enable: is 1 when absent",
      "TolvaInterface::ILPInLineProxy/Enable: keeps its presence",
      "TolvaInterface::ILPInLineProxy/EnableDriverWebTraffic: is 1 when absent",
      "TolvaInterface::ILPInLineProxy/EnableDriverWebTraffic: keeps its presence",
      "TolvaInterface::ILPInLineProxy/ExcludeDomains: keeps its presence",
      "TolvaInterface::ILPInLineProxy/ExcludeJSInjectionDomains: keeps its presence",
      "TolvaInterface::ILPInLineProxy/IncludeApps: keeps its presence",
      "TolvaInterface::ILPInLineProxy/LocalProxies: keeps its presence",
      "TolvaInterface::ILPInLineProxy/SystemPAC: is 1 when absent",
      "TolvaInterface::ILPInLineProxy/SystemPAC: keeps its presence",
      "TolvaInterface::Schedule/RecurType: keeps its value",
      "TolvaInterface::Schedule/TimeType: keeps its value",
  };
  std::set<std::string> found;
  for (const Element& element : AllElements()) AddDepartures(element.name, *element.schema, found);
  EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace tolva::test
