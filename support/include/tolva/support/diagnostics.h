// The diagnostic texts of the process.
//
// The library has one diagnostic callback for the process and does not tell who set it. The support
// library sets its own with the first call of `Load`, `LoadFromString`, `Save` or the function
// below, in place of one that was set before. It collects the texts of running loads and saves for
// their reports, and passes every text on. So a program that uses the support library registers
// its callback here, and no longer calls `SetTolvaDebugDumpCallBack`: reports would then come
// without diagnostics. Of several modules of a process that link the support library, the one that
// comes to set its callback last gets the texts.
#pragma once

namespace tolva::support {

/// Installs the function that receives every diagnostic text of the process, those that reports
/// hold included, replacing an earlier one; null removes it. It is called on the thread that
/// failed, and the text is valid only during the call. It must neither throw nor call the library.
void SetDiagnosticCallback(void (*callback)(const wchar_t* text));

}  // namespace tolva::support
