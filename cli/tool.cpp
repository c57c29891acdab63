#include <CLI/CLI.hpp>

#include "cli/verbs.h"

namespace tolva::cli {

void AddTool(CLI::App& tool, Session& session) {
  tool.allow_windows_style_options(false);  // a path begins with a slash everywhere
  tool.set_help_flag("-h,--help", "prints this help.");
  tool.set_version_flag("--version", "", "prints the version.");
  tool.footer(
      "tolva check policy.xml          what is wrong with a policy\n"
      "tolva diff old.xml new.xml      what differs between two documents\n"
      "tolva explain policy            what the policy holds\n"
      "tolva new policy --full         a policy to start from\n"
      "tolva fmt --check policy.xml    whether it is as the library writes it\n"
      "tolva schema html -o doc.html   a page about all documents");
  AddCheck(tool, session);
  AddDiff(tool, session);
  AddExplain(tool, session);
  AddSchema(tool, session);
  AddNew(tool, session);
  AddGet(tool, session);
  AddSet(tool, session);
  AddFmt(tool, session);
  AddConvert(tool, session);
  AddCompletion(tool, session);
}

}  // namespace tolva::cli
