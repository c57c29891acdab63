// What `check` finds, where, and that its verdict is the library's.
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <random>
#include <set>

#include "cli/check_walk.h"
#include "cli/encoded.h"
#include "cli/new.h"
#include "cli/run.h"
#include "cli/text.h"
#include "support/nodes.h"
#include "support/streams.h"
#include "tables/example.h"

namespace tolva::test {
namespace {

using cli::Code;

using Findings = std::vector<cli::Finding>;

class Collector final : public cli::FindingSink {
 public:
  explicit Collector(Findings& findings) : findings_(findings) {}
  bool Count(Code /*code*/) override { return true; }
  void Add(cli::Finding finding) override { findings_.push_back(std::move(finding)); }

 private:
  Findings& findings_;
};

Findings Check(std::string_view bytes, std::size_t block = 1 << 16) {
  TextStream stream(bytes, block);
  Findings findings;
  Collector collector(findings);
  cli::WalkDocument(stream, {}, collector);
  return findings;
}

bool Has(const Findings& findings, Code code) {
  return std::ranges::any_of(findings, [code](const auto& one) { return one.code == code; });
}

bool HasError(const Findings& findings) {
  return std::ranges::any_of(findings,
                             [](const auto& one) { return cli::InfoOf(one.code).is_error; });
}

// ---- the verdict -------------------------------------------------------------------------------

/// An example without its declaration: in a string, the library ignores the encoding.
std::wstring TextOf(const cli::Document& document) {
  const std::string name = TOLVA_DOCUMENTS "/" + std::string(document.name) + ".xml";
  const std::wstring text = cli::ToWide(TempFile::ReadFile(name));
  return text.substr(text.find(L"?>") + 2);
}

/// Compares the verdicts on a document: that on reading it, and that on writing and reading again.
class Verdicts {
 public:
  explicit Verdicts(const cli::Document& document) : document_(document) {}

  void Compare(const std::wstring& text) {
    ++count;
    Diagnostics ignored;
    const auto node = document_.make();
    const bool is_read = IsRead(text, *node);
    const Findings findings = Check(cli::ToUtf8(text));
    ASSERT_EQ(HasError(findings), !is_read) << cli::ToUtf8(text);
    if (!is_read || Has(findings, Code::kDuplicateChild)) return;
    // What is written of a document without findings is seldom new.
    if (findings.empty() && count % 8 != 0) return;
    const bool is_read_back = IsRead(cli::ToWide(WriteFile(*node)), *document_.make());
    ASSERT_EQ(Has(findings, Code::kNotReadBack), !is_read_back) << cli::ToUtf8(text);
  }

  unsigned count = 0;

 private:
  static bool IsRead(const std::wstring& text, node::INode& node) {
    const ManagerPtr reader = MakeReader();
    tolvaSetLastError(0);
    if (reader->OpenFromString(text.c_str()) != 0) return false;
    return node.ReadFromXMLMgr(reader.get()) == 0 && tolvaReadToEnd(reader.get()) == 0;
  }

  const cli::Document& document_;
};

class CheckedExample : public testing::TestWithParam<std::size_t> {
 protected:
  const cli::Document& document() const { return cli::Documents()[GetParam()]; }
};

TEST_P(CheckedExample, IsFine) {
  const std::string text = cli::ToUtf8(TextOf(document()));
  EXPECT_TRUE(Check(text).empty());
  EXPECT_TRUE(Check(text, 1).empty());
  for (const auto content : {cli::NewContent::kRequired, cli::NewContent::kEverything}) {
    EXPECT_TRUE(Check(cli::NewDocument(document(), content)).empty());
  }
}

/// Every fault that the tests know: what is absent or malformed, a document that breaks off, and
/// what may mislead the library inserted between any two tags.
TEST_P(CheckedExample, IsJudgedAsTheLibraryDoes) {
  Verdicts verdicts(document());
  const std::wstring text = TextOf(document());
  const Departures none;  // concern reports, which are not looked at
  const std::string name(document().name);
  for (const auto& fault : Example(name.c_str(), *document().root().schema, none).ReadFaults()) {
    verdicts.Compare(fault.document);
  }
  for (std::size_t size = 1; size < text.size(); size += 1 + text.size() / 500) {
    verdicts.Compare(text.substr(0, size));
  }
  const std::wstring inserted[] = {L"x",
                                   L"<b/>",
                                   L"<b>c</b>",
                                   L"<b><c>d</c></b>",
                                   L"<!-- c -->",
                                   L"<!---->",
                                   L"<?p d?>",
                                   L"<![CDATA[5]]>",
                                   L"<![CDATA[]]>",
                                   L" ",
                                   L"&#32;",
                                   L"</b>",
                                   L"<b>",
                                   L"&x;",
                                   L"<x:b/>",
                                   L"]]>"};
  std::mt19937 random(1);
  for (std::size_t at = text.find(L'>'); at != std::wstring::npos; at = text.find(L'>', at + 1)) {
    for (const std::wstring& piece : inserted) {
      if (text.size() > 10000 && random() % 4 != 0) continue;
      std::wstring spoilt = text;
      verdicts.Compare(spoilt.insert(at + 1, piece));
      // In the place of what follows: of a text, or of the space between tags.
      const std::size_t next = text.find(L'<', at + 1);
      if (next == std::wstring::npos) continue;
      verdicts.Compare(text.substr(0, at + 1) + piece + text.substr(next));
    }
  }
  // Anything in the place of anything.
  for (int i = 0; i < 1000; ++i) {
    const auto place = [&] { return random() % text.size(); };
    const std::size_t from = place();
    std::wstring spoilt = text.substr(0, place());
    spoilt += text.substr(from, random() % 40) + text.substr(std::min(spoilt.size(), text.size()));
    verdicts.Compare(spoilt);
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(verdicts.count, 1000U);
}

std::string NameOf(const testing::TestParamInfo<std::size_t>& one) {
  std::string name(cli::Documents()[one.param].name);
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, CheckedExample,
                         testing::Range<std::size_t>(0, cli::Documents().size()), &NameOf);

// ---- places ------------------------------------------------------------------------------------

struct Place {
  Code code;
  const char* document;  ///< with a bar before what the finding is about
};

const Place kPlaces[] = {
    {Code::kNotWellFormed, "<ActiveDirectory>\n<DefaultDomain Enabled='1' Name='é'/>|</b>"},
    {Code::kNotWellFormed, "<ActiveDirectory>\n<DefaultDomain Enabled='1' Name='é'/|>"},
    {Code::kNotWellFormed, "<ActiveDirectory>\n<DefaultDomain Enabled='1' Name='é'/>|\n"},
    {Code::kNotWellFormed, "<ActiveDirectory>\n<DefaultDomain Name='é' Enabled='1'|Name='x'/>"},
    {Code::kNotWellFormed, "<ActiveDirectory>\n<DefaultDomain Name='é' |Name='1'/>"},
    {Code::kNotWellFormed, "<ActiveDirectory>\n<DefaultDomain Name='é' |x:y='1'/>"},
    {Code::kNotWellFormed, "<ActiveDirectory>\n<DefaultDomain Name='é' Enabled |1/>"},
    {Code::kNotWellFormed, "<ActiveDirectory>\n<DefaultDomain Name='é|&b;'/>"},
    {Code::kNotWellFormed, "<ActiveDirectory>\n<DefaultDomain Name='é|<'/>"},
    {Code::kNotWellFormed, "<ActiveDirectory>\n<!-- é |-- -->"},
    {Code::kNotWellFormed, "<ActiveDirectory><!-- é --></ActiveDirectory |x>"},
    {Code::kNotWellFormed, "<ActiveDirectory>é|]]>"},
    {Code::kNotWellFormed, "<!-- é -->|x"},
    {Code::kNotWellFormed, "<!-- é --|>"},
    {Code::kDtd, "<!-- é -->|<!DOCTYPE ActiveDirectory>"},
    {Code::kUnknownRoot, "<!-- é -->|<ActiveDirectroy/>"},
    {Code::kMissingAttribute,
     "<ActiveDirectory><!-- é -->|<DefaultDomain Enabled='1'/>"
     "</ActiveDirectory>"},
    {Code::kMissingChild, "<!-- é -->|<ActiveDirectory>\n<!-- x --></ActiveDirectory>"},
    {Code::kBadNumber,
     "<ActiveDirectory>\n<DefaultDomain Name='é' Enabled='|x1'/></ActiveDirectory>"},
    {Code::kNumberRange,
     "<ActiveDirectory>\n<DefaultDomain Name='é' Enabled='|2147483648'/>"
     "</ActiveDirectory>"},
    {Code::kUnknownAttribute,
     "<ActiveDirectory>\n<DefaultDomain Name='é' Enabled='1' |name='x'/>"
     "</ActiveDirectory>"},
    {Code::kUnknownElement,
     "<ActiveDirectory>\n<DefaultDomain Name='é' Enabled='1'/>|<b><c/>x</b>"
     "</ActiveDirectory>"},
    {Code::kDuplicateChild,
     "<ActiveDirectory>\n<DefaultDomain Name='é' Enabled='1'/>\n\n"
     "|<DefaultDomain Name='é' Enabled='1'/></ActiveDirectory>"},
    {Code::kTextIgnored,
     "<ActiveDirectory>\n<DefaultDomain Name='é' Enabled='1'/>\n\n |éé"
     "</ActiveDirectory>"},
    {Code::kBadEnum,
     "<analysisDetails transactionID='é' version=''><additionalData><destinations>"
     "<addresses>\n<address value='é' type='|x'/></addresses></destinations>"
     "<extractedContents/></additionalData></analysisDetails>"},
    {Code::kMissingContent,
     "<EndPointMessage SchemaVersion='1' Language='é'><Message ID='1'>"
     "<Content>é</Content>|<Description> </Description></Message>"
     "</EndPointMessage>"},
    {Code::kContentCut,
     "<EndPointMessage SchemaVersion='1'><Message ID='1'>\n<Content>é|<!-- x -->y"
     "</Content><Description>x</Description></Message></EndPointMessage>"},
    {Code::kContentCut,
     "<EndPointMessage SchemaVersion='1'><Message ID='1'>\n<Content>é</Content>"
     "<Description>é|<b>x</b></Description></Message></EndPointMessage>"},
    {Code::kNotReadBack,
     "<EndPointMessage SchemaVersion='1'><Message ID='1'>\n<Content>é</Content>"
     "|<Description><![CDATA[]]></Description></Message></EndPointMessage>"},
};

/// In each encoding, with either line end, and whatever blocks the document comes in.
TEST(CheckedPlaces, AreExact) {
  for (const Place& place : kPlaces) {
    for (const std::string encoding : {"UTF-8", "UTF-16LE", "UTF-16BE", "ISO-8859-1"}) {
      for (const std::string_view line_end : {"\n", "\r\n", "\r"}) {
        const bool is_latin = encoding == "ISO-8859-1";
        std::u32string text =
            is_latin ? CodePoints("<?xml version='1.0' encoding='ISO-8859-1'?>\n<!-- ü -->\n")
                     : CodePoints("\uFEFF<!-- ü𝄞\n𝄞 -->");
        text += CodePoints(place.document);
        const std::size_t mark = text.find(U'|');
        text.erase(mark, 1);
        const std::u32string_view before{text.data(), mark};
        const auto line = static_cast<std::uint64_t>(std::ranges::count(before, U'\n')) + 1;
        const std::uint64_t column = mark - before.rfind(U'\n');
        const auto bytes = [&](std::u32string_view part) {
          std::u32string ended;
          for (const char32_t c : part) {
            ended += c == U'\n' ? CodePoints(line_end) : std::u32string(1, c);
          }
          return Encoded(ended, encoding);
        };
        for (const std::size_t block : {1U, 7U, 65536U}) {
          SCOPED_TRACE(encoding + " " + place.document + " " + std::to_string(block));
          const Findings findings = Check(bytes(text), block);
          ASSERT_EQ(findings.size(), 1U);
          const cli::Finding& finding = findings[0];
          EXPECT_EQ(cli::InfoOf(finding.code).name, cli::InfoOf(place.code).name);
          EXPECT_EQ(finding.position.line, line);
          EXPECT_EQ(finding.position.column, column);
          EXPECT_EQ(finding.position.offset, bytes(before).size());
        }
      }
    }
  }
}

}  // namespace
}  // namespace tolva::test
