// The writing manager: elements and attributes, in order, into a file.
#pragma once

#include "xml/manager.h"
#include "xml/text.h"

namespace tolva::xml {

/// The platform's writer knows what is open; the manager remembers whether the document has been
/// ended, and whether a part of it is lost. Characters that XML does not allow are refused before
/// the platform's writer is called, with -101 and last error WC_E_XMLCHARACTER or
/// WR_E_INVALIDSURROGATEPAIR. Without an open document every operation but `OpenFile` and `Close`
/// gives -101 and last error E_UNEXPECTED.
class CXMLLiteManagerWriter final : public CXMLLiteManager {
 public:
  CXMLLiteManagerWriter();
  ~CXMLLiteManagerWriter() override;

  ConfigResult OpenFile(const wchar_t* path) override;
  ConfigResult Close() override;

  // -102 for a null or empty name, -101 when the platform refuses.

  ConfigResult StartElement(const wchar_t* name);
  ConfigResult WriteAttribute(const wchar_t* name, Text value);

  /// Ends the innermost element: as an empty tag when `text` is null and the element has no
  /// content, else with an end tag, behind the text.
  ConfigResult EndElement(Text text);

  /// An element of text alone; null text gives an empty tag.
  ConfigResult WriteElementString(const wchar_t* name, Text text);

 private:
  template <class Call>
  HRESULT Invoke(Call call);
  template <class Call>
  ConfigResult Emit(Call call);
  ConfigResult Check(Text text);
  HRESULT EndDocument();
  HRESULT Finish();
  void Release();

  ComPtr<IXmlWriter> writer_;
  bool is_ended_ = false;  ///< the open document has been ended, but perhaps not flushed
  HRESULT loss_ = S_OK;    ///< the first failure by which a part of the document may be lost
};

/// The writer that a node was given; null when it was given a reader.
inline CXMLLiteManagerWriter* AsWriter(IXMLLiteManager* manager) {
  auto* const own = static_cast<CXMLLiteManager*>(manager);
  return own->kind() == CXMLLiteManager::Kind::kWriter ? static_cast<CXMLLiteManagerWriter*>(own)
                                                       : nullptr;
}

}  // namespace tolva::xml
