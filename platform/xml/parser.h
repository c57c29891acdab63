// A pull parser for XML 1.0 (fifth edition) and Namespaces in XML 1.0. It refuses document type
// declarations.
//
// Reading is forward only. The parts of a node are slices of the input; nothing is decoded or
// copied but the names of the open elements. Memory is a block of input, or the current node if
// that is larger, the attributes of the current start tag, and the names of the open elements. Once
// these have grown to what a document needs, no node costs an allocation. Time is linear in the
// size of the document, whatever it contains.
//
// A fault is reported where it is: all nodes before it are delivered first. The codes of faults are
// those of XmlLite.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/buffer.h"
#include "platform/name.h"
#include "platform/xml/decode.h"
#include "platform/xml/duplicate_filter.h"
#include "platform/xml/input.h"
#include "platform/xml/namespaces.h"

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

enum class ReadResult {
  kNode,   ///< there is a next node, and the parser is on it
  kEnd,    ///< the document has ended
  kFault,  ///< the document is malformed or cannot be read
};

/// Reads a document node by node.
class Parser {
 public:
  /// The number of elements that may be open. One more is a fault.
  static constexpr std::size_t kMaxDepth = 256;

  /// Starts on a stream, which is kept until the next call; null releases the last one.
  /// `converted`: the text is UTF-8, whatever encoding it declares.
  void SetInput(ISequentialStream* stream, bool converted);

  /// Moves to the next node. After the end and after a fault every further call returns the same.
  /// The slices below are valid until the next call.
  ReadResult Read() { return ReadNode<false>(); }

  /// Like `Read`, but skips white space between tags within the root.
  ReadResult ReadTag() { return ReadNode<true>(); }

  /// Does what `ReadTag` does, but only if the next node is an end tag, or a start tag in `tags`
  /// with no attributes that the tag does not know, and if it is written as most tags are: one
  /// space before each attribute, double quotes, no other space. `index` is where the search among
  /// the tags starts, and then the place of the tag. Returns false, and changes nothing, in all
  /// other cases, whether there is a fault or not.
  bool ReadKnownTag(const KnownTags& tags, std::size_t& index);

  /// What is wrong, after kFault: an XmlLite code, the stream's failure, E_OUTOFMEMORY after a call
  /// that has thrown, or E_UNEXPECTED if there is no input.
  HRESULT fault() const { return fault_; }

  /// Where that is, after kFault: in the window, or its limit if the input ends there. Valid until
  /// the next input.
  const char* fault_at() const { return fault_at_; }

  /// The window, for positions. Text that is not dropped yet stays where it is during a call.
  const Input& input() const { return input_; }

  /// Sets what sees the text that leaves the window, until there is another input.
  void Observe(InputObserver* observer) { input_.Observe(observer); }

  /// The number of elements that are open.
  std::size_t depth() const { return depth_; }

  /// The name of the innermost of them, as its start tag has it.
  std::string_view InnermostName() const;

  XmlNodeType type() const { return type_; }

  /// The name of an Element, EndElement or ProcessingInstruction; otherwise empty.
  const QName& name() const { return name_; }

  /// The source text of a Text, CDATA, Whitespace, Comment or ProcessingInstruction; otherwise
  /// empty. If `value_is_plain`, it is the value as well.
  std::string_view value() const { return value_; }
  bool value_is_plain() const { return value_is_plain_; }

  /// The attributes of an Element, in document order.
  std::span<const Attribute> attributes() const { return {attributes_.data(), attributes_.size()}; }

  /// Looks names up among the attributes. After `ReadKnownTag` those that the tag knows are found.
  void FindAttributes(const Names& names);

  /// The attribute that has been found for the name at this place; null if there is none.
  const Attribute* FoundAttribute(std::size_t index) const {
    return (found_ >> index & 1) != 0 ? attributes_.data() + positions_[index] : nullptr;
  }

  /// Whether the document is complete, except that a zero follows it where the input should end.
  bool EndsAtTerminator() const { return IsAfterRoot() && input_.stopped_at_zero(); }

  /// The Element is an empty tag. It has no EndElement.
  bool is_empty_element() const { return is_empty_element_; }

 private:
  struct Scope {
    std::size_t name_start;    ///< in `open_names_`
    std::size_t prefix;        ///< of the name
    std::size_t declarations;  ///< the number of namespace declarations in scope around it
  };

  /// What the names in a start tag call for.
  struct TagTraits {
    void Add(const QName& attribute);

    bool uses_namespaces = false;      ///< there is a prefix or a namespace declaration
    bool may_have_duplicates = false;  ///< two attributes may have the same name
    DuplicateFilter filter;
  };

  void ClearNode();
  void ClearAttributes();
  template <bool skips_space>
  ReadResult ReadNode();
  template <bool skips_space>
  Status ParseNode();
  bool ReadKnownStartTag(const char* at, const KnownTags& tags, std::size_t& index);
  bool ReadKnownAttributes(const char*& at, const Names& names);
  bool ReadKnownEndTag(const char* at);
  void OpenElement(const QName& name, std::size_t declarations);
  void CloseElement();
  Status ParseOutsideRoot();
  Status ParseText();
  Status ParseCharacters(const char* after_space);
  Status ParseMarkup(const char* at);
  Status ParseStartTag(const char* at);
  Status ParseAttributes(const char* at, const char*& end, TagTraits& traits);
  Status OpenScope(const TagTraits& traits);
  Status CheckUniqueNames();
  void PushName(std::string_view name);
  Status ParseEndTag(const char* at);
  Status ParseExclamation(const char* at);
  Status ParseComment(const char* at);
  Status ParseCData(const char* at);
  Status ParseProcessingInstruction(const char* at);
  Status ParseDeclaration(const char* at);
  Status ParseEncodingDeclaration(const char*& at);

  Status Deliver(XmlNodeType type, const char* end);
  Status FaultAt(const char* at, Status status) {
    fault_at_ = at;
    return status;
  }
  ReadResult Fail(HRESULT fault);
  ReadResult EndAtLimit();

  bool IsOutsideRoot() const { return depth_ == 0; }
  /// The window shows nothing more after the root.
  bool IsAfterRoot() const { return has_root_ && IsOutsideRoot() && at_ == input_.limit(); }

  Input input_;
  const char* at_ = nullptr;    ///< the end of the current node
  bool has_delivered_ = false;  ///< there has been a node
  bool has_root_ = false;       ///< there has been the root's start tag
  bool at_limit_ = false;       ///< there is no more input than the window shows
  ReadResult result_ = ReadResult::kFault;
  HRESULT fault_ = E_UNEXPECTED;
  const char* fault_at_ = nullptr;  ///< null: at the start of the node

  XmlNodeType type_ = XmlNodeType_None;
  QName name_;
  std::string_view value_;
  bool value_is_plain_ = true;
  bool is_empty_element_ = false;
  Buffer<Attribute> attributes_;
  std::uint64_t found_ = 0;  ///< one bit for each name that an attribute has been found for
  std::array<std::uint32_t, Names::kMost> positions_ = {};  ///< where, in `attributes_`
  std::vector<std::string_view> sorted_names_;

  Buffer<char> open_names_;
  std::size_t depth_ = 0;                     ///< how many elements are open
  std::array<Scope, kMaxDepth> scopes_ = {};  ///< theirs
  Namespaces namespaces_;
};

}  // namespace own_xml
}  // namespace tolva::platform
