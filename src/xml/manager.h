// What reader and writer managers have in common.
#pragma once

#include <tolva/xml/manager.h>

#include "platform/platform.h"

namespace tolva::xml {

// The interfaces of the platform are used by their plain names, wherever they come from.
using namespace platform;

/// Holds the byte stream of the document that is open.
class CXMLLiteManager : public IXMLLiteManager {
 public:
  enum class Kind : bool { kReader, kWriter };

  explicit CXMLLiteManager(Kind kind) : kind_(kind) {}
  ~CXMLLiteManager() override { CXMLLiteManager::Close(); }

  ConfigResult OpenFromString(const wchar_t* /*xml_text*/) override { return kFailed; }

  /// Releases the stream.
  ConfigResult Close() override {
    stream_.Reset();
    return kSuccess;
  }

  Kind kind() const { return kind_; }

 protected:
  ComPtr<ISequentialStream> stream_;  ///< null while nothing is open

 private:
  const Kind kind_;
};

/// Stores the code of a failed platform call as last error.
inline void SetLastResult(HRESULT result) { SetLastError(static_cast<DWORD>(result)); }

}  // namespace tolva::xml
