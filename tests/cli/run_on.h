// The tool run on a file of the test's own.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "cli/run.h"
#include "cli/text.h"
#include "support/files.h"

namespace tolva::test {

inline Outcome RunOn(const TempFile& file, const std::string& verb,
                     std::vector<std::string> rest = {}) {
  rest.insert(rest.begin(), {verb, cli::NameOf(file.path())});
  return RunTool(rest);
}

/// Puts `by` in the place of `what`, which is there.
inline std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  return text.replace(text.find(what), what.size(), by);
}

// Documents around what a test is about.

inline std::string InDomain(const std::string& inside, const std::string& attributes = "") {
  return "<ActiveDirectory" + attributes + ">\n" + inside + "</ActiveDirectory>";
}

inline std::string InMessage(const std::string& inside) {
  return "<EndPointMessage SchemaVersion='1'><Message ID='1'>\n" + inside +
         "</Message></EndPointMessage>";
}

inline std::string InViolation(const std::string& inside) {
  return "<analysisDetails transactionID='x' version=''><violations maxMatches='1'><violation>\n"
         "<name>n</name>" +
         inside +
         "<numOfMatches>1</numOfMatches><detectedValues/></violation></violations>"
         "<additionalData><destinations/><extractedContents/></additionalData></analysisDetails>";
}

/// ":line:column: ", as the tool has it, of what is at the offset.
inline std::string PlaceOf(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::size_t column = cli::Columns(before.substr(before.rfind('\n') + 1)) + 1;
  return ":" + std::to_string(line) + ":" + std::to_string(column) + ": ";
}

}  // namespace tolva::test
