// Opens documents.
#pragma once

#include "platform/system.h"

namespace tolva::platform {

/// Opens a file for reading. Returns false and sets the last error if it cannot be opened: on
/// Windows also if anyone has it open. A file whose size has the low 32 bits 0, such as an empty
/// one, is refused as well, and the last error stays as it is.
bool OpenToRead(const wchar_t* path, IStream** stream) noexcept;

/// Makes a stream of a text, which it copies: UTF-8, and the zero that terminates the text. Fails
/// with E_INVALIDARG if there is no text, it takes 2 GB or more, or it cannot be converted, and
/// with E_OUTOFMEMORY.
HRESULT OpenText(const wchar_t* text, IStream** stream) noexcept;

}  // namespace tolva::platform
