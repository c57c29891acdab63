// Goes through a document and finds what is wrong with it.
#pragma once

#include "cli/check_findings.h"
#include "cli/tables.h"
#include "platform/platform.h"

namespace tolva::cli {

using namespace platform;  // see platform.h

/// Receives what a document loses when the library reads it and writes it again, beyond the
/// warnings: comments, processing instructions, namespaces.
class LossSink {
 public:
  LossSink() = default;
  LossSink(const LossSink&) = delete;
  LossSink& operator=(const LossSink&) = delete;

  /// `what` is fit for a terminal: "this comment".
  virtual void AddLoss(const Position& position, std::string what) = 0;

 protected:
  virtual ~LossSink() = default;
};

struct WalkOptions {
  const Document* expected = nullptr;  ///< what the document has to be; null: any of the documents
  bool skips_foreign = false;          ///< a document with another root is left alone
  LossSink* losses = nullptr;          ///< null: they are of no interest
};

struct WalkOutcome {
  const Document* document = nullptr;  ///< null: another root, or none was reached
  bool is_foreign = false;             ///< it was skipped
  HRESULT failure = S_OK;              ///< of the stream
};

/// Finds everything that is wrong with a document. There is an error if, and only if, the library
/// does not read it, or says through its last error or `tolvaReadToEnd` that it is damaged.
///
/// Goes on after a finding as long as the document is well-formed. Streams: memory does not depend
/// on the size of the document, but on that of its largest piece of markup or text.
WalkOutcome WalkDocument(ISequentialStream& stream, const WalkOptions& options, FindingSink& sink);

}  // namespace tolva::cli
