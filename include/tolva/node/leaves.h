// Elements whose value is their text. Accessors and reports call the text `Content`.
//
// A read takes the one node after the start tag, when it is text, a CDATA section, a comment or a
// processing instruction, and drops the rest. White space alone is no text unless a CDATA section
// holds it, and hides the section that follows it. Without a text the read of a required one fails
// with -102, and a diagnostic: what is written of an empty one cannot be read back. An element with
// content of its own within a text may end what is read of the element around it too early: what
// follows is missed.
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

/// An element that is a string or has none; without one it reads all the same. An absent text is
/// not written, nor is the element, even where a parent has it as present, unless the interface
/// says otherwise. A text that cannot be written is left out without a word, and its element with
/// it. An empty text reads back as absent.
template <class Self>
class IOptionalLeaf : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// The text. Optional.
  virtual ConfigResult GetContent(std::wstring* out) const = 0;
  virtual ConfigResult SetContent(const std::wstring* value) = 0;
};

/// An element that is a number; other characters than digits fail the read with -101.
template <class Self>
class INumberLeaf : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// The number. Required; null gives a diagnostic and -101.
  virtual DWORD GetContent() const = 0;
  virtual ConfigResult SetContent(const DWORD* value) = 0;
};

}  // namespace tolva::node
