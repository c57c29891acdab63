// The classes of tolva/policy/channels.h.
#pragma once

#include <tolva/policy/channels.h>

#include <string>

#include "node/accessors.h"
#include "policy/conditions.h"
#include "policy/document.h"

namespace TolvaInterface {

/// Base of a channel with rules `C`, which implements `I`.
template <class C, class I>
class RuleChannel : public Node<C, I> {
 public:
  TOLVA_OPTIONAL(DWORD, Sid, sid_);
  TOLVA_OPTIONAL(DWORD, Cid, cid_);
  TOLVA_CHILDREN(CAppRule, AppRule, appRules_);
  TOLVA_CHILDREN(COnlineApps, OnlineApps, onlineApps_);
};

class CClipboardCopyCut final : public RuleChannel<CClipboardCopyCut, IClipboardCopyCut> {
 public:
  static const Schema kSchema;
};

class CClipboardPaste final : public RuleChannel<CClipboardPaste, IClipboardPaste> {
 public:
  static const Schema kSchema;
};

class CILPPrintScreen final : public RuleChannel<CILPPrintScreen, IILPPrintScreen> {
 public:
  static const Schema kSchema;
};

class CILPAppFile final : public RuleChannel<CILPAppFile, IILPAppFile> {
 public:
  static const Schema kSchema;
};

class CPrinter final : public Node<CPrinter, IPrinter> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, Name, name_);
};

#pragma push_macro("AddPrinter")
#undef AddPrinter
class CTrustedPrinters final : public Node<CTrustedPrinters, ITrustedPrinters> {
 public:
  static const Schema kSchema;

  TOLVA_CHILDREN(CPrinter, Printer, printers_);
};
#pragma pop_macro("AddPrinter")

class CILPPrinter final : public Node<CILPPrinter, IILPPrinter> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Sid, sid_);
  TOLVA_OPTIONAL(DWORD, Cid, cid_);
  TOLVA_OPTIONAL(DWORD, AlwaysEMF, alwaysEMF_);
  TOLVA_CHILDREN(CAppRule, AppRule, appRules_);
  TOLVA_CHILDREN(COnlineApps, OnlineApps, onlineApps_);
  TOLVA_OPTIONAL_CHILD(CTrustedPrinters, TrustedPrinters, trustedPrinters_);
};

class CILPClipboard final : public Node<CILPClipboard, IILPClipboard> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL_CHILD(CClipboardCopyCut, ClipboardCopyCut, clipboardCopyCut_);
  TOLVA_OPTIONAL_CHILD(CClipboardPaste, ClipboardPaste, clipboardPaste_);
};

class CILPEmail final : public Node<CILPEmail, IILPEmail> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(DWORD, Sid, sid_);
  TOLVA_OPTIONAL(DWORD, Cid, cid_);
};

}  // namespace TolvaInterface
