#include "support/example.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "support/capabilities.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

std::wstring FromUtf8(const std::string& bytes) {
  std::wstring text;
  for (std::size_t i = 0; i < bytes.size();) {
    const auto first = static_cast<unsigned char>(bytes[i++]);
    char32_t c = first < 0x80 ? first : first < 0xE0 ? first & 0x1F : first & 0x0F;
    const int more = first < 0x80 ? 0 : first < 0xE0 ? 1 : 2;
    for (int k = 0; k < more; ++k) c = (c << 6) | (static_cast<unsigned char>(bytes[i++]) & 0x3F);
    text += static_cast<wchar_t>(c);
  }
  return text;
}

std::vector<std::wstring> Words(const wchar_t* text) {
  std::wistringstream stream(text);
  return {std::istream_iterator<std::wstring, wchar_t>(stream), {}};
}

/// "Name*" or "Name:T!" without what follows the name.
std::wstring NameOf(const std::wstring& word) {
  return word.substr(0, word.find_first_of(L":!?*"));
}

std::wstring Without(const std::wstring& text, std::size_t start, std::size_t end) {
  return text.substr(0, start) + text.substr(end);
}

/// Ends the test: GoogleTest reports what is thrown.
void Require(bool holds, const char* reason, const std::wstring& name) {
  if (!holds) throw std::runtime_error(reason + (": " + std::string(name.begin(), name.end())));
}

}  // namespace

Example::Example(const char* file, Factory make_root, std::vector<ElementRule> rules,
                 Departures departures)
    : text_(FromUtf8(TempFile::ReadFile(std::string(TOLVA_DOCUMENTS "/") + file))),
      make_root_(std::move(make_root)),
      rules_(std::move(rules)),
      departures_(std::move(departures)) {
  // Comments are not written; nor are the line ends behind them.
  for (std::size_t start = 0; (start = text_.find(L"<!--")) != std::wstring::npos;) {
    text_.erase(start, text_.find(L"-->", start) + 4 - start);
  }
  text_.erase(0, text_.find(L"?>") + 3);
  Parse();
  CheckRules();
  Diagnostics ignored;
  fresh_ = WriteText(*make_root_());
}

void Example::Parse() {
  std::vector<std::size_t> open;
  for (std::size_t at = 0; (at = text_.find(L'<', at)) != std::wstring::npos;) {
    const std::size_t close = text_.find(L'>', at);
    Require(close != std::wstring::npos, "a tag does not end", text_.substr(at));
    if (text_[at + 1] == L'/') {
      Require(!open.empty(), "an end tag without an element", text_.substr(at, close + 1 - at));
      elements_[open.back()].close = at;
      elements_[open.back()].end = close + 1;
      open.pop_back();
      at = close;
      continue;
    }
    const std::size_t name_end = text_.find_first_of(L" />", at);
    const std::size_t index = elements_.size();
    Element element;
    element.name = text_.substr(at + 1, name_end - at - 1);
    element.rule = element.name;
    element.start = at;
    element.inside = element.close = element.end = close + 1;
    element.parent = open.empty() ? index : open.back();
    if (!open.empty()) {
      const std::wstring path = elements_[open.back()].name + L"/" + element.name;
      if (FindRule(path) != nullptr) element.rule = path;
    }
    for (std::size_t blank = name_end; text_[blank] == L' ';) {
      const std::size_t equals = text_.find(L'=', blank);
      const std::size_t end = text_.find(L'"', equals + 2) + 1;
      Require(blank < equals && equals < end && end <= close, "an attribute does not end",
              text_.substr(blank, close - blank));
      element.attributes.push_back(
          {text_.substr(blank + 1, equals - blank - 1), blank, equals + 2, end});
      blank = end;
    }
    if (!open.empty()) elements_[open.back()].children.push_back(index);
    if (text_[close - 1] != L'/') open.push_back(index);
    elements_.push_back(std::move(element));
    at = close;
  }
}

const ElementRule* Example::FindRule(const std::wstring& name) const {
  const auto found = std::find_if(rules_.begin(), rules_.end(),
                                  [&](const ElementRule& rule) { return rule.name == name; });
  return found == rules_.end() ? nullptr : &*found;
}

std::wstring Example::ReportedName(const Element& element) const {
  const ElementRule* const rule = FindRule(element.rule);
  return rule == nullptr || rule->reported_as == nullptr ? element.rule : rule->reported_as;
}

std::vector<Example::AttributeRule> Example::AttributesOf(const Element& element) const {
  std::vector<AttributeRule> rules;
  for (const std::wstring& word : Words(FindRule(element.rule)->attributes)) {
    const std::size_t colon = word.find(L':');
    rules.push_back({NameOf(word), word[colon + 1], word.substr(colon + 2)});
  }
  return rules;
}

/// How the parent's account names the child; empty: not at all.
std::wstring Example::ChildWordOf(const Element& child) const {
  for (const std::wstring& word : Words(FindRule(elements_[child.parent].rule)->children)) {
    if (NameOf(word) == child.name) return word;
  }
  return {};
}

/// How often the element occurs in its parent: '!', '?', '*' or 0.
wchar_t Example::MarkOf(const Element& child) const {
  const std::wstring word = ChildWordOf(child);
  return word.size() > child.name.size() ? word.back() : L'\0';
}

/// The accounts tell of all that the example has.
void Example::CheckRules() const {
  Require(!elements_.empty(), "a document without elements", text_);
  for (const Element& element : elements_) {
    Require(FindRule(element.rule) != nullptr, "no account of the element", element.rule);
    const std::vector<AttributeRule> rules = AttributesOf(element);
    auto rule = rules.begin();
    for (const Attribute& attribute : element.attributes) {
      rule = std::find_if(rule, rules.end(), [&](const AttributeRule& candidate) {
        return candidate.name == attribute.name;
      });
      Require(rule != rules.end(), "no account of the attribute, or another order",
              element.name + L" " + attribute.name);
    }
  }
  for (std::size_t i = 1; i < elements_.size(); ++i) {
    Require(!ChildWordOf(elements_[i]).empty(), "no account of the child",
            elements_[elements_[i].parent].name + L"/" + elements_[i].name);
  }
}

Texts Example::Depart(const Texts& texts) const {
  Texts departed;
  for (const std::wstring& text : texts) {
    const auto own = departures_.texts.find(text);
    if (own == departures_.texts.end()) {
      departed.push_back(text);
    } else if (!own->second.empty()) {
      departed.push_back(own->second);
    }
  }
  return departed;
}

/// What each element around one at fault adds to its reports.
Texts Example::WithParents(Texts texts, std::size_t element, bool reading) const {
  for (std::size_t i = element; elements_[i].parent != i; i = elements_[i].parent) {
    const wchar_t mark = MarkOf(elements_[i]);
    std::wstring text = L"XMLManager: ";
    if (reading) {
      text += mark == L'*' ? L"read  multiple" : L"read require";
    } else {
      text += mark == L'*'    ? L"write none to multiple"
              : mark != L'\0' ? L"write require"
                              : L"write optional";
    }
    texts.push_back(text + L" element failed. element:" + ReportedName(elements_[i]));
  }
  return Depart(texts);
}

Example::Node Example::Read() const {
  Node root = make_root_();
  Require(ReadText(*root, text_) == 0, "the example cannot be read", elements_[0].name);
  return root;
}

void Example::ExpectRoundTrip() const {
  Diagnostics diagnostics;
  const Node root = Read();
  EXPECT_EQ(diagnostics.Take(), Texts{});
  if (!WriterEscapes()) return;
  const std::string first = WriteFile(*root);
#if defined(TOLVA_OWN_XML_LAYER)
  EXPECT_EQ(FromUtf8(first), L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + text_);
#endif
  const TempFile file(first);
  const Node again = make_root_();
  const ManagerPtr reader = MakeReader();
  ASSERT_EQ(reader->OpenFile(file.Wide().c_str()), 0);
  ASSERT_EQ(again->ReadFromXMLMgr(reader.get()), 0);
  EXPECT_EQ(WriteFile(*again), first);
}

/// Reads a document that has one fault. After a failure the root is at its defaults.
void Example::ExpectRead(const std::wstring& document, const Texts& reports,
                         ConfigResult result) const {
  const Node root = make_root_();
  Diagnostics diagnostics;
  EXPECT_EQ(ReadText(*root, document), result);
  EXPECT_EQ(diagnostics.Take(), reports);
  if (result != 0) {
    EXPECT_EQ(WriteText(*root), fresh_);
  }
}

void Example::ExpectTextFaults(std::size_t index, const AttributeRule& rule) const {
  const Element& element = elements_[index];
  SCOPED_TRACE(testing::PrintToString(element.name));
  const std::wstring beginning = rule.type == L'N'
                                     ? L"XMLManager: read required dword/bool content failed."
                                     : L"XMLManager: read required string content failed.";
  const std::wstring without = Without(text_, element.inside, element.close);
  if (rule.Has(L'!')) {
    ExpectRead(without, WithParents({beginning + L" element:Content"}, index, true), -101);
  } else if (rule.Has(L'?')) {
    ExpectRead(without, {beginning + L" element:" + element.name}, 0);
  } else {
    ExpectRead(without, {}, 0);
  }
  if (rule.type != L'N') return;
  std::wstring spoilt = text_;
  spoilt.insert(element.inside, L"x");
  if (rule.Has(L'~')) {
    ExpectRead(spoilt, {}, 0);
  } else {
    ExpectRead(spoilt, WithParents({beginning + L" element:" + element.name}, index, true), -101);
  }
}

void Example::ExpectReadFaults() const {
  for (std::size_t i = 0; i < elements_.size(); ++i) {
    const Element& element = elements_[i];
    const std::vector<AttributeRule> rules = AttributesOf(element);
    std::size_t place = 0;
    for (const Attribute& attribute : element.attributes) {
      while (rules[place].name != attribute.name) ++place;
      const AttributeRule& rule = rules[place];
      SCOPED_TRACE(testing::PrintToString(element.name + L" " + attribute.name));
      const std::wstring names = L" element:" + ReportedName(element) + L", attr:" + attribute.name;
      const std::wstring number = L"XMLManager: read required dword/bool Attribute failed." + names;

      Texts absent;
      if (rule.Has(L'!')) {
        absent.push_back(rule.type == L'N' ? number
                         : rule.type == L'S'
                             ? L"XMLManager: read required ENUM Attribute failed." + names
                             : L"XMLLITEManager: read required ENUM Attribute failed." + names);
        absent = WithParents(absent, i, true);
      }
      ExpectRead(Without(text_, attribute.start, attribute.end), absent, absent.empty() ? 0 : -101);

      if (rule.type == L'S') continue;
      const std::wstring unknown =
          (rule.Has(L'!')
               ? L"XMLLiteManager: read required ENUM Attribute failed."
               : L"XMLLiteManager: read optional ENUM Attribute failed due to unknow enum type.") +
          names;
      std::wstring spoilt = text_;
      spoilt.insert(attribute.end - 1, L"x");
      ExpectRead(spoilt, WithParents({rule.type == L'N' ? number : unknown}, i, true), -101);
    }
    if (!rules.empty() && rules[0].name == L"#") ExpectTextFaults(i, rules[0]);
    if (element.parent != i && MarkOf(element) == L'!') {
      SCOPED_TRACE(testing::PrintToString(element.name));
      ExpectRead(Without(text_, element.start, element.end),
                 WithParents({L"XMLManager: sub-element " + element.name + L" is missing"},
                             element.parent, true),
                 -101);
    }
  }
}

void Example::ExpectTruncation() const {
  Diagnostics ignored;
  const Node root = make_root_();
  for (std::size_t size = 1; size < elements_[0].end; ++size) {
    const ConfigResult result = ReadText(*root, text_.substr(0, size));
    if (result == 0) {
      ASSERT_EQ(tolvaGetLastError() & 0xFFFFF000U, 0xC00CE000U) << size;
    } else if (size % 16 == 0) {
      ASSERT_EQ(WriteText(*root), fresh_) << size;
    }
  }
}

/// The reports of each failing call, in the order of the calls; none: the failure goes unnoticed.
void Example::CollectWriteFaults(std::size_t index, std::vector<Texts>& faults,
                                 std::vector<Announcement>& announcements) const {
  const Element& element = elements_[index];
  const auto fails = [&](const std::wstring& text) {
    faults.push_back(WithParents({text}, index, false));
  };
  const std::vector<AttributeRule> rules = AttributesOf(element);
  if (!rules.empty() && rules[0].name == L"#") {  // one call writes it all
    if (!rules[0].Has(L'!') && !rules[0].Has(L'?')) {
      faults.emplace_back();
    } else if (rules[0].type == L'N') {
      fails(L"XMLManager: write required content DWORD/BOOL failed. element:" + element.name);
    } else {
      fails(L"XMLManager: write required content string failed. element:" + element.name);
    }
    return;
  }
  const auto announced = departures_.announced.find(element.name);
  if (announced != departures_.announced.end()) {
    announcements.push_back({faults.size(), announced->second.first});
  }
  fails(L"XMLManager: fail to add element: " + ReportedName(element));
  for (const Attribute& attribute : element.attributes) {
    const auto rule = std::find_if(rules.begin(), rules.end(), [&](const AttributeRule& candidate) {
      return candidate.name == attribute.name;
    });
    const bool is_checked = (rule->Has(L'!') || rule->Has(L'?')) && !rule->Has(L'~');
    if (!is_checked) {
      faults.emplace_back();
      continue;
    }
    const wchar_t* const beginning =
        rule->type == L'N'   ? L"XMLManager: read required DWORD/BOOL Attribute failed."
        : rule->type == L'S' ? L"XMLManager: write required string Attribute failed."
                             : L"XMLLiteManager: write required ENUM Attribute failed.";
    fails(beginning + (L" element:" + ReportedName(element) + L", attr:" + attribute.name));
  }
  for (const std::size_t child : element.children) CollectWriteFaults(child, faults, announcements);
  fails(L"XMLManager: fail to close element: " + ReportedName(element));
  faults.emplace_back();  // the line feed
  if (announced != departures_.announced.end()) {
    announcements.push_back({faults.size(), announced->second.second});
  }
}

void Example::ExpectWriteFaults(const FaultyWrite& write) const {
  std::vector<Texts> faults;
  std::vector<Announcement> announcements;
  CollectWriteFaults(0, faults, announcements);
  const Node root = Read();
  for (std::size_t n = 0; n < faults.size(); ++n) {
    SCOPED_TRACE("call " + std::to_string(n));
    const bool is_noticed = !faults[n].empty();
    Texts expected;
    for (const Announcement& announcement : announcements) {
      if (!is_noticed || announcement.before_call <= n) expected.push_back(announcement.text);
    }
    expected.insert(expected.end(), faults[n].begin(), faults[n].end());
    ConfigResult result = 0;
    EXPECT_EQ(write(*root, static_cast<int>(n), &result), expected);
    EXPECT_EQ(result, is_noticed ? -101 : 0);
  }
}

}  // namespace tolva::test
