// The typed tree of a data binding compiler, behind a function: its headers are large.
#pragma once

#include <filesystem>

namespace tolva::bench {

bool ReadPolicyTree(const std::filesystem::path& path);

}  // namespace tolva::bench
