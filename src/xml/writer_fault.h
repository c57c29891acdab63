// Where test builds make a call of the platform's XML writer fail: they put a header of this name
// in front of it.
#pragma once

#include "xml/manager.h"

namespace tolva::xml {

/// S_OK, or the failure with which the next call is to be answered instead of being made.
inline HRESULT NextWriterFault() { return 0; }

}  // namespace tolva::xml
