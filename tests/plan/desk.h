#pragma once

#include "plan/main_form.h"
#include "plan/plan_source.h"
#include "support/scripted_dialogs.h"
#include "support/scripted_windows.h"
#include "support/test_house.h"

#include <string>
#include <utility>
#include <vector>

namespace plan {

inline constexpr Farbe Auswahlgelb = 0x00F0F0;

/// The plan of a house with data files and the user in front of it. It begins on Saturday, 13.06.2026; today is Monday,
/// the third column. Types 1 and 2 can be chosen, 4 is "Angebot".
class Tisch {
public:
    struct Größe {
        int zimmer = 3;
        int tage = 14;
        int sichtbar = 10;
    };

    Tisch() : Tisch(Größe{}) {}
    explicit Tisch(Größe größe) : größe_(größe) {
        house.rooms(größe.zimmer);
        windows.vorhanden.insert(start::Fenster::Reservierung);
        windows.beiReservierung = [this](const start::ReservierungAnfrage& anfrage) {
            anfragen.push_back(anfrage);
            if (imFormular) imFormular();
            return neueID;
        };
    }

    /// Shows what stands in the files.
    frmMain& form() {
        if (!form_) {
            form_.emplace(raster(), house.clock(), umgebung());
            form_->Form_Load();
        }
        return *form_;
    }
    Planraster& raster() {
        if (!raster_) {
            PlanEinstellungen e;
            e.AnzahlZimmer = größe_.zimmer;
            e.AnzahlTage = größe_.tage;
            e.SichtbareZeilen = größe_.sichtbar;
            e.Farben[2] = Auswahlgelb;
            raster_.emplace(e, masterdata::ZimmerEinlesen(house.db()), source_, house.clock());
        }
        return *raster_;
    }
    static int spalte(int tag) { return tag - 12; }

    /// Type 2 is chosen in the frame.
    void wähleArt() { form().optBelArt_Click(1); }
    void ziehe(int zeile, int von, int bis) {
        form().MouseDown(zeile, von);
        for (int i = von; i != bis; i += bis > von ? 1 : -1)
            form().MouseMove(zeile, i + (bis > von ? 1 : -1), Maustaste::Links);
    }
    [[nodiscard]] bool gemalt(int zeile, int spalte) {
        return raster().Bild(raster().Zelle(zeile, spalte)).Fuellung == Auswahlgelb;
    }
    [[nodiscard]] bool frei(int zeile, int spalte) { return raster().istFrei(raster().Zelle(zeile, spalte)); }

    support::TestHouse house;
    support::ScriptedDialogs dialogs;
    support::ScriptedWindows windows;
    std::vector<start::ReservierungAnfrage> anfragen;
    std::function<void()> imFormular; ///< what happens while the form is open
    int neueID = 0;                   ///< what it gives back
    int aktualisieren = 0;            ///< the refresh flag
    std::vector<std::pair<Planbeschriftung, std::string>> beschriftet;
    bool nichtSchreibbar = false; ///< nothing can be kept
    std::vector<start::Fenster> geöffnet;
    Umgebung mehr = {}; ///< what is not filled in here

private:
    Umgebung umgebung() {
        Umgebung u = mehr;
        u.dialogs = &dialogs;
        u.windows = &windows;
        u.db = &house.db();
        u.Aktualisieren = &aktualisieren;
        u.Waehrung = "EUR";
        u.öffnen = [this](start::Fenster fenster) { geöffnet.push_back(fenster); };
        u.Beschriften = [this](Planbeschriftung was, const std::string& text) {
            if (nichtSchreibbar) throw jet::Error(3218, "Datensatz ist momentan gesperrt.");
            beschriftet.emplace_back(was, text);
        };
        return u;
    }

    Größe größe_;
    PlanAusDatenbank source_{house.db()};
    std::optional<Planraster> raster_;
    std::optional<frmMain> form_;
};

} // namespace plan
