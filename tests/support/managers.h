// Managers and the diagnostics they lead to, held as a test needs them.
#pragma once

#include <tolva/tolva.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tolva::test {

struct ManagerDeleter {
  void operator()(IXMLLiteManager* manager) const { tolvaDestroyXMLManager(manager); }
};

using ManagerPtr = std::unique_ptr<IXMLLiteManager, ManagerDeleter>;

inline ManagerPtr MakeReader() { return ManagerPtr(tolvaCreateXMLManager(0)); }
inline ManagerPtr MakeWriter() { return ManagerPtr(tolvaCreateXMLManager(1)); }

/// A last error that nothing sets.
inline constexpr DWORD kUntouched = 4711;

using Texts = std::vector<std::wstring>;

/// Collects the diagnostics while it lives.
class Diagnostics {
 public:
  Diagnostics() {
    texts.clear();
    SetTolvaDebugDumpCallBack([](const wchar_t* text) { texts.emplace_back(text); });
  }
  Diagnostics(const Diagnostics&) = delete;
  Diagnostics& operator=(const Diagnostics&) = delete;
  ~Diagnostics() { SetTolvaDebugDumpCallBack(nullptr); }

  /// What has come since the last call.
  Texts Take() { return std::exchange(texts, {}); }

 private:
  inline static Texts texts;
};

}  // namespace tolva::test
