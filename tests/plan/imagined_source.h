#pragma once

#include "plan/grid.h"
#include "platform/jet/error.h"

#include <vector>

namespace plan {

inline basic::Date tag(int day, int month = 6) { return basic::Date::fromYmd(2026, month, day); }

/// A plan's rows as a test imagines them.
class GedachteQuelle final : public Planquelle {
public:
    std::vector<Markierung> rows;
    std::vector<masterdata::Feiertag> feiertage;
    bool kaputt = false;
    basic::Date gefragtVon;
    basic::Date gefragtBis;

    const std::vector<Markierung>& Reservierungen(basic::Date fensterstart, basic::Date fensterende) override {
        if (kaputt) throw jet::Error(3218, "Die Datei ist gesperrt.");
        gefragtVon = fensterstart;
        gefragtBis = fensterende;
        return rows;
    }
    std::vector<masterdata::Feiertag> Feiertage(basic::Date, basic::Date) override { return feiertage; }
};

struct Hausgröße {
    int zimmer = 3;
    int tage = 10;
    int sichtbar = 10;
};

inline std::vector<masterdata::tplZimmer> GedachteZimmer(int zimmer) {
    std::vector<masterdata::tplZimmer> all;
    for (int i = 1; i <= zimmer + 1; ++i) {
        masterdata::tplZimmer z;
        z.Zimmernummer = i;
        z.NeueNummer = i <= zimmer ? std::to_string(100 + i) : "Vorläufig";
        all.push_back(z);
    }
    return all;
}

/// A small plan from Monday, 1 June 2026, with today on that day. Cells of line n begin at (n - 1) x days + 1.
struct GedachterPlan {
    explicit GedachterPlan(Hausgröße größe = {}, PlanEinstellungen e = {})
        : raster(mit(e, größe), GedachteZimmer(größe.zimmer), quelle, clock) {}

    static PlanEinstellungen mit(PlanEinstellungen e, Hausgröße größe) {
        e.AnzahlZimmer = größe.zimmer;
        e.AnzahlTage = größe.tage;
        e.SichtbareZeilen = größe.sichtbar;
        return e;
    }
    void zeige(std::vector<Markierung> rows) {
        quelle.rows = std::move(rows);
        raster.subZeigeDatum(tag(1), raster.AnzahlTage());
    }
    /// Numbers of all cells that show a reservation.
    [[nodiscard]] std::vector<int> belegt() const {
        std::vector<int> zellen;
        for (int zelle = 0; zelle <= (raster.AnzahlZimmer() + 1) * raster.AnzahlTage(); ++zelle)
            if (raster.Tage(zelle).ID != 0) zellen.push_back(zelle);
        return zellen;
    }

    GedachteQuelle quelle;
    services::FixedClock clock{tag(1)};
    Planraster raster;
};

} // namespace plan
