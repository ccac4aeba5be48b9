#include "app/windows.h"
#include "masterdata/rooms.h"
#include "plan/forms/main_window.h"
#include "plan/forms/room_choice_dialog.h"
#include "plan/settings_reader.h"
#include "platform/qt/desktop.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/look.h"
#include "platform/qt/settings.h"
#include "platform/qt/text.h"
#include "reservations/states.h"
#include "start/forms/progress_window.h"
#include "start/plan_load.h"
#include "start/start_main.h"

#include <QApplication>

#include <cstdlib>
#include <memory>

namespace {

using start::Ladeergebnis;

/// The plan window with what it stands on.
struct Planfenster {
    explicit Planfenster(start::GlobalState& g)
        : source(g.dbHaupt), grid(settings(g), masterdata::ZimmerEinlesen(g.dbHaupt), source, g.clock),
          form(grid, g.clock, surroundings(g)), window(loaded(form)) {}

    plan::Umgebung surroundings(start::GlobalState& g) {
        auto all = plan::UmgebungAus(g, [this] { window.close(); });
        all.Zimmerauswahl = [this, &g](plan::frmZimmerauswahl& choice) {
            plan::RoomChoiceDialog(choice, qt::text(g.strTitel()), &window).exec();
        };
        return all;
    }

    /// The window shows what is loaded from its first painting on.
    static plan::frmMain& loaded(plan::frmMain& form) {
        form.Form_Load();
        return form;
    }

    static plan::PlanEinstellungen settings(start::GlobalState& g) {
        plan::PlanEinstellungen read = plan::PlanEinstellungenAus(g.einstellungen);
        read.Zusatzspalten = masterdata::Zusatzspaltenbelegt(g.dbHaupt);
        return read;
    }

    /// The same days again, after the stays have changed.
    void showAgain() {
        form.subZeigeDatum(grid.PlanStart());
        window.refresh();
    }

    plan::PlanAusDatenbank source;
    plan::Planraster grid;
    plan::frmMain form;
    plan::MainWindow window;
};

enum class Next { LoadAgain, End };

/// The window while the load makes it, or why there is none.
struct Building {
    std::unique_ptr<Planfenster> window;
    std::string failure;

    [[nodiscard]] bool build(start::GlobalState& g) {
        try {
            window = std::make_unique<Planfenster>(g);
            return window->form.Fehler().empty();
        } catch (const jet::Error& error) {
            failure = error.text();
            return false;
        }
    }
};

/// The plan opens whatever the answers are; who says "Nein" sees to the offers on it.
void checkOffers(start::GlobalState& g, Building& building) {
    const auto changed = [&building] {
        if (building.window) building.window->showAgain();
    };
    (void)reservations::AngebotePrüfen(g.dbHaupt, g.dialogs, g.clock.today(), g.strTitel(), changed);
}

Ladeergebnis load(start::GlobalState& g, Building& building) {
    const start::frmMaskeAufbauen progress;
    start::ProgressWindow progressWindow(progress);
    progressWindow.appear();
    start::Ladeschritte steps;
    steps.PlanAufbauen = [&] { return building.build(g); };
    steps.AngebotePrüfen = [&] { checkOffers(g, building); };
    return start::PlanLaden(g, steps);
}

Next runPlan(start::GlobalState& g, app::QtWindows& windows) {
    Building building;
    const Ladeergebnis loaded = load(g, building);
    if (loaded == Ladeergebnis::Neuladen) return Next::LoadAgain;
    if (loaded == Ladeergebnis::Ende) return Next::End;
    if (!building.window) {
        g.dialogs.MsgBox(building.failure, {.icon = services::MsgIcon::Critical}, g.strTitel());
        return Next::End;
    }
    windows.onStaysChanged([&building] { building.window->showAgain(); });
    building.window->window.showMaximized();
    QApplication::exec();
    windows.onStaysChanged({});
    g.FormularGeladen = false;
    return g.Neuaufbau ? Next::LoadAgain : Next::End;
}

std::string searchPath() {
    const char* path = std::getenv("PATH");
    return path == nullptr ? std::string() : path;
}

void run(const std::string& call) {
    const services::SystemClock clock;
    const jet::Workspace workspace(clock);
    qt::QtDialogs dialogs;
    qt::IniSettings settings;
    qt::DesktopShell shell;
    const qt::LogonUser user;
    app::QtWindows windows;
    start::GlobalState g{.dialogs = dialogs,
                         .settings = settings,
                         .shell = shell,
                         .user = user,
                         .clock = clock,
                         .windows = windows,
                         .wsHaupt = workspace,
                         .instanz = start::instanzVon(start::programmpfad(call, searchPath()))};
    windows.serve(g);
    if (start::Main(g) == start::Weg::Ende) return;
    while (runPlan(g, windows) == Next::LoadAgain) {
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::string call = argc > 0 ? argv[0] : "";
    QApplication application(argc, argv);
    qt::speakGerman(application);
    qt::applyLook(application);
    run(call);
    return 0;
}
