#include "store/postal_codes.h"

#include "app/german_call.h"
#include "platform/jet/workspace.h"
#include "platform/services/clock.h"
#include "store/database_files.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongCall = 2;
constexpr std::size_t kToldLines = 10;

struct Call {
    std::string house;
    std::string list;
    bool replace = false;
};

/// None for what is no readable file.
std::optional<std::string> bytesOf(const std::string& path) {
    std::error_code missing;
    if (!std::filesystem::is_regular_file(path, missing)) return std::nullopt;
    const std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    if (!file) return std::nullopt;
    return bytes.str();
}

void tellBadLines(const std::vector<int>& lines) {
    if (lines.empty()) return;
    const bool one = lines.size() == 1;
    std::cerr << "herbergo-plz: " << lines.size() << (one ? " Zeile ist" : " Zeilen sind")
              << " keine Angabe 'PLZ;Ort' und " << (one ? "wurde" : "wurden") << " übergangen:";
    for (std::size_t i = 0; i < std::min(lines.size(), kToldLines); ++i)
        std::cerr << ' ' << lines[i];
    std::cerr << (lines.size() > kToldLines ? " ...\n" : "\n");
}

int fail(const std::string& reason) {
    std::cerr << "herbergo-plz: " << reason << " Es wurde nichts verändert.\n";
    return kFailed;
}

int load(const Call& call) {
    const auto bytes = bytesOf(call.list);
    if (!bytes) return fail("Die Datei '" + call.list + "' ist nicht zu lesen.");
    const store::PostalCodeList list = store::readPostalCodes(*bytes);
    tellBadLines(list.badLines);
    if (list.rows.empty()) return fail("In der Datei '" + call.list + "' steht keine Angabe 'PLZ;Ort'.");
    try {
        const services::SystemClock clock;
        jet::Database file = jet::Workspace(clock).OpenDatabase(store::joinPath(call.house, store::kHolidayFile), false,
                                                                false, store::openConnect());
        const auto existing = call.replace ? store::ExistingCodes::Replace : store::ExistingCodes::Keep;
        const int added = store::storePostalCodes(file, list.rows, existing);
        std::cout << added << " von " << list.rows.size() << " Orten aufgenommen; die anderen waren schon da.\n";
        return kDone;
    } catch (const jet::Error& error) {
        return fail(error.text());
    }
}

} // namespace

int main(int argc, char** argv) {
    CLI::App programm{"Nimmt Postleitzahlen in ein Haus auf.", "herbergo-plz"};
    app::makeGerman(programm);
    Call call;
    programm.add_option("HAUS", call.house, "Ordner des Hauses")->required();
    programm.add_option("LISTE", call.list, "Datei mit einer Zeile 'PLZ;Ort' für jeden Ort")->required();
    programm.add_flag("--ersetzen", call.replace, "Die Orte des Hauses vorher löschen");
    try {
        programm.parse(argc, argv);
    } catch (const CLI::CallForHelp& help) {
        return programm.exit(help);
    } catch (const CLI::ParseError&) {
        std::cerr << "herbergo-plz: Aufruf mit Haus und Liste: herbergo-plz HAUS LISTE [--ersetzen]\n";
        return kWrongCall;
    }
    return load(call);
}
