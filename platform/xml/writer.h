// The XML writer of the library's own layer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/buffer.h"
#include "platform/com_ptr.h"
#include "platform/name.h"
#include "platform/xml/hresults.h"

namespace tolva::platform {

/// Writes a document as UTF-8. Results are those of XmlLite's IXmlWriter.
///
/// Layout: one element per line, two spaces per level, LF, no empty lines; an element that contains
/// text stays on its line. Everything can be read back exactly: TAB, LF and CR in attributes, CR in
/// text, and the first character of a text of white space alone are written as references.
///
/// Output goes to the stream in blocks, when an element starts or ends, when the document ends and
/// when it is flushed. Attributes and line feeds never fail because of the stream.
///
/// A call that fails, or throws std::bad_alloc, has written nothing. After WR_E_INVALIDACTION (a
/// call that is not allowed at this point of the document) all further calls return the same until
/// the next `SetOutput`. After other failures the writer can be used as before; bytes that the
/// stream did not accept are kept for the next call.
class XmlWriter {
 public:
  /// A value that is written as it is: ASCII that needs no escaping.
  using Value = std::string_view;

  XmlWriter() = default;
  XmlWriter(const XmlWriter&) = delete;
  XmlWriter& operator=(const XmlWriter&) = delete;
  ~XmlWriter() { SetOutput(nullptr); }

  HRESULT Create() { return S_OK; }

  /// Starts a document on a stream, or releases the stream if null. A document that is still open
  /// is ended and flushed first, as far as possible.
  HRESULT SetOutput(ISequentialStream* output) noexcept;

  HRESULT WriteStartDocument();

  // Names come from tables, so an element never gets two attributes of one name.

  HRESULT WriteStartElement(const Name& name);
  HRESULT WriteAttribute(const Name& name, std::wstring_view text);
  HRESULT WritePlainAttribute(const Name& name, Value value);

  /// Ends an element. An element without content becomes an empty tag.
  HRESULT WriteEnd() { return EndElement(false); }
  /// Ends an element with an end tag.
  HRESULT WriteFullEnd() { return EndElement(true); }

  HRESULT WriteLineFeed();

  // A whole element, with text or as an empty tag.

  HRESULT WriteElement(const Name& name, std::wstring_view text);
  HRESULT WritePlainElement(const Name& name, Value value);
  HRESULT WriteEmptyElement(const Name& name);

  /// Ends all open elements. A document without an element cannot be ended.
  HRESULT WriteEndDocument();

  /// Passes everything written so far to the stream.
  HRESULT Flush();

 private:
  enum class State : std::uint8_t {
    kNothing,   ///< nothing written
    kProlog,    ///< after the declaration
    kStartTag,  ///< in a start tag
    kContent,   ///< in an element
    kEpilog,    ///< after the root element
    kClosed,    ///< the document has been ended, or a call was not allowed
  };

  /// Takes back what a call has written, unless the call succeeds.
  class Draft;

  HRESULT Begin();
  HRESULT BeginElement();
  HRESULT BeginAttribute();
  HRESULT Refuse();
  HRESULT Drain();
  bool IsInElement() const { return state_ == State::kStartTag || state_ == State::kContent; }
  std::size_t depth() const { return open_elements_.size(); }
  std::string_view InnermostName() const;

  HRESULT EndElement(bool has_end_tag);
  template <class Put>
  HRESULT WriteWholeElement(const Name& name, Put put);
  char* PutStartTag(const Name& name, char* to) const;
  char* PutLineBreak(std::size_t depth, char* to) const;
  std::size_t RoomForStartTag() const;

  ComPtr<ISequentialStream> output_;
  State state_ = State::kNothing;
  bool at_line_start_ = true;
  Buffer<char> out_;                   ///< written, but not yet passed to the stream
  Buffer<char> open_names_;            ///< the names of the open elements
  Buffer<std::size_t> open_elements_;  ///< where the name of each starts
};

}  // namespace tolva::platform
