// The diagnostic callback.
#pragma once

namespace tolva::xml {

using DebugDumpCallback = void (*)(const wchar_t*);

/// Replaces the process's callback; null removes it.
void SetDebugDumpCallback(DebugDumpCallback callback) noexcept;

/// Passes the text to the callback, if there is one.
void DebugDump(const wchar_t* text);

}  // namespace tolva::xml
