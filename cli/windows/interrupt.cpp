#include "cli/interrupt.h"

#include <windows.h>

#include <atomic>

namespace tolva::cli {
namespace {

std::atomic<bool> is_interrupted = false;

/// Called by the system, on a thread of its own. What it does not answer ends the process.
BOOL WINAPI Note(DWORD event) {
  const bool is_interrupt = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
  return is_interrupt && !is_interrupted.exchange(true) ? TRUE : FALSE;
}

}  // namespace

void CatchInterrupt() {
  is_interrupted = false;
  SetConsoleCtrlHandler(&Note, TRUE);
}

bool IsInterrupted() { return is_interrupted; }

}  // namespace tolva::cli
