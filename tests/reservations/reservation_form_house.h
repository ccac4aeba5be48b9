#pragma once

#include "reservations/reservation_form.h"
#include "start/settings_reader.h"
#include "store/rows.h"
#include "support/test_house.h"
#include "support/test_start.h"

#include <gmock/gmock.h>

namespace reservations {

using basic::Value;
using services::MsgResult;
using start::Fenster;
using start::Kollisionsweg;
using support::day;

constexpr auto kNichtGespeichert = "Die Reservierung konnte nicht gespeichert werden";

/// A house of four rooms and a waiting row, a guest, and a workstation on which the form is opened. Today is
/// 15.06.2026.
class ReservationForm : public testing::Test {
protected:
    ReservationForm() {
        s.g.dbHaupt = house.open("Lokal.mdb");
        s.g.dbArbeitsplatz = house.open("Herbergo.mdb");
        s.g.einstellungen = start::EinstellungenAnsehen(s.g.dbHaupt, s.g.dbArbeitsplatz);
        s.windows.vorhanden.insert(Fenster::Kollision);
        house.rooms(4);
        gast = house.guest({.LastName = "Müllerburg", .City = "Bremen", .Country = "Deutschland"});
    }

    [[nodiscard]] Formulardienste dienste() {
        return {.adressen = adressen, .planNeuLaden = [this] { ++neuGeladen; }};
    }
    [[nodiscard]] frmReservierung öffnen(const start::ReservierungAnfrage& anfrage) {
        return {s.g, dienste(), anfrage};
    }
    [[nodiscard]] frmReservierung öffnen(int id) { return öffnen(start::ReservierungAnfrage{.IDs = {id}}); }
    /// A new stay of the guest in room 2 in these days of June.
    [[nodiscard]] frmReservierung neu(int von = 20, int bis = 23) {
        return öffnen({.Zimmernummer = 2, .Von = day(von, 6), .Bis = day(bis, 6)});
    }
    /// Opens a new stay with its guest and stores it; its ID.
    int gespeichert(int von = 20, int bis = 23) {
        frmReservierung form = neu(von, bis);
        form.adresse.cboAdresse_Click(gast);
        form.cmdReservieren_Click();
        return form.ID();
    }
    int belegt(int zimmer, int von, int bis, const std::string& kürzel = {}, bool wartet = false) {
        return static_cast<int>(house.stay(
            {.Zimmernummer = zimmer, .Von = day(von, 6), .Bis = day(bis, 6), .Kürzel = kürzel, .Gelöscht = wartet}));
    }
    void imBlock(int id, int block = 1) {
        auto rows = house.db().OpenRecordset("tbBlockbuchung");
        store::addRow(rows, {{"IDBlockbuchung", block}, {"IDBelegung", id}});
    }
    void abgerechnet(int id) {
        house.db().Execute("UPDATE tblBelegung SET Abgerechnet = 1 WHERE ID = " + std::to_string(id));
    }
    [[nodiscard]] Value feld(const std::string& name, int id) {
        return house.value("SELECT " + name + " FROM tblBelegung WHERE ID = " + std::to_string(id));
    }
    void antworten(std::initializer_list<MsgResult> knöpfe) {
        for (const MsgResult knopf : knöpfe)
            s.dialogs.press(knopf);
    }
    /// Texts of the questions since the last call.
    std::vector<std::string> gefragt() {
        std::vector<std::string> texte;
        for (; gelesen < s.dialogs.asked().size(); ++gelesen)
            texte.push_back(s.dialogs.asked()[gelesen].text);
        return texte;
    }

    support::TestHouse house;
    support::TestStart s;
    addresses::Adressliste adressen{s.g.dbHaupt};
    std::int64_t gast = 0;
    int neuGeladen = 0;
    std::size_t gelesen = 0;
};

} // namespace reservations
