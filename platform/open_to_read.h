// Opens documents.
#pragma once

#include "platform/system.h"

namespace tolva::platform {

/// Opens a file for reading. Returns false and sets the last error if it cannot be opened: on
/// Windows also if anyone has it open. A file whose size has the low 32 bits 0, such as an empty
/// one, is refused as well, and the last error stays as it is.
bool OpenToRead(const wchar_t* path, IStream** stream) noexcept;

}  // namespace tolva::platform
