// The writing manager: elements and attributes, in order, into a file.
#pragma once

#include "xml/manager.h"
#include "xml/text.h"

namespace tolva::xml {

/// Keeps no state of its own about the document but whether it has been ended: the platform's
/// writer knows what is open. Characters that XML does not allow are refused before it is called,
/// with -101 and last error WC_E_XMLCHARACTER or WR_E_INVALIDSURROGATEPAIR.
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
  HRESULT Ask(Call call);
  template <class Call>
  ConfigResult Write(Call call);
  ConfigResult CheckCharacters(Text text);
  void Release();

  ComPtr<IXmlWriter> writer_;
  bool is_ended_ = false;  ///< the open document has been ended, but perhaps not flushed
};

/// The writer that a node was given; null when it was given a reader.
inline CXMLLiteManagerWriter* AsWriter(IXMLLiteManager* manager) {
  auto* const own = static_cast<CXMLLiteManager*>(manager);
  return own->kind() == CXMLLiteManager::Kind::kWriter ? static_cast<CXMLLiteManagerWriter*>(own)
                                                       : nullptr;
}

}  // namespace tolva::xml
