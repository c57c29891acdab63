#include "cli/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <string>

#include "cli/text.h"

namespace tolva::cli {
namespace {

/// The words in the braces of "TEXT:{text,json}".
std::vector<std::string> ChoicesIn(const std::string& type) {
  std::vector<std::string> choices;
  const std::size_t open = type.find('{');
  if (open == std::string::npos) return choices;
  std::size_t start = open + 1;
  for (std::size_t i = start; i < type.size(); ++i) {
    if (type[i] != ',' && type[i] != '}') continue;
    choices.push_back(type.substr(start, i - start));
    start = i + 1;
  }
  return choices;
}

std::string HelpOfOption(const OptionView& option, const Style& style, std::size_t width) {
  constexpr std::size_t kColumn = 26;
  const std::string spelling = SpellingOf(option);
  std::string text = Sentence(option.description);
  if (!option.choices.empty()) text += " One of " + Enumerate(option.choices) + ".";
  std::string lines = Paragraph(text, kColumn, width);
  const std::string styled = "  " + style.Name(spelling);
  const std::size_t used = 2 + Columns(spelling);
  if (used + 1 >= kColumn) return styled + "\n" + lines;
  return styled + lines.substr(used);
}

std::string Section(const std::string& title, const std::string& lines, const Style& style) {
  return lines.empty() ? "" : "\n" + style.Heading(title) + "\n" + lines;
}

}  // namespace

OptionView ViewOf(const CLI::Option& option) {
  OptionView view;
  for (const std::string& name : option.get_snames()) view.names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) view.names.push_back("--" + name);
  const std::string type = option.get_type_name();
  view.choices = ChoicesIn(type);
  if (option.get_expected_max() != 0) view.value = type.substr(0, type.find(':'));
  view.description = option.get_description();
  view.is_required = option.get_required();
  view.is_repeatable = option.get_expected_max() > 1;
  return view;
}

VerbView ViewOfVerb(const CLI::App& verb) {
  VerbView view;
  view.name = verb.get_parent() == nullptr ? "" : verb.get_name();
  const std::string text = verb.get_description();
  const std::size_t end = std::min(text.find("\n\n"), text.size());
  view.summary = text.substr(0, end);
  view.description = text.substr(std::min(end + 2, text.size()));
  view.examples = verb.get_footer();
  for (const CLI::Option* const option : verb.get_options()) {
    if (!option->get_group().empty()) view.options.push_back(ViewOf(*option));
  }
  // Arguments first, and then the options that differ from verb to verb.
  std::stable_partition(view.options.begin(), view.options.end(),
                        std::mem_fn(&OptionView::IsPositional));
  const auto is_help = [](const OptionView& option) {
    return !option.IsPositional() && option.names.back() == "--help";
  };
  const auto help = std::ranges::find_if(view.options, is_help);
  if (help != view.options.end()) std::rotate(help, help + 1, view.options.end());
  return view;
}

VerbView ViewOfTool(const CLI::App& tool) { return ViewOfVerb(tool); }

std::vector<VerbView> ViewOfVerbs(const CLI::App& tool) {
  std::vector<VerbView> verbs;
  for (const CLI::App* const verb : tool.get_subcommands({})) {
    if (!verb->get_group().empty()) verbs.push_back(ViewOfVerb(*verb));
  }
  return verbs;
}

std::string UsageOf(const VerbView& verb) {
  std::string usage = verb.name.empty() ? "VERB [OPTION...]" : verb.name + " [OPTION...]";
  for (const OptionView& option : verb.options) {
    if (!option.IsPositional()) continue;
    const std::string value = option.value + (option.is_repeatable ? "..." : "");
    usage += option.is_required ? " " + value : " [" + value + "]";
  }
  return usage;
}

std::string SpellingOf(const OptionView& option) {
  std::string spelling;
  for (const std::string& name : option.names) spelling += (spelling.empty() ? "" : ", ") + name;
  if (option.IsPositional()) return option.value;
  // What stands before a long name alone lines up with the other long names.
  if (option.names.size() == 1 && option.names[0].starts_with("--")) spelling.insert(0, "    ");
  return option.value.empty() ? spelling : spelling + " " + option.value;
}

std::string HelpOf(const CLI::App& tool, const CLI::App& verb, const Style& style,
                   std::size_t width) {
  const VerbView view = ViewOfVerb(verb);
  std::string help = style.Heading("Usage:") + " tolva " + UsageOf(view) + "\n\n" +
                     Paragraph(view.summary, 0, width);
  std::string_view rest = view.description;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find("\n\n"), rest.size());
    help += "\n" + Paragraph(rest.substr(0, end), 0, width);
    rest.remove_prefix(std::min(end + 2, rest.size()));
  }
  std::string verbs;
  std::string arguments;
  std::string options;
  if (view.name.empty()) {
    constexpr std::size_t kColumn = 14;
    for (const VerbView& one : ViewOfVerbs(tool)) {
      const std::string lines = Paragraph(one.summary, kColumn, width);
      verbs += "  " + style.Name(one.name) + lines.substr(2 + Columns(one.name));
    }
  }
  for (const OptionView& option : view.options) {
    (option.IsPositional() ? arguments : options) += HelpOfOption(option, style, width);
  }
  std::string examples;
  std::string_view lines = view.examples;
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    examples += "  " + std::string(lines.substr(0, end)) + "\n";
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
  return help + Section("Verbs:", verbs, style) + Section("Arguments:", arguments, style) +
         Section("Options:", options, style) + Section("Examples:", examples, style);
}

}  // namespace tolva::cli
