// The message catalogue: what the agent tells its user, in several languages. A catalogue may hold
// catalogues. A reader goes 256 elements deep: the 127th catalogue, counted from the root, is the
// last one whose messages can be read. A message in the 128th fails the read; from the 129th on
// everything is cut off, what follows it included, with result 0 and a last-error value of
// 0xC00CExxx. Accessors can make a deeper one: it is written, but not read back, and copying,
// writing or destroying it takes stack in proportion to its depth.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/leaves.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace MessageConf {

/// Element `Description`: what a message is about.
class IDescription : public tolva::node::IStringLeaf<IDescription> {};

/// Element `Content`: a message's text. Written as an empty tag when there is none. A text that
/// cannot be written takes the element with it, and the message cannot be read back.
class IContent : public tolva::node::IOptionalLeaf<IContent> {};

/// Element `Message`.
class IMessage : public tolva::node::INode {
 public:
  virtual IMessage& CopyFrom(const IMessage& other) = 0;

  /// `ID`: the message's number. Required.
  virtual DWORD GetID() const = 0;
  virtual ConfigResult SetID(const DWORD* value) = 0;

  /// The child `Content`. Required.
  virtual IContent* GetContent() = 0;
  virtual ConfigResult SetContent(const IContent* child) = 0;

  /// The child `Description`. Required.
  virtual IDescription* GetDescription() = 0;
  virtual ConfigResult SetDescription(const IDescription* child) = 0;
};

class IEndPointMessage;

/// Element `EndpointLocalMsg`: catalogues, each complete in itself.
class IEndpointLocalMsg : public tolva::node::INode {
 public:
  virtual IEndpointLocalMsg& CopyFrom(const IEndpointLocalMsg& other) = 0;

  /// Children `EndPointMessage`.
  virtual DWORD GetEndPointMessageCount() const = 0;
  virtual IEndPointMessage* GetEndPointMessageAt(DWORD index) = 0;
  virtual ConfigResult AddEndPointMessage(const IEndPointMessage* item) = 0;
  virtual ConfigResult InsertEndPointMessageAt(DWORD index, const IEndPointMessage* item) = 0;
  virtual void RemoveEndPointMessageAt(DWORD index) = 0;
  virtual void RemoveAllEndPointMessage() = 0;
};

/// Element `EndPointMessage`: a catalogue for one language, with catalogues for others; the root is
/// one. All messages are written before all further catalogues, in whatever order they were read.
class IEndPointMessage : public tolva::node::INode {
 public:
  virtual IEndPointMessage& CopyFrom(const IEndPointMessage& other) = 0;

  /// `SchemaVersion`: the version of the catalogue's form. Required.
  virtual DWORD GetSchemaVersion() const = 0;
  virtual ConfigResult SetSchemaVersion(const DWORD* value) = 0;

  /// `Language`: the language of its messages. Optional.
  virtual ConfigResult GetLanguage(std::wstring* out) const = 0;
  virtual ConfigResult SetLanguage(const std::wstring* value) = 0;

  /// The messages: children `Message`.
  virtual DWORD GetMessageCount() const = 0;
  virtual IMessage* GetMessageAt(DWORD index) = 0;
  virtual ConfigResult AddMessage(const IMessage* item) = 0;
  virtual ConfigResult InsertMessageAt(DWORD index, const IMessage* item) = 0;
  virtual void RemoveMessageAt(DWORD index) = 0;
  virtual void RemoveAllMessage() = 0;

  /// Further catalogues: children `EndpointLocalMsg`.
  virtual DWORD GetEndpointLocalMsgCount() const = 0;
  virtual IEndpointLocalMsg* GetEndpointLocalMsgAt(DWORD index) = 0;
  virtual ConfigResult AddEndpointLocalMsg(const IEndpointLocalMsg* item) = 0;
  virtual ConfigResult InsertEndpointLocalMsgAt(DWORD index, const IEndpointLocalMsg* item) = 0;
  virtual void RemoveEndpointLocalMsgAt(DWORD index) = 0;
  virtual void RemoveAllEndpointLocalMsg() = 0;
};

// Each makes a node with default values, which the caller owns.
TOLVA_API IDescription* Description_CreateNewInstance();
TOLVA_API IContent* Content_CreateNewInstance();
TOLVA_API IMessage* Message_CreateNewInstance();
TOLVA_API IEndpointLocalMsg* EndpointLocalMsg_CreateNewInstance();
TOLVA_API IEndPointMessage* EndPointMessage_CreateNewInstance();

}  // namespace MessageConf
