// The system's XML reader and writer, and the spots in which the library's calls have to be spelled
// differently for it.
#pragma once

#include <xmllite.h>

#include "platform/windows/system.h"

namespace tolva::platform {

inline const IID& kIidXmlReader = __uuidof(IXmlReader);
inline const IID& kIidXmlWriter = __uuidof(IXmlWriter);

/// Gives a reader a text that the library has converted to UTF-8 itself.
inline HRESULT SetConvertedInput(IXmlReader& reader, IStream* text) {
  return reader.SetInput(text);
}

/// Whether such a text, of which the reader has refused something, is well-formed up to the zero
/// that terminates it.
bool EndsAtTerminator(IXmlReader& reader, IStream& text);

}  // namespace tolva::platform
