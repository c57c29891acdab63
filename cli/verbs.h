// The verbs. Each function adds one to the tool; its options, and what it does, are in the source
// file of its name.
#pragma once

#include "cli/session.h"

namespace tolva::cli {

void AddCheck(CLI::App& tool, Session& session);
void AddDiff(CLI::App& tool, Session& session);
void AddExplain(CLI::App& tool, Session& session);
void AddSchema(CLI::App& tool, Session& session);
void AddNew(CLI::App& tool, Session& session);
void AddGet(CLI::App& tool, Session& session);
void AddSet(CLI::App& tool, Session& session);
void AddFmt(CLI::App& tool, Session& session);
void AddConvert(CLI::App& tool, Session& session);
void AddCompletion(CLI::App& tool, Session& session);

}  // namespace tolva::cli
