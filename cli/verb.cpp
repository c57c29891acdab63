#include "cli/verb.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <utility>

#include "cli/text.h"

namespace tolva::cli {

Option& Option::Describe(const char* description) {
  option_->description(description);
  return *this;
}

Option& Option::Require() {
  option_->required();
  return *this;
}

Option& Option::Hide() {
  option_->group("");
  return *this;
}

Option& Option::TakeOneEach() {
  option_->allow_extra_args(false);
  return *this;
}

Option& Option::AllowOnly(const std::vector<std::string>& values) {
  std::string all;
  for (const std::string& value : values) all += (all.empty() ? "" : ",") + value;
  const auto check = [values](const std::string& value) -> std::string {
    if (std::ranges::find(values, value) != values.end()) return {};
    return "'" + value + "' is none of " + Enumerate(values, "and") + DidYouMean(value, values);
  };
  option_->check(CLI::Validator(check, "{" + all + "}"));
  return *this;
}

Option& Option::Check(const std::function<std::string(const std::string& value)>& fault_of) {
  option_->check(CLI::Validator(fault_of, ""));
  return *this;
}

Option& Option::Need(const Option& other) {
  option_->needs(other.option_);
  return *this;
}

Option& Option::Exclude(const Option& other) {
  option_->excludes(other.option_);
  return *this;
}

bool Option::IsGiven() const { return option_->count() != 0; }

Verb::Verb(CLI::App& tool, const char* name, const char* description)
    : verb_(tool.add_subcommand(name, description)) {}

Option Verb::Add(const char* names, const char* type, std::string& value, const char* description) {
  return Option(*verb_->add_option(names, value, description)->type_name(type));
}

Option Verb::Add(const char* names, const char* type, std::vector<std::string>& values,
                 const char* description) {
  return Option(*verb_->add_option(names, values, description)->type_name(type));
}

Option Verb::Add(const char* names, const char* type, std::uint64_t& value,
                 const char* description) {
  return Option(*verb_->add_option(names, value, description)->type_name(type));
}

Option Verb::AddFlag(const char* names, bool& value, const char* description) {
  return Option(*verb_->add_flag(names, value, description));
}

Option Verb::Find(const char* name) { return Option(*verb_->get_option(name)); }

void Verb::SetExamples(const char* examples) { verb_->footer(examples); }

void Verb::Hide() { verb_->group(""); }

void Verb::SetAction(Session& session, const std::function<int()>& action) {
  verb_->callback([&session, action] { session.action = action; });
}

std::vector<Verb::Given> Verb::AllGiven() const {
  std::map<const CLI::Option*, std::size_t> taken;
  std::vector<Given> all;
  for (const CLI::Option* const option : verb_->parse_order()) {
    const std::size_t index = taken[option]++;
    Given given = {.name = option->get_single_name(), .value = std::nullopt};
    if (index < option->results().size()) given.value = option->results()[index];
    all.push_back(std::move(given));
  }
  return all;
}

}  // namespace tolva::cli
