// Values in the form of the platform's reader and writer, and back.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "platform/platform.h"
#include "platform/utf.h"

namespace tolva::test {

using Value = platform::XmlReader::Value;

template <class Text = std::basic_string<Value::value_type>>
Text ValueOf(std::wstring_view wide) {
  if constexpr (std::is_same_v<Text, std::wstring>) {
    return Text(wide);
  } else {
    Text utf8;
    platform::AppendUtf8(wide, utf8);
    return utf8;
  }
}

inline const std::wstring kNoValue = L"(none)";

inline std::wstring Wide(Value value) {
  if (value.data() == nullptr) return kNoValue;
  std::wstring wide;
  platform::AssignWide(value, wide);
  return wide;
}

}  // namespace tolva::test
