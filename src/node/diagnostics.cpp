#include "node/diagnostics.h"

#include <initializer_list>
#include <string>

#include "xml/debug_dump.h"

namespace tolva::node {
namespace {

void Dump(std::initializer_list<std::wstring_view> pieces) {
  std::wstring text;
  for (const std::wstring_view piece : pieces) text += piece;
  xml::DebugDump(text.c_str());
}

}  // namespace

void Report(std::wstring_view text) {
  if (!text.empty()) Dump({text});
}

void ReportAttribute(std::wstring_view beginning, std::wstring_view element,
                     std::wstring_view attribute) {
  Dump({beginning, L" element:", element, L", attr:", attribute});
}

void ReportElement(std::wstring_view beginning, std::wstring_view element) {
  Dump({beginning, L" element:", element});
}

void ReportNotAdded(std::wstring_view element) {
  Dump({L"XMLManager: fail to add element: ", element});
}

void ReportNotClosed(std::wstring_view element) {
  Dump({L"XMLManager: fail to close element: ", element});
}

void ReportMissing(std::wstring_view element) {
  Dump({L"XMLManager: sub-element ", element, L" is missing"});
}

}  // namespace tolva::node
