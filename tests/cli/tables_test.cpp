// The tool's view of the tables, the sentences of the headers, and paths into documents.
#include <gtest/gtest.h>

#include <set>

#include "cli/new.h"
#include "cli/places.h"
#include "cli/run.h"
#include "cli/tables.h"
#include "cli/wording.h"

namespace tolva::test {
namespace {

using namespace cli;

/// A class of a namespace for an element, by the comment that names the element; null: there is
/// none.
const ClassSentence* ClassOf(std::string_view space, const Element& element) {
  for (const ClassSentence& one : AllClasses()) {
    const bool is_in_space = one.interface_name.starts_with(std::string(space) + "::");
    if (is_in_space && one.element == element.name) return &one;
  }
  return nullptr;
}

/// Every row has a comment, which says the same as the table; its sentence may be empty. Nothing is
/// said of what is in no table.
TEST(Sentences, AgreeWithTheTables) {
  std::set<std::string_view> elements = {""};
  std::set<std::string_view> rows;
  std::size_t checked = 0;
  std::size_t sentences = 0;
  for (const Document& document : Documents()) {
    for (const auto& element : document.elements) {
      SCOPED_TRACE(std::string(document.name) + " " + element->id);
      EXPECT_FALSE(element->sentence.empty());
      elements.insert(element->name);
      const ClassSentence* sentences_of = ClassOf(document.space, *element);
      if (sentences_of == nullptr) sentences_of = ClassOf("ClientConfig", *element);
      ASSERT_NE(sentences_of, nullptr);
      const auto check = [&](const auto& one) {
        const RowSentence* const row = FindRow(*sentences_of, one.name);
        ASSERT_NE(row, nullptr) << one.name;
        EXPECT_EQ(row->occurrence, one.occurrence) << one.name;
        rows.insert(one.name);
        ++checked;
        sentences += one.sentence.empty() ? 0U : 1U;
      };
      for (const Attribute& one : element->attributes) check(one);
      for (const Child& one : element->children) check(one);
    }
  }
  EXPECT_GT(sentences * 10, checked * 9);
  for (const ClassSentence& one : AllClasses()) {
    EXPECT_TRUE(elements.contains(one.element)) << one.element;
    for (const RowSentence& row : one.rows) EXPECT_TRUE(rows.contains(row.name)) << row.name;
  }
}

TEST(Tables, SayWhatElementsMean) {
  EXPECT_EQ(FindDocument("Location"), nullptr);
  EXPECT_EQ(FindDocument("ILPClientConfiguration"), FindDocument("policy"));
  const std::string proxy = "policy/LocationArray/Location/ILPProtection/ILPInlineProxy/";
  EXPECT_EQ(FindPlace(proxy + "Enable").attribute->when_absent, "1");
}

/// Items of a list are told apart by something, but for lists of lists and of what has no name.
TEST(Tables, NameTheItemsOfLists) {
  std::set<std::string> nameless;
  std::set<std::string> with_several;
  for (const Document& document : Documents()) {
    for (const auto& element : document.elements) {
      for (const Child& child : element->children) {
        if (child.occurrence != Occurrence::kRepeated) continue;
        const std::vector<std::string> names = NamesOfItem(*child.element);
        if (names.empty()) nameless.insert(child.name);
        if (names.size() < 2) continue;
        std::string all = child.name + ":";
        for (const std::string& name : names) all += " " + name;
        with_several.insert(all);
      }
    }
  }
  EXPECT_EQ(nameless, (std::set<std::string>{"EndpointLocalMsg", "TimeSlot", "addresses"}));
  EXPECT_EQ(with_several,
            (std::set<std::string>{"DeviceRule: DeviceName SerialNumber VendorID",
                                   "EIMServer: HostName PortNumber", "IPNode: IPRange PortNumber",
                                   "LocalProxy: IP Port", "RFServer: HostName PortNumber",
                                   "Setting: AppName AppVersionMajor AppVersionMinor"}));
}

TEST(NewDocument, HasEverythingOnRequest) {
  for (const Document& document : Documents()) {
    const std::string full = NewDocument(document, NewContent::kEverything);
    const std::string least = NewDocument(document, NewContent::kRequired);
    for (const auto& element : document.elements) {
      SCOPED_TRACE(element->id);
      EXPECT_NE(full.find("<" + element->name), std::string::npos);
      for (const Attribute& attribute : element->attributes) {
        EXPECT_NE(full.find(" " + attribute.name + "=\""), std::string::npos) << attribute.name;
        for (const std::string& text : attribute.value.texts) {
          EXPECT_NE(full.find(text), std::string::npos) << text;
        }
      }
    }
    EXPECT_LT(least.size(), full.size());
  }
}

// ---- places ------------------------------------------------------------------------------------

std::string FaultOf(const std::string& place) {
  return TroubleOf([&] { FindPlace(place); });
}

TEST(Paths, NameStepsAndWhichItemIsMeant) {
  EXPECT_EQ(ParsePath("A[N=x y]")[0].value, "x y");  // a shell took the quotes
  EXPECT_EQ(ParsePath("A[N=\"x]/\"]/B")[0].value, "x]/");
  EXPECT_EQ(ParsePath("A[N='\"']")[0].value, "\"");
  EXPECT_EQ(ParsePath("A/").size(), 1U);
  for (const char* const wrong :
       {"/A", "A//B", "[1]", "A[", "A[]", "A[0]", "A[1", "A[1]B", "A[N]", "A[N=]", "A[N=x\"]",
        "A[N=\"x]", "A[=\"x\"]", "A[99999999999999999999]", "A[1]]"}) {
    EXPECT_THROW(ParsePath(wrong), Trouble) << wrong;
  }
}

TEST(Places, ThatAreNotThereHaveNeighbours) {
  EXPECT_EQ(FaultOf("MaxLogSise"),
            "there is no document 'MaxLogSise'; did you mean 'policy/Log/MaxLogSize'?");
  EXPECT_EQ(FaultOf("policy/Log/MaxLogSise"),
            "'policy/Log' has no 'MaxLogSise'; did you mean 'MaxLogSize'?");
  EXPECT_EQ(FaultOf("policy/Log/\x1B"), "'policy/Log' has no '\\x1B'; it has MaxLogSize");
  EXPECT_EQ(FaultOf("policy/SN/x"), "'policy/SN' is an attribute: nothing is in it");
  EXPECT_EQ(FaultOf("message-catalogue/Message/Content/x"),
            "'message-catalogue/Message/Content' has neither attributes nor children");
  EXPECT_TRUE(FaultOf("zzzzzzzz").starts_with("there is no document 'zzzzzzzz'; there are "));
}

TEST(Places, AreVisitedOnce) {
  for (const Document& document : Documents()) {
    std::set<std::string> paths;
    std::set<const Element*> elements;
    ForEachPlace(document, [&](const Place& place) {
      EXPECT_TRUE(paths.insert(place.path).second) << place.path;
      elements.insert(place.element);
      EXPECT_EQ(FindPlace(std::string(document.name) + "/" + place.path).attribute,
                place.attribute);
    });
    EXPECT_EQ(elements.size(), document.elements.size());
  }
}

}  // namespace
}  // namespace tolva::test
