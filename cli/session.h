// What all verbs have in common: exit statuses, common options, styles, and where results go.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "cli/stream.h"

namespace CLI {
class App;
}

namespace tolva::cli {

class Verb;

enum ExitStatus : int {
  kFine = 0,      ///< done; equal; found
  kFindings = 1,  ///< something was found; different; absent
  kTrouble = 2,   ///< wrong usage; something cannot be read or written
};

/// Ends a verb with kTrouble. The message has no full stop.
class Trouble : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The parts of a text that a terminal shows in different styles.
class Style {
 public:
  explicit Style(bool is_coloured) : is_coloured_(is_coloured) {}

  std::string Heading(std::string_view text) const { return In("1", text); }
  std::string Name(std::string_view text) const { return In("1;36", text); }
  std::string Literal(std::string_view text) const { return In("32", text); }
  std::string Required(std::string_view text) const { return In("33", text); }
  std::string Faint(std::string_view text) const { return In("2", text); }
  std::string Error(std::string_view text) const { return In("1;31", text); }

  std::string Added(std::string_view text) const { return In("32", text); }
  std::string Removed(std::string_view text) const { return In("31", text); }
  std::string Changed(std::string_view text) const { return In("33", text); }
  std::string Moved(std::string_view text) const { return In("36", text); }

 private:
  std::string In(std::string_view code, std::string_view text) const;

  bool is_coloured_;
};

/// One run of the tool.
struct Session {
  Stream& out;
  Stream& err;
  std::string format = "text";       ///< --format
  std::string color = "auto";        ///< --color
  std::function<int()> action = {};  ///< what the verb does once the command line has been read

  bool IsJson() const { return format == "json"; }

  /// How results are shown.
  Style OutStyle() const;

  /// The width for text. Lines that are longer than this limit are hard to read.
  std::size_t TextWidth() const;
};

/// Adds --color, and --format if the verb has several.
void AddCommonOptions(Verb& verb, Session& session, const std::vector<std::string>& formats = {});

/// The options -o and --force of verbs that make a document.
struct Destination {
  std::string file;  ///< empty or "-": standard output
  bool is_forced = false;

  bool IsFile() const { return !file.empty() && file != "-"; }
};
void AddDestination(Verb& verb, Destination& destination);

/// Writes a result where the destination says.
void Deliver(Session& session, const Destination& destination, std::string_view bytes);

/// Runs the tool. Returns an exit status.
int Run(const std::vector<std::string>& arguments, Stream& out, Stream& err);

}  // namespace tolva::cli
