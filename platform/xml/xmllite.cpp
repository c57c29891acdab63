#include "platform/xml/xmllite.h"

#include <new>

namespace tolva::platform {
namespace {

template <class T>
HRESULT Create(InterfaceId wanted, InterfaceId own, void** object) noexcept {
  *object = nullptr;
  if (wanted != own) return E_NOINTERFACE;
  *object = new (std::nothrow) T;
  return *object == nullptr ? E_OUTOFMEMORY : S_OK;
}

}  // namespace

HRESULT CreateXmlReader(InterfaceId id, void** reader, IMalloc* /*allocator*/) noexcept {
  return Create<XmlReader>(id, kIidXmlReader, reader);
}

HRESULT CreateXmlWriter(InterfaceId id, void** writer, IMalloc* /*allocator*/) noexcept {
  return Create<XmlWriter>(id, kIidXmlWriter, writer);
}

}  // namespace tolva::platform
