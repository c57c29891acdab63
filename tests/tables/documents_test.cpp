// The example of every document: it is read and written as it is, and all its faults are reported.
#include <gtest/gtest.h>

#include <memory>

#include "support/capabilities.h"
#include "support/nodes.h"
#include "support/values.h"
#include "support/writer_faults.h"
#include "tables/elements.h"
#include "tables/example.h"

namespace tolva::test {
namespace {

struct Document {
  const char* name;  ///< of its file in examples/documents
  std::string_view root;
  Departures departures = {};
};

/// The Active Directory element, as it is embedded.
Departures WithActiveDirectory(Departures departures) {
  departures.reports.insert({
      {L"XMLManager: fail to add element: DefaultDomain",
       L"XMLManager: failed to add element: DefaultDomain"},
      {L"XMLManager: read require element failed. element:DefaultDomain",
       L"XMLManager: read require element failed. element:DefDomain"},
      {L"XMLManager: sub-element DefaultDomain is missing",
       L"XMLManager: sub-element DefDomain is missing"},
      {L"XMLManager: read required ENUM Attribute failed. element:DefaultDomain, attr:Name",
       L"XMLManager: read required string Attribute failed. element:DefaultDomain, attr:Name"},
  });
  departures.dispensable.insert(L"DefaultDomain/Enabled");
  departures.unchecked.insert({L"DefaultDomain/Enabled", L"DefaultDomain/Name"});
  return departures;
}

const std::pair<const std::wstring, std::wstring> kReadActiveDirectory = {
    L"XMLManager: read require element failed. element:ActiveDirectory",
    L"XMLManager: read element failed. element:ActiveDirectory"};
const std::pair<const std::wstring, std::wstring> kWriteActiveDirectory = {
    L"XMLManager: write optional element failed. element:ActiveDirectory",
    L"XMLManager: write element failed. element:ActiveDirectory"};
const std::pair<const std::wstring, std::wstring> kTelemetry = {
    L"XMLManager: read required dword/bool Attribute failed. element:ClientSetting, "
    L"attr:EnableTelemetry",
    L"XMLManager: read dword/bool Attribute failed. element:ClientSetting, attr:EnableTelemetry"};

/// The list of domains without script injection is silent, and its parent takes it for another.
const Departures kPolicy = {
    .reports = {{L"XMLManager: fail to add element: JSExcludeDomain",
                 L"JSExcudeDomain: fail to add element"},
                {L"XMLManager: fail to close element: JSExcludeDomain",
                 L"JSExcudeDomain: fail to close element"},
                {L"XMLManager: write none to multiple element failed. element:JSExcludeDomain",
                 L""},
                {L"XMLManager: fail to add element: ExcludeJSInjectionDomains", L""},
                {L"XMLManager: fail to close element: ExcludeJSInjectionDomains", L""},
                {L"XMLManager: write optional element failed. element:ExcludeJSInjectionDomains",
                 L"XMLManager: write optional element failed. element:LocalProxies"},
                kReadActiveDirectory,
                kWriteActiveDirectory},
    .reported_names = {{L"ILPProtection/ILPInlineProxy", L"ILPInLineProxy"},
                       {L"ExcludeJSInjectionDomains/ExcludeDomain", L"JSExcludeDomain"}},
    .announced = {{L"ILPProtection/ILPInlineProxy",
                   {L"XMLManager: writingelement:ILPInLineProxy",
                    L"XMLManager: writingelement:ILPInLineProxy was sucessful"}}}};

const Departures kProxy = {
    .reports = {kTelemetry,
                {L"XMLManager: write optional element failed. element:ActiveDirectory",
                 L"XMLManager: write require element failed. element:ActiveDirectory"}}};

const Document kDocuments[] = {
    {"active-directory", "ClientConfig::ActiveDir", WithActiveDirectory({})},
    {"policy", "TolvaInterface::ILPClientConfiguration", WithActiveDirectory(kPolicy)},
    {"ng", "NGConfInterface::INGClientConfiguration",
     WithActiveDirectory({.reports = {kReadActiveDirectory, kWriteActiveDirectory}})},
    {"global", "GlobalConfInterface::IGLOBALClientConfiguration"},
    {"proxy", "ProxyClientConfig::IPXYClientConfiguration", WithActiveDirectory(kProxy)},
    {"ci", "CIConfInterface::ICIClientConfiguration", {.reports = {kTelemetry}}},
    {"remote-filtering",
     "RFConfInterface::IRFClientConfiguration",
     {.reports = {kTelemetry}, .dispensable = {L"ClientSetting/EnableTelemetry"}}},
    {"analysis-details",
     "CpsAnalysisDetailsConf::analysisDetails",
     {.dispensable = {L"violation/customDisplayText"},
      .lenient = {L"count", L"customDisplayText"}}},
    {"message-catalogue", "MessageConf::EndPointMessage"},
    {"install-config", "IpbtConf::InstallConfig"},
    {"patch-history", "PatchFileHistory::EndpointFilePatches"},
};

/// For GoogleTest.
void PrintTo(const Document& document, std::ostream* stream) { *stream << document.name; }

Element Root(const Document& document) {
  for (const Element& element : AllElements()) {
    if (element.name == document.root) return element;
  }
  throw std::runtime_error("no such element");
}

class Documents : public testing::TestWithParam<Document> {
 protected:
  std::unique_ptr<node::INode> Make() const { return std::unique_ptr<node::INode>(root_.make()); }

  const Element root_ = Root(GetParam());
  const Example example_{GetParam().name, *root_.schema, GetParam().departures};
};

TEST_P(Documents, AreReadAndWritten) {
  const auto root = Make();
  Diagnostics diagnostics;
  ASSERT_EQ(ReadText(*root, example_.text()), 0);
  EXPECT_EQ(diagnostics.Take(), Texts{});
  const std::string written = WriteFile(*root);
  const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
  EXPECT_NE(written.find(declaration), std::string::npos);
  if (!WriterEscapes()) return;
#if defined(TOLVA_OWN_XML_LAYER)
  EXPECT_EQ(written, declaration + "\n" + ValueOf<std::string>(example_.text()));
#endif
  const auto again = Make();
  ASSERT_EQ(ReadFile(*again, TempFile(written).path()), 0);
  EXPECT_EQ(WriteFile(*again), written);
}

/// After a failure the root is at its defaults.
TEST_P(Documents, HaveTheirFaultsReported) {
  const std::string fresh = WriteText(*Make());
  for (const Example::ReadFault& fault : example_.ReadFaults()) {
    const auto root = Make();
    Diagnostics diagnostics;
    EXPECT_EQ(ReadText(*root, fault.document), fault.result);
    EXPECT_EQ(diagnostics.Take(), fault.reports);
    EXPECT_TRUE(fault.result == 0 || WriteText(*root) == fresh);
    if (HasFailure()) FAIL() << testing::PrintToString(fault.document);
  }
}

TEST_P(Documents, AreReadToTheEndOfTheInput) {
  TOLVA_REQUIRE(ReaderEndsTruncatedInput);
  const std::string fresh = WriteText(*Make());
  const auto root = Make();
  const std::wstring_view text = example_.text();
  for (std::size_t size = 1; size <= text.find_last_of(L'>'); ++size) {
    const ConfigResult result = ReadText(*root, text.substr(0, size));
    if (result == 0) {
      ASSERT_EQ(tolvaGetLastError() & 0xFFFFF000U, 0xC00CE000U) << size;
    } else if (size % 16 == 0) {
      ASSERT_EQ(WriteText(*root), fresh) << size;
    }
  }
}

TEST_P(Documents, HaveFailedWritesReported) {
  const auto root = Make();
  ASSERT_EQ(ReadText(*root, example_.text()), 0);
  const std::vector<Example::Write> writes = example_.Writes();
  Texts announced;
  Texts all;
  for (const Example::Write& write : writes) {
    all.insert(all.end(), write.announced.begin(), write.announced.end());
  }
  for (std::size_t n = 0; n < writes.size(); ++n) {
    const auto& [reports, before] = writes[n];
    announced.insert(announced.end(), before.begin(), before.end());
    Texts expected = reports.empty() ? all : announced;
    expected.insert(expected.end(), reports.begin(), reports.end());
    ConfigResult result = 0;
    EXPECT_EQ(ReportsOfFault(*root, static_cast<int>(n), &result), expected) << n;
    EXPECT_EQ(result, reports.empty() ? 0 : -101) << n;
  }
}

INSTANTIATE_TEST_SUITE_P(All, Documents, testing::ValuesIn(kDocuments), [](const auto& tested) {
  std::string name = tested.param.name;
  std::erase(name, '-');
  return name;
});

}  // namespace
}  // namespace tolva::test
