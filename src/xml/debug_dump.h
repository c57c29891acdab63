// The diagnostic callback.
#pragma once

namespace tolva::xml {

using DebugDumpCallback = void (*)(const wchar_t*);

/// Replaces the process's callback; null removes it.
void SetDebugDumpCallback(DebugDumpCallback callback) noexcept;

/// Hands a text to the callback, if there is one, unchanged.
void DebugDump(const wchar_t* text);

}  // namespace tolva::xml
