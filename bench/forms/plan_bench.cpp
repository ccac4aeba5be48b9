// herbergo-plan-bench: from a changed date to the filled grid and to the painted plan, from a move of the mouse to what
// it shows, and from the start of a process to its first picture.
#include "forms/process_cost.h"
#include "plan/forms/main_window.h"
#include "plan/forms/plan_widget.h"
#include "plan/reservation_finder.h"
#include "platform/jet/workspace.h"
#include "platform/qt/look.h"
#include "store/database_files.h"
#include "store/new_house.h"
#include "support/house.h"
#include "support/no_windows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <functional>
#include <iostream>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

/// A house on the screen of a front desk.
struct Desk {
    Desk(const std::string& folder, plan::PlanEinstellungen settings)
        : db(workspace.OpenDatabase(folder + "/Lokal.mdb", false, false, store::openConnect())), source(db),
          raster(settings, masterdata::ZimmerEinlesen(db), source, clock), form(raster, clock, surroundings()) {
        form.Form_Load();
    }

    /// The log is kept, as in the program.
    plan::Umgebung surroundings() {
        plan::Umgebung all;
        all.windows = &windows;
        all.db = &db;
        all.Zeitlogdatei = HERBERGO_BENCH_HOUSES "/Zeitlog.txt";
        return all;
    }

    services::FixedClock clock{bench::today()};
    bench::NoWindows windows;
    jet::Workspace workspace{clock};
    jet::Database db;
    plan::PlanAusDatenbank source;
    plan::Planraster raster;
    plan::frmMain form;
};

struct House {
    const char* name;
    std::string folder;
    plan::PlanEinstellungen settings;
    double modelTarget; ///< ms
    double paintTarget;
};

/// A program that works draws at once.
void show(QWidget& window) {
    window.resize(1900, 1040);
    window.show();
    QApplication::processEvents();
}

/// Milliseconds by the wall clock and of the processor, which are the steadier ones on a busy machine.
struct Times {
    double wall;
    double processor;
};

double processorTime() { return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

double middle(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Medians.
Times measured(int runs, const std::function<void()>& work) {
    std::vector<double> wall;
    std::vector<double> processor;
    for (int i = 0; i < runs; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        const double used = processorTime();
        work();
        processor.push_back(processorTime() - used);
        wall.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
    }
    return {middle(wall), middle(processor)};
}

/// Another day each time, as the window moves while people work with it.
class Days {
public:
    [[nodiscard]] basic::Date next() { return bench::today() + day_++ % 7; }

private:
    int day_ = 0;
};

struct Cell {
    int line;
    int column;
};
using Cells = std::vector<Cell>;

Cells cellsWithBars(const plan::Planraster& raster) {
    Cells cells;
    for (int line = 1; line < raster.Wartezeile(); ++line)
        for (const auto& bar : raster.BalkenDerZeile(line))
            if (!bar.Überlauf) cells.push_back({line, bar.VonSpalte});
    return cells;
}

/// Two free cells side by side.
Cells freeCells(const plan::Planraster& raster) {
    for (int line = 1; line < raster.Wartezeile(); ++line)
        for (int column = 1; column < raster.AnzahlTage(); ++column)
            if (raster.istFrei(raster.Zelle(line, column)) && raster.istFrei(raster.Zelle(line, column + 1)))
                return {{line, column}, {line, column + 1}};
    return {};
}

/// The two statements behind a cell that the pointer comes to, and nothing else.
void askPlainly(Desk& desk, Cell cell) {
    const auto found =
        plan::UnterMausImZimmer(desk.db, desk.raster.ErsteZeile() + cell.line - 1, desk.raster.Datum(cell.column));
    if (!found.empty()) (void)plan::GastLesen(desk.db, found.front().GastID);
}

int barsInView(const plan::Planraster& raster) {
    std::size_t bars = 0;
    for (int line = 1; line <= raster.Wartezeile(); ++line)
        bars += raster.BalkenDerZeile(line).size();
    return static_cast<int>(bars);
}

void printMicro(const char* what, Times times, double target) {
    std::printf("  %-34s %7.3f ms, processor %7.3f ms (target %.1f)\n", what, times.wall, times.processor, target);
}

void printRow(const char* what, Times times, double target) {
    std::printf("  %-28s %7.2f ms, processor %7.2f ms (target %.0f)\n", what, times.wall, times.processor, target);
}

void measure(const House& house) {
    constexpr int runs = 61;
    Desk desk(house.folder, house.settings);
    plan::MainWindow window(desk.form);
    show(window);
    Days days;
    const auto query = measured(runs, [&] {
        const auto start = days.next();
        (void)desk.source.Feiertage(start, start + desk.raster.AnzahlTage());
        (void)desk.source.Reservierungen(start - 5, start + desk.raster.AnzahlTage());
    });
    const auto model = measured(runs, [&] { desk.form.subZeigeDatum(days.next()); });
    const auto painted = measured(runs, [&] {
        desk.form.subZeigeDatum(days.next());
        window.refresh();
        QApplication::processEvents();
    });
    std::printf("%s: %d rooms by %d days, %d bars\n", house.name, desk.raster.AnzahlZimmer(), desk.raster.AnzahlTage(),
                barsInView(desk.raster));
    printRow("date changed to grid filled", model, house.modelTarget);
    printRow("date changed to plan painted", painted, house.paintTarget);
    const double all = painted.processor / 100;
    std::printf("  shares: query %.0f %%, grid %.0f %%, paint %.0f %%\n", query.processor / all,
                (model.processor - query.processor) / all, (painted.processor - model.processor) / all);
}

std::vector<House> houses() {
    plan::PlanEinstellungen large;
    large.AnzahlZimmer = large.SichtbareZeilen = bench::houseRooms;
    large.AnzahlTage = 100;
    const auto sample = fs::path(HERBERGO_BENCH_HOUSES) / "sample";
    fs::remove_all(sample);
    const services::FixedClock clock(bench::today());
    store::createHouse(jet::Workspace(clock),
                       {.Ordner = sample.string(), .Jetzt = bench::today(), .mitBeispiel = true});
    return {{"large house", bench::preparedHouse(HERBERGO_BENCH_HOUSES, {}), large, 15, 30},
            {"sample house", sample.string(), {}, 5, 16}};
}

/// What the mouse costs: the pointer in a cell, from bar to bar, and a stay that is drawn by one cell and painted.
void measureMouse(const House& house) {
    constexpr int runs = 401;
    Desk desk(house.folder, house.settings);
    plan::MainWindow window(desk.form);
    show(window);
    auto& widget = *window.findChild<plan::PlanWidget*>(QStringLiteral("plan"));
    const auto move = [&](QPoint point, Qt::MouseButtons held) {
        QMouseEvent event(QEvent::MouseMove, point, widget.mapToGlobal(point), Qt::NoButton, held, {});
        QApplication::sendEvent(&widget, &event);
    };
    const Cells bars = cellsWithBars(desk.raster);
    const Cells free = freeCells(desk.raster);
    if (bars.size() < 2 || free.size() < 2) throw std::runtime_error("the house has no place to measure the mouse");
    const auto centre = [&](Cell cell) { return widget.places().cell(cell.line, cell.column).center(); };
    std::size_t step = 0;
    move(centre(bars[0]), {});
    printMicro("mouse move within a cell",
               measured(runs, [&] { move(centre(bars[0]) + QPoint(static_cast<int>(++step % 2), 0), {}); }), 0.1);
    const auto entered = measured(runs, [&] { move(centre(bars[++step * 37 % bars.size()]), {}); });
    printMicro("cell with a bar entered", entered, 2);
    const auto query = measured(runs, [&] { askPlainly(desk, bars[++step * 37 % bars.size()]); });
    std::printf("  its statements alone %.3f ms: %.2f times\n", query.processor, entered.processor / query.processor);
    window.findChild<QAbstractButton*>(QStringLiteral("optBelArt1"))->click();
    desk.form.MouseDown(free[0].line, free[0].column);
    if (!desk.form.AuswahlAktiv()) throw std::runtime_error("no stay is being drawn");
    printMicro("stay drawn by one cell and painted",
               measured(runs,
                        [&] {
                            move(centre(free[++step % 2]), Qt::LeftButton);
                            QApplication::processEvents();
                        }),
               5);
}

void measureStart(const House& house) {
    constexpr int runs = 11;
    const auto ours = bench::costOfRunning({"--show", house.folder, std::to_string(house.settings.AnzahlZimmer),
                                            std::to_string(house.settings.AnzahlTage)},
                                           runs);
    const auto empty = bench::costOfRunning({"--empty"}, runs);
    std::printf("%s: process start to painted plan %.0f ms, an empty window %.0f ms: %.2f times (target 2); "
                "peak memory %.0f MB, empty %.0f MB (target 120)\n",
                house.name, ours.milliseconds, empty.milliseconds, ours.milliseconds / empty.milliseconds,
                ours.megabytes, empty.megabytes);
}

/// What the measured processes do.
void showPlan(const std::vector<std::string>& arguments) {
    plan::PlanEinstellungen settings;
    settings.AnzahlZimmer = settings.SichtbareZeilen = std::stoi(arguments.at(2));
    settings.AnzahlTage = std::stoi(arguments.at(3));
    Desk desk(arguments.at(1), settings);
    plan::MainWindow window(desk.form);
    show(window);
}

void showEmpty() {
    QWidget window;
    show(window);
}

void run(const std::vector<std::string>& arguments) {
    if (!arguments.empty() && arguments[0] == "--empty") return showEmpty();
    if (!arguments.empty() && arguments[0] == "--show") return showPlan(arguments);
    for (const auto& house : houses()) {
        measure(house);
        measureMouse(house);
        measureStart(house);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // a desktop's folders are missing where nobody has logged on
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    QApplication application(argc, argv);
    if (arguments.empty() || arguments[0] != "--empty") qt::applyLook(application);
    try {
        run(arguments);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
