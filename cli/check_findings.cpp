#include "cli/check_findings.h"

namespace tolva::cli {
namespace {

constexpr CodeInfo kCodes[] = {
    {Code::kNotWellFormed, "not-well-formed", true, "The document is not well-formed XML."},
    {Code::kDtd, "dtd", true,
     "The document has a document type declaration, which the library refuses."},
    {Code::kTooDeep, "too-deep", true, "More than 256 elements are open."},
    {Code::kEncoding, "encoding", true,
     "The encoding is not supported, not the one that is declared, or broken."},
    {Code::kUnknownRoot, "unknown-root", true,
     "The root element is not that of the document that is expected."},
    {Code::kMissingAttribute, "missing-attribute", true, "A required attribute is absent."},
    {Code::kMissingChild, "missing-child", true, "A required element is absent."},
    {Code::kMissingContent, "missing-content", true, "An element lacks its required text."},
    {Code::kBadNumber, "bad-number", true, "A number has other characters than digits."},
    {Code::kBadEnum, "bad-enum", true, "The value is none of the texts that are allowed."},
    {Code::kUnknownAttribute, "unknown-attribute", false,
     "The library does not know the attribute and ignores it."},
    {Code::kUnknownElement, "unknown-element", false,
     "The library does not know the element and ignores it."},
    {Code::kDuplicateChild, "duplicate-child", false,
     "An element that is expected once occurs again; the last one counts."},
    {Code::kNumberRange, "number-range", false, "The text is read as another number."},
    {Code::kTextIgnored, "text-ignored", false,
     "The library ignores text in an element that has none."},
    {Code::kContentCut, "content-cut", false,
     "Only a part of an element's text is read, or something else in its place."},
    {Code::kNotReadBack, "not-read-back", false,
     "What the library would write for the document could not be read again."},
};

}  // namespace

std::span<const CodeInfo> Codes() { return kCodes; }

const CodeInfo& InfoOf(Code code) { return kCodes[static_cast<std::size_t>(code)]; }

}  // namespace tolva::cli
