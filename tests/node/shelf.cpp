#include "node/shelf.h"

#include "xml/reader.h"

namespace shelf {
namespace {

using namespace tolva::node;

constexpr Dialect kUnsigned = {
    .numbers = Numbers::kUnsigned,
    .null_writer = kWriteRequireManager,
    .null_reader = kReadRequireManager,
    .null_value = kSetAttributeParama,
    .absent_string = kReadStringAsEnum,
};

constexpr Dialect kSigned = {
    .numbers = Numbers::kSigned,
    .null_writer = kWriteRequiredManager,
    .null_reader = kReadRequiredManager,
    .null_value = kSetAttributeParam,
    .absent_string = kReadString,
};

constexpr const wchar_t* kWoods[] = {L"OAK", L"ASH"};
constexpr const wchar_t* kFinishes[] = {L"RAW", L"OIL", L"WAX"};

}  // namespace

constinit const Schema CTitle::kSchema = {
    .element = L"Title", .dialect = kSigned, .content = TextOf<&CTitle::content>()};
constinit const Schema CPages::kSchema = {
    .element = L"Pages", .dialect = kSigned, .content = TextOf<&CPages::content>()};
constinit const Schema CRemark::kSchema = {
    .element = L"Remark", .dialect = kSigned, .content = TextOf<&CRemark::content>()};

constinit const Child CBook::kChildren[] = {
    Elem<&CBook::pages>(L"Pages"),
    Elem<&CBook::title>(L"Title").MissedFirst(),
    Elem<&CBook::remark>(L"Remark"),
    Elem<&CBook::lamp>(L"Lamp"),
};
constinit const Schema CBook::kSchema = {
    .element = L"Book", .dialect = kSigned, .children = kChildren};

constinit const Attribute CLamp::kAttributes[] = {
    Attr<&CLamp::colour>(L"Colour", {kWoods, L"OTHER"}),
    Attr<&CLamp::watts>(L"Watts"),
};
constinit const Schema CLamp::kSchema = {
    .element = L"Lamp",
    .dialect = kSigned,
    .attributes = kAttributes,
    .reported_as = L"LAMP",
    .close_fault = OwnText(L"lamp not closed"),
};

constinit const Child CLabels::kChildren[] = {
    Elem<&CLabels::titles>(L"Title").WriteFault(L"").ReadFault(L"a label failed"),
};
constinit const Schema CLabels::kSchema = {
    .element = L"Labels",
    .dialect = kUnsigned,
    .children = kChildren,
    .is_closed_empty = true,
    .add_fault = OwnText(L""),
    .close_fault = OwnText(L""),
    .null_writer = OwnText(L"no writer for labels"),
    .null_reader = OwnText(L"no reader for labels"),
};

constinit const Schema CStamp::kSchema = {
    .element = L"Stamp", .dialect = kSigned, .content = TextOf<&CStamp::text>()};

ConfigResult CStamp::WriteToXMLMgr(IXMLLiteManager* manager, int /*reserved*/,
                                   int /*position*/) const {
  return WriteNode(kSchema, *this, manager);
}

ConfigResult CStamp::ReadFromXMLMgr(IXMLLiteManager* manager, int /*reserved*/) {
  auto* const reader = tolva::xml::AsReader(manager);
  const wchar_t* const found = reader->GetText();
  if (found != nullptr) text = found;
  reader->FinishElement();
  return 0;
}

constinit const Attribute CShelf::kAttributes[] = {
    Attr<&CShelf::number>(L"Number"),
    Attr<&CShelf::name>(L"Name"),
    Attr<&CShelf::wood>(L"Wood", {kWoods}),
    Attr<&CShelf::width>(L"Width"),
    Attr<&CShelf::place>(L"Place"),
    Attr<&CShelf::finish>(L"Finish", {kFinishes}),
    Attr<&CShelf::worth>(L"Value"),
    Attr<&CShelf::level>(L"Level").KeptWhenAbsent().Unchecked(),
    Attr<&CShelf::locked>(L"Locked").OneWhenAbsent(),
    Attr<&CShelf::watched>(L"Watched").PresentWhenClear().ReadFault(L"watched is no number"),
};
constinit const Child CShelf::kChildren[] = {
    Elem<&CShelf::lamp>(L"Lamp").WriteFault(L"dark").Missing(L"no lamp"),
    Elem<&CShelf::title>(L"Title"),
    Elem<&CShelf::books>(L"Book"),
    Elem<&CShelf::labels>(L"Labels").ReadFault(L"no labels"),
    Elem<&CShelf::stamp>(L"Stamp"),
};
constinit const Schema CShelf::kSchema = {
    .element = L"Shelf",
    .dialect = kUnsigned,
    .attributes = kAttributes,
    .children = kChildren,
    .add_fault = OwnText(L"no shelf"),
};

}  // namespace shelf
