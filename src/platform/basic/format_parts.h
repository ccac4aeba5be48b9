#pragma once

#include "platform/basic/date.h"

#include <string>
#include <string_view>
#include <vector>

namespace basic {

// The three kinds of patterns behind Format().

/// `sections` as they stand between the semicolons, one at least: positive, negative, zero. An empty one is replaced by
/// the first, with the sign.
[[nodiscard]] std::string formatNumber(double value, const std::vector<std::string_view>& sections);
[[nodiscard]] std::string formatDate(Date date, std::string_view pattern);
[[nodiscard]] std::string formatText(std::string_view text, std::string_view section);

/// Takes a quoted or escaped literal from the front, into `literal`; false where none stands there.
bool takeLiteral(std::string_view& rest, std::string& literal);

} // namespace basic
