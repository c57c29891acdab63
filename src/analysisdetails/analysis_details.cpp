#include "analysisdetails/analysis_details.h"

#include <cwchar>

#include "xml/reader.h"

namespace CpsAnalysisDetailsConf {
namespace {

constexpr const wchar_t* kAddressTypes[] = {L"EmailAddress", L"Other"};
constexpr const wchar_t* kContentTypes[] = {L"Subject", L"Attachment", L"Other"};

}  // namespace

constinit const Schema Cname::kSchema = {
    .element = L"name",
    .dialect = kDialect,
    .content = TextOf<&Cname::content_>(),
};

constinit const Schema CpolicyID::kSchema = {
    .element = L"policyID",
    .dialect = kDialect,
    .content = TextOf<&CpolicyID::content_>(),
};

constinit const Schema Cseverity::kSchema = {
    .element = L"severity",
    .dialect = kDialect,
    .content = TextOf<&Cseverity::content_>(),
};

constinit const Schema CnumOfMatches::kSchema = {
    .element = L"numOfMatches",
    .dialect = kDialect,
    .content = TextOf<&CnumOfMatches::content_>(),
};

constinit const Schema Cvalue::kSchema = {
    .element = L"value",
    .dialect = kDialect,
    .content = TextOf<&Cvalue::content_>(),
};

constinit const Schema Ccount::kSchema = {
    .element = L"count",
    .dialect = kDialect,
    .content = TextOf<&Ccount::content_>().LeadingDigits(),
};

constinit const Schema Clocation::kSchema = {
    .element = L"location",
    .dialect = kDialect,
    .content = TextOf<&Clocation::content_>(),
};

constinit const Schema Ccontext::kSchema = {
    .element = L"context",
    .dialect = kDialect,
    .content = TextOf<&Ccontext::content_>(),
};

constinit const Schema CclassifierType::kSchema = {
    .element = L"classifierType",
    .dialect = kDialect,
    .content = TextOf<&CclassifierType::content_>(),
};

constinit const Child CdetectedValue::kChildren[] = {
    Elem<&CdetectedValue::value_>(L"value"),
    Elem<&CdetectedValue::count_>(L"count").MissedFirst(),
    Elem<&CdetectedValue::location_>(L"location"),
    Elem<&CdetectedValue::context_>(L"context"),
    Elem<&CdetectedValue::classifierType_>(L"classifierType"),
};
constinit const Schema CdetectedValue::kSchema = {
    .element = L"detectedValue",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Child CdetectedValues::kChildren[] = {
    Elem<&CdetectedValues::detectedValues_>(L"detectedValue"),
};
constinit const Schema CdetectedValues::kSchema = {
    .element = L"detectedValues",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Schema CcustomDisplayText::kSchema = {
    .element = L"customDisplayText",
    .dialect = kDialect,
    .content = TextOf<&CcustomDisplayText::content_>(),
};

constinit const Child Cviolation::kChildren[] = {
    Elem<&Cviolation::name_>(L"name"),
    Elem<&Cviolation::policyID_>(L"policyID"),
    Elem<&Cviolation::severity_>(L"severity"),
    Elem<&Cviolation::numOfMatches_>(L"numOfMatches"),
    Elem<&Cviolation::detectedValues_>(L"detectedValues"),
    Elem<&Cviolation::customDisplayText_>(L"customDisplayText").MayBeMissing(),
};
constinit const Schema Cviolation::kSchema = {
    .element = L"violation",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute Cviolations::kAttributes[] = {
    Attr<&Cviolations::maxMatches_>(L"maxMatches"),
};
constinit const Child Cviolations::kChildren[] = {
    Elem<&Cviolations::violations_>(L"violation"),
};
constinit const Schema Cviolations::kSchema = {
    .element = L"violations",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute Caddress::kAttributes[] = {
    Attr<&Caddress::type_>(L"type", {kAddressTypes}),
    Attr<&Caddress::value_>(L"value"),
};
constinit const Schema Caddress::kSchema = {
    .element = L"address",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child Caddresses::kChildren[] = {
    Elem<&Caddresses::addresses_>(L"address"),
};
constinit const Schema Caddresses::kSchema = {
    .element = L"addresses",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Child Cdestinations::kChildren[] = {
    Elem<&Cdestinations::addresses_>(L"addresses"),
};
constinit const Schema Cdestinations::kSchema = {
    .element = L"destinations",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CextractedContent::kAttributes[] = {
    Attr<&CextractedContent::type_>(L"type", {kContentTypes}),
    Attr<&CextractedContent::value_>(L"value"),
};
constinit const Schema CextractedContent::kSchema = {
    .element = L"extractedContent",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CextractedContents::kChildren[] = {
    Elem<&CextractedContents::extractedContents_>(L"extractedContent"),
};
constinit const Schema CextractedContents::kSchema = {
    .element = L"extractedContents",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Child CadditionalData::kChildren[] = {
    Elem<&CadditionalData::destinations_>(L"destinations"),
    Elem<&CadditionalData::extractedContents_>(L"extractedContents"),
};
constinit const Schema CadditionalData::kSchema = {
    .element = L"additionalData",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CanalysisDetails::kAttributes[] = {
    Attr<&CanalysisDetails::transactionID_>(L"transactionID"),
    Attr<&CanalysisDetails::version_>(L"version"),
};
constinit const Child CanalysisDetails::kChildren[] = {
    Elem<&CanalysisDetails::violations_>(L"violations"),
    Elem<&CanalysisDetails::additionalData_>(L"additionalData"),
};
constinit const Schema CanalysisDetails::kSchema = {
    .element = L"analysisDetails",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

void Caddress::Clear() {
  const DWORD type = type_;
  Node::Clear();
  type_ = type;
}

void CextractedContent::Clear() {
  const DWORD type = type_;
  Node::Clear();
  type_ = type;
}

ConfigResult Cviolation::SetCustomDisplayText(const IcustomDisplayText* child) {
  if (child == nullptr) return tolva::kFailed;
  return customDisplayText_.SetContent(child->GetContent());
}

ConfigResult CcustomDisplayText::WriteToXMLMgr(IXMLLiteManager* manager, int /*reserved*/,
                                               int /*position*/) const {
  return WriteNode(kSchema, *this, manager);
}

ConfigResult CcustomDisplayText::ReadFromXMLMgr(IXMLLiteManager* manager, int /*reserved*/) {
  if (manager == nullptr) {
    Report(kDialect.null_reader);
    return tolva::kFailed;
  }
  auto* const reader = tolva::xml::AsReader(manager);
  if (reader == nullptr) return tolva::kFailed;
  const wchar_t* const name = reader->GetLocalName();
  if (name == nullptr || std::wcscmp(name, kSchema.element) != 0) {
    return tolva::kInvalidArgument;
  }
  const wchar_t* const text = reader->GetText();
  if (text != nullptr) {
    content_ = text;
  } else {
    ReportElement(kReadStringContent, kSchema.element);
  }
  reader->FinishElement();
  return tolva::kSuccess;
}

}  // namespace CpsAnalysisDetailsConf
