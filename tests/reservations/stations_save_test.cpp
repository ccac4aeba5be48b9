#include "reservations/reservation_form.h"
#include "support/station.h"
#include "support/test_house.h"
#include "support/workstation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <sstream>
#include <thread>

namespace {

using support::Station;

constexpr int rooms = 10;
constexpr int days = 60;
constexpr int stations = 8;
constexpr int kills = 12;
constexpr int attempts = 40;
constexpr auto networkMessage = "Es sind Konflikte im Netzwerkbetrieb aufgetreten";

/// A stay that a station tries to save.
struct Attempt {
    std::string Kürzel;
    int Zimmer = 0;
    int Von = 0; ///< days after the first one
    int Bis = 0;

    [[nodiscard]] std::string line(char kind) const {
        return std::string(1, kind) + " " + Kürzel + " " + std::to_string(Zimmer) + " " + std::to_string(Von) + " " +
               std::to_string(Bis);
    }
};

basic::Date dayOf(int number) { return support::day(1, 7) + number; }

bool save(support::Workstation& station, addresses::Adressliste& guests, const Attempt& attempt) {
    reservations::frmReservierung form(
        station.g, {.adressen = guests},
        {.Zimmernummer = attempt.Zimmer, .Von = dayOf(attempt.Von), .Bis = dayOf(attempt.Bis), .Art = 1});
    form.adresse.cboAdresse_Click(1);
    form.fldK_rzel.Text = attempt.Kürzel;
    form.fldK_rzel_Change();
    return form.Reserv();
}

/// Tells what it tries (V), what was saved (S), what was refused (R), what the test after the write took away (N).
void saveStays(const support::TempFolder& own, const std::string& linkFile, int number, support::Channel& channel) {
    support::Workstation station(own, linkFile);
    station.windows.vorhanden.insert(start::Fenster::Kollision);
    station.windows.beiKollision = [](const auto&) { return start::KollisionErgebnis{}; };
    addresses::Adressliste guests(station.g.dbHaupt);
    std::mt19937 random(static_cast<unsigned>(number));
    const auto upTo = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int i = 0; i < attempts; ++i) {
        Attempt attempt{.Kürzel = "S" + std::to_string(number) + "x" + std::to_string(i), .Zimmer = 1 + upTo(rooms)};
        attempt.Von = upTo(days - 4);
        attempt.Bis = attempt.Von + 1 + upTo(4);
        channel.say(attempt.line('V'));
        station.dialogs.told.clear();
        const bool saved = save(station, guests, attempt);
        const bool removed = !station.dialogs.told.empty() && station.dialogs.told.back().starts_with(networkMessage);
        channel.say(attempt.line(saved ? 'S' : removed ? 'N' : 'R'));
    }
}

struct Reports {
    std::map<std::string, Attempt> saved;
    std::set<std::string> refused;
    std::set<std::string> open; ///< tried by a station that was killed before it could tell
    int removed = 0;

    void hearAll(support::Channel& channel) {
        std::optional<Attempt> trying;
        while (const auto line = channel.hear()) {
            std::istringstream words(*line);
            char kind = 0;
            Attempt attempt;
            words >> kind >> attempt.Kürzel >> attempt.Zimmer >> attempt.Von >> attempt.Bis;
            trying = kind == 'V' ? std::optional(attempt) : std::nullopt;
            if (kind == 'S') saved[attempt.Kürzel] = attempt;
            if (kind == 'R' || kind == 'N') refused.insert(attempt.Kürzel);
            removed += kind == 'N' ? 1 : 0;
        }
        if (trying) open.insert(trying->Kürzel);
    }
};

/// The short names of the stays in each room on each night.
using Nights = std::map<std::pair<int, int>, std::vector<std::string>>;

/// Every row is one that a station reported as saved, or the last one that a killed station tried.
Nights expectRows(jet::Database& shared, const Reports& reports) {
    Nights nights;
    std::set<std::string> seen;
    jet::Recordset rows = shared.OpenRecordset("SELECT Kürzel, Zimmernummer, Von, Bis FROM tblBelegung");
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::string name = rows.At(0).textOr();
        const Attempt row{name, static_cast<int>(rows.At(1).longOr()), static_cast<int>(rows.At(2).dateOr() - dayOf(0)),
                          static_cast<int>(rows.At(3).dateOr() - dayOf(0))};
        EXPECT_TRUE(seen.insert(name).second) << name << " is there twice";
        EXPECT_FALSE(reports.refused.contains(name)) << name << " was refused and is there";
        const auto saved = reports.saved.find(name);
        EXPECT_TRUE(saved != reports.saved.end() || reports.open.contains(name)) << name;
        const std::string reported = saved == reports.saved.end() ? row.line('S') : saved->second.line('S');
        EXPECT_EQ(reported, row.line('S'));
        for (int night = row.Von; night < row.Bis; ++night)
            nights[{row.Zimmer, night}].push_back(name);
    }
    for (const auto& [name, attempt] : reports.saved)
        EXPECT_TRUE(seen.contains(name)) << name << " was reported as saved and is gone";
    return nights;
}

/// A killed station can leave one row that it had no time to test; nobody else may share a night.
int doubleNights(const Nights& nights, const Reports& reports) {
    std::set<std::string> guilty;
    for (const auto& [place, names] : nights) {
        if (names.size() < 2) continue;
        const auto untested =
            std::ranges::find_if(names, [&](const auto& name) { return reports.open.contains(name); });
        EXPECT_NE(names.end(), untested) << "room " << place.first << " night " << place.second << ": " << names[0]
                                         << " and " << names[1];
        if (untested != names.end()) guilty.insert(*untested);
    }
    return static_cast<int>(guilty.size());
}

} // namespace

TEST(SaveFromManyStations, EveryReportedStayIsThereOnceAndNoRoomIsTakenTwice) {
    support::TestHouse house;
    house.rooms(rooms);
    ASSERT_EQ(1, house.guest({.LastName = "Krause", .FirstName = "Ida", .Country = "Deutschland"}));
    house.db().Close();
    const std::string linkFile = house.file("Lokal.mdb");

    const auto began = std::chrono::steady_clock::now();
    int number = 0;
    // Made here, because a killed station cannot tidy up.
    std::vector<std::unique_ptr<support::TempFolder>> folders;
    const auto newStation = [&] {
        ++number;
        folders.push_back(std::make_unique<support::TempFolder>(support::TempFolder::Place::Memory));
        return std::make_unique<Station>([&, own = number, folder = folders.back().get()](support::Channel& channel) {
            saveStays(*folder, linkFile, own, channel);
        });
    };
    std::vector<std::unique_ptr<Station>> running;
    for (int i = 0; i < stations; ++i)
        running.push_back(newStation());
    Reports reports;
    std::mt19937 random(20260615);
    for (int i = 0; i < kills; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(30 + random() % 250));
        auto& victim = running[random() % stations];
        victim->kill();
        reports.hearAll(victim->channel());
        victim->wait();
        victim = newStation();
    }
    for (auto& station : running) {
        reports.hearAll(station->channel());
        EXPECT_EQ(0, station->wait());
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - began;

    for (const char* name : {"Zentral.mdb", "Herbergo.mdb"})
        EXPECT_NO_THROW(jet::RepairDatabase(house.workspace(), house.file(name), store::openConnect())) << name;
    jet::Database shared = house.open("Zentral.mdb");
    const Nights nights = expectRows(shared, reports);
    EXPECT_LE(doubleNights(nights, reports), kills);
    EXPECT_GT(reports.saved.size(), 50U);
    EXPECT_GT(reports.refused.size(), 50U);
    std::cout << reports.saved.size() << " saved, " << reports.refused.size() << " refused, of these "
              << reports.removed << " taken back after the write; " << reports.open.size() << " unfinished by a kill; "
              << static_cast<double>(reports.saved.size() + reports.refused.size()) / seconds.count()
              << " saves a second\n";
}
