// The reading manager: a coarse forward-only cursor over an XML document.
#pragma once

#include "xml/manager.h"

namespace tolva::xml {

/// The cursor stops on elements, end tags, CDATA sections and comments, and skips everything else.
/// Strings that it returns are valid until it moves.
class CXMLLiteManagerReader final : public CXMLLiteManager {
 public:
  CXMLLiteManagerReader();
  ~CXMLLiteManagerReader() override { CXMLLiteManagerReader::Close(); }

  ConfigResult OpenFile(const wchar_t* path) override;
  ConfigResult OpenFromString(const wchar_t* xml_text) override;
  ConfigResult Close() override;

  /// The local name of the current element or processing instruction. On any other node the empty
  /// string, with last error 1.
  const wchar_t* GetLocalName();

  /// The value of an attribute of the current element, with last error 0. Null if there is no such
  /// attribute (last error -104) or the cursor is not on an element (last error -102).
  const wchar_t* GetAttribute(const wchar_t* name);

  /// The text of the current element: the value of the node after the start tag, if that is text, a
  /// CDATA section, a comment or a processing instruction. Otherwise null; the cursor moves even
  /// so, and an element without content counts as an empty tag from then on.
  const wchar_t* GetText();

  /// Moves to the next element, end tag, CDATA section or comment and returns its type. Returns 0
  /// at the end of the input and at malformed input, with the parser's result as last error.
  int NextNode();

  /// Moves past the current element and its content. Returns the type of the node found there.
  int SkipElement();

  /// Moves to the end tag of the current element, or stays on an empty tag. Returns the node type,
  /// 0 at the end of the input.
  int FinishElement();

  /// Reads to the end of the document. Returns 0 if the document is well-formed, otherwise -101
  /// with the parser's result as last error. Returns -101 if no document is open.
  ConfigResult ReadToEnd();

  int node_type() const { return node_type_; }

  /// Whether the last element that the cursor stopped on is an empty tag.
  bool is_empty_element() const { return is_empty_element_; }

 private:
  ConfigResult MoveToRoot(HRESULT input_result);

  ComPtr<IXmlReader> reader_;
  bool is_string_ = false;  ///< the document is a string
  int node_type_ = XmlNodeType_None;
  bool is_empty_element_ = false;
};

/// The reader behind `manager`, or null if it is a writer.
inline CXMLLiteManagerReader* AsReader(IXMLLiteManager* manager) {
  auto* const own = static_cast<CXMLLiteManager*>(manager);
  return own->kind() == CXMLLiteManager::Kind::kReader ? static_cast<CXMLLiteManagerReader*>(own)
                                                       : nullptr;
}

}  // namespace tolva::xml
