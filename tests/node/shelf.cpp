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

constinit const Schema CTitle::kSchema =
    Checked({.element = L"Title", .dialect = kSigned, .content = TextOf<&CTitle::content>()});
constinit const Schema CPages::kSchema =
    Checked({.element = L"Pages", .dialect = kSigned, .content = TextOf<&CPages::content>()});
constinit const Schema CRemark::kSchema =
    Checked({.element = L"Remark", .dialect = kSigned, .content = TextOf<&CRemark::content>()});

constexpr Child kBookChildren[] = {
    Elem<&CBook::pages>(L"Pages"),
    Elem<&CBook::title>(L"Title").AbsenceReportedFirst(),
    Elem<&CBook::remark>(L"Remark"),
    Elem<&CBook::lamp>(L"Lamp"),
};
constinit const Schema CBook::kSchema =
    Checked({.element = L"Book", .dialect = kSigned, .children = kBookChildren});

constexpr Attribute kLampAttributes[] = {
    Attr<&CLamp::colour>(L"Colour", {kWoods, L"OTHER"}).KeepsValue(),
    Attr<&CLamp::watts>(L"Watts"),
};
constinit const Schema CLamp::kSchema = Checked({
    .element = L"Lamp",
    .dialect = kSigned,
    .attributes = kLampAttributes,
    .reported_as = L"LAMP",
    .close_report = L"lamp not closed",
});

constexpr Child kLabelsChildren[] = {
    Elem<&CLabels::titles>(L"Title").WriteReport(L"").ReadReport(L"a label failed"),
};
constinit const Schema CLabels::kSchema = Checked({
    .element = L"Labels",
    .dialect = kUnsigned,
    .children = kLabelsChildren,
    .closes_as_empty_tag = true,
    .add_report = L"",
    .close_report = L"",
    .null_writer_report = L"no writer for labels",
    .null_reader_report = L"no reader for labels",
});

constinit const Schema CStamp::kSchema =
    Checked({.element = L"Stamp", .dialect = kSigned, .content = TextOf<&CStamp::text>()});

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

constexpr Attribute kShelfAttributes[] = {
    Attr<&CShelf::number>(L"Number"),
    Attr<&CShelf::name>(L"Name"),
    Attr<&CShelf::wood>(L"Wood", {kWoods}),
    Attr<&CShelf::width>(L"Width"),
    Attr<&CShelf::place>(L"Place"),
    Attr<&CShelf::finish>(L"Finish", {kFinishes}),
    Attr<&CShelf::worth>(L"Value"),
    Attr<&CShelf::level>(L"Level").MayBeAbsent().IgnoresWriteFailure(),
    Attr<&CShelf::locked>(L"Locked").OneWhenAbsent(),
    Attr<&CShelf::watched>(L"Watched").PresentWhenClear().ReadReport(L"watched is no number"),
};
constexpr Child kShelfChildren[] = {
    Elem<&CShelf::lamp>(L"Lamp").WriteReport(L"dark").AbsenceReport(L"no lamp"),
    Elem<&CShelf::title>(L"Title"),
    Elem<&CShelf::books>(L"Book"),
    Elem<&CShelf::labels>(L"Labels").ReadReport(L"no labels"),
    Elem<&CShelf::stamp>(L"Stamp"),
};
constinit const Schema CShelf::kSchema = Checked({
    .element = L"Shelf",
    .dialect = kUnsigned,
    .attributes = kShelfAttributes,
    .children = kShelfChildren,
    .add_report = L"no shelf",
});

}  // namespace shelf
