// completion: scripts that let a shell complete the command line, made from the tree of options.
#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "cli/options.h"
#include "cli/places.h"
#include "cli/text.h"
#include "cli/verb.h"
#include "cli/verbs.h"

namespace tolva::cli {
namespace {

/// What can stand for a value.
enum class Candidates : std::uint8_t { kNone, kWords, kFiles, kPaths };

Candidates KindOf(const OptionView& option) {
  if (!option.choices.empty() || option.value == "DOCUMENT") return Candidates::kWords;
  if (option.value == "FILE") return Candidates::kFiles;
  return option.value == "DOCUMENT[/PATH]" ? Candidates::kPaths : Candidates::kNone;
}

std::string Join(const std::vector<std::string>& words, std::string_view separator) {
  std::string all;
  for (const std::string& word : words) all += (all.empty() ? "" : std::string(separator)) + word;
  return all;
}

/// The words that can stand for a value.
std::string WordsOf(const OptionView& option) {
  if (!option.choices.empty()) return Join(option.choices, " ");
  std::vector<std::string> names;
  for (const Document& document : Documents()) names.emplace_back(document.name);
  return Join(names, " ");
}

std::vector<std::string> OptionNames(const VerbView& verb) {
  std::vector<std::string> names;
  for (const OptionView& option : verb.options) {
    names.insert(names.end(), option.names.begin(), option.names.end());
  }
  return names;
}

std::vector<OptionView> Positionals(const VerbView& verb) {
  std::vector<OptionView> positionals;
  std::ranges::copy_if(verb.options, std::back_inserter(positionals), &OptionView::IsPositional);
  return positionals;
}

std::string Replaced(std::string text, std::string_view what, std::string_view by) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
    text.replace(at, what.size(), by);
  }
  return text;
}

/// As a word of a shell.
std::string Quoted(const std::string& text) { return "'" + Replaced(text, "'", "'\\''") + "'"; }

// ---- bash --------------------------------------------------------------------------------------

std::string BashCandidates(const OptionView& option) {
  switch (KindOf(option)) {
    case Candidates::kWords:
      return "words='" + WordsOf(option) + "'";
    case Candidates::kFiles:
      return "files=yes";
    case Candidates::kPaths:
      return "words=$(\"${COMP_WORDS[0]}\" completion --paths \"$word\" 2> /dev/null)\n"
             "      compopt -o nospace";
    default:
      return ":";
  }
}

std::string Bash(const VerbView& tool, const std::vector<VerbView>& verbs) {
  std::string values;
  std::string places;
  std::string options = "    '') words='" + Join(OptionNames(tool), " ") + "' ;;\n";
  std::vector<std::string> names;
  std::vector<std::string> with_values;
  for (const VerbView& verb : verbs) {
    names.push_back(verb.name);
    options += "    " + verb.name + ") words='" + Join(OptionNames(verb), " ") + "' ;;\n";
    const std::vector<OptionView> positionals = Positionals(verb);
    for (std::size_t i = 0; i < positionals.size(); ++i) {
      const std::string place = positionals[i].is_repeatable ? "*" : std::to_string(i + 1);
      places += "    " + verb.name + ":" + place + ")\n      " + BashCandidates(positionals[i]) +
                "\n      ;;\n";
    }
    for (const OptionView& option : verb.options) {
      if (option.IsPositional() || option.value.empty()) continue;
      std::vector<std::string> patterns;
      for (const std::string& name : option.names) patterns.push_back(verb.name + ":" + name);
      values +=
          "    " + Join(patterns, " | ") + ")\n      " + BashCandidates(option) + "\n      ;;\n";
      with_values.insert(with_values.end(), patterns.begin(), patterns.end());
    }
  }
  return "# bash completion for tolva; 'tolva completion bash' prints it.\n"
         "_tolva() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}\n"
         "  local verb='' place=0 words='' files='' i\n"
         "  # '--option=value' comes as three words.\n"
         "  [[ $before == = ]] && before=${COMP_WORDS[COMP_CWORD - 2]}\n"
         "  [[ $word == = ]] && word=''\n"
         "  for ((i = 1; i < COMP_CWORD; ++i)); do\n"
         "    case $verb:${COMP_WORDS[i]} in\n"
         "    " +
         Join(with_values, " | ") +
         ") [[ ${COMP_WORDS[i + 1]} == = ]] && i=$((i + 2)) || i=$((i + 1)) ;;\n"
         "    *:-*) ;;\n"
         "    :*) verb=${COMP_WORDS[i]} ;;\n"
         "    *) place=$((place + 1)) ;;\n"
         "    esac\n"
         "  done\n"
         "  place=$((place + 1))\n"
         "  case $verb:$before in\n" +
         values +
         "  *)\n"
         "    case $verb:$word in\n"
         "    *:-*)\n"
         "      case $verb in\n" +
         options +
         "      esac\n"
         "      ;;\n"
         "    :*) words='" +
         Join(names, " ") +
         "' ;;\n"
         "    *)\n"
         "      case $verb:$place in\n" +
         places +
         "      esac\n"
         "      ;;\n"
         "    esac\n"
         "    ;;\n"
         "  esac\n"
         "  if [[ -n $files ]]; then\n"
         "    mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n"
         "    compopt -o filenames\n"
         "  else\n"
         "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$word\")\n"
         "  fi\n"
         "}\n"
         "complete -F _tolva tolva\n";
}

// ---- zsh ---------------------------------------------------------------------------------------

/// Text in brackets, as zsh's _arguments takes it.
std::string ZshText(const std::string& text) {
  return Replaced(Replaced(Replaced(Replaced(text, "\\", "\\\\"), "[", "\\["), "]", "\\]"), ":",
                  "\\:");
}

std::string ZshCandidates(const OptionView& option) {
  const std::string value = ZshText(option.value);
  switch (KindOf(option)) {
    case Candidates::kWords:
      return value + ":(" + WordsOf(option) + ")";
    case Candidates::kFiles:
      return value + ":_files";
    case Candidates::kPaths:
      return value + ":_tolva_paths";
    default:
      return value + ": ";
  }
}

std::string ZshOption(const OptionView& option) {
  const std::string about = "[" + ZshText(Sentence(option.description)) + "]";
  const std::string candidates = option.value.empty() ? "" : ":" + ZshCandidates(option);
  const std::string others = "(" + Join(option.names, " ") + ")";
  std::string arguments;
  for (const std::string& name : option.names) {
    const std::string form =
        candidates.empty() ? name : name + (name.starts_with("--") ? "=" : "+");
    arguments += " \\\n      " + Quoted(others + form + about + candidates);
  }
  return arguments;
}

std::string ZshArguments(const VerbView& verb) {
  std::string arguments;
  for (const OptionView& option : verb.options) {
    if (!option.IsPositional()) {
      arguments += ZshOption(option);
      continue;
    }
    arguments +=
        " \\\n      " + Quoted((option.is_repeatable ? "*:" : ":") + ZshCandidates(option));
  }
  return arguments;
}

std::string Zsh(const VerbView& tool, const std::vector<VerbView>& verbs) {
  std::string names;
  std::string cases;
  for (const VerbView& verb : verbs) {
    names += "    " + Quoted(verb.name + ":" + ZshText(verb.summary)) + "\n";
    cases += "  " + verb.name + ")\n    _arguments -s -S" + ZshArguments(verb) + "\n    ;;\n";
  }
  return "#compdef tolva\n"
         "# zsh completion for tolva; 'tolva completion zsh' prints it.\n"
         "_tolva_paths() {\n"
         "  local -a paths\n"
         "  paths=(${(f)\"$($_tolva_command completion --paths \"${(Q)PREFIX}\" 2> /dev/null)\"})\n"
         "  compadd -S '' -- $paths\n"
         "}\n"
         "_tolva() {\n"
         "  local context state state_descr line _tolva_command=$words[1]\n"
         "  typeset -A opt_args\n"
         "  local -a verbs\n"
         "  verbs=(\n" +
         names +
         "  )\n"
         "  _arguments -C" +
         ZshArguments(tool) +
         " \\\n      '1:verb:->verb' '*::argument:->argument' && return\n"
         "  if [[ $state == verb ]]; then\n"
         "    _describe verb verbs\n"
         "    return\n"
         "  fi\n"
         "  case $words[1] in\n" +
         cases +
         "  esac\n"
         "}\n"
         "if [[ $funcstack[1] == _tolva ]]; then\n"
         "  _tolva \"$@\"\n"
         "else\n"
         "  compdef _tolva tolva\n"
         "fi\n";
}

// ---- fish --------------------------------------------------------------------------------------

std::string FishCandidates(const OptionView& option) {
  switch (KindOf(option)) {
    case Candidates::kWords:
      return " -a " + Quoted(WordsOf(option));
    case Candidates::kFiles:
      return " -F";
    case Candidates::kPaths:
      return " -a '(tolva completion --paths (commandline -ct) 2> /dev/null)'";
    default:
      return "";
  }
}

std::string FishOption(const OptionView& option, const std::string& condition) {
  std::string line = "complete -c tolva -n " + Quoted(condition);
  for (const std::string& name : option.names) {
    line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
  }
  if (!option.value.empty()) line += " -r" + FishCandidates(option);
  return line + " -d " + Quoted(Sentence(option.description)) + "\n";
}

std::string Fish(const VerbView& tool, const std::vector<VerbView>& verbs) {
  std::string lines;
  std::vector<std::string> names;
  std::ranges::transform(verbs, std::back_inserter(names), &VerbView::name);
  const std::string no_verb = "not __fish_seen_subcommand_from " + Join(names, " ");
  for (const OptionView& option : tool.options) lines += FishOption(option, no_verb);
  for (const VerbView& verb : verbs) {
    lines += "complete -c tolva -n " + Quoted(no_verb) + " -a " + verb.name + " -d " +
             Quoted(verb.summary) + "\n";
    const std::string condition = "__fish_seen_subcommand_from " + verb.name;
    const std::vector<OptionView> positionals = Positionals(verb);
    for (std::size_t i = 0; i < positionals.size(); ++i) {
      const std::string at =
          positionals[i].is_repeatable ? "" : "; and __tolva_is_at " + std::to_string(i + 1);
      if (KindOf(positionals[i]) != Candidates::kNone) {
        lines += "complete -c tolva -n " + Quoted(condition + at) + FishCandidates(positionals[i]) +
                 "\n";
      }
    }
    for (const OptionView& option : verb.options) {
      if (!option.IsPositional()) lines += FishOption(option, condition);
    }
  }
  return "# fish completion for tolva; 'tolva completion fish' prints it.\n"
         "function __tolva_is_at\n"
         "    set -l words (commandline -opc | string match -v -- '-*')\n"
         "    test (count $words) -eq (math $argv[1] + 1)\n"
         "end\n"
         "complete -c tolva -f\n" +
         lines;
}

// ---- the verb ----------------------------------------------------------------------------------

/// The paths that begin like this and have one name more, a line each. One that has something in it
/// ends with a slash.
std::string PathsFrom(const std::string& prefix) {
  std::string lines;
  const std::size_t slash = prefix.find_last_of('/');
  if (slash == std::string::npos) {
    for (const Document& document : Documents()) lines += std::string(document.name) + "/\n";
    return lines;
  }
  const std::string parent = prefix.substr(0, slash);
  const Place place = FindPlace(parent);
  if (place.attribute != nullptr) return lines;
  for (const Attribute& attribute : place.element->attributes) {
    lines += parent + "/" + attribute.name + "\n";
  }
  for (const Child& child : place.element->children) {
    const bool is_leaf = child.element->attributes.empty() && child.element->children.empty();
    lines += parent + "/" + child.name + (is_leaf ? "\n" : "/\n");
  }
  return lines;
}

struct Options {
  std::string shell;
  std::string prefix;
  bool is_for_paths = false;
};

}  // namespace

std::string CompletionOf(const CLI::App& tool, std::string_view shell) {
  const VerbView view = ViewOfTool(tool);
  const std::vector<VerbView> verbs = ViewOfVerbs(tool);
  if (shell == "bash") return Bash(view, verbs);
  return shell == "zsh" ? Zsh(view, verbs) : Fish(view, verbs);
}

void AddCompletion(CLI::App& tool, Session& session) {
  Verb verb(tool, "completion", "Prints a script that lets a shell complete command lines.");
  const auto options = std::make_shared<Options>();
  const Option shell =
      verb.Add("shell", "SHELL", options->shell, "the shell.").AllowOnly({"bash", "zsh", "fish"});
  // For the scripts: the paths that can follow.
  const Option paths = verb.Add("--paths", "TEXT", options->prefix, "").Hide();
  verb.SetExamples("source <(tolva completion bash)");
  verb.SetAction(session, [&tool, &session, options, shell, paths] {
    if (!paths.IsGiven() && !shell.IsGiven()) {
      throw Trouble("which shell? bash, zsh or fish");
    }
    session.out.Write(paths.IsGiven() ? PathsFrom(options->prefix)
                                      : CompletionOf(tool, options->shell));
    return kFine;
  });
  Verb manual(tool, "manual", "Prints the manual page, in mdoc.");
  manual.Hide();
  manual.SetAction(session, [&tool, &session] {
    session.out.Write(ManualOf(tool));
    return kFine;
  });
}

}  // namespace tolva::cli
