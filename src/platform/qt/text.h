#pragma once

#include <QString>

#include <string_view>

namespace qt {

/// Texts of the logic are UTF-8.
[[nodiscard]] inline QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace qt
