// The tool run on a file of the test's own.
#pragma once

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

}  // namespace tolva::test
