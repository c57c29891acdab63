#include "platform/xml/reader.h"

#include <cstring>
#include <string_view>

#include "platform/utf.h"
#include "platform/xml/characters.h"
#include "platform/xml/decode.h"

namespace tolva::platform {
namespace {

using own_xml::IsAscii;

/// What is not ASCII is compared by code points.
bool EqualsSlowly(const wchar_t* wide, std::string_view utf8) {
  const char* at = utf8.data();
  const char* const end = at + utf8.size();
  while (at != end) {
    // Behind a unit that is not zero there is another.
    if (*wide == 0 || TakeCodePoint(wide, wide + 2) != TakeCodePoint(at)) return false;
  }
  return *wide == 0;
}

bool Equals(const wchar_t* wide, std::string_view utf8) {
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const char c = utf8[i];
    if (!IsAscii(c)) return EqualsSlowly(wide, utf8);
    if (wide[i] != static_cast<wchar_t>(c)) return false;
  }
  return wide[utf8.size()] == 0;
}

/// Fills an empty buffer; whoever runs out of memory leaves it empty. What the parser hands out has
/// the padding of its window behind it.
void Fill(std::string_view utf8, Buffer<wchar_t>& text) {
  AppendWide(utf8, text);
  text.data()[text.size()] = 0;  // it leaves room for that
  text.Commit(1);
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
  attribute_ = kNoAttribute;
  ClearStrings();
  return S_OK;
}

HRESULT XmlReader::SetProperty(UINT property, LONG_PTR value) {
  const bool known = property == XmlReaderProperty_DtdProcessing && value == DtdProcessing_Prohibit;
  return known ? S_OK : E_NOTIMPL;
}

void XmlReader::MoveTo(std::size_t attribute) {
  attribute_ = attribute;
  name_.Truncate(0);
  value_.Truncate(0);
}

/// Memory that a long string has needed is given back behind its node.
void XmlReader::ClearStrings() {
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
    if (attribute_ == kNoAttribute) {
      FillValue(parser_.value(), parser_.value_is_plain(), KindOf(parser_.type()));
    } else {
      const own_xml::Attribute& attribute = parser_.attributes()[attribute_];
      FillValue(attribute.value, attribute.plain, own_xml::ValueKind::kAttribute);
    }
  }
  Return(value_, value, length);
  return S_OK;
}

void XmlReader::FillValue(std::string_view raw, bool is_plain, own_xml::ValueKind kind) {
  if (!is_plain) {
    decoded_.Truncate(0);
    own_xml::AppendValue(raw, kind, decoded_);
    std::memset(decoded_.Room(kReadAhead), 0, kReadAhead);
    raw = {decoded_.data(), decoded_.size()};
  }
  Fill(raw, value_);
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
