#include "support/house.h"

#include "platform/jet/workspace.h"
#include "store/database_files.h"
#include "store/new_house.h"
#include "store/rows.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <random>
#include <vector>

namespace bench {

namespace {

namespace fs = std::filesystem;

struct Stay {
    int room;
    basic::Date von;
    basic::Date bis;
    int guest;
};

/// The stays of one room from the last to the first.
void addRoom(std::vector<Stay>& stays, int room, int count, int addresses) {
    std::mt19937 random(static_cast<unsigned>(room));
    const auto pick = [&](int from, int to) {
        return from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1));
    };
    basic::Date bis = today() + 120;
    for (int i = 0; i < count; ++i) {
        const basic::Date von = bis - pick(1, 6);
        stays.push_back({.room = room, .von = von, .bis = bis, .guest = pick(1, addresses)});
        bis = von - pick(0, 1);
    }
}

/// In the order in which a house would have entered them.
std::vector<Stay> staysOf(HouseSize size) {
    std::vector<Stay> stays;
    stays.reserve(static_cast<std::size_t>(size.stays));
    for (int room = 1; room <= houseRooms; ++room)
        addRoom(stays, room, size.stays / houseRooms + (room <= size.stays % houseRooms ? 1 : 0), size.addresses);
    std::ranges::stable_sort(stays, {}, &Stay::von);
    return stays;
}

/// Adds rows 0 to count - 1, some thousands in one transaction.
void addRows(jet::Database& house, const std::string& table, int count,
             const std::function<void(jet::Recordset&, int)>& add) {
    constexpr int portion = 20'000;
    for (int begin = 0; begin < count; begin += portion) {
        jet::Transaction transaction(house, table);
        // None of the rows that are there: the recordset would read them all.
        jet::Recordset rows = house.OpenRecordset("SELECT * FROM " + table + " WHERE 1 = 0");
        for (int i = begin; i < std::min(count, begin + portion); ++i)
            add(rows, i);
        transaction.Commit();
    }
}

void addRooms(jet::Database& house) {
    addRows(house, "tbZimmernummern", houseRooms, [](jet::Recordset& rows, int i) {
        store::addRow(rows, {{"Zimmernummer", i + 1},
                             {"NeueNummer", std::to_string(101 + i)},
                             {"Bemerkungen", "Doppelzimmer mit Bad"},
                             {"AnzahlGästeDefault", 2},
                             {"PreisDefault", 80.0},
                             {"PreisHauptsaison", 120.0},
                             {"PreisNebensaison", 70.0}});
    });
    addRows(house, "tbZimmernummern", 1, [](jet::Recordset& rows, int) {
        store::addRow(rows, {{"Zimmernummer", houseRooms + 1}, {"NeueNummer", "Vorläufig"}});
    });
}

/// Summers and winters without a gap.
void addSeasons(jet::Database& house) {
    addRows(house, "tbSaisonzeiten", 40, [](jet::Recordset& rows, int i) {
        const bool summer = i % 2 == 0;
        const int year = 2015 + i / 2;
        store::addRow(rows, {{"Saisonbezeichnung", summer ? "Hauptsaison" : "Nebensaison"},
                             {"Start", basic::Date::fromYmd(year, summer ? 5 : 10, 1)},
                             {"Ende", basic::Date::fromYmd(summer ? year : year + 1, summer ? 10 : 5, 1)}});
    });
}

void addTypes(jet::Database& house) {
    house.Execute("DELETE FROM tbBelegArten");
    const std::vector<std::string> names = {"Frei",  "Reservierung", "Angebot", "Stammgast", "Gruppe",
                                            "Messe", "Umbau",        "Monteur", "Privat"};
    addRows(house, "tbBelegArten", static_cast<int>(names.size()), [&](jet::Recordset& rows, int i) {
        store::addRow(rows, {{"BelegungsID", i}, {"BelegungsArt", names[static_cast<std::size_t>(i)]}});
    });
}

void addAddresses(jet::Database& house, int count) {
    addRows(house, "Address", count, [](jet::Recordset& rows, int i) {
        store::addRow(rows, {{"FirstName", "Vorname" + std::to_string(i % 977)},
                             {"LastName", "Müller-" + std::to_string(i)},
                             {"Address", "Bahnhofstraße " + std::to_string(i % 120)},
                             {"PostalCode", std::to_string(10'000 + i % 90'000)},
                             {"City", "Neustadt"},
                             {"Country", "Deutschland"}});
    });
}

void addStay(jet::Recordset& rows, const Stay& stay, int number) {
    const int nights = static_cast<int>(stay.bis - stay.von);
    store::addRow(rows, {{"Zimmernummer", stay.room},
                         {"Von", stay.von},
                         {"Bis", stay.bis},
                         {"GastID", stay.guest},
                         {"Kürzel", "Müller" + std::to_string(number)},
                         {"Info", "ruhiges Zimmer"},
                         {"Belegungsart", 1 + number % 8},
                         {"Gelöscht", number % 100 == 0},
                         {"Checked", stay.bis < today()},
                         {"AnzahlGäste", 1 + number % 3},
                         {"Anz_Kinder", 0},
                         {"AnzahlÜbernachtungen", nights},
                         {"PreisProNacht", 80.0},
                         {"Preis", 80.0 * nights},
                         {"BelegNummer", number + 1},
                         {"BelegNummer_eigen", "R" + std::to_string(number + 1)},
                         {"Abgerechnet", stay.bis < today() ? 1 : 0},
                         {"WerErstellt", "Empfang"},
                         {"WannErstellt", stay.von - 30},
                         {"Zahlart", "Bar"}});
}

void fill(const std::string& folder, HouseSize size) {
    const services::FixedClock clock(today());
    const jet::Workspace workspace(clock);
    store::createHouse(workspace, {.Ordner = folder, .Jetzt = today()});
    jet::Database house = workspace.OpenDatabase(folder + "/Lokal.mdb", false, false, store::openConnect());
    addRooms(house);
    addTypes(house);
    addSeasons(house);
    addAddresses(house, size.addresses);
    const std::vector<Stay> stays = staysOf(size);
    addRows(house, "tblBelegung", size.stays,
            [&](jet::Recordset& rows, int i) { addStay(rows, stays[static_cast<std::size_t>(i)], i); });
}

} // namespace

basic::Date today() { return basic::Date::fromYmd(2026, 6, 15); }

std::string preparedHouse(const std::string& cache, HouseSize size) {
    const fs::path folder = fs::path(cache) / (std::to_string(size.stays) + "-" + std::to_string(size.addresses));
    const fs::path finished = folder / "complete";
    if (fs::exists(finished)) return folder.string();
    std::cerr << "Making a house of " << size.stays << " stays in " << folder.string() << "\n";
    fs::remove_all(folder);
    fs::create_directories(folder);
    fill(folder.string(), size);
    std::ofstream(finished) << "complete\n";
    return folder.string();
}

} // namespace bench
