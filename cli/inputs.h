// The files that a verb reads: its arguments, folders, standard input.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/files.h"

namespace tolva::cli {

class Verb;

struct InputOptions {
  std::vector<std::string> names;  ///< as given; "-" is standard input
  bool is_recursive = false;
  std::string stdin_name = "standard input";
};

/// Adds the arguments FILE..., and the options -r and --stdin-name.
void AddInputs(Verb& verb, InputOptions& options);

/// Adds --stdin-name alone.
void AddStdinName(Verb& verb, std::string& stdin_name);

struct Input {
  std::string name;  ///< the path in UTF-8; elsewhere than on Windows any bytes
  bool is_standard_input = false;
  bool is_from_folder = false;  ///< found in a folder, where other kinds of documents may be
};

/// The file that an argument names; "-" is standard input.
Input InputOf(const std::string& argument, const std::string& stdin_name);

/// What is wrong with a file, as a sentence without its full stop.
using ReportTrouble = std::function<void(const std::string& message)>;

/// The files, in the order of the arguments; those of a folder (*.xml) by name. Links are followed;
/// a folder that is reached a second time is skipped. `report` gets what cannot be read.
std::vector<Input> FindInputs(const InputOptions& options, const ReportTrouble& report);

/// Opens a file, which is read from its start on. Throws Trouble.
ComPtr<ISequentialStream> OpenInput(const Input& input);

}  // namespace tolva::cli
