#include "xml/debug_dump.h"

namespace tolva::xml {
namespace {

DebugDumpCallback debug_dump_callback = nullptr;

}  // namespace

void SetDebugDumpCallback(DebugDumpCallback callback) noexcept { debug_dump_callback = callback; }

void DebugDump(const wchar_t* text) {
  if (debug_dump_callback != nullptr) debug_dump_callback(text);
}

}  // namespace tolva::xml
