// What all elements of the policy document share.
#pragma once

#include "node/node.h"

namespace TolvaInterface {

using namespace tolva::node;  // for classes and tables

inline constexpr Dialect kDialect = {
    .numbers = Numbers::kUnsigned,
    .null_writer = kWriteRequireManager,
    .null_reader = kReadRequireManager,
    .null_value = kSetAttributeParama,
    .absent_string = kReadStringAsEnum,
};

/// The texts of RuleAction.
inline constexpr Name kRuleActions[] = {L"USE_CONTENT_POLICY_ACTION", L"ALLOW", L"BLOCK"};

}  // namespace TolvaInterface
