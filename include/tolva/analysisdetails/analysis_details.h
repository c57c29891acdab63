// The details of a content analysis: the violations that were found, with what matched and where,
// and data about what was analysed. Names of elements begin with a lower-case letter, and so do
// names of interfaces after their I. The library does not interpret the texts; their producer
// defines what they mean.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/leaves.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace CpsAnalysisDetailsConf {

/// Element `name`: the name of a violation.
class Iname : public tolva::node::IStringLeaf<Iname> {};

/// Element `policyID`: the identifier of the policy that was violated.
class IpolicyID : public tolva::node::IOptionalLeaf<IpolicyID> {};

/// Element `severity`: the severity of a violation.
class Iseverity : public tolva::node::IOptionalLeaf<Iseverity> {};

/// Element `numOfMatches`: the number of matches of a violation.
class InumOfMatches : public tolva::node::INumberLeaf<InumOfMatches> {};

/// Element `value`: a value that matched.
class Ivalue : public tolva::node::IStringLeaf<Ivalue> {};

/// Element `count`: how often a value was found.
///
/// A read takes the digits at the beginning of the text, or 0 if there are none, and ignores the
/// rest.
class Icount : public tolva::node::INumberLeaf<Icount> {};

/// Element `location`: where a value was found.
class Ilocation : public tolva::node::IOptionalLeaf<Ilocation> {};

/// Element `context`: the context in which a value was found.
class Icontext : public tolva::node::IOptionalLeaf<Icontext> {};

/// Element `classifierType`: the type of the classifier that found a value.
class IclassifierType : public tolva::node::IOptionalLeaf<IclassifierType> {};

/// Element `detectedValue`: a value that matched, with its context and location.
class IdetectedValue : public tolva::node::INode {
 public:
  virtual IdetectedValue& CopyFrom(const IdetectedValue& other) = 0;

  /// `value`: the value that matched. Required.
  virtual Ivalue* GetValue() = 0;
  virtual ConfigResult SetValue(const Ivalue* child) = 0;

  /// `count`: how often the value was found. Required.
  virtual Icount* GetCount() = 0;
  virtual ConfigResult SetCount(const Icount* child) = 0;

  /// `location`: where the value was found. Optional.
  virtual ConfigResult GetLocation(Ilocation** out) = 0;
  virtual ConfigResult SetLocation(const Ilocation* child) = 0;

  /// `context`: the context in which the value was found. Optional.
  virtual ConfigResult GetContext(Icontext** out) = 0;
  virtual ConfigResult SetContext(const Icontext* child) = 0;

  /// `classifierType`: the type of the classifier that found the value. Optional.
  virtual ConfigResult GetClassifierType(IclassifierType** out) = 0;
  virtual ConfigResult SetClassifierType(const IclassifierType* child) = 0;
};

/// Element `detectedValues`: the values that matched.
class IdetectedValues : public tolva::node::INode {
 public:
  virtual IdetectedValues& CopyFrom(const IdetectedValues& other) = 0;

  /// `detectedValue`: a value that matched, with its context and location. Repeated.
  virtual DWORD GetDetectedValueCount() const = 0;
  virtual IdetectedValue* GetDetectedValueAt(DWORD index) = 0;
  virtual ConfigResult AddDetectedValue(const IdetectedValue* item) = 0;
  virtual ConfigResult InsertDetectedValueAt(DWORD index, const IdetectedValue* item) = 0;
  virtual void RemoveDetectedValueAt(DWORD index) = 0;
  virtual void RemoveAllDetectedValue() = 0;
};

/// Element `customDisplayText`: a text to display for a violation.
///
/// The element exists only within a `violation`. It has no factory, and neither `Clear` nor
/// `CopyFrom`. A read of an element without a text succeeds with a diagnostic; a read of an element
/// with another name returns -102. Both keep the earlier text, which a read of the `violation`
/// empties first.
class IcustomDisplayText : public tolva::node::IElement {
 public:
  /// The text. The setter returns 0.
  virtual const std::wstring& GetContent() const = 0;
  virtual ConfigResult SetContent(const std::wstring& value) = 0;
};

/// Element `violation`: a violation of a policy.
class Iviolation : public tolva::node::INode {
 public:
  virtual Iviolation& CopyFrom(const Iviolation& other) = 0;

  /// `name`: the name of the violation. Required.
  virtual Iname* GetName() = 0;
  virtual ConfigResult SetName(const Iname* child) = 0;

  /// `policyID`: the identifier of the policy that was violated. Optional.
  virtual ConfigResult GetPolicyID(IpolicyID** out) = 0;
  virtual ConfigResult SetPolicyID(const IpolicyID* child) = 0;

  /// `severity`: the severity of the violation. Optional.
  virtual ConfigResult GetSeverity(Iseverity** out) = 0;
  virtual ConfigResult SetSeverity(const Iseverity* child) = 0;

  /// `numOfMatches`: the number of matches. Required.
  virtual InumOfMatches* GetNumOfMatches() = 0;
  virtual ConfigResult SetNumOfMatches(const InumOfMatches* child) = 0;

  /// `detectedValues`: the values that matched. Required.
  virtual IdetectedValues* GetDetectedValues() = 0;
  virtual ConfigResult SetDetectedValues(const IdetectedValues* child) = 0;

  /// `customDisplayText`: a text to display for the violation. Optional.
  ///
  /// The child is always written. It has the accessors of a required child; null gives -101 without
  /// a diagnostic.
  virtual IcustomDisplayText* GetCustomDisplayText() = 0;
  virtual ConfigResult SetCustomDisplayText(const IcustomDisplayText* child) = 0;
};

/// Element `violations`: the violations that were found.
class Iviolations : public tolva::node::INode {
 public:
  virtual Iviolations& CopyFrom(const Iviolations& other) = 0;

  /// `maxMatches`: the maximum number of matches. Required.
  virtual DWORD GetMaxMatches() const = 0;
  virtual ConfigResult SetMaxMatches(const DWORD* value) = 0;

  /// `violation`: a violation of a policy. Repeated.
  virtual DWORD GetViolationCount() const = 0;
  virtual Iviolation* GetViolationAt(DWORD index) = 0;
  virtual ConfigResult AddViolation(const Iviolation* item) = 0;
  virtual ConfigResult InsertViolationAt(DWORD index, const Iviolation* item) = 0;
  virtual void RemoveViolationAt(DWORD index) = 0;
  virtual void RemoveAllViolation() = 0;
};

/// The values of the attribute `type` of `address`.
enum AddressType : DWORD {
  kAddressTypeEmailAddress = 0,  ///< "EmailAddress"
  kAddressTypeOther = 1,         ///< "Other"
};

/// Element `address`: a destination of what was analysed.
///
/// `Clear` keeps `type`, which is 0 in a new node.
class Iaddress : public tolva::node::INode {
 public:
  virtual Iaddress& CopyFrom(const Iaddress& other) = 0;

  /// `type`: the kind of address. Required.
  ///
  /// The value is an AddressType.
  virtual DWORD GetType() const = 0;
  virtual ConfigResult SetType(const DWORD* value) = 0;

  /// `value`: the address. Required.
  virtual const std::wstring& GetValue() const = 0;
  virtual ConfigResult SetValue(const std::wstring* value) = 0;
};

/// Element `addresses`: a list of destination addresses.
class Iaddresses : public tolva::node::INode {
 public:
  virtual Iaddresses& CopyFrom(const Iaddresses& other) = 0;

  /// `address`: a destination of what was analysed. Repeated.
  virtual DWORD GetAddressCount() const = 0;
  virtual Iaddress* GetAddressAt(DWORD index) = 0;
  virtual ConfigResult AddAddress(const Iaddress* item) = 0;
  virtual ConfigResult InsertAddressAt(DWORD index, const Iaddress* item) = 0;
  virtual void RemoveAddressAt(DWORD index) = 0;
  virtual void RemoveAllAddress() = 0;
};

/// Element `destinations`: the destinations of what was analysed.
class Idestinations : public tolva::node::INode {
 public:
  virtual Idestinations& CopyFrom(const Idestinations& other) = 0;

  /// `addresses`: a list of destination addresses. Repeated.
  virtual DWORD GetAddressesCount() const = 0;
  virtual Iaddresses* GetAddressesAt(DWORD index) = 0;
  virtual ConfigResult AddAddresses(const Iaddresses* item) = 0;
  virtual ConfigResult InsertAddressesAt(DWORD index, const Iaddresses* item) = 0;
  virtual void RemoveAddressesAt(DWORD index) = 0;
  virtual void RemoveAllAddresses() = 0;
};

/// The values of the attribute `type` of `extractedContent`.
enum ExtractedContentType : DWORD {
  kExtractedContentTypeSubject = 0,     ///< "Subject"
  kExtractedContentTypeAttachment = 1,  ///< "Attachment"
  kExtractedContentTypeOther = 2,       ///< "Other"
};

/// Element `extractedContent`: a part of what was analysed.
///
/// `Clear` keeps `type`, which is 0 in a new node.
class IextractedContent : public tolva::node::INode {
 public:
  virtual IextractedContent& CopyFrom(const IextractedContent& other) = 0;

  /// `type`: the kind of content. Required.
  ///
  /// The value is an ExtractedContentType.
  virtual DWORD GetType() const = 0;
  virtual ConfigResult SetType(const DWORD* value) = 0;

  /// `value`: the content. Required.
  virtual const std::wstring& GetValue() const = 0;
  virtual ConfigResult SetValue(const std::wstring* value) = 0;
};

/// Element `extractedContents`: the parts of what was analysed.
class IextractedContents : public tolva::node::INode {
 public:
  virtual IextractedContents& CopyFrom(const IextractedContents& other) = 0;

  /// `extractedContent`: a part of what was analysed. Repeated.
  virtual DWORD GetExtractedContentCount() const = 0;
  virtual IextractedContent* GetExtractedContentAt(DWORD index) = 0;
  virtual ConfigResult AddExtractedContent(const IextractedContent* item) = 0;
  virtual ConfigResult InsertExtractedContentAt(DWORD index, const IextractedContent* item) = 0;
  virtual void RemoveExtractedContentAt(DWORD index) = 0;
  virtual void RemoveAllExtractedContent() = 0;
};

/// Element `additionalData`: additional data about what was analysed.
class IadditionalData : public tolva::node::INode {
 public:
  virtual IadditionalData& CopyFrom(const IadditionalData& other) = 0;

  /// `destinations`: the destinations of what was analysed. Required.
  virtual Idestinations* GetDestinations() = 0;
  virtual ConfigResult SetDestinations(const Idestinations* child) = 0;

  /// `extractedContents`: the parts of what was analysed. Required.
  virtual IextractedContents* GetExtractedContents() = 0;
  virtual ConfigResult SetExtractedContents(const IextractedContents* child) = 0;
};

/// Element `analysisDetails`: the root of the analysis details.
class IanalysisDetails : public tolva::node::INode {
 public:
  virtual IanalysisDetails& CopyFrom(const IanalysisDetails& other) = 0;

  /// `transactionID`: the identifier of the transaction that was analysed. Required.
  virtual const std::wstring& GetTransactionID() const = 0;
  virtual ConfigResult SetTransactionID(const std::wstring* value) = 0;

  /// `version`: the version of the document. Required.
  virtual const std::wstring& GetVersion() const = 0;
  virtual ConfigResult SetVersion(const std::wstring* value) = 0;

  /// `violations`: the violations that were found. Optional.
  virtual ConfigResult GetViolations(Iviolations** out) = 0;
  virtual ConfigResult SetViolations(const Iviolations* child) = 0;

  /// `additionalData`: additional data about what was analysed. Optional.
  virtual ConfigResult GetAdditionalData(IadditionalData** out) = 0;
  virtual ConfigResult SetAdditionalData(const IadditionalData* child) = 0;
};

// Each function returns a new node with default values, which the caller owns.
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
