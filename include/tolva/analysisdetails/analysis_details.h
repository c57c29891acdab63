// The details of a content analysis: the violations found, with what matched and where, and data
// about what was analysed. Element names are lower case, and so are those of interfaces after
// their I.
//
// What the texts mean is their producer's business; they are carried as they stand.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/leaves.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace CpsAnalysisDetailsConf {

/// Element `name`: a violation's name.
class Iname : public tolva::node::IStringLeaf<Iname> {};

/// Element `policyID`.
class IpolicyID : public tolva::node::IOptionalLeaf<IpolicyID> {};

/// Element `severity`.
class Iseverity : public tolva::node::IOptionalLeaf<Iseverity> {};

/// Element `numOfMatches`: how many values matched.
class InumOfMatches : public tolva::node::INumberLeaf<InumOfMatches> {};

/// Element `value`: what matched.
class Ivalue : public tolva::node::IStringLeaf<Ivalue> {};

/// Element `count`: how often it did. Only the digits at the front of its text count, none of them
/// is 0, and whatever else stands there is no fault.
class Icount : public tolva::node::INumberLeaf<Icount> {};

/// Element `location`.
class Ilocation : public tolva::node::IOptionalLeaf<Ilocation> {};

/// Element `context`.
class Icontext : public tolva::node::IOptionalLeaf<Icontext> {};

/// Element `classifierType`.
class IclassifierType : public tolva::node::IOptionalLeaf<IclassifierType> {};

/// Element `detectedValue`.
class IdetectedValue : public tolva::node::INode {
 public:
  virtual IdetectedValue& CopyFrom(const IdetectedValue& other) = 0;

  /// The child `value`. Required.
  virtual Ivalue* GetValue() = 0;
  virtual ConfigResult SetValue(const Ivalue* child) = 0;

  /// The child `count`. Required.
  virtual Icount* GetCount() = 0;
  virtual ConfigResult SetCount(const Icount* child) = 0;

  /// The child `location`. Optional.
  virtual ConfigResult GetLocation(Ilocation** out) = 0;
  virtual ConfigResult SetLocation(const Ilocation* child) = 0;

  /// The child `context`. Optional.
  virtual ConfigResult GetContext(Icontext** out) = 0;
  virtual ConfigResult SetContext(const Icontext* child) = 0;

  /// The child `classifierType`. Optional.
  virtual ConfigResult GetClassifierType(IclassifierType** out) = 0;
  virtual ConfigResult SetClassifierType(const IclassifierType* child) = 0;
};

/// Element `detectedValues`.
class IdetectedValues : public tolva::node::INode {
 public:
  virtual IdetectedValues& CopyFrom(const IdetectedValues& other) = 0;

  /// Children `detectedValue`.
  virtual DWORD GetDetectedValueCount() const = 0;
  virtual IdetectedValue* GetDetectedValueAt(DWORD index) = 0;
  virtual ConfigResult AddDetectedValue(const IdetectedValue* item) = 0;
  virtual ConfigResult InsertDetectedValueAt(DWORD index, const IdetectedValue* item) = 0;
  virtual void RemoveDetectedValueAt(DWORD index) = 0;
  virtual void RemoveAllDetectedValue() = 0;
};

/// Element `customDisplayText`: a text to show. It exists only within a `violation`, and has
/// neither `Clear` nor `CopyFrom`. Without a text it reads all the same, with a diagnostic, and
/// keeps the text that it had, as it does when the element has another name. A violation that is
/// read empties it first.
class IcustomDisplayText : public tolva::node::IElement {
 public:
  /// The text. Setting it returns 0.
  virtual const std::wstring& GetContent() const = 0;
  virtual ConfigResult SetContent(const std::wstring& value) = 0;
};

/// Element `violation`: one violation of a policy.
class Iviolation : public tolva::node::INode {
 public:
  virtual Iviolation& CopyFrom(const Iviolation& other) = 0;

  /// The child `name`. Required.
  virtual Iname* GetName() = 0;
  virtual ConfigResult SetName(const Iname* child) = 0;

  /// The child `policyID`. Optional.
  virtual ConfigResult GetPolicyID(IpolicyID** out) = 0;
  virtual ConfigResult SetPolicyID(const IpolicyID* child) = 0;

  /// The child `severity`. Optional.
  virtual ConfigResult GetSeverity(Iseverity** out) = 0;
  virtual ConfigResult SetSeverity(const Iseverity* child) = 0;

  /// The child `numOfMatches`. Required.
  virtual InumOfMatches* GetNumOfMatches() = 0;
  virtual ConfigResult SetNumOfMatches(const InumOfMatches* child) = 0;

  /// The child `detectedValues`. Required.
  virtual IdetectedValues* GetDetectedValues() = 0;
  virtual ConfigResult SetDetectedValues(const IdetectedValues* child) = 0;

  /// The child `customDisplayText`: always written, but a document may do without. Null gives -101
  /// without a diagnostic.
  virtual IcustomDisplayText* GetCustomDisplayText() = 0;
  virtual ConfigResult SetCustomDisplayText(const IcustomDisplayText* child) = 0;
};

/// Element `violations`.
class Iviolations : public tolva::node::INode {
 public:
  virtual Iviolations& CopyFrom(const Iviolations& other) = 0;

  /// `maxMatches`: carried unchanged. Required.
  virtual DWORD GetMaxMatches() const = 0;
  virtual ConfigResult SetMaxMatches(const DWORD* value) = 0;

  /// Children `violation`.
  virtual DWORD GetViolationCount() const = 0;
  virtual Iviolation* GetViolationAt(DWORD index) = 0;
  virtual ConfigResult AddViolation(const Iviolation* item) = 0;
  virtual ConfigResult InsertViolationAt(DWORD index, const Iviolation* item) = 0;
  virtual void RemoveViolationAt(DWORD index) = 0;
  virtual void RemoveAllViolation() = 0;
};

/// The values of `address`'s `type`.
enum AddressType : DWORD {
  kAddressTypeEmailAddress = 0,  ///< "EmailAddress"
  kAddressTypeOther = 1,         ///< "Other"
};

/// Element `address`: a destination. `Clear` leaves `type` as it was, 0 at first.
class Iaddress : public tolva::node::INode {
 public:
  virtual Iaddress& CopyFrom(const Iaddress& other) = 0;

  /// `type`: an AddressType. Required.
  virtual DWORD GetType() const = 0;
  virtual ConfigResult SetType(const DWORD* value) = 0;

  /// `value`: the address. Required.
  virtual const std::wstring& GetValue() const = 0;
  virtual ConfigResult SetValue(const std::wstring* value) = 0;
};

/// Element `addresses`.
class Iaddresses : public tolva::node::INode {
 public:
  virtual Iaddresses& CopyFrom(const Iaddresses& other) = 0;

  /// Children `address`.
  virtual DWORD GetAddressCount() const = 0;
  virtual Iaddress* GetAddressAt(DWORD index) = 0;
  virtual ConfigResult AddAddress(const Iaddress* item) = 0;
  virtual ConfigResult InsertAddressAt(DWORD index, const Iaddress* item) = 0;
  virtual void RemoveAddressAt(DWORD index) = 0;
  virtual void RemoveAllAddress() = 0;
};

/// Element `destinations`.
class Idestinations : public tolva::node::INode {
 public:
  virtual Idestinations& CopyFrom(const Idestinations& other) = 0;

  /// Children `addresses`.
  virtual DWORD GetAddressesCount() const = 0;
  virtual Iaddresses* GetAddressesAt(DWORD index) = 0;
  virtual ConfigResult AddAddresses(const Iaddresses* item) = 0;
  virtual ConfigResult InsertAddressesAt(DWORD index, const Iaddresses* item) = 0;
  virtual void RemoveAddressesAt(DWORD index) = 0;
  virtual void RemoveAllAddresses() = 0;
};

/// The values of `extractedContent`'s `type`.
enum ExtractedContentType : DWORD {
  kExtractedContentTypeSubject = 0,     ///< "Subject"
  kExtractedContentTypeAttachment = 1,  ///< "Attachment"
  kExtractedContentTypeOther = 2,       ///< "Other"
};

/// Element `extractedContent`: a part of what was analysed. `Clear` leaves `type` as it was, 0 at
/// first.
class IextractedContent : public tolva::node::INode {
 public:
  virtual IextractedContent& CopyFrom(const IextractedContent& other) = 0;

  /// `type`: an ExtractedContentType. Required.
  virtual DWORD GetType() const = 0;
  virtual ConfigResult SetType(const DWORD* value) = 0;

  /// `value`: the part. Required.
  virtual const std::wstring& GetValue() const = 0;
  virtual ConfigResult SetValue(const std::wstring* value) = 0;
};

/// Element `extractedContents`.
class IextractedContents : public tolva::node::INode {
 public:
  virtual IextractedContents& CopyFrom(const IextractedContents& other) = 0;

  /// Children `extractedContent`.
  virtual DWORD GetExtractedContentCount() const = 0;
  virtual IextractedContent* GetExtractedContentAt(DWORD index) = 0;
  virtual ConfigResult AddExtractedContent(const IextractedContent* item) = 0;
  virtual ConfigResult InsertExtractedContentAt(DWORD index, const IextractedContent* item) = 0;
  virtual void RemoveExtractedContentAt(DWORD index) = 0;
  virtual void RemoveAllExtractedContent() = 0;
};

/// Element `additionalData`.
class IadditionalData : public tolva::node::INode {
 public:
  virtual IadditionalData& CopyFrom(const IadditionalData& other) = 0;

  /// The child `destinations`. Required.
  virtual Idestinations* GetDestinations() = 0;
  virtual ConfigResult SetDestinations(const Idestinations* child) = 0;

  /// The child `extractedContents`. Required.
  virtual IextractedContents* GetExtractedContents() = 0;
  virtual ConfigResult SetExtractedContents(const IextractedContents* child) = 0;
};

/// Element `analysisDetails`, the root.
class IanalysisDetails : public tolva::node::INode {
 public:
  virtual IanalysisDetails& CopyFrom(const IanalysisDetails& other) = 0;

  /// `transactionID`: the transaction that was analysed. Required.
  virtual const std::wstring& GetTransactionID() const = 0;
  virtual ConfigResult SetTransactionID(const std::wstring* value) = 0;

  /// `version`: the document's version. Required.
  virtual const std::wstring& GetVersion() const = 0;
  virtual ConfigResult SetVersion(const std::wstring* value) = 0;

  /// The child `violations`. Optional.
  virtual ConfigResult GetViolations(Iviolations** out) = 0;
  virtual ConfigResult SetViolations(const Iviolations* child) = 0;

  /// The child `additionalData`. Optional.
  virtual ConfigResult GetAdditionalData(IadditionalData** out) = 0;
  virtual ConfigResult SetAdditionalData(const IadditionalData* child) = 0;
};

// Each makes a node with default values, which the caller owns.
TOLVA_API Iname* name_CreateNewInstance();
TOLVA_API IpolicyID* policyID_CreateNewInstance();
TOLVA_API Iseverity* severity_CreateNewInstance();
TOLVA_API InumOfMatches* numOfMatches_CreateNewInstance();
TOLVA_API Ivalue* value_CreateNewInstance();
TOLVA_API Icount* count_CreateNewInstance();
TOLVA_API Ilocation* location_CreateNewInstance();
TOLVA_API Icontext* context_CreateNewInstance();
TOLVA_API IclassifierType* classifierType_CreateNewInstance();
TOLVA_API IdetectedValue* detectedValue_CreateNewInstance();
TOLVA_API IdetectedValues* detectedValues_CreateNewInstance();
TOLVA_API Iviolation* violation_CreateNewInstance();
TOLVA_API Iviolations* violations_CreateNewInstance();
TOLVA_API Iaddress* address_CreateNewInstance();
TOLVA_API Iaddresses* addresses_CreateNewInstance();
TOLVA_API Idestinations* destinations_CreateNewInstance();
TOLVA_API IextractedContent* extractedContent_CreateNewInstance();
TOLVA_API IextractedContents* extractedContents_CreateNewInstance();
TOLVA_API IadditionalData* additionalData_CreateNewInstance();
TOLVA_API IanalysisDetails* analysisDetails_CreateNewInstance();

}  // namespace CpsAnalysisDetailsConf
