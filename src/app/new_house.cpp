#include "store/new_house.h"

#include "app/german_call.h"
#include "platform/services/clock.h"

#include <iostream>

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongCall = 2;

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
    CLI::App programm{"Legt in einem Ordner die Dateien eines neuen Hauses an.", "herbergo-neu"};
    app::makeGerman(programm);
    store::NewHouse house;
    programm.add_option("ORDNER", house.Ordner, "Ordner für die Dateien; er wird angelegt, wenn er fehlt")->required();
    programm.add_flag("--beispiel", house.mitBeispiel, "Mit zehn Zimmern, erfundenen Gästen und Aufenthalten um heute");
    try {
        programm.parse(argc, argv);
    } catch (const CLI::CallForHelp& help) {
        return programm.exit(help);
    } catch (const CLI::ParseError&) {
        std::cerr << "herbergo-neu: Aufruf mit einem Ordner: herbergo-neu ORDNER [--beispiel]\n";
        return kWrongCall;
    }
    return createHouse(house);
}
