#include "cli/interrupt.h"

#include <csignal>
#include <initializer_list>

namespace tolva::cli {
namespace {

volatile std::sig_atomic_t is_interrupted = 0;

void Note(int /*signal*/) { is_interrupted = 1; }

}  // namespace

void CatchInterrupt() {
  is_interrupted = 0;
  struct sigaction action {};
  action.sa_handler = &Note;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal : {SIGINT, SIGTERM}) sigaction(signal, &action, nullptr);
}

bool IsInterrupted() { return is_interrupted != 0; }

}  // namespace tolva::cli
