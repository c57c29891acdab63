// The classes of tolva/policy/conditions.h.
#pragma once

#include <tolva/policy/conditions.h>

#include <string>

#include "node/accessors.h"
#include "policy/document.h"

namespace TolvaInterface {

class CArCondition final : public Node<CArCondition, IArCondition> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, AppName, appName_);
  TOLVA_OPTIONAL(std::wstring, ResFileDescription, resFileDescription_);
  TOLVA_OPTIONAL(std::wstring, ResProductName, resProductName_);
  TOLVA_OPTIONAL(std::wstring, ResCompany, resCompany_);
  TOLVA_OPTIONAL(std::wstring, OS, os_);
};

class CUrlCondition final : public Node<CUrlCondition, IUrlCondition> {
 public:
  static const Schema kSchema;

  TOLVA_OPTIONAL(std::wstring, URL, url_);
};

/// Base of a list of applications `C`, which implements `I`.
template <class C, class I>
class ArConditions : public Node<C, I> {
 public:
  TOLVA_CHILDREN(CArCondition, ArCondition, arConditions_);
};

template <class C>
inline constexpr Child kArConditionsChildren[] = {
    Elem<&C::arConditions_>(L"ArCondition"),
};

class CAppRule final : public ArConditions<CAppRule, IAppRule> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Action, action_);
  TOLVA_OPTIONAL(std::wstring, Appid, appid_);
  TOLVA_OPTIONAL(DWORD, AllowAccessAfterFileCreation, allowAccessAfterFileCreation_);
};

class COnlineApps final : public ArConditions<COnlineApps, IOnlineApps> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(Action, action_);
  TOLVA_OPTIONAL(std::wstring, Appid, appid_);
  TOLVA_CHILDREN(CUrlCondition, UrlCondition, urlConditions_);
};

class CBypassedApps final : public ArConditions<CBypassedApps, IBypassedApps> {
 public:
  static const Schema kSchema;
};

}  // namespace TolvaInterface
