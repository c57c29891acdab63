#include "cli/json.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/session.h"
#include "support/files.h"
#include "support/nodes.h"
#include "tables/random_content.h"

namespace tolva::test {
namespace {

using namespace cli;
using Json = nlohmann::ordered_json;

TEST(JsonForm, HoldsWhatNodesHold) {
  for (const Document& document : Documents()) {
    for (unsigned seed = 0; seed < 20; ++seed) {
      SCOPED_TRACE(std::string(document.name) + " " + std::to_string(seed));
      const auto node = document.make();
      RandomContent(seed).Fill(*document.root().schema, *node);
      const Json json = ToJson(document, *node);
      const auto again = document.make();
      RandomContent(seed + 1).Fill(*document.root().schema, *again);  // which is to be lost
      FromJson(document, Json::parse(json.dump()), *again);
      EXPECT_TRUE(AreEqual(*document.root().schema, *node, *again)) << json.dump(2);
    }
  }
}

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

/// The first fault of a document in JSON; the schemas' tests try the others.
std::string FaultOf(const char* document, const char* json) {
  const Document& one = *FindDocument(document);
  try {
    FromJson(one, Json::parse(json), *one.make());
  } catch (const Trouble& trouble) {
    return trouble.what();
  }
  return "none";
}

TEST(JsonForm, SaysWhatIsWrongWhere) {
  EXPECT_EQ(FaultOf("install-config", "[]"), "'/' has to be an object");
  EXPECT_EQ(FaultOf("install-config", R"({"$schema": "x"})"),
            "'/' needs the member 'InstallConfig'");
  EXPECT_EQ(FaultOf("install-config", R"({"InstallConfig": {"Feture": {}}})"),
            "'/InstallConfig' has no place for 'Feture'");
  EXPECT_EQ(FaultOf("install-config", R"({"InstallConfig": {"Feature": {"ILPEnable": 1}}})"),
            "'/InstallConfig/Feature' needs 'DiscoveryEnable'");
  EXPECT_EQ(
      FaultOf("install-config", R"({"InstallConfig": {"Feature": {"ILPEnable": 2147483648}}})"),
      "'/InstallConfig/Feature/ILPEnable' has to be a number from 0 to 2147483647");
  EXPECT_EQ(
      FaultOf(
          "message-catalogue",
          R"({"EndPointMessage": {"SchemaVersion": 1, "Message": [{"ID": 1, "Content": "\u0001"}]}})"),
      "'/EndPointMessage/Message/0/Content' holds a character that XML does not allow");
  EXPECT_EQ(
      FaultOf("message-catalogue",
              R"({"EndPointMessage": {"SchemaVersion": 1, "Message": [{"ID": 1, "Content": null,
                        "Description": ""}]}})"),
      "'/EndPointMessage/Message/0/Description' cannot be empty");
}

}  // namespace
}  // namespace tolva::test
