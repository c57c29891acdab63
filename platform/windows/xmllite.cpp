#include "platform/windows/xmllite.h"

#include <vector>

#include "platform/utf.h"

namespace tolva::platform {
namespace {

HRESULT MakeReader(ComPtr<IXmlReader>& reader) {
  void* made = nullptr;
  HRESULT result = CreateXmlReader(__uuidof(IXmlReader), &made, nullptr);
  if (FAILED(result)) return result;
  reader.Attach(static_cast<IXmlReader*>(made));
  result = reader->SetProperty(XmlReaderProperty_DtdProcessing, DtdProcessing_Prohibit);
  if (FAILED(result)) reader.Reset();
  return result;
}

/// All bytes of a stream, or none if it cannot be read.
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

/// What XmlLite answers when it has read the whole document.
HRESULT ReadThrough(IStream& document) {
  ComPtr<IXmlReader> reader;
  HRESULT result = MakeReader(reader);
  if (SUCCEEDED(result)) result = reader->SetInput(&document);
  XmlNodeType type = XmlNodeType_None;
  while (result == S_OK) result = reader->Read(&type);
  return result;
}

/// XmlLite takes zero-terminated strings, so an embedded zero would hide what follows. Characters
/// that XML does not allow are refused here, before XmlLite is asked.
HRESULT ValidateCharacters(const std::wstring& text) {
  const wchar_t* const end = text.data() + text.size();
  const wchar_t* at = FindForbidden(text.data(), end);
  if (at == end) return S_OK;
  return IsSurrogate(TakeCodePoint(at, end)) ? WR_E_INVALIDSURROGATEPAIR : WC_E_XMLCHARACTER;
}

}  // namespace

// ---- reader ------------------------------------------------------------------------------------

HRESULT XmlReader::Create() { return MakeReader(reader_); }

HRESULT XmlReader::SetInput(ISequentialStream* input) {
  converted_input_.Reset();
  return reader_->SetInput(input);
}

HRESULT XmlReader::SetConvertedInput(IStream* input) {
  converted_input_.Share(input);
  return reader_->SetInput(input);
}

HRESULT XmlReader::GetLocalName(Value* name) {
  const wchar_t* text = nullptr;
  UINT length = 0;
  const HRESULT result = reader_->GetLocalName(&text, &length);
  if (SUCCEEDED(result)) *name = {text, length};
  return result;
}

HRESULT XmlReader::GetAttribute(std::size_t index, Value* value) {
  if (reader_->MoveToAttributeByName((*names_)[index].c_str(), nullptr) != S_OK) return S_FALSE;
  return reader_->IsDefault() != FALSE ? S_FALSE : GetValue(value);
}

HRESULT XmlReader::GetValue(Value* value) {
  const wchar_t* text = nullptr;
  UINT length = 0;
  const HRESULT result = reader_->GetValue(&text, &length);
  if (SUCCEEDED(result)) *value = {text, length};
  return result;
}

bool XmlReader::EndsAtTerminator() const {
  if (!converted_input_) return false;
  // XmlLite answers a zero after the root as it does other things that are not allowed there, so it
  // is asked once more, without the zero.
  const std::vector<BYTE> bytes = ReadAll(*converted_input_.Get());
  if (bytes.empty() || bytes.back() != 0) return false;
  ComPtr<IStream> document;
  document.Attach(SHCreateMemStream(bytes.data(), static_cast<UINT>(bytes.size() - 1)));
  return document && ReadThrough(*document.Get()) == S_FALSE;
}

// ---- writer ------------------------------------------------------------------------------------

HRESULT XmlWriter::Create() {
  void* made = nullptr;
  HRESULT result = CreateXmlWriter(__uuidof(IXmlWriter), &made, nullptr);
  if (FAILED(result)) return result;
  writer_.Attach(static_cast<IXmlWriter*>(made));
  result = writer_->SetProperty(XmlWriterProperty_Indent, TRUE);
  if (FAILED(result)) writer_.Reset();
  return result;
}

HRESULT XmlWriter::WriteStartElement(const Name& name) {
  return writer_->WriteStartElement(nullptr, name.c_str(), nullptr);
}

HRESULT XmlWriter::WritePlainAttribute(const Name& name, Value value) {
  return writer_->WriteAttributeString(nullptr, name.c_str(), nullptr, value.data());
}

HRESULT XmlWriter::WriteAttribute(const Name& name, const std::wstring& text) {
  const HRESULT result = ValidateCharacters(text);
  return FAILED(result) ? result : WritePlainAttribute(name, text);
}

HRESULT XmlWriter::WriteEmptyElement(const Name& name) {
  return writer_->WriteElementString(nullptr, name.c_str(), nullptr, nullptr);
}

HRESULT XmlWriter::WritePlainElement(const Name& name, Value value) {
  return writer_->WriteElementString(nullptr, name.c_str(), nullptr, value.data());
}

HRESULT XmlWriter::WriteElement(const Name& name, const std::wstring& text) {
  const HRESULT result = ValidateCharacters(text);
  return FAILED(result) ? result : WritePlainElement(name, text);
}

}  // namespace tolva::platform
