// Documents that are whole, damaged, refused, of another kind or not there.
#include <gtest/gtest.h>
#include <tolva/support.h>

#include <atomic>
#include <string>
#include <thread>
#include <tuple>

#include "support/capabilities.h"
#include "support/files.h"

namespace tolva::support {
namespace {

using namespace std::string_literals;
using ClientConfig::IActiveDirectory;
using test::TempFile;

const std::wstring kDomain =
    L"<ActiveDirectory><DefaultDomain Name='corp.example'/></ActiveDirectory>";
const std::filesystem::path kDocumentsFolder = TOLVA_DOCUMENTS;

/// What came of an Active Directory document: outcome, result, error, message.
using Account = std::tuple<LoadOutcome, ConfigResult, DWORD, std::string>;

void Expect(const Loaded<IActiveDirectory>& loaded, const Account& account) {
  const LoadReport& report = loaded.report;
  EXPECT_EQ(Account(report.outcome, report.result, report.error, report.message), account);
  const LoadOutcome outcome = report.outcome;
  EXPECT_EQ(!report, outcome != LoadOutcome::kLoaded);
  const bool has_root = outcome == LoadOutcome::kLoaded || outcome == LoadOutcome::kDamaged;
  EXPECT_EQ(loaded.root != nullptr, has_root) << report.message;
  EXPECT_TRUE(outcome != LoadOutcome::kRefused || !report.diagnostics.empty());
}

void ExpectBytes(const std::string& bytes, const Account& account) {
  Expect(Load<IActiveDirectory>(TempFile(bytes).path()), account);
  if (!bytes.empty()) Expect(LoadFromString<IActiveDirectory>(ToWide(bytes)), account);
}

TEST(Load, TellsWhatCame) {
  const std::string domain = ToUtf8(kDomain);
  ExpectBytes(domain, {LoadOutcome::kLoaded, 0, 0, ""});
  EXPECT_EQ(LoadFromString<IActiveDirectory>(kDomain).root->GetDefaultDomain()->GetName(),
            L"corp.example");
  ExpectBytes("<?xml version='1.0'?><InstallConfig/>",
              {LoadOutcome::kOtherDocument, -102, 0,
               "The root element is 'InstallConfig', not 'ActiveDirectory'."});
  ExpectBytes("<ActiveDirectory><DefaultDomain/></ActiveDirectory>",
              {LoadOutcome::kRefused, -101, 0,
               "Something required is missing or has a malformed value: XMLManager: read required "
               "string Attribute failed. element:DefaultDomain, attr:Name."});
  ExpectBytes(domain + "b", {LoadOutcome::kDamaged, -101, 0xC00CEE2D,
                             "The document was read, but what follows is damaged: there is "
                             "something that must not stand there."});
  ExpectBytes("<!DOCTYPE ActiveDirectory>" + domain,
              {LoadOutcome::kNotWellFormed, -102, 0xC00CEE4F,
               "There is a document type declaration, which is not accepted."});
  ExpectBytes("<ActiveDirectory><DefaultDomain Name='<'/></ActiveDirectory>",
              {LoadOutcome::kNotWellFormed, -101, 0xC00CEE26, "An attribute value holds a '<'."});
  const auto other = LoadFromString<IActiveDirectory>(L"<p:other xmlns:p='q'/>");
  EXPECT_EQ(other.report.root_element, "other");
}

TEST(Load, TellsDocumentsThatBreakOff) {
  TOLVA_REQUIRE(ReaderEndsTruncatedInput);
  const std::string domain = ToUtf8(kDomain);
  for (std::size_t size = 1; size < domain.size(); ++size) {
    const auto loaded = Load<IActiveDirectory>(TempFile(domain.substr(0, size)).path());
    EXPECT_EQ(loaded.report.error, 0xC00CEE01) << size;
    const bool is_read = domain.find("/>") + 2 <= size;
    EXPECT_EQ(loaded.report.outcome, is_read ? LoadOutcome::kDamaged : LoadOutcome::kNotWellFormed)
        << size;
  }
}

TEST(Load, TellsFilesThatCannotBeRead) {
  ExpectBytes("", {LoadOutcome::kNotWellFormed, -101, 0, "The file is empty."});
  Expect(Load<IActiveDirectory>("no-such-file.xml"),
         {LoadOutcome::kUnreadable, -101, 2, "The file does not exist."});
  Expect(Load<IActiveDirectory>(kDocumentsFolder),
         {LoadOutcome::kUnreadable, -101, 5, "Access is denied."});
  Expect(Load<IActiveDirectory>(PathFromUtf8("a\0b"s)),
         {LoadOutcome::kUnreadable, -101, 123, "The library cannot open a file of this name."});
  Expect(LoadFromString<IActiveDirectory>(L""),
         {LoadOutcome::kNotWellFormed, -102, 0, "The document is empty."});
  Expect(LoadFromString<IActiveDirectory>(kDomain + L'\0' + L'<'),
         {LoadOutcome::kNotWellFormed, -101, 0xC00CEE2B, DescribeError(0xC00CEE2B)});
#if !defined(_WIN32)
  Expect(Load<IActiveDirectory>("/dev/null"),
         {LoadOutcome::kUnreadable, -101, 0, "It is not a regular file."});
  Expect(Load<IActiveDirectory>("Z\xFCrich.xml"),
         {LoadOutcome::kUnreadable, -101, 123, "The library cannot open a file of this name."});
#endif
}

std::atomic<int> passed_on = 0;

/// Reports hold what their own thread caused, and the program's callback gets it all.
TEST(Diagnostics, BelongToTheirCall) {
  passed_on = 0;
  SetDiagnosticCallback([](const wchar_t*) {
    // Each of the two texts of one thread comes with one of the other.
    const int both = ++passed_on <= 2 ? 2 : 4;
    while (passed_on < both) std::this_thread::yield();
  });
  LoadReport other;
  std::thread thread([&other] {
    other = LoadFromString<IActiveDirectory>(L"<ActiveDirectory><DefaultDomain/></ActiveDirectory>")
                .report;
  });
  const LoadReport own =
      LoadFromString<IActiveDirectory>(
          L"<ActiveDirectory><DefaultDomain Enabled='x' Name=''/></ActiveDirectory>")
          .report;
  thread.join();
  SetDiagnosticCallback(nullptr);
  LoadFromString<IActiveDirectory>(L"<ActiveDirectory/>");
  EXPECT_EQ(passed_on, 4);
  ASSERT_EQ(own.diagnostics.size(), 2U);
  ASSERT_EQ(other.diagnostics.size(), 2U);
  EXPECT_NE(own.diagnostics.front().find("attr:Enabled"), std::string::npos);
  EXPECT_NE(other.diagnostics.front().find("attr:Name"), std::string::npos);
}

}  // namespace
}  // namespace tolva::support
