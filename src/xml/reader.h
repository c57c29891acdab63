// The reading manager: a coarse forward-only cursor over an XML document.
#pragma once

#include "xml/manager.h"

namespace tolva::xml {

/// The cursor stops on elements, end tags, CDATA sections and comments, and skips everything else.
/// Values that it returns are valid until it moves or returns the next one. A value without data
/// means that there is none.
class CXMLLiteManagerReader final : public CXMLLiteManager {
 public:
  using Value = XmlReader::Value;

  CXMLLiteManagerReader();
  ~CXMLLiteManagerReader() override { CXMLLiteManagerReader::Close(); }

  ConfigResult OpenFile(const wchar_t* path) override;
  ConfigResult OpenFromString(const wchar_t* xml_text) override;
  ConfigResult Close() override;

  /// Opens what a stream holds, from where it stands. The stream is kept until `Close`. The result
  /// is that of `OpenFile` for a file that could be opened.
  ConfigResult OpenStream(ISequentialStream& stream);

  /// The local name of the current element or processing instruction. On any other node the empty
  /// name, with last error 1.
  Value GetLocalName();

  /// Looks names up among the attributes of the current element, for `GetAttribute`.
  void FindAttributes(const Names& names) {
    const bool is_on_element = node_type_ == XmlNodeType_Element;
    no_attribute_ = static_cast<DWORD>(is_on_element ? kAttributeAbsent : kInvalidArgument);
    if (!has_found_attributes_) reader_.FindAttributes(names);
    has_found_attributes_ = true;
  }

  /// The value of the attribute that has the name at this place of the names.
  Value GetAttribute(std::size_t index) {
    Value value;
    attribute_result_ = reader_.GetAttribute(index, &value);
    return value;
  }

  /// Sets the last error that the last `GetAttribute` stands for: 0, -104 if there is no such
  /// attribute, -102 if the cursor is not on an element.
  void StoreAttributeError() const {
    SetLastError(attribute_result_ == S_FALSE ? no_attribute_
                                              : static_cast<DWORD>(attribute_result_));
  }

  /// The text of the current element: the value of the node after the start tag, if that is text, a
  /// CDATA section, a comment or a processing instruction. Otherwise there is none; the cursor
  /// moves even so, and an element without content counts as an empty tag from then on.
  Value GetText();

  /// Moves to the next element, end tag, CDATA section or comment and returns its type. Returns 0
  /// at the end of the input and at malformed input, with the parser's result as last error.
  int NextNode();

  /// Moves like `NextNode` and looks an element's name up in `tags`. `index` is where the search
  /// starts, and then the place of the tag, or the number of tags if the name is not among them.
  int NextNode(const KnownTags& tags, std::size_t& index);

  /// Moves past the current element and its content. Returns the type of the node found there.
  int SkipElement();

  /// Moves to the end tag of the current element, or stays on an empty tag. Returns the node type,
  /// 0 at the end of the input.
  int FinishElement() {
    const bool is_finished = node_type_ == XmlNodeType_EndElement ||
                             (node_type_ == XmlNodeType_Element && is_empty_element_);
    return is_finished ? node_type_ : MoveToEndTag();
  }

  /// Reads to the end of the document. Returns 0 if the document is well-formed, otherwise -101
  /// with the parser's result as last error. Returns -101 if no document is open.
  ConfigResult ReadToEnd();

  int node_type() const { return node_type_; }

  /// Whether the last element that the cursor stopped on is an empty tag.
  bool is_empty_element() const { return is_empty_element_; }

 private:
  ConfigResult MoveToRoot(HRESULT input_result);
  int MoveOn();
  int MoveToEndTag();
  std::size_t Find(const KnownTags& tags, std::size_t start);

  XmlReader reader_;
  bool is_usable_ = false;
  HRESULT attribute_result_ = S_OK;    ///< of the last `GetAttribute`
  DWORD no_attribute_ = 0;             ///< the last error that S_FALSE stands for
  bool has_found_attributes_ = false;  ///< those of the current element
  int node_type_ = XmlNodeType_None;
  bool is_empty_element_ = false;
};

inline int CXMLLiteManagerReader::NextNode(const KnownTags& tags, std::size_t& index) {
  if (reader_.ReadKnownTag(tags, index)) {
    node_type_ = reader_.type();
    if (node_type_ == XmlNodeType_Element) {
      is_empty_element_ = reader_.IsEmptyElement();
      has_found_attributes_ = true;
    }
    return node_type_;
  }
  const int type = NextNode();
  if (type == XmlNodeType_Element) index = Find(tags, index);
  return type;
}

/// The reader behind `manager`, or null if it is a writer.
inline CXMLLiteManagerReader* AsReader(IXMLLiteManager* manager) {
  auto* const own = static_cast<CXMLLiteManager*>(manager);
  return own->kind() == CXMLLiteManager::Kind::kReader ? static_cast<CXMLLiteManagerReader*>(own)
                                                       : nullptr;
}

}  // namespace tolva::xml
