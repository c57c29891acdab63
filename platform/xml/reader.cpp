#include "platform/xml/reader.h"

#include <cstring>

#include "platform/utf.h"

namespace tolva::platform {
namespace {

/// An empty value, as opposed to none.
constexpr char kEmpty[kReadAhead + 1] = {};

XmlReader::Value OrEmpty(std::string_view value) {
  return value.data() == nullptr ? XmlReader::Value(kEmpty) : value;
}

own_xml::ValueKind KindOf(XmlNodeType type) {
  return type == XmlNodeType_Text ? own_xml::ValueKind::kText : own_xml::ValueKind::kLiteral;
}

}  // namespace

HRESULT XmlReader::Start(ISequentialStream* input, bool is_converted) {
  parser_.SetInput(input, is_converted);
  is_converted_ = is_converted;
  ReleaseDecoded();
  return S_OK;
}

HRESULT XmlReader::Deliver(own_xml::ReadResult result, XmlNodeType* type) {
  ReleaseDecoded();
  *type = parser_.type();
  if (result == own_xml::ReadResult::kNode) return S_OK;
  return result == own_xml::ReadResult::kEnd ? S_FALSE : parser_.fault();
}

HRESULT XmlReader::GetLocalName(Value* name) const {
  *name = OrEmpty(parser_.name().Local());
  return S_OK;
}

HRESULT XmlReader::GetValue(Value* value) {
  *value = parser_.value_is_plain() ? OrEmpty(parser_.value())
                                    : Decode(parser_.value(), KindOf(parser_.type()));
  return S_OK;
}

XmlReader::Value XmlReader::Decode(std::string_view source, own_xml::ValueKind kind) {
  decoded_.Truncate(0);
  own_xml::AppendValue(source, kind, decoded_);
  std::memset(decoded_.Room(kReadAhead), 0, kReadAhead);
  return {decoded_.data(), decoded_.size()};
}

}  // namespace tolva::platform
