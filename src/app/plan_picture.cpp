// plan-bild: the plan as a picture, without a display.
#include "app/house.h"
#include "plan/forms/main_window.h"
#include "plan/invented_stays.h"
#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <optional>

namespace {

struct Request {
    std::string picture;
    std::string folder = "haus";
    std::string date;
    int rooms = 10;
    int days = 35;
    int stays = 0;
    bool invented = false;
    int width = 0;
    int height = 0;
    double scale = 1;
};

void addOptions(CLI::App& options, Request& request) {
    options.add_option("BILD", request.picture, "Bilddatei (.png)")->required();
    options.add_option("--haus", request.folder, "Ordner mit den Daten des Hauses")->capture_default_str();
    options.add_option("--datum", request.date, "erster Tag des Plans, tt.mm.jjjj (sonst vorgestern)");
    options.add_option("--rooms", request.rooms, "Zimmer eines erfundenen Hauses")->check(CLI::Range(0, 98));
    options.add_option("--days", request.days, "Tage im Plan des erfundenen Hauses")->check(CLI::Range(1, 100));
    options.add_option("--stays", request.stays, "Aufenthalte im erfundenen Haus")->check(CLI::Range(0, 100000));
    options.add_option("--breite", request.width, "Breite des Fensters")->check(CLI::Range(200, 8000));
    options.add_option("--hoehe", request.height, "Höhe des Fensters")->check(CLI::Range(200, 8000));
    options.add_option("--skalierung", request.scale, "Punkte je Bildpunkt, 2 für 200 %")->check(CLI::Range(0.5, 4.0));
}

QImage picture(plan::MainWindow& window, const Request& request) {
    window.ensurePolished();
    window.resize(request.width > 0 ? request.width : window.sizeHint().width(),
                  request.height > 0 ? request.height : window.sizeHint().height());
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QImage image((QSizeF(window.size()) * request.scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(request.scale);
    QPainter painter(&image);
    window.render(&painter);
    return image;
}

int show(plan::Planraster& raster, const services::Clock& clock, const Request& request) {
    plan::frmMain form(raster, clock);
    form.Form_Load();
    if (const auto date = basic::parseDate(request.date, clock.today())) form.subZeigeDatum(*date);
    if (!form.Fehler().empty()) {
        std::fprintf(stderr, "%s\n", form.Fehler().c_str());
        return 1;
    }
    plan::MainWindow window(form);
    if (picture(window, request).save(qt::text(request.picture))) return 0;
    std::fprintf(stderr, "Das Bild %s lässt sich nicht schreiben.\n", request.picture.c_str());
    return 1;
}

int showInvented(const services::Clock& clock, const Request& request) {
    plan::PlanEinstellungen settings;
    settings.AnzahlZimmer = request.rooms;
    settings.SichtbareZeilen = request.rooms;
    settings.AnzahlTage = request.days;
    const auto start = basic::parseDate(request.date, clock.today()).value_or(clock.today() - 2);
    plan::ErfundeneBelegung source(request.rooms, request.days, request.stays, start);
    plan::Planraster raster(settings, plan::ErfundeneZimmer(request.rooms), source, clock);
    return show(raster, clock, request);
}

int run(const Request& request) {
    const services::SystemClock clock;
    if (!request.date.empty() && !basic::parseDate(request.date, clock.today())) {
        std::fprintf(stderr, "%s ist kein Datum.\n", request.date.c_str());
        return 1;
    }
    if (request.invented) return showInvented(clock, request);
    app::House house(request.folder, clock);
    return show(house.raster(), clock, request);
}

} // namespace

int main(int argc, char** argv) {
    Request request;
    CLI::App options("plan-bild: schreibt den Belegungsplan als Bild");
    addOptions(options, request);
    CLI11_PARSE(options, argc, argv);
    for (const auto* option : {"--rooms", "--days", "--stays"})
        request.invented = request.invented || options.count(option) > 0;

    // A picture needs no display, so that it comes out the same on every machine.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    qt::applyLook(application);
    try {
        return run(request);
    } catch (const jet::Error& error) {
        std::fprintf(stderr, "%s\n", error.text().c_str());
        return 1;
    }
}
