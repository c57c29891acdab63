// The manual page, made from the tree of options.
#include "cli/options.h"
#include "cli/tables.h"
#include "cli/text.h"

namespace tolva::cli {
namespace {

/// Text as roff reads it.
std::string Roff(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-' || c == '\'' || c == '`') {
      escaped += c == '-' ? "\\-" : c == '\'' ? "\\(aq" : "\\(ga";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

/// Prose: each sentence begins a line.
std::string Prose(std::string_view text) {
  constexpr std::size_t kWidth = 76;
  std::string lines;
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t end = rest.find(". ");
    const std::size_t size = end == std::string_view::npos ? rest.size() : end + 1;
    for (std::string& line : Wrap(Roff(rest.substr(0, size)), kWidth)) {
      lines += (line[0] == '.' ? "\\&" : "") + line + "\n";
    }
    rest.remove_prefix(std::min(size + 1, rest.size()));
  }
  return lines;
}

std::string Paragraphs(std::string_view text) {
  std::string all;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find("\n\n"), text.size());
    all += ".Pp\n" + Prose(text.substr(0, end));
    text.remove_prefix(std::min(end + 2, text.size()));
  }
  return all;
}

std::string Item(const OptionView& option) {
  std::string item = ".It";
  for (const std::string& name : option.names) {
    item += (item.size() == 3 ? " Fl " : " , Fl ") +
            (name.starts_with("--") ? "\\-" + Roff(name.substr(2)) : name.substr(1));
  }
  if (!option.value.empty()) item += " Ar " + option.value;
  std::string about = Sentence(option.description);
  if (!option.choices.empty()) about += " One of " + Enumerate(option.choices) + ".";
  return item + "\n" + Prose(about);
}

std::string Items(const VerbView& verb) {
  std::string items;
  for (const OptionView& option : verb.options) {
    const bool is_common = !option.IsPositional() &&
                           (option.names.back() == "--help" || option.names.back() == "--color");
    if (!is_common) items += Item(option);
  }
  return items.empty() ? "" : ".Bl -tag -width Ds\n" + items + ".El\n";
}

std::string Synopsis(const std::vector<VerbView>& verbs) {
  std::string lines;
  for (const VerbView& verb : verbs) {
    lines += ".Nm\n.Cm " + verb.name + "\n.Op Ar option ...\n";
    for (const OptionView& option : verb.options) {
      if (!option.IsPositional()) continue;
      lines += (option.is_required ? ".Ar " : ".Op Ar ") + option.value +
               (option.is_repeatable ? " ..." : "") + "\n";
    }
  }
  return lines;
}

constexpr std::string_view kPaths =
    ".Sh PATHS\n"
    "A path names elements, from the children of the root on, and at its end\n"
    "perhaps an attribute:\n"
    ".Pp\n"
    ".Dl LocationArray/Location/ILPProtection/EnableTamperProtection\n"
    ".Pp\n"
    "Brackets select one of several elements, by its position from 1 or by an\n"
    "attribute:\n"
    ".Pp\n"
    ".Dl LocationArray/Location[2]\n"
    ".Dl LocationArray/Location[Name=\"Office\"]\n";

constexpr std::string_view kEnd =
    ".Sh ENVIRONMENT\n"
    ".Bl -tag -width NO_COLOR\n"
    ".It Ev NO_COLOR\n"
    "If it is set and not empty, results are coloured on request only.\n"
    ".It Ev TERM\n"
    "On a terminal of the type\n"
    ".Dq dumb ,\n"
    "results are coloured on request only.\n"
    ".El\n"
    ".Sh EXIT STATUS\n"
    ".Bl -tag -width Ds\n"
    ".It 0\n"
    "Everything is fine, equal or found.\n"
    ".It 1\n"
    "Something was found that is not fine, differs, or is absent.\n"
    ".It 2\n"
    "The command line is wrong, or something cannot be read or written.\n"
    ".El\n";

}  // namespace

std::string ManualOf(const CLI::App& tool) {
  const std::vector<VerbView> verbs = ViewOfVerbs(tool);
  std::string page =
      ".Dd November 22, 2026\n"
      ".Dt TOLVA 1\n"
      ".Os\n"
      ".Sh NAME\n"
      ".Nm tolva\n"
      ".Nd checks, changes, compares and explains configuration documents\n"
      ".Sh SYNOPSIS\n" +
      Synopsis(verbs) +
      ".Sh DESCRIPTION\n"
      ".Nm\n"
      "knows every configuration document of the agent from the tables by which the\n"
      "agent reads it.\n"
      "Every verb has the options\n"
      ".Fl \\-help\n"
      "and\n"
      ".Fl \\-color Ar WHEN ,\n"
      "where\n"
      ".Ar WHEN\n"
      "is always, never or auto, which colours results on a terminal.\n"
      "The argument\n"
      ".Fl \\-\n"
      "ends the options.\n";
  for (const VerbView& verb : verbs) {
    page += ".Ss " + verb.name + "\n" + Prose(verb.summary) + Paragraphs(verb.description) +
            Items(verb);
    if (!verb.examples.empty()) {
      page += ".Pp\nExamples:\n.Bd -literal -offset indent\n" + Roff(verb.examples) + "\n.Ed\n";
    }
  }
  page += ".Sh DOCUMENTS\n.Bl -tag -width Ds\n";
  for (const Document& document : Documents()) {
    page += ".It Cm " + Roff(document.name) + "\n" +
            Prose(std::string(document.title) + ", root element " + document.root().name + ".");
  }
  page += ".El\n";
  return page + std::string(kPaths) + std::string(kEnd);
}

}  // namespace tolva::cli
