// Elements whose value is their text. Accessors and reports call the text `Content`.
//
// A read takes the one node behind the start tag, when it is text, a CDATA section, a comment or a
// processing instruction; blanks alone are no text. Without a text the read of a required one fails
// with -102, and a diagnostic.
#pragma once

#include <string>

#include <tolva/node/node.h>
#include <tolva/types.h>

namespace tolva::node {

/// An element that is a string; `Self` is its interface.
template <class Self>
class IStringLeaf : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// The text. Required; null gives a diagnostic and -101.
  virtual const std::wstring& GetContent() const = 0;
  virtual ConfigResult SetContent(const std::wstring* value) = 0;
};

/// An element that is a string or has none; without one it reads all the same.
template <class Self>
class IOptionalLeaf : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// The text. Optional.
  virtual ConfigResult GetContent(std::wstring* out) const = 0;
  virtual ConfigResult SetContent(const std::wstring* value) = 0;
};

/// An element that is a number.
template <class Self>
class INumberLeaf : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// The number. Required; null gives a diagnostic and -101.
  virtual DWORD GetContent() const = 0;
  virtual ConfigResult SetContent(const DWORD* value) = 0;
};

}  // namespace tolva::node
