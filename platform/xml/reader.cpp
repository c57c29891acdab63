#include "platform/xml/reader.h"

#include <string_view>

#include "platform/utf.h"
#include "platform/xml/decode.h"

namespace tolva::platform {
namespace {

bool Equals(const wchar_t* wide, std::string_view utf8) {
  const char* at = utf8.data();
  const char* const end = at + utf8.size();
  for (;;) {
    while (at != end && static_cast<unsigned char>(*at) < 0x80 &&
           *wide == static_cast<wchar_t>(*at)) {
      ++wide;
      ++at;
    }
    if (at == end) return *wide == 0;
    if (static_cast<unsigned char>(*at) < 0x80 || *wide == 0) return false;
    // Behind a unit that is not zero there is another.
    if (TakeCodePoint(wide, wide + 2) != TakeCodePoint(at)) return false;
  }
}

/// Fills an empty buffer; whoever runs out of memory leaves it empty. What the parser hands out has
/// the padding of its window behind it.
void Fill(std::string_view utf8, Buffer<wchar_t>& text) {
  AppendWide(utf8, text);  // with room for the zero
  text.Append(L'\0');
}

void Return(const Buffer<wchar_t>& terminated, const wchar_t** text, UINT* length) {
  *text = terminated.data();
  if (length != nullptr) *length = static_cast<UINT>(terminated.size() - 1);
}

own_xml::ValueKind KindOf(XmlNodeType type) {
  return type == XmlNodeType_Text ? own_xml::ValueKind::kText : own_xml::ValueKind::kLiteral;
}

}  // namespace

HRESULT XmlReader::SetInput(ISequentialStream* input, bool converted) {
  parser_.SetInput(input, converted);
  MoveTo(kNoAttribute);
  return S_OK;
}

HRESULT XmlReader::SetProperty(UINT property, LONG_PTR value) {
  const bool known = property == XmlReaderProperty_DtdProcessing && value == DtdProcessing_Prohibit;
  return known ? S_OK : E_NOTIMPL;
}

HRESULT XmlReader::Read(XmlNodeType* type) {
  MoveTo(kNoAttribute);
  next_attribute_ = 0;
  const HRESULT result = parser_.Read();
  *type = parser_.type();
  return result;
}

void XmlReader::MoveTo(std::size_t attribute) {
  attribute_ = attribute;
  name_.Clear();
  value_.Clear();
  decoded_.Clear();
}

HRESULT XmlReader::GetLocalName(const wchar_t** name, UINT* length) {
  if (name_.size() == 0) {
    const own_xml::Name& current =
        attribute_ == kNoAttribute ? parser_.name() : parser_.attributes()[attribute_].name;
    Fill(current.Local(), name_);
  }
  Return(name_, name, length);
  return S_OK;
}

HRESULT XmlReader::GetValue(const wchar_t** value, UINT* length) {
  if (value_.size() == 0) {
    const bool on_node = attribute_ == kNoAttribute;
    const own_xml::Attribute current =
        on_node ? own_xml::Attribute{{}, parser_.value(), parser_.value_is_plain()}
                : parser_.attributes()[attribute_];
    if (current.plain) {
      Fill(current.value, value_);
    } else {
      decoded_.Clear();
      own_xml::AppendValue(current.value,
                           on_node ? KindOf(parser_.type()) : own_xml::ValueKind::kAttribute,
                           decoded_);
      decoded_.Room(kReadAhead);
      Fill({decoded_.data(), decoded_.size()}, value_);
    }
  }
  Return(value_, value, length);
  return S_OK;
}

BOOL XmlReader::IsEmptyElement() const {
  return attribute_ == kNoAttribute && parser_.is_empty_element() ? TRUE : FALSE;
}

HRESULT XmlReader::MoveToAttributeByName(const wchar_t* local_name, const wchar_t* namespace_uri) {
  if (local_name == nullptr) return E_INVALIDARG;
  if (namespace_uri != nullptr && *namespace_uri != 0) return E_NOTIMPL;
  if (!parser_.MayHaveAttribute(*local_name)) return S_FALSE;
  const auto attributes = parser_.attributes();
  for (std::size_t tried = 0; tried < attributes.size(); ++tried) {
    std::size_t i = next_attribute_ + tried;
    if (i >= attributes.size()) i -= attributes.size();
    const own_xml::Name& name = attributes[i].name;
    if (name.prefix != 0 || !Equals(local_name, name.text) || name.text == "xmlns") continue;
    MoveTo(i);
    next_attribute_ = i + 1;
    return S_OK;
  }
  return S_FALSE;
}

}  // namespace tolva::platform
