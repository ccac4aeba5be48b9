#include "plan/grid.h"

#include "platform/basic/dates.h"
#include "platform/basic/format.h"

#include <algorithm>
#include <utility>

namespace plan {

namespace {

using basic::Date;
using basic::Format;

constexpr int Sonntag = 1;
constexpr int Samstag = 7;

} // namespace

Planraster::Planraster(const PlanEinstellungen& einstellungen, std::vector<masterdata::tplZimmer> zimmer,
                       Planquelle& quelle, const services::Clock& clock)
    : einstellungen_(bereinigt(einstellungen)), Zimmer_(std::move(zimmer)), quelle_(&quelle), clock_(&clock) {
    ansicht_.PlanStart = clock_->today();
    subGenTage(AnzahlZimmer(), AnzahlTage(), einstellungen_.ZeilenHoehe);
}

void Planraster::subGenTage(int Zeilen, int Tage, int Hoehe) {
    einstellungen_.AnzahlZimmer = Zeilen;
    einstellungen_.AnzahlTage = Tage;
    einstellungen_.ZeilenHoehe = Hoehe;
    einstellungen_ = bereinigt(einstellungen_);
    const auto zellen = static_cast<std::size_t>((AnzahlZimmer() + 1) * AnzahlTage()) + 1;
    ansicht_ = AnsichtAb(PlanStart(), AnzahlTage(), {});
    Tage_.assign(zellen, {});
    Bilder_.assign(zellen, {.Fuellung = einstellungen_.Farben[0]});
    PlanIDs_.clear();
    ErsteZeile_ = 1;
    for (int zelle = 1; zelle < static_cast<int>(zellen); ++zelle) {
        auto& inhalt = Tage_[static_cast<std::size_t>(zelle)];
        const auto zeile = static_cast<std::size_t>((zelle - 1) / AnzahlTage());
        if (zeile < Zimmer_.size()) inhalt.ZimmerName = Zimmer_[zeile].NeueNummer;
        inhalt.Zeile = static_cast<int>(zeile) + 1;
        inhalt.Datum = Format(Datum((zelle - 1) % AnzahlTage() + 1), "dd.mm.yy");
    }
}

int Planraster::fktTop(int Zeile) const { return (Zeile - 1) * einstellungen_.ZeilenHoehe; }

int Planraster::Zimmerzeilen() const { return std::min(AnzahlZimmer(), SichtbareZeilen()); }

int Planraster::HöchsteErsteZeile() const { return AnzahlZimmer() - Zimmerzeilen() + 1; }

void Planraster::setErsteZeile(int zeile) { ErsteZeile_ = std::clamp(zeile, 1, HöchsteErsteZeile()); }

Planraster::Ansicht Planraster::AnsichtAb(Date start, int tage,
                                          const std::vector<masterdata::Feiertag>& feiertage) const {
    Ansicht neu;
    neu.PlanStart = start.day();
    neu.Heute = clock_->today();
    neu.Kopf = Kopfzeile(neu.PlanStart, tage, einstellungen_.WochentagLinie);
    neu.Monate = Monatsnamen(neu.PlanStart, tage);
    neu.Feiertage = FeiertageAb(neu.PlanStart, feiertage);
    neu.Linien = Tageslinien(neu.PlanStart, tage, neu.Heute, neu.Feiertage, abgesetzt(einstellungen_.Farben[0], 14));
    for (int i = 0; i < tage; ++i)
        neu.FreieFarben.push_back(FreieFarbeAm(neu.PlanStart + i));
    return neu;
}

void Planraster::subZeigeDatum(Date Start, int Tage) {
    auto vorher = std::exchange(ansicht_, AnsichtAb(Start, Tage, quelle_->Feiertage(Start, Start + Tage)));
    try {
        subReservierungen(PlanStart(), Tage);
    } catch (...) {
        ansicht_ = std::move(vorher); // a new header over old bars would show every stay on a wrong day
        throw;
    }
}

void Planraster::subReservierungen(Date Start, int Tage) {
    // Five days of margin before the window and one behind it: the bars decide for themselves where they end.
    const auto& rows = quelle_->Reservierungen(Start - 5, Start + Tage);
    PlanIDs_.clear();
    subMarkierenWochenenden();
    for (const auto& row : rows) {
        PlanIDs_.push_back(row.ID);
        subMarkieren(row);
    }
    if (AktiveAuswahl) zeichneAuswahl();
}

void Planraster::zeichneAuswahl() {
    // A bar of nobody yet: what the rows behind it tell would give it a foreign name or put it into the waiting row.
    subMarkieren({.Von = AktiveAuswahl->Von,
                  .Bis = AktiveAuswahl->Bis,
                  .Zimmernummer = AktiveAuswahl->Zeile,
                  .BelegungsID = AktiveAuswahl->Art});
}

void Planraster::unfill(int Zelle) { fill(Zelle, {.Fuellung = FreieFarbe((Zelle - 1) % AnzahlTage() + 1)}); }

void Planraster::subMarkierenWochenenden() {
    const auto tage = static_cast<std::size_t>(AnzahlTage());
    std::vector<std::string> datum(tage);
    std::vector<Zellbild> frei(tage);
    for (std::size_t i = 0; i < tage; ++i) {
        datum[i] = Format(PlanStart() + static_cast<int>(i), "dd.mm.yy");
        frei[i].Fuellung = FreieFarbe(static_cast<int>(i) + 1);
    }
    Tage_[0].leeren();
    for (std::size_t zelle = 1; zelle < Tage_.size(); ++zelle) {
        const auto spalte = (zelle - 1) % tage;
        Tage_[zelle].leeren();
        Tage_[zelle].Datum = datum[spalte];
        Tage_[zelle].Zeile = static_cast<int>((zelle - 1) / tage) + 1;
        Bilder_[zelle] = frei[spalte];
    }
}

Farbe Planraster::FreieFarbeAm(Date tag) const {
    switch (basic::Weekday(tag)) {
    case Samstag:
        return einstellungen_.FarbeSamstag;
    case Sonntag:
        return einstellungen_.FarbeSonntag;
    default:
        return einstellungen_.Farben[0];
    }
}

bool Planraster::istFrei(int Zelle) const {
    const auto farbe = Bild(Zelle).Fuellung;
    return farbe == einstellungen_.Farben[0] || farbe == einstellungen_.FarbeSamstag ||
           farbe == einstellungen_.FarbeSonntag;
}

std::vector<Zimmerbeschriftung> Planraster::SUBSetLabels(int ErsteZeile) const {
    std::vector<Zimmerbeschriftung> labels;
    const auto zimmer = [&](int row) {
        const auto index = static_cast<std::size_t>(row - 1);
        return index < Zimmer_.size() ? &Zimmer_[index] : nullptr;
    };
    // The waiting row is the last room, also where the settings tell of fewer rows than there are rooms.
    const int letztes = std::max(AnzahlZimmer() + 1, static_cast<int>(Zimmer_.size()));
    for (int zeile = 1; zeile <= Wartezeile(); ++zeile) {
        const bool warten = zeile == Wartezeile();
        const auto* z = zimmer(warten ? letztes : ErsteZeile + zeile - 1);
        Zimmerbeschriftung label{.Name = "Zimmernummer" + Format(zeile, "00"),
                                 .Caption = z != nullptr ? z->NeueNummer : "",
                                 .ToolTipText = z != nullptr ? z->Bemerkungen : "",
                                 .Zimmer = z};
        if (z != nullptr && !z->Raucher.empty()) label.ToolTipText += " (" + z->Raucher + ")";
        if (warten) label.ToolTipText = "In dieser Zeile finden Sie alle noch nicht endgültigen Reservierungen.";
        labels.push_back(std::move(label));
    }
    return labels;
}

std::string Planraster::Zimmername(int zimmernummer) const {
    const auto zimmer = std::ranges::find(Zimmer_, zimmernummer, &masterdata::tplZimmer::Zimmernummer);
    return zimmer == Zimmer_.end() ? std::to_string(zimmernummer) : zimmer->NeueNummer;
}

std::string Planraster::Feiertag(Date datum) const {
    const int spalte = datum.dayNumber() - PlanStart().dayNumber();
    for (const auto& feiertag : Feiertage())
        if (feiertag.Spalte == spalte) return feiertag.Bezeichnung;
    return {};
}

} // namespace plan
