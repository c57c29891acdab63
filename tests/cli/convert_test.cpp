// The verb `convert`: there and back, and what is no document.
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <regex>

#include "cli/layout.h"
#include "cli/run_on.h"

namespace tolva::test {
namespace {

using namespace cli;

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
                              std::size_t place) {
        std::string text = json;
        text.replace(at, old.size(), replacement);
        const Outcome outcome = Convert("xml", text);
        ASSERT_EQ(outcome.status, 2) << text.substr(at, 100);
        const std::string expected = "tolva: " + PlaceOf(text, place) + "'/";
        ASSERT_TRUE(outcome.err.starts_with(expected)) << outcome.err << expected;
        ++spoilt;
      };
      const auto key_at = static_cast<std::size_t>(member->position(1));
      const auto value_at = static_cast<std::size_t>(member->position(2));
      const std::string key = (*member)[1];
      std::string value = (*member)[2];
      expect(key_at, key, "\"Unknown\"", key_at);
      const bool is_scalar = value[0] != '{' && value[0] != '[';
      if (!is_scalar) {
        expect(value_at, value.substr(0, 1), value[0] == '[' ? "{}, \"x\": [" : "\"x\", \"x\": {",
               value_at);
        continue;
      }
      if (value.ends_with(',')) value.pop_back();
      expect(value_at, value, "true", value_at);
      expect(value_at, value, "[\"\"]", value_at);
      if (value[0] != '"') expect(value_at, value, "4294967296", value_at);
      expect(value_at, value, value + ", " + key + ": " + value, value_at + value.size() + 2);
      if (value[0] != '"') expect(value_at, value, "1.5", value_at);
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

}  // namespace
}  // namespace tolva::test
