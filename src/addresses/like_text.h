#pragma once

#include <string>
#include <string_view>

namespace addresses {

/// The text for a pattern of Like that means nothing but itself.
[[nodiscard]] std::string LikeText(std::string_view text);

} // namespace addresses
