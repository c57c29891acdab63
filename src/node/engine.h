// What every node does, by its table, which has to be that of its class.
#pragma once

#include "node/schema.h"

namespace tolva::node {

ConfigResult WriteNode(const Schema& schema, const IElement& node, IXMLLiteManager* manager);

/// A class that clears itself in its own way is cleared so, at the start and after a failure.
ConfigResult ReadNode(const Schema& schema, INode& node, IXMLLiteManager* manager);

void ClearNode(const Schema& schema, IElement& node);

/// Reports that a setter was given null for the required field at `field`.
void ReportNullValue(const Schema& schema, const IElement& node, const void* field);

/// Likewise for the required child.
void ReportNullChild(const Schema& schema, const IElement& node, const IElement* child);

}  // namespace tolva::node
