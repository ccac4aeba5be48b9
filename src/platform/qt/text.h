#pragma once

#include <QColor>
#include <QString>

#include <string_view>

namespace qt {

/// Texts of the logic are UTF-8.
[[nodiscard]] inline QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A BGR Long, red in the lowest byte.
[[nodiscard]] inline QColor colour(int bgr) { return {bgr & 0xFF, bgr >> 8 & 0xFF, bgr >> 16 & 0xFF}; }
[[nodiscard]] inline int bgrOf(const QColor& colour) {
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

} // namespace qt
