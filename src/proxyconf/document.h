// What all elements of the proxy client configuration share.
#pragma once

#include "node/node.h"

namespace ProxyClientConfig {

using namespace tolva::node;  // for classes and tables

inline constexpr Dialect kDialect = {
    .numbers = Numbers::kUnsigned,
    .null_writer = kWriteRequiredManager,
    .null_reader = kReadRequiredManager,
    .null_value = kSetAttributeParama,
    .absent_string = kReadStringAsEnum,
};

}  // namespace ProxyClientConfig
