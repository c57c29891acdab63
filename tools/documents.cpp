// Describes every document by its tables, as Markdown: docs/documents.md.
#include <iostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "exports/documents.h"

namespace {

using namespace tolva::node;

struct Document {
  const char* title;
  const char* space;  ///< the namespace of its interfaces
  const char* example;
  const Schema& root;
};

const Document kDocuments[] = {
    {"Active Directory settings", "ClientConfig", "active-directory.xml",
     ClientConfig::CActiveDirectory::kSchema},
    {"Endpoint data-loss-prevention policy", "TolvaInterface", "policy.xml",
     TolvaInterface::CILPClientConfiguration::kSchema},
    {"NG client configuration", "NGConfInterface", "ng.xml",
     NGConfInterface::CINGClientConfiguration::kSchema},
    {"Global client configuration", "GlobalConfInterface", "global.xml",
     GlobalConfInterface::CIGLOBALClientConfiguration::kSchema},
    {"Proxy client configuration", "ProxyClientConfig", "proxy.xml",
     ProxyClientConfig::CIPXYClientConfiguration::kSchema},
    {"CI client configuration", "CIConfInterface", "ci.xml",
     CIConfInterface::CCIClientConfiguration::kSchema},
    {"Remote filtering client configuration", "RFConfInterface", "remote-filtering.xml",
     RFConfInterface::CRFClientConfiguration::kSchema},
    {"Analysis details", "CpsAnalysisDetailsConf", "analysis-details.xml",
     CpsAnalysisDetailsConf::CanalysisDetails::kSchema},
    {"Message catalogue", "MessageConf", "message-catalogue.xml",
     MessageConf::CEndPointMessage::kSchema},
    {"Installation settings", "IpbtConf", "install-config.xml", IpbtConf::CInstallConfig::kSchema},
    {"Patch history", "PatchFileHistory", "patch-history.xml",
     PatchFileHistory::CEndpointFilePatches::kSchema},
};

/// Names and ENUM texts are ASCII.
std::string Narrow(std::wstring_view text) {
  std::string narrow;
  for (const wchar_t c : text) narrow += static_cast<char>(c);
  return narrow;
}

std::string Code(std::wstring_view text) { return "`" + Narrow(text) + "`"; }

std::string TypeOf(ValueType type, const EnumTexts& texts, Numbers numbers) {
  switch (type) {
    case ValueType::kString:
      return "string";
    case ValueType::kLongNumber:
      return "64-bit number";
    case ValueType::kNumber:
      return numbers == Numbers::kSigned ? "signed number" : "number";
    case ValueType::kEnum:
      break;
  }
  std::string all;
  for (const Name& text : texts.texts) all += (all.empty() ? "" : ", ") + Code(text);
  return all;
}

std::string OccurrenceOf(const Attribute& row) {
  if (row.is_one_when_absent) return "absent reads as 1";
  if (row.is_present_when_clear) return "absent reads as 0";
  if (row.may_be_absent) return "always written, may be absent";
  return row.is_optional ? "optional" : "required";
}

std::string OccurrenceOf(const Child& row) {
  if (row.may_be_absent) return "always written, may be absent";
  switch (row.occurrence) {
    case Occurrence::kRequired:
      return "required";
    case Occurrence::kOptional:
      return "optional";
    default:
      return "any number";
  }
}

void Describe(const Schema& table) {
  std::cout << "\n### " << Code(table.element) << "\n";
  if (table.attributes.empty() && table.children.empty() && table.content.locate == nullptr) {
    std::cout << "\nHolds nothing.\n";
  }
  if (table.content.locate != nullptr) {
    std::cout << "\nText: " << TypeOf(table.content.type, {}, table.dialect.numbers)
              << (table.content.is_optional ? ", optional" : "")
              << (table.content.takes_leading_digits ? ", the digits in front count" : "") << ".\n";
  }
  if (!table.attributes.empty()) {
    std::cout << "\n| Attribute | | Type |\n| --- | --- | --- |\n";
    for (const Attribute& row : table.attributes) {
      std::cout << "| " << Code(row.name) << " | " << OccurrenceOf(row) << " | "
                << TypeOf(row.type, row.enum_texts, table.dialect.numbers) << " |\n";
    }
  }
  if (!table.children.empty()) {
    std::cout << "\n| Child | |\n| --- | --- |\n";
    for (const Child& row : table.children) {
      std::cout << "| " << Code(row.name()) << " | " << OccurrenceOf(row) << " |\n";
    }
  }
}

/// The tables below one, itself included, each once, parents first.
void Collect(const Schema& table, std::set<const Schema*>& known,
             std::vector<const Schema*>& tables) {
  if (!known.insert(&table).second) return;
  tables.push_back(&table);
  for (const Child& row : table.children) Collect(*row.schema, known, tables);
}

}  // namespace

int main() {
  std::cout << "# Documents\n\n"
               "Made from the library's tables: `make documents` after a change. Attributes and\n"
               "children stand in the order in which they are written; children are read in any\n"
               "order. ENUM texts stand for 0, 1, 2 and so on. Signed numbers are written with a\n"
               "sign from 2147483648 up, and cannot be read back then.\n";
  for (const Document& document : kDocuments) {
    std::set<const Schema*> known;
    std::vector<const Schema*> tables;
    Collect(document.root, known, tables);
    std::cout << "\n## " << document.title << "\n\nRoot " << Code(document.root.element)
              << ", namespace `" << document.space << "`, " << tables.size()
              << " elements. Example: [" << document.example << "](../examples/documents/"
              << document.example << ").\n";
    for (const Schema* const table : tables) Describe(*table);
  }
}
