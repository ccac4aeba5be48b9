#pragma once

#include "platform/services/controls.h"

#include <QList>

#include <functional>
#include <string>

class QAction;
class QMenu;
class QMenuBar;

namespace qt {

/// A menu bar on the screen. Its entries carry their names as object names.
class MenuView {
public:
    using Chosen = std::function<void(const std::string& name)>;

    /// `chosen` is told the name of the entry that the user has chosen.
    MenuView(const services::Menu& menu, const Chosen& chosen);

    /// Takes over the states of a menu with the same entries.
    void refresh(const services::Menu& menu);

    [[nodiscard]] QMenuBar* bar() const { return bar_; }

private:
    void add(QMenu& list, const services::MenuEntry& entry, const Chosen& chosen);

    QMenuBar* bar_;
    QList<QAction*> actions_; ///< of all entries, each before those of its submenu
};

} // namespace qt
