// The channels through which data can leave the endpoint by clipboard, printer, screen capture,
// application files and e-mail. The library does not interpret the numbers.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/policy/conditions.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// A channel with rules. Several elements have this content and differ only in their names. `Self`
/// is the interface of one of them.
template <class Self>
class IRuleChannel : public tolva::node::INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// `Sid`: the first of the two identifiers of the channel. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: the second of the two identifiers of the channel. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `AppRule`: an action for a set of applications. Repeated.
  ///
  /// Written before the other children.
  virtual DWORD GetAppRuleCount() const = 0;
  virtual IAppRule* GetAppRuleAt(DWORD index) = 0;
  virtual ConfigResult AddAppRule(const IAppRule* item) = 0;
  virtual ConfigResult InsertAppRuleAt(DWORD index, const IAppRule* item) = 0;
  virtual void RemoveAppRuleAt(DWORD index) = 0;
  virtual void RemoveAllAppRule() = 0;

  /// `OnlineApps`: an action for a set of applications and web addresses. Repeated.
  ///
  /// Written after all items of `AppRule`.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;
};

/// Element `ClipboardCopyCut`: the rules for copying or cutting to the clipboard.
class IClipboardCopyCut : public IRuleChannel<IClipboardCopyCut> {};

/// Element `ClipboardPaste`: the rules for pasting from the clipboard.
class IClipboardPaste : public IRuleChannel<IClipboardPaste> {};

/// Element `ILPPrintScreen`: the rules for screen captures.
class IILPPrintScreen : public IRuleChannel<IILPPrintScreen> {};

/// Element `ILPAppFile`: the rules for the access of applications to files.
class IILPAppFile : public IRuleChannel<IILPAppFile> {};

/// Element `Printer`: a trusted printer.
class IPrinter : public tolva::node::INode {
 public:
  virtual IPrinter& CopyFrom(const IPrinter& other) = 0;

  /// `Name`: the name of the printer. Optional.
  virtual ConfigResult GetName(std::wstring* out) const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;
};

#pragma push_macro("AddPrinter")
#undef AddPrinter
/// Element `TrustedPrinters`: the printers that are trusted.
class ITrustedPrinters : public tolva::node::INode {
 public:
  virtual ITrustedPrinters& CopyFrom(const ITrustedPrinters& other) = 0;

  /// `Printer`: a trusted printer. Repeated.
  virtual DWORD GetPrinterCount() const = 0;
  virtual IPrinter* GetPrinterAt(DWORD index) = 0;
  virtual ConfigResult AddPrinter(const IPrinter* item) = 0;
  virtual ConfigResult InsertPrinterAt(DWORD index, const IPrinter* item) = 0;
  virtual void RemovePrinterAt(DWORD index) = 0;
  virtual void RemoveAllPrinter() = 0;
#if defined(_WIN32)
  ConfigResult AddPrinterW(const IPrinter* item) { return AddPrinter(item); }
  ConfigResult AddPrinterA(const IPrinter* item) { return AddPrinter(item); }
#endif
};
#pragma pop_macro("AddPrinter")

/// Element `ILPPrinter`: the rules for printing.
class IILPPrinter : public tolva::node::INode {
 public:
  virtual IILPPrinter& CopyFrom(const IILPPrinter& other) = 0;

  /// `Sid`: the first of the two identifiers of the channel. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: the second of the two identifiers of the channel. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `AlwaysEMF`. Optional.
  virtual ConfigResult GetAlwaysEMF(DWORD* out) const = 0;
  virtual ConfigResult SetAlwaysEMF(const DWORD* value) = 0;

  /// `AppRule`: an action for a set of applications. Repeated.
  ///
  /// Written before the other children.
  virtual DWORD GetAppRuleCount() const = 0;
  virtual IAppRule* GetAppRuleAt(DWORD index) = 0;
  virtual ConfigResult AddAppRule(const IAppRule* item) = 0;
  virtual ConfigResult InsertAppRuleAt(DWORD index, const IAppRule* item) = 0;
  virtual void RemoveAppRuleAt(DWORD index) = 0;
  virtual void RemoveAllAppRule() = 0;

  /// `OnlineApps`: an action for a set of applications and web addresses. Repeated.
  ///
  /// Written after all items of `AppRule`.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;

  /// `TrustedPrinters`: the printers that are trusted. Optional.
  virtual ConfigResult GetTrustedPrinters(ITrustedPrinters** out) = 0;
  virtual ConfigResult SetTrustedPrinters(const ITrustedPrinters* child) = 0;
};

/// Element `ILPClipboard`: the rules for the clipboard.
class IILPClipboard : public tolva::node::INode {
 public:
  virtual IILPClipboard& CopyFrom(const IILPClipboard& other) = 0;

  /// `ClipboardCopyCut`: the rules for copying or cutting to the clipboard. Optional.
  virtual ConfigResult GetClipboardCopyCut(IClipboardCopyCut** out) = 0;
  virtual ConfigResult SetClipboardCopyCut(const IClipboardCopyCut* child) = 0;

  /// `ClipboardPaste`: the rules for pasting from the clipboard. Optional.
  virtual ConfigResult GetClipboardPaste(IClipboardPaste** out) = 0;
  virtual ConfigResult SetClipboardPaste(const IClipboardPaste* child) = 0;
};

/// Element `ILPEmail`: the e-mail channel.
class IILPEmail : public tolva::node::INode {
 public:
  virtual IILPEmail& CopyFrom(const IILPEmail& other) = 0;

  /// `Sid`: the first of the two identifiers of the channel. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: the second of the two identifiers of the channel. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IClipboardCopyCut* ClipboardCopyCut_CreateNewInstance();
TOLVA_API IClipboardPaste* ClipboardPaste_CreateNewInstance();
TOLVA_API IILPPrintScreen* ILPPrintScreen_CreateNewInstance();
TOLVA_API IILPAppFile* ILPAppFile_CreateNewInstance();
TOLVA_API IPrinter* Printer_CreateNewInstance();
TOLVA_API ITrustedPrinters* TrustedPrinters_CreateNewInstance();
TOLVA_API IILPPrinter* ILPPrinter_CreateNewInstance();
TOLVA_API IILPClipboard* ILPClipboard_CreateNewInstance();
TOLVA_API IILPEmail* ILPEmail_CreateNewInstance();

}  // namespace TolvaInterface
