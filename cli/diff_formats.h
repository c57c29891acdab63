// The forms in which `diff` tells what differs.
#pragma once

#include <cstddef>
#include <string>

#include "cli/diff_changes.h"
#include "cli/json.h"
#include "cli/session.h"

namespace tolva::cli {

/// What the documents are called.
struct DocumentPair {
  std::string from;
  std::string to;
};

/// A line for each change, and one that counts; nothing for equal documents.
std::string DiffText(const Comparison& comparison, Secrets secrets, const Style& style,
                     std::size_t width);

std::string DiffJson(const Comparison& comparison, const DocumentPair& names, Secrets secrets);

/// A page that needs nothing else.
std::string DiffHtml(const Comparison& comparison, const DocumentPair& names, Secrets secrets);

}  // namespace tolva::cli
