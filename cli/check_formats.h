// The forms in which `check` tells what it has found.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/check_findings.h"
#include "cli/session.h"
#include "cli/tables.h"

namespace tolva::cli {

/// A file or folder that was not read whole.
struct FileTrouble {
  std::string name;     ///< empty: the message has it
  std::string message;  ///< names the file, too; fit for a terminal
};

struct Summary {
  std::uint64_t files = 0;
  std::uint64_t skipped = 0;  ///< with the root of no document of the agent
  std::uint64_t errors = 0;
  std::uint64_t warnings = 0;
  std::uint64_t shown = 0;  ///< of errors and warnings
  std::vector<FileTrouble> troubles;
};

/// A form of the result: a start, a record for each finding, and an end. Functions return what is
/// to be printed. `Record` may be called on several threads at once.
class CheckFormat {
 public:
  CheckFormat() = default;
  CheckFormat(const CheckFormat&) = delete;
  CheckFormat& operator=(const CheckFormat&) = delete;
  virtual ~CheckFormat() = default;

  virtual std::string Start() const { return {}; }
  virtual std::string Record(const std::string& file, const Finding& finding) const = 0;

  /// What stands between two records.
  virtual std::string_view Separator() const { return {}; }

  /// A record for a file in which nothing was found; empty: none.
  virtual std::string RecordOfFine(const std::string& /*file*/) const { return {}; }

  virtual std::string End(const Summary& /*summary*/) const { return {}; }
};

/// The names of all formats.
const std::vector<std::string>& CheckFormats();

/// `is_strict`: a warning is a failure, too.
std::unique_ptr<CheckFormat> MakeCheckFormat(std::string_view name, const Style& style,
                                             bool is_strict);

}  // namespace tolva::cli
