#include "cli/text.h"

#include <gtest/gtest.h>

#include "cli/layout.h"
#include "cli/run_on.h"

namespace tolva::test {
namespace {

using namespace cli;

TEST(Text, IsPrintedWithoutWhatTerminalsObey) {
  EXPECT_EQ(Printable("Z\u00FCrich \u20AC \U0001F600"), "Z\u00FCrich \u20AC \U0001F600");
  EXPECT_EQ(Printable("\x1B[31m\n\x7F"), "\\x1B[31m\\x0A\\x7F");
  EXPECT_EQ(Printable("\u009B31m"), "\\xC2\\x9B31m");  // CSI as one character
  EXPECT_EQ(Printable(ToUtf8(std::wstring{L'a', 0x202E, L'b', 0x2066, L'c', 0x200F})),
            "a\\xE2\\x80\\xAEb\\xE2\\x81\\xA6c\\xE2\\x80\\x8F");
  EXPECT_EQ(Printable("\xFF\xC3\xE2\x82"), "\\xFF\\xC3\\xE2\\x82");  // broken off
  EXPECT_EQ(Printable("\xC0\xAF\xED\xA0\x80\xF4\x90\x80\x80"),  // overlong, surrogate, too great
            "\\xC0\\xAF\\xED\\xA0\\x80\\xF4\\x90\\x80\\x80");
  EXPECT_EQ(Printable(std::string("a\0b", 3)), "a\\x00b");
  EXPECT_EQ(Printable("\xEF\xBF\xBD\xEF\xBF\xBF"),
            "\xEF\xBF\xBD\\xEF\\xBF\\xBF");  // U+FFFD, U+FFFF
}

/// Whatever verb prints it. Files get what there is.
TEST(Text, OfDocumentsIsShownOnTerminals) {
  const std::string turn = ToUtf8(std::wstring(1, wchar_t{0x202E}));
  const std::string document =
      "<?xml version='1.0' encoding='UTF-8'?><ActiveDirectory><DefaultDomain Enabled=\"1\" "
      "Name=\"\u009B" +
      turn + "\u00FC\"/></ActiveDirectory>";
  for (const unsigned seed : {0U, 2U}) {  // UTF-8, UTF-16
    const TempFile file(FormEncoder(FormOfSeed(seed)).Encode(document));
    const TempFile json(RunOn(file, "convert", {"--to", "json"}).out);
    const auto show = [&](const TempFile& input, std::vector<std::string> arguments) {
      arguments.insert(arguments.begin() + 1, NameOf(input.path()));
      TerminalOutput out;
      TextOutput err;
      EXPECT_EQ(cli::Run(arguments, out, err), 0) << err.text();
      for (const std::string& raw : {std::string("\u009B"), turn, std::string(1, '\0')}) {
        EXPECT_EQ(out.text().find(raw), std::string::npos) << arguments[0];
      }
      EXPECT_NE(out.text().find("\u00FC"), std::string::npos) << arguments[0];
    };
    show(file, {"get", "DefaultDomain/Name"});
    show(file, {"get", "DefaultDomain", "--format", "json"});
    show(file, {"set", "DefaultDomain/Enabled=0"});
    show(file, {"fmt", "-o", "-"});
    show(file, {"convert", "--to", "json"});
    show(json, {"convert", "--to", "xml"});
    EXPECT_EQ(RunOn(file, "get", {"DefaultDomain/Name"}).out, "\u009B" + turn + "\u00FC\n");
  }
}

TEST(Text, IsWrapped) {
  EXPECT_EQ(Wrap("a bb ccc", 4), (std::vector<std::string>{"a bb", "ccc"}));
  EXPECT_EQ(Wrap("  a   incomprehensible b", 4),
            (std::vector<std::string>{"a", "incomprehensible", "b"}));
  EXPECT_EQ(Wrap("\u00E9\u00E9 \u00E9\u00E9", 5),
            (std::vector<std::string>{"\u00E9\u00E9 \u00E9\u00E9"}));
  EXPECT_EQ(Wrap("", 4), std::vector<std::string>());
  EXPECT_EQ(Padded("\u00E9", 3), "\u00E9  ");
}

TEST(Text, NamesWhatIsNear) {
  const std::vector<std::string> names = {"Name", "Action", "AppName", "CPS", "ID"};
  EXPECT_EQ(Nearest("Actoin", names), "Action");
  EXPECT_EQ(Nearest("name", names), "Name");
  EXPECT_EQ(Nearest("Appname", names), "AppName");
  EXPECT_EQ(Nearest("id", names), "ID");
  EXPECT_EQ(Nearest("XY", names), std::nullopt);
  EXPECT_EQ(Nearest("Elephant", names), std::nullopt);
  EXPECT_EQ(Nearest("", names), std::nullopt);
  EXPECT_EQ(Nearest(std::string(1 << 20, 'x'), names), std::nullopt);
  EXPECT_EQ(Enumerate(names), "Name, Action, AppName, CPS or ID");
}

}  // namespace
}  // namespace tolva::test
