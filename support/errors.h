// Sentences made of the words for error codes.
#pragma once

#include <tolva/types.h>

#include <string>

namespace tolva::support::internal {

/// The words for a code, as a part of a sentence: "the disk is full".
std::string PhraseOf(DWORD error);

/// A phrase as a sentence.
std::string Sentence(std::string phrase);

/// A sentence as a phrase.
std::string Phrase(std::string sentence);

/// Whether a code says that a document is not well-formed, or cannot be written as XML.
bool IsXmlFault(DWORD error);

}  // namespace tolva::support::internal
