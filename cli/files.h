// Files as streams, and what can go wrong with them: one source file per platform.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>

#include "platform/com_ptr.h"
#include "platform/system.h"

namespace tolva::cli {

using namespace platform;  // see platform.h

/// Opens a file, or anything else that has bytes, for reading. Other processes may write it at the
/// same time.
HRESULT OpenFile(const std::filesystem::path& path, ComPtr<ISequentialStream>& stream);

HRESULT OpenStandardInput(ComPtr<ISequentialStream>& stream);

/// The result that says what an error of std::filesystem does.
HRESULT ResultOf(const std::error_code& error);

/// Why a file could not be opened, read or written, as words for a message.
std::string ReasonOf(HRESULT failure);

}  // namespace tolva::cli
