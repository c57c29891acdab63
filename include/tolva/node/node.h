// What all configuration nodes have in common.
//
// A node represents one element of a configuration document. It holds the element's attributes and
// child elements as typed fields. The element's exported factory creates it; its owner destroys it
// with `delete` through its interface. Typed accessors get and set the fields. They have these
// forms (X is an attribute, Y a child element):
//
//   required number, ENUM    DWORD GetX() const                 (or ConfigResult GetX(DWORD* out))
//                            ConfigResult SetX(const DWORD* value)
//   required string          const std::wstring& GetX() const
//                            ConfigResult SetX(const std::wstring* value)
//   optional attribute       ConfigResult GetX(T* out) const    1 if absent, `out` unchanged
//                            ConfigResult SetX(const T* value)  null removes the attribute; 0
//   required child           IY* GetY()
//                            ConfigResult SetY(const IY* child) copies
//   optional child           ConfigResult GetY(IY** out)        1 if absent, `out` unchanged
//                            ConfigResult SetY(const IY* child) copies; null removes the child; 0
//   repeated child           DWORD GetYCount() const
//                            IY* GetYAt(DWORD index)            null if there is no such item
//                            ConfigResult AddY(const IY* item)  appends a copy
//                            ConfigResult InsertYAt(DWORD index, const IY* item)
//                                                               a copy; past the end: appends
//                            void RemoveYAt(DWORD index)        ignored if there is no such item
//                            void RemoveAllY()
//
// The setter of a required value rejects null with a diagnostic and -101. AddY and InsertYAt reject
// null with -101 and no diagnostic. Getters accept a null out-pointer, so GetX(nullptr) tests
// whether X is present. Removing a child keeps its content until the node is cleared.
//
// Numbers are stored as given, without a range check, and written in decimal. In a document, a
// number is any quantity of the digits 0 to 9; no digits at all read as 0. A switch is a number: 1
// is on, 0 is off, and any other number is kept as it is. Reading an unsigned number saturates at
// 9223372036854775807 and keeps the low 32 bits. Reading a signed number saturates at 2147483647; a
// signed number from 2147483648 up is written with a minus sign and cannot be read back. The Active
// Directory, CI, remote filtering, installation and patch history documents have signed numbers,
// all others unsigned ones.
//
// The value of an ENUM is a constant of the enumeration that the comment of its accessors names.
// The comment after each constant gives its text in a document:
//
//   const DWORD action = TolvaInterface::kBlock;
//   rule->SetAction(&action);
//
// Any other number is stored, and written as an empty value unless the interface says otherwise.
// Any other text makes the read fail.
//
// Nodes that are passed in must be nodes of this library. Other implementations of the interfaces
// are not supported, and are not detected.
//
// Pointers and references that getters return belong to the node. They are valid until the node
// changes that field or is destroyed. Everything that is passed in is copied.
//
// When memory runs out, every function, factories included, may throw std::bad_alloc; functions
// throw nothing else. One thread at a time may use a node and everything below it.
#pragma once

#include <tolva/types.h>

class IXMLLiteManager;

namespace tolva::node {

/// An element that can be written and read.
class IElement {
 public:
  IElement() = default;
  virtual ~IElement() = default;

  /// Writes the element and its content. `manager` is a writer with an open document. The other two
  /// arguments are those that a parent passes; they do not affect the output. If something required
  /// cannot be written, the function fails with a diagnostic and -101: the document is incomplete,
  /// the node unchanged. If no document is open, the last-error value is then 0x8000FFFF. A null
  /// manager gives a diagnostic and -101, a reader -101 alone.
  ///
  /// The result 0 does not mean that everything is in the document. Optional values that cannot be
  /// written, such as a text with a forbidden character, are left out without a diagnostic, and so
  /// are the two attributes of `DefaultDomain`. Only the last-error value indicates it; the
  /// writer's `Close` does not. A failure of the stream, by contrast, is always reported, by this
  /// function or by `Close`.
  virtual ConfigResult WriteToXMLMgr(IXMLLiteManager* manager, int reserved = 0,
                                     int position = 1) const = 0;

  /// Reads the element into the node. `manager` is a reader that is positioned on the element's
  /// start tag; afterwards it is positioned on the element's end. Unknown attributes and children
  /// are ignored. Children may come in any order. If a single child occurs twice, the last one
  /// counts.
  ///
  /// The node is cleared first, and again if the read fails: with a diagnostic and -101; or with
  /// -102 and no diagnostic if the element has another name, or the reader holds no element. A text
  /// element without its required text gives a diagnostic and -102. A null manager gives a
  /// diagnostic and -101, a writer -101 alone; both leave the node unchanged.
  ///
  /// The result 0 does not mean that the element is complete. If the document ends or is malformed
  /// after everything that the node requires, the node keeps what has been read. The last-error
  /// value indicates this, and `tolvaReadToEnd` validates the rest of the document.
  virtual ConfigResult ReadFromXMLMgr(IXMLLiteManager* manager, int reserved = 0) = 0;

 protected:
  IElement(const IElement&) = default;
  IElement& operator=(const IElement&) = default;
};

/// The common slots of configuration nodes. In the slot after them, every interface declares
/// `IName& CopyFrom(const IName& other)`, which makes a deep copy of `other` and returns the node.
/// `other` must be a node of this library. It may be the node itself or one of its descendants.
class INode : public IElement {
 public:
  /// Resets every field to its default: empty, 0 or absent. Some interfaces say that `Clear` keeps
  /// certain fields. Such a field keeps the value that was assigned last, even by a read that then
  /// failed, and also when a node above it is cleared.
  virtual void Clear() = 0;
};

}  // namespace tolva::node
