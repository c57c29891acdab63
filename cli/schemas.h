// What schema prints: descriptions of documents for other programs and for people.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <span>
#include <string>

#include "cli/tables.h"

namespace tolva::cli {

using DocumentList = std::span<const Document* const>;

/// An XML Schema 1.0, with the documents' roots as global elements.
enum class XsdForm : bool {
  kStrict,  ///< children in the order, and numbers in the range, that the library writes
  kLax,     ///< as near as XML Schema 1.0 comes to what the library reads
};
std::string XsdOf(DocumentList documents, XsdForm form);

/// A JSON Schema (2020-12) of the JSON form of the documents (json.h).
nlohmann::ordered_json JsonSchemaOf(DocumentList documents);

std::string MarkdownOf(DocumentList documents);

/// A page that needs nothing else.
std::string HtmlOf(DocumentList documents);

/// The name that an element has in a schema of these documents.
std::string SchemaName(DocumentList documents, const Document& document, const Element& element);

}  // namespace tolva::cli
