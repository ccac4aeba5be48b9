#include "plan/invented_stays.h"

#include "platform/basic/format.h"

#include <algorithm>
#include <array>
#include <random>
#include <string_view>

namespace plan {

namespace {

constexpr std::array<std::string_view, 16> Namen = {"Albers",   "Brandt", "Dierks",   "Ebeling", "Friedrich", "Gärtner",
                                                    "Hinrichs", "Jansen", "Köster",   "Lüders",  "Möller",    "Nolte",
                                                    "Petersen", "Röhrig", "Schröder", "Wübben"};
constexpr std::array<std::string_view, 6> Vornamen = {"Anke", "Bernd", "Claudia", "Dirk", "Elke", "Jörg"};
constexpr int Wartende = 32; ///< one stay in so many waits for a firm room
constexpr int AngebotsID = 4;

template <std::size_t n>
std::string pick(const std::array<std::string_view, n>& from, std::mt19937& random) {
    return std::string(from[random() % n]);
}

Markierung Gast(int id, std::mt19937& random) {
    Markierung m;
    m.ID = m.GastID = id;
    m.Firstname = pick(Vornamen, random);
    m.Lastname = pick(Namen, random);
    m.Kürzel = m.Lastname + "_" + m.Firstname;
    m.BelegungsID = static_cast<int>(random() % AngebotsID) + 1;
    m.Angebot = m.BelegungsID == AngebotsID;
    m.AnzahlGäste = static_cast<int>(random() % 3) + 1;
    return m;
}

} // namespace

ErfundeneBelegung::ErfundeneBelegung(int rooms, int days, int stays, basic::Date start) {
    std::mt19937 random(1);
    const int perRoom = rooms > 0 ? (stays + rooms - 1) / rooms : 0;
    const auto slotStart = [&](int slot) { return start + (slot * (days + 7) / std::max(perRoom, 1) - 7); };
    for (int i = 0; i < stays && rooms > 0; ++i) {
        auto m = Gast(i + 1, random);
        const int slot = i / rooms;
        m.Zimmernummer = i % rooms + 1;
        m.Von = slotStart(slot) + static_cast<int>(random() % 2);
        m.Bis = std::max(slotStart(slot + 1) - static_cast<int>(random() % 2), m.Von + 1);
        m.Gelöscht = random() % Wartende == 0;
        m.Checked = !m.Gelöscht && !m.Angebot && m.Von <= start + 2 && m.Bis > start + 2;
        all_.push_back(std::move(m));
    }
}

const std::vector<Markierung>& ErfundeneBelegung::Reservierungen(basic::Date fensterstart, basic::Date fensterende) {
    rows_.clear();
    for (const auto& m : all_)
        if (m.Von <= fensterende && m.Bis >= fensterstart) rows_.push_back(m);
    return rows_;
}

std::vector<masterdata::Feiertag> ErfundeneBelegung::Feiertage(basic::Date, basic::Date) { return {}; }

std::vector<masterdata::tplZimmer> ErfundeneZimmer(int rooms) {
    std::vector<masterdata::tplZimmer> zimmer;
    for (int i = 0; i < rooms; ++i) {
        masterdata::tplZimmer z;
        z.Zimmernummer = i + 1;
        z.NeueNummer = std::to_string((i / 10 + 1) * 100 + i % 10 + 1);
        z.Bemerkungen = i % 2 == 0 ? "Doppelzimmer mit Bad" : "Einzelzimmer mit Dusche";
        zimmer.push_back(z);
    }
    masterdata::tplZimmer warten;
    warten.Zimmernummer = rooms + 1;
    warten.NeueNummer = "Vorläufig";
    zimmer.push_back(warten);
    return zimmer;
}

} // namespace plan
