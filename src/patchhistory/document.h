// What all elements of the patch history share.
#pragma once

#include "node/node.h"

namespace PatchFileHistory {

using namespace tolva::node;  // for classes and tables

inline constexpr Dialect kDialect = {
    .numbers = Numbers::kSigned,
    .null_writer = kWriteRequireManager,
    .null_reader = kReadRequireManager,
    .null_value = kSetAttributeParama,
    .absent_string = kReadStringAsEnum,
};

}  // namespace PatchFileHistory
