// new: a document to start from.
#include "cli/new.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "cli/markup.h"
#include "cli/places.h"
#include "cli/session.h"
#include "cli/text.h"
#include "cli/verb.h"
#include "cli/verbs.h"
#include "cli/wording.h"

namespace tolva::cli {
namespace {

class DocumentWriter {
 public:
  explicit DocumentWriter(NewContent content) : is_full_(content == NewContent::kEverything) {}

  std::string Write(const Document& document) {
    text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    WriteElement(document.root(), document.root().name, nullptr, is_full_);
    return std::move(text_);
  }

  std::string Write(const Child& child) {
    WriteElement(*child.element, child.name, &child, is_full_);
    text_.pop_back();  // the line feed
    return std::move(text_);
  }

 private:
  /// `is_full`: with everything that is optional.
  void WriteElement(const Element& element, const std::string& name, const Child* child,
                    bool is_full) {
    if (is_full_) WriteComment(element, child);
    Indent();
    text_ += "<" + name;
    if (element.text.has_value()) {
      text_ +=
          ">" + (element.text->type == Value::Type::kNumber ? "0" : name) + "</" + name + ">\n";
      return;
    }
    for (const Attribute& attribute : element.attributes) {
      if (!is_full && attribute.occurrence == Occurrence::kOptional &&
          !attribute.when_absent.has_value()) {
        continue;
      }
      text_ += " " + attribute.name + "=\"" + Escaped(SampleOf(attribute)) + "\"";
    }
    if (element.children.empty()) {
      text_ += "/>\n";
      return;
    }
    open_.push_back(&element);
    const std::size_t start = text_.size();
    text_ += ">\n";
    for (const Child& one : element.children) {
      const bool is_within_itself = std::ranges::find(open_, one.element) != open_.end();
      const bool is_wanted = one.occurrence == Occurrence::kRequired || one.is_always_written;
      if (is_full || is_wanted) {
        WriteElement(*one.element, one.name, &one, is_full && !is_within_itself);
      }
    }
    open_.pop_back();
    if (text_.size() == start + 2) {
      text_.pop_back();
      text_ += "</" + name + ">\n";
      return;
    }
    Indent();
    text_ += "</" + name + ">\n";
  }

  static std::string SampleOf(const Attribute& attribute) {
    if (attribute.when_absent.has_value()) return *attribute.when_absent;
    switch (attribute.value.type) {
      case Value::Type::kNumber:
        return "0";
      case Value::Type::kEnum:
        return attribute.value.texts.front();
      default:
        return attribute.name;
    }
  }

  // ---- comments --------------------------------------------------------------------------------

  /// What the element is, and, where its kind occurs first, what its attributes may be.
  void WriteComment(const Element& element, const Child* child) {
    const std::string_view sentence =
        child != nullptr && !child->sentence.empty() ? child->sentence : element.sentence;
    std::string about = Sentence(sentence);
    const bool is_repeated = child != nullptr && child->occurrence == Occurrence::kRepeated;
    if (is_repeated) about += " Any number of these.";
    if (child != nullptr && child->occurrence == Occurrence::kOptional) about += " Optional.";
    if (element.text.has_value()) about += " " + TextSentence(element);
    std::vector<std::string> lines = Wrap(about, kWidth - Column());
    if (std::ranges::find(known_, &element) == known_.end()) {
      known_.push_back(&element);
      AddAttributes(element, lines);
    }
    if (lines.empty()) return;
    Indent();
    text_ += "<!-- " + lines.front();
    for (std::size_t i = 1; i < lines.size(); ++i) {
      text_ += "\n";
      Indent();
      text_ += "     " + lines[i];
    }
    text_ += " -->\n";
  }

  void AddAttributes(const Element& element, std::vector<std::string>& lines) const {
    std::size_t width = 0;
    for (const Attribute& attribute : element.attributes) {
      width = std::max(width, attribute.name.size());
    }
    for (const Attribute& attribute : element.attributes) {
      std::string about = OccurrenceName(attribute.occurrence) + " " + TypeName(attribute.value);
      if (attribute.value.type == Value::Type::kEnum) {
        about = OccurrenceName(attribute.occurrence) + ", " + Enumerate(attribute.value.texts);
      }
      if (!attribute.sentence.empty()) about += ": " + std::string(attribute.sentence);
      const std::size_t indent = width + 4;
      const std::vector<std::string> wrapped =
          Wrap(about, std::max<std::size_t>(kWidth - std::min(kWidth, Column() + indent), 30));
      for (std::size_t i = 0; i < wrapped.size(); ++i) {
        lines.push_back("  " + Padded(i == 0 ? attribute.name : "", width + 2) + wrapped[i]);
      }
    }
  }

  /// Where the text of a comment begins.
  std::size_t Column() const { return 2 * open_.size() + 5; }

  void Indent() { text_.append(2 * open_.size(), ' '); }

  static constexpr std::size_t kWidth = 100;

  const bool is_full_;
  std::string text_;
  std::vector<const Element*> open_;
  std::vector<const Element*> known_;
};

struct Options {
  std::string document;
  bool is_full = false;
  Destination destination;
};

}  // namespace

std::string NewDocument(const Document& document, NewContent content) {
  return DocumentWriter(content).Write(document);
}

std::string NewElement(const Child& child) {
  return DocumentWriter(NewContent::kRequired).Write(child);
}

void AddNew(CLI::App& tool, Session& session) {
  Verb verb(
      tool, "new",
      "Makes a document to start from.\n\n"
      "The document has what the library requires. Strings hold their own names, ENUMs their first "
      "text, and numbers 0: replace them.");
  const auto options = std::make_shared<Options>();
  verb.Add("document", "DOCUMENT", options->document, "which document to make.").Require();
  verb.AddFlag("--full", options->is_full,
               "has everything once, with comments that say what may stand there.");
  AddDestination(verb, options->destination);
  AddCommonOptions(verb, session);
  verb.SetExamples(
      "tolva new policy -o policy.xml\n"
      "tolva new message-catalogue --full");
  verb.SetAction(session, [&session, options] {
    const NewContent content = options->is_full ? NewContent::kEverything : NewContent::kRequired;
    Deliver(session, options->destination, NewDocument(DocumentOf(options->document), content));
    return kFine;
  });
}

}  // namespace tolva::cli
