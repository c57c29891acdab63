// The tool's view of the tables, and the sentences of the headers.
#include <gtest/gtest.h>

#include <set>

#include "cli/tables.h"
#include "cli/text.h"
#include "cli/wording.h"

namespace tolva::test {
namespace {

using namespace cli;

/// The interface of an element's class, by the comment that names the element.
std::vector<const ClassSentence*> ClassesOf(const Document& document, const Element& element) {
  const std::string space(document.space);
  std::vector<const ClassSentence*> found;
  for (const std::string& name : {space, std::string("ClientConfig")}) {
    for (const ClassSentence& one : AllClasses()) {
      const bool is_in_space = one.interface_name.starts_with(name + "::");
      if (found.empty() && is_in_space && one.element == element.name) found.push_back(&one);
    }
  }
  return found;
}

/// Every row has a comment, which says the same as the table; its sentence may be empty.
TEST(Sentences, AgreeWithTheTables) {
  std::size_t rows = 0;
  std::size_t sentences = 0;
  for (const Document& document : Documents()) {
    for (const auto& element : document.elements) {
      SCOPED_TRACE(std::string(document.name) + " " + element->id);
      EXPECT_FALSE(element->sentence.empty());
      const auto classes = ClassesOf(document, *element);
      ASSERT_EQ(classes.size(), 1U);
      const auto check = [&](const std::string& name, Occurrence occurrence,
                             std::string_view sentence) {
        const RowSentence* const row = FindRow(*classes[0], name);
        ASSERT_NE(row, nullptr) << name;
        EXPECT_EQ(row->occurrence, occurrence) << name;
        ++rows;
        if (!sentence.empty()) ++sentences;
      };
      for (const Attribute& one : element->attributes) {
        check(one.name, one.occurrence, one.sentence);
      }
      for (const Child& one : element->children) check(one.name, one.occurrence, one.sentence);
    }
  }
  EXPECT_GT(sentences * 10, rows * 9);
}

/// Nothing is said of what is in no table.
TEST(Sentences, AreAllUsed) {
  std::set<std::string_view> elements;
  std::set<std::string_view> rows;
  for (const Document& document : Documents()) {
    for (const auto& element : document.elements) {
      elements.insert(element->name);
      for (const Attribute& one : element->attributes) rows.insert(one.name);
      for (const Child& one : element->children) rows.insert(one.name);
    }
  }
  for (const ClassSentence& one : AllClasses()) {
    EXPECT_TRUE(one.element.empty() || elements.contains(one.element)) << one.element;
    for (const RowSentence& row : one.rows) EXPECT_TRUE(rows.contains(row.name)) << row.name;
  }
}

TEST(Tables, SayWhatElementsMean) {
  const Document* const policy = FindDocument("policy");
  ASSERT_NE(policy, nullptr);
  EXPECT_EQ(FindDocument("ILPClientConfiguration"), policy);
  EXPECT_EQ(FindDocument("Location"), nullptr);
  std::set<std::string> ids;
  for (const auto& element : policy->elements) EXPECT_TRUE(ids.insert(element->id).second);
  // Two elements share this name.
  EXPECT_TRUE(ids.contains("ExcludeDomains.ExcludeDomain"));
  EXPECT_TRUE(ids.contains("ExcludeJSInjectionDomains.ExcludeDomain"));

  const auto element = [](const char* document, std::string_view id) -> const Element& {
    for (const auto& one : FindDocument(document)->elements) {
      if (one->id == id) return *one;
    }
    throw std::runtime_error("no such element");
  };
  const Element& proxy = element("policy", "ILPInlineProxy");
  EXPECT_EQ(proxy.FindAttribute("Enable")->when_absent, "1");
  EXPECT_EQ(element("ci", "ClientSetting").FindAttribute("EnableTelemetry")->when_absent, "0");
  const Attribute& enabled = *element("policy", "DefaultDomain").FindAttribute("Enabled");
  EXPECT_EQ(enabled.occurrence, Occurrence::kOptional);
  EXPECT_EQ(enabled.value.greatest, 2147483647U);
  EXPECT_TRUE(element("policy", "FileFilter").FindAttribute("MinSize")->value.IsLong());
  EXPECT_TRUE(element("policy", "PrimaryKey").FindAttribute("Key")->is_secret);
  EXPECT_EQ(NamesOfItem(element("policy", "LocalProxy")), (std::vector<std::string>{"IP", "Port"}));
  EXPECT_EQ(NamesOfItem(element("analysis-details", "violation")),
            (std::vector<std::string>{"name"}));
  EXPECT_FALSE(element("analysis-details", "customDisplayText").is_text_required);
  EXPECT_TRUE(element("analysis-details", "name").is_text_required);
}

/// Items of a list are told apart by something, but for lists of lists and of what has no name.
TEST(Tables, NameTheItemsOfLists) {
  std::set<std::string> nameless;
  for (const Document& document : Documents()) {
    for (const auto& element : document.elements) {
      for (const Child& child : element->children) {
        const bool is_list = child.occurrence == Occurrence::kRepeated;
        if (is_list && NamesOfItem(*child.element).empty()) nameless.insert(child.name);
      }
    }
  }
  EXPECT_EQ(nameless, (std::set<std::string>{"EndpointLocalMsg", "TimeSlot", "addresses"}));
}

}  // namespace
}  // namespace tolva::test
