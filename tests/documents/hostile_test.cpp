// Documents that were made to do harm, through the exported functions.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>
#include <vector>

#include "support/capabilities.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

TEST(HostileDocuments, AreRefusedOrRead) {
  TOLVA_REQUIRE(ReaderEndsTruncatedInput);
  struct Case {
    const char* what;
    std::string document;
    std::wstring name = L"x";  ///< of the domain, afterwards
    ConfigResult result = 0;
    Texts reports = {};
  };
  const auto document = [](const std::string& inside) {
    return "<ActiveDirectory>" + inside + "</ActiveDirectory>";
  };
  const std::string domain = "<DefaultDomain Name='x'/>";
  const Texts missing{L"XMLManager: sub-element DefDomain is missing"};
  const Texts no_name{
      L"XMLManager: read required string Attribute failed. element:DefaultDomain, attr:Name",
      L"XMLManager: read require element failed. element:DefDomain"};
  constexpr std::size_t kLarge = std::size_t{4} << 20;
  constexpr std::size_t kLargest = std::size_t{64} << 20;
  std::string attributes;
  for (int i = 0; i < 100'000; ++i) attributes += " a" + std::to_string(i) + "='1'";

  const std::vector<Case> cases = {
      {"a long value", document("<DefaultDomain Name='" + std::string(kLargest, 'x') + "'/>"),
       std::wstring(kLargest, L'x')},
      {"a long name", document("<" + std::string(kLarge, 'x') + "/>" + domain)},
      {"a long number",
       document("<DefaultDomain Name='x' Enabled='" + std::string(kLarge, '0') + "'/>")},
      {"many attributes", document("<DefaultDomain" + attributes + " Name='x'/>")},
      {"a zero in a value", document(std::string("<DefaultDomain Name='a\0b'/>", 27)), L"", -101,
       missing},
      {"a zero in front", std::string(1, '\0') + document(domain), L"", -102},
      {"two roots", document(domain) + document(domain)},
      {"no end", "<ActiveDirectory>" + domain + "<a><b>"},
      {"no domain", "<ActiveDirectory><a><b>", L"", -101, missing},
      {"no name", document("<DefaultDomain/>") + "<", L"", -101, no_name},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.what);
    const TempFile file(one.document);
    const std::unique_ptr<ClientConfig::IActiveDirectory> root(
        ClientConfig::ActiveDir_CreateNewInstance());
    const ManagerPtr reader = MakeReader();
    Diagnostics diagnostics;
    ASSERT_EQ(reader->OpenFile(file.Wide().c_str()), 0);
    EXPECT_EQ(root->ReadFromXMLMgr(reader.get()), one.result);
    EXPECT_EQ(diagnostics.Take(), one.reports);
    EXPECT_TRUE(root->GetDefaultDomain()->GetName() == one.name);
  }
}

}  // namespace
}  // namespace tolva::test
