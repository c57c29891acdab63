// The writing manager: elements and attributes, in order, into a file.
#pragma once

#include "xml/manager.h"
#include "xml/text.h"

namespace tolva::xml {

/// The platform's writer tracks the open elements. The manager remembers whether the document has
/// been ended and whether part of it is lost. Characters that XML does not allow are refused before
/// the platform's writer is called, with -101 and last error WC_E_XMLCHARACTER or
/// WR_E_INVALIDSURROGATEPAIR. Without an open document every operation except `OpenFile` and
/// `Close` returns -101 with last error E_UNEXPECTED.
class CXMLLiteManagerWriter final : public CXMLLiteManager {
 public:
  CXMLLiteManagerWriter();
  ~CXMLLiteManagerWriter() override;

  ConfigResult OpenFile(const wchar_t* path) override;
  ConfigResult Close() override;

  // Each returns -102 for a null or empty name and -101 if the platform refuses.

  ConfigResult StartElement(const wchar_t* name);
  ConfigResult WriteAttribute(const wchar_t* name, Text value);

  /// Writes the text and ends the innermost element. If `text` is null and the element has no
  /// content, it becomes an empty tag.
  ConfigResult EndElement(Text text);

  /// Writes an element that contains only text. Null text gives an empty tag.
  ConfigResult WriteElementString(const wchar_t* name, Text text);

 private:
  template <class Call>
  HRESULT Invoke(Call call);
  template <class Call>
  ConfigResult Emit(Call call);
  void NoteLoss(HRESULT failure);
  ConfigResult Check(Text text);
  HRESULT EndDocument();
  HRESULT Finish();
  void Release();

  ComPtr<IXmlWriter> writer_;
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
