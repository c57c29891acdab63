// The accessors of an element's class. One line per attribute or child declares the field and the
// functions that callers reach it by. tolva/node/node.h describes the forms, their results and what
// they copy.
//
//   class CTimeSlot final : public Node<CTimeSlot, ITimeSlot> {
//    public:
//     static const Schema kSchema;
//
//     TOLVA_OPTIONAL(DWORD, Weekday, weekday_);
//     TOLVA_STRING(StartTime, startTime_);
//   };
//
// The fields are public within the library; callers see only the interface. An accessor that
// departs from its form is written by hand, next to the others.
#pragma once

#include <string>

#include "node/fields.h"
#include "node/node.h"

/// A required number or ENUM.
#define TOLVA_NUMBER(X, field)                                                                 \
  DWORD Get##X() const override { return field; }                                              \
  ConfigResult Set##X(const DWORD* value) override { return this->SetRequired(field, value); } \
  DWORD field = 0

/// A required number whose getter has an out parameter.
#define TOLVA_STORED_NUMBER(X, field)                                                          \
  ConfigResult Get##X(DWORD* out) const override { return tolva::node::Store(field, out); }    \
  ConfigResult Set##X(const DWORD* value) override { return this->SetRequired(field, value); } \
  DWORD field = 0

/// A required string.
#define TOLVA_STRING(X, field)                                  \
  const std::wstring& Get##X() const override { return field; } \
  ConfigResult Set##X(const std::wstring* value) override {     \
    return this->SetRequired(field, value);                     \
  }                                                             \
  std::wstring field

/// An optional attribute of type `T`: DWORD (a number or ENUM), std::uint64_t or std::wstring.
#define TOLVA_OPTIONAL(T, X, field)                                         \
  ConfigResult Get##X(T* out) const override { return field.Get(out); }     \
  ConfigResult Set##X(const T* value) override { return field.Set(value); } \
  tolva::node::Optional<T> field

/// A required child of class `C`.
#define TOLVA_CHILD(C, Y, field)                            \
  C::Interface* Get##Y() override { return &field; }        \
  ConfigResult Set##Y(const C::Interface* child) override { \
    return this->SetRequiredChild(field, child);            \
  }                                                         \
  C field

/// An optional child of class `C`.
#define TOLVA_OPTIONAL_CHILD(C, Y, field)                                              \
  ConfigResult Get##Y(C::Interface** out) override { return field.Get(out); }          \
  ConfigResult Set##Y(const C::Interface* child) override { return field.Set(child); } \
  tolva::node::OptionalChild<C> field

/// An optional child that is created on first use.
#define TOLVA_LAZY_CHILD(C, Y, field)                                                  \
  ConfigResult Get##Y(C::Interface** out) override { return field.Get(out); }          \
  ConfigResult Set##Y(const C::Interface* child) override { return field.Set(child); } \
  tolva::node::LazyChild<C> field

/// The presence flag of the optional child in `field`. The flag keeps any nonzero value. The
/// accessors of the child itself are declared separately.
#define TOLVA_PRESENCE(Y, field)                                                                \
  ConfigResult Get##Y##Present(DWORD* out) const override { return field.GetPresent(out); }     \
  ConfigResult Set##Y##Present(const DWORD* value) override { return field.SetPresent(value); } \
  static_assert(true, "")

/// A repeated child of class `C`.
#define TOLVA_CHILDREN(C, Y, field)                                                  \
  DWORD Get##Y##Count() const override { return field.Count(); }                     \
  C::Interface* Get##Y##At(DWORD index) override { return field.At(index); }         \
  ConfigResult Add##Y(const C::Interface* item) override { return field.Add(item); } \
  ConfigResult Insert##Y##At(DWORD index, const C::Interface* item) override {       \
    return field.InsertAt(index, item);                                              \
  }                                                                                  \
  void Remove##Y##At(DWORD index) override { field.RemoveAt(index); }                \
  void RemoveAll##Y() override { field.RemoveAll(); }                                \
  tolva::node::ChildList<C> field
