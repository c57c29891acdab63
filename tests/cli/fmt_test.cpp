// The verb `fmt`: its form is the library's, whatever the layout and the encoding, and nothing is
// lost.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "cli/layout.h"
#include "cli/line_diff.h"
#include "cli/run_on.h"

namespace tolva::test {
namespace {

using namespace cli;

Outcome Fmt(const std::vector<std::string>& options, const TempFile& file) {
  return RunOn(file, "fmt", options);
}

TEST(Fmt, GivesOneFormWhateverTheLayout) {
  for (const Document& document : Documents()) {
    for (unsigned seed = 0; seed < 12; ++seed) {
      const ByteForm form = FormOfSeed(seed);
      SCOPED_TRACE(std::string(document.name) + " " + std::to_string(seed));
      const std::string written = RandomDocument(document, seed);
      const std::string expected = FormEncoder(form).Encode(written);
      const TempFile own(expected);
      ASSERT_EQ(Fmt({}, own).out, expected);
      ASSERT_EQ(Fmt({"--check"}, own).status, 0);
      ASSERT_EQ(Fmt({"--diff"}, own).out, "");

      const std::string changed =
          FormEncoder(form).Encode(Layout(Layout::Kind::kSpelling, seed).Change(written));
      EXPECT_EQ(ReadJson(changed), ReadJson(written));
      const TempFile file(changed);
      ASSERT_EQ(Fmt({}, file).out, expected) << changed;
      const bool differs = changed != expected;
      EXPECT_EQ(Fmt({"--check"}, file).status, differs ? 1 : 0);
      EXPECT_EQ(Fmt({"--diff"}, file).status, differs ? 1 : 0);
      EXPECT_EQ(RunTool({"diff", NameOf(own.path()), NameOf(file.path())}).status, 0);
      EXPECT_EQ(Fmt({"-i"}, file).status, 0);
      EXPECT_EQ(file.Read(), expected);
    }
  }
}

/// `--check` compares as a stream, and `fmt` writes: they agree on every small change.
TEST(Fmt, ChecksWhatItWrites) {
  std::mt19937 random(1);
  unsigned same = 0;
  for (const Document& document : Documents()) {
    const std::string written = RandomDocument(document, 3);
    for (int i = 0; i < 300; ++i) {
      std::string text = written;
      const std::size_t at = random() % text.size();
      const std::size_t from = random() % text.size();
      text.replace(at, random() % 3, text, from, random() % (i % 2 == 0 ? 3 : 60));
      const TempFile file(text);
      const Outcome formatted = Fmt({"--drop"}, file);
      const Outcome checked = Fmt({"--check", "--drop"}, file);
      ASSERT_EQ(checked.status, formatted.status == 2 ? 2 : formatted.out == text ? 0 : 1) << text;
      EXPECT_EQ(checked.err, formatted.err);
      if (formatted.status != 0) continue;
      ++same;
      ASSERT_EQ(Fmt({}, TempFile(formatted.out)).out, formatted.out) << text;
    }
  }
  EXPECT_GT(same, 300U);
}

const std::string kDomain = "<DefaultDomain Name='x' Enabled='1'/>";

TEST(Fmt, RefusesToLoseAnything) {
  const std::pair<std::string, const char*> losses[] = {
      {"|<!-- é -->\n" + InDomain(kDomain), "this comment would be lost"},
      {InDomain("é" + kDomain).insert(18, "|"), "text in 'ActiveDirectory' is ignored"},
      {InDomain(kDomain + "|<!-- é -->"), "this comment would be lost"},
      {InDomain(kDomain) + "\n|<!---->", "this comment would be lost"},
      {InDomain(kDomain + "\n |<?p é?>"), "this processing instruction would be lost"},
      {InDomain(kDomain, " |xmlns='é'"), "the attribute 'xmlns' would be lost"},
      {InDomain(kDomain, " |xmlns:xsi='x' xsi:y='z'"), "the attribute 'xmlns:xsi' would be lost"},
      {InDomain(kDomain, " |xml:lang='é'"), "attribute 'xml:lang' of 'ActiveDirectory'"},
      {InDomain("<|xml:DefaultDomain Name='x' Enabled='1'/>"), "the prefix of 'xml:DefaultDomain'"},
      {InDomain("<DefaultDomain Name='é' |name='' Enabled='1'/>"), "did you mean 'Name'?"},
      {InDomain(kDomain + "|<Unknown><a/></Unknown>"), "element 'Unknown' of 'ActiveDirectory'"},
      {InDomain(kDomain + "\n|" + kDomain), "has another 'DefaultDomain'"},
      {InDomain("<DefaultDomain Name='é' Enabled='|4294967297'/>"), "is read as 2147483647"},
      {InMessage("<Content>é|<!-- x -->y</Content><Description>d</Description>"),
       "is read only up to here"},
      {InMessage("<Content>é|<![CDATA[ ]]></Content><Description>d</Description>"), "this space"},
      {InMessage("|<Content><![CDATA[]]></Content><Description>d</Description>"),
       "the empty text of"},
      {InViolation("|<policyID/>"), "the empty element 'policyID' would be lost"},
      {InViolation("|<policyID><![CDATA[]]></policyID>"), "the empty text of"},
      {InViolation("<severity>é|<b/></severity>"), "element 'b'"},
  };
  for (const auto& [marked, what] : losses) {
    SCOPED_TRACE(marked);
    const std::string text = Replaced(marked, "|", "");
    const TempFile file(text);
    const std::string place = NameOf(file.path()) + PlaceOf(text, marked.find('|'));
    for (const Outcome& refused : {Fmt({}, file), RunOn(file, "convert", {"--to", "json"})}) {
      EXPECT_EQ(refused.status, 2);
      EXPECT_EQ(refused.out, "");
      const std::size_t at = refused.err.find(place);
      ASSERT_NE(at, std::string::npos) << refused.err << place;
      EXPECT_NE(refused.err.find(what, at), std::string::npos) << refused.err;
    }
    EXPECT_EQ(Fmt({"--check"}, file).status, 2);
    EXPECT_EQ(Fmt({"--check", "--drop"}, file).status, 1);
    EXPECT_EQ(Fmt({"-i"}, file).status, 2);
    EXPECT_EQ(file.Read(), text);
    EXPECT_EQ(Fmt({"-i", "--drop"}, file).status, 0);
    EXPECT_EQ(Fmt({"--check"}, file).status, 0);
  }
}

TEST(Fmt, KnowsSeveralFilesAndWhatCannotBe) {
  const TempFile folder;
  std::filesystem::create_directories(folder.path());
  const auto name = [&](const char* file) { return NameOf(folder.path() / file); };
  const std::string good = RunTool({"new", "ci"}).out;
  const std::pair<const char*, std::string> files[] = {
      {"a.xml", good}, {"b.xml", good + "\n"}, {"c.xml", "<html><!-- x --></html>"}};
  for (const auto& [file, text] : files) {
    std::ofstream(PathOf(name(file)), std::ios::binary) << text;
  }
  const Outcome checked = RunTool({"fmt", "--check", "-r", NameOf(folder.path())});
  EXPECT_EQ(checked.out, name("b.xml") + "\n");
  EXPECT_EQ(checked.status, 1);
  const Outcome worst = RunTool({"fmt", "-i", name("c.xml"), name("b.xml"), name("none.xml")});
  EXPECT_EQ(worst.status, 2);
  EXPECT_EQ(std::ranges::count(worst.err, '\n'), 2);
  EXPECT_EQ(TempFile::ReadFile(folder.path() / "b.xml"), good);
  EXPECT_EQ(RunTool({"fmt", name("a.xml"), name("b.xml")}).status, 2);
  EXPECT_EQ(RunTool({"fmt", "-i", "--check", name("a.xml")}).status, 2);
  EXPECT_EQ(RunTool({"fmt", "--type", "ng", name("a.xml")}).status, 2);
  // What FindLosses does not accept: a text that would not be read back, even with --drop.
  const TempFile empty(
      "<EndPointMessage SchemaVersion='1'><Message ID='1'><Content/>"
      "<Description><![CDATA[]]></Description></Message></EndPointMessage>");
  EXPECT_EQ(Fmt({"--drop"}, empty).status, 2);
  EXPECT_EQ(Fmt({"--drop", "--check"}, empty).status, 2);
}

TEST(Fmt, SeesTheWholeDocumentForItsForm) {
  const std::string element = "<ActiveDirectory><DefaultDomain Enabled='1' Name='\xC3\xBC'/>";
  const auto formatted = [&](const std::string& prolog, const char* line_end) {
    return Fmt({"--drop"}, TempFile(prolog + element + line_end + "</ActiveDirectory>")).out;
  };
  // No declaration, though it begins like one.
  EXPECT_NE(formatted("<?xml-stylesheet encoding='ISO-8859-1'?>", "\n").find("\xC3\xBC"),
            std::string::npos);
  // The first line end is where a block of input ends.
  for (std::size_t size = 65530; size != 65540; ++size) {
    const std::string comment = "<!--" + std::string(size - element.size() - 7, 'x') + "-->";
    const std::string text = formatted(comment, "\r\n");
    ASSERT_EQ(std::ranges::count(text, '\r'), std::ranges::count(text, '\n')) << size;
    ASSERT_NE(text.find("\r\n"), std::string::npos) << size;
  }
}

TEST(Fmt, ShowsNoSecretsInADiff) {
  const TempFile file(RunTool({"new", "policy", "--full"}).out + "\n");
  std::string text = file.Read();
  text.replace(text.find(" Key=\"Key\""), 10, "  Key='hush&#33;' x:Key='hush' xmlns:x='x'");
  text.replace(text.find("<!-- "), 5, "<!-- <Old Key='hush'/> ");
  file.Write(text);
  const Outcome masked = Fmt({"--diff", "--drop"}, file);
  EXPECT_EQ(masked.status, 1);
  EXPECT_NE(masked.out.find("Key='***'"), std::string::npos);
  EXPECT_EQ(masked.out.find("hush"), std::string::npos);
  EXPECT_NE(Fmt({"--diff", "--drop", "--show-secrets"}, file).out.find("hush!"), std::string::npos);
}

std::string TakeLine(std::string_view& text) {
  std::string line(text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1));
  text.remove_prefix(line.size());
  return line;
}

/// Does what a unified diff says.
std::string Patched(std::string_view before, std::string_view diff) {
  std::string after;
  std::size_t done = 0;
  while (!diff.empty()) {
    std::string line = TakeLine(diff);
    if (line.starts_with("---") || line.starts_with("+++")) continue;
    if (diff.starts_with("\\ ")) {
      line.pop_back();
      TakeLine(diff);
    }
    if (line.starts_with("@@ -")) {
      const bool is_empty = line.substr(line.find(','), 3) == ",0 ";
      const std::size_t until = std::stoul(line.substr(4)) - (is_empty ? 0 : 1);
      for (; done < until; ++done) after += TakeLine(before);
      continue;
    }
    if (line[0] != '+') {
      EXPECT_EQ(TakeLine(before), line.substr(1));
      ++done;
    }
    if (line[0] != '-') after += line.substr(1);
  }
  return after + std::string(before);
}

TEST(LineDiff, LeadsFromOneTextToTheOther) {
  std::mt19937 random(1);
  for (int i = 0; i < 3000; ++i) {
    const unsigned kinds = 1 + random() % 8;
    const auto make = [&] {
      std::string text;
      for (auto count = random() % 40; count != 0; --count) {
        text.append(1, static_cast<char>('a' + random() % kinds)) += '\n';
      }
      if (!text.empty() && random() % 4 == 0) text.pop_back();
      return text;
    };
    const std::string before = make();
    const std::string after = make();
    const std::string diff = UnifiedDiff(before, after, "a", "b", Style(false));
    ASSERT_EQ(Patched(before, diff), after) << before << "\n--\n" << after << "\n--\n" << diff;
  }
  std::string much;
  for (int i = 0; i < 200000; ++i) much += std::to_string(i) + "\n";
  std::string other = "x\n" + much;
  for (std::size_t at = 0; (at = other.find("7\n", at)) != std::string::npos;) other[at] = '_';
  EXPECT_EQ(Patched(much, UnifiedDiff(much, other, "a", "b", Style(false))), other);
}

}  // namespace
}  // namespace tolva::test
