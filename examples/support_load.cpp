// An example of docs/support.md; a check compares the two.
// [example]
#include <tolva/support.h>

#include <iostream>

namespace support = tolva::support;

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::filesystem::path file = argv[1];
  const auto [policy, report] = support::Load<TolvaInterface::IILPClientConfiguration>(file);
  for (const std::string& text : report.diagnostics) std::cerr << text << "\n";
  if (!report) std::cerr << support::PathToUtf8(file) << ": " << report.message << "\n";
  switch (report.outcome) {
    case support::LoadOutcome::kLoaded:
      std::cout << support::ToUtf8(policy->GetName()) << "\n";
      return 0;
    case support::LoadOutcome::kOtherDocument:
      if (const auto* const kind = support::FindDocument(report.root_element)) {
        std::cerr << "this is a document of the kind " << kind->name << "\n";
      }
      return 1;
    default:
      return 1;
  }
}
// [example]
