#include "tables/example.h"

#include <algorithm>
#include <stdexcept>

#include "platform/utf.h"
#include "support/files.h"

namespace tolva::test {

using node::Occurrence;
using node::ValueType;

namespace {

/// Ends the test: GoogleTest reports what is thrown.
void Require(bool holds, const char* reason, const std::wstring& name) {
  if (!holds) throw std::runtime_error(reason + (": " + std::string(name.begin(), name.end())));
}

std::wstring NameOf(const node::Schema& table) { return table.element.c_str(); }
std::wstring NameOf(const node::Attribute& row) { return row.name.c_str(); }
std::wstring NameOf(const node::Child& row) { return row.name().c_str(); }

/// The row of that name; null: there is none.
template <class Row>
const Row* Find(std::span<const Row> rows, const std::wstring& name) {
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return NameOf(row) == name; });
  return found == rows.end() ? nullptr : &*found;
}

bool IsNumber(ValueType type) {
  return type == ValueType::kNumber || type == ValueType::kLongNumber;
}

std::wstring ReadDocument(const std::string& name) {
  std::string bytes = TempFile::ReadFile(TOLVA_DOCUMENTS "/" + name + ".xml");
  const std::size_t size = bytes.size();
  bytes.append(platform::kReadAhead, '\0');
  std::wstring text;
  platform::AssignWide({bytes.data(), size}, text);
  // Comments are not written; nor are the line ends after them.
  for (std::size_t start = 0; (start = text.find(L"<!--")) != std::wstring::npos;) {
    text.erase(start, text.find(L"-->", start) + 4 - start);
  }
  return text.erase(0, text.find(L"?>") + 3);
}

}  // namespace

Example::Example(const char* document, const node::Schema& root, const Departures& departures)
    : departures_(departures), root_(root), text_(ReadDocument(document)) {
  Parse();
  RequireEveryRow();
}

void Example::Parse() {
  std::vector<std::size_t> open;
  for (std::size_t at = 0; (at = text_.find(L'<', at)) != std::wstring::npos;) {
    const std::size_t close = text_.find(L'>', at);
    if (text_[at + 1] == L'/') {
      Require(!open.empty(), "an end tag without an element", text_.substr(at));
      elements_[open.back()].close = at;
      elements_[open.back()].end = close + 1;
      open.pop_back();
    } else {
      Open(at, close, open.empty() ? 0 : open.back());
      if (text_[close - 1] != L'/') open.push_back(elements_.size() - 1);
    }
    at = close;
  }
}

void Example::Open(std::size_t at, std::size_t close, std::size_t parent) {
  std::size_t space = text_.find_first_of(L" />", at);
  const std::wstring name = text_.substr(at + 1, space - at - 1);
  Element element = MakeElement(name, parent);
  element.start = at;
  element.inside = element.close = element.end = close + 1;
  while (text_[space] == L' ') {
    const std::size_t equals = text_.find(L'=', space);
    const std::size_t end = text_.find(L'"', equals + 2) + 1;
    const std::wstring attribute = text_.substr(space + 1, equals - space - 1);
    const node::Attribute* const row = Find(element.schema->attributes, attribute);
    Require(row != nullptr, "no row", name + L"/" + attribute);
    element.attributes.push_back({row, space, end});
    space = end;
  }
  if (!elements_.empty()) elements_[parent].children.push_back(elements_.size());
  elements_.push_back(std::move(element));
}

Example::Element Example::MakeElement(const std::wstring& name, std::size_t parent) const {
  Element element = {&root_, nullptr, name, parent, 0, 0};
  if (!elements_.empty()) {
    const std::wstring path = Path(elements_[parent], name);
    element.row = Find(elements_[parent].schema->children, name);
    Require(element.row != nullptr, "no row", path);
    element.schema = element.row->schema;
    const auto own = departures_.reported_names.find(path);
    if (own != departures_.reported_names.end()) element.reported_name = own->second;
  }
  Require(NameOf(*element.schema) == name, "another element", name);
  return element;
}

/// An example has each attribute of its elements, and each kind of child somewhere.
void Example::RequireEveryRow() const {
  std::set<const void*> found;
  for (const Element& element : elements_) {
    found.insert(element.schema);
    for (const Attribute& attribute : element.attributes) found.insert(attribute.row);
  }
  for (const Element& element : elements_) {
    for (const node::Attribute& row : element.schema->attributes) {
      Require(found.contains(&row), "not in the example", Path(element, NameOf(row)));
    }
    for (const node::Child& row : element.schema->children) {
      Require(found.contains(row.schema), "not in the example", Path(element, NameOf(row)));
    }
  }
}

std::wstring Example::Path(const Element& element, const std::wstring& row) {
  return NameOf(*element.schema) + L"/" + row;
}

/// A report, and what each element around adds to it.
Texts Example::WithParents(std::wstring report, std::size_t element, bool reading) const {
  Texts reports = {std::move(report)};
  for (const Element* at = &elements_[element]; at->row != nullptr; at = &elements_[at->parent]) {
    const Occurrence occurrence = at->row->occurrence;
    const wchar_t* const what = occurrence == Occurrence::kRepeated
                                    ? reading ? L"read  multiple" : L"write none to multiple"
                                : reading                             ? L"read require"
                                : occurrence == Occurrence::kRequired ? L"write require"
                                                                      : L"write optional";
    reports.push_back(std::wstring(L"XMLManager: ") + what + L" element failed. element:" +
                      at->reported_name);
  }
  for (std::wstring& text : reports) {
    const auto own = departures_.reports.find(text);
    if (own != departures_.reports.end()) text = own->second;
  }
  std::erase(reports, L"");
  return reports;
}

Example::ReadFault Example::Bad(std::wstring document, std::wstring report,
                                std::size_t element) const {
  return {std::move(document), WithParents(std::move(report), element, true), -101};
}

std::wstring Example::Without(std::size_t start, std::size_t end) const {
  return std::wstring(text_).erase(start, end - start);
}

std::wstring Example::SpoiltAt(std::size_t at) const {
  return std::wstring(text_).insert(at, L"x");
}

void Example::AddReadFaults(std::size_t index, const Attribute& attribute,
                            std::vector<ReadFault>& faults) const {
  const Element& element = elements_[index];
  const node::Attribute& row = *attribute.row;
  const std::wstring name = L" element:" + element.reported_name + L", attr:" + NameOf(row);
  const std::wstring malformed =
      (IsNumber(row.type) ? L"XMLManager: read required dword/bool Attribute failed."
       : row.is_optional
           ? L"XMLLiteManager: read optional ENUM Attribute failed due to unknow enum type."
           : L"XMLLiteManager: read required ENUM Attribute failed.") +
      name;
  const std::wstring missing = row.type == ValueType::kString
                                   ? L"XMLManager: read required ENUM Attribute failed." + name
                               : row.type == ValueType::kEnum
                                   ? L"XMLLITEManager: read required ENUM Attribute failed." + name
                                   : malformed;
  const bool may_be_absent =
      row.is_optional || departures_.dispensable.contains(Path(element, NameOf(row)));
  const std::wstring without = Without(attribute.start, attribute.end);
  faults.push_back(may_be_absent ? ReadFault{without} : Bad(without, missing, index));
  if (row.type != ValueType::kString) {
    faults.push_back(Bad(SpoiltAt(attribute.end - 1), malformed, index));
  }
}

void Example::AddTextFaults(std::size_t index, std::vector<ReadFault>& faults) const {
  const Element& element = elements_[index];
  const bool is_number = IsNumber(element.schema->content.type);
  const std::wstring failed = is_number
                                  ? L"XMLManager: read required dword/bool content failed. element:"
                                  : L"XMLManager: read required string content failed. element:";
  const bool is_lenient = departures_.lenient.contains(element.reported_name);
  const std::wstring without = Without(element.inside, element.close);
  if (element.schema->content.is_optional) {
    faults.push_back({without});
  } else if (is_lenient && !is_number) {
    faults.push_back({without, {failed + element.reported_name}});
  } else {
    faults.push_back(Bad(without, failed + L"Content", index));
  }
  if (!is_number) return;
  const std::wstring spoilt = SpoiltAt(element.inside);
  faults.push_back(is_lenient ? ReadFault{spoilt}
                              : Bad(spoilt, failed + element.reported_name, index));
}

std::vector<Example::ReadFault> Example::ReadFaults() const {
  std::vector<ReadFault> faults;
  for (std::size_t i = 0; i < elements_.size(); ++i) {
    const Element& element = elements_[i];
    for (const Attribute& attribute : element.attributes) AddReadFaults(i, attribute, faults);
    if (element.schema->content.locate != nullptr) AddTextFaults(i, faults);
    if (element.row == nullptr || element.row->occurrence != Occurrence::kRequired) continue;
    const std::wstring without = Without(element.start, element.end);
    const Element& parent = elements_[element.parent];
    const std::wstring missing =
        L"XMLManager: sub-element " + element.reported_name + L" is missing";
    faults.push_back(departures_.dispensable.contains(Path(parent, NameOf(*element.row)))
                         ? ReadFault{without}
                         : Bad(without, missing, element.parent));
  }
  return faults;
}

void Example::AddWrites(std::size_t index, std::vector<Write>& writes) const {
  const Element& element = elements_[index];
  const std::wstring& name = element.reported_name;
  const auto fails = [&](const std::wstring& report) {
    writes.push_back({WithParents(L"XML" + report, index, false), {}});
  };
  const auto goes_unnoticed = [&] { writes.emplace_back(); };
  const node::Content& content = element.schema->content;
  if (content.locate != nullptr) {  // one call writes it all
    if (content.is_optional) return goes_unnoticed();
    const wchar_t* const type = IsNumber(content.type) ? L"DWORD/BOOL" : L"string";
    return fails(L"Manager: write required content " + (type + (L" failed. element:" + name)));
  }
  const std::size_t first = writes.size();
  fails(L"Manager: fail to add element: " + name);
  for (const Attribute& attribute : element.attributes) {
    const node::Attribute& row = *attribute.row;
    if (row.is_optional || departures_.unchecked.contains(Path(element, NameOf(row)))) {
      goes_unnoticed();
      continue;
    }
    const wchar_t* const what = IsNumber(row.type) ? L"Manager: read required DWORD/BOOL"
                                : row.type == ValueType::kString
                                    ? L"Manager: write required string"
                                    : L"LiteManager: write required ENUM";
    fails(what + (L" Attribute failed. element:" + name + L", attr:" + NameOf(row)));
  }
  for (const std::size_t child : element.children) AddWrites(child, writes);
  fails(L"Manager: fail to close element: " + name);
  goes_unnoticed();  // the line feed
  if (element.row == nullptr) return;
  const auto own =
      departures_.announced.find(Path(elements_[element.parent], NameOf(*element.row)));
  if (own == departures_.announced.end()) return;
  writes[first].announced.push_back(own->second.first);
  writes.back().announced.push_back(own->second.second);
}

std::vector<Example::Write> Example::Writes() const {
  std::vector<Write> writes;
  AddWrites(0, writes);
  return writes;
}

}  // namespace tolva::test
