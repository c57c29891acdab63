// A seam for tests: test builds have their own header of this name, which makes calls of the
// platform's XML writer fail.
#pragma once

#include "xml/manager.h"

namespace tolva::xml {

/// S_OK, or the failure to return instead of making the next call.
inline HRESULT NextWriterFault() { return 0; }

}  // namespace tolva::xml
