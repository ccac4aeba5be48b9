#pragma once

#include "plan/cells.h"
#include "plan/header.h"
#include "plan/plan_settings.h"
#include "plan/plan_source.h"
#include "platform/services/clock.h"

#include <optional>
#include <string>
#include <vector>

namespace plan {

/// The plan as a model: rooms down the side, days along the top, the waiting row as the last line.
///
/// Grid rows r run from 1 to AnzahlZimmer + 1. The screen shows the lines 1 to Zimmerzeilen() with the rooms from row
/// ErsteZeile on, and below them, whatever the scroll position, the waiting row. Cells are numbered by line:
/// (line - 1) x AnzahlTage + column, both from 1. Cell 0 is the template, which lies hidden under cell 1.
/// Lengths are in twips; left and top count from the upper left corner of cell 1.
class Planraster {
public:
    /// The settings are brought into their ranges. Source and clock must outlive the grid.
    Planraster(const PlanEinstellungen& einstellungen, std::vector<masterdata::tplZimmer> zimmer, Planquelle& quelle,
               const services::Clock& clock);

    /// Builds the grid for this many room rows and days: all cells free, scrolled to the top.
    void subGenTage(int Zeilen, int Tage, int Hoehe);
    /// The one entry point for showing the plan from a date. On a jet::Error the plan stays as it was.
    void subZeigeDatum(basic::Date Start, int Tage);
    /// Loads the bars. On a jet::Error no cell has changed.
    void subReservierungen(basic::Date Start, int Tage);
    /// Draws one reservation into the cells.
    void subMarkieren(const Markierung& m);
    /// Resets all cells to free ones, weekends in their colours.
    void subMarkierenWochenenden();
    /// The labels in front of the lines when `ErsteZeile` is the first row shown; the waiting row's is the last.
    [[nodiscard]] std::vector<Zimmerbeschriftung> SUBSetLabels(int ErsteZeile) const;
    /// Display name of a room by its number; the number itself where the house has no such row.
    [[nodiscard]] std::string Zimmername(int zimmernummer) const;
    /// Top of a line.
    [[nodiscard]] int fktTop(int Zeile) const;
    /// Left edge of a column.
    [[nodiscard]] static int fktLinks(int Spalte) { return (Spalte - 1) * Spaltenbreite; }

    static constexpr int Spaltenbreite = 270; ///< twips

    [[nodiscard]] const PlanEinstellungen& Einstellungen() const { return einstellungen_; }
    [[nodiscard]] int AnzahlZimmer() const { return einstellungen_.AnzahlZimmer; }
    [[nodiscard]] int AnzahlTage() const { return einstellungen_.AnzahlTage; }
    [[nodiscard]] int SichtbareZeilen() const { return einstellungen_.SichtbareZeilen; }
    [[nodiscard]] basic::Date PlanStart() const { return ansicht_.PlanStart; }
    /// Midnight of the day on which the plan was last shown.
    [[nodiscard]] basic::Date Heute() const { return ansicht_.Heute; }

    /// Lines with rooms on screen.
    [[nodiscard]] int Zimmerzeilen() const;
    /// The last line, that of the waiting row.
    [[nodiscard]] int Wartezeile() const { return Zimmerzeilen() + 1; }

    /// First grid row shown, from 1 to HöchsteErsteZeile().
    [[nodiscard]] int ErsteZeile() const { return ErsteZeile_; }
    /// Brings the row into its range; the cells are not reloaded.
    void setErsteZeile(int zeile);
    /// 1 when there is nothing to scroll.
    [[nodiscard]] int HöchsteErsteZeile() const;

    /// Cell 0 to (AnzahlZimmer + 1) x AnzahlTage.
    [[nodiscard]] const tplZelle& Tage(int Zelle) const { return Tage_[static_cast<std::size_t>(Zelle)]; }
    [[nodiscard]] const Zellbild& Bild(int Zelle) const { return Bilder_[static_cast<std::size_t>(Zelle)]; }
    [[nodiscard]] int Zelle(int Zeile, int Spalte) const { return (Zeile - 1) * AnzahlTage() + Spalte; }
    [[nodiscard]] basic::Date Datum(int Spalte) const { return PlanStart() + (Spalte - 1); }
    /// Fill of a free cell of the column.
    [[nodiscard]] Farbe FreieFarbe(int Spalte) const {
        return ansicht_.FreieFarben[static_cast<std::size_t>(Spalte - 1)];
    }
    /// Is the fill one of the three free colours? A bar in such a colour counts as free.
    [[nodiscard]] bool istFrei(int Zelle) const;
    [[nodiscard]] std::vector<Balken> BalkenDerZeile(int Zeile) const;

    [[nodiscard]] const std::vector<Kopfspalte>& Kopf() const { return ansicht_.Kopf; }
    [[nodiscard]] const std::vector<Monatsname>& Monate() const { return ansicht_.Monate; }
    /// Colours of the lines 0 to AnzahlTage.
    [[nodiscard]] const std::vector<Farbe>& Linien() const { return ansicht_.Linien; }
    [[nodiscard]] const std::vector<tplFeiertag>& Feiertage() const { return ansicht_.Feiertage; }
    /// Name of the day's holiday if it lies in the window, else empty.
    [[nodiscard]] std::string Feiertag(basic::Date datum) const;

    /// IDs of the rows of the current load.
    [[nodiscard]] const std::vector<int>& PlanIDs() const { return PlanIDs_; }
    [[nodiscard]] int AnzahlReservierungen() const { return static_cast<int>(PlanIDs_.size()); }

    /// Shown again after each load, until it is reset.
    std::optional<Auswahl> AktiveAuswahl;
    /// Fills a free cell, for the selection; its record stays as it is.
    void fill(int Zelle, const Zellbild& bild) { Bilder_[static_cast<std::size_t>(Zelle)] = bild; }
    /// Gives a filled cell back the colour of a free one on its day.
    void unfill(int Zelle);

    /// A new heading of the rooms.
    void setZimmerspalte(const std::string& text) { einstellungen_.Zimmerspalte = text; }

private:
    /// All that follows from PlanStart besides the cells.
    struct Ansicht {
        basic::Date PlanStart;
        basic::Date Heute;
        std::vector<Kopfspalte> Kopf;
        std::vector<Monatsname> Monate;
        std::vector<tplFeiertag> Feiertage;
        std::vector<Farbe> Linien;
        std::vector<Farbe> FreieFarben; ///< by column
    };
    struct Zellbereich {
        int Zeile;
        int Start;
        int Ende; ///< included; before Start: nothing to draw
        bool BeginntVorher;
        bool EndetImFenster;
    };

    [[nodiscard]] Ansicht AnsichtAb(basic::Date start, int tage,
                                    const std::vector<masterdata::Feiertag>& feiertage) const;
    [[nodiscard]] Farbe FreieFarbeAm(basic::Date tag) const;
    [[nodiscard]] std::optional<int> ZeileFür(const Markierung& m) const;
    [[nodiscard]] Zellbereich BereichFür(const Markierung& m, int zeile) const;
    [[nodiscard]] Farbe FarbeFür(const Markierung& m) const;
    void zeichneAuswahl();
    [[nodiscard]] bool belegt(int zelle, int spalte) const;
    [[nodiscard]] bool gleicherBalken(int zelle, int andere) const;
    [[nodiscard]] Balken BalkenAb(int zeile, int spalte) const;

    PlanEinstellungen einstellungen_;
    std::vector<masterdata::tplZimmer> Zimmer_;
    Planquelle* quelle_;
    const services::Clock* clock_;
    Ansicht ansicht_;
    std::vector<tplZelle> Tage_;
    std::vector<Zellbild> Bilder_;
    std::vector<int> PlanIDs_;
    int ErsteZeile_ = 1;
};

} // namespace plan
