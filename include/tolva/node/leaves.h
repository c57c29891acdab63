// Elements whose value is their text. Accessors and diagnostics call the text `Content`.
//
// A read takes the one node that follows the start tag, if it is text, a CDATA section, a comment
// or a processing instruction, and discards the rest of the content. White space alone does not
// count as text unless it is in a CDATA section; it also hides a CDATA section that follows it. If
// a required text is missing, the read fails with a diagnostic and -102; an empty required text can
// therefore be written, but not read back. A child element that has content may end the read too
// early. The element around this one then ends there too, and loses its further children.
#pragma once

#include <string>

#include <tolva/node/node.h>
#include <tolva/types.h>

namespace tolva::node {

/// An element that holds a string. `Self` is its interface.
template <class Self>
class IStringLeaf : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// The text. Required: null gives a diagnostic and -101.
  virtual const std::wstring& GetContent() const = 0;
  virtual ConfigResult SetContent(const std::wstring* value) = 0;
};

/// An element that holds a string or nothing. `Self` is its interface. Without a text the element
/// reads successfully. If the text is absent, the element is not written, even if its parent has it
/// as present, unless the interface says otherwise. If the text cannot be written, text and element
/// are left out without a diagnostic. An empty text is written, and reads back as absent.
template <class Self>
class IOptionalLeaf : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// The text. Optional: null removes it.
  virtual ConfigResult GetContent(std::wstring* out) const = 0;
  virtual ConfigResult SetContent(const std::wstring* value) = 0;
};

/// An element that holds a number. `Self` is its interface. The read fails with -101 if the text
/// has other characters than digits, unless the interface says otherwise.
template <class Self>
class INumberLeaf : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// The number. Required: null gives a diagnostic and -101.
  virtual DWORD GetContent() const = 0;
  virtual ConfigResult SetContent(const DWORD* value) = 0;
};

}  // namespace tolva::node
