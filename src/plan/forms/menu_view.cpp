#include "plan/forms/menu_view.h"

#include "platform/qt/text.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace plan {

namespace {

/// Captions set off a key by blanks, the toolkit by a tab.
QString caption(const services::MenuEntry& entry) {
    return qt::text(entry.Caption).replace(QStringLiteral("   "), QStringLiteral("\t"));
}

void show(QAction& action, const services::MenuEntry& entry) {
    if (action.text() != caption(entry)) action.setText(caption(entry));
    action.setEnabled(entry.Enabled);
    action.setVisible(entry.Visible);
    // Room for a check mark only where there is one.
    action.setCheckable(entry.Checked);
    action.setChecked(entry.Checked);
}

} // namespace

MenuView::MenuView(const services::Menu& menu, const std::function<void(const std::string&)>& chosen)
    : bar_(new QMenuBar) {
    bar_->setNativeMenuBar(false);
    for (const auto& head : menu.Entries) {
        auto* list = bar_->addMenu(caption(head));
        list->setObjectName(qt::text(head.Name));
        for (const auto& entry : head.Entries) {
            auto* action = list->addAction(caption(entry));
            action->setObjectName(qt::text(entry.Name));
            action->setMenuRole(QAction::NoRole);
            QObject::connect(action, &QAction::triggered, bar_, [chosen, name = entry.Name] { chosen(name); });
            actions_.append(action);
        }
    }
    refresh(menu);
}

void MenuView::refresh(const services::Menu& menu) {
    auto action = actions_.begin();
    for (const auto& head : menu.Entries)
        for (const auto& entry : head.Entries)
            show(**action++, entry);
}

} // namespace plan
