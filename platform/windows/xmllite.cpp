#include "platform/windows/xmllite.h"

#include <vector>

#include "platform/com_ptr.h"

namespace tolva::platform {
namespace {

/// All bytes of a stream; none when it cannot be read.
std::vector<BYTE> ReadAll(IStream& stream) {
  STATSTG about = {};
  if (FAILED(stream.Stat(&about, STATFLAG_NONAME)) || about.cbSize.HighPart != 0) return {};
  const LARGE_INTEGER start = {};
  if (FAILED(stream.Seek(start, STREAM_SEEK_SET, nullptr))) return {};
  std::vector<BYTE> bytes(about.cbSize.LowPart);
  ULONG count = 0;
  if (FAILED(stream.Read(bytes.data(), about.cbSize.LowPart, &count))) return {};
  bytes.resize(count);
  return bytes;
}

/// What XmlLite says of a document when it has read all of it.
HRESULT Judge(IStream& document) {
  void* made = nullptr;
  HRESULT result = CreateXmlReader(kIidXmlReader, &made, nullptr);
  if (FAILED(result)) return result;
  ComPtr<IXmlReader> reader;
  reader.Attach(static_cast<IXmlReader*>(made));
  result = reader->SetInput(&document);
  XmlNodeType type = XmlNodeType_None;
  while (result == S_OK) result = reader->Read(&type);
  return result;
}

}  // namespace

bool EndsAtTerminator(IXmlReader& /*reader*/, IStream& text) {
  // XmlLite answers a zero behind the root as it does other things that may not stand there: so it
  // is asked once more, without the zero.
  const std::vector<BYTE> bytes = ReadAll(text);
  if (bytes.empty() || bytes.back() != 0) return false;
  ComPtr<IStream> document;
  document.Attach(SHCreateMemStream(bytes.data(), static_cast<UINT>(bytes.size() - 1)));
  return document && Judge(*document.Get()) == S_FALSE;
}

}  // namespace tolva::platform
