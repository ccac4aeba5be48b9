#pragma once

#include <string_view>

namespace qt {

/// A message box of its own, for a program that cannot go on and has no window yet.
void showFailure(std::string_view title, std::string_view text);

} // namespace qt
