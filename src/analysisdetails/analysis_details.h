// The classes of tolva/analysisdetails/analysis_details.h.
#pragma once

#include <tolva/analysisdetails/analysis_details.h>

#include <string>

#include "analysisdetails/document.h"
#include "node/leaves.h"
#include "node/node.h"

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

  Ivalue* GetValue() override { return &value_; }
  ConfigResult SetValue(const Ivalue* child) override { return SetRequiredChild(value_, child); }
  Icount* GetCount() override { return &count_; }
  ConfigResult SetCount(const Icount* child) override { return SetRequiredChild(count_, child); }
  ConfigResult GetLocation(Ilocation** out) override { return location_.Get(out); }
  ConfigResult SetLocation(const Ilocation* child) override { return location_.Set(child); }
  ConfigResult GetContext(Icontext** out) override { return context_.Get(out); }
  ConfigResult SetContext(const Icontext* child) override { return context_.Set(child); }
  ConfigResult GetClassifierType(IclassifierType** out) override {
    return classifierType_.Get(out);
  }
  ConfigResult SetClassifierType(const IclassifierType* child) override {
    return classifierType_.Set(child);
  }

 private:
  static const Child kChildren[];

  Cvalue value_;
  Ccount count_;
  OptionalChild<Clocation> location_;
  OptionalChild<Ccontext> context_;
  OptionalChild<CclassifierType> classifierType_;
};

class CdetectedValues final : public Node<CdetectedValues, IdetectedValues> {
 public:
  static const Schema kSchema;

  DWORD GetDetectedValueCount() const override { return detectedValues_.Count(); }
  IdetectedValue* GetDetectedValueAt(DWORD index) override { return detectedValues_.At(index); }
  ConfigResult AddDetectedValue(const IdetectedValue* item) override {
    return detectedValues_.Add(item);
  }
  ConfigResult InsertDetectedValueAt(DWORD index, const IdetectedValue* item) override {
    return detectedValues_.InsertAt(index, item);
  }
  void RemoveDetectedValueAt(DWORD index) override { detectedValues_.RemoveAt(index); }
  void RemoveAllDetectedValue() override { detectedValues_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CdetectedValue> detectedValues_;
};

/// No INode: it is written by its table, but reads in its own way.
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

  /// For the violation's own.
  void Clear() { content_.clear(); }

 private:
  std::wstring content_;
};

class Cviolation final : public Node<Cviolation, Iviolation> {
 public:
  static const Schema kSchema;

  Iname* GetName() override { return &name_; }
  ConfigResult SetName(const Iname* child) override { return SetRequiredChild(name_, child); }
  ConfigResult GetPolicyID(IpolicyID** out) override { return policyID_.Get(out); }
  ConfigResult SetPolicyID(const IpolicyID* child) override { return policyID_.Set(child); }
  ConfigResult GetSeverity(Iseverity** out) override { return severity_.Get(out); }
  ConfigResult SetSeverity(const Iseverity* child) override { return severity_.Set(child); }
  InumOfMatches* GetNumOfMatches() override { return &numOfMatches_; }
  ConfigResult SetNumOfMatches(const InumOfMatches* child) override {
    return SetRequiredChild(numOfMatches_, child);
  }
  IdetectedValues* GetDetectedValues() override { return &detectedValues_; }
  ConfigResult SetDetectedValues(const IdetectedValues* child) override {
    return SetRequiredChild(detectedValues_, child);
  }
  IcustomDisplayText* GetCustomDisplayText() override { return &customDisplayText_; }
  ConfigResult SetCustomDisplayText(const IcustomDisplayText* child) override;

 private:
  static const Child kChildren[];

  Cname name_;
  OptionalChild<CpolicyID> policyID_;
  OptionalChild<Cseverity> severity_;
  CnumOfMatches numOfMatches_;
  CdetectedValues detectedValues_;
  CcustomDisplayText customDisplayText_;
};

class Cviolations final : public Node<Cviolations, Iviolations> {
 public:
  static const Schema kSchema;

  DWORD GetMaxMatches() const override { return maxMatches_; }
  ConfigResult SetMaxMatches(const DWORD* value) override {
    return SetRequired(maxMatches_, value);
  }
  DWORD GetViolationCount() const override { return violations_.Count(); }
  Iviolation* GetViolationAt(DWORD index) override { return violations_.At(index); }
  ConfigResult AddViolation(const Iviolation* item) override { return violations_.Add(item); }
  ConfigResult InsertViolationAt(DWORD index, const Iviolation* item) override {
    return violations_.InsertAt(index, item);
  }
  void RemoveViolationAt(DWORD index) override { violations_.RemoveAt(index); }
  void RemoveAllViolation() override { violations_.RemoveAll(); }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD maxMatches_ = 0;
  ChildList<Cviolation> violations_;
};

class Caddress final : public Node<Caddress, Iaddress> {
 public:
  static const Schema kSchema;

  DWORD GetType() const override { return type_; }
  ConfigResult SetType(const DWORD* value) override { return SetRequired(type_, value); }
  const std::wstring& GetValue() const override { return value_; }
  ConfigResult SetValue(const std::wstring* value) override { return SetRequired(value_, value); }

  /// All but `type`.
  void Clear() override;

 private:
  static const Attribute kAttributes[];

  DWORD type_ = 0;
  std::wstring value_;
};

class Caddresses final : public Node<Caddresses, Iaddresses> {
 public:
  static const Schema kSchema;

  DWORD GetAddressCount() const override { return addresses_.Count(); }
  Iaddress* GetAddressAt(DWORD index) override { return addresses_.At(index); }
  ConfigResult AddAddress(const Iaddress* item) override { return addresses_.Add(item); }
  ConfigResult InsertAddressAt(DWORD index, const Iaddress* item) override {
    return addresses_.InsertAt(index, item);
  }
  void RemoveAddressAt(DWORD index) override { addresses_.RemoveAt(index); }
  void RemoveAllAddress() override { addresses_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<Caddress> addresses_;
};

class Cdestinations final : public Node<Cdestinations, Idestinations> {
 public:
  static const Schema kSchema;

  DWORD GetAddressesCount() const override { return addresses_.Count(); }
  Iaddresses* GetAddressesAt(DWORD index) override { return addresses_.At(index); }
  ConfigResult AddAddresses(const Iaddresses* item) override { return addresses_.Add(item); }
  ConfigResult InsertAddressesAt(DWORD index, const Iaddresses* item) override {
    return addresses_.InsertAt(index, item);
  }
  void RemoveAddressesAt(DWORD index) override { addresses_.RemoveAt(index); }
  void RemoveAllAddresses() override { addresses_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<Caddresses> addresses_;
};

class CextractedContent final : public Node<CextractedContent, IextractedContent> {
 public:
  static const Schema kSchema;

  DWORD GetType() const override { return type_; }
  ConfigResult SetType(const DWORD* value) override { return SetRequired(type_, value); }
  const std::wstring& GetValue() const override { return value_; }
  ConfigResult SetValue(const std::wstring* value) override { return SetRequired(value_, value); }

  /// All but `type`.
  void Clear() override;

 private:
  static const Attribute kAttributes[];

  DWORD type_ = 0;
  std::wstring value_;
};

class CextractedContents final : public Node<CextractedContents, IextractedContents> {
 public:
  static const Schema kSchema;

  DWORD GetExtractedContentCount() const override { return extractedContents_.Count(); }
  IextractedContent* GetExtractedContentAt(DWORD index) override {
    return extractedContents_.At(index);
  }
  ConfigResult AddExtractedContent(const IextractedContent* item) override {
    return extractedContents_.Add(item);
  }
  ConfigResult InsertExtractedContentAt(DWORD index, const IextractedContent* item) override {
    return extractedContents_.InsertAt(index, item);
  }
  void RemoveExtractedContentAt(DWORD index) override { extractedContents_.RemoveAt(index); }
  void RemoveAllExtractedContent() override { extractedContents_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CextractedContent> extractedContents_;
};

class CadditionalData final : public Node<CadditionalData, IadditionalData> {
 public:
  static const Schema kSchema;

  Idestinations* GetDestinations() override { return &destinations_; }
  ConfigResult SetDestinations(const Idestinations* child) override {
    return SetRequiredChild(destinations_, child);
  }
  IextractedContents* GetExtractedContents() override { return &extractedContents_; }
  ConfigResult SetExtractedContents(const IextractedContents* child) override {
    return SetRequiredChild(extractedContents_, child);
  }

 private:
  static const Child kChildren[];

  Cdestinations destinations_;
  CextractedContents extractedContents_;
};

class CanalysisDetails final : public Node<CanalysisDetails, IanalysisDetails> {
 public:
  static const Schema kSchema;

  const std::wstring& GetTransactionID() const override { return transactionID_; }
  ConfigResult SetTransactionID(const std::wstring* value) override {
    return SetRequired(transactionID_, value);
  }
  const std::wstring& GetVersion() const override { return version_; }
  ConfigResult SetVersion(const std::wstring* value) override {
    return SetRequired(version_, value);
  }
  ConfigResult GetViolations(Iviolations** out) override { return violations_.Get(out); }
  ConfigResult SetViolations(const Iviolations* child) override { return violations_.Set(child); }
  ConfigResult GetAdditionalData(IadditionalData** out) override {
    return additionalData_.Get(out);
  }
  ConfigResult SetAdditionalData(const IadditionalData* child) override {
    return additionalData_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  std::wstring transactionID_;
  std::wstring version_;
  OptionalChild<Cviolations> violations_;
  OptionalChild<CadditionalData> additionalData_;
};

}  // namespace CpsAnalysisDetailsConf
