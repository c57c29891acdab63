// What all elements of the global client configuration share.
#pragma once

#include "node/node.h"

namespace GlobalConfInterface {

using namespace tolva::node;  // for classes and tables

inline constexpr Dialect kDialect = {
    .numbers = Numbers::kUnsigned,
    .null_writer = kWriteRequiredManager,
    .null_reader = kReadRequiredManager,
    .null_value = kSetAttributeParam,
    .absent_string = kReadStringAsEnum,
};

}  // namespace GlobalConfInterface
