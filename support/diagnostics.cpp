#include "support/collector.h"

#include <tolva/support/diagnostics.h>
#include <tolva/support/text.h>
#include <tolva/xml/manager.h>

#include <atomic>
#include <new>

namespace tolva::support {
namespace {

std::atomic<void (*)(const wchar_t*)> program_callback = nullptr;

thread_local internal::Collector* current = nullptr;

/// Receives every diagnostic text of the process.
void Dispatch(const wchar_t* text) {
  if (current != nullptr) current->Add(text);
  const auto callback = program_callback.load();
  if (callback != nullptr) callback(text);
}

void InstallOnce() {
  [[maybe_unused]] static const bool installed = [] {
    SetTolvaDebugDumpCallBack(&Dispatch);
    return true;
  }();
}

}  // namespace

namespace internal {

Collector::Collector(std::vector<std::string>& texts) : texts_(texts), outer_(current) {
  InstallOnce();
  current = this;
}

Collector::~Collector() { current = outer_; }

void Collector::Add(const wchar_t* text) noexcept try {
  texts_.push_back(ToUtf8(text));
} catch (const std::bad_alloc&) {
  incomplete_ = true;  // the library must not see an exception
}

void Collector::Check() const {
  if (incomplete_) throw std::bad_alloc();
}

}  // namespace internal

void SetDiagnosticCallback(void (*callback)(const wchar_t* text)) {
  program_callback = callback;
  InstallOnce();
}

}  // namespace tolva::support
