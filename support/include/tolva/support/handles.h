// Owning handles for the objects that the library makes.
#pragma once

#include <tolva/xml/manager.h>

#include <memory>

namespace tolva::support {

/// Destroys a manager in the one way that is allowed.
struct ManagerDeleter {
  void operator()(IXMLLiteManager* manager) const { tolvaDestroyXMLManager(manager); }
};

/// Owns a manager. Whether a document is whole is known from `Close` alone: a writer that is
/// destroyed with a document open finishes it without a word.
using Manager = std::unique_ptr<IXMLLiteManager, ManagerDeleter>;

/// Makes a manager that reads.
inline Manager MakeReader() { return Manager(tolvaCreateXMLManager(0)); }

/// Makes a manager that writes.
inline Manager MakeWriter() { return Manager(tolvaCreateXMLManager(1)); }

/// Makes a node with its factory and owns it:
///   const auto location = MakeNode(&TolvaInterface::Location_CreateNewInstance);
template <class Interface>
std::unique_ptr<Interface> MakeNode(Interface* (*factory)()) {
  return std::unique_ptr<Interface>(factory());
}

}  // namespace tolva::support
