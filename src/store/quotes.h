#pragma once

#include <algorithm>
#include <string_view>

namespace store {

/// Is the count of the characters " in the text odd? A form that hears so appends one, so that the quotes in a text
/// that goes into a merge file or a statement stand in pairs.
[[nodiscard]] inline bool DoppZeichen(std::string_view text) { return std::ranges::count(text, '"') % 2 != 0; }

} // namespace store
