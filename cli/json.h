// The JSON form of documents: an object whose only member is the root element, under its name.
//
//   {"ILPClientConfiguration": {"SchemaVersion": 12, "LocationArray": {"Location": [...]}, ...}}
//
// An element is an object. Its members are the attributes and children, under their names; what is
// absent is no member. The children of one name that may be repeated are an array. An element whose
// value is its text is that text, or null if it has none. An ENUM is its text, a number a number, a
// 64-bit number a string of its digits.
#pragma once

#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "cli/fields.h"
#include "cli/tables.h"

namespace tolva::cli {

/// The version of the JSON that verbs print.
inline constexpr int kJsonVersion = 1;

/// JSON as text, on one line for an indent of -1. Text that is not UTF-8 is repaired; characters
/// that a terminal would obey are escaped.
std::string DumpJson(const nlohmann::ordered_json& json, int indent);

/// The same, indented and with a line feed.
std::string JsonText(const nlohmann::ordered_json& json);

/// The JSON form of a root node, as the library has read it.
nlohmann::ordered_json ToJson(const Document& document, const node::INode& root);

/// The JSON form of a value that is there, as text (fields.h).
nlohmann::ordered_json ValueToJson(const Value& value, const std::string& text);

/// The JSON form of an element. Secrets that are hidden are null.
enum class Secrets : bool { kShown, kHidden };
nlohmann::ordered_json ElementToJson(const Element& element, const ElementView& view,
                                     Secrets secrets);

/// A document that has been read from JSON.
struct FromJsonResult {
  const Document* document;
  std::unique_ptr<node::INode> root;
  std::uint64_t loss_count;         ///< what the library will not write
  std::vector<std::string> losses;  ///< the first of it: "policy.json:3:5: ..."
};

/// Reads the JSON form of a document, in UTF-8. `name` is what messages call the text; `expected`
/// is what it has to be, null for any of the documents. A member "$schema" beside the root element
/// is ignored. Throws Trouble, with the line and column of the value or member, if the text is no
/// JSON or no such document. Memory is that of the nodes, whatever the text contains.
FromJsonResult FromJson(std::string_view text, const std::string& name, const Document* expected);

}  // namespace tolva::cli
