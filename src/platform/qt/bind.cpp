#include "platform/qt/bind.h"

#include "platform/qt/text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>

namespace qt {

namespace {

using services::Colour;

/// As the model's colour, or the style's own without one. Kept beside the widget, so that a colour that is shown
/// already costs nothing.
void showColours(QWidget& widget, std::optional<Colour> back, std::optional<Colour> fore = {}) {
    QString style;
    if (back) style += QStringLiteral("background:%1;").arg(colour(*back).name());
    if (fore) style += QStringLiteral("color:%1;").arg(colour(*fore).name());
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

template <typename Widget>
void showCaption(Widget& widget, std::string_view caption) {
    if (const QString shown = text(caption); widget.text() != shown) widget.setText(shown);
}

QString textOf(const QLineEdit& widget) { return widget.text(); }
QString textOf(const QPlainTextEdit& widget) { return widget.toPlainText(); }
void setTextOf(QLineEdit& widget, const QString& text) { widget.setText(text); }
void setTextOf(QPlainTextEdit& widget, const QString& text) { widget.setPlainText(text); }

template <typename Widget>
void showText(Widget& widget, services::TextBox& control) {
    const QSignalBlocker silent(widget);
    if (const QString shown = text(control.Text); textOf(widget) != shown) setTextOf(widget, shown);
    if (widget.isReadOnly() != control.Locked) widget.setReadOnly(control.Locked);
    showColours(widget, control.BackColor);
    if (control.SelectAll) widget.selectAll();
    control.SelectAll = false;
    showControl(widget, control);
}

void fill(QComboBox& widget, const services::ListItems& items) {
    widget.clear();
    for (int index = 0; index < items.ListCount(); ++index)
        widget.addItem(text(items.List(index)));
}

void showCombo(QComboBox& widget, services::ComboBox& control, unsigned& shownVersion) {
    const QSignalBlocker silent(widget);
    if (shownVersion != control.Items.version()) fill(widget, control.Items);
    shownVersion = control.Items.version();
    if (widget.currentIndex() != control.ListIndex) widget.setCurrentIndex(control.ListIndex);
    if (control.Editable && widget.currentText() != text(control.Text)) widget.setEditText(text(control.Text));
    showColours(widget, control.BackColor);
    showControl(widget, control);
}

void showOptions(QButtonGroup& widget, services::OptionGroup& control) {
    for (int index = 0; index < static_cast<int>(control.Buttons.size()); ++index) {
        auto* button = widget.button(index);
        auto& option = control.Buttons[static_cast<std::size_t>(index)];
        const QSignalBlocker silent(button);
        showCaption(*button, option.Caption);
        if (button->isChecked() != (control.Value == index)) button->setChecked(control.Value == index);
        showColours(*button, option.BackColor);
        showControl(*button, option);
    }
}

/// Leaving the window or dropping a menu is not leaving the control.
bool staysInWindow(const QFocusEvent& event) {
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason &&
           event.reason() != Qt::MenuBarFocusReason;
}

} // namespace

Binding::Binding(QWidget& window) : QObject(&window) {}

void Binding::refresh() {
    for (const Procedure& show : shows_)
        show();
    for (const Procedure& procedure : afterRefresh_)
        procedure();
}

void Binding::run(const Procedure& procedure) {
    const bool outer = running_;
    running_ = true;
    if (procedure) procedure();
    running_ = outer;
    refresh();
}

void Binding::bind(QLabel& widget, services::Label& control) {
    shows_.emplace_back([&widget, &control] {
        showCaption(widget, control.Caption);
        showColours(widget, control.BackColor, control.ForeColor);
        showControl(widget, control);
    });
}

void Binding::bind(QPushButton& widget, services::Button& control, Procedure click) {
    shows_.emplace_back([&widget, &control] {
        showCaption(widget, control.Caption);
        showColours(widget, control.BackColor);
        showControl(widget, control);
    });
    connect(&widget, &QPushButton::clicked, this, [this, click = std::move(click)] { run(click); });
}

template <typename Widget>
void Binding::bindText(Widget& widget, services::TextBox& control, TextEvents&& events) {
    shows_.emplace_back([&widget, &control] { showText(widget, control); });
    connect(&widget, &Widget::textChanged, this, [this, &widget, &control, change = events.change] {
        control.Text = textOf(widget).toStdString();
        if (change) run(change);
    });
    watch(widget, std::move(events));
}

void Binding::bind(QLineEdit& widget, services::TextBox& control, TextEvents events) {
    bindText(widget, control, std::move(events));
}

void Binding::bind(QPlainTextEdit& widget, services::TextBox& control, TextEvents events) {
    bindText(widget, control, std::move(events));
}

void Binding::bind(QCheckBox& widget, services::CheckBox& control, Procedure click) {
    shows_.emplace_back([&widget, &control] {
        const QSignalBlocker silent(widget);
        showCaption(widget, control.Caption);
        if (widget.isChecked() != control.Value) widget.setChecked(control.Value);
        showControl(widget, control);
    });
    connect(&widget, &QCheckBox::clicked, this, [this, &control, click = std::move(click)](bool checked) {
        control.Value = checked;
        run(click);
    });
}

void Binding::bind(QComboBox& widget, services::ComboBox& control, Procedure change) {
    widget.setEditable(control.Editable);
    shows_.emplace_back([&widget, &control, version = 0U]() mutable { showCombo(widget, control, version); });
    connect(&widget, &QComboBox::currentTextChanged, this,
            [this, &widget, &control, change = std::move(change)](const QString& shown) {
                control.Text = shown.toStdString();
                control.ListIndex = widget.findText(shown) == widget.currentIndex() ? widget.currentIndex() : -1;
                run(change);
            });
}

void Binding::bind(QButtonGroup& widget, services::OptionGroup& control, std::function<void(int)> click) {
    shows_.emplace_back([&widget, &control] { showOptions(widget, control); });
    connect(&widget, &QButtonGroup::idClicked, this,
            [this, click = std::move(click)](int id) { run([&click, id] { click(id); }); });
}

void Binding::watch(QWidget& widget, TextEvents events) {
    if (!events.leave && !events.key && !events.doubleClick) return;
    widget.installEventFilter(this);
    watched_.push_back({&widget, std::move(events)});
}

void Binding::leave(const Watched& watched) {
    if (!watched.events.leave || running_) return;
    auto answer = services::Leave::Go;
    run([&] { answer = watched.events.leave(); });
    if (answer != services::Leave::Stay) return;
    // The focus is on its way to another widget and would arrive there after us.
    QMetaObject::invokeMethod(
        watched.widget, [widget = watched.widget] { widget->setFocus(); }, Qt::QueuedConnection);
}

bool Binding::eventFilter(QObject* object, QEvent* event) {
    for (const Watched& watched : watched_) {
        if (watched.widget != object) continue;
        if (event->type() == QEvent::FocusOut && staysInWindow(*static_cast<QFocusEvent*>(event))) leave(watched);
        if (event->type() == QEvent::MouseButtonDblClick && watched.events.doubleClick) run(watched.events.doubleClick);
        if (event->type() == QEvent::KeyPress && watched.events.key) {
            bool taken = false;
            const int key = static_cast<QKeyEvent*>(event)->key();
            run([&] { taken = watched.events.key(key); });
            if (taken) return true;
        }
    }
    return QObject::eventFilter(object, event);
}

} // namespace qt
