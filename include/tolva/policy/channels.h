// The channels through which data leaves by clipboard, printer, screen capture, application files
// and e-mail.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/node.h>
#include <tolva/policy/conditions.h>
#include <tolva/types.h>

namespace TolvaInterface {

/// A channel with rules. Several elements have this content and differ in their name alone; `Self`
/// is the interface of one of them.
template <class Self>
class IRuleChannel : public tolva::node::INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// `Sid`: an identifier of the channel, carried unchanged. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: another one, likewise. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// The rules: children `AppRule`, written first.
  virtual DWORD GetAppRuleCount() const = 0;
  virtual IAppRule* GetAppRuleAt(DWORD index) = 0;
  virtual ConfigResult AddAppRule(const IAppRule* item) = 0;
  virtual ConfigResult InsertAppRuleAt(DWORD index, const IAppRule* item) = 0;
  virtual void RemoveAppRuleAt(DWORD index) = 0;
  virtual void RemoveAllAppRule() = 0;

  /// Children `OnlineApps`, written after the rules.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;
};

/// Element `ClipboardCopyCut`: copying to the clipboard.
class IClipboardCopyCut : public IRuleChannel<IClipboardCopyCut> {};

/// Element `ClipboardPaste`: pasting from the clipboard.
class IClipboardPaste : public IRuleChannel<IClipboardPaste> {};

/// Element `ILPPrintScreen`: capturing the screen.
class IILPPrintScreen : public IRuleChannel<IILPPrintScreen> {};

/// Element `ILPAppFile`: application file access.
class IILPAppFile : public IRuleChannel<IILPAppFile> {};

/// Element `Printer`: a printer.
class IPrinter : public tolva::node::INode {
 public:
  virtual IPrinter& CopyFrom(const IPrinter& other) = 0;

  /// `Name`: its name. Optional.
  virtual ConfigResult GetName(std::wstring* out) const = 0;
  virtual ConfigResult SetName(const std::wstring* value) = 0;
};

#pragma push_macro("AddPrinter")
#undef AddPrinter
/// Element `TrustedPrinters`: printers that are trusted.
class ITrustedPrinters : public tolva::node::INode {
 public:
  virtual ITrustedPrinters& CopyFrom(const ITrustedPrinters& other) = 0;

  /// The printers: children `Printer`.
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

/// Element `ILPPrinter`: printing.
class IILPPrinter : public tolva::node::INode {
 public:
  virtual IILPPrinter& CopyFrom(const IILPPrinter& other) = 0;

  /// `Sid`: an identifier of the channel, carried unchanged. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: another one, likewise. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;

  /// `AlwaysEMF`: a number, carried unchanged. Optional.
  virtual ConfigResult GetAlwaysEMF(DWORD* out) const = 0;
  virtual ConfigResult SetAlwaysEMF(const DWORD* value) = 0;

  /// The rules: children `AppRule`, written first.
  virtual DWORD GetAppRuleCount() const = 0;
  virtual IAppRule* GetAppRuleAt(DWORD index) = 0;
  virtual ConfigResult AddAppRule(const IAppRule* item) = 0;
  virtual ConfigResult InsertAppRuleAt(DWORD index, const IAppRule* item) = 0;
  virtual void RemoveAppRuleAt(DWORD index) = 0;
  virtual void RemoveAllAppRule() = 0;

  /// Children `OnlineApps`, written after the rules.
  virtual DWORD GetOnlineAppsCount() const = 0;
  virtual IOnlineApps* GetOnlineAppsAt(DWORD index) = 0;
  virtual ConfigResult AddOnlineApps(const IOnlineApps* item) = 0;
  virtual ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) = 0;
  virtual void RemoveOnlineAppsAt(DWORD index) = 0;
  virtual void RemoveAllOnlineApps() = 0;

  /// The child `TrustedPrinters`. Optional.
  virtual ConfigResult GetTrustedPrinters(ITrustedPrinters** out) = 0;
  virtual ConfigResult SetTrustedPrinters(const ITrustedPrinters* child) = 0;
};

/// Element `ILPClipboard`: the clipboard.
class IILPClipboard : public tolva::node::INode {
 public:
  virtual IILPClipboard& CopyFrom(const IILPClipboard& other) = 0;

  /// The child `ClipboardCopyCut`. Optional.
  virtual ConfigResult GetClipboardCopyCut(IClipboardCopyCut** out) = 0;
  virtual ConfigResult SetClipboardCopyCut(const IClipboardCopyCut* child) = 0;

  /// The child `ClipboardPaste`. Optional.
  virtual ConfigResult GetClipboardPaste(IClipboardPaste** out) = 0;
  virtual ConfigResult SetClipboardPaste(const IClipboardPaste* child) = 0;
};

/// Element `ILPEmail`: e-mail.
class IILPEmail : public tolva::node::INode {
 public:
  virtual IILPEmail& CopyFrom(const IILPEmail& other) = 0;

  /// `Sid`: an identifier of the channel, carried unchanged. Optional.
  virtual ConfigResult GetSid(DWORD* out) const = 0;
  virtual ConfigResult SetSid(const DWORD* value) = 0;

  /// `Cid`: another one, likewise. Optional.
  virtual ConfigResult GetCid(DWORD* out) const = 0;
  virtual ConfigResult SetCid(const DWORD* value) = 0;
};

// Each makes a node with default values, which the caller owns.
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
