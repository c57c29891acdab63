// The classes of tolva/analysisdetails/analysis_details.h.
#pragma once

#include <tolva/analysisdetails/analysis_details.h>

#include <string>

#include "analysisdetails/document.h"
#include "node/accessors.h"
#include "node/leaves.h"

namespace CpsAnalysisDetailsConf {

class Cname final : public StringLeaf<Cname, Iname> {
 public:
  static const Schema kSchema;
};

class CpolicyID final : public OptionalLeaf<CpolicyID, IpolicyID> {
 public:
  static const Schema kSchema;
};

class Cseverity final : public OptionalLeaf<Cseverity, Iseverity> {
 public:
  static const Schema kSchema;
};

class CnumOfMatches final : public NumberLeaf<CnumOfMatches, InumOfMatches> {
 public:
  static const Schema kSchema;
};

class Cvalue final : public StringLeaf<Cvalue, Ivalue> {
 public:
  static const Schema kSchema;
};

class Ccount final : public NumberLeaf<Ccount, Icount> {
 public:
  static const Schema kSchema;
};

class Clocation final : public OptionalLeaf<Clocation, Ilocation> {
 public:
  static const Schema kSchema;
};

class Ccontext final : public OptionalLeaf<Ccontext, Icontext> {
 public:
  static const Schema kSchema;
};

class CclassifierType final : public OptionalLeaf<CclassifierType, IclassifierType> {
 public:
  static const Schema kSchema;
};

class CdetectedValue final : public Node<CdetectedValue, IdetectedValue> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(Cvalue, Value, value_);
  TOLVA_CHILD(Ccount, Count, count_);
  TOLVA_OPTIONAL_CHILD(Clocation, Location, location_);
  TOLVA_OPTIONAL_CHILD(Ccontext, Context, context_);
  TOLVA_OPTIONAL_CHILD(CclassifierType, ClassifierType, classifierType_);
};

class CdetectedValues final : public Node<CdetectedValues, IdetectedValues> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CdetectedValue, DetectedValue, detectedValues_);
};

/// Not an INode. It is written by its table but reads in its own way.
class CcustomDisplayText final : public IcustomDisplayText {
 public:
  static const Schema kSchema;

  ConfigResult WriteToXMLMgr(IXMLLiteManager* manager, int reserved, int position) const override;
  ConfigResult ReadFromXMLMgr(IXMLLiteManager* manager, int reserved) override;
  const std::wstring& GetContent() const override { return content_; }
  ConfigResult SetContent(const std::wstring& value) override {
    content_ = value;
    return tolva::kSuccess;
  }

  /// Called when the violation is cleared.
  void Clear() { content_.clear(); }
  std::wstring content_;
};

class Cviolation final : public Node<Cviolation, Iviolation> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(Cname, Name, name_);
  TOLVA_OPTIONAL_CHILD(CpolicyID, PolicyID, policyID_);
  TOLVA_OPTIONAL_CHILD(Cseverity, Severity, severity_);
  TOLVA_CHILD(CnumOfMatches, NumOfMatches, numOfMatches_);
  TOLVA_CHILD(CdetectedValues, DetectedValues, detectedValues_);
  IcustomDisplayText* GetCustomDisplayText() override { return &customDisplayText_; }
  ConfigResult SetCustomDisplayText(const IcustomDisplayText* child) override;
  CcustomDisplayText customDisplayText_;
};

class Cviolations final : public Node<Cviolations, Iviolations> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(MaxMatches, maxMatches_);
  TOLVA_CHILDREN(Cviolation, Violation, violations_);
};

class Caddress final : public Node<Caddress, Iaddress> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Type, type_);
  TOLVA_STRING(Value, value_);
};

class Caddresses final : public Node<Caddresses, Iaddresses> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(Caddress, Address, addresses_);
};

class Cdestinations final : public Node<Cdestinations, Idestinations> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(Caddresses, Addresses, addresses_);
};

class CextractedContent final : public Node<CextractedContent, IextractedContent> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Type, type_);
  TOLVA_STRING(Value, value_);
};

class CextractedContents final : public Node<CextractedContents, IextractedContents> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CextractedContent, ExtractedContent, extractedContents_);
};

class CadditionalData final : public Node<CadditionalData, IadditionalData> {
 public:
  static const Schema kSchema;

  TOLVA_CHILD(Cdestinations, Destinations, destinations_);
  TOLVA_CHILD(CextractedContents, ExtractedContents, extractedContents_);
};

class CanalysisDetails final : public Node<CanalysisDetails, IanalysisDetails> {
 public:
  static const Schema kSchema;

  TOLVA_STRING(TransactionID, transactionID_);
  TOLVA_STRING(Version, version_);
  TOLVA_OPTIONAL_CHILD(Cviolations, Violations, violations_);
  TOLVA_OPTIONAL_CHILD(CadditionalData, AdditionalData, additionalData_);
};

}  // namespace CpsAnalysisDetailsConf
