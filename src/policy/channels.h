// The classes of tolva/policy/channels.h.
#pragma once

#include <tolva/policy/channels.h>

#include <string>

#include "node/node.h"
#include "policy/conditions.h"
#include "policy/document.h"

namespace TolvaInterface {

/// The channels with rules: one class for all, `C` and `I` being the class and the interface of
/// one.
template <class C, class I>
class RuleChannel : public Node<C, I> {
 public:
  ConfigResult GetSid(DWORD* out) const override { return sid_.Get(out); }
  ConfigResult SetSid(const DWORD* value) override { return sid_.Set(value); }
  ConfigResult GetCid(DWORD* out) const override { return cid_.Get(out); }
  ConfigResult SetCid(const DWORD* value) override { return cid_.Set(value); }
  DWORD GetAppRuleCount() const override { return appRules_.Count(); }
  IAppRule* GetAppRuleAt(DWORD index) override { return appRules_.At(index); }
  ConfigResult AddAppRule(const IAppRule* item) override { return appRules_.Add(item); }
  ConfigResult InsertAppRuleAt(DWORD index, const IAppRule* item) override {
    return appRules_.InsertAt(index, item);
  }
  void RemoveAppRuleAt(DWORD index) override { appRules_.RemoveAt(index); }
  void RemoveAllAppRule() override { appRules_.RemoveAll(); }
  DWORD GetOnlineAppsCount() const override { return onlineApps_.Count(); }
  IOnlineApps* GetOnlineAppsAt(DWORD index) override { return onlineApps_.At(index); }
  ConfigResult AddOnlineApps(const IOnlineApps* item) override { return onlineApps_.Add(item); }
  ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) override {
    return onlineApps_.InsertAt(index, item);
  }
  void RemoveOnlineAppsAt(DWORD index) override { onlineApps_.RemoveAt(index); }
  void RemoveAllOnlineApps() override { onlineApps_.RemoveAll(); }

 protected:
  static const Attribute kAttributes[];
  static const Child kChildren[];

 private:
  Optional<DWORD> sid_;
  Optional<DWORD> cid_;
  ChildList<CAppRule> appRules_;
  ChildList<COnlineApps> onlineApps_;
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

  ConfigResult GetName(std::wstring* out) const override { return name_.Get(out); }
  ConfigResult SetName(const std::wstring* value) override { return name_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> name_;
};

#pragma push_macro("AddPrinter")
#undef AddPrinter
class CTrustedPrinters final : public Node<CTrustedPrinters, ITrustedPrinters> {
 public:
  static const Schema kSchema;

  DWORD GetPrinterCount() const override { return printers_.Count(); }
  IPrinter* GetPrinterAt(DWORD index) override { return printers_.At(index); }
  ConfigResult AddPrinter(const IPrinter* item) override { return printers_.Add(item); }
  ConfigResult InsertPrinterAt(DWORD index, const IPrinter* item) override {
    return printers_.InsertAt(index, item);
  }
  void RemovePrinterAt(DWORD index) override { printers_.RemoveAt(index); }
  void RemoveAllPrinter() override { printers_.RemoveAll(); }

 private:
  static const Child kChildren[];

  ChildList<CPrinter> printers_;
};
#pragma pop_macro("AddPrinter")

class CILPPrinter final : public Node<CILPPrinter, IILPPrinter> {
 public:
  static const Schema kSchema;

  ConfigResult GetSid(DWORD* out) const override { return sid_.Get(out); }
  ConfigResult SetSid(const DWORD* value) override { return sid_.Set(value); }
  ConfigResult GetCid(DWORD* out) const override { return cid_.Get(out); }
  ConfigResult SetCid(const DWORD* value) override { return cid_.Set(value); }
  ConfigResult GetAlwaysEMF(DWORD* out) const override { return alwaysEMF_.Get(out); }
  ConfigResult SetAlwaysEMF(const DWORD* value) override { return alwaysEMF_.Set(value); }
  DWORD GetAppRuleCount() const override { return appRules_.Count(); }
  IAppRule* GetAppRuleAt(DWORD index) override { return appRules_.At(index); }
  ConfigResult AddAppRule(const IAppRule* item) override { return appRules_.Add(item); }
  ConfigResult InsertAppRuleAt(DWORD index, const IAppRule* item) override {
    return appRules_.InsertAt(index, item);
  }
  void RemoveAppRuleAt(DWORD index) override { appRules_.RemoveAt(index); }
  void RemoveAllAppRule() override { appRules_.RemoveAll(); }
  DWORD GetOnlineAppsCount() const override { return onlineApps_.Count(); }
  IOnlineApps* GetOnlineAppsAt(DWORD index) override { return onlineApps_.At(index); }
  ConfigResult AddOnlineApps(const IOnlineApps* item) override { return onlineApps_.Add(item); }
  ConfigResult InsertOnlineAppsAt(DWORD index, const IOnlineApps* item) override {
    return onlineApps_.InsertAt(index, item);
  }
  void RemoveOnlineAppsAt(DWORD index) override { onlineApps_.RemoveAt(index); }
  void RemoveAllOnlineApps() override { onlineApps_.RemoveAll(); }
  ConfigResult GetTrustedPrinters(ITrustedPrinters** out) override {
    return trustedPrinters_.Get(out);
  }
  ConfigResult SetTrustedPrinters(const ITrustedPrinters* child) override {
    return trustedPrinters_.Set(child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  Optional<DWORD> sid_;
  Optional<DWORD> cid_;
  Optional<DWORD> alwaysEMF_;
  ChildList<CAppRule> appRules_;
  ChildList<COnlineApps> onlineApps_;
  OptionalChild<CTrustedPrinters> trustedPrinters_;
};

class CILPClipboard final : public Node<CILPClipboard, IILPClipboard> {
 public:
  static const Schema kSchema;

  ConfigResult GetClipboardCopyCut(IClipboardCopyCut** out) override {
    return clipboardCopyCut_.Get(out);
  }
  ConfigResult SetClipboardCopyCut(const IClipboardCopyCut* child) override {
    return clipboardCopyCut_.Set(child);
  }
  ConfigResult GetClipboardPaste(IClipboardPaste** out) override {
    return clipboardPaste_.Get(out);
  }
  ConfigResult SetClipboardPaste(const IClipboardPaste* child) override {
    return clipboardPaste_.Set(child);
  }

 private:
  static const Child kChildren[];

  OptionalChild<CClipboardCopyCut> clipboardCopyCut_;
  OptionalChild<CClipboardPaste> clipboardPaste_;
};

class CILPEmail final : public Node<CILPEmail, IILPEmail> {
 public:
  static const Schema kSchema;

  ConfigResult GetSid(DWORD* out) const override { return sid_.Get(out); }
  ConfigResult SetSid(const DWORD* value) override { return sid_.Set(value); }
  ConfigResult GetCid(DWORD* out) const override { return cid_.Get(out); }
  ConfigResult SetCid(const DWORD* value) override { return cid_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<DWORD> sid_;
  Optional<DWORD> cid_;
};

}  // namespace TolvaInterface
