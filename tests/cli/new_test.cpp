#include "cli/new.h"

#include <gtest/gtest.h>

#include <regex>

#include "cli/load.h"

namespace tolva::test {
namespace {

using namespace cli;

std::string WrittenAgain(const Document& document, const std::string& text) {
  return WrittenForm(document, *LoadBytes(text, "new").root);
}

TEST(NewDocument, IsInTheFormThatTheLibraryWrites) {
  for (const Document& document : Documents()) {
    SCOPED_TRACE(std::string(document.name));
    const std::string least = NewDocument(document, NewContent::kRequired);
    EXPECT_EQ(WrittenAgain(document, least), least);
    EXPECT_EQ(least.find("<!--"), std::string::npos);
    const std::string full = NewDocument(document, NewContent::kEverything);
    static const std::regex kComment(" *<!--[^>]*-->\n");
    EXPECT_EQ(WrittenAgain(document, full), std::regex_replace(full, kComment, ""));
  }
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

}  // namespace
}  // namespace tolva::test
