// What a document holds that the library would not write again.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/check_walk.h"

namespace tolva::cli {

class Verb;

/// What a document loses when the library reads it and writes it again.
struct Losses {
  const Document* document = nullptr;  ///< null: another root, which was skipped
  std::uint64_t count = 0;
  std::vector<std::string> first = {};  ///< "policy.xml:3:5: this comment would be lost"
};

/// Goes through a document; `name` is what messages call it. Layout, references, the XML
/// declaration and the order of attributes, and of children that differ in their names, are no
/// loss; nor is what the library adds for what is absent. Throws Trouble, with the first fault and
/// its place, if the library does not read the document, or would not read what it has written.
Losses FindLosses(ISequentialStream& stream, const std::string& name, const WalkOptions& options);

/// So many losses are told.
inline constexpr std::size_t kMostLossesTold = 20;

/// Throws Trouble, with the places, if there are losses.
void RefuseLosses(const Losses& losses, const std::string& name);

/// What the library writes for a root node, and writes again when it has read that. Throws Trouble
/// if it would not read it.
std::string StableForm(const Document& document, const node::INode& root, const std::string& name);

/// "policy.xml:3:5: what is there".
std::string AtPlace(const std::string& name, std::uint64_t line, std::uint64_t column,
                    const std::string& what);

/// Adds --drop.
void AddDropOption(Verb& verb, bool& drops);

}  // namespace tolva::cli
