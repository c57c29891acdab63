// The XML reader behind XmlLite's interface.
#pragma once

#include <cstddef>

#include "platform/buffer.h"
#include "platform/ref_counted.h"
#include "platform/xml/parser.h"

namespace tolva::platform {

enum DtdProcessing : LONG_PTR { DtdProcessing_Prohibit = 0, DtdProcessing_Parse = 1 };

enum XmlReaderProperty : UINT { XmlReaderProperty_DtdProcessing = 4 };

/// Reads a document node by node, as XmlLite's IXmlReader does, in the calls that the library
/// makes. There is one implementation, so it is called without a table of virtual functions.
///
/// The strings it returns end with zero and are valid until the cursor moves; `length` may be null.
class XmlReader final : public RefCounted<> {
 public:
  /// Starts on a stream; null lets the last one go. `converted`: its bytes are UTF-8, whatever
  /// encoding the document declares.
  HRESULT SetInput(ISequentialStream* input, bool converted = false);

  /// Document type declarations are prohibited; nothing else can be set.
  HRESULT SetProperty(UINT property, LONG_PTR value);

  /// S_OK, S_FALSE behind the last node (`*type` None), or a failure that stays.
  HRESULT Read(XmlNodeType* type) {
    // Strings that were asked for, some of them perhaps left for another attribute.
    if (name_.size() + value_.size() + next_attribute_ != 0) ClearStrings();
    attribute_ = kNoAttribute;
    next_attribute_ = 0;
    const own_xml::ReadResult result = parser_.Read();
    *type = parser_.type();
    if (result == own_xml::ReadResult::kNode) return S_OK;
    return result == own_xml::ReadResult::kEnd ? S_FALSE : parser_.fault();
  }

  HRESULT GetLocalName(const wchar_t** name, UINT* length);
  HRESULT GetValue(const wchar_t** value, UINT* length);

  /// FALSE also while the cursor stands on an attribute.
  BOOL IsEmptyElement() const;

  /// Moves to the attribute of the current element that has this name and no namespace; S_FALSE
  /// when there is none. Attributes can be asked for in any order; asking in the document's is
  /// fastest.
  HRESULT MoveToAttributeByName(const wchar_t* local_name, const wchar_t* namespace_uri);

  /// Whether what `Read` has refused is nothing but a zero behind the whole document.
  bool EndsAtTerminator() const { return parser_.EndsAtTerminator(); }

  /// Without a document type declaration no attribute has a default.
  BOOL IsDefault() const { return FALSE; }

 private:
  static constexpr std::size_t kNoAttribute = static_cast<std::size_t>(-1);

  void MoveTo(std::size_t attribute);
  void ClearStrings();
  void FillValue(std::string_view raw, bool is_plain, own_xml::ValueKind kind);

  own_xml::Parser parser_;
  std::size_t attribute_ = kNoAttribute;  ///< the cursor stands on it
  std::size_t next_attribute_ = 0;        ///< where the next search starts
  Buffer<wchar_t> name_;                  ///< the local name, once it has been asked for
  Buffer<wchar_t> value_;                 ///< likewise the value
  Buffer<char> decoded_;
};

}  // namespace tolva::platform
