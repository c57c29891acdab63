// Faults made from an example document: each attribute taken away or spoilt in turn, each required
// child taken away, the document cut off at every character, each call of the writer failing; and
// what has to be reported of each, derived from a short account of the document's elements.
#pragma once

#include <tolva/node/node.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/managers.h"

namespace tolva::test {

/// An element as its document describes it.
struct ElementRule {
  /// Or "Parent/Name", for an element that has this account, and that name in the derived texts, in
  /// one parent alone.
  const wchar_t* name;

  /// "Name:type" and marks, in write order. Types: N number, S string, E ENUM. Marks: ! required,
  /// ? always written but dispensable, ~ not checked when written.
  ///
  /// "#:type" and marks: the element's text. Marks: ! required, ? its absence is reported and no
  /// fault, ~ anything is a number.
  const wchar_t* attributes;

  /// Names and marks, in write order: ! required, ? always written but dispensable, * repeated.
  const wchar_t* children;

  /// Its name in reports, where that is another.
  const wchar_t* reported_as = nullptr;
};

/// How a document departs from the rules by which texts are derived.
struct Departures {
  /// What is reported instead of a derived text; empty: nothing.
  std::map<std::wstring, std::wstring> texts = {};

  /// What is reported before and after an element has been written.
  std::map<std::wstring, std::pair<std::wstring, std::wstring>> announced = {};
};

/// What contradicts itself or cannot be read throws, which ends the test with the reason.
class Example {
 public:
  using Node = std::unique_ptr<node::IElement>;
  using Factory = std::function<Node()>;

  /// `file` is a document that the library has written or might have written, with comments.
  Example(const char* file, Factory make_root, std::vector<ElementRule> rules,
          Departures departures = {});

  /// Reading, writing and reading again changes nothing, and the file is written as it stands.
  void ExpectRoundTrip() const;

  /// Attributes, texts and children taken away and spoilt, the end cut off.
  void ExpectReadFaults() const;
  void ExpectTruncation() const;

  /// Failing calls of the writer. `write` writes a node with the n-th call failing and returns the
  /// reports; it is not known to tests of the shared library.
  using FaultyWrite = std::function<Texts(const node::IElement&, int n, ConfigResult* result)>;
  void ExpectWriteFaults(const FaultyWrite& write) const;

  /// The root as the file has it.
  Node Read() const;

 private:
  struct Attribute {
    std::wstring name;
    std::size_t start;  ///< of the blank before it
    std::size_t value;
    std::size_t end;  ///< behind the closing quote
  };
  struct Element {
    std::wstring name;
    std::wstring rule;  ///< the name of its account
    std::size_t start;
    std::size_t inside;  ///< behind its start tag
    std::size_t close;   ///< its end tag; an empty tag: its end
    std::size_t end;     ///< behind its end tag
    std::size_t parent;  ///< itself: the root
    std::vector<Attribute> attributes;
    std::vector<std::size_t> children;
  };
  struct AttributeRule {
    std::wstring name;
    wchar_t type = 0;
    std::wstring marks;

    bool Has(wchar_t mark) const { return marks.find(mark) != std::wstring::npos; }
  };

  struct Announcement {
    std::size_t before_call;
    std::wstring text;
  };

  void Parse();
  const ElementRule* FindRule(const std::wstring& name) const;
  std::wstring ReportedName(const Element& element) const;
  std::vector<AttributeRule> AttributesOf(const Element& element) const;
  std::wstring ChildWordOf(const Element& child) const;
  wchar_t MarkOf(const Element& child) const;
  void CheckRules() const;
  Texts Depart(const Texts& texts) const;
  Texts WithParents(Texts texts, std::size_t element, bool reading) const;
  void ExpectTextFaults(std::size_t index, const AttributeRule& rule) const;
  void ExpectRead(const std::wstring& document, const Texts& reports, ConfigResult result) const;
  void CollectWriteFaults(std::size_t index, std::vector<Texts>& faults,
                          std::vector<Announcement>& announcements) const;

  std::wstring text_;
  Factory make_root_;
  std::vector<ElementRule> rules_;
  Departures departures_;
  std::vector<Element> elements_;  ///< in document order
  std::string fresh_;
};

}  // namespace tolva::test
