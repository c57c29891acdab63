// The writing manager: elements and attributes, in order, into a file.
#pragma once

#include <string>

#include "xml/manager.h"

namespace tolva::xml {

/// The platform's writer tracks the open elements. The manager remembers whether the document has
/// been ended and whether part of it is lost. Characters that XML does not allow are refused with
/// -101 and last error WC_E_XMLCHARACTER or WR_E_INVALIDSURROGATEPAIR, and nothing is written.
/// Without an open document every operation except `OpenFile` and `Close` returns -101 with last
/// error E_UNEXPECTED.
class CXMLLiteManagerWriter final : public CXMLLiteManager {
 public:
  /// A value that is written as it is, such as a number: ASCII that needs no escaping.
  using Plain = XmlWriter::Value;

  CXMLLiteManagerWriter();
  ~CXMLLiteManagerWriter() override;

  ConfigResult OpenFile(const wchar_t* path) override;
  ConfigResult Close() override;

  /// Starts a document in a stream, which is kept until it is closed. The result is that of
  /// `OpenFile` for a file that could be opened.
  ConfigResult OpenStream(ISequentialStream& stream);

  // Each returns 0, or -101 if the platform refuses. The names come from tables, so no element has
  // two attributes of one name.

  ConfigResult StartElement(const Name& name);
  ConfigResult WriteAttribute(const Name& name, const std::wstring& text);
  ConfigResult WritePlainAttribute(const Name& name, Plain value);

  /// How an element without content ends.
  enum class End { kEmptyTag, kEndTag };

  /// Ends the innermost element.
  ConfigResult EndElement(End form);

  // An element that contains only text, or nothing.

  ConfigResult WriteElement(const Name& name, const std::wstring& text);
  ConfigResult WritePlainElement(const Name& name, Plain value);
  ConfigResult WriteEmptyElement(const Name& name);

 private:
  template <class Call>
  HRESULT Invoke(Call call);
  template <class Call>
  ConfigResult Emit(Call call);
  void NoteLoss(HRESULT failure);
  HRESULT EndDocument();
  HRESULT Finish();
  void EndPrevious();
  void Release();

  ComPtr<IStream> file_;  ///< null unless the stream is a file
  XmlWriter writer_;
  bool is_usable_ = false;
  bool is_ended_ = false;  ///< the document has been ended, but perhaps not flushed
  HRESULT loss_ = S_OK;    ///< first failure that may have lost part of the document
};

/// The writer behind `manager`, or null if it is a reader.
inline CXMLLiteManagerWriter* AsWriter(IXMLLiteManager* manager) {
  auto* const own = static_cast<CXMLLiteManager*>(manager);
  return own->kind() == CXMLLiteManager::Kind::kWriter ? static_cast<CXMLLiteManagerWriter*>(own)
                                                       : nullptr;
}

}  // namespace tolva::xml
