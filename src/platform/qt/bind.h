#pragma once

#include "platform/services/controls.h"

#include <QObject>

#include <functional>
#include <unordered_map>
#include <vector>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QWidget;

namespace qt {

using Procedure = std::function<void()>;
using LeaveProcedure = std::function<services::Leave()>;
/// Answers whether the key was taken; a key that is taken does nothing else.
using KeyProcedure = std::function<bool(services::Key)>;

struct TextEvents {
    Procedure change = {};     ///< the user has typed or pasted
    LeaveProcedure leave = {}; ///< the focus goes to another control of the window
    KeyProcedure key = {};     ///< before the box sees it
    Procedure doubleClick = {};
};

struct ChoiceEvents {
    Procedure change = {}; ///< the user has typed another text
    Procedure click = {};  ///< the user has chosen an entry
    LeaveProcedure leave = {};
    KeyProcedure key = {};
};

struct MatchEvents {
    Procedure change = {};                         ///< the user has typed another text
    std::function<void(std::int64_t)> choose = {}; ///< Data of the entry that the user has chosen
    LeaveProcedure leave = {};
    KeyProcedure key = {};
};

/// Ties the widgets of one window to the controls of its model. Showing a state fires no event and touches no widget
/// that shows it already, so that the cursor stays where it was. Every event procedure is followed by a refresh. While
/// a procedure runs (it may have a message box open) or a state is shown, no leave event is passed on: it is the box or
/// the model that takes the focus away. Behind a box that asks, the window shows what the model holds by then. Controls
/// and widgets must outlive the binding; it belongs to its window.
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
    /// Return presses the button that has the focus.
    void bind(QPushButton& widget, services::Button& control, Procedure click);
    void bind(QLineEdit& widget, services::TextBox& control, TextEvents events = {});
    void bind(QPlainTextEdit& widget, services::TextBox& control, TextEvents events = {});
    void bind(QCheckBox& widget, services::CheckBox& control, Procedure click = {}, KeyProcedure key = {});
    void bind(QComboBox& widget, services::ComboBox& control, ChoiceEvents events = {});
    /// Offers the first matches below the box while the user types, and on the key "down".
    void bind(QLineEdit& widget, services::MatchBox& control, MatchEvents events);
    /// The buttons of the group stand in the order of the control's buttons, with ids from 0.
    void bind(QButtonGroup& widget, services::OptionGroup& control, std::function<void(int)> click,
              const KeyProcedure& key = {});

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Watched {
        LeaveProcedure leave = {};
        KeyProcedure key = {};
        Procedure doubleClick = {};
    };

    void showAll();
    template <typename Widget>
    void bindText(Widget& widget, services::TextBox& control, const Procedure& change);
    void bindEdit(QComboBox& widget, services::ComboBox& control, const Procedure& change);
    void watch(QWidget& widget, Watched events);
    [[nodiscard]] bool handled(QWidget& widget, const Watched& watched, QEvent& event);
    [[nodiscard]] bool keyTaken(const Watched& watched, const QKeyEvent& event);
    void leave(QWidget& widget, const Watched& watched);
    [[nodiscard]] bool arrives(QAbstractButton& widget);

    bool running_ = false;
    bool stayed_ = false; ///< the last leave event kept the focus
    std::vector<Procedure> shows_;
    std::vector<Procedure> afterRefresh_;
    std::unordered_map<const QObject*, Watched> watched_;
};

} // namespace qt
