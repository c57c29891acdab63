// Failing calls of the platform's XML writer.
#pragma once

#include <tolva/node/node.h>

#include "support/nodes.h"
#include "xml/writer_fault.h"

namespace tolva::test {

/// Makes one call fail, `calls_before` calls from now, while it lives.
class WriterFault {
 public:
  static constexpr auto kCode = static_cast<DWORD>(xml::kWriterFault);

  explicit WriterFault(int calls_before) { xml::calls_until_writer_fault = calls_before; }
  WriterFault(const WriterFault&) = delete;
  WriterFault& operator=(const WriterFault&) = delete;
  ~WriterFault() { xml::calls_until_writer_fault = -1; }

  /// The call has failed.
  static bool HasStruck() { return xml::calls_until_writer_fault < 0; }
};

/// The reports when the n-th call (from 0) of the writing of a node fails.
inline Texts ReportsOfFault(const node::IElement& node, int n, ConfigResult* result = nullptr) {
  const TempFile file;
  const ManagerPtr writer = OpenWriter(file);
  Diagnostics diagnostics;
  const WriterFault fault(n);
  const ConfigResult written = node.WriteToXMLMgr(writer.get());
  if (result != nullptr) *result = written;
  return diagnostics.Take();
}

}  // namespace tolva::test
