// The tree of verbs and options, for what is made from it: help, manual page and completion.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/session.h"

namespace CLI {
class Option;
}

namespace tolva::cli {

/// An option, or a positional argument.
struct OptionView {
  std::vector<std::string> names;  ///< "-o", "--output"; none: a positional argument
  std::string value;               ///< "FILE"; empty: the option takes none
  std::vector<std::string> choices;
  std::string description;
  bool is_required = false;
  bool is_repeatable = false;

  bool IsPositional() const { return names.empty(); }
};

struct VerbView {
  std::string name;         ///< empty: the tool itself
  std::string summary;      ///< one line
  std::string description;  ///< further paragraphs, an empty line between them
  std::string examples;     ///< lines of "command   # what it does"
  std::vector<OptionView> options;
};

OptionView ViewOf(const CLI::Option& option);

/// What the tool is about, its options, and its verbs.
VerbView ViewOfTool(const CLI::App& tool);
std::vector<VerbView> ViewOfVerbs(const CLI::App& tool);
VerbView ViewOfVerb(const CLI::App& verb);

/// "explain [OPTION...] [DOCUMENT[/PATH]]".
std::string UsageOf(const VerbView& verb);

/// "-o, --output FILE".
std::string SpellingOf(const OptionView& option);

/// What --help prints.
std::string HelpOf(const CLI::App& tool, const CLI::App& verb, const Style& style,
                   std::size_t width);

/// The manual page, in mdoc.
std::string ManualOf(const CLI::App& tool);

/// The completion script of a shell: bash, zsh or fish.
std::string CompletionOf(const CLI::App& tool, std::string_view shell);

}  // namespace tolva::cli
