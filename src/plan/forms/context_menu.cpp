#include "plan/forms/context_menu.h"

#include "platform/qt/text.h"

#include <QAction>
#include <QMenu>

namespace plan {

void openContextMenu(QWidget& parent, const services::Menu& menu, QPoint place,
                     const std::function<void(const std::string&)>& chosen) {
    auto* list = new QMenu(&parent);
    list->setObjectName(QStringLiteral("Kontextmenü"));
    list->setAttribute(Qt::WA_DeleteOnClose);
    for (const auto& entry : menu.Entries) {
        auto* action = list->addAction(qt::text(entry.Caption));
        action->setObjectName(qt::text(entry.Name));
        action->setEnabled(entry.Enabled);
        action->setVisible(entry.Visible);
        // The menu has closed before what it leads to opens.
        QObject::connect(
            action, &QAction::triggered, &parent, [chosen, name = entry.Name] { chosen(name); }, Qt::QueuedConnection);
    }
    list->popup(place);
}

} // namespace plan
