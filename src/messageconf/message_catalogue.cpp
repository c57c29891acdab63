#include "messageconf/message_catalogue.h"

namespace MessageConf {

constinit const Schema CDescription::kSchema = {
    .element = L"Description",
    .dialect = kDialect,
    .content = TextOf<&CDescription::content_>().StopsAtFirstEndTag(),
};

constinit const Schema CContent::kSchema = {
    .element = L"Content",
    .dialect = kDialect,
    .content = TextOf<&CContent::content_>().AlwaysWritten().StopsAtFirstEndTag(),
};

constinit const Attribute CMessage::kAttributes[] = {
    Attr<&CMessage::id_>(L"ID"),
};
constinit const Child CMessage::kChildren[] = {
    Elem<&CMessage::content_>(L"Content"),
    Elem<&CMessage::description_>(L"Description"),
};
constinit const Schema CMessage::kSchema = {
    .element = L"Message",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Child CEndpointLocalMsg::kChildren[] = {
    Elem<&CEndpointLocalMsg::endPointMessages_>(L"EndPointMessage"),
};
constinit const Schema CEndpointLocalMsg::kSchema = {
    .element = L"EndpointLocalMsg",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CEndPointMessage::kAttributes[] = {
    Attr<&CEndPointMessage::schemaVersion_>(L"SchemaVersion"),
    Attr<&CEndPointMessage::language_>(L"Language"),
};
constinit const Child CEndPointMessage::kChildren[] = {
    Elem<&CEndPointMessage::messages_>(L"Message"),
    Elem<&CEndPointMessage::endpointLocalMsgs_>(L"EndpointLocalMsg"),
};
constinit const Schema CEndPointMessage::kSchema = {
    .element = L"EndPointMessage",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

// Here the items' class is complete.
CEndpointLocalMsg::CEndpointLocalMsg() = default;
CEndpointLocalMsg::CEndpointLocalMsg(const CEndpointLocalMsg& other) = default;
CEndpointLocalMsg::CEndpointLocalMsg(CEndpointLocalMsg&& other) noexcept = default;
CEndpointLocalMsg& CEndpointLocalMsg::operator=(const CEndpointLocalMsg& other) = default;
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
