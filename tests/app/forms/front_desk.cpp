#include "app/forms/front_desk.h"

#include "start/settings_reader.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QRadioButton>
#include <QTest>

#include <filesystem>

namespace app {

namespace {

constexpr int dayBeforeThePlan = 12;
int column(int dayOfJune) { return dayOfJune - dayBeforeThePlan; }

} // namespace

FrontDesk::FrontDesk(support::TestHouse& house, services::Dialogs& dialogs)
    : house_(house), g{.dialogs = dialogs,
                       .settings = settings_,
                       .shell = shell_,
                       .user = user_,
                       .clock = house.clock(),
                       .windows = windows,
                       .wsHaupt = house.workspace(),
                       .instanz = {0, std::filesystem::path(house.file("Lokal.mdb")).parent_path().string()}} {
    windows.serve(g);
}

void FrontDesk::open() {
    g.dbHaupt = house_.open("Lokal.mdb");
    g.dbArbeitsplatz = house_.open("Herbergo.mdb");
    g.einstellungen = start::EinstellungenAnsehen(g.dbHaupt, g.dbArbeitsplatz);
    show(std::make_unique<PlanWindow>(g));
}

void FrontDesk::show(std::unique_ptr<PlanWindow> loaded) {
    plan = std::move(loaded);
    plan->open(windows);
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &plan->window(); }));
}

QPoint FrontDesk::at(int line, int dayOfJune) const { return widget().places().cell(line, column(dayOfJune)).center(); }

QImage FrontDesk::picture(int line, int dayOfJune) const {
    return widget().grab().toImage().copy(widget().places().cell(line, column(dayOfJune)));
}

int FrontDesk::cell(int line, int dayOfJune) const { return plan->grid().Zelle(line, column(dayOfJune)); }

int FrontDesk::stay(int line, int dayOfJune) const { return plan->grid().Tage(cell(line, dayOfJune)).ID; }

const plan::Zellbild& FrontDesk::look(int line, int dayOfJune) const {
    return plan->grid().Bild(cell(line, dayOfJune));
}

void FrontDesk::chooseType(const char* button) const {
    hand::click(find<QRadioButton>(plan->window(), button), {8, 8});
}

void FrontDesk::draw(int line, int from, int to) const {
    hand::press(widget(), at(line, from));
    for (int day = from + 1; day <= to; ++day)
        hand::moveTo(widget(), at(line, day));
}

void FrontDesk::chooseOn(int line, int dayOfJune, const char* text) const {
    hand::click(widget(), at(line, dayOfJune), Qt::RightButton);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr) << text;
    for (auto* entry : menu->actions())
        if (entry->text() == QString::fromUtf8(text)) return hand::click(*menu, *entry);
    ADD_FAILURE() << "no entry " << text;
    menu->close();
}

void FrontDesk::minutes(int count) const { hand::runTimer(find<QTimer>(plan->window(), "TimerAktualisieren"), count); }

} // namespace app
