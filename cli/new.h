// New documents.
#pragma once

#include <string>

#include "cli/tables.h"

namespace tolva::cli {

enum class NewContent : bool {
  kRequired,    ///< what the library refuses to do without
  kEverything,  ///< everything once, with comments that say what may stand there
};

/// A document in the form that the library writes. Strings hold their own names, ENUMs their first
/// text, numbers 0, or what their absence stands for.
std::string NewDocument(const Document& document, NewContent content);

/// An element of a new document with what is required, in the same form.
std::string NewElement(const Child& child);

}  // namespace tolva::cli
