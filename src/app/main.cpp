#include "app/plan_window.h"
#include "app/windows.h"
#include "platform/qt/desktop.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/look.h"
#include "platform/qt/settings.h"
#include "start/start_main.h"

#include <QApplication>

#include <cstdlib>
#include <string>

namespace {

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
    while (app::runPlan(g, windows) == app::Next::LoadAgain) {
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
