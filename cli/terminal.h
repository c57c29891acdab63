// The process's arguments and streams: one source file per platform.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cli/stream.h"

namespace tolva::cli {

/// The arguments after the program's name, in UTF-8. Elsewhere than on Windows, as they were given.
std::vector<std::string> Arguments(int argc, char** argv);

std::unique_ptr<Stream> StandardOutput();
std::unique_ptr<Stream> StandardError();

}  // namespace tolva::cli
