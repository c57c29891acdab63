// XML Schema 1.0.
#include <algorithm>

#include "cli/markup.h"
#include "cli/schemas.h"
#include "cli/text.h"
#include "cli/wording.h"

namespace tolva::cli {
namespace {

class XsdWriter {
 public:
  XsdWriter(DocumentList documents, XsdForm form)
      : documents_(documents), is_lax_(form == XsdForm::kLax) {}

  std::string Write() {
    text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    Open("xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"");
    std::string about;
    for (const Document* const document : documents_) {
      about += (about.empty() ? "" : "; ") + std::string(document->title);
    }
    Annotate(about + ". " +
             (is_lax_
                  ? "What the library reads: children in any order, unknown attributes, numbers "
                    "of any size."
                  : "What the library writes: children in order, numbers that are read as they "
                    "are written."));
    for (const Document* const document : documents_) {
      Line("xs:element name=\"" + document->root().name + "\" type=\"" +
           TypeOf(*document, document->root()) + "\"");
    }
    for (const Document* const document : documents_) {
      for (const auto& element : document->elements) WriteElement(*document, *element);
    }
    WriteSimpleTypes();
    Close("xs:schema");
    return std::move(text_);
  }

 private:
  // ---- elements --------------------------------------------------------------------------------

  void WriteElement(const Document& document, const Element& element) {
    const std::string name = " name=\"" + TypeOf(document, element) + "\"";
    if (element.text.has_value()) {
      WriteTextElement(element, name);
      return;
    }
    const bool is_mixed = is_lax_;
    Open("xs:complexType" + name + (is_mixed ? " mixed=\"true\"" : ""));
    Annotate(Sentence(element.sentence));
    if (!element.children.empty()) WriteChildren(document, element);
    for (const Attribute& attribute : element.attributes) WriteAttribute(attribute);
    if (is_lax_) AllowAnyAttribute();
    Close("xs:complexType");
  }

  void WriteTextElement(const Element& element, const std::string& name) {
    if (!is_lax_) {
      Open("xs:simpleType" + name);
      Annotate(Sentence(element.sentence));
      RestrictText(element);
      Close("xs:simpleType");
      return;
    }
    // A type that has attributes cannot restrict its text at the same time.
    Open("xs:complexType" + name);
    Annotate(Sentence(element.sentence));
    Open("xs:simpleContent");
    Open("xs:extension base=\"" + LaxTypeOfText(element) + "\"");
    AllowAnyAttribute();
    Close("xs:extension");
    Close("xs:simpleContent");
    Close("xs:complexType");
  }

  /// The children in order; or in any order: each at most once, or, if one may be repeated, each
  /// any number of times, around the one that is required.
  void WriteChildren(const Document& document, const Element& element) {
    const bool has_lists = std::ranges::any_of(element.children, [](const Child& child) {
      return child.occurrence == Occurrence::kRepeated;
    });
    if (!is_lax_ || !has_lists) {
      const std::string group = is_lax_ ? "xs:all" : "xs:sequence";
      Open(group);
      for (const Child& child : element.children) {
        std::string occurs;
        if (child.occurrence != Occurrence::kRequired) occurs += " minOccurs=\"0\"";
        if (child.occurrence == Occurrence::kRepeated) occurs += " maxOccurs=\"unbounded\"";
        WriteChild(document, child, occurs);
      }
      Close(group);
      return;
    }
    const auto is_required = [](const Child& child) {
      return child.occurrence == Occurrence::kRequired;
    };
    const auto required = std::ranges::count_if(element.children, is_required);
    if (required != 1) {
      WriteChoice(document, element, nullptr);
      return;
    }
    const Child& one = *std::ranges::find_if(element.children, is_required);
    Open("xs:sequence");
    WriteChoice(document, element, &one);
    WriteChild(document, one, "");
    WriteChoice(document, element, nullptr);
    Close("xs:sequence");
  }

  /// Any number of the children, but for one.
  void WriteChoice(const Document& document, const Element& element, const Child* left_out) {
    Open("xs:choice minOccurs=\"0\" maxOccurs=\"unbounded\"");
    for (const Child& child : element.children) {
      if (&child != left_out) WriteChild(document, child, "");
    }
    Close("xs:choice");
  }

  void WriteChild(const Document& document, const Child& child, const std::string& occurs) {
    const std::string declaration = "xs:element name=\"" + child.name + "\" type=\"" +
                                    TypeOf(document, *child.element) + "\"" + occurs;
    WriteAnnotated(declaration, Sentence(child.sentence));
  }

  // ---- values ----------------------------------------------------------------------------------

  void WriteAttribute(const Attribute& attribute) {
    std::string declaration = "xs:attribute name=\"" + attribute.name + "\"";
    const bool has_own_type = attribute.value.type == Value::Type::kEnum;
    if (!has_own_type) declaration += " type=\"" + TypeOfValue(attribute.value) + "\"";
    if (attribute.occurrence == Occurrence::kRequired) declaration += " use=\"required\"";
    if (attribute.when_absent.has_value()) {
      declaration += " default=\"" + *attribute.when_absent + "\"";
    }
    const std::string sentence = Sentence(attribute.sentence);
    if (!has_own_type) {
      WriteAnnotated(declaration, sentence);
      return;
    }
    Open(declaration);
    Annotate(sentence);
    Open("xs:simpleType");
    Open("xs:restriction base=\"xs:string\"");
    for (const std::string& text : attribute.value.texts) {
      Line("xs:enumeration value=\"" + Escaped(text) + "\"");
    }
    Close("xs:restriction");
    Close("xs:simpleType");
    Close("xs:attribute");
  }

  void RestrictText(const Element& element) {
    const Value& value = *element.text;
    const bool is_required_text = value.type == Value::Type::kText && element.is_text_required;
    Open("xs:restriction base=\"" + TypeOfValue(value) + "\"");
    if (is_required_text) Line("xs:minLength value=\"1\"");
    Close("xs:restriction");
  }

  /// The type of the text of an element in the lax form.
  std::string LaxTypeOfText(const Element& element) {
    const Value& value = *element.text;
    if (value.type == Value::Type::kNumber) {
      return Use(value.takes_leading_digits ? kSomeText : kSomeDigits);
    }
    return element.is_text_required ? Use(kSomeText) : "xs:string";
  }

  std::string TypeOfValue(const Value& value) {
    if (value.type == Value::Type::kText) return "xs:string";
    if (is_lax_) return Use(kDigits);
    if (std::ranges::find(greatest_, value.greatest) == greatest_.end()) {
      greatest_.push_back(value.greatest);
    }
    return NumberType(value.greatest);
  }

  /// A type of strings that the schema has if it is used.
  struct StringType {
    const char* name;
    const char* facet;
  };
  static constexpr StringType kDigits = {"digits", "xs:pattern value=\"[0-9]*\""};
  static constexpr StringType kSomeDigits = {"some-digits", "xs:pattern value=\"[0-9]+\""};
  static constexpr StringType kSomeText = {"some-text", "xs:minLength value=\"1\""};

  const char* Use(const StringType& type) {
    if (std::ranges::find(used_, &type) == used_.end()) used_.push_back(&type);
    return type.name;
  }

  static std::string NumberType(std::uint64_t greatest) {
    return "number-to-" + std::to_string(greatest);
  }

  /// The types that the values named.
  void WriteSimpleTypes() {
    for (const std::uint64_t greatest : greatest_) {
      const bool is_long = greatest > 0xFFFFFFFF;
      Open("xs:simpleType name=\"" + NumberType(greatest) + "\"");
      Open(std::string("xs:restriction base=\"") +
           (is_long ? "xs:unsignedLong" : "xs:unsignedInt") + "\"");
      Line("xs:maxInclusive value=\"" + std::to_string(greatest) + "\"");
      Line("xs:pattern value=\"[0-9]+\"");
      Close("xs:restriction");
      Close("xs:simpleType");
    }
    for (const StringType* const type : used_) {
      Open(std::string("xs:simpleType name=\"") + type->name + "\"");
      Open("xs:restriction base=\"xs:string\"");
      Line(type->facet);
      Close("xs:restriction");
      Close("xs:simpleType");
    }
  }

  // ---- text ------------------------------------------------------------------------------------

  std::string TypeOf(const Document& document, const Element& element) const {
    return SchemaName(documents_, document, element);
  }

  void AllowAnyAttribute() { Line("xs:anyAttribute namespace=\"##any\" processContents=\"skip\""); }

  void WriteAnnotated(const std::string& declaration, const std::string& sentence) {
    if (sentence.empty()) {
      Line(declaration);
      return;
    }
    Open(declaration);
    Annotate(sentence);
    Close(declaration.substr(0, declaration.find(' ')));
  }

  void Annotate(const std::string& sentence) {
    if (sentence.empty()) return;
    Indent();
    text_ += "<xs:annotation><xs:documentation xml:lang=\"en\">" + Escaped(sentence) +
             "</xs:documentation></xs:annotation>\n";
  }

  void Indent() { text_.append(2 * depth_, ' '); }

  void Open(const std::string& tag) {
    Indent();
    text_ += "<" + tag + ">\n";
    ++depth_;
  }

  void Close(const std::string& name) {
    --depth_;
    Indent();
    text_ += "</" + name + ">\n";
  }

  void Line(const std::string& tag) {
    Indent();
    text_ += "<" + tag + "/>\n";
  }

  const DocumentList documents_;
  const bool is_lax_;
  std::string text_;
  std::size_t depth_ = 0;
  std::vector<std::uint64_t> greatest_;  ///< of the number types that are used
  std::vector<const StringType*> used_;
};

}  // namespace

std::string XsdOf(DocumentList documents, XsdForm form) {
  return XsdWriter(documents, form).Write();
}

std::string SchemaName(DocumentList documents, const Document& document, const Element& element) {
  // In a schema of several documents, a name without the document's would not be unique.
  return documents.size() == 1 ? element.id : std::string(document.name) + "." + element.id;
}

}  // namespace tolva::cli
