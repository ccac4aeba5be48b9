#pragma once

#include "platform/services/controls.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QWidget;

namespace qt {

using Procedure = std::function<void()>;
using LeaveProcedure = std::function<services::Leave()>;
/// Answers whether the key was taken; a key that is taken does nothing else.
using KeyProcedure = std::function<bool(int key)>;

struct TextEvents {
    Procedure change = {};     ///< the user has typed
    LeaveProcedure leave = {}; ///< the focus goes to another control of the window
    KeyProcedure key = {};     ///< Qt::Key, before the box sees it
    Procedure doubleClick = {};
};

/// Ties the widgets of one window to the controls of its model. Showing a state fires no event and touches no widget
/// that shows it already, so that the cursor stays where it was. Every event procedure is followed by a refresh. While
/// a procedure runs (it may have a message box open) no leave event is passed on: the box itself takes the focus away.
/// Controls and widgets must outlive the binding; it belongs to its window.
class Binding : public QObject {
public:
    explicit Binding(QWidget& window);

    /// Shows all states.
    void refresh();
    /// Runs an event procedure, then refreshes.
    void run(const Procedure& procedure);
    /// Called at the end of each refresh, for what a view shows besides its controls.
    void onRefresh(Procedure procedure) { afterRefresh_.push_back(std::move(procedure)); }

    void bind(QLabel& widget, services::Label& control);
    void bind(QPushButton& widget, services::Button& control, Procedure click);
    void bind(QLineEdit& widget, services::TextBox& control, TextEvents events = {});
    void bind(QPlainTextEdit& widget, services::TextBox& control, TextEvents events = {});
    void bind(QCheckBox& widget, services::CheckBox& control, Procedure click = {});
    void bind(QComboBox& widget, services::ComboBox& control, Procedure change = {});
    /// The buttons of the group stand in the order of the control's buttons, with ids from 0.
    void bind(QButtonGroup& widget, services::OptionGroup& control, std::function<void(int)> click);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Watched {
        QWidget* widget;
        TextEvents events;
    };

    template <typename Widget>
    void bindText(Widget& widget, services::TextBox& control, TextEvents&& events);
    void watch(QWidget& widget, TextEvents events);
    void leave(const Watched& watched);

    bool running_ = false;
    std::vector<Procedure> shows_;
    std::vector<Procedure> afterRefresh_;
    std::vector<Watched> watched_;
};

} // namespace qt
