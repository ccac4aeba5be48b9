#pragma once

#include "platform/jet/error.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace jet {

/// Number of the character at a byte offset, from 1. Bytes that continue a character do not count.
[[nodiscard]] std::size_t characterAt(std::string_view sql, std::size_t offset);

/// The text itself, or its first 30 characters with an ellipsis.
[[nodiscard]] std::string shortened(std::string_view text);

/// Raises `number` with "message (Zeichen n)." for the place.
[[noreturn]] void raiseAt(ErrorNumber number, std::string_view sql, std::size_t offset, std::string_view message);

} // namespace jet
