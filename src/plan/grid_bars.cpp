#include "plan/grid.h"

#include "platform/basic/format.h"

#include <algorithm>

namespace plan {

namespace {

/// Day numbers, so that a time of day in a stored date shifts no bar.
int Tagesabstand(basic::Date von, basic::Date bis) { return bis.dayNumber() - von.dayNumber(); }

/// A stored date may lie outside the calendar; such a stay has no place on the plan.
bool imKalender(basic::Date datum) {
    constexpr double ErsterTag = -657434; // 1.1.100
    constexpr double NachLetztemTag = 2958466;
    return datum.serial() >= ErsterTag && datum.serial() < NachLetztemTag;
}

void merkeWeitereIDs(tplZelle& zelle, const Markierung& m) {
    const auto id = std::to_string(m.ID);
    if (m.Gelöscht && zelle.WeitereIDs.empty()) zelle.WeitereIDs = id;
    if (zelle.ID <= 0) return;
    if (zelle.WeitereIDs.empty()) zelle.WeitereIDs = std::to_string(zelle.ID);
    zelle.WeitereIDs += "," + id;
}

void fülle(tplZelle& zelle, const Markierung& m, const std::string& von, const std::string& bis) {
    merkeWeitereIDs(zelle, m);
    zelle.ID = m.ID;
    zelle.GastID = m.GastID;
    zelle.Vorname = m.Firstname;
    zelle.Nachname = m.Lastname;
    zelle.ZimmerName = m.NeueNummer;
    zelle.IDAdrRechnung = m.IDAdressRechnung;
    zelle.Von = von;
    zelle.Bis = bis;
    zelle.Kuerzel = m.Kürzel;
    zelle.Gaeste = m.AnzahlGäste;
    zelle.Checked = m.Checked;
    zelle.Warteposition = m.Gelöscht;
    zelle.Angebot = m.Angebot || m.Gelöscht;
}

} // namespace

std::optional<int> Planraster::ZeileFür(const Markierung& m) const {
    // A stay of the waiting row keeps its room, and goes with it when the plan has fewer rooms.
    if (m.Zimmernummer > AnzahlZimmer()) return std::nullopt;
    if (m.Gelöscht) return Wartezeile();
    const int zeile = m.Zimmernummer - ErsteZeile_ + 1;
    if (zeile < 1 || zeile > Zimmerzeilen()) return std::nullopt;
    return zeile;
}

Planraster::Zellbereich Planraster::BereichFür(const Markierung& m, int zeile) const {
    const int vonTag = Tagesabstand(PlanStart(), m.Von);
    const int bisTag = Tagesabstand(PlanStart(), m.Bis);
    const int vorZeile = (zeile - 1) * AnzahlTage();
    const int start = vorZeile + vonTag + 1;
    const bool endetImFenster = bisTag < AnzahlTage() - 1;
    // A bar that runs past the window leaves the last column free, and the next line's bars from before the window take
    // just that cell (see Start below). Filling the column would let two lines fight for it.
    const int anzahl = endetImFenster ? bisTag - vonTag - 1 : AnzahlTage() - 2 - vonTag;
    // A bar from before the window also takes the cell before its line's first one: the last column of the line above,
    // or the template. Kept: without it a stay that leaves on the plan's first day could not be found on the plan.
    return {.Zeile = zeile,
            .Start = std::max(start, vorZeile),
            .Ende = start + anzahl,
            .BeginntVorher = vonTag < 0,
            .EndetImFenster = endetImFenster};
}

Farbe Planraster::FarbeFür(const Markierung& m) const {
    if (einstellungen_.FarbeTeilbelegt && m.Diff > 0) return *einstellungen_.FarbeTeilbelegt;
    const auto art = static_cast<std::size_t>(std::clamp(m.BelegungsID, 0, 8));
    return einstellungen_.Farben[art];
}

void Planraster::subMarkieren(const Markierung& m) {
    const auto zeile = ZeileFür(m);
    if (!zeile || !imKalender(m.Von) || !imKalender(m.Bis)) return;
    const auto bereich = BereichFür(m, *zeile);
    if (bereich.Ende < bereich.Start) return;
    const Farbe farbe = FarbeFür(m);
    const auto von = basic::Format(m.Von, "dd.mm.yyyy");
    const auto bis = basic::Format(m.Bis, "dd.mm.yyyy");
    for (int i = bereich.Start; i <= bereich.Ende; ++i) {
        const bool ersterTag = i == bereich.Start && !bereich.BeginntVorher;
        Bilder_[static_cast<std::size_t>(i)] = {
            .Fuellung = ersterTag ? aufgehellt(farbe, einstellungen_.ErsterTagDifferenz) : farbe,
            .Rahmen = m.Checked ? 3 : 1,
            .ErsterTag = ersterTag,
            .LetzteNacht = bereich.EndetImFenster && i == bereich.Ende,
            .Überlauf = i == (bereich.Zeile - 1) * AnzahlTage()};
        fülle(Tage_[static_cast<std::size_t>(i)], m, von, bis);
    }
}

bool Planraster::belegt(int zelle, int spalte) const {
    return Tage(zelle).ID != 0 || Bild(zelle).Fuellung != FreieFarbe(spalte);
}

bool Planraster::gleicherBalken(int zelle, int andere) const {
    const auto& a = Tage(zelle);
    const auto& b = Tage(andere);
    return a.ID == b.ID && a.Warteposition == b.Warteposition && Bild(zelle).Überlauf == Bild(andere).Überlauf &&
           !Bild(andere).ErsterTag;
}

Balken Planraster::BalkenAb(int zeile, int spalte) const {
    const int erste = Zelle(zeile, spalte);
    int letzte = erste;
    while (letzte < Zelle(zeile, AnzahlTage()) && belegt(letzte + 1, spalte + letzte + 1 - erste) &&
           gleicherBalken(letzte, letzte + 1))
        ++letzte;
    return {.Zeile = zeile,
            .VonSpalte = spalte,
            .BisSpalte = spalte + letzte - erste,
            .ID = Tage(erste).ID,
            .Kuerzel = Tage(erste).Kuerzel,
            .Rahmen = Bild(erste).Rahmen,
            .LinksOffen = !Bild(erste).ErsterTag,
            .RechtsOffen = !Bild(letzte).LetzteNacht,
            .Überlauf = Bild(erste).Überlauf};
}

std::vector<Balken> Planraster::BalkenDerZeile(int Zeile) const {
    std::vector<Balken> balken;
    for (int spalte = 1; spalte <= AnzahlTage(); ++spalte) {
        if (!belegt(Zelle(Zeile, spalte), spalte)) continue;
        balken.push_back(BalkenAb(Zeile, spalte));
        spalte = balken.back().BisSpalte;
    }
    return balken;
}

} // namespace plan
