// What all elements of the remote filtering client configuration share.
#pragma once

#include "node/node.h"

namespace RFConfInterface {

using namespace tolva::node;  // for classes and tables

inline constexpr Dialect kDialect = {
    .numbers = Numbers::kSigned,
    .null_writer = kWriteRequiredManager,
    .null_reader = kReadRequiredManager,
    .null_value = kSetAttributeParama,
    .absent_string = kReadStringAsEnum,
};

}  // namespace RFConfInterface
