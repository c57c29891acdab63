// A pull parser for XML 1.0 (fifth edition) and Namespaces in XML 1.0, without document type
// declarations, which it refuses.
//
// Reading is forward only. A node consists of slices of the input; nothing is decoded or copied but
// the names of the open elements. Memory is a block of input or the current node if that is larger,
// the current start tag's attributes, and the names of the open elements; once these have grown to
// what a document needs, no node costs an allocation. Time is linear in the document's size,
// whatever it holds.
//
// Faults are reported where they stand: all nodes before the one at fault are delivered first. The
// codes are those of XmlLite.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/buffer.h"
#include "platform/xml/decode.h"
#include "platform/xml/input.h"
#include "platform/xml/namespaces.h"
#include "platform/xml/twin_names.h"

namespace tolva::platform {

enum XmlNodeType : std::int32_t {
  XmlNodeType_None = 0,
  XmlNodeType_Element = 1,
  XmlNodeType_Attribute = 2,
  XmlNodeType_Text = 3,
  XmlNodeType_CDATA = 4,
  XmlNodeType_ProcessingInstruction = 7,
  XmlNodeType_Comment = 8,
  XmlNodeType_Whitespace = 13,
  XmlNodeType_EndElement = 15,
  XmlNodeType_XmlDeclaration = 17,
};

namespace own_xml {

class Parser {
 public:
  /// As many elements may be open at once; one more is refused.
  static constexpr std::size_t kMaxDepth = 256;

  /// Starts on a stream, which is kept until the next call; null lets the last one go. `converted`:
  /// the text is UTF-8, whatever encoding it declares.
  void SetInput(ISequentialStream* stream, bool converted);

  /// Moves to the next node: S_OK; S_FALSE behind the last one; or what is wrong with the document,
  /// now and from then on. The slices below are valid until the next call.
  HRESULT Read();

  XmlNodeType type() const { return type_; }

  /// The name of an Element, EndElement or ProcessingInstruction; else empty.
  const Name& name() const { return name_; }

  /// The text of a Text, CDATA, Whitespace, Comment or ProcessingInstruction as it stands in the
  /// document; else empty. It is its own value when `value_is_plain`.
  std::string_view value() const { return value_; }
  bool value_is_plain() const { return value_is_plain_; }

  /// The attributes of an Element, in the document's order.
  std::span<const Attribute> attributes() const { return {attributes_.data(), attributes_.size()}; }

  /// False: no attribute's name begins with this character.
  bool MayHaveAttribute(wchar_t initial) const {
    const bool is_ascii = static_cast<std::uint32_t>(initial) < 0x80;
    return !is_ascii || (attribute_initials_ & InitialOf(static_cast<char>(initial))) != 0;
  }

  /// Whether the document is at its end, but for a zero where the input should have ended.
  bool EndsAtTerminator() const { return IsBehindRoot() && input_.stopped_at_zero(); }

  /// The Element was written as an empty tag. It has no EndElement then.
  bool is_empty_element() const { return is_empty_element_; }

 private:
  struct OpenElement {
    std::size_t name_start;    ///< in `open_names_`
    std::size_t prefix;        ///< of the name
    std::size_t declarations;  ///< namespace declarations that were in force around it
  };

  /// What is found out about a start tag on the way.
  struct TagTraits {
    std::uint64_t initials = 0;   ///< InitialOf each attribute's name
    bool has_namespaces = false;  ///< a colon or a declaration
    bool may_have_twins = false;  ///< two attributes may have the same name
  };

  void Forget();
  void ForgetAttributes();
  HRESULT ParseNode();
  HRESULT ParseOutsideRoot();
  HRESULT ParseText();
  HRESULT ParseCharacters(const char* behind_space);
  HRESULT ParseMarkup(const char* at);
  HRESULT ParseStartTag(const char* at);
  HRESULT ParseAttributes(const char* at, const char*& end, TagTraits& traits);
  template <char Quote>
  static HRESULT ParseAttributeValue(const char*& at, Attribute& attribute);
  HRESULT CheckUniqueNames();
  void PushName(std::string_view name);
  HRESULT ParseEndTag(const char* at);
  HRESULT ParseComment(const char* at);
  HRESULT ParseCData(const char* at);
  HRESULT ParseProcessingInstruction(const char* at);
  HRESULT ParseDeclaration(const char* at);
  HRESULT ParseDeclarationItem(const char*& at, std::string_view name, std::string_view& value);

  HRESULT Deliver(XmlNodeType type, const char* end);
  HRESULT FaultAtLimit() const;
  /// One bit for what a name begins with.
  static std::uint64_t InitialOf(char c) {
    return std::uint64_t{1} << (static_cast<unsigned char>(c) % 64);
  }

  bool IsOutsideRoot() const { return open_elements_.size() == 0; }
  /// All that the window shows has been delivered, and the root with it.
  bool IsBehindRoot() const { return has_root_ && IsOutsideRoot() && at_ == input_.limit(); }
  std::string_view InnermostName() const;

  Input input_;
  const char* at_ = nullptr;       ///< behind the current node
  bool started_ = false;           ///< something has been delivered
  bool has_root_ = false;          ///< the root's start tag has been delivered
  bool at_limit_ = false;          ///< the input has nothing to add to its window
  HRESULT result_ = E_UNEXPECTED;  ///< what Read answers without looking, unless S_OK

  XmlNodeType type_ = XmlNodeType_None;
  Name name_;
  std::string_view value_;
  bool value_is_plain_ = true;
  bool is_empty_element_ = false;
  Buffer<Attribute> attributes_;
  std::uint64_t attribute_initials_ = 0;  ///< InitialOf each one's name
  std::vector<std::string_view> sorted_names_;

  Buffer<char> open_names_;
  Buffer<OpenElement> open_elements_;
  Namespaces namespaces_;
};

}  // namespace own_xml
}  // namespace tolva::platform
