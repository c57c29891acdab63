// What streams that are implemented here derive from.
#pragma once

#include "platform/ref_counted.h"

namespace tolva::cli {

/// Not thread-safe.
using CountedStream = platform::RefCounted<platform::ISequentialStream>;

}  // namespace tolva::cli
