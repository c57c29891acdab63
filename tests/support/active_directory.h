// What tests of several documents know of the Active Directory element.
#pragma once

#include <utility>
#include <vector>

#include "support/example.h"

namespace tolva::test {

/// The Active Directory element, as it is embedded.
inline std::vector<ElementRule> WithActiveDirectory(std::vector<ElementRule> rules) {
  rules.push_back({L"ActiveDirectory", L"", L"DefaultDomain!"});
  rules.push_back({L"DefaultDomain", L"Enabled:N?~ Name:S!~", L""});
  return rules;
}

inline Departures WithActiveDirectory(Departures departures) {
  departures.texts.insert({
      {L"XMLManager: fail to add element: DefaultDomain",
       L"XMLManager: failed to add element: DefaultDomain"},
      {L"XMLManager: read require element failed. element:DefaultDomain",
       L"XMLManager: read require element failed. element:DefDomain"},
      {L"XMLManager: sub-element DefaultDomain is missing",
       L"XMLManager: sub-element DefDomain is missing"},
      {L"XMLManager: read required ENUM Attribute failed. element:DefaultDomain, attr:Name",
       L"XMLManager: read required string Attribute failed. element:DefaultDomain, attr:Name"},
  });
  return departures;
}

}  // namespace tolva::test
