// XmlLite's names for the XML reader and writer of this folder.
#pragma once

#include "platform/xml/reader.h"
#include "platform/xml/writer.h"

namespace tolva::platform {

using IXmlReader = XmlReader;
using IXmlWriter = XmlWriter;

/// Which interface is asked for.
enum class InterfaceId : std::uint8_t { kXmlReader, kXmlWriter };

inline constexpr InterfaceId kIidXmlReader = InterfaceId::kXmlReader;
inline constexpr InterfaceId kIidXmlWriter = InterfaceId::kXmlWriter;

/// Makes a reader (a writer): S_OK, E_NOINTERFACE or E_OUTOFMEMORY. No allocator can be given.
HRESULT CreateXmlReader(InterfaceId id, void** reader, IMalloc* allocator) noexcept;
HRESULT CreateXmlWriter(InterfaceId id, void** writer, IMalloc* allocator) noexcept;

/// Gives a reader a text that the library has converted to UTF-8 itself.
inline HRESULT SetConvertedInput(IXmlReader& reader, IStream* text) {
  return reader.SetInput(text, true);
}

/// Whether such a text, of which the reader has refused something, is well-formed up to the zero
/// that terminates it.
inline bool EndsAtTerminator(IXmlReader& reader, IStream& /*text*/) {
  return reader.EndsAtTerminator();
}

}  // namespace tolva::platform
