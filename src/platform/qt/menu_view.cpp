#include "platform/qt/menu_view.h"

#include "platform/qt/text.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace qt {

namespace {

/// Captions set off a key by blanks, the toolkit by a tab.
QString caption(const services::MenuEntry& entry) {
    return text(entry.Caption).replace(QStringLiteral("   "), QStringLiteral("\t"));
}

void show(QAction& action, const services::MenuEntry& entry) {
    if (action.text() != caption(entry)) action.setText(caption(entry));
    action.setEnabled(entry.Enabled);
    action.setVisible(entry.Visible);
    // Room for a check mark only where there is one.
    action.setCheckable(entry.Checked);
    action.setChecked(entry.Checked);
}

void showAll(QList<QAction*>::const_iterator& action, const std::vector<services::MenuEntry>& entries) {
    for (const auto& entry : entries) {
        show(**action++, entry);
        showAll(action, entry.Entries);
    }
}

} // namespace

MenuView::MenuView(const services::Menu& menu, const Chosen& chosen) : bar_(new QMenuBar) {
    bar_->setNativeMenuBar(false);
    for (const auto& head : menu.Entries) {
        auto* list = bar_->addMenu(caption(head));
        list->setObjectName(text(head.Name));
        actions_.append(list->menuAction());
        for (const auto& entry : head.Entries)
            add(*list, entry, chosen);
    }
    refresh(menu);
}

void MenuView::add(QMenu& list, const services::MenuEntry& entry, const Chosen& chosen) {
    if (!entry.Entries.empty()) {
        auto* below = list.addMenu(caption(entry));
        below->setObjectName(text(entry.Name));
        actions_.append(below->menuAction());
        for (const auto& lower : entry.Entries)
            add(*below, lower, chosen);
        return;
    }
    auto* action = list.addAction(caption(entry));
    action->setObjectName(text(entry.Name));
    action->setMenuRole(QAction::NoRole);
    QObject::connect(action, &QAction::triggered, bar_, [chosen, name = entry.Name] { chosen(name); });
    actions_.append(action);
}

void MenuView::refresh(const services::Menu& menu) {
    auto action = actions_.cbegin();
    showAll(action, menu.Entries);
}

} // namespace qt
