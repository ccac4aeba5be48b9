#pragma once

#include "platform/services/controls.h"

#include <QString>

#include <optional>
#include <string_view>

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace qt {

// States of controls on their widgets. No widget is touched that shows its state already, and none tells of it.

/// What the model may say about the colours and the weight of a control.
struct Face {
    std::optional<services::Colour> back = {};
    std::optional<services::Colour> fore = {}; ///< none: one that is readable on the back colour
    bool bold = false;
};
void showFace(QWidget& widget, const Face& face);

void showControl(QWidget& widget, services::Control& control);
void showText(QLineEdit& widget, services::TextBox& control);
void showText(QPlainTextEdit& widget, services::TextBox& control);
/// `shownVersion` is the version of the list that the widget holds.
void showCombo(QComboBox& widget, services::ComboBox& control, unsigned& shownVersion);
void showOptions(QButtonGroup& widget, services::OptionGroup& control);

template <typename Widget>
void showCaption(Widget& widget, std::string_view caption) {
    const auto shown = QString::fromUtf8(caption.data(), static_cast<qsizetype>(caption.size()));
    if (widget.text() != shown) widget.setText(shown);
}

} // namespace qt
