#include "xml/reader.h"

#include <new>

namespace tolva::xml {
namespace {

// Last-error values that are not HRESULTs.
constexpr auto kNoSuitableNode = DWORD{1};

constexpr Name kNoName;

}  // namespace

CXMLLiteManagerReader::CXMLLiteManagerReader() : CXMLLiteManager(Kind::kReader) {
  const HRESULT result = reader_.Create();
  is_usable_ = SUCCEEDED(result);
  if (!is_usable_) SetLastResult(result);
}

ConfigResult CXMLLiteManagerReader::OpenFile(const wchar_t* path) {
  if (!is_usable_) return kFailed;
  if (path == nullptr) return kInvalidArgument;
  Close();
  ComPtr<IStream> file;
  if (!OpenToRead(path, file.Receive())) return kFailed;
  return OpenStream(*file.Get());
}

ConfigResult CXMLLiteManagerReader::OpenStream(ISequentialStream& stream) {
  if (!is_usable_) return kFailed;
  Close();
  stream_.Share(&stream);
  return MoveToRoot(reader_.SetInput(&stream));
}

ConfigResult CXMLLiteManagerReader::OpenFromString(const wchar_t* xml_text) {
  if (!is_usable_) return kFailed;
  if (xml_text == nullptr) return kInvalidArgument;
  IStream* stream = nullptr;
  const HRESULT result = OpenText(xml_text, &stream);
  if (FAILED(result)) return result == E_INVALIDARG ? kInvalidArgument : kFailed;
  stream_.Attach(stream);
  return MoveToRoot(reader_.SetConvertedInput(stream));
}

/// The common end of both opens. Input without an element is no failure here: the root node notices
/// it, because the name differs.
ConfigResult CXMLLiteManagerReader::MoveToRoot(HRESULT input_result) try {
  if (FAILED(input_result)) {
    SetLastResult(input_result);
    Close();
    return kFailed;
  }
  for (;;) {
    XmlNodeType type = XmlNodeType_None;
    const HRESULT result = reader_.Read(&type);
    node_type_ = type;
    if (result != S_OK) {
      SetLastResult(result);
      return kSuccess;
    }
    if (type == XmlNodeType_Element) {
      is_empty_element_ = reader_.IsEmptyElement();
      has_found_attributes_ = false;
      return kSuccess;
    }
  }
} catch (const std::bad_alloc&) {
  Close();
  throw;
}

ConfigResult CXMLLiteManagerReader::Close() {
  if (stream_) {
    reader_.SetInput(nullptr);
    node_type_ = XmlNodeType_None;
  }
  return CXMLLiteManager::Close();
}

CXMLLiteManagerReader::Value CXMLLiteManagerReader::GetLocalName() {
  if (node_type_ != XmlNodeType_Element && node_type_ != XmlNodeType_ProcessingInstruction) {
    SetLastError(kNoSuitableNode);
    return kNoName.As<Value>();
  }
  Value name;
  const HRESULT result = reader_.GetLocalName(&name);
  if (FAILED(result)) SetLastResult(result);
  return name;
}

CXMLLiteManagerReader::Value CXMLLiteManagerReader::GetText() {
  if (node_type_ == XmlNodeType_Element) {
    if (is_empty_element_) return {};
    XmlNodeType type = XmlNodeType_None;
    reader_.Read(&type);
    node_type_ = type;
  }
  switch (node_type_) {
    case XmlNodeType_Text:
    case XmlNodeType_CDATA:
    case XmlNodeType_ProcessingInstruction:
    case XmlNodeType_Comment:
      break;
    case XmlNodeType_EndElement:
      is_empty_element_ = true;
      return {};
    default:
      SetLastError(kNoSuitableNode);
      return {};
  }
  Value value;
  const HRESULT result = reader_.GetValue(&value);
  if (FAILED(result)) SetLastResult(result);
  return value;
}

/// Reads nodes until the cursor can stop on one.
int CXMLLiteManagerReader::MoveOn() {
  for (;;) {
    XmlNodeType type = XmlNodeType_None;
    const HRESULT result = reader_.ReadTag(&type);
    if (result != S_OK) {
      SetLastResult(result);
      return XmlNodeType_None;
    }
    switch (type) {
      case XmlNodeType_Element:
        is_empty_element_ = reader_.IsEmptyElement();
        has_found_attributes_ = false;
        [[fallthrough]];
      case XmlNodeType_CDATA:
      case XmlNodeType_Comment:
      case XmlNodeType_EndElement:
        node_type_ = type;
        return type;
      default:
        break;
    }
  }
}

int CXMLLiteManagerReader::NextNode() { return stream_ ? MoveOn() : XmlNodeType_None; }

/// Where the current element's name is among the tags. Documents mostly keep the order of the tags.
std::size_t CXMLLiteManagerReader::Find(const KnownTags& tags, std::size_t start) {
  const Value name = GetLocalName();
  std::size_t index = start;
  for (std::size_t tried = 0; tried < tags.size(); ++tried) {
    if (index >= tags.size()) index = 0;
    if (tags[index].name == name) return index;
    ++index;
  }
  return tags.size();
}

int CXMLLiteManagerReader::SkipElement() {
  if (node_type_ != XmlNodeType_Element || is_empty_element_) return NextNode();
  for (int open = 1; open != 0;) {
    switch (NextNode()) {
      case XmlNodeType_None:
        return XmlNodeType_None;
      case XmlNodeType_Element:
        if (!is_empty_element_) ++open;
        break;
      case XmlNodeType_EndElement:
        --open;
        break;
      default:
        break;
    }
  }
  return NextNode();
}

int CXMLLiteManagerReader::MoveToEndTag() {
  int type = NextNode();
  while (type != XmlNodeType_EndElement && type != XmlNodeType_None) {
    type = type == XmlNodeType_Element ? SkipElement() : NextNode();
  }
  node_type_ = type;
  return type;
}

ConfigResult CXMLLiteManagerReader::ReadToEnd() {
  if (!stream_) return kFailed;
  HRESULT result = S_OK;
  while (result == S_OK) {
    XmlNodeType type = XmlNodeType_None;
    result = reader_.Read(&type);
  }
  node_type_ = XmlNodeType_None;
  // A parser rejects the terminating zero of a string.
  if (result == S_FALSE) return kSuccess;
  if (reader_.EndsAtTerminator()) return kSuccess;
  SetLastResult(result);
  return kFailed;
}

}  // namespace tolva::xml
