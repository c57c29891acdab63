// The texts of the diagnostics, each once. Callers and their tools rely on the wording, with all
// its slips and inconsistencies: never correct it.
#pragma once

#include <string_view>

namespace tolva::node {

// ---- beginnings, followed by the name of an element and perhaps of an attribute ----------------

// setting
inline constexpr std::wstring_view kSetAttributeParam =
    L"XMLManager: set Attribute failed due to param pointer is NULL.";
inline constexpr std::wstring_view kSetAttributeParama =
    L"XMLManager: set Attribute failed due to parama pointer is NULL.";
inline constexpr std::wstring_view kSetElement =
    L"XMLManager: Set element failed due to param is NULL.";

// writing; a number that cannot be written is reported as if it had been read
inline constexpr std::wstring_view kWriteNumber =
    L"XMLManager: read required DWORD/BOOL Attribute failed.";
inline constexpr std::wstring_view kWriteString =
    L"XMLManager: write required string Attribute failed.";
inline constexpr std::wstring_view kWriteEnum =
    L"XMLLiteManager: write required ENUM Attribute failed.";
inline constexpr std::wstring_view kWriteRequiredChild =
    L"XMLManager: write require element failed.";
inline constexpr std::wstring_view kWriteOptionalChild =
    L"XMLManager: write optional element failed.";
inline constexpr std::wstring_view kWriteItem =
    L"XMLManager: write none to multiple element failed.";
inline constexpr std::wstring_view kWriteStringContent =
    L"XMLManager: write required content string failed.";
inline constexpr std::wstring_view kWriteNumberContent =
    L"XMLManager: write required content DWORD/BOOL failed.";

// reading; most documents report a missing string as if it were an ENUM
inline constexpr std::wstring_view kReadNumber =
    L"XMLManager: read required dword/bool Attribute failed.";
inline constexpr std::wstring_view kReadString =
    L"XMLManager: read required string Attribute failed.";
inline constexpr std::wstring_view kReadStringAsEnum =
    L"XMLManager: read required ENUM Attribute failed.";
inline constexpr std::wstring_view kReadAbsentEnum =
    L"XMLLITEManager: read required ENUM Attribute failed.";
inline constexpr std::wstring_view kReadUnknownEnum =
    L"XMLLiteManager: read required ENUM Attribute failed.";
inline constexpr std::wstring_view kReadUnknownOptionalEnum =
    L"XMLLiteManager: read optional ENUM Attribute failed due to unknow enum type.";
inline constexpr std::wstring_view kReadChild = L"XMLManager: read require element failed.";
inline constexpr std::wstring_view kReadItem = L"XMLManager: read  multiple element failed.";
inline constexpr std::wstring_view kReadStringContent =
    L"XMLManager: read required string content failed.";
inline constexpr std::wstring_view kReadNumberContent =
    L"XMLManager: read required dword/bool content failed.";

// ---- whole texts -------------------------------------------------------------------------------

inline constexpr std::wstring_view kWriteRequireManager =
    L"XMLManager: WriteToXMLMgr require xmlmanager pointer is NULL.";
inline constexpr std::wstring_view kWriteRequiredManager =
    L"XMLManager: WriteToXMLMgr required xmlmanager pointer is NULL.";
inline constexpr std::wstring_view kReadRequireManager =
    L"XMLManager: ReadFromXMLMgr require xmlmanager pointer is NULL.";
inline constexpr std::wstring_view kReadRequiredManager =
    L"XMLManager: ReadFromXMLMgr required xmlmanager pointer is NULL.";

// for children and attributes that several documents share
inline constexpr std::wstring_view kWriteActiveDirectory =
    L"XMLManager: write element failed. element:ActiveDirectory";
inline constexpr std::wstring_view kReadActiveDirectory =
    L"XMLManager: read element failed. element:ActiveDirectory";
inline constexpr std::wstring_view kReadEnableTelemetry =
    L"XMLManager: read dword/bool Attribute failed. element:ClientSetting, attr:EnableTelemetry";

// ---- reporting: each function passes one text to the diagnostic callback -----------------------

/// Reports the text unchanged; reports nothing if it is empty.
void Report(std::wstring_view text);

/// "<beginning> element:<element>, attr:<attribute>"
void ReportAttribute(std::wstring_view beginning, std::wstring_view element,
                     std::wstring_view attribute);

/// "<beginning> element:<element>"
void ReportElement(std::wstring_view beginning, std::wstring_view element);

/// "XMLManager: fail to add element: <element>"
void ReportNotAdded(std::wstring_view element);

/// "XMLManager: fail to close element: <element>"
void ReportNotClosed(std::wstring_view element);

/// "XMLManager: sub-element <element> is missing"
void ReportMissing(std::wstring_view element);

}  // namespace tolva::node
