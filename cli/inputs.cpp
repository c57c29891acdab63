#include "cli/inputs.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

#include "cli/session.h"
#include "cli/text.h"
#include "cli/verb.h"

namespace tolva::cli {
namespace {

namespace fs = std::filesystem;

std::string Unreadable(const std::string& name, const std::string& reason) {
  return "'" + Printable(name) + "' cannot be read: " + reason;
}

bool IsDocumentName(const fs::path& path) {
  const std::string extension = NameOf(path.extension());
  constexpr std::string_view kExtension = ".xml";
  return std::ranges::equal(extension, kExtension, {}, [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
}

class Finder {
 public:
  explicit Finder(const ReportTrouble& report) : report_(report) {}

  void AddFolder(const fs::path& folder) {
    std::error_code error;
    const fs::path real = fs::canonical(folder, error);
    if (!error && !known_.insert(real).second) return;
    std::vector<fs::path> entries;
    fs::directory_iterator entry;
    if (!error) entry = fs::directory_iterator(folder, error);
    while (!error && entry != fs::directory_iterator()) {
      entries.push_back(entry->path());
      entry.increment(error);
    }
    if (error) report_(Unreadable(NameOf(folder), ReasonOf(ResultOf(error))));
    std::ranges::sort(entries);
    for (const fs::path& one : entries) AddEntry(one);
  }

  std::vector<Input> inputs;

 private:
  void AddEntry(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status)) {
      AddFolder(path);
    } else if (IsDocumentName(path)) {
      // Reading from a pipe would wait for another process. What is gone or not accessible is told
      // when it is opened.
      const bool is_special = fs::exists(status) && !fs::is_regular_file(status);
      if (!is_special) inputs.push_back({.name = NameOf(path), .is_from_folder = true});
    }
  }

  const ReportTrouble& report_;
  std::set<fs::path> known_;
};

}  // namespace

void AddInputs(Verb& verb, InputOptions& options) {
  verb.Add("file", "FILE", options.names, "the documents; '-' is standard input.").Require();
  verb.AddFlag("-r,--recursive", options.is_recursive,
               "reads the files *.xml in the folders that are named, and in what is below them.");
  AddStdinName(verb, options.stdin_name);
}

void AddStdinName(Verb& verb, std::string& stdin_name) {
  verb.Add("--stdin-name", "NAME", stdin_name, "what messages and results call standard input.");
}

Input InputOf(const std::string& argument, const std::string& stdin_name) {
  if (argument == "-") return {.name = stdin_name, .is_standard_input = true};
  return {.name = argument};
}

std::vector<Input> FindInputs(const InputOptions& options, const ReportTrouble& report) {
  Finder finder(report);
  bool has_standard_input = false;
  for (const std::string& name : options.names) {
    if (name == "-") {
      if (std::exchange(has_standard_input, true)) {
        report("standard input is named twice");
        continue;
      }
      finder.inputs.push_back(InputOf(name, options.stdin_name));
      continue;
    }
    std::error_code ignored;
    if (!fs::is_directory(PathOf(name), ignored)) {
      finder.inputs.push_back(InputOf(name, options.stdin_name));
    } else if (options.is_recursive) {
      finder.AddFolder(PathOf(name));
    } else {
      report("'" + Printable(name) + "' is a folder; -r reads the documents in it");
    }
  }
  return std::move(finder.inputs);
}

ComPtr<ISequentialStream> OpenInput(const Input& input) {
  ComPtr<ISequentialStream> stream;
  const HRESULT result =
      input.is_standard_input ? OpenStandardInput(stream) : OpenFile(PathOf(input.name), stream);
  if (FAILED(result)) throw Trouble(Unreadable(input.name, ReasonOf(result)));
  return stream;
}

}  // namespace tolva::cli
