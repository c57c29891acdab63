#include "cli/places.h"

#include <gtest/gtest.h>

#include <set>

#include "cli/session.h"

namespace tolva::test {
namespace {

using namespace cli;

std::string FaultOf(const std::string& place) {
  try {
    FindPlace(place);
  } catch (const Trouble& trouble) {
    return trouble.what();
  }
  return "none";
}

TEST(Paths, NameStepsAndWhichItemIsMeant) {
  const auto steps = ParsePath("A[12]/B[Name=\"x]/\"]/C[N='\"']/D/");
  ASSERT_EQ(steps.size(), 4U);
  EXPECT_EQ(steps[0].name, "A");
  EXPECT_EQ(steps[0].position, 12U);
  EXPECT_EQ(steps[1].attribute, "Name");
  EXPECT_EQ(steps[1].value, "x]/");
  EXPECT_EQ(steps[2].value, "\"");
  EXPECT_EQ(steps[3].name, "D");
  EXPECT_EQ(ParsePath("A[N=x y]")[0].value, "x y");  // a shell took the quotes
  EXPECT_TRUE(ParsePath("").empty());
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
