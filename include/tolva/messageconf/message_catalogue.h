// The message catalogue: the messages that the agent shows its user, in several languages.
//
// A catalogue may contain further catalogues. A reader supports 256 nested elements. The messages
// of the 127th catalogue, counted from the root, are the last that can be read. A message in the
// 128th makes the read fail. The 129th catalogue, and everything that follows it in the document,
// is cut off, with result 0 and a last-error value of 0xC00CExxx. Accessors can build a deeper
// catalogue. It is written, but it cannot be read back, and copying, writing or destroying it takes
// stack space in proportion to its depth.
#pragma once

#include <string>

#include <tolva/export.h>
#include <tolva/node/leaves.h>
#include <tolva/node/node.h>
#include <tolva/types.h>

namespace MessageConf {

/// Element `Description`: what a message is about.
class IDescription : public tolva::node::IStringLeaf<IDescription> {};

/// Element `Content`: the text of a message.
///
/// If there is no text, an empty tag is written. If the text cannot be written, the element is left
/// out, and the message cannot be read back.
class IContent : public tolva::node::IOptionalLeaf<IContent> {};

/// Element `Message`: a message of the agent to its user.
class IMessage : public tolva::node::INode {
 public:
  virtual IMessage& CopyFrom(const IMessage& other) = 0;

  /// `ID`: the number of the message. Required.
  virtual DWORD GetID() const = 0;
  virtual ConfigResult SetID(const DWORD* value) = 0;

  /// `Content`: the text of the message. Required.
  virtual IContent* GetContent() = 0;
  virtual ConfigResult SetContent(const IContent* child) = 0;

  /// `Description`: what the message is about. Required.
  virtual IDescription* GetDescription() = 0;
  virtual ConfigResult SetDescription(const IDescription* child) = 0;
};

class IEndPointMessage;

/// Element `EndpointLocalMsg`: localised catalogues, each complete in itself.
class IEndpointLocalMsg : public tolva::node::INode {
 public:
  virtual IEndpointLocalMsg& CopyFrom(const IEndpointLocalMsg& other) = 0;

  /// `EndPointMessage`: a catalogue for one language. Repeated.
  virtual DWORD GetEndPointMessageCount() const = 0;
  virtual IEndPointMessage* GetEndPointMessageAt(DWORD index) = 0;
  virtual ConfigResult AddEndPointMessage(const IEndPointMessage* item) = 0;
  virtual ConfigResult InsertEndPointMessageAt(DWORD index, const IEndPointMessage* item) = 0;
  virtual void RemoveEndPointMessageAt(DWORD index) = 0;
  virtual void RemoveAllEndPointMessage() = 0;
};

/// Element `EndPointMessage`: a catalogue for one language, with localised catalogues for others.
/// It is also the root of the message catalogue.
///
/// All messages are written before all localised catalogues, regardless of the order in which they
/// were read.
class IEndPointMessage : public tolva::node::INode {
 public:
  virtual IEndPointMessage& CopyFrom(const IEndPointMessage& other) = 0;

  /// `SchemaVersion`: the version of the document's schema. Required.
  virtual DWORD GetSchemaVersion() const = 0;
  virtual ConfigResult SetSchemaVersion(const DWORD* value) = 0;

  /// `Language`: the language of the messages. Optional.
  virtual ConfigResult GetLanguage(std::wstring* out) const = 0;
  virtual ConfigResult SetLanguage(const std::wstring* value) = 0;

  /// `Message`: a message of the agent to its user. Repeated.
  virtual DWORD GetMessageCount() const = 0;
  virtual IMessage* GetMessageAt(DWORD index) = 0;
  virtual ConfigResult AddMessage(const IMessage* item) = 0;
  virtual ConfigResult InsertMessageAt(DWORD index, const IMessage* item) = 0;
  virtual void RemoveMessageAt(DWORD index) = 0;
  virtual void RemoveAllMessage() = 0;

  /// `EndpointLocalMsg`: localised catalogues. Repeated.
  virtual DWORD GetEndpointLocalMsgCount() const = 0;
  virtual IEndpointLocalMsg* GetEndpointLocalMsgAt(DWORD index) = 0;
  virtual ConfigResult AddEndpointLocalMsg(const IEndpointLocalMsg* item) = 0;
  virtual ConfigResult InsertEndpointLocalMsgAt(DWORD index, const IEndpointLocalMsg* item) = 0;
  virtual void RemoveEndpointLocalMsgAt(DWORD index) = 0;
  virtual void RemoveAllEndpointLocalMsg() = 0;
};

// Each function returns a new node with default values, which the caller owns.
TOLVA_API IDescription* Description_CreateNewInstance();
TOLVA_API IContent* Content_CreateNewInstance();
TOLVA_API IMessage* Message_CreateNewInstance();
TOLVA_API IEndpointLocalMsg* EndpointLocalMsg_CreateNewInstance();
TOLVA_API IEndPointMessage* EndPointMessage_CreateNewInstance();

}  // namespace MessageConf
