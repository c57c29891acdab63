// Files and memory as streams, and what can go wrong with files, which has a source file per
// platform.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/com_ptr.h"
#include "platform/system.h"

namespace tolva::cli {

using namespace platform;  // see platform.h

/// Opens a file, or anything else that has bytes, for reading. Other processes may write it at the
/// same time.
HRESULT OpenFile(const std::filesystem::path& path, ComPtr<ISequentialStream>& stream);

HRESULT OpenStandardInput(ComPtr<ISequentialStream>& stream);

/// A stream that gives the bytes out. They are not copied.
ComPtr<ISequentialStream> StreamOf(std::string_view bytes);

/// A stream that appends what is written to the bytes.
ComPtr<ISequentialStream> StreamInto(std::string& bytes);

/// The result that says what an error of std::filesystem does.
HRESULT ResultOf(const std::error_code& error);

/// Why a file could not be opened, read or written, as words for a message.
std::string ReasonOf(HRESULT failure);

}  // namespace tolva::cli
