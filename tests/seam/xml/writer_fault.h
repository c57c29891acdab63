// In front of the library's header of this name in test builds: makes chosen calls of the
// platform's XML writer fail.
#pragma once

#include "xml/manager.h"

namespace tolva::xml {

/// The call that fails: 0 is the next one, negative none.
inline int calls_until_writer_fault = -1;

inline constexpr auto kWriterFault = static_cast<HRESULT>(0x80004005);

inline HRESULT NextWriterFault() {
  if (calls_until_writer_fault < 0) return S_OK;
  return calls_until_writer_fault-- == 0 ? kWriterFault : S_OK;
}

}  // namespace tolva::xml
