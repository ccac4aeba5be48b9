#include "app/house.h"
#include "plan/forms/main_window.h"
#include "platform/qt/look.h"
#include "platform/qt/notice.h"

#include <CLI/CLI.hpp>
#include <QApplication>

namespace {

int run(const std::string& folder) {
    const services::SystemClock clock;
    app::House house(folder, clock);
    plan::frmMain form(house.raster(), clock);
    form.Form_Load();
    plan::MainWindow window(form);
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    CLI::App options("Herbergo: der Belegungsplan des Hauses");
    std::string folder = "haus";
    options.add_option("ORDNER", folder, "Ordner mit den Daten des Hauses")->capture_default_str();
    CLI11_PARSE(options, argc, argv);

    QApplication application(argc, argv);
    qt::applyLook(application);
    try {
        return run(folder);
    } catch (const jet::Error& error) {
        qt::showFailure("Herbergo", error.text());
        return 1;
    }
}
