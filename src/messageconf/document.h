// What all elements of the message catalogue share.
#pragma once

#include "node/node.h"

namespace MessageConf {

using namespace tolva::node;  // for classes and tables

inline constexpr Dialect kDialect = {
    .numbers = Numbers::kUnsigned,
    .null_writer = kWriteRequireManager,
    .null_reader = kReadRequireManager,
    .null_value = kSetAttributeParama,
    .absent_string = kReadStringAsEnum,
};

}  // namespace MessageConf
