// The exported functions that are not factories.
#include <tolva/xml/manager.h>

#include <memory>

#include "xml/debug_dump.h"
#include "xml/reader.h"
#include "xml/writer.h"

IXMLLiteManager* tolvaCreateXMLManager(int writer) {
  if (writer != 0) return std::make_unique<tolva::xml::CXMLLiteManagerWriter>().release();
  return std::make_unique<tolva::xml::CXMLLiteManagerReader>().release();
}

void tolvaDestroyXMLManager(IXMLLiteManager* manager) {
  const std::unique_ptr<IXMLLiteManager> owned(manager);
}

void SetTolvaDebugDumpCallBack(void (*callback)(const wchar_t*)) {
  tolva::xml::SetDebugDumpCallback(callback);
}

ConfigResult tolvaReadToEnd(IXMLLiteManager* reader) {
  if (reader == nullptr) return tolva::kInvalidArgument;
  auto* const own = tolva::xml::AsReader(reader);
  return own == nullptr ? tolva::kFailed : own->ReadToEnd();
}

DWORD tolvaGetLastError() {
  using namespace tolva::platform;
  return GetLastError();
}

void tolvaSetLastError(DWORD error) {
  using namespace tolva::platform;
  SetLastError(error);
}
