// What the verbs' command lines consist of. CLI11 reads them; its headers take long to compile, and
// few sources need more than this header.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/session.h"

namespace CLI {
class Option;
}

namespace tolva::cli {

/// An option or an argument of a verb, to say more about it.
class Option {
 public:
  explicit Option(CLI::Option& option) : option_(&option) {}

  Option& Describe(const char* description);
  Option& Require();
  Option& Hide();

  /// Each occurrence takes one value.
  Option& TakeOneEach();

  /// These values alone. The message about any other one names the nearest.
  Option& AllowOnly(const std::vector<std::string>& values);

  /// `fault_of` returns what is wrong with a value, or an empty string.
  Option& Check(const std::function<std::string(const std::string& value)>& fault_of);

  Option& Need(const Option& other);
  Option& Exclude(const Option& other);

  /// Whether it is on the command line that has been read.
  bool IsGiven() const;

 private:
  CLI::Option* option_;
};

/// A verb while it is added to the tool. The variables that options and arguments are read into
/// have to live as long as the tool.
class Verb {
 public:
  /// The first paragraph of the description is what the list of verbs says.
  Verb(CLI::App& tool, const char* name, const char* description);

  /// An option or, if the name has no dash, an argument. `names` are like "-o,--output"; `type`
  /// stands for the value in texts.
  Option Add(const char* names, const char* type, std::string& value, const char* description);
  Option Add(const char* names, const char* type, std::vector<std::string>& values,
             const char* description);
  Option Add(const char* names, const char* type, std::uint64_t& value, const char* description);
  Option AddFlag(const char* names, bool& value, const char* description);

  Option Find(const char* name);

  /// Command lines, one on each line.
  void SetExamples(const char* examples);

  /// Keeps the verb out of the lists of verbs.
  void Hide();

  /// What the verb does: it returns the exit status.
  void SetAction(Session& session, const std::function<int()>& action);

  /// Options and arguments with their values, in the order of the command line that has been read.
  struct Given {
    std::string name;  ///< as it was declared, without dashes
    /// Absent for an argument in brackets, which may give several values or none.
    std::optional<std::string> value;
  };
  std::vector<Given> AllGiven() const;

 private:
  CLI::App* verb_;
};

}  // namespace tolva::cli
