#pragma once

#include "platform/services/controls.h"

#include <QList>

#include <functional>
#include <string>

class QAction;
class QMenuBar;

namespace plan {

/// A main menu on the screen. Its entries carry their names as object names.
class MenuView {
public:
    /// `chosen` is told the name of the entry that the user has chosen.
    MenuView(const services::Menu& menu, const std::function<void(const std::string& name)>& chosen);

    /// Takes over the states of a menu with the same entries.
    void refresh(const services::Menu& menu);

    [[nodiscard]] QMenuBar* bar() const { return bar_; }

private:
    QMenuBar* bar_;
    QList<QAction*> actions_; ///< of all entries, in their order
};

} // namespace plan
