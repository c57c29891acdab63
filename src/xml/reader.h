// The reading manager: a coarse forward-only cursor over an XML document.
#pragma once

#include "xml/manager.h"

namespace tolva::xml {

/// Sees elements, end tags, CDATA sections and comments, and passes over everything else. Strings
/// that it returns are valid until the cursor moves.
class CXMLLiteManagerReader final : public CXMLLiteManager {
 public:
  CXMLLiteManagerReader();
  ~CXMLLiteManagerReader() override { CXMLLiteManagerReader::Close(); }

  ConfigResult OpenFile(const wchar_t* path) override;
  ConfigResult OpenFromString(const wchar_t* xml_text) override;
  ConfigResult Close() override;

  /// The local name of the current element (or processing instruction). On anything else the empty
  /// string, with last error 1.
  const wchar_t* GetLocalName();

  /// The value of the current element's attribute; null when there is none: last error -104, or
  /// -102 when the cursor is not on an element. Last error 0 on success.
  const wchar_t* GetAttribute(const wchar_t* name);

  /// The text of the current element: the value of the one node that follows the start tag, when it
  /// is text, a CDATA section, a comment or a processing instruction. Null else; the cursor has
  /// then moved all the same, and an element without content counts as an empty tag from then on.
  const wchar_t* GetText();

  /// Moves to the next element, end tag, CDATA section or comment. 0 at the end of the input and
  /// where it is malformed, with the parser's answer as last error.
  int NextNode();

  /// Moves behind the current element with all its content; the type of the node there.
  int SkipElement();

  /// Moves to the end tag of the current element; stays on an empty tag. The node type there, 0 at
  /// the end of the input.
  int FinishElement();

  /// Reads on to the end of the document: 0 when it is well-formed up to there, else -101 with the
  /// parser's answer as last error. -101 as well when no document is open.
  ConfigResult ReadToEnd();

  int node_type() const { return node_type_; }

  /// The last element that the cursor stopped on was written as an empty tag.
  bool is_empty_element() const { return is_empty_element_; }

 private:
  ConfigResult MoveToRoot(HRESULT input_result);

  ComPtr<IXmlReader> reader_;
  bool is_string_ = false;  ///< the document was given as a string
  int node_type_ = XmlNodeType_None;
  bool is_empty_element_ = false;
};

/// The reader that a node was given; null when it was given a writer.
inline CXMLLiteManagerReader* AsReader(IXMLLiteManager* manager) {
  auto* const own = static_cast<CXMLLiteManager*>(manager);
  return own->kind() == CXMLLiteManager::Kind::kReader ? static_cast<CXMLLiteManagerReader*>(own)
                                                       : nullptr;
}

}  // namespace tolva::xml
