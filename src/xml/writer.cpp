#include "xml/writer.h"

#include <cstdint>
#include <new>
#include <utility>

#include "xml/writer_fault.h"

namespace tolva::xml {
namespace {

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
  const HRESULT result = writer_.Create();
  is_usable_ = SUCCEEDED(result);
  if (!is_usable_) SetLastResult(result);
}

CXMLLiteManagerWriter::~CXMLLiteManagerWriter() {
  try {
    CXMLLiteManagerWriter::Close();
  } catch (const std::bad_alloc&) {
    // The file keeps what has been written so far.
  }
  if (stream_) Release();
}

ConfigResult CXMLLiteManagerWriter::OpenFile(const wchar_t* path) {
  if (!is_usable_) return kFailed;
  if (path == nullptr) return kInvalidArgument;
  EndPrevious();

  ComPtr<IStream> file;
  const HRESULT result = SHCreateStreamOnFileW(path, STGM_CREATE | STGM_WRITE, file.Receive());
  if (FAILED(result)) {
    SetLastResult(result);
    return kFailed;
  }
  const ConfigResult opened = OpenStream(*file.Get());
  if (opened == kSuccess) file_ = std::move(file);
  return opened;
}

ConfigResult CXMLLiteManagerWriter::OpenStream(ISequentialStream& stream) try {
  if (!is_usable_) return kFailed;
  EndPrevious();
  stream_.Share(&stream);
  HRESULT result = Invoke([&] { return writer_.SetOutput(&stream); });
  if (SUCCEEDED(result)) {
    result = Invoke([this] { return writer_.WriteStartDocument(); });
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
  const HRESULT flushed = Invoke([this] { return writer_.Flush(); });
  if (FAILED(ended) && !IsRefusal(ended)) return ended;
  // The document is complete, or can never be completed.
  const bool is_to_be_stored = SUCCEEDED(flushed) && file_;
  const HRESULT stored = is_to_be_stored ? file_->Commit(STGC_DEFAULT) : flushed;
  return FAILED(ended) ? ended : stored;
}

HRESULT CXMLLiteManagerWriter::EndDocument() {
  if (is_ended_) return S_OK;
  const HRESULT result = Invoke([this] { return writer_.WriteEndDocument(); });
  is_ended_ = SUCCEEDED(result);
  return result;
}

/// Closes what is open; if that fails, releases it.
void CXMLLiteManagerWriter::EndPrevious() try {
  if (Close() != kSuccess) Release();
} catch (const std::bad_alloc&) {
  Release();
  throw;
}

/// Releases the stream, whatever its state.
void CXMLLiteManagerWriter::Release() {
  writer_.SetOutput(nullptr);
  is_ended_ = false;
  loss_ = S_OK;
  file_.Reset();
  CXMLLiteManager::Close();
}

ConfigResult CXMLLiteManagerWriter::StartElement(const Name& name) {
  return Emit([&] { return writer_.WriteStartElement(name); });
}

ConfigResult CXMLLiteManagerWriter::WriteAttribute(const Name& name, const std::wstring& text) {
  return Emit([&] { return writer_.WriteAttribute(name, text); });
}

ConfigResult CXMLLiteManagerWriter::WritePlainAttribute(const Name& name, Plain value) {
  return Emit([&] { return writer_.WritePlainAttribute(name, value); });
}

ConfigResult CXMLLiteManagerWriter::EndElement(End form) {
  const bool is_full = form == End::kEndTag;
  const ConfigResult result =
      Emit([&] { return is_full ? writer_.WriteFullEnd() : writer_.WriteEnd(); });
  if (result != kSuccess) return result;
  // The line feed is for human readers. Its failure sets the last error but not the result.
  Emit([this] { return writer_.WriteLineFeed(); });
  return kSuccess;
}

ConfigResult CXMLLiteManagerWriter::WriteElement(const Name& name, const std::wstring& text) {
  return Emit([&] { return writer_.WriteElement(name, text); });
}

ConfigResult CXMLLiteManagerWriter::WritePlainElement(const Name& name, Plain value) {
  return Emit([&] { return writer_.WritePlainElement(name, value); });
}

ConfigResult CXMLLiteManagerWriter::WriteEmptyElement(const Name& name) {
  return Emit([&] { return writer_.WriteEmptyElement(name); });
}

}  // namespace tolva::xml
