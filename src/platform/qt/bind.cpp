#include "platform/qt/bind.h"

#include "platform/qt/match_box.h"
#include "platform/qt/show.h"
#include "platform/qt/text.h"
#include "platform/qt/typed_text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <optional>

namespace qt {

namespace {

/// Leaving the window or dropping a menu is not leaving the control.
bool staysInWindow(const QFocusEvent& event) {
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason &&
           event.reason() != Qt::MenuBarFocusReason;
}

std::optional<services::Key> keyOf(const QKeyEvent& event) {
    if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) return {};
    switch (event.key()) {
    case Qt::Key_F2:
        return services::Key::F2;
    case Qt::Key_F3:
        return services::Key::F3;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return services::Key::Return;
    case Qt::Key_Plus:
        return services::Key::Plus;
    case Qt::Key_Minus:
        return services::Key::Minus;
    default:
        return {};
    }
}

TypedText typedIn(const QLineEdit& box) { return {box.text(), box.cursorPosition()}; }
TypedText typedIn(const QPlainTextEdit& box) { return {box.toPlainText(), box.textCursor().position()}; }

void write(QLineEdit& box, const TypedText& typed) {
    const QSignalBlocker silent(box);
    box.setText(typed.text);
    box.setCursorPosition(static_cast<int>(typed.cursor));
}

void write(QPlainTextEdit& box, const TypedText& typed) {
    const QSignalBlocker silent(box);
    box.setPlainText(typed.text);
    auto cursor = box.textCursor();
    cursor.setPosition(static_cast<int>(typed.cursor));
    box.setTextCursor(cursor);
}

/// Takes over what the user has typed, as far as the control takes it; refused signs vanish from the box. False when
/// nothing is left of the change.
template <typename Widget, typename Control>
bool takeTyped(Widget& box, Control& control) {
    const TypedText typed = typedIn(box);
    const TypedText taken = acceptTyped(text(control.Text), typed.text, typed.cursor, control.Keys, control.MaxLength);
    if (taken != typed) write(box, taken);
    if (taken.text == text(control.Text)) return false;
    control.Text = taken.text.toStdString();
    return true;
}

/// Of itself the widget takes the wheel wherever the mouse happens to stand, adds what is typed to its list, completes
/// it, and chooses when it is left: the model says what the list holds and what is chosen.
void tame(QComboBox& widget) {
    widget.setFocusPolicy(Qt::StrongFocus);
    widget.setInsertPolicy(QComboBox::NoInsert);
    if (widget.lineEdit() == nullptr) return;
    widget.setCompleter(nullptr);
    QObject::disconnect(widget.lineEdit(), &QLineEdit::editingFinished, &widget, nullptr);
}

bool passesOver(const QWidget& widget, const QEvent& event) {
    return event.type() == QEvent::Wheel && qobject_cast<const QComboBox*>(&widget) != nullptr && !widget.hasFocus();
}

} // namespace

Binding::Binding(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

void Binding::showAll() {
    const QScopedValueRollback showing(running_, true);
    for (const Procedure& show : shows_)
        show();
}

void Binding::refresh() {
    showAll();
    for (const Procedure& procedure : afterRefresh_)
        procedure();
}

void Binding::run(const Procedure& procedure) {
    {
        const QScopedValueRollback running(running_, true);
        if (procedure) procedure();
    }
    refresh();
}

void Binding::bind(QLabel& widget, services::Label& control) {
    shows_.emplace_back([&widget, &control] {
        showCaption(widget, control.Caption);
        showFace(widget, {.back = control.BackColor, .fore = control.ForeColor});
        showControl(widget, control);
    });
}

void Binding::bind(QPushButton& widget, services::Button& control, Procedure click) {
    shows_.emplace_back([&widget, &control] {
        showCaption(widget, control.Caption);
        showFace(widget, {.back = control.BackColor});
        showControl(widget, control);
    });
    connect(&widget, &QPushButton::clicked, this, [this, &widget, click = std::move(click)] {
        if (arrives(widget)) run(click);
    });
    watch(widget, {.key = [&widget](services::Key key) {
              if (key == services::Key::Return) widget.click();
              return key == services::Key::Return;
          }});
}

template <typename Widget>
void Binding::bindText(Widget& widget, services::TextBox& control, const Procedure& change) {
    connect(&widget, &Widget::textChanged, this, [this, &widget, &control, change] {
        if (takeTyped(widget, control)) run(change);
    });
    shows_.emplace_back([&widget, &control] { showText(widget, control); });
}

void Binding::bind(QLineEdit& widget, services::TextBox& control, TextEvents events) {
    bindText(widget, control, events.change);
    watch(widget, {std::move(events.leave), std::move(events.key), std::move(events.doubleClick)});
}

void Binding::bind(QPlainTextEdit& widget, services::TextBox& control, TextEvents events) {
    bindText(widget, control, events.change);
    watch(widget, {std::move(events.leave), std::move(events.key), std::move(events.doubleClick)});
}

void Binding::bind(QLineEdit& widget, services::MatchBox& control, MatchEvents events) {
    auto* popup = new MatchPopup(widget, control,
                                 [this, &control, choose = std::move(events.choose)](const services::Match& match) {
                                     control.Text = match.Text;
                                     control.Chosen = match.Data;
                                     run([&] {
                                         if (choose) choose(match.Data);
                                     });
                                 });
    bindText(widget, control, [&control, popup, change = std::move(events.change)] {
        control.Chosen = 0;
        if (change) change();
        if (control.Text.empty())
            popup->close();
        else
            popup->offer();
    });
    watch(widget, {.leave = std::move(events.leave), .key = std::move(events.key)});
}

void Binding::bind(QCheckBox& widget, services::CheckBox& control, Procedure click, KeyProcedure key) {
    shows_.emplace_back([&widget, &control] {
        const QSignalBlocker silent(widget);
        showCaption(widget, control.Caption);
        if (widget.isChecked() != control.Value) widget.setChecked(control.Value);
        showControl(widget, control);
    });
    connect(&widget, &QCheckBox::clicked, this, [this, &widget, &control, click = std::move(click)](bool checked) {
        if (!arrives(widget)) return refresh();
        control.Value = checked;
        run(click);
    });
    watch(widget, {.key = std::move(key)});
}

void Binding::bind(QComboBox& widget, services::ComboBox& control, ChoiceEvents events) {
    widget.setEditable(control.Editable);
    tame(widget);
    if (control.Editable) bindEdit(widget, control, events.change);
    connect(&widget, &QComboBox::activated, this, [this, &control, click = std::move(events.click)](int index) {
        control.choose(index);
        run(click);
    });
    shows_.emplace_back([&widget, &control, version = 0U]() mutable { showCombo(widget, control, version); });
    watch(widget, {.leave = std::move(events.leave), .key = std::move(events.key)});
}

void Binding::bindEdit(QComboBox& widget, services::ComboBox& control, const Procedure& change) {
    // Choosing sets the text too, but only typing is told as edited.
    connect(widget.lineEdit(), &QLineEdit::textEdited, this, [this, &widget, &control, change] {
        if (!takeTyped(*widget.lineEdit(), control)) return;
        control.ListIndex = -1;
        for (int index = 0; index < control.Items.ListCount() && control.ListIndex < 0; ++index)
            if (control.Items.List(index) == control.Text) control.ListIndex = index;
        run(change);
    });
}

void Binding::bind(QButtonGroup& widget, services::OptionGroup& control, std::function<void(int)> click,
                   const KeyProcedure& key) {
    shows_.emplace_back([&widget, &control] { showOptions(widget, control); });
    connect(&widget, &QButtonGroup::idClicked, this, [this, &widget, click = std::move(click)](int id) {
        if (!arrives(*widget.button(id))) return refresh();
        run([&click, id] { click(id); });
    });
    for (auto* button : widget.buttons())
        watch(*button, {.key = key});
}

void Binding::watch(QWidget& widget, Watched events) {
    widget.installEventFilter(this);
    watched_.insert_or_assign(&widget, std::move(events));
}

void Binding::leave(QWidget& widget, const Watched& watched) {
    if (!watched.leave || running_) return;
    auto answer = services::Leave::Go;
    run([&] { answer = watched.leave(); });
    stayed_ = answer == services::Leave::Stay;
    if (!stayed_) return;
    // The focus is on its way to another widget and would arrive there after us.
    QMetaObject::invokeMethod(
        &widget, [&widget] { widget.setFocus(); }, Qt::QueuedConnection);
}

/// An access key presses a button without taking the focus along. It follows here, so that the control that the user
/// was in is left before the click; false when that one keeps the focus.
bool Binding::arrives(QAbstractButton& widget) {
    if (widget.hasFocus() || widget.focusPolicy() == Qt::NoFocus) return true;
    stayed_ = false;
    widget.setFocus(Qt::ShortcutFocusReason);
    return !stayed_;
}

bool Binding::keyTaken(const Watched& watched, const QKeyEvent& event) {
    const auto key = keyOf(event);
    if (!key || !watched.key) return false;
    bool taken = false;
    run([&] { taken = watched.key(*key); });
    return taken;
}

bool Binding::handled(QWidget& widget, const Watched& watched, QEvent& event) {
    switch (event.type()) {
    case QEvent::FocusOut:
        if (staysInWindow(static_cast<QFocusEvent&>(event))) leave(widget, watched);
        return false;
    case QEvent::MouseButtonDblClick:
        if (watched.doubleClick) run(watched.doubleClick);
        return false;
    case QEvent::KeyPress:
        return keyTaken(watched, static_cast<QKeyEvent&>(event));
    case QEvent::Wheel:
        if (!passesOver(widget, event)) return false;
        event.ignore();
        return true;
    default:
        return false;
    }
}

bool Binding::eventFilter(QObject* object, QEvent* event) {
    if (object == parent() && event->type() == QEvent::WindowBlocked) showAll();
    const auto watched = watched_.find(object);
    if (watched == watched_.end()) return QObject::eventFilter(object, event);
    return handled(*static_cast<QWidget*>(object), watched->second, *event) || QObject::eventFilter(object, event);
}

} // namespace qt
