// What every node does, driven by the table of its class.
#pragma once

#include "node/schema.h"

namespace tolva::node {

ConfigResult WriteNode(const Schema& schema, const IElement& node, IXMLLiteManager* manager);

/// Clears the node before it reads, and again if it fails.
ConfigResult ReadNode(const Schema& schema, INode& node, IXMLLiteManager* manager);

void ClearNode(const Schema& schema, IElement& node);

/// Reports that a setter was given null for the required field at `field`.
void ReportNullValue(const Schema& schema, const IElement& node, const void* field);

/// Reports that a setter was given null for the required child.
void ReportNullChild(const Schema& schema, const IElement& node, const IElement* child);

}  // namespace tolva::node
