#include "analysisdetails/analysis_details.h"

#include "platform/utf.h"
#include "xml/reader.h"

namespace CpsAnalysisDetailsConf {
namespace {

constexpr Name kAddressTypes[] = {L"EmailAddress", L"Other"};
constexpr Name kContentTypes[] = {L"Subject", L"Attachment", L"Other"};

}  // namespace

constinit const Schema Cname::kSchema = Checked({
    .element = L"name",
    .dialect = kDialect,
    .content = TextOf<&Cname::content_>(),
});

constinit const Schema CpolicyID::kSchema = Checked({
    .element = L"policyID",
    .dialect = kDialect,
    .content = TextOf<&CpolicyID::content_>(),
});

constinit const Schema Cseverity::kSchema = Checked({
    .element = L"severity",
    .dialect = kDialect,
    .content = TextOf<&Cseverity::content_>(),
});

constinit const Schema CnumOfMatches::kSchema = Checked({
    .element = L"numOfMatches",
    .dialect = kDialect,
    .content = TextOf<&CnumOfMatches::content_>(),
});

constinit const Schema Cvalue::kSchema = Checked({
    .element = L"value",
    .dialect = kDialect,
    .content = TextOf<&Cvalue::content_>(),
});

constinit const Schema Ccount::kSchema = Checked({
    .element = L"count",
    .dialect = kDialect,
    .content = TextOf<&Ccount::content_>().LeadingDigits(),
});

constinit const Schema Clocation::kSchema = Checked({
    .element = L"location",
    .dialect = kDialect,
    .content = TextOf<&Clocation::content_>(),
});

constinit const Schema Ccontext::kSchema = Checked({
    .element = L"context",
    .dialect = kDialect,
    .content = TextOf<&Ccontext::content_>(),
});

constinit const Schema CclassifierType::kSchema = Checked({
    .element = L"classifierType",
    .dialect = kDialect,
    .content = TextOf<&CclassifierType::content_>(),
});

constexpr Child kDetectedValueChildren[] = {
    Elem<&CdetectedValue::value_>(L"value").NamesItem(),
    Elem<&CdetectedValue::count_>(L"count").AbsenceReportedFirst(),
    Elem<&CdetectedValue::location_>(L"location"),
    Elem<&CdetectedValue::context_>(L"context"),
    Elem<&CdetectedValue::classifierType_>(L"classifierType"),
};
constinit const Schema CdetectedValue::kSchema = Checked({
    .element = L"detectedValue",
    .dialect = kDialect,
    .children = kDetectedValueChildren,
});

constexpr Child kDetectedValuesChildren[] = {
    Elem<&CdetectedValues::detectedValues_>(L"detectedValue"),
};
constinit const Schema CdetectedValues::kSchema = Checked({
    .element = L"detectedValues",
    .dialect = kDialect,
    .children = kDetectedValuesChildren,
});

constinit const Schema CcustomDisplayText::kSchema = Checked({
    .element = L"customDisplayText",
    .dialect = kDialect,
    .content = TextOf<&CcustomDisplayText::content_>(),
});

constexpr Child kViolationChildren[] = {
    Elem<&Cviolation::name_>(L"name").NamesItem(),
    Elem<&Cviolation::policyID_>(L"policyID"),
    Elem<&Cviolation::severity_>(L"severity"),
    Elem<&Cviolation::numOfMatches_>(L"numOfMatches"),
    Elem<&Cviolation::detectedValues_>(L"detectedValues"),
    Elem<&Cviolation::customDisplayText_>(L"customDisplayText").MayBeAbsent(),
};
constinit const Schema Cviolation::kSchema = Checked({
    .element = L"violation",
    .dialect = kDialect,
    .children = kViolationChildren,
});

constexpr Attribute kViolationsAttributes[] = {
    Attr<&Cviolations::maxMatches_>(L"maxMatches"),
};
constexpr Child kViolationsChildren[] = {
    Elem<&Cviolations::violations_>(L"violation"),
};
constinit const Schema Cviolations::kSchema = Checked({
    .element = L"violations",
    .dialect = kDialect,
    .attributes = kViolationsAttributes,
    .children = kViolationsChildren,
});

constexpr Attribute kAddressAttributes[] = {
    Attr<&Caddress::type_>(L"type", {kAddressTypes}).KeepsValue(),
    Attr<&Caddress::value_>(L"value").NamesItem(),
};
constinit const Schema Caddress::kSchema = Checked({
    .element = L"address",
    .dialect = kDialect,
    .attributes = kAddressAttributes,
});

constexpr Child kAddressesChildren[] = {
    Elem<&Caddresses::addresses_>(L"address"),
};
constinit const Schema Caddresses::kSchema = Checked({
    .element = L"addresses",
    .dialect = kDialect,
    .children = kAddressesChildren,
});

constexpr Child kDestinationsChildren[] = {
    Elem<&Cdestinations::addresses_>(L"addresses"),
};
constinit const Schema Cdestinations::kSchema = Checked({
    .element = L"destinations",
    .dialect = kDialect,
    .children = kDestinationsChildren,
});

constexpr Attribute kExtractedContentAttributes[] = {
    Attr<&CextractedContent::type_>(L"type", {kContentTypes}).KeepsValue(),
    Attr<&CextractedContent::value_>(L"value").NamesItem(),
};
constinit const Schema CextractedContent::kSchema = Checked({
    .element = L"extractedContent",
    .dialect = kDialect,
    .attributes = kExtractedContentAttributes,
});

constexpr Child kExtractedContentsChildren[] = {
    Elem<&CextractedContents::extractedContents_>(L"extractedContent"),
};
constinit const Schema CextractedContents::kSchema = Checked({
    .element = L"extractedContents",
    .dialect = kDialect,
    .children = kExtractedContentsChildren,
});

constexpr Child kAdditionalDataChildren[] = {
    Elem<&CadditionalData::destinations_>(L"destinations"),
    Elem<&CadditionalData::extractedContents_>(L"extractedContents"),
};
constinit const Schema CadditionalData::kSchema = Checked({
    .element = L"additionalData",
    .dialect = kDialect,
    .children = kAdditionalDataChildren,
});

constexpr Attribute kAnalysisDetailsAttributes[] = {
    Attr<&CanalysisDetails::transactionID_>(L"transactionID"),
    Attr<&CanalysisDetails::version_>(L"version"),
};
constexpr Child kAnalysisDetailsChildren[] = {
    Elem<&CanalysisDetails::violations_>(L"violations"),
    Elem<&CanalysisDetails::additionalData_>(L"additionalData"),
};
constinit const Schema CanalysisDetails::kSchema = Checked({
    .element = L"analysisDetails",
    .dialect = kDialect,
    .attributes = kAnalysisDetailsAttributes,
    .children = kAnalysisDetailsChildren,
});

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
  if (kSchema.element != reader->GetLocalName()) return tolva::kInvalidArgument;
  const Value text = reader->GetText();
  if (text.data() != nullptr) {
    tolva::platform::AssignWide(text, content_);
  } else {
    ReportElement(kReadStringContent, kSchema.element);
  }
  reader->FinishElement();
  return tolva::kSuccess;
}

}  // namespace CpsAnalysisDetailsConf
