#include "xml/debug_dump.h"

#include <atomic>

namespace tolva::xml {
namespace {

std::atomic<DebugDumpCallback> debug_dump_callback = nullptr;

}  // namespace

void SetDebugDumpCallback(DebugDumpCallback callback) noexcept { debug_dump_callback = callback; }

void DebugDump(const wchar_t* text) {
  // Loaded once, because another thread may remove the callback at any time.
  const DebugDumpCallback callback = debug_dump_callback;
  if (callback != nullptr) callback(text);
}

}  // namespace tolva::xml
