// The verb `convert` and its JSON: there and back, and what is no document.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <regex>

#include "cli/json.h"
#include "cli/layout.h"
#include "cli/run_on.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

using namespace cli;
using Json = nlohmann::ordered_json;

/// The name of the file is left out.
Outcome Convert(const std::string& to, std::string_view bytes,
                std::vector<std::string> options = {}) {
  const TempFile file(bytes);
  options.insert(options.end(), {"--to", to});
  Outcome outcome = RunOn(file, "convert", options);
  const std::size_t at = outcome.err.find(cli::NameOf(file.path()));
  if (at != std::string::npos) outcome.err.erase(at, cli::NameOf(file.path()).size());
  return outcome;
}

TEST(Convert, GoesThereAndBack) {
  for (const Document& document : Documents()) {
    for (unsigned seed = 0; seed < 20; ++seed) {
      SCOPED_TRACE(std::string(document.name) + " " + std::to_string(seed));
      const std::string written = RandomDocument(document, seed);
      const Outcome json = Convert("json", written);
      ASSERT_EQ(json.status, 0) << json.err;
      const Outcome back =
          Convert("xml", "\xEF\xBB\xBF" + json.out, {"--type", std::string(document.name)});
      ASSERT_EQ(back.out, written) << back.err;
    }
  }
}

TEST(Convert, SaysWhereJsonBreaksOff) {
  const std::string json = Convert("json", RandomDocument(*FindDocument("ng"), 2)).out;
  ASSERT_GT(json.size(), 500U);
  for (std::size_t size = 0; size + 1 < json.size(); ++size) {
    if ((static_cast<unsigned char>(json[size]) & 0xC0) == 0x80) continue;
    const std::string front = json.substr(0, size);
    std::size_t last = size == 0 ? 0 : size - 1;
    while ((static_cast<unsigned char>(front[last]) & 0xC0) == 0x80) --last;
    const Outcome outcome = Convert("xml", front);
    ASSERT_EQ(outcome.status, 2) << front;
    ASSERT_EQ(outcome.out, "");
    ASSERT_TRUE(outcome.err.starts_with("tolva: " + PlaceOf(front, last))) << outcome.err << front;
  }
}

/// A member of each kind of each element spoilt in turn: the place is the value's, or the key's.
TEST(Convert, SaysWhereJsonIsWrong) {
  static const std::regex kMember("\n *(\"[A-Za-z]+\"): ([^\n]*)");
  unsigned spoilt = 0;
  for (const Document& document : Documents()) {
    const std::string xml = RunTool({"new", std::string(document.name), "--full"}).out;
    const std::string json = Convert("json", xml, {"--drop"}).out;
    ASSERT_EQ(Convert("xml", json).status, 0);
    const auto end = std::sregex_iterator();
    for (auto member = std::sregex_iterator(json.begin(), json.end(), kMember); member != end;
         ++member) {
      const auto expect = [&](std::size_t at, std::string_view old, const std::string& replacement,
                              std::size_t offset = 0) {
        std::string text = json;
        text.replace(at, old.size(), replacement);
        const Outcome outcome = Convert("xml", text);
        ASSERT_EQ(outcome.status, 2) << text.substr(at, 100);
        const std::string expected = "tolva: " + PlaceOf(text, at + offset) + "'/";
        ASSERT_TRUE(outcome.err.starts_with(expected)) << outcome.err << expected;
        ++spoilt;
      };
      const auto key_at = static_cast<std::size_t>(member->position(1));
      const auto value_at = static_cast<std::size_t>(member->position(2));
      const std::string key = (*member)[1];
      std::string value = (*member)[2];
      expect(key_at, key, "\"Unknown\"");
      const bool is_scalar = value[0] != '{' && value[0] != '[';
      if (!is_scalar) {
        expect(value_at, value.substr(0, 1), value[0] == '[' ? "{}, \"x\": [" : "\"x\", \"x\": {");
        continue;
      }
      if (value.ends_with(',')) value.pop_back();
      expect(value_at, value, "true");
      expect(value_at, value, "[\"\"]");
      expect(value_at, value, value + ", " + key + ": " + value, value.size() + 2);
      if (value[0] == '"') continue;
      expect(value_at, value, "4294967296");
      expect(value_at, value, "1.5");
    }
  }
  EXPECT_GT(spoilt, 2000U);
}

TEST(Convert, RefusesWhatXmlCannotHold) {
  const std::string xml = InViolation("<severity/>");
  const std::string json = Convert("json", xml, {"--drop"}).out;
  const Outcome refused = Convert("xml", json);
  EXPECT_EQ(refused.status, 2);
  const std::string place = PlaceOf(json, json.find("null"));
  EXPECT_NE(refused.err.find(place + "'/analysisDetails/violations/violation/0/severity' is null"),
            std::string::npos)
      << refused.err;
  EXPECT_EQ(Convert("xml", json, {"--drop"}).status, 0);
  EXPECT_EQ(Convert("xml", xml).err, "tolva: '' is XML, not JSON; --to json converts it\n");
  EXPECT_EQ(Convert("json", xml, {"--type", "ng"}).status, 2);
  // Ten million members, all but the first of which are in vain.
  std::string many = R"({"InstallConfig": {)";
  for (int i = 0; i < 10'000'000; ++i) many += "\"" + std::to_string(i) + "\":1,";
  EXPECT_EQ(Convert("xml", many).err.substr(0, 14), "tolva: :1:20: ");
}

// ---- the form ----------------------------------------------------------------------------------

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
  return TroubleOf([&] { FromJson(json, "x", type == nullptr ? nullptr : FindDocument(type)); });
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
