#include "xml/writer.h"

#include <new>

#include "platform/utf.h"
#include "xml/writer_fault.h"

namespace tolva::xml {
namespace {

bool IsSet(const wchar_t* name) { return name != nullptr && *name != 0; }

}  // namespace

/// Makes a call of the platform's writer.
template <class Call>
HRESULT CXMLLiteManagerWriter::Ask(Call call) {
  const HRESULT fault = NextWriterFault();
  return FAILED(fault) ? fault : call();
}

/// Makes a call on which the result of an operation depends.
template <class Call>
ConfigResult CXMLLiteManagerWriter::Write(Call call) {
  if (!stream_) return kFailed;
  const HRESULT result = Ask(call);
  if (SUCCEEDED(result)) return kSuccess;
  SetLastResult(result);
  return kFailed;
}

CXMLLiteManagerWriter::CXMLLiteManagerWriter() : CXMLLiteManager(Kind::kWriter) {
  void* writer = nullptr;
  HRESULT result = CreateXmlWriter(kIidXmlWriter, &writer, nullptr);
  if (SUCCEEDED(result)) {
    writer_.Attach(static_cast<IXmlWriter*>(writer));
    result = writer_->SetProperty(XmlWriterProperty_Indent, TRUE);
  }
  if (FAILED(result)) {
    SetLastResult(result);
    writer_.Reset();
  }
}

CXMLLiteManagerWriter::~CXMLLiteManagerWriter() {
  try {
    CXMLLiteManagerWriter::Close();
  } catch (const std::bad_alloc&) {
    // The document stays as far as it came.
  }
  if (stream_) Release();
}

ConfigResult CXMLLiteManagerWriter::OpenFile(const wchar_t* path) {
  if (!writer_) return kFailed;
  if (path == nullptr) return kInvalidArgument;
  if (Close() != kSuccess) Release();

  HRESULT result = SHCreateStreamOnFileW(path, STGM_CREATE | STGM_WRITE, stream_.Receive());
  if (FAILED(result)) {
    SetLastResult(result);
    return kFailed;
  }
  result = Ask([this] { return writer_->SetOutput(stream_.Get()); });
  if (SUCCEEDED(result)) {
    result = Ask([this] { return writer_->WriteStartDocument(XmlStandalone_Omit); });
  }
  if (FAILED(result)) {
    Release();
    SetLastResult(result);
    return kFailed;
  }
  return kSuccess;
}

ConfigResult CXMLLiteManagerWriter::Close() {
  if (!stream_) return kSuccess;
  if (!is_ended_) {
    if (Write([this] { return writer_->WriteEndDocument(); }) != kSuccess) return kFailed;
    is_ended_ = true;
  }
  if (Write([this] { return writer_->Flush(); }) != kSuccess) return kFailed;
  Release();
  return kSuccess;
}

/// Lets the file go, whatever state it is in.
void CXMLLiteManagerWriter::Release() {
  writer_->SetOutput(nullptr);
  is_ended_ = false;
  CXMLLiteManager::Close();
}

ConfigResult CXMLLiteManagerWriter::StartElement(const wchar_t* name) {
  if (!IsSet(name)) return kInvalidArgument;
  return Write([&] { return writer_->WriteStartElement(nullptr, name, nullptr); });
}

ConfigResult CXMLLiteManagerWriter::WriteAttribute(const wchar_t* name, Text value) {
  if (!IsSet(name)) return kInvalidArgument;
  if (CheckCharacters(value) != kSuccess) return kFailed;
  return Write(
      [&] { return writer_->WriteAttributeString(nullptr, name, nullptr, value.c_str()); });
}

ConfigResult CXMLLiteManagerWriter::EndElement(Text text) {
  if (CheckCharacters(text) != kSuccess) return kFailed;
  if (!text.IsEmpty()) {
    const ConfigResult result = Write([&] { return writer_->WriteString(text.c_str()); });
    if (result != kSuccess) return result;
  }
  const ConfigResult result = text.IsNull()
                                  ? Write([this] { return writer_->WriteEndElement(); })
                                  : Write([this] { return writer_->WriteFullEndElement(); });
  if (result != kSuccess) return result;
  // The line feed is for people; its failure is reported, but is none of the element's.
  Write([this] { return writer_->WriteWhitespace(L"\n"); });
  return kSuccess;
}

ConfigResult CXMLLiteManagerWriter::WriteElementString(const wchar_t* name, Text text) {
  if (!IsSet(name)) return kInvalidArgument;
  if (CheckCharacters(text) != kSuccess) return kFailed;
  return Write([&] { return writer_->WriteElementString(nullptr, name, nullptr, text.c_str()); });
}

/// Only characters that XML allows: a zero within the text is none, and would hide what follows it.
ConfigResult CXMLLiteManagerWriter::CheckCharacters(Text text) {
  const wchar_t* at = FindForbidden(text.begin(), text.end());
  if (at == text.end()) return kSuccess;
  const bool is_surrogate = IsSurrogate(TakeCodePoint(at, text.end()));
  SetLastResult(static_cast<HRESULT>(is_surrogate ? WR_E_INVALIDSURROGATEPAIR : WC_E_XMLCHARACTER));
  return kFailed;
}

}  // namespace tolva::xml
