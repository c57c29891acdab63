// What differs between two texts, line by line.
#pragma once

#include <string>
#include <string_view>

#include "cli/session.h"

namespace tolva::cli {

/// A unified diff with three lines of context; empty if the texts are equal. Memory is linear in
/// the texts. Where more than a thousand lines differ in one place, the diff may be longer than
/// necessary.
std::string UnifiedDiff(std::string_view before, std::string_view after,
                        const std::string& before_name, const std::string& after_name,
                        const Style& style);

}  // namespace tolva::cli
