// The documents under examples/documents.
#pragma once

#include <tolva/tolva.h>

#include <memory>
#include <string>

#include "support/nodes.h"

namespace tolva::test {

inline constexpr const char* kDocuments[] = {
    "active-directory",
    "analysis-details",
    "ci",
    "global",
    "install-config",
    "message-catalogue",
    "ng",
    "patch-history",
    "policy",
    "proxy",
    "remote-filtering",
};

inline std::string ReadDocument(const std::string& name) {
  return TempFile::ReadFile(TOLVA_DOCUMENTS "/" + name + ".xml");
}

inline std::unique_ptr<TolvaInterface::IILPClientConfiguration> ReadPolicy() {
  std::unique_ptr<TolvaInterface::IILPClientConfiguration> root(
      TolvaInterface::ILPClientConfiguration_CreateNewInstance());
  EXPECT_EQ(ReadFile(*root, TOLVA_DOCUMENTS "/policy.xml"), 0);
  return root;
}

}  // namespace tolva::test
