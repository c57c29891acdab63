// Interrupts (Ctrl+C) of work that has results before it is done: one source file per platform.
#pragma once

namespace tolva::cli {

/// From now on an interrupt does not end the process. A second one does.
void CatchInterrupt();

/// Whether there has been an interrupt since then.
bool IsInterrupted();

}  // namespace tolva::cli
