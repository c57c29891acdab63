// What the module client configurations report when they cannot be written.
#include <gtest/gtest.h>

#include "modules/examples.h"
#include "support/writer_faults.h"

namespace tolva::test {
namespace {

TEST(ModuleFaults, AreReportedLevelByLevel) {
  for (const ModuleExample& module : kModuleExamples) {
    SCOPED_TRACE(module.name);
    module.make().ExpectWriteFaults(ReportsOfFault);
  }
}

}  // namespace
}  // namespace tolva::test
