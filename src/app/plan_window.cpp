#include "app/plan_window.h"

#include "app/windows.h"
#include "plan/forms/room_choice_dialog.h"
#include "plan/settings_reader.h"
#include "platform/qt/text.h"
#include "reservations/states.h"
#include "start/forms/progress_window.h"
#include "start/plan_load.h"

#include <QApplication>

namespace app {

using start::Ladeergebnis;

namespace {

plan::PlanEinstellungen settings(start::GlobalState& g) {
    plan::PlanEinstellungen read = plan::PlanEinstellungenAus(g.einstellungen);
    read.Zusatzspalten = masterdata::Zusatzspaltenbelegt(g.dbHaupt);
    return read;
}

/// The window shows what is loaded from its first painting on.
plan::frmMain& loaded(plan::frmMain& form) {
    form.Form_Load();
    return form;
}

/// False when there is no plan to be seen yet.
bool build(LoadedPlan& plan, start::GlobalState& g) {
    try {
        plan.window = std::make_unique<PlanWindow>(g);
        return plan.window->form().Fehler().empty();
    } catch (const jet::Error& error) {
        plan.failure = error.text();
        return false;
    }
}

/// The plan opens whatever the answers are; who says "Nein" sees to the offers on it.
void checkOffers(start::GlobalState& g, const LoadedPlan& plan) {
    const auto changed = [&plan] {
        if (plan.window) plan.window->showAgain();
    };
    (void)reservations::AngebotePrüfen(g.dbHaupt, g.dialogs, g.clock.today(), g.strTitel(), changed);
}

} // namespace

PlanWindow::PlanWindow(start::GlobalState& g)
    : source_(g.dbHaupt), grid_(settings(g), masterdata::ZimmerEinlesen(g.dbHaupt), source_, g.clock),
      form_(grid_, g.clock, surroundings(g)), window_(loaded(form_)) {}

PlanWindow::~PlanWindow() {
    if (followed_ != nullptr) followed_->onStaysChanged({});
}

plan::Umgebung PlanWindow::surroundings(start::GlobalState& g) {
    auto all = plan::UmgebungAus(g, [this] { window_.close(); });
    all.Zimmerauswahl = [this, &g](plan::frmZimmerauswahl& choice) {
        plan::RoomChoiceDialog(choice, qt::text(g.strTitel()), &window_).exec();
    };
    return all;
}

void PlanWindow::open(QtWindows& windows) {
    windows.onStaysChanged([this] { showAgain(); });
    followed_ = &windows;
    window_.showMaximized();
}

void PlanWindow::showAgain() {
    form_.subZeigeDatum(grid_.PlanStart());
    window_.refresh();
}

LoadedPlan loadPlan(start::GlobalState& g) {
    const start::frmMaskeAufbauen progress;
    start::ProgressWindow progressWindow(progress);
    progressWindow.appear();
    LoadedPlan plan;
    start::Ladeschritte steps;
    steps.PlanAufbauen = [&] { return build(plan, g); };
    steps.AngebotePrüfen = [&] { checkOffers(g, plan); };
    plan.result = start::PlanLaden(g, steps);
    return plan;
}

Next runPlan(start::GlobalState& g, QtWindows& windows) {
    const LoadedPlan plan = loadPlan(g);
    if (plan.result == Ladeergebnis::Neuladen) return Next::LoadAgain;
    if (plan.result == Ladeergebnis::Ende) return Next::End;
    if (!plan.window) {
        g.dialogs.MsgBox(plan.failure, {.icon = services::MsgIcon::Critical}, g.strTitel());
        return Next::End;
    }
    plan.window->open(windows);
    QApplication::exec();
    g.FormularGeladen = false;
    return g.Neuaufbau ? Next::LoadAgain : Next::End;
}

} // namespace app
