// Writes each piece of the document as the library does as soon as it has been read, and compares
// what is written with the document's bytes. What the library would write in another place makes a
// difference at once.
#include "cli/form_check.h"

#include <algorithm>
#include <optional>

#include "cli/byte_form.h"
#include "cli/session.h"
#include "counted_stream.h"
#include "node/numbers.h"
#include "platform/platform.h"
#include "platform/utf.h"
#include "platform/xml/parser.h"

namespace tolva::cli {
namespace {

using own_xml::Parser;
using own_xml::ReadResult;
using own_xml::ValueKind;

/// Compares what is written with what another stream gives.
class ComparingStream final : public CountedStream {
 public:
  ComparingStream(ComPtr<ISequentialStream> expected, const ByteForm& form)
      : expected_(std::move(expected)), encoder_(form) {}

  HRESULT Read(void* /*buffer*/, ULONG /*size*/, ULONG* /*count*/) noexcept override {
    return E_NOTIMPL;
  }

  HRESULT Write(const void* buffer, ULONG size, ULONG* written) noexcept override try {
    *written = size;
    const std::string bytes = encoder_.Encode({static_cast<const char*>(buffer), size});
    if (is_equal_) is_equal_ = ReadExpected(bytes.size()) && block_ == bytes;
    return S_OK;
  } catch (const std::bad_alloc&) {
    *written = 0;
    return E_OUTOFMEMORY;
  }

  bool is_equal() const { return is_equal_; }

  /// Everything has been written: whether nothing is missing.
  bool IsWhole() { return is_equal_ && !ReadExpected(1) && block_.empty(); }

 private:
  /// Whether there are so many bytes.
  bool ReadExpected(std::size_t size) {
    block_.resize(size);
    ULONG count = 0;
    const HRESULT result = expected_->Read(block_.data(), static_cast<ULONG>(size), &count);
    block_.resize(count);
    return SUCCEEDED(result) && count == size;
  }

  const ComPtr<ISequentialStream> expected_;
  FormEncoder encoder_;
  std::string block_;
  bool is_equal_ = true;
};

class FormCheck {
 public:
  FormCheck(const Reopen& reopen, const ByteForm& form)
      : comparison_(new ComparingStream(reopen(), form)) {
    owner_.Attach(comparison_);
    writer_.SetOutput(comparison_);
    parser_.SetInput(reopen().Get(), false);
  }
  FormCheck(const FormCheck&) = delete;
  FormCheck& operator=(const FormCheck&) = delete;
  ~FormCheck() { writer_.SetOutput(nullptr); }

  bool Check(const Document& document) {
    Write(writer_.WriteStartDocument());
    while (parser_.Read() == ReadResult::kNode && parser_.type() != XmlNodeType_Element) {
    }
    if (parser_.type() != XmlNodeType_Element || !CheckElement(document.root())) return false;
    while (parser_.Read() == ReadResult::kNode) {
    }
    Write(writer_.WriteEndDocument());
    Write(writer_.Flush());
    return comparison_->IsWhole();
  }

 private:
  static void Write(HRESULT result) {
    if (FAILED(result)) throw Trouble("the library cannot write this: " + ReasonOf(result));
  }

  /// The functions below are called on a start tag and write its element. They return false if the
  /// form is another one.
  bool CheckElement(const Element& element) {
    if (element.text.has_value()) return CheckText(element);
    const node::Schema& schema = *element.schema;
    const bool is_empty = parser_.is_empty_element();
    Write(writer_.WriteStartElement(schema.element));
    if (!CheckAttributes(element)) return false;
    if (!CheckChildren(element, is_empty)) return false;
    const bool has_end_tag = !schema.children.empty() && !schema.closes_as_empty_tag;
    Write(has_end_tag ? writer_.WriteFullEnd() : writer_.WriteEnd());
    Write(writer_.WriteLineFeed());
    return comparison_->is_equal();
  }

  bool CheckAttributes(const Element& element) {
    const node::Schema& schema = *element.schema;
    parser_.FindAttributes(schema.attribute_names);
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
      const Attribute& attribute = element.attributes[i];
      const own_xml::Attribute* const found = parser_.FoundAttribute(i);
      if (found == nullptr) {
        // The library writes what the absence stands for.
        if (attribute.when_absent.has_value()) return false;
        continue;
      }
      const std::string_view text =
          found->plain ? found->value : Decode(found->value, ValueKind::kAttribute);
      WriteAttribute(attribute, schema.dialect.numbers, text);
    }
    return true;
  }

  void WriteAttribute(const Attribute& attribute, node::Numbers numbers, std::string_view text) {
    const platform::Name& name = attribute.row->name;
    switch (attribute.value.type) {
      case Value::Type::kText:
        AssignWide(text, wide_);
        Write(writer_.WriteAttribute(name, wide_));
        break;
      case Value::Type::kEnum:
        Write(writer_.WritePlainAttribute(name, text));
        break;
      case Value::Type::kNumber:
        Write(writer_.WritePlainAttribute(name, NumberOf(attribute.value, numbers, text)));
        break;
    }
  }

  /// A number as the library reads and writes it.
  std::string_view NumberOf(const Value& value, node::Numbers numbers, std::string_view text) {
    if (!value.IsLong()) {
      return node::FormatNumber(node::ParseLeadingDigits(text, numbers), numbers, number_);
    }
    std::uint64_t number = 0;
    node::ParseLongNumber(text, &number);
    return node::FormatLongNumber(number, number_);
  }

  bool CheckChildren(const Element& element, bool is_empty) {
    std::size_t next = 0;  // no child of an earlier row may follow
    while (!is_empty) {
      if (parser_.ReadTag() != ReadResult::kNode) return false;
      if (parser_.type() == XmlNodeType_EndElement) break;
      if (parser_.type() != XmlNodeType_Element) return false;
      const std::string_view name = parser_.name().text;
      const auto found = std::ranges::find(element.children, name, &Child::name);
      const auto index = static_cast<std::size_t>(found - element.children.begin());
      if (index == element.children.size() || SkipsWritten(element, next, index)) return false;
      next = index + (found->occurrence == Occurrence::kRepeated ? 0 : 1);
      if (!CheckElement(*found->element)) return false;
    }
    return !SkipsWritten(element, next, element.children.size());
  }

  /// Whether the rows from `next` to `index` are not in order, or have a child that the library
  /// writes even if it is absent.
  static bool SkipsWritten(const Element& element, std::size_t next, std::size_t index) {
    if (index < next) return true;
    for (std::size_t i = next; i < index; ++i) {
      if (element.children[i].is_always_written) return true;
    }
    return false;
  }

  bool CheckText(const Element& element) {
    const node::Schema& schema = *element.schema;
    if (parser_.is_empty_element()) return WriteNoText(element);
    if (parser_.Read() != ReadResult::kNode) return false;
    const XmlNodeType type = parser_.type();
    if (type == XmlNodeType_EndElement) return WriteNoText(element);
    if (type != XmlNodeType_Text) return false;
    const std::string_view text =
        parser_.value_is_plain() ? parser_.value() : Decode(parser_.value(), ValueKind::kText);
    if (element.text->type == Value::Type::kNumber) {
      const std::string_view number = NumberOf(*element.text, schema.dialect.numbers, text);
      Write(writer_.WritePlainElement(schema.element, number));
    } else {
      AssignWide(text, wide_);
      Write(writer_.WriteElement(schema.element, wide_));
    }
    return parser_.Read() == ReadResult::kNode && parser_.type() == XmlNodeType_EndElement &&
           comparison_->is_equal();
  }

  bool WriteNoText(const Element& element) {
    const node::Schema& schema = *element.schema;
    Write(schema.content.is_optional ? writer_.WriteEmptyElement(schema.element)
                                     : writer_.WriteElement(schema.element, {}));
    return comparison_->is_equal();
  }

  /// As AssignWide takes it.
  std::string_view Decode(std::string_view source, ValueKind kind) {
    decoded_.Clear();
    own_xml::AppendValue(source, kind, decoded_);
    std::fill_n(decoded_.Room(kReadAhead), kReadAhead, '\0');
    return {decoded_.data(), decoded_.size()};
  }

  ComparingStream* const comparison_;
  ComPtr<ISequentialStream> owner_;
  XmlWriter writer_;
  Parser parser_;
  Buffer<char> decoded_;
  std::wstring wide_;
  node::NumberText number_ = {};
};

}  // namespace

bool HasWrittenForm(const Document& document, const Reopen& reopen) {
  const ByteForm form = FormOf(*reopen().Get());
  return FormCheck(reopen, form).Check(document);
}

}  // namespace tolva::cli
