#include "support/capabilities.h"

#if !defined(TOLVA_OWN_XML_LAYER)
#include <string>

#include "platform/platform.h"
#include "support/files.h"
#include "support/nodes.h"
#include "support/steps.h"
#include "support/streams.h"
#endif

namespace tolva::test {
namespace {

#if defined(TOLVA_OWN_XML_LAYER)

bool ProbeEscapes() { return true; }
bool ProbeTruncatedInput() { return true; }
bool ProbeSecondRoot() { return true; }

#else

bool ProbeEscapes() {
  const std::unique_ptr<ClientConfig::IDefaultDomain> node(
      ClientConfig::DefaultDomain_CreateNewInstance());
  const std::wstring name = L"<";
  node->SetName(&name);
  return WriteFile(*node).find("&lt;") != std::string::npos;
}

/// Gives a document that breaks off, and gives up on a reader that asks for more without end.
class TruncatedStream final : public StackStream {
 public:
  HRESULT Read(void* buffer, ULONG size, ULONG* count) noexcept override {
    const std::string_view text = asked_++ == 0 ? "<a><b>" : "";
    *count = std::min<ULONG>(size, static_cast<ULONG>(text.size()));
    std::memcpy(buffer, text.data(), *count);
    return has_run_out() ? E_FAIL : S_FALSE;
  }

  bool has_run_out() const { return asked_ > 1000; }

 private:
  int asked_ = 0;
};

bool ProbeTruncatedInput() {
  TruncatedStream stream;  // outlives the reader
  XmlReader reader;
  if (FAILED(reader.Create()) || FAILED(reader.SetInput(&stream))) return false;
  XmlNodeType type = XmlNodeType_None;
  Steps steps;
  while (steps.Take() && reader.Read(&type) == S_OK) {
  }
  return !stream.has_run_out();
}

bool ProbeSecondRoot() {
  SinkStream sink;  // outlives the writer
  XmlWriter writer;
  return SUCCEEDED(writer.Create()) && SUCCEEDED(writer.SetOutput(&sink)) &&
         SUCCEEDED(writer.WriteEmptyElement(L"a")) && FAILED(writer.WriteEmptyElement(L"b"));
}

#endif

}  // namespace

bool WriterEscapes() {
  static const bool escapes = ProbeEscapes();
  return escapes;
}

bool WriterRefusesASecondRoot() {
  static const bool refuses = ProbeSecondRoot();
  return refuses;
}

bool ReaderEndsTruncatedInput() {
  static const bool ends = ProbeTruncatedInput();
  return ends;
}

}  // namespace tolva::test
