#include "cli/files.h"

#include "support/errors.h"

namespace tolva::cli {

std::string ReasonOf(HRESULT failure) {
  return support::internal::PhraseOf(static_cast<DWORD>(failure));
}

}  // namespace tolva::cli
