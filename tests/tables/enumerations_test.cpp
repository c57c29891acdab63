// The constants of the public headers against the texts of the tables.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tables/elements.h"

namespace tolva::test {
namespace {

using namespace CpsAnalysisDetailsConf;
using namespace GlobalConfInterface;
using namespace TolvaInterface;

struct Enumerator {
  std::string_view enumeration;
  std::string_view name;
  DWORD value;
  std::wstring_view text;  ///< as its comment gives it
};

/// Those of all headers.
const Enumerator kEnumerators[] = {
#define TOLVA_ENUMERATOR(enumeration, constant, text) \
  {#enumeration, #constant, enumeration{constant}, text},
#include "tables/enumerators.def"
#undef TOLVA_ENUMERATOR
};

const std::map<std::string, std::string_view, std::less<>> kEnumerations = {
    {"CpsAnalysisDetailsConf::address type", "AddressType"},
    {"CpsAnalysisDetailsConf::extractedContent type", "ExtractedContentType"},
    {"GlobalConfInterface::Setting AppName", "AppName"},
    {"TolvaInterface::AppRule Action", "RuleAction"},
    {"TolvaInterface::BrowserExtension BrowserName", "BrowserName"},
    {"TolvaInterface::DeviceRule Action", "RuleAction"},
    {"TolvaInterface::DiscoveryAction Action", "DiscoveryAction"},
    {"TolvaInterface::DiscoverySettings ScanMode", "ScanMode"},
    {"TolvaInterface::InitialRecur Type", "InitialRecurType"},
    {"TolvaInterface::OnlineApps Action", "RuleAction"},
    {"TolvaInterface::RemoteDriveRule Action", "RuleAction"},
    {"TolvaInterface::Schedule RecurType", "RecurType"},
    {"TolvaInterface::Schedule TimeType", "TimeType"},
    {"TolvaInterface::UserInterface DefaultActionOnUserPromptTimeout", "UserPromptTimeoutAction"},
    {"TolvaInterface::UserInterface Mode", "UserInterfaceMode"},
    {"TolvaInterface::WebAccessRule Action", "RuleAction"},
};

/// Whether a constant's name ends like its text: kTimeTypeUtc, "UTC".
bool IsNamedAfter(std::string_view name, std::wstring_view text) {
  for (; !text.empty(); text.remove_suffix(1)) {
    if (text.back() == L'_') continue;
    if (name.empty() || (name.back() | 0x20) != (text.back() | 0x20)) return false;
    name.remove_suffix(1);
  }
  return true;
}

/// The texts of an enumeration, that of value 0 first.
std::vector<std::wstring> TextsOf(std::string_view enumeration) {
  std::vector<std::wstring> texts;
  for (const Enumerator& one : kEnumerators) {
    if (one.enumeration != enumeration) continue;
    EXPECT_EQ(one.value, texts.size()) << one.name;
    EXPECT_TRUE(IsNamedAfter(one.name, one.text)) << one.name;
    texts.emplace_back(one.text);
  }
  return texts;
}

TEST(Enumerations, HaveAConstantForEachTextOfTheirAttributes) {
  std::set<std::string> attributes;
  std::set<std::string_view> enumerations;
  for (const Element& element : AllElements()) {
    for (const node::Attribute& row : element.schema->attributes) {
      if (row.type != node::ValueType::kEnum) continue;
      const std::wstring_view name = row.name;
      const std::string attribute = element.name + (" " + std::string(name.begin(), name.end()));
      const auto found = kEnumerations.find(attribute);
      ASSERT_NE(found, kEnumerations.end()) << attribute << " has no enumeration";
      std::vector<std::wstring> texts;
      for (const node::Name& text : row.enum_texts.texts) texts.emplace_back(text.c_str());
      EXPECT_EQ(TextsOf(found->second), texts) << attribute;
      attributes.insert(attribute);
      enumerations.insert(found->second);
    }
  }
  EXPECT_EQ(attributes.size(), kEnumerations.size());
  for (const Enumerator& one : kEnumerators) EXPECT_TRUE(enumerations.contains(one.enumeration));
}

}  // namespace
}  // namespace tolva::test
