// The XML writer behind XmlLite's interface.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/buffer.h"
#include "platform/com_ptr.h"
#include "platform/ref_counted.h"
#include "platform/xml/duplicate_filter.h"
#include "platform/xml/hresults.h"

namespace tolva::platform {

enum XmlWriterProperty : UINT { XmlWriterProperty_Indent = 1 };

enum XmlStandalone : std::int32_t { XmlStandalone_Omit = 0 };

/// Writes a document as UTF-8, as XmlLite's IXmlWriter does, in the calls that the library makes:
/// prefixes and namespace names, where a call takes them, have to be null or empty.
///
/// Layout: one element a line, two blanks a level, LF, no empty lines; an element with text is kept
/// on its line. What is written can be read back exactly: TAB, LF and CR in attributes, CR in text
/// and the first character of a text of white space alone are written as references.
///
/// What is written goes to the stream in blocks, when an element starts or ends, when the document
/// ends and when it is flushed; attributes, texts and white space never fail because of the stream.
/// A call that fails has written nothing. After WR_E_INVALIDACTION (a call that does not fit where
/// the document stands) every further call answers the same until the next `SetOutput`. Other
/// failures leave the writer usable; bytes that the stream refused are kept for the next call.
class XmlWriter final : public RefCounted<> {
 public:
  XmlWriter() = default;
  XmlWriter(const XmlWriter&) = delete;
  XmlWriter& operator=(const XmlWriter&) = delete;
  ~XmlWriter() override { SetOutput(nullptr); }

  /// Starts a document on a stream; null lets the last stream go. A document that is still open on
  /// the last one is ended and flushed first, as far as possible.
  HRESULT SetOutput(ISequentialStream* output) noexcept;

  /// Indentation is on; nothing else can be set.
  HRESULT SetProperty(UINT property, LONG_PTR value);

  HRESULT WriteStartDocument(XmlStandalone standalone);
  HRESULT WriteStartElement(const wchar_t* prefix, const wchar_t* name, const wchar_t* uri);
  HRESULT WriteAttributeString(const wchar_t* prefix, const wchar_t* name, const wchar_t* uri,
                               const wchar_t* value);
  HRESULT WriteString(const wchar_t* text);
  HRESULT WriteWhitespace(const wchar_t* text);

  /// Ends an element; one without content becomes an empty tag.
  HRESULT WriteEndElement();
  /// Ends an element with an end tag.
  HRESULT WriteFullEndElement();
  /// A whole element; null text gives an empty tag, an empty text a start and an end tag.
  HRESULT WriteElementString(const wchar_t* prefix, const wchar_t* name, const wchar_t* uri,
                             const wchar_t* text);

  /// Ends all open elements. A document without an element cannot be ended.
  HRESULT WriteEndDocument();

  /// Hands everything written so far to the stream.
  HRESULT Flush();

 private:
  enum class State : std::uint8_t {
    kNothing,   ///< nothing written
    kProlog,    ///< the declaration
    kStartTag,  ///< in a start tag
    kContent,   ///< in an element
    kEpilog,    ///< behind the root
    kClosed,    ///< the document has been ended, or a call was out of place
  };

  struct OpenElement {
    std::size_t name_start;  ///< in `open_names_`
    bool has_text;
  };

  /// What a call changes, put back unless the call says that it has succeeded.
  class Change {
   public:
    explicit Change(XmlWriter& writer);
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;
    ~Change();

    HRESULT Keep() {
      kept_ = true;
      return S_OK;
    }

   private:
    XmlWriter& writer_;
    const std::size_t size_;
    const std::size_t names_size_;
    const std::size_t depth_;
    const State state_;
    const bool at_line_start_;
    bool kept_ = false;
  };

  HRESULT Begin() const;
  HRESULT BeginAndDrain();
  HRESULT Refuse();
  HRESULT Drain();
  bool IsInElement() const { return state_ == State::kStartTag || state_ == State::kContent; }
  OpenElement& Innermost() { return open_elements_.data()[open_elements_.size() - 1]; }

  void Put(std::string_view markup) { out_.Append(markup.data(), markup.size()); }
  HRESULT PutName(const wchar_t* name);
  HRESULT PutAttributeValue(const wchar_t* value);
  HRESULT PutText(const wchar_t* text);
  void PutLineBreak(std::size_t depth);
  void FinishStartTag();
  HRESULT StartElement(const wchar_t* name);
  HRESULT EndElement(bool full);

  ComPtr<ISequentialStream> output_;
  State state_ = State::kNothing;
  bool at_line_start_ = true;
  Buffer<char> out_;  ///< written, but not yet to the stream
  Buffer<char> open_names_;
  Buffer<OpenElement> open_elements_;

  // The names of the attributes of the start tag.
  own_xml::DuplicateFilter duplicate_filter_;
  Buffer<char> attribute_names_;
  Buffer<std::size_t> attribute_name_ends_;
};

}  // namespace tolva::platform
