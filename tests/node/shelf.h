// A document for the engine's tests: small, and using everything that a table can say.
#pragma once

#include <string>

#include "node/node.h"

namespace shelf {

/// The interface of every element here: tests reach the fields themselves.
template <class C>
class IOf : public tolva::node::INode {
 public:
  virtual IOf& CopyFrom(const IOf& other) = 0;
};

template <class C>
using NodeOf = tolva::node::Node<C, IOf<C>>;

// <Title>text</Title>
class CTitle final : public NodeOf<CTitle> {
 public:
  static const tolva::node::Schema kSchema;
  ConfigResult SetContent(const std::wstring* value) { return SetRequired(content, value); }
  std::wstring content;
};

// <Pages>123</Pages>
class CPages final : public NodeOf<CPages> {
 public:
  static const tolva::node::Schema kSchema;
  DWORD content = 0;
};

// <Remark>text</Remark>, which may be without
class CRemark final : public NodeOf<CRemark> {
 public:
  static const tolva::node::Schema kSchema;
  tolva::node::Optional<std::wstring> content;
};

/// An element without children whose `Clear` leaves one field alone.
class CLamp final : public NodeOf<CLamp> {
 public:
  static const tolva::node::Schema kSchema;
  DWORD colour = 0;
  tolva::node::Optional<DWORD> watts;
};

class CBook final : public NodeOf<CBook> {
 public:
  static const tolva::node::Schema kSchema;
  ConfigResult SetTitle(const IOf<CTitle>* child) { return SetRequiredChild(title, child); }

  CPages pages;
  CTitle title;
  tolva::node::OptionalChild<CRemark> remark;
  tolva::node::LazyChild<CLamp> lamp;
};

/// A list that fails in silence, and whose items are elements of another name than its own.
class CLabels final : public NodeOf<CLabels> {
 public:
  static const tolva::node::Schema kSchema;
  tolva::node::ChildList<CTitle> titles;
};

/// Not an INode: it has no `Clear` and no `CopyFrom`.
class CStamp final : public tolva::node::IElement {
 public:
  static const tolva::node::Schema kSchema;
  ConfigResult WriteToXMLMgr(IXMLLiteManager* manager, int reserved, int position) const override;
  ConfigResult ReadFromXMLMgr(IXMLLiteManager* manager, int reserved) override;
  /// For the element's parent.
  void Clear() { text.clear(); }
  std::wstring text;
};

class CShelf final : public NodeOf<CShelf> {
 public:
  static const tolva::node::Schema kSchema;
  ConfigResult SetNumber(const DWORD* value) { return SetRequired(number, value); }
  ConfigResult SetName(const std::wstring* value) { return SetRequired(name, value); }

  DWORD number = 0;
  std::wstring name;
  DWORD wood = 0;
  tolva::node::Optional<DWORD> width;
  tolva::node::Optional<std::wstring> place;
  tolva::node::Optional<DWORD> finish;
  tolva::node::Optional<std::uint64_t> worth;
  DWORD level = 0;
  tolva::node::Optional<DWORD> locked;
  tolva::node::Optional<DWORD> watched{.value = 0, .present = 1};

  CLamp lamp;
  CTitle title;
  tolva::node::ChildList<CBook> books;
  tolva::node::OptionalChild<CLabels> labels;
  CStamp stamp;
};

}  // namespace shelf
