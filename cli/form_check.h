// Whether a document has the form that the library writes.
#pragma once

#include <functional>

#include "cli/files.h"
#include "cli/tables.h"

namespace tolva::cli {

/// Opens the document anew. Throws Trouble.
using Reopen = std::function<ComPtr<ISequentialStream>()>;

/// Compares a document with what the library writes for it in the same encoding, with the same line
/// ends. The library reads the document and loses nothing of it (losses.h). Goes through it as a
/// stream: memory is that of its largest piece of markup or text.
bool HasWrittenForm(const Document& document, const Reopen& reopen);

}  // namespace tolva::cli
