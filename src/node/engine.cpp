#include "node/engine.h"

#include <bit>
#include <cstdint>
#include <string>

#include "platform/utf.h"
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

ConfigResult WriteAttribute(const Attribute& row, const FieldRef& field, Numbers numbers,
                            CXMLLiteManagerWriter& writer) {
  NumberText buffer;
  switch (row.type) {
    case ValueType::kNumber:
      return writer.WritePlainAttribute(row.name, FormatNumber(NumberAt(field), numbers, buffer));
    case ValueType::kLongNumber:
      return writer.WritePlainAttribute(row.name, FormatLongNumber(LongNumberAt(field), buffer));
    case ValueType::kEnum: {
      const DWORD value = NumberAt(field);
      const EnumTexts& table = row.enum_texts;
      const Name& text = value < table.texts.size() ? table.texts[value] : table.otherwise;
      return writer.WritePlainAttribute(row.name, text.As<Value>());
    }
    default:
      return writer.WriteAttribute(row.name, StringAt(field));
  }
}

ConfigResult WriteAttributes(const Schema& schema, IElement& node, CXMLLiteManagerWriter& writer) {
  for (const Attribute& row : schema.attributes) {
    const FieldRef field = row.locate(node);
    if (!IsPresent(field)) continue;
    const ConfigResult result = WriteAttribute(row, field, schema.dialect.numbers, writer);
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

ConfigResult WriteElement(const Schema& schema, IElement& node, CXMLLiteManagerWriter& writer);

ConfigResult WriteNode(const Child& row, const IElement& child, int position,
                       CXMLLiteManagerWriter& writer) {
  return row.writes_by_table ? WriteElement(*row.schema, Mutable(child), writer)
                             : child.WriteToXMLMgr(&writer, 0, position);
}

ConfigResult WriteChild(const Child& row, IElement& node, CXMLLiteManagerWriter& writer) {
  const ChildRef child = row.locate(node);
  if (row.occurrence == Occurrence::kRepeated) {
    const std::size_t count = child.items->Size();
    for (std::size_t i = 0; i < count; ++i) {
      const auto position = static_cast<int>(i + 1);
      const ConfigResult result = WriteNode(row, child.items->Item(i), position, writer);
      if (result != kSuccess) return result;
    }
    return kSuccess;
  }
  if (child.present != nullptr && *child.present == 0) return kSuccess;
  Report(row.before_write);
  const ConfigResult result = WriteNode(row, *child.element, 1, writer);
  if (result == kSuccess) Report(row.after_write);
  return result;
}

ConfigResult WriteChildren(const Schema& schema, IElement& node, CXMLLiteManagerWriter& writer) {
  for (const Child& row : schema.children) {
    if (WriteChild(row, node, writer) == kSuccess) continue;
    ReportElementOr(row.write_report, WriteFaultOf(row.occurrence), row.name());
    return kFailed;
  }
  return kSuccess;
}

/// Writes an element whose value is its text.
ConfigResult WriteContent(const Schema& schema, IElement& node, CXMLLiteManagerWriter& writer) {
  const Content& content = schema.content;
  const FieldRef field = content.locate(node);
  const bool is_string = content.type == ValueType::kString;
  ConfigResult result = kSuccess;
  if (!is_string) {
    NumberText buffer;
    result = writer.WritePlainElement(
        schema.element, FormatNumber(NumberAt(field), schema.dialect.numbers, buffer));
  } else if (IsPresent(field)) {
    result = writer.WriteElement(schema.element, StringAt(field));
  } else if (content.is_always_written) {
    result = writer.WriteEmptyElement(schema.element);
  }
  if (result == kSuccess || content.is_optional) return kSuccess;
  ReportElement(is_string ? kWriteStringContent : kWriteNumberContent, schema.ReportedName());
  return kFailed;
}

ConfigResult WriteElement(const Schema& schema, IElement& node, CXMLLiteManagerWriter& writer) {
  if (schema.content.locate != nullptr) return WriteContent(schema, node, writer);

  if (writer.StartElement(schema.element) != kSuccess) {
    ReportOr(schema.add_report, [&schema] { ReportNotAdded(schema.ReportedName()); });
    return kFailed;
  }
  ConfigResult result = WriteAttributes(schema, node, writer);
  if (result != kSuccess) return result;
  result = WriteChildren(schema, node, writer);
  if (result != kSuccess) return result;
  using End = CXMLLiteManagerWriter::End;
  const bool has_end_tag = !schema.children.empty() && !schema.closes_as_empty_tag;
  if (writer.EndElement(has_end_tag ? End::kEndTag : End::kEmptyTag) != kSuccess) {
    ReportOr(schema.close_report, [&schema] { ReportNotClosed(schema.ReportedName()); });
    return kFailed;
  }
  return kSuccess;
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

bool ParseEnum(Value text, const EnumTexts& table, DWORD* value) {
  for (std::size_t i = 0; i < table.texts.size(); ++i) {
    if (table.texts[i] != text) continue;
    *value = static_cast<DWORD>(i);
    return true;
  }
  return false;
}

bool ParseValue(const Attribute& row, Value text, Numbers numbers, const FieldRef& field) {
  switch (row.type) {
    case ValueType::kNumber:
      return ParseNumber(text, numbers, &NumberAt(field));
    case ValueType::kLongNumber:
      return ParseLongNumber(text, &LongNumberAt(field));
    case ValueType::kEnum:
      return ParseEnum(text, row.enum_texts, &NumberAt(field));
    default:
      AssignWide(text, StringAt(field));
      return true;
  }
}

/// Deals with a missing attribute: false if it fails the read.
bool AcceptAbsence(const Attribute& row, const Schema& schema, IElement& node) {
  if (row.is_one_when_absent) {
    const FieldRef field = row.locate(node);
    *field.present = 1;
    NumberAt(field) = 1;
    return true;
  }
  if (row.is_optional || row.may_be_absent) return true;
  ReportAttributeOr(row.read_report, AbsentFaultOf(row, schema.dialect), schema.ReportedName(),
                    row.name);
  return false;
}

/// Deals with the text of an attribute: false if it fails the read.
bool AcceptValue(const Attribute& row, Value text, const Schema& schema, IElement& node) {
  const FieldRef field = row.locate(node);
  if (field.present != nullptr) *field.present = 1;
  if (ParseValue(row, text, schema.dialect.numbers, field)) return true;
  ReportAttributeOr(row.read_report, MalformedFaultOf(row), schema.ReportedName(), row.name);
  return false;
}

ConfigResult ReadAttributes(const Schema& schema, IElement& node, CXMLLiteManagerReader& reader) {
  if (schema.attributes.empty()) return kSuccess;
  reader.FindAttributes(schema.attribute_names);
  bool is_accepted = true;
  std::size_t index = 0;
  for (const Attribute& row : schema.attributes) {
    const Value text = reader.GetAttribute(index++);
    is_accepted = text.data() == nullptr ? AcceptAbsence(row, schema, node)
                                         : AcceptValue(row, text, schema, node);
    if (!is_accepted) break;
  }
  reader.StoreAttributeError();
  return is_accepted ? kSuccess : kFailed;
}

ConfigResult ReadClear(const Schema& schema, INode& node, CXMLLiteManagerReader& reader);

/// `is_clear`: nothing has been read into the child since its parent was cleared.
ConfigResult ReadChild(const Child& row, bool is_clear, INode& node,
                       CXMLLiteManagerReader& reader) {
  IElement& child = row.make(node);
  if (row.occurrence == Occurrence::kRepeated) {
    // Items read by their tables, and the row has the name of the table.
    if (ReadClear(*row.schema, static_cast<INode&>(child), reader) == kSuccess) return kSuccess;
    node.Clear();
    ReportElementOr(row.read_report, kReadItem, row.name());
    return kFailed;
  }
  const ConfigResult result = is_clear && row.reads_by_table
                                  ? ReadClear(*row.schema, static_cast<INode&>(child), reader)
                                  : child.ReadFromXMLMgr(&reader, 0);
  if (result != kSuccess) {
    ReportElementOr(row.read_report, kReadChild, row.name());
    return kFailed;
  }
  DWORD* const present = row.locate(node).present;
  if (present != nullptr) *present = 1;
  return kSuccess;
}

/// `found` has a bit for each row.
ConfigResult CheckRequiredChildren(const Schema& schema, std::uint32_t found) {
  std::uint32_t missing = schema.required_children & ~found;
  if (missing == 0) return kSuccess;
  const Child* reported = nullptr;
  for (; missing != 0; missing &= missing - 1) {
    const Child& row = schema.children[static_cast<std::size_t>(std::countr_zero(missing))];
    if (reported == nullptr || (row.is_reported_first && !reported->is_reported_first)) {
      reported = &row;
    }
  }
  ReportOr(reported->absence_report, [reported] { ReportMissing(reported->name()); });
  return kFailed;
}

ConfigResult ReadChildren(const Schema& schema, INode& node, CXMLLiteManagerReader& reader) {
  if (schema.children.empty() || reader.is_empty_element()) {
    return CheckRequiredChildren(schema, 0);
  }
  std::uint32_t found = 0;
  std::size_t last = 0;  // where the row of the next child is looked for first
  std::size_t index = 0;
  int type = reader.NextNode(schema.child_tags, index);
  while (type != XmlNodeType_EndElement && type != XmlNodeType_None) {
    if (type == XmlNodeType_Element && index != schema.children.size()) {
      const std::uint32_t bit = std::uint32_t{1} << index;
      const bool is_clear = (found & bit) == 0;
      const ConfigResult result = ReadChild(schema.children[index], is_clear, node, reader);
      if (result != kSuccess) return result;
      found |= bit;
      last = index;
    } else if (type == XmlNodeType_Element) {
      reader.FinishElement();
    } else {
      reader.GetLocalName();  // there is none, which shows in the last error
    }
    index = last;
    type = reader.NextNode(schema.child_tags, index);
  }
  return CheckRequiredChildren(schema, found);
}

/// Reads an element whose value is its text. Only a missing text gives -102.
ConfigResult ReadContent(const Schema& schema, IElement& node, CXMLLiteManagerReader& reader) {
  const Content& content = schema.content;
  if (content.locate == nullptr) return kSuccess;
  const FieldRef field = content.locate(node);
  const Value text = reader.GetText();
  const bool is_string = content.type == ValueType::kString;
  if (text.data() == nullptr) {
    if (content.is_optional) return kSuccess;
    ReportElement(is_string ? kReadStringContent : kReadNumberContent, L"Content");
    return kInvalidArgument;
  }
  if (field.present != nullptr) *field.present = 1;
  if (is_string) {
    AssignWide(text, StringAt(field));
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
  return WriteElement(schema, Mutable(node), *writer);
}

ConfigResult ReadNode(const Schema& schema, INode& node, IXMLLiteManager* manager) {
  if (manager == nullptr) {
    Report(schema.null_reader_report.value_or(schema.dialect.null_reader));
    return kFailed;
  }
  CXMLLiteManagerReader* const reader = xml::AsReader(manager);
  if (reader == nullptr) return kFailed;
  node.Clear();
  if (schema.element != reader->GetLocalName()) return kInvalidArgument;
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
    if (row.locate(Mutable(node)).element == child) ReportElement(kSetElement, row.name());
  }
}

}  // namespace tolva::node
