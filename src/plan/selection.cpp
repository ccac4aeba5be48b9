#include "plan/selection.h"

#include <algorithm>

namespace plan {

int Auswahlzeichnung::zeile() const {
    const int zeile = auswahl().Zeile - raster_->ErsteZeile() + 1;
    return zeile >= 1 && zeile <= raster_->Zimmerzeilen() ? zeile : 0;
}

Platz Auswahlzeichnung::platz() const {
    if (!raster_->AktiveAuswahl || zeile() == 0) return {};
    const auto spalteVon = [&](basic::Date tag) { return tag.dayNumber() - raster_->PlanStart().dayNumber() + 1; };
    const int von = std::max(spalteVon(auswahl().Von), 1);
    const int bis = std::min(spalteVon(auswahl().Bis), raster_->AnzahlTage());
    return von <= bis ? Platz{zeile(), von, bis} : Platz{};
}

void Auswahlzeichnung::begin(int AuswahlZeile, basic::Date AuswahlVon, int AuswahlArt, Farbe AuswahlFarbe) {
    clear();
    raster_->AktiveAuswahl = Auswahl{.Zeile = AuswahlZeile, .Von = AuswahlVon, .Bis = AuswahlVon, .Art = AuswahlArt};
    farbe_ = AuswahlFarbe;
    aktiv_ = true;
    repaint();
}

bool Auswahlzeichnung::isOwn(int spalte) const {
    const auto p = platz();
    return p.Zeile != 0 && spalte >= p.VonSpalte && spalte <= p.BisSpalte;
}

bool Auswahlzeichnung::extendTo(int spalte) {
    if (zeile() == 0) return false;
    // The last column may show a stay of the next line, from before the plan: it is in nobody's way.
    if (spalte == raster_->AnzahlTage() && raster_->Bild(raster_->Zelle(zeile(), spalte)).Überlauf) --spalte;
    // A quick pointer jumps over cells: the stay ends before the first one that is taken.
    int letzte = platz().BisSpalte;
    while (letzte < spalte && raster_->istFrei(raster_->Zelle(zeile(), letzte + 1)))
        ++letzte;
    if (letzte == 0) return false;
    unpaint();
    raster_->AktiveAuswahl->Bis = std::max(raster_->Datum(std::min(spalte, letzte)), auswahl().Von);
    repaint();
    return letzte >= spalte;
}

void Auswahlzeichnung::repaint() {
    const auto p = platz();
    if (p.Zeile == 0) return;
    for (int spalte = p.VonSpalte; spalte <= p.BisSpalte; ++spalte)
        raster_->fill(raster_->Zelle(p.Zeile, spalte), {.Fuellung = farbe_,
                                                        .ErsterTag = raster_->Datum(spalte) == auswahl().Von,
                                                        .LetzteNacht = spalte == p.BisSpalte});
}

void Auswahlzeichnung::unpaint() {
    const auto p = platz();
    if (p.Zeile == 0) return;
    for (int spalte = p.VonSpalte; spalte <= p.BisSpalte; ++spalte)
        raster_->unfill(raster_->Zelle(p.Zeile, spalte));
}

void Auswahlzeichnung::clear() {
    aktiv_ = false;
    if (!raster_->AktiveAuswahl) return;
    unpaint();
    raster_->AktiveAuswahl.reset();
}

} // namespace plan
