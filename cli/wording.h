// Words for types and occurrences, which explain, the schemas and the pages have in common.
#pragma once

#include <string>
#include <vector>

#include "cli/tables.h"

namespace tolva::cli {

/// "text", "number", "64-bit number" or "ENUM".
std::string TypeName(const Value& value);

/// What may stand there, as a sentence: "A number from 0 to 4294967295."
std::string TypeSentence(const Value& value);

/// "required", "optional", "any number".
std::string OccurrenceName(Occurrence occurrence);

/// What it means that the attribute is absent, as a sentence.
std::string AbsenceSentence(const Attribute& attribute);

/// What may be in an element whose value is its text, as a sentence.
std::string TextSentence(const Element& element);

/// What tells the items of a list of these elements apart; empty if nothing does.
std::vector<std::string> NamesOfItem(const Element& element);

}  // namespace tolva::cli
