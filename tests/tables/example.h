// Faults made from an example document, and what has to be reported of each. The reports follow
// from the names, types and occurrences in the tables. Whatever else a table states departs from
// the rules, and the tests state it as well.
#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "node/schema.h"
#include "support/managers.h"

namespace tolva::test {

/// How a document departs from the rules. Rows are named "Element/Attribute" and "Parent/Child".
struct Departures {
  /// What is reported instead of a derived text; empty: nothing.
  std::map<std::wstring, std::wstring> reports = {};

  std::map<std::wstring, std::wstring> reported_names = {};  ///< of children, in derived texts
  std::set<std::wstring> dispensable = {};  ///< required, but may be absent from a document
  std::set<std::wstring> unchecked = {};    ///< required, but a failed write is ignored
  std::set<std::wstring> lenient = {};      ///< elements whose text is never a fault

  /// What is reported before and after a child is written.
  std::map<std::wstring, std::pair<std::wstring, std::wstring>> announced = {};
};

/// What contradicts itself throws, which ends the test with the reason.
class Example {
 public:
  Example(const char* document, const node::Schema& root, const Departures& departures);

  /// The document in the form in which the library writes it, without the declaration.
  const std::wstring& text() const { return text_; }

  /// A document with a fault, and what reading it has to give.
  struct ReadFault {
    std::wstring document;
    Texts reports = {};
    ConfigResult result = 0;
  };

  /// Each attribute and text removed and spoilt, each required child removed.
  std::vector<ReadFault> ReadFaults() const;

  /// A call of the platform's writer, and what has to be reported when it fails.
  struct Write {
    Texts reports;    ///< none: the failure goes unnoticed
    Texts announced;  ///< before the call
  };
  std::vector<Write> Writes() const;

 private:
  struct Attribute {
    const node::Attribute* row;
    std::size_t start;  ///< of the space before it
    std::size_t end;    ///< after the closing quote
  };
  struct Element {
    const node::Schema* schema;
    const node::Child* row;  ///< in the parent's table; null: the root
    std::wstring reported_name;
    std::size_t parent;  ///< itself: the root
    std::size_t start;
    std::size_t inside;     ///< after its start tag
    std::size_t close = 0;  ///< its end tag; an empty tag: its end
    std::size_t end = 0;    ///< after its end tag
    std::vector<Attribute> attributes = {};
    std::vector<std::size_t> children = {};
  };

  void Parse();
  void Open(std::size_t at, std::size_t close, std::size_t parent);
  Element MakeElement(const std::wstring& name, std::size_t parent) const;
  void RequireEveryRow() const;
  static std::wstring Path(const Element& element, const std::wstring& row);
  Texts WithParents(std::wstring report, std::size_t element, bool reading) const;
  ReadFault Bad(std::wstring document, std::wstring report, std::size_t element) const;
  std::wstring Without(std::size_t start, std::size_t end) const;
  std::wstring SpoiltAt(std::size_t at) const;
  void AddReadFaults(std::size_t index, const Attribute& attribute,
                     std::vector<ReadFault>& faults) const;
  void AddTextFaults(std::size_t index, std::vector<ReadFault>& faults) const;
  void AddWrites(std::size_t index, std::vector<Write>& writes) const;

  const Departures& departures_;
  const node::Schema& root_;
  std::wstring text_;
  std::vector<Element> elements_;  ///< in document order
};

}  // namespace tolva::test
