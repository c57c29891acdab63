// The XML reader and writer on the system's XmlLite, with the interface of those in platform/xml/.
#pragma once

#include <xmllite.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/com_ptr.h"
#include "platform/name.h"
#include "platform/windows/system.h"

namespace tolva::platform {

class XmlReader {
 public:
  using Value = std::wstring_view;

  HRESULT Create();

  HRESULT SetInput(ISequentialStream* input);
  HRESULT SetConvertedInput(IStream* input);
  HRESULT Read(XmlNodeType* type) { return reader_->Read(type); }
  HRESULT ReadTag(XmlNodeType* type) { return reader_->Read(type); }
  bool ReadKnownTag(const KnownTags& /*tags*/, std::size_t& /*index*/) { return false; }
  XmlNodeType type() const { return XmlNodeType_None; }
  bool IsEmptyElement() const { return reader_->IsEmptyElement() != FALSE; }
  HRESULT GetLocalName(Value* name);
  void FindAttributes(const Names& names) { names_ = &names; }
  HRESULT GetAttribute(std::size_t index, Value* value);
  HRESULT GetValue(Value* value);
  bool EndsAtTerminator() const;

 private:
  ComPtr<IXmlReader> reader_;
  ComPtr<IStream> converted_input_;  ///< null unless the document is a converted text
  const Names* names_ = nullptr;     ///< those of the current element
};

class XmlWriter {
 public:
  /// Zero-terminated.
  using Value = std::wstring_view;

  HRESULT Create();

  HRESULT SetOutput(ISequentialStream* output) { return writer_->SetOutput(output); }
  HRESULT WriteStartDocument() { return writer_->WriteStartDocument(XmlStandalone_Omit); }
  HRESULT WriteStartElement(const Name& name);
  HRESULT WritePlainAttribute(const Name& name, Value value);
  HRESULT WriteAttribute(const Name& name, const std::wstring& text);
  HRESULT WriteEnd() { return writer_->WriteEndElement(); }
  HRESULT WriteFullEnd() { return writer_->WriteFullEndElement(); }
  HRESULT WriteLineFeed() { return writer_->WriteWhitespace(L"\n"); }
  HRESULT WriteEmptyElement(const Name& name);
  HRESULT WritePlainElement(const Name& name, Value value);
  HRESULT WriteElement(const Name& name, const std::wstring& text);
  HRESULT WriteEndDocument() { return writer_->WriteEndDocument(); }
  HRESULT Flush() { return writer_->Flush(); }

 private:
  ComPtr<IXmlWriter> writer_;
};

}  // namespace tolva::platform
