// The classes of tolva/policy/conditions.h.
#pragma once

#include <tolva/policy/conditions.h>

#include <string>

#include "node/node.h"
#include "policy/document.h"

namespace TolvaInterface {

class CArCondition final : public Node<CArCondition, IArCondition> {
 public:
  static const Schema kSchema;

  ConfigResult GetAppName(std::wstring* out) const override { return appName_.Get(out); }
  ConfigResult SetAppName(const std::wstring* value) override { return appName_.Set(value); }
  ConfigResult GetResFileDescription(std::wstring* out) const override {
    return resFileDescription_.Get(out);
  }
  ConfigResult SetResFileDescription(const std::wstring* value) override {
    return resFileDescription_.Set(value);
  }
  ConfigResult GetResProductName(std::wstring* out) const override {
    return resProductName_.Get(out);
  }
  ConfigResult SetResProductName(const std::wstring* value) override {
    return resProductName_.Set(value);
  }
  ConfigResult GetResCompany(std::wstring* out) const override { return resCompany_.Get(out); }
  ConfigResult SetResCompany(const std::wstring* value) override { return resCompany_.Set(value); }
  ConfigResult GetOS(std::wstring* out) const override { return os_.Get(out); }
  ConfigResult SetOS(const std::wstring* value) override { return os_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> appName_;
  Optional<std::wstring> resFileDescription_;
  Optional<std::wstring> resProductName_;
  Optional<std::wstring> resCompany_;
  Optional<std::wstring> os_;
};

class CUrlCondition final : public Node<CUrlCondition, IUrlCondition> {
 public:
  static const Schema kSchema;

  ConfigResult GetURL(std::wstring* out) const override { return url_.Get(out); }
  ConfigResult SetURL(const std::wstring* value) override { return url_.Set(value); }

 private:
  static const Attribute kAttributes[];

  Optional<std::wstring> url_;
};

/// The applications in an element of class `C`, which implements `I`.
template <class C, class I>
class ArConditions : public Node<C, I> {
 public:
  DWORD GetArConditionCount() const override { return arConditions_.Count(); }
  IArCondition* GetArConditionAt(DWORD index) override { return arConditions_.At(index); }
  ConfigResult AddArCondition(const IArCondition* item) override { return arConditions_.Add(item); }
  ConfigResult InsertArConditionAt(DWORD index, const IArCondition* item) override {
    return arConditions_.InsertAt(index, item);
  }
  void RemoveArConditionAt(DWORD index) override { arConditions_.RemoveAt(index); }
  void RemoveAllArCondition() override { arConditions_.RemoveAll(); }

 protected:
  static const Child kChildren[];

  ChildList<CArCondition> arConditions_;
};

template <class C, class I>
constinit const Child ArConditions<C, I>::kChildren[] = {
    Elem<&ArConditions::arConditions_>(L"ArCondition"),
};

class CAppRule final : public ArConditions<CAppRule, IAppRule> {
 public:
  static const Schema kSchema;

  DWORD GetAction() const override { return action_; }
  ConfigResult SetAction(const DWORD* value) override { return SetRequired(action_, value); }
  ConfigResult GetAppid(std::wstring* out) const override { return appid_.Get(out); }
  ConfigResult SetAppid(const std::wstring* value) override { return appid_.Set(value); }
  ConfigResult GetAllowAccessAfterFileCreation(DWORD* out) const override {
    return allowAccessAfterFileCreation_.Get(out);
  }
  ConfigResult SetAllowAccessAfterFileCreation(const DWORD* value) override {
    return allowAccessAfterFileCreation_.Set(value);
  }

 private:
  static const Attribute kAttributes[];

  DWORD action_ = 0;
  Optional<std::wstring> appid_;
  Optional<DWORD> allowAccessAfterFileCreation_;
};

class COnlineApps final : public ArConditions<COnlineApps, IOnlineApps> {
 public:
  static const Schema kSchema;

  DWORD GetAction() const override { return action_; }
  ConfigResult SetAction(const DWORD* value) override { return SetRequired(action_, value); }
  ConfigResult GetAppid(std::wstring* out) const override { return appid_.Get(out); }
  ConfigResult SetAppid(const std::wstring* value) override { return appid_.Set(value); }
  DWORD GetUrlConditionCount() const override { return urlConditions_.Count(); }
  IUrlCondition* GetUrlConditionAt(DWORD index) override { return urlConditions_.At(index); }
  ConfigResult AddUrlCondition(const IUrlCondition* item) override {
    return urlConditions_.Add(item);
  }
  ConfigResult InsertUrlConditionAt(DWORD index, const IUrlCondition* item) override {
    return urlConditions_.InsertAt(index, item);
  }
  void RemoveUrlConditionAt(DWORD index) override { urlConditions_.RemoveAt(index); }
  void RemoveAllUrlCondition() override { urlConditions_.RemoveAll(); }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD action_ = 0;
  Optional<std::wstring> appid_;
  ChildList<CUrlCondition> urlConditions_;
};

class CBypassedApps final : public ArConditions<CBypassedApps, IBypassedApps> {
 public:
  static const Schema kSchema;
};

}  // namespace TolvaInterface
