#include "platform/qt/show.h"

#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

namespace qt {

namespace {

QColor readableOn(const QColor& back) { return qGray(back.rgb()) > 128 ? look::text : look::onAccent; }

/// A stored text may carry carriage returns, which the widget does not keep.
QString linesOf(std::string_view stored) { return text(stored).remove(u'\r'); }

QString textOf(const QLineEdit& widget) { return widget.text(); }
QString textOf(const QPlainTextEdit& widget) { return widget.toPlainText(); }
QString shownIn(const QLineEdit& /*widget*/, std::string_view stored) { return text(stored); }
QString shownIn(const QPlainTextEdit& /*widget*/, std::string_view stored) { return linesOf(stored); }
void setTextOf(QLineEdit& widget, const QString& text) { widget.setText(text); }
void setTextOf(QPlainTextEdit& widget, const QString& text) { widget.setPlainText(text); }

/// What cannot be typed into does not look as if it could.
std::optional<services::Colour> backOf(const services::TextBox& control) {
    return control.BackColor || !control.Locked ? control.BackColor : bgrOf(look::window);
}

template <typename Widget>
void showBox(Widget& widget, services::TextBox& control) {
    const QSignalBlocker silent(widget);
    if (const QString shown = shownIn(widget, control.Text); textOf(widget) != shown) setTextOf(widget, shown);
    if (widget.isReadOnly() != control.Locked) widget.setReadOnly(control.Locked);
    showFace(widget, {.back = backOf(control), .fore = control.ForeColor, .bold = control.Bold});
    if (control.SelectAll) widget.selectAll();
    control.SelectAll = false;
    showControl(widget, control);
}

void fill(QComboBox& widget, const services::ListItems& items) {
    widget.clear();
    for (int index = 0; index < items.ListCount(); ++index)
        widget.addItem(text(items.List(index)));
}

/// The widget moves the cursor to the end of what it chooses; where the text stays, so does the cursor.
void showEdited(QComboBox& widget, const services::ComboBox& control, const QString& before, int cursor) {
    const QString shown = text(control.Text);
    if (widget.currentText() != shown) widget.setEditText(shown);
    if (shown == before) widget.lineEdit()->setCursorPosition(cursor);
}

} // namespace

void showFace(QWidget& widget, const Face& face) {
    QString style;
    if (face.back) style += QStringLiteral("background:%1;").arg(colour(*face.back).name());
    if (face.fore || face.back)
        style +=
            QStringLiteral("color:%1;").arg((face.fore ? colour(*face.fore) : readableOn(colour(*face.back))).name());
    if (face.bold) style += QStringLiteral("font-weight:bold;");
    // Only for the widget itself, or its tool tip would take the colours too.
    if (!style.isEmpty()) style = QString::fromLatin1(widget.metaObject()->className()) + u'{' + style + u'}';
    if (widget.styleSheet() != style) widget.setStyleSheet(style);
}

void showControl(QWidget& widget, services::Control& control) {
    if (widget.isEnabled() != control.Enabled) widget.setEnabled(control.Enabled);
    if (widget.isHidden() == control.Visible) widget.setVisible(control.Visible);
    if (const QString tip = text(control.ToolTipText); widget.toolTip() != tip) widget.setToolTip(tip);
    if (!control.FocusRequested) return;
    control.FocusRequested = false;
    widget.setFocus();
}

void showText(QLineEdit& widget, services::TextBox& control) { showBox(widget, control); }

void showText(QPlainTextEdit& widget, services::TextBox& control) { showBox(widget, control); }

void showCombo(QComboBox& widget, services::ComboBox& control, unsigned& shownVersion) {
    const QSignalBlocker silent(widget);
    const QString before = widget.currentText();
    const int cursor = control.Editable ? widget.lineEdit()->cursorPosition() : 0;
    if (shownVersion != control.Items.version()) fill(widget, control.Items);
    shownVersion = control.Items.version();
    if (widget.currentIndex() != control.ListIndex) widget.setCurrentIndex(control.ListIndex);
    if (control.Editable) showEdited(widget, control, before, cursor);
    showFace(widget, {.back = control.BackColor});
    showControl(widget, control);
    if (!control.DropDownRequested) return;
    control.DropDownRequested = false;
    // The focus may still be on its way to another widget, which would close the list again.
    QMetaObject::invokeMethod(
        &widget, [&widget] { widget.showPopup(); }, Qt::QueuedConnection);
}

void showOptions(QButtonGroup& widget, services::OptionGroup& control) {
    for (int index = 0; index < static_cast<int>(control.Buttons.size()); ++index) {
        auto* button = widget.button(index);
        auto& option = control.Buttons[static_cast<std::size_t>(index)];
        const QSignalBlocker silent(button);
        showCaption(*button, option.Caption);
        if (button->isChecked() != (control.Value == index)) button->setChecked(control.Value == index);
        showFace(*button, {.back = option.BackColor});
        showControl(*button, option);
    }
}

} // namespace qt
