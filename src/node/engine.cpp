#include "node/engine.h"

#include <cstdint>
#include <cwchar>
#include <string>

#include "xml/reader.h"
#include "xml/writer.h"

namespace tolva::node {
namespace {

using namespace platform;  // see platform.h
using xml::CXMLLiteManagerReader;
using xml::CXMLLiteManagerWriter;

/// Rows locate fields for reading and writing alike. Callers with a const node do not modify it.
IElement& Mutable(const IElement& node) { return const_cast<IElement&>(node); }

/// Reports the table's own text if it has one, otherwise calls `rule`, which reports the standard
/// text.
template <class Rule>
void ReportOr(const OwnReport& own, Rule rule) {
  if (own.has_value()) {
    Report(*own);
  } else {
    rule();
  }
}

void ReportAttributeOr(const OwnReport& own, std::wstring_view beginning, std::wstring_view element,
                       std::wstring_view attribute) {
  ReportOr(own, [&] { ReportAttribute(beginning, element, attribute); });
}

void ReportElementOr(const OwnReport& own, std::wstring_view beginning, std::wstring_view element) {
  ReportOr(own, [&] { ReportElement(beginning, element); });
}

// ---- values ------------------------------------------------------------------------------------

DWORD& NumberAt(const FieldRef& field) { return *static_cast<DWORD*>(field.value); }

std::uint64_t& LongNumberAt(const FieldRef& field) {
  return *static_cast<std::uint64_t*>(field.value);
}

std::wstring& StringAt(const FieldRef& field) { return *static_cast<std::wstring*>(field.value); }

bool IsPresent(const FieldRef& field) { return field.present == nullptr || *field.present != 0; }

void ClearString(std::wstring& text) {
  constexpr std::size_t kWorthKeeping = 4096;
  if (text.capacity() > kWorthKeeping) {
    std::wstring().swap(text);  // an assignment would keep the memory
  } else {
    text.clear();
  }
}

void ClearValue(ValueType type, const FieldRef& field) {
  switch (type) {
    case ValueType::kNumber:
    case ValueType::kEnum:
      NumberAt(field) = 0;
      break;
    case ValueType::kLongNumber:
      LongNumberAt(field) = 0;
      break;
    case ValueType::kString:
      ClearString(StringAt(field));
      break;
  }
}

// ---- writing -----------------------------------------------------------------------------------

std::wstring_view WriteFaultOf(ValueType type) {
  switch (type) {
    case ValueType::kString:
      return kWriteString;
    case ValueType::kEnum:
      return kWriteEnum;
    default:
      return kWriteNumber;
  }
}

/// The text of a value. `buffer` holds the text of a number.
xml::Text FormatValue(const Attribute& row, const FieldRef& field, Numbers numbers,
                      NumberText& buffer) {
  switch (row.type) {
    case ValueType::kNumber:
      return FormatNumber(NumberAt(field), numbers, buffer);
    case ValueType::kLongNumber:
      return FormatLongNumber(LongNumberAt(field), buffer);
    case ValueType::kEnum: {
      const DWORD value = NumberAt(field);
      const EnumTexts& table = row.enum_texts;
      return value < table.texts.size() ? table.texts[value] : table.otherwise;
    }
    default:
      return StringAt(field);
  }
}

ConfigResult WriteAttributes(const Schema& schema, IElement& node, CXMLLiteManagerWriter& writer) {
  for (const Attribute& row : schema.attributes) {
    const FieldRef field = row.locate(node);
    if (!IsPresent(field)) continue;
    NumberText buffer;
    const xml::Text value = FormatValue(row, field, schema.dialect.numbers, buffer);
    const ConfigResult result = writer.WriteAttribute(row.name, value);
    if (result != kSuccess && !row.ignores_write_failure && !row.is_optional) {
      ReportAttribute(WriteFaultOf(row.type), schema.ReportedName(), row.name);
      return kFailed;
    }
  }
  return kSuccess;
}

std::wstring_view WriteFaultOf(Occurrence occurrence) {
  switch (occurrence) {
    case Occurrence::kRequired:
      return kWriteRequiredChild;
    case Occurrence::kOptional:
      return kWriteOptionalChild;
    default:
      return kWriteItem;
  }
}

ConfigResult WriteChild(const Child& row, IElement& node, IXMLLiteManager* manager) {
  const ChildRef child = row.locate(node);
  if (row.occurrence == Occurrence::kRepeated) {
    for (std::size_t i = 0; i < child.items->Size(); ++i) {
      const auto position = static_cast<int>(i + 1);
      const ConfigResult result = child.items->Item(i).WriteToXMLMgr(manager, 0, position);
      if (result != kSuccess) return result;
    }
    return kSuccess;
  }
  if (child.present != nullptr && *child.present == 0) return kSuccess;
  Report(row.before_write);
  const ConfigResult result = child.element->WriteToXMLMgr(manager, 0, 1);
  if (result == kSuccess) Report(row.after_write);
  return result;
}

ConfigResult WriteChildren(const Schema& schema, IElement& node, IXMLLiteManager* manager) {
  for (const Child& row : schema.children) {
    if (WriteChild(row, node, manager) == kSuccess) continue;
    ReportElementOr(row.write_report, WriteFaultOf(row.occurrence), row.name);
    return kFailed;
  }
  return kSuccess;
}

/// Writes an element whose value is its text.
ConfigResult WriteContent(const Schema& schema, IElement& node, CXMLLiteManagerWriter& writer) {
  const Content& content = schema.content;
  const FieldRef field = content.locate(node);
  if (!IsPresent(field) && !content.is_always_written) return kSuccess;
  NumberText buffer;
  const bool is_string = content.type == ValueType::kString;
  xml::Text text = nullptr;
  if (is_string && IsPresent(field)) text = StringAt(field);
  if (!is_string) text = FormatNumber(NumberAt(field), schema.dialect.numbers, buffer);
  const ConfigResult result = writer.WriteElementString(schema.element, text);
  if (result == kSuccess || content.is_optional) return kSuccess;
  ReportElement(is_string ? kWriteStringContent : kWriteNumberContent, schema.ReportedName());
  return kFailed;
}

// ---- reading -----------------------------------------------------------------------------------

/// Clears a node unless the read succeeds. Covers failures and exceptions.
class ClearOnFailure {
 public:
  explicit ClearOnFailure(INode& node) : node_(&node) {}
  ClearOnFailure(const ClearOnFailure&) = delete;
  ClearOnFailure& operator=(const ClearOnFailure&) = delete;
  ~ClearOnFailure() {
    if (node_ != nullptr) node_->Clear();
  }

  void Succeed() { node_ = nullptr; }

 private:
  INode* node_;
};

/// Most names already differ in the first character.
bool AreEqual(const wchar_t* left, const wchar_t* right) {
  return *left == *right && std::wcscmp(left, right) == 0;
}

std::wstring_view AbsentFaultOf(const Attribute& row, const Dialect& dialect) {
  switch (row.type) {
    case ValueType::kString:
      return dialect.absent_string;
    case ValueType::kEnum:
      return kReadAbsentEnum;
    default:
      return kReadNumber;
  }
}

std::wstring_view MalformedFaultOf(const Attribute& row) {
  if (row.type != ValueType::kEnum) return kReadNumber;
  return row.is_optional ? kReadUnknownOptionalEnum : kReadUnknownEnum;
}

bool ParseEnum(const wchar_t* text, const EnumTexts& table, DWORD* value) {
  for (std::size_t i = 0; i < table.texts.size(); ++i) {
    if (!AreEqual(text, table.texts[i])) continue;
    *value = static_cast<DWORD>(i);
    return true;
  }
  return false;
}

bool ParseValue(const Attribute& row, const wchar_t* text, Numbers numbers, const FieldRef& field) {
  switch (row.type) {
    case ValueType::kNumber:
      return ParseNumber(text, numbers, &NumberAt(field));
    case ValueType::kLongNumber:
      return ParseLongNumber(text, &LongNumberAt(field));
    case ValueType::kEnum:
      return ParseEnum(text, row.enum_texts, &NumberAt(field));
    default:
      StringAt(field) = text;
      return true;
  }
}

ConfigResult ReadAttributes(const Schema& schema, IElement& node, CXMLLiteManagerReader& reader) {
  for (const Attribute& row : schema.attributes) {
    const FieldRef field = row.locate(node);
    const wchar_t* const text = reader.GetAttribute(row.name);
    if (text == nullptr) {
      if (row.is_one_when_absent) {
        *field.present = 1;
        NumberAt(field) = 1;
      } else if (!row.is_optional && !row.may_be_absent) {
        ReportAttributeOr(row.read_report, AbsentFaultOf(row, schema.dialect),
                          schema.ReportedName(), row.name);
        return kFailed;
      }
      continue;
    }
    if (field.present != nullptr) *field.present = 1;
    if (!ParseValue(row, text, schema.dialect.numbers, field)) {
      ReportAttributeOr(row.read_report, MalformedFaultOf(row), schema.ReportedName(), row.name);
      return kFailed;
    }
  }
  return kSuccess;
}

/// Finds the row of the child with this name, or null. The search starts at `last`, the row of the
/// previous child, because most documents keep the order of the rows.
const Child* FindChild(const Schema& schema, const wchar_t* name, const Child* last) {
  const Child* const end = schema.children.data() + schema.children.size();
  const Child* row = last;
  do {
    if (AreEqual(row->name, name)) return row;
    if (++row == end) row = schema.children.data();
  } while (row != last);
  return nullptr;
}

ConfigResult ReadClear(const Schema& schema, INode& node, CXMLLiteManagerReader& reader);

ConfigResult ReadChild(const Child& row, INode& node, CXMLLiteManagerReader& reader) {
  IElement& child = row.make(node);
  if (row.occurrence == Occurrence::kRepeated) {
    // Items read by their tables, and the row has the name of the table.
    if (ReadClear(*row.schema, static_cast<INode&>(child), reader) == kSuccess) return kSuccess;
    node.Clear();
    ReportElementOr(row.read_report, kReadItem, row.name);
    return kFailed;
  }
  if (child.ReadFromXMLMgr(&reader, 0) != kSuccess) {
    ReportElementOr(row.read_report, kReadChild, row.name);
    return kFailed;
  }
  DWORD* const present = row.locate(node).present;
  if (present != nullptr) *present = 1;
  return kSuccess;
}

/// `found` has a bit for each row.
ConfigResult CheckRequiredChildren(const Schema& schema, std::uint32_t found) {
  for (const bool is_first : {true, false}) {
    std::uint32_t bit = 1;
    for (const Child& row : schema.children) {
      const bool is_required = row.occurrence == Occurrence::kRequired && !row.may_be_absent;
      const bool is_missing = is_required && (found & bit) == 0;
      if (is_missing && row.is_reported_first == is_first) {
        ReportOr(row.absence_report, [&row] { ReportMissing(row.name); });
        return kFailed;
      }
      bit <<= 1;
    }
  }
  return kSuccess;
}

ConfigResult ReadChildren(const Schema& schema, INode& node, CXMLLiteManagerReader& reader) {
  if (schema.children.empty()) return kSuccess;
  std::uint32_t found = 0;
  const Child* last = schema.children.data();
  int type = reader.is_empty_element() ? 0 : reader.NextNode();
  while (type != XmlNodeType_EndElement && type != XmlNodeType_None) {
    const wchar_t* const name = reader.GetLocalName();
    const Child* const row = name == nullptr ? nullptr : FindChild(schema, name, last);
    if (row == nullptr) {
      type = reader.SkipElement();
      continue;
    }
    const ConfigResult result = ReadChild(*row, node, reader);
    if (result != kSuccess) return result;
    found |= std::uint32_t{1} << (row - schema.children.data());
    last = row;
    type = reader.NextNode();
  }
  return CheckRequiredChildren(schema, found);
}

/// Reads an element whose value is its text. Only a missing text gives -102.
ConfigResult ReadContent(const Schema& schema, IElement& node, CXMLLiteManagerReader& reader) {
  const Content& content = schema.content;
  if (content.locate == nullptr) return kSuccess;
  const FieldRef field = content.locate(node);
  const wchar_t* const text = reader.GetText();
  const bool is_string = content.type == ValueType::kString;
  if (text == nullptr) {
    if (content.is_optional) return kSuccess;
    ReportElement(is_string ? kReadStringContent : kReadNumberContent, L"Content");
    return kInvalidArgument;
  }
  if (field.present != nullptr) *field.present = 1;
  if (is_string) {
    StringAt(field) = text;
    return kSuccess;
  }
  if (content.takes_leading_digits) {
    NumberAt(field) = ParseLeadingDigits(text, schema.dialect.numbers);
    return kSuccess;
  }
  if (ParseNumber(text, schema.dialect.numbers, &NumberAt(field))) return kSuccess;
  ReportElement(kReadNumberContent, schema.ReportedName());
  return kFailed;
}

/// Moves the reader to where the parent of the node expects it.
void Finish(const Schema& schema, CXMLLiteManagerReader& reader) {
  if (!schema.content.stops_at_first_end_tag) {
    reader.FinishElement();
    return;
  }
  if (reader.is_empty_element()) return;
  int type = XmlNodeType_None;
  do {
    type = reader.NextNode();
  } while (type != XmlNodeType_EndElement && type != XmlNodeType_None);
}

/// Reads the current element, whose name has been checked, into a node that is clear.
ConfigResult ReadClear(const Schema& schema, INode& node, CXMLLiteManagerReader& reader) {
  ClearOnFailure cleaner(node);
  ConfigResult result = ReadAttributes(schema, node, reader);
  if (result == kSuccess) result = ReadContent(schema, node, reader);
  if (result == kSuccess) result = ReadChildren(schema, node, reader);
  if (result != kSuccess) return result;
  Finish(schema, reader);
  cleaner.Succeed();
  return kSuccess;
}

}  // namespace

ConfigResult WriteNode(const Schema& schema, const IElement& node, IXMLLiteManager* manager) {
  if (manager == nullptr) {
    Report(schema.null_writer_report.value_or(schema.dialect.null_writer));
    return kFailed;
  }
  CXMLLiteManagerWriter* const writer = xml::AsWriter(manager);
  if (writer == nullptr) return kFailed;
  IElement& fields = Mutable(node);
  if (schema.content.locate != nullptr) return WriteContent(schema, fields, *writer);

  if (writer->StartElement(schema.element) != kSuccess) {
    ReportOr(schema.add_report, [&schema] { ReportNotAdded(schema.ReportedName()); });
    return kFailed;
  }
  ConfigResult result = WriteAttributes(schema, fields, *writer);
  if (result != kSuccess) return result;
  result = WriteChildren(schema, fields, manager);
  if (result != kSuccess) return result;
  const bool has_end_tag = !schema.children.empty() && !schema.closes_as_empty_tag;
  if (writer->EndElement(has_end_tag ? L"" : nullptr) != kSuccess) {
    ReportOr(schema.close_report, [&schema] { ReportNotClosed(schema.ReportedName()); });
    return kFailed;
  }
  return kSuccess;
}

ConfigResult ReadNode(const Schema& schema, INode& node, IXMLLiteManager* manager) {
  if (manager == nullptr) {
    Report(schema.null_reader_report.value_or(schema.dialect.null_reader));
    return kFailed;
  }
  CXMLLiteManagerReader* const reader = xml::AsReader(manager);
  if (reader == nullptr) return kFailed;
  node.Clear();
  const wchar_t* const name = reader->GetLocalName();
  if (name == nullptr || !AreEqual(name, schema.element)) return kInvalidArgument;
  return ReadClear(schema, node, *reader);
}

void ClearNode(const Schema& schema, IElement& node) {
  for (const Attribute& row : schema.attributes) {
    const FieldRef field = row.locate(node);
    if (!row.keeps_value) ClearValue(row.type, field);
    if (field.present != nullptr && !row.keeps_presence) {
      *field.present = row.is_present_when_clear ? 1 : 0;
    }
  }
  if (schema.content.locate != nullptr) {
    const FieldRef field = schema.content.locate(node);
    ClearValue(schema.content.type, field);
    if (field.present != nullptr) *field.present = 0;
  }
  for (const Child& row : schema.children) {
    DWORD* const present = row.locate(node).present;
    if (present != nullptr && !row.keeps_presence) *present = 0;
    row.clear(node);
  }
}

void ReportNullValue(const Schema& schema, const IElement& node, const void* field) {
  std::wstring_view name = L"Content";
  for (const Attribute& row : schema.attributes) {
    if (row.locate(Mutable(node)).value == field) name = row.name;
  }
  ReportAttribute(schema.dialect.null_value, schema.ReportedName(), name);
}

void ReportNullChild(const Schema& schema, const IElement& node, const IElement* child) {
  for (const Child& row : schema.children) {
    if (row.locate(Mutable(node)).element == child) ReportElement(kSetElement, row.name);
  }
}

}  // namespace tolva::node
