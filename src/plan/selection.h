#pragma once

#include "plan/grid.h"

namespace plan {

/// The days of the plan that something covers: one line, both columns included. Line 0: nothing.
struct Platz {
    int Zeile = 0;
    int VonSpalte = 0;
    int BisSpalte = 0;

    bool operator==(const Platz&) const = default;
};

/// A new stay while it is drawn on the grid: from its arrival to the day under the pointer, in the row in which it
/// began. Ends at the last free cell before another stay.
class Auswahlzeichnung {
public:
    /// The grid must outlive it.
    explicit Auswahlzeichnung(Planraster& raster) : raster_(&raster) {}

    /// The button is held and the stay is growing.
    [[nodiscard]] bool AuswahlAktiv() const { return aktiv_; }
    /// Only while something is drawn.
    [[nodiscard]] const Auswahl& auswahl() const { return *raster_->AktiveAuswahl; }
    /// Where it is on the screen now.
    [[nodiscard]] Platz platz() const;

    void begin(int AuswahlZeile, basic::Date AuswahlVon, int AuswahlArt, Farbe AuswahlFarbe);
    /// The pointer has come to this column. False when another stay lies before it: the drawn one ends there.
    bool extendTo(int spalte);
    /// After a load the cells show the stay again.
    void repaint();
    /// The button is up: the stay grows no more, but stays on the screen.
    void release() { aktiv_ = false; }
    /// Nothing is drawn any more; its cells are free again.
    void clear();

private:
    [[nodiscard]] int zeile() const;
    [[nodiscard]] bool isOwn(int spalte) const;
    void unpaint();

    Planraster* raster_;
    bool aktiv_ = false;
    Farbe farbe_ = 0;
};

} // namespace plan
