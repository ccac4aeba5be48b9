#pragma once

#include "platform/qt/text.h"

#include <QPushButton>
#include <QTest>

#include <stdexcept>
#include <string>

namespace support {

/// The widget of this name in the window.
template <typename T>
[[nodiscard]] T& find(QWidget& window, const char* name) {
    auto* widget = window.findChild<T*>(qt::text(name));
    if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *widget;
}

/// Presses a button with the mouse.
inline void press(QWidget& window, const char* name) {
    QTest::mouseClick(&find<QPushButton>(window, name), Qt::LeftButton);
}

} // namespace support
