// Documents in memory: read from files, read and written by the library, put back into files.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "cli/inputs.h"
#include "cli/session.h"
#include "cli/tables.h"

namespace tolva::cli {

/// A document that the library has read.
struct Loaded {
  const Document* document;
  std::string bytes;  ///< as in the file
  std::unique_ptr<node::INode> root;
};

/// Everything that a file holds. Throws Trouble if it cannot be read.
std::string ReadBytes(const Input& input);

/// Reads a document; `expected` is what it has to be, null for any of the documents. Throws
/// Trouble, with the first error that `check` finds, if the library does not read it or it is
/// damaged.
Loaded LoadDocument(const Input& input, const Document* expected = nullptr);

/// The same for bytes; `name` is what messages call them.
Loaded LoadBytes(std::string bytes, const std::string& name, const Document* expected = nullptr);

/// What the library writes for a root node. Throws Trouble if it cannot be written.
std::string WrittenForm(const Document& document, const node::INode& root);

/// Writes a document where the destination says. A terminal gets it in UTF-8, with LF as line end
/// and without what terminals obey.
void DeliverDocument(Session& session, const Destination& destination, std::string_view bytes);

/// Writes a file anew, as a whole or not at all (<tolva/support/save.h>). `before` is what has been
/// read from it. `is_forced`: even if it has further hard links. Throws Trouble if the file does
/// not hold `before` any more, or cannot be replaced.
void ReplaceFile(const Input& input, std::string_view before, std::string_view after,
                 bool is_forced);

}  // namespace tolva::cli
