// The XML reader of the library's own layer.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/buffer.h"
#include "platform/name.h"
#include "platform/xml/decode.h"
#include "platform/xml/parser.h"

namespace tolva::platform {

/// Reads a document node by node. Results are those of XmlLite's IXmlReader: S_OK, S_FALSE at the
/// end and where there is no such thing, and failures.
class XmlReader {
 public:
  /// A name or value as UTF-8, with `kReadAhead` readable bytes after it. Valid until the reader
  /// moves or returns another value.
  using Value = std::string_view;

  HRESULT Create() { return S_OK; }

  /// Starts on a stream, or releases the stream if null.
  HRESULT SetInput(ISequentialStream* input) { return Start(input, false); }

  /// Starts on a text that is UTF-8, whatever encoding it declares. A zero follows the document.
  HRESULT SetConvertedInput(ISequentialStream* input) { return Start(input, true); }

  /// Moves to the next node. After the end and after a failure every further call returns the same.
  HRESULT Read(XmlNodeType* type) { return Deliver(parser_.Read(), type); }

  /// Like `Read`, but skips white space between tags.
  HRESULT ReadTag(XmlNodeType* type) { return Deliver(parser_.ReadTag(), type); }

  /// Moves to the next node if that is an end tag, or a start tag in `tags` with attributes that
  /// the tag knows, in the form in which most are written. `index` is where the search among the
  /// tags starts, and then the place of the tag. Otherwise returns false without having moved.
  bool ReadKnownTag(const KnownTags& tags, std::size_t& index) {
    if (!parser_.ReadKnownTag(tags, index)) return false;
    ReleaseDecoded();
    return true;
  }

  XmlNodeType type() const { return parser_.type(); }
  bool IsEmptyElement() const { return parser_.is_empty_element(); }

  /// The local name of the current node, empty if it has none.
  HRESULT GetLocalName(Value* name) const;

  /// Looks the names up among the attributes of the current element. `ReadKnownTag` has done so.
  void FindAttributes(const Names& names) { parser_.FindAttributes(names); }

  /// The value of the attribute that has the name at this place of the names, without a namespace.
  HRESULT GetAttribute(std::size_t index, Value* value) {
    const own_xml::Attribute* const attribute = parser_.FoundAttribute(index);
    if (attribute == nullptr) return S_FALSE;
    *value = attribute->plain ? attribute->value
                              : Decode(attribute->value, own_xml::ValueKind::kAttribute);
    return S_OK;
  }

  /// The value of the current node, empty if it has none.
  HRESULT GetValue(Value* value);

  /// Whether nothing is wrong but the zero that follows a converted text.
  bool EndsAtTerminator() const { return is_converted_ && parser_.EndsAtTerminator(); }

 private:
  HRESULT Start(ISequentialStream* input, bool is_converted);
  HRESULT Deliver(own_xml::ReadResult result, XmlNodeType* type);
  Value Decode(std::string_view source, own_xml::ValueKind kind);

  /// Memory for a long value is kept no longer than the value.
  void ReleaseDecoded() {
    if (decoded_.size() != 0) decoded_.Clear();
  }

  own_xml::Parser parser_;
  bool is_converted_ = false;
  Buffer<char> decoded_;
};

}  // namespace tolva::platform
