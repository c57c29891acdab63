// What differs between two texts, line by line.
#pragma once

#include <string>
#include <string_view>

#include "cli/session.h"

namespace tolva::cli {

/// A unified diff with three lines of context; empty if the texts are equal. Memory is linear in
/// the texts; so is time, and where hundreds of lines differ the diff may be longer than necessary.
std::string UnifiedDiff(std::string_view before, std::string_view after,
                        const std::string& before_name, const std::string& after_name,
                        const Style& style);

}  // namespace tolva::cli
