// What all configuration nodes have in common.
//
// A node is the object of one element of a configuration document: it holds the element's
// attributes and child elements as typed fields, is made by the element's exported factory, and is
// destroyed with `delete` through its interface. Its fields are reached through typed accessors, of
// which there are these forms (X an attribute, Y a child element):
//
//   required number, ENUM    DWORD GetX() const                 (or ConfigResult GetX(DWORD* out))
//                            ConfigResult SetX(const DWORD* value)
//   required string          const std::wstring& GetX() const
//                            ConfigResult SetX(const std::wstring* value)
//   optional attribute       ConfigResult GetX(T* out) const    1 when absent, `out` untouched
//                            ConfigResult SetX(const T* value)  null removes the attribute; 0
//   required child           IY* GetY()
//                            ConfigResult SetY(const IY* child) copies
//   optional child           ConfigResult GetY(IY** out)        1 when absent
//                            ConfigResult SetY(const IY* child) copies; null removes the child; 0
//   repeated child           DWORD GetYCount() const
//                            IY* GetYAt(DWORD index)            null after the last item
//                            ConfigResult AddY(const IY* item)  appends a copy
//                            ConfigResult InsertYAt(DWORD index, const IY* item)
//                                                               a copy; after the last: appends
//                            void RemoveYAt(DWORD index)        nothing after the last item
//                            void RemoveAllY()
//
// The setter of a required value answers a null pointer with a diagnostic and -101; AddY and
// InsertYAt answer it with -101 alone. Getters accept null out-pointers, so GetX(nullptr) asks
// whether X is present. A child that is made absent keeps what it holds until the node is cleared.
//
// Numbers are stored as given, without a range check, and written in decimal. A document may hold
// the digits 0 to 9 alone, any number of them (none: 0). Unsigned ones keep the low 32 bits of what
// they read. Signed ones read as 2147483647 at most; from 2147483648 up they are written with a
// minus sign, and cannot be read back then. Signed are the numbers of the Active Directory, CI,
// remote filtering, installation and patch history documents.
//
// The value of an ENUM is one of the constants of the enumeration that its accessors' comment
// names. The comment after each constant has the text that stands for it in a document:
//
//   const DWORD action = TolvaInterface::kBlock;
//   rule->SetAction(&action);
//
// Any other number is kept, and written as an empty value unless the interface says otherwise; any
// other text fails the read.
//
// Nodes passed in have to be nodes of this library: another implementation of an interface is a
// caller's error that is not noticed.
//
// Pointers and references that getters hand out belong to the node; they are valid until the node
// changes that field or is destroyed. Everything passed in is copied.
//
// Any function, factories included, throws std::bad_alloc when memory runs out, and nothing else. A
// node and all below it are used by one thread at a time.
#pragma once

#include <tolva/types.h>

class IXMLLiteManager;

namespace tolva::node {

/// What every element's object can do: write itself and read itself.
class IElement {
 public:
  IElement() = default;
  virtual ~IElement() = default;

  /// Writes the element with all it holds. `manager` is an open writer; the other two arguments are
  /// those that a parent passes and do not influence the output. -101 with a diagnostic when
  /// something required could not be written: the document is then incomplete, the node unchanged.
  /// A writer without an open document leaves 0x8000FFFF as last error. A null manager gives a
  /// diagnostic and -101, one that is a reader -101 alone.
  ///
  /// 0 does not mean that everything is in the document. What is optional and cannot be written, a
  /// text with a forbidden character say, is left out without a word, as are the two attributes of
  /// `DefaultDomain`; the last-error value alone tells, the writer's `Close` does not. A failure of
  /// the stream, by contrast, is always reported, by this function or by `Close`.
  virtual ConfigResult WriteToXMLMgr(IXMLLiteManager* manager, int reserved = 0,
                                     int position = 1) const = 0;

  /// Fills the node from the element on whose start tag `manager`, an open reader, stands, and
  /// leaves the reader on that element's end. Attributes and children that the node does not know
  /// are ignored; children may come in any order; of a single child that occurs twice the last one
  /// counts. The node is cleared first, and again when the read fails: -101 with a diagnostic, or
  /// -102 without one when the element has another name (or the reader holds no element). A null
  /// manager gives a diagnostic and -101, one that is a writer -101 alone, and both leave the node
  /// as it was.
  ///
  /// 0 does not mean that the element was whole: where the document breaks off or is malformed
  /// after what the node needs, what has been read is kept. The last-error value tells of that, and
  /// `tolvaReadToEnd` of the rest of the document.
  virtual ConfigResult ReadFromXMLMgr(IXMLLiteManager* manager, int reserved = 0) = 0;

 protected:
  IElement(const IElement&) = default;
  IElement& operator=(const IElement&) = default;
};

/// The common slots of a configuration node. Each interface adds its own
/// `IName& CopyFrom(const IName& other)` after them: a deep copy, for which `other` has to be a
/// node of this library (one's own descendants and the node itself included).
class INode : public IElement {
 public:
  /// Resets every field to its default: empty, 0, absent. Fields of which their interface says that
  /// `Clear` leaves them as they were hold what was assigned to them last, be it by a read that
  /// failed later, and survive the `Clear` of the nodes above as well.
  virtual void Clear() = 0;
};

}  // namespace tolva::node
