#include "cli/session.h"
#include "cli/terminal.h"

int main(int argc, char** argv) {
  const auto out = tolva::cli::StandardOutput();
  const auto err = tolva::cli::StandardError();
  return tolva::cli::Run(tolva::cli::Arguments(argc, argv), *out, *err);
}
