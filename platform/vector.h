// Sixteen bytes at a time.
//
// `Bytes` has two implementations with one interface. PlainBytes is portable C++ and documents
// every member; Sse2Bytes uses SSE2 instructions. This header alone decides which one is used: SSE2
// where the compiler has it, unless TOLVA_PLAIN_VECTORS is defined.
#pragma once

#include <bit>
#include <cstdint>

#if (defined(__SSE2__) || defined(_M_X64)) && !defined(TOLVA_PLAIN_VECTORS)
#include "platform/vector_sse2.h"
namespace tolva::platform {
using Bytes = Sse2Bytes;
}
#else
#include "platform/vector_plain.h"
namespace tolva::platform {
using Bytes = PlainBytes;
}
#endif

namespace tolva::platform {

/// One bit for each byte; the first byte has the lowest bit.
using Mask = std::uint32_t;

inline constexpr Mask kAllBytes = 0xFFFF;

/// The index of the first byte whose bit is set; 16 if there is none.
inline unsigned FirstOf(Mask mask) {
  return static_cast<unsigned>(std::countr_zero(mask | ~kAllBytes));
}

/// Copies text in blocks: up to 15 bytes after it are read and written as well.
inline void CopyBlocks(const char* from, std::size_t size, char* to) {
  for (std::size_t i = 0; i < size; i += Bytes::kCount) Bytes::Load(from + i).Store(to + i);
}

}  // namespace tolva::platform
