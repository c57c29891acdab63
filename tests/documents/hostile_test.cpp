// Documents that were made to do harm, through the exported functions.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/capabilities.h"
#include "support/nodes.h"

namespace tolva::test {
namespace {

std::string Repeat(std::string_view piece, std::size_t count) {
  std::string text;
  while (count-- != 0) text += piece;
  return text;
}

std::unique_ptr<ClientConfig::IActiveDirectory> Read(const TempFile& file, ConfigResult result) {
  std::unique_ptr<ClientConfig::IActiveDirectory> root(ClientConfig::ActiveDir_CreateNewInstance());
  const ManagerPtr reader = MakeReader();
  EXPECT_EQ(reader->OpenFile(file.Wide().c_str()), 0);
  EXPECT_EQ(root->ReadFromXMLMgr(reader.get()), result);
  return root;
}

TEST(HostileDocuments, AreRefusedOrRead) {
  TOLVA_REQUIRE(ReaderEndsTruncatedInput);
  struct Case {
    const char* what;
    std::string inside;  ///< the document's element
    bool is_read = false;
  };
  const std::string domain = "<DefaultDomain Name='x'/>";
  std::string attributes;
  for (int i = 0; i < 100'000; ++i) attributes += " a" + std::to_string(i) + "='1'";
  const std::string zeros(std::size_t{4} << 20, '0');
  const Case cases[] = {
      {"255 levels", Repeat("<a>", 255) + Repeat("</a>", 255) + domain, true},
      {"257 levels", Repeat("<a>", 256) + Repeat("</a>", 256) + domain},
      {"a long number", "<DefaultDomain Name='x' Enabled='" + zeros + "'/>", true},
      {"a long name", "<a" + zeros + "/>" + domain, true},
      {"many attributes", "<DefaultDomain" + attributes + " Name='x'/>", true},
      {"twin attributes", "<DefaultDomain Name='x'" + attributes + " Name='y'/>"},
      {"an entity", "<DefaultDomain Name='&e;'/>"},
      {"malformed UTF-8 in a value", "<DefaultDomain Name='\xC3\x28'/>"},
      {"malformed UTF-8 behind", domain + "\xFF", true},
      {"a zero in a value", std::string("<DefaultDomain Name='a\0b'/>", 27)},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.what);
    const TempFile file("<ActiveDirectory>" + one.inside + "</ActiveDirectory>");
    Diagnostics diagnostics;
    const auto root = Read(file, one.is_read ? 0 : -101);
    EXPECT_EQ(diagnostics.Take(),
              one.is_read ? Texts{} : Texts{L"XMLManager: sub-element DefDomain is missing"});
    EXPECT_EQ(root->GetDefaultDomain()->GetName(), one.is_read ? L"x" : L"");
  }
  for (const char* const start :
       {"<!DOCTYPE a [<!ENTITY e 'x'>]>", "<?xml version='1.0' encoding='UTF-7'?>", "\xFF"}) {
    Read(TempFile(start + ("<ActiveDirectory>" + domain + "</ActiveDirectory>")), -102);
  }
}

}  // namespace
}  // namespace tolva::test
