// Keeps key material and password hashes from being shown.
#pragma once

#include <string>
#include <string_view>

#include "cli/tables.h"

namespace tolva::cli {

/// The text of a document, in UTF-8, with "***" for the values of secret attributes.
std::string WithoutSecrets(std::string_view text, const Document& document);

}  // namespace tolva::cli
