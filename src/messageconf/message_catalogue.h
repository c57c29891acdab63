// The classes of tolva/messageconf/message_catalogue.h.
#pragma once

#include <tolva/messageconf/message_catalogue.h>

#include <string>

#include "messageconf/document.h"
#include "node/accessors.h"
#include "node/leaves.h"

namespace MessageConf {

class CDescription final : public StringLeaf<CDescription, IDescription> {
 public:
  static const Schema kSchema;
};

class CContent final : public OptionalLeaf<CContent, IContent> {
 public:
  static const Schema kSchema;
};

class CMessage final : public Node<CMessage, IMessage> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(ID, id_);
  TOLVA_CHILD(CContent, Content, content_);
  TOLVA_CHILD(CDescription, Description, description_);
};

class CEndPointMessage;

class CEndpointLocalMsg final : public Node<CEndpointLocalMsg, IEndpointLocalMsg> {
 public:
  static const Schema kSchema;

  CEndpointLocalMsg();
  CEndpointLocalMsg(const CEndpointLocalMsg& other);
  CEndpointLocalMsg(CEndpointLocalMsg&& other) noexcept;
  CEndpointLocalMsg& operator=(const CEndpointLocalMsg& other) = delete;
  CEndpointLocalMsg& operator=(CEndpointLocalMsg&& other) noexcept;
  ~CEndpointLocalMsg() override;

  DWORD GetEndPointMessageCount() const override;
  IEndPointMessage* GetEndPointMessageAt(DWORD index) override;
  ConfigResult AddEndPointMessage(const IEndPointMessage* item) override;
  ConfigResult InsertEndPointMessageAt(DWORD index, const IEndPointMessage* item) override;
  void RemoveEndPointMessageAt(DWORD index) override;
  void RemoveAllEndPointMessage() override;
  ChildList<CEndPointMessage, IEndPointMessage> endPointMessages_;
};

class CEndPointMessage final : public Node<CEndPointMessage, IEndPointMessage> {
 public:
  static const Schema kSchema;

  TOLVA_NUMBER(SchemaVersion, schemaVersion_);
  TOLVA_OPTIONAL(std::wstring, Language, language_);
  TOLVA_CHILDREN(CMessage, Message, messages_);
  TOLVA_CHILDREN(CEndpointLocalMsg, EndpointLocalMsg, endpointLocalMsgs_);
};

}  // namespace MessageConf
