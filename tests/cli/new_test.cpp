#include "cli/new.h"

#include <gtest/gtest.h>

#include "cli/load.h"

namespace tolva::test {
namespace {

using namespace cli;

std::string WrittenAgain(const Document& document, const std::string& text) {
  return WrittenForm(document, *LoadBytes(text, "new").root);
}

std::string WithoutComments(std::string text) {
  for (std::size_t start = 0; (start = text.find("<!--")) != std::string::npos;) {
    const std::size_t line = text.rfind('\n', start) + 1;
    text.erase(line, text.find("-->\n", start) + 4 - line);
  }
  return text;
}

TEST(NewDocument, IsInTheFormThatTheLibraryWrites) {
  for (const Document& document : Documents()) {
    SCOPED_TRACE(std::string(document.name));
    const std::string least = NewDocument(document, NewContent::kRequired);
    EXPECT_EQ(WrittenAgain(document, least), least);
    EXPECT_EQ(least.find("<!--"), std::string::npos);
    const std::string full = NewDocument(document, NewContent::kEverything);
    EXPECT_EQ(WrittenAgain(document, full), WithoutComments(full));
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
