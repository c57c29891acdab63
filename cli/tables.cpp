#include "cli/tables.h"

#include <algorithm>
#include <limits>
#include <map>

#include <tolva/support/documents.h>

#include "exports/documents.h"

namespace tolva::cli {
namespace {

using node::ValueType;

/// The interface of each element's class.
struct Interface {
  const node::Schema* schema;
  std::string_view name;
};

const Interface kInterfaces[] = {
#define TOLVA_FACTORY(space, name, node, type) {&space::node::kSchema, #space "::" #type},
#include "exports/factories.def"
#undef TOLVA_FACTORY
    // These exist within their parents alone.
    {&TolvaInterface::CILPInLineProxy::kSchema, "TolvaInterface::IILPInLineProxy"},
    {&CpsAnalysisDetailsConf::CcustomDisplayText::kSchema,
     "CpsAnalysisDetailsConf::IcustomDisplayText"},
};

/// The sentences of an element.
const ClassSentence& SentencesOf(const node::Schema& schema) {
  static constexpr ClassSentence kNone = {};
  const auto* const found = std::ranges::find(kInterfaces, &schema, &Interface::schema);
  const ClassSentence* const sentences =
      found == std::end(kInterfaces) ? nullptr : FindClass(found->name);
  return sentences == nullptr ? kNone : *sentences;
}

std::string_view SentenceOf(const node::Schema& schema, std::string_view row) {
  const RowSentence* const found = FindRow(SentencesOf(schema), row);
  return found == nullptr ? std::string_view() : found->text;
}

Value ValueOf(ValueType type, const node::EnumTexts& enum_texts, node::Numbers numbers) {
  Value value;
  switch (type) {
    case ValueType::kString:
      break;
    case ValueType::kNumber:
      value.type = Value::Type::kNumber;
      value.greatest = numbers == node::Numbers::kSigned
                           ? static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())
                           : std::numeric_limits<std::uint32_t>::max();
      break;
    case ValueType::kLongNumber:
      value.type = Value::Type::kNumber;
      value.greatest = std::numeric_limits<std::uint64_t>::max();
      break;
    case ValueType::kEnum:
      value.type = Value::Type::kEnum;
      for (const auto& text : enum_texts.texts) value.texts.emplace_back(text.narrow());
      break;
  }
  return value;
}

std::optional<std::string> WhenAbsent(const node::Attribute& row, const Value& value) {
  if (row.is_one_when_absent) return "1";
  if (row.is_present_when_clear) return "0";
  if (!row.may_be_absent) return std::nullopt;
  switch (value.type) {
    case Value::Type::kNumber:
      return "0";
    case Value::Type::kEnum:
      return value.texts.front();
    default:
      return "";
  }
}

Attribute AttributeOf(const node::Schema& schema, const node::Attribute& row) {
  const std::string name(row.name.narrow());
  Value value = ValueOf(row.type, row.enum_texts, schema.dialect.numbers);
  const bool is_required = !row.is_optional && !row.may_be_absent;
  std::optional<std::string> when_absent = WhenAbsent(row, value);
  return {.name = name,
          .value = std::move(value),
          .occurrence = is_required ? Occurrence::kRequired : Occurrence::kOptional,
          .when_absent = std::move(when_absent),
          .is_secret = row.is_secret,
          .names_item = row.names_item,
          .sentence = SentenceOf(schema, name),
          .row = &row};
}

Occurrence OccurrenceOf(const node::Child& row) {
  switch (row.occurrence) {
    case node::Occurrence::kRepeated:
      return Occurrence::kRepeated;
    case node::Occurrence::kOptional:
      return Occurrence::kOptional;
    default:
      return row.may_be_absent ? Occurrence::kOptional : Occurrence::kRequired;
  }
}

/// Makes the elements of one document.
class Collector {
 public:
  explicit Collector(Document& document) : document_(document) {}

  const Element* Collect(const node::Schema& schema) {
    const auto known = elements_.find(&schema);
    if (known != elements_.end()) return known->second;
    auto owned = std::make_unique<Element>();
    Element& element = *owned;
    elements_[&schema] = &element;
    document_.elements.push_back(std::move(owned));
    element.name = element.id = schema.element.narrow();
    element.schema = &schema;
    element.sentence = SentencesOf(schema).text;
    for (const node::Attribute& row : schema.attributes) {
      element.attributes.push_back(AttributeOf(schema, row));
    }
    if (schema.content.locate != nullptr) AddText(element);
    for (const node::Child& row : schema.children) {
      const std::string name(row.name().narrow());
      element.children.push_back({.name = name,
                                  .occurrence = OccurrenceOf(row),
                                  .is_always_written = row.may_be_absent,
                                  .names_item = row.names_item,
                                  .sentence = SentenceOf(schema, name),
                                  .element = Collect(*row.schema),
                                  .row = &row});
      parents_.try_emplace(element.children.back().element, &element);
    }
    return &element;
  }

  /// Gives elements that share their name an id with the parent's name.
  void MakeIdsUnique() {
    std::map<std::string, int> uses;
    for (const auto& [schema, element] : elements_) ++uses[element->name];
    for (const auto& [schema, element] : elements_) {
      if (uses[element->name] > 1) {
        element->id = parents_.at(element)->name + "." + element->name;
      }
    }
  }

 private:
  static void AddText(Element& element) {
    const node::Content& content = element.schema->content;
    element.text = ValueOf(content.type, {}, element.schema->dialect.numbers);
    element.text->takes_leading_digits = content.takes_leading_digits;
    // An override of this class reads an element without a text, too.
    const bool reads_nothing =
        element.schema == &CpsAnalysisDetailsConf::CcustomDisplayText::kSchema;
    element.text->may_be_empty = reads_nothing;
    element.is_text_required = !content.is_optional && !reads_nothing;
  }

  Document& document_;
  std::map<const node::Schema*, Element*> elements_;
  std::map<const Element*, const Element*> parents_;  ///< the first one that each was found in
};

struct Root {
  std::string_view title;
  std::string_view space;
  const node::Schema* schema;
};

/// In the order of support::kDocuments.
constexpr Root kRoots[] = {
    {"Active Directory settings", "ClientConfig", &ClientConfig::CActiveDirectory::kSchema},
    {"Endpoint data-loss-prevention policy", "TolvaInterface",
     &TolvaInterface::CILPClientConfiguration::kSchema},
    {"NG client configuration", "NGConfInterface",
     &NGConfInterface::CINGClientConfiguration::kSchema},
    {"Global client configuration", "GlobalConfInterface",
     &GlobalConfInterface::CIGLOBALClientConfiguration::kSchema},
    {"Proxy client configuration", "ProxyClientConfig",
     &ProxyClientConfig::CIPXYClientConfiguration::kSchema},
    {"CI client configuration", "CIConfInterface",
     &CIConfInterface::CCIClientConfiguration::kSchema},
    {"Remote filtering client configuration", "RFConfInterface",
     &RFConfInterface::CRFClientConfiguration::kSchema},
    {"Analysis details of a violation", "CpsAnalysisDetailsConf",
     &CpsAnalysisDetailsConf::CanalysisDetails::kSchema},
    {"Message catalogue", "MessageConf", &MessageConf::CEndPointMessage::kSchema},
    {"Installation settings", "IpbtConf", &IpbtConf::CInstallConfig::kSchema},
    {"Patch history", "PatchFileHistory", &PatchFileHistory::CEndpointFilePatches::kSchema},
};
static_assert(std::size(kRoots) == support::kDocuments.size());

std::vector<Document> MakeDocuments() {
  std::vector<Document> documents;
  for (std::size_t i = 0; i < std::size(kRoots); ++i) {
    const support::DocumentKind& kind = *support::kDocuments[i];
    documents.push_back({kind.name, kRoots[i].title, kRoots[i].space, kind.make, {}});
    Collector collector(documents.back());
    collector.Collect(*kRoots[i].schema);
    collector.MakeIdsUnique();
  }
  return documents;
}

}  // namespace

const Attribute* Element::FindAttribute(std::string_view attribute) const {
  const auto found = std::ranges::find(attributes, attribute, &Attribute::name);
  return found == attributes.end() ? nullptr : &*found;
}

const Child* Element::FindChild(std::string_view child) const {
  const auto found = std::ranges::find(children, child, &Child::name);
  return found == children.end() ? nullptr : &*found;
}

std::span<const Document> Documents() {
  static const std::vector<Document> documents = MakeDocuments();
  return documents;
}

const Document* FindDocument(std::string_view name) {
  const auto all = Documents();
  const auto found = std::ranges::find_if(all, [&](const Document& document) {
    return document.name == name || document.root().name == name;
  });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace tolva::cli
