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

bool ProbeTruncatedInput() {
  TextStream stream("<a><b>");  // outlives the reader
  stream.reads_left = 1000;     // to give up on a reader that asks for more without end
  XmlReader reader;
  if (FAILED(reader.Create()) || FAILED(reader.SetInput(&stream))) return false;
  XmlNodeType type = XmlNodeType_None;
  Steps steps;
  while (steps.Take() && reader.Read(&type) == S_OK) {
  }
  return stream.reads_left >= 0;
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
