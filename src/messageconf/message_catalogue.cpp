#include "messageconf/message_catalogue.h"

namespace MessageConf {

constinit const Schema CDescription::kSchema = Checked({
    .element = L"Description",
    .dialect = kDialect,
    .content = TextOf<&CDescription::content_>().StopsAtFirstEndTag(),
});

constinit const Schema CContent::kSchema = Checked({
    .element = L"Content",
    .dialect = kDialect,
    .content = TextOf<&CContent::content_>().AlwaysWritten().StopsAtFirstEndTag(),
});

constexpr Attribute kMessageAttributes[] = {
    Attr<&CMessage::id_>(L"ID").NamesItem(),
};
constexpr Child kMessageChildren[] = {
    Elem<&CMessage::content_>(L"Content"),
    Elem<&CMessage::description_>(L"Description"),
};
constinit const Schema CMessage::kSchema = Checked({
    .element = L"Message",
    .dialect = kDialect,
    .attributes = kMessageAttributes,
    .children = kMessageChildren,
});

constexpr Child kEndpointLocalMsgChildren[] = {
    Elem<&CEndpointLocalMsg::endPointMessages_>(L"EndPointMessage"),
};
constinit const Schema CEndpointLocalMsg::kSchema = Checked({
    .element = L"EndpointLocalMsg",
    .dialect = kDialect,
    .children = kEndpointLocalMsgChildren,
});

constexpr Attribute kEndPointMessageAttributes[] = {
    Attr<&CEndPointMessage::schemaVersion_>(L"SchemaVersion"),
    Attr<&CEndPointMessage::language_>(L"Language").NamesItem(),
};
constexpr Child kEndPointMessageChildren[] = {
    Elem<&CEndPointMessage::messages_>(L"Message"),
    Elem<&CEndPointMessage::endpointLocalMsgs_>(L"EndpointLocalMsg"),
};
constinit const Schema CEndPointMessage::kSchema = Checked({
    .element = L"EndPointMessage",
    .dialect = kDialect,
    .attributes = kEndPointMessageAttributes,
    .children = kEndPointMessageChildren,
});

// The class of the items is complete here.
CEndpointLocalMsg::CEndpointLocalMsg() = default;
CEndpointLocalMsg::CEndpointLocalMsg(const CEndpointLocalMsg& other) = default;
CEndpointLocalMsg::CEndpointLocalMsg(CEndpointLocalMsg&& other) noexcept = default;
CEndpointLocalMsg& CEndpointLocalMsg::operator=(CEndpointLocalMsg&& other) noexcept = default;
CEndpointLocalMsg::~CEndpointLocalMsg() = default;

DWORD CEndpointLocalMsg::GetEndPointMessageCount() const { return endPointMessages_.Count(); }

IEndPointMessage* CEndpointLocalMsg::GetEndPointMessageAt(DWORD index) {
  return endPointMessages_.At(index);
}

ConfigResult CEndpointLocalMsg::AddEndPointMessage(const IEndPointMessage* item) {
  return endPointMessages_.Add(item);
}

ConfigResult CEndpointLocalMsg::InsertEndPointMessageAt(DWORD index, const IEndPointMessage* item) {
  return endPointMessages_.InsertAt(index, item);
}

void CEndpointLocalMsg::RemoveEndPointMessageAt(DWORD index) { endPointMessages_.RemoveAt(index); }

void CEndpointLocalMsg::RemoveAllEndPointMessage() { endPointMessages_.RemoveAll(); }

}  // namespace MessageConf
