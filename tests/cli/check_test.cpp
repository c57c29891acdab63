// What `check` finds, where, and that its verdict is the library's.
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <random>
#include <regex>

#include "cli/findings.h"
#include "cli/layout.h"
#include "cli/new.h"
#include "cli/run_on.h"
#include "support/nodes.h"
#include "tables/example.h"

namespace tolva::test {
namespace {

using cli::Code;

// ---- the verdict -------------------------------------------------------------------------------

/// An example without its declaration: in a string, the library ignores the encoding.
std::wstring TextOf(const cli::Document& document) {
  const std::string name = TOLVA_DOCUMENTS "/" + std::string(document.name) + ".xml";
  const std::wstring text = cli::ToWide(TempFile::ReadFile(name));
  return text.substr(text.find(L"?>") + 2);
}

bool IsRead(const std::wstring& text, node::INode& node) {
  const ManagerPtr reader = MakeReader();
  tolvaSetLastError(0);
  return reader->OpenFromString(text.c_str()) == 0 && node.ReadFromXMLMgr(reader.get()) == 0 &&
         tolvaReadToEnd(reader.get()) == 0;
}

class CheckedExample : public testing::TestWithParam<std::size_t> {
 protected:
  const cli::Document& document() const { return cli::Documents()[GetParam()]; }

  /// Compares the verdicts on a document: that on reading it, and that on writing and reading
  /// again.
  void Compare(const std::wstring& text) {
    ++count_;
    Diagnostics ignored;
    const auto node = document().make();
    const bool is_read = IsRead(text, *node);
    const Findings findings = Check(cli::ToUtf8(text));
    ASSERT_EQ(HasError(findings), !is_read) << cli::ToUtf8(text);
    if (!is_read || Has(findings, Code::kDuplicateChild)) return;
    // What is written of a document without findings is seldom new.
    if (findings.empty() && count_ % 8 != 0) return;
    const bool is_read_back = IsRead(cli::ToWide(WriteFile(*node)), *document().make());
    ASSERT_EQ(Has(findings, Code::kNotReadBack), !is_read_back) << cli::ToUtf8(text);
  }

  unsigned count_ = 0;
};

TEST_P(CheckedExample, IsFine) {
  const std::string text = cli::ToUtf8(TextOf(document()));
  EXPECT_TRUE(Check(text).empty());
  EXPECT_TRUE(Check(text, 1).empty());
  for (const auto content : {cli::NewContent::kRequired, cli::NewContent::kEverything}) {
    const std::string made = cli::NewDocument(document(), content);
    EXPECT_TRUE(Check(made).empty());
    // But for comments, it has the form that the library writes.
    const std::string written = cli::WrittenForm(document(), *cli::LoadBytes(made, "new").root);
    EXPECT_EQ(std::regex_replace(made, std::regex(R"(\n *<!--[\s\S]*?-->)"), ""), written);
  }
}

/// Every fault that the tests know: what is absent or malformed, a document that breaks off, and
/// what may mislead the library inserted between any two tags.
TEST_P(CheckedExample, IsJudgedAsTheLibraryDoes) {
  const std::wstring text = TextOf(document());
  const Departures none;  // concern reports, which are not looked at
  const std::string name(document().name);
  for (const auto& fault : Example(name.c_str(), *document().root().schema, none).ReadFaults()) {
    Compare(fault.document);
  }
  for (std::size_t size = 1; size < text.size(); size += 1 + text.size() / 500) {
    Compare(text.substr(0, size));
  }
  std::mt19937 random(1);
  for (std::size_t at = text.find(L'>'); at != std::wstring::npos; at = text.find(L'>', at + 1)) {
    for (const std::wstring piece : {L"x", L"<b/>", L"<b>c</b>", L"<b><c>d</c></b>", L"<!-- c -->",
                                     L"<!---->", L"<?p d?>", L"<![CDATA[5]]>", L"<![CDATA[]]>",
                                     L" ", L"&#32;", L"</b>", L"<b>", L"&x;", L"<x:b/>", L"]]>"}) {
      if (text.size() > 10000 && random() % 4 != 0) continue;
      std::wstring spoilt = text;
      Compare(spoilt.insert(at + 1, piece));
      // In the place of what follows: of a text, or of the space between tags.
      const std::size_t next = text.find(L'<', at + 1);
      if (next == std::wstring::npos) continue;
      Compare(text.substr(0, at + 1) + piece + text.substr(next));
    }
  }
  // Anything in the place of anything.
  for (int i = 0; i < 1000; ++i) {
    const auto place = [&] { return random() % text.size(); };
    const std::size_t from = place();
    std::wstring spoilt = text.substr(0, place());
    spoilt += text.substr(from, random() % 40) + text.substr(std::min(spoilt.size(), text.size()));
    Compare(spoilt);
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(count_, 1000U);
}

INSTANTIATE_TEST_SUITE_P(All, CheckedExample,
                         testing::Range<std::size_t>(0, cli::Documents().size()));

// ---- places ------------------------------------------------------------------------------------

std::string Domain(const std::string& inside) { return "<ActiveDirectory>\n" + inside; }

/// Documents with a bar before what the finding is about.
const std::pair<Code, std::string> kPlaces[] = {
    {Code::kNotWellFormed, Domain("<DefaultDomain Enabled='1' Name='é'/>|</b>")},
    {Code::kNotWellFormed, Domain("<DefaultDomain Enabled='1' Name='é'/|>")},
    {Code::kNotWellFormed, Domain("<DefaultDomain Enabled='1' Name='é'/>|\n")},
    {Code::kNotWellFormed, Domain("<DefaultDomain Name='é' Enabled='1'|Name='x'/>")},
    {Code::kNotWellFormed, Domain("<DefaultDomain Name='é' |Name='1'/>")},
    {Code::kNotWellFormed, Domain("<DefaultDomain Name='é' |x:y='1'/>")},
    {Code::kNotWellFormed, Domain("<DefaultDomain Name='é' Enabled |1/>")},
    {Code::kNotWellFormed, Domain("<DefaultDomain Name='é|&b;'/>")},
    {Code::kNotWellFormed, Domain("<DefaultDomain Name='é|<'/>")},
    {Code::kNotWellFormed, Domain("<!-- é |-- -->")},
    {Code::kNotWellFormed, "<ActiveDirectory><!-- é --></ActiveDirectory |x>"},
    {Code::kNotWellFormed, "<ActiveDirectory>é|]]>"},
    {Code::kNotWellFormed, "<!-- é -->|x"},
    {Code::kNotWellFormed, "<!-- é --|>"},
    {Code::kDtd, "<!-- é -->|<!DOCTYPE ActiveDirectory>"},
    {Code::kUnknownRoot, "<!-- é -->|<ActiveDirectroy/>"},
    {Code::kMissingAttribute, InDomain("<!-- é -->|<DefaultDomain Enabled='1'/>")},
    {Code::kMissingChild, "<!-- é -->|" + InDomain("<!-- x -->")},
    {Code::kBadNumber, InDomain("<DefaultDomain Name='é' Enabled='|x1'/>")},
    {Code::kNumberRange, InDomain("<DefaultDomain Name='é' Enabled='|2147483648'/>")},
    {Code::kUnknownAttribute, InDomain("<DefaultDomain Name='é' Enabled='1' |name='x'/>")},
    {Code::kUnknownElement, InDomain("<DefaultDomain Name='é'/>|<b><c/>x</b>")},
    {Code::kDuplicateChild, InDomain("<DefaultDomain Name='é'/>\n\n|<DefaultDomain Name='é'/>")},
    {Code::kTextIgnored, InDomain("<DefaultDomain Name='é' Enabled='1'/>\n\n |éé")},
    {Code::kBadEnum,
     "<analysisDetails transactionID='é' version=''><additionalData><destinations>"
     "<addresses>\n<address value='é' type='|x'/></addresses></destinations>"
     "<extractedContents/></additionalData></analysisDetails>"},
    {Code::kMissingContent, InMessage("<Content>é</Content>|<Description> </Description>")},
    {Code::kContentCut, InMessage("<Content>é|<!-- x -->y</Content><Description>x</Description>")},
    {Code::kContentCut, InMessage("<Content>é</Content><Description>é|<b>x</b></Description>")},
    {Code::kNotReadBack, InMessage("<Content>é</Content>|<Description><![CDATA[]]></Description>")},
};

/// In each encoding, with either line end, and whatever blocks the document comes in.
TEST(CheckedPlaces, AreExact) {
  for (const auto& [code, document] : kPlaces) {
    for (unsigned seed = 0; seed < 18; ++seed) {
      const cli::ByteForm form = FormOfSeed(seed);
      if (form.encoding->name == "US-ASCII") continue;  // references take more columns
      const bool is_latin = form.encoding->name == "ISO-8859-1";
      const std::string text = "<?xml version='1.0' encoding='UTF-8'?><!-- ü\n" +
                               std::string(is_latin ? "ü" : "𝄞") + " -->" + document;
      const std::size_t mark = text.find('|');
      cli::FormEncoder encoder(form);
      const std::string before = encoder.Encode(text.substr(0, mark));
      const std::string bytes = before + encoder.Encode(text.substr(mark + 1));
      for (const std::size_t block : {1U, 7U, 65536U}) {
        SCOPED_TRACE(std::to_string(seed) + " " + document + " " + std::to_string(block));
        const Findings findings = Check(bytes, block);
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_EQ(cli::InfoOf(findings[0].code).name, cli::InfoOf(code).name);
        const auto& [offset, line, column] = findings[0].position;
        EXPECT_EQ(offset, before.size());
        EXPECT_EQ(":" + std::to_string(line) + ":" + std::to_string(column) + ": ",
                  PlaceOf(text, mark));
      }
    }
  }
}

}  // namespace
}  // namespace tolva::test
