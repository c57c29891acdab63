#include "xml/writer.h"

#include <cstdint>
#include <new>

#include "platform/utf.h"
#include "xml/writer_fault.h"

namespace tolva::xml {
namespace {

bool IsSet(const wchar_t* name) { return name != nullptr && *name != 0; }

/// Whether a call failed because of what it was asked to write, not because of the stream or the
/// system. What was written before is then intact.
bool IsRefusal(HRESULT result) {
  return (static_cast<std::uint32_t>(result) & 0xFFFF0000U) == 0xC00C0000U;
}

}  // namespace

/// Makes a call of the platform's writer.
template <class Call>
HRESULT CXMLLiteManagerWriter::Invoke(Call call) {
  const HRESULT fault = NextWriterFault();
  return FAILED(fault) ? fault : call();
}

/// Makes a call that adds to the document.
template <class Call>
ConfigResult CXMLLiteManagerWriter::Emit(Call call) {
  if (!stream_) {
    SetLastResult(E_UNEXPECTED);
    return kFailed;
  }
  HRESULT result = S_OK;
  try {
    result = Invoke(call);
  } catch (const std::bad_alloc&) {
    NoteLoss(E_OUTOFMEMORY);
    throw;
  }
  if (SUCCEEDED(result)) return kSuccess;
  if (!IsRefusal(result)) NoteLoss(result);
  SetLastResult(result);
  return kFailed;
}

/// Only the first one matters.
void CXMLLiteManagerWriter::NoteLoss(HRESULT failure) {
  if (SUCCEEDED(loss_)) loss_ = failure;
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
    // The file keeps what has been written so far.
  }
  if (stream_) Release();
}

ConfigResult CXMLLiteManagerWriter::OpenFile(const wchar_t* path) try {
  if (!writer_) return kFailed;
  if (path == nullptr) return kInvalidArgument;
  if (Close() != kSuccess) Release();

  HRESULT result = SHCreateStreamOnFileW(path, STGM_CREATE | STGM_WRITE, stream_.Receive());
  if (FAILED(result)) {
    SetLastResult(result);
    return kFailed;
  }
  result = Invoke([this] { return writer_->SetOutput(stream_.Get()); });
  if (SUCCEEDED(result)) {
    result = Invoke([this] { return writer_->WriteStartDocument(XmlStandalone_Omit); });
  }
  if (FAILED(result)) {
    Release();
    SetLastResult(result);
    return kFailed;
  }
  return kSuccess;
} catch (const std::bad_alloc&) {
  Release();
  throw;
}

ConfigResult CXMLLiteManagerWriter::Close() {
  if (!stream_) return kSuccess;
  const HRESULT result = Finish();
  const HRESULT failure = FAILED(loss_) ? loss_ : result;
  // Trying again does not bring back what is lost.
  if (FAILED(loss_) || SUCCEEDED(result)) Release();
  if (SUCCEEDED(failure)) return kSuccess;
  SetLastResult(failure);
  return kFailed;
}

/// Ends, flushes and commits the document as far as possible. Returns the first failure.
HRESULT CXMLLiteManagerWriter::Finish() {
  const HRESULT ended = EndDocument();
  const HRESULT flushed = Invoke([this] { return writer_->Flush(); });
  if (FAILED(ended) && !IsRefusal(ended)) return ended;
  // The document is complete, or can never be completed.
  const HRESULT stored = FAILED(flushed) ? flushed : stream_->Commit(STGC_DEFAULT);
  return FAILED(ended) ? ended : stored;
}

HRESULT CXMLLiteManagerWriter::EndDocument() {
  if (is_ended_) return S_OK;
  const HRESULT result = Invoke([this] { return writer_->WriteEndDocument(); });
  is_ended_ = SUCCEEDED(result);
  return result;
}

/// Releases the file, whatever its state.
void CXMLLiteManagerWriter::Release() {
  writer_->SetOutput(nullptr);
  is_ended_ = false;
  loss_ = S_OK;
  CXMLLiteManager::Close();
}

ConfigResult CXMLLiteManagerWriter::StartElement(const wchar_t* name) {
  if (!IsSet(name)) return kInvalidArgument;
  return Emit([&] { return writer_->WriteStartElement(nullptr, name, nullptr); });
}

ConfigResult CXMLLiteManagerWriter::WriteAttribute(const wchar_t* name, Text value) {
  if (!IsSet(name)) return kInvalidArgument;
  if (Check(value) != kSuccess) return kFailed;
  return Emit([&] { return writer_->WriteAttributeString(nullptr, name, nullptr, value.c_str()); });
}

ConfigResult CXMLLiteManagerWriter::EndElement(Text text) {
  if (Check(text) != kSuccess) return kFailed;
  if (!text.IsEmpty()) {
    const ConfigResult result = Emit([&] { return writer_->WriteString(text.c_str()); });
    if (result != kSuccess) return result;
  }
  const ConfigResult result = text.IsNull()
                                  ? Emit([this] { return writer_->WriteEndElement(); })
                                  : Emit([this] { return writer_->WriteFullEndElement(); });
  if (result != kSuccess) return result;
  // The line feed is for human readers. Its failure sets the last error but not the result.
  Emit([this] { return writer_->WriteWhitespace(L"\n"); });
  return kSuccess;
}

ConfigResult CXMLLiteManagerWriter::WriteElementString(const wchar_t* name, Text text) {
  if (!IsSet(name)) return kInvalidArgument;
  if (Check(text) != kSuccess) return kFailed;
  return Emit([&] { return writer_->WriteElementString(nullptr, name, nullptr, text.c_str()); });
}

/// Validates characters. An embedded zero is not allowed, and would hide what follows. If no
/// document is open, the caller's next step reports that instead.
ConfigResult CXMLLiteManagerWriter::Check(Text text) {
  if (!stream_) return kSuccess;
  const wchar_t* at = FindForbidden(text.begin(), text.end());
  if (at == text.end()) return kSuccess;
  const bool is_surrogate = IsSurrogate(TakeCodePoint(at, text.end()));
  SetLastResult(static_cast<HRESULT>(is_surrogate ? WR_E_INVALIDSURROGATEPAIR : WC_E_XMLCHARACTER));
  return kFailed;
}

}  // namespace tolva::xml
