#include "cli/json.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/session.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

using namespace cli;
using Json = nlohmann::ordered_json;

TEST(JsonForm, IsAsDocumented) {
  const Document& document = *FindDocument("analysis-details");
  const auto node = document.make();
  ReadText(*node,
           L"<analysisDetails transactionID='t' version='1'><violations maxMatches='7'>"
           L"<violation><name>n</name><policyID/><numOfMatches>3</numOfMatches>"
           L"<detectedValues/></violation></violations><additionalData><destinations>"
           L"<addresses><address type='Other' value='v'/></addresses></destinations>"
           L"<extractedContents/></additionalData></analysisDetails>");
  EXPECT_EQ(ToJson(document, *node), Json::parse(R"({"analysisDetails": {
      "transactionID": "t", "version": "1",
      "violations": {"maxMatches": 7, "violation": [
          {"name": "n", "policyID": null, "numOfMatches": 3, "detectedValues": {},
           "customDisplayText": ""}]},
      "additionalData": {
          "destinations": {"addresses": [{"address": [{"type": "Other", "value": "v"}]}]},
          "extractedContents": {}}}})"));
}

std::string FaultOf(const std::string& json, const char* type = nullptr) {
  try {
    FromJson(json, "x", type == nullptr ? nullptr : FindDocument(type));
  } catch (const Trouble& trouble) {
    return trouble.what();
  }
  return "none";
}

TEST(JsonForm, SaysWhatIsWrongWhere) {
  const auto in_feature = [](const std::string& members) {
    return FaultOf("{\"InstallConfig\":\n {\"Feature\": {" + members + "}}}");
  };
  EXPECT_EQ(FaultOf("\r\n[]"), "x:2:1: '/' has to be an object");
  EXPECT_EQ(FaultOf(R"({"$schema": "x"})", "install-config"), "x:1:1: '/' needs 'InstallConfig'");
  EXPECT_EQ(FaultOf(R"({"$schema": {}})"), "x:1:13: '/$schema' has to be an object");
  EXPECT_EQ(FaultOf(R"({"InstalConfig": {}})"),
            "x:1:2: '/' has no place for 'InstalConfig'; did you mean 'InstallConfig'?");
  EXPECT_EQ(FaultOf(R"({"InstallConfig": {}})", "ng"),
            "x:1:2: '/' has no place for 'InstallConfig'; its member is 'INGClientConfiguration'");
  EXPECT_EQ(in_feature(R"("ILPEnable": 1)"),
            "x:2:14: '/InstallConfig/Feature' needs 'DiscoveryEnable'");
  EXPECT_EQ(in_feature("\"ILPEnable\":\t2147483648"),
            "x:2:28: '/InstallConfig/Feature/ILPEnable' has to be a number from 0 to 2147483647");
  EXPECT_EQ(in_feature(R"("ILPEnable": 1, "ILPEnable": 1)"),
            "x:2:31: '/InstallConfig/Feature' has 'ILPEnable' twice");
  EXPECT_EQ(in_feature(R"("ILPEnable": 1e999)"), "x:2:28: this is no JSON: a number is too great");
  EXPECT_EQ(in_feature(R"("ILPEnable": 1,, )"),
            "x:2:30: this is no JSON: unexpected ','; expected string literal");
  EXPECT_EQ(in_feature("\"\u00E9\": 1"),
            "x:2:15: '/InstallConfig/Feature' has no place for '\u00E9'");
  const auto in_message = [](const std::string& members) {
    return FaultOf(R"({"EndPointMessage": {"SchemaVersion": 1, "Message": [{"ID": 1, )" + members +
                   "}]}}");
  };
  EXPECT_EQ(
      in_message(R"("Content": "\u0000")"),
      "x:1:75: '/EndPointMessage/Message/0/Content' holds a character that XML does not allow");
  EXPECT_EQ(in_message(R"("Content": null, "Description": "")"),
            "x:1:96: '/EndPointMessage/Message/0/Description' cannot be empty");
  EXPECT_EQ(in_message("\"Content\": \"\u00E9\xFF\""),
            "x:1:77: this is no JSON: invalid string: ill-formed UTF-8 byte");
  EXPECT_EQ(in_message(R"("Content": "\uD800x")").substr(0, 41),
            "x:1:82: this is no JSON: invalid string: ");
  EXPECT_EQ(FaultOf(std::string("\xFF\xFE{\0", 4)), "x:1:1: this is no UTF-8, which JSON is in");
  EXPECT_EQ(FaultOf(R"({"InstallConfig":)" + std::string("\n{}}\0", 5)),
            "x:2:4: there is a zero byte, which JSON does not allow");
  EXPECT_EQ(FaultOf(std::string(1 << 24, '[')), "x:1:1: '/' has to be an object");
  // A catalogue in a catalogue, as deep as elements may be, and one more.
  std::string deep = R"({"EndPointMessage":)";
  for (int i = 0; i < 127; ++i) {
    deep += R"({"SchemaVersion":1,"EndpointLocalMsg":[{"EndPointMessage":[)";
  }
  deep += R"({"SchemaVersion":1,"EndpointLocalMsg":[{)";
  std::string end = "}]}";
  for (int i = 0; i < 127; ++i) end += "]}]}";
  EXPECT_EQ(FaultOf(deep + end + "}"), "none");
  const std::string deeper = deep + R"("EndPointMessage":[{"SchemaVersion":1}])" + end + "}";
  EXPECT_NE(FaultOf(deeper).find("is too deep: 256 elements may be open"), std::string::npos);
}

}  // namespace
}  // namespace tolva::test
