// The classes of tolva/messageconf/message_catalogue.h.
#pragma once

#include <tolva/messageconf/message_catalogue.h>

#include <string>

#include "messageconf/document.h"
#include "node/leaves.h"
#include "node/node.h"

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

  DWORD GetID() const override { return id_; }
  ConfigResult SetID(const DWORD* value) override { return SetRequired(id_, value); }
  IContent* GetContent() override { return &content_; }
  ConfigResult SetContent(const IContent* child) override {
    return SetRequiredChild(content_, child);
  }
  IDescription* GetDescription() override { return &description_; }
  ConfigResult SetDescription(const IDescription* child) override {
    return SetRequiredChild(description_, child);
  }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD id_ = 0;
  CContent content_;
  CDescription description_;
};

class CEndPointMessage;

class CEndpointLocalMsg final : public Node<CEndpointLocalMsg, IEndpointLocalMsg> {
 public:
  static const Schema kSchema;

  CEndpointLocalMsg();
  CEndpointLocalMsg(const CEndpointLocalMsg& other);
  CEndpointLocalMsg(CEndpointLocalMsg&& other) noexcept;
  CEndpointLocalMsg& operator=(const CEndpointLocalMsg& other);
  CEndpointLocalMsg& operator=(CEndpointLocalMsg&& other) noexcept;
  ~CEndpointLocalMsg() override;

  DWORD GetEndPointMessageCount() const override;
  IEndPointMessage* GetEndPointMessageAt(DWORD index) override;
  ConfigResult AddEndPointMessage(const IEndPointMessage* item) override;
  ConfigResult InsertEndPointMessageAt(DWORD index, const IEndPointMessage* item) override;
  void RemoveEndPointMessageAt(DWORD index) override;
  void RemoveAllEndPointMessage() override;

 private:
  static const Child kChildren[];

  ChildList<CEndPointMessage, IEndPointMessage> endPointMessages_;
};

class CEndPointMessage final : public Node<CEndPointMessage, IEndPointMessage> {
 public:
  static const Schema kSchema;

  DWORD GetSchemaVersion() const override { return schemaVersion_; }
  ConfigResult SetSchemaVersion(const DWORD* value) override {
    return SetRequired(schemaVersion_, value);
  }
  ConfigResult GetLanguage(std::wstring* out) const override { return language_.Get(out); }
  ConfigResult SetLanguage(const std::wstring* value) override { return language_.Set(value); }
  DWORD GetMessageCount() const override { return messages_.Count(); }
  IMessage* GetMessageAt(DWORD index) override { return messages_.At(index); }
  ConfigResult AddMessage(const IMessage* item) override { return messages_.Add(item); }
  ConfigResult InsertMessageAt(DWORD index, const IMessage* item) override {
    return messages_.InsertAt(index, item);
  }
  void RemoveMessageAt(DWORD index) override { messages_.RemoveAt(index); }
  void RemoveAllMessage() override { messages_.RemoveAll(); }
  DWORD GetEndpointLocalMsgCount() const override { return endpointLocalMsgs_.Count(); }
  IEndpointLocalMsg* GetEndpointLocalMsgAt(DWORD index) override {
    return endpointLocalMsgs_.At(index);
  }
  ConfigResult AddEndpointLocalMsg(const IEndpointLocalMsg* item) override {
    return endpointLocalMsgs_.Add(item);
  }
  ConfigResult InsertEndpointLocalMsgAt(DWORD index, const IEndpointLocalMsg* item) override {
    return endpointLocalMsgs_.InsertAt(index, item);
  }
  void RemoveEndpointLocalMsgAt(DWORD index) override { endpointLocalMsgs_.RemoveAt(index); }
  void RemoveAllEndpointLocalMsg() override { endpointLocalMsgs_.RemoveAll(); }

 private:
  static const Attribute kAttributes[];
  static const Child kChildren[];

  DWORD schemaVersion_ = 0;
  Optional<std::wstring> language_;
  ChildList<CMessage> messages_;
  ChildList<CEndpointLocalMsg> endpointLocalMsgs_;
};

}  // namespace MessageConf
