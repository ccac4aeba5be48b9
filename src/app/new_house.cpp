#include "store/new_house.h"
#include "platform/services/clock.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongCall = 2;

void makeGerman(CLI::App& app) {
    app.option_defaults()->group("Optionen");
    app.set_help_flag("--help,-h", "Zeigt diese Hilfe")->group("Optionen");
    const auto formatter = app.get_formatter();
    formatter->label("Usage", "Aufruf");
    formatter->label("OPTIONS", "OPTIONEN");
    formatter->label("Positionals", "Argumente");
    formatter->label("REQUIRED", "(notwendig)");
    formatter->label("TEXT", "");
}

int createHouse(const store::NewHouse& house) {
    try {
        const services::SystemClock clock;
        store::NewHouse wanted = house;
        wanted.Jetzt = clock.now();
        store::createHouse(jet::Workspace(clock), wanted);
        std::cout << "Das Haus wurde im Ordner '" << house.Ordner << "' angelegt.\n";
        return kDone;
    } catch (const jet::Error& error) {
        std::cerr << "herbergo-neu: " << error.text() << '\n';
    } catch (const std::exception& error) {
        std::cerr << "herbergo-neu: Das Haus konnte nicht angelegt werden: " << error.what() << '\n';
    }
    return kFailed;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{"Legt in einem Ordner die Dateien eines neuen Hauses an.", "herbergo-neu"};
    makeGerman(app);
    store::NewHouse house;
    app.add_option("ORDNER", house.Ordner, "Ordner für die Dateien; er wird angelegt, wenn er fehlt")->required();
    app.add_flag("--beispiel", house.mitBeispiel, "Mit zehn Zimmern, erfundenen Gästen und Aufenthalten um heute");
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& help) {
        return app.exit(help);
    } catch (const CLI::ParseError&) {
        std::cerr << "herbergo-neu: Aufruf mit einem Ordner: herbergo-neu ORDNER [--beispiel]\n";
        return kWrongCall;
    }
    return createHouse(house);
}
