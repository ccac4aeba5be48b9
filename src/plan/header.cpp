#include "plan/header.h"

#include "platform/basic/dates.h"
#include "platform/basic/format.h"

namespace plan {

namespace {

using basic::Date;
using basic::Format;

constexpr Farbe LinieHeute = Weiß;
constexpr Farbe LinieWochenende = 0x80FFFF;
constexpr Farbe LinieFeiertag = 0xC0C0FF;
/// From this day on, a month's name over the first columns would collide with the next month's.
constexpr int SpätImMonat = 24;

int Monat(Date datum) { return basic::partsOf(datum).month; }

Kopfspalte Spalte(Date datum, bool erste, int wochentagLinie) {
    Kopfspalte spalte;
    spalte.Tag = Format(datum, "dd");
    spalte.Monatsfarbe = Monatsfarben[static_cast<std::size_t>(Monat(datum) - 1)];
    spalte.Wochenlinie = basic::Weekday(datum) == wochentagLinie;
    if (spalte.Wochenlinie) {
        spalte.Wochentag = Format(datum, "ddd");
        spalte.ToolTipText = Format(datum, erste ? "ddd, dd.mmm.yyyy" : "ddd, dd.mmm.yy");
    }
    return spalte;
}

/// Lines first, first + 7, ... that exist.
void färbeWöchentlich(std::vector<Farbe>& linien, std::size_t first, Farbe farbe) {
    for (auto k = first; k < linien.size(); k += 7)
        linien[k] = farbe;
}

void färbeWochenenden(std::vector<Farbe>& linien, Date start) {
    const auto n = static_cast<std::size_t>(7 - basic::Weekday(start));
    if (n >= 5) linien[0] = LinieWochenende;
    if (n == 6) linien[1] = LinieWochenende;
    färbeWöchentlich(linien, n + 1, LinieWochenende);
    färbeWöchentlich(linien, n + 2, LinieWochenende);
}

} // namespace

std::vector<Kopfspalte> Kopfzeile(Date start, int tage, int wochentagLinie) {
    std::vector<Kopfspalte> kopf;
    for (int i = 0; i <= tage; ++i)
        kopf.push_back(Spalte(start + i, i == 0, wochentagLinie));
    return kopf;
}

std::vector<Monatsname> Monatsnamen(Date start, int tage) {
    std::vector<Monatsname> monate;
    for (int i = 0; i < tage; ++i) {
        const auto datum = start + i;
        if (i > 0 && Monat(datum) == Monat(datum - 1)) {
            ++monate.back().Spalten;
            continue;
        }
        const bool zeigen = i > 0 || basic::partsOf(datum).day < SpätImMonat;
        monate.push_back({.Spalte = i + 1, .Spalten = 1, .Caption = Format(datum, "mmmm"), .Visible = zeigen});
    }
    return monate;
}

bool passtInsRaster(const Monatsname& monat, double breiteInSpalten, int tage) {
    return monat.Spalte - 1 + breiteInSpalten <= tage;
}

std::vector<Farbe> Tageslinien(Date start, int tage, Date heute, const std::vector<tplFeiertag>& feiertage,
                               Farbe grundfarbe) {
    std::vector<Farbe> linien(static_cast<std::size_t>(tage) + 1, grundfarbe);
    const int k = heute.dayNumber() - start.dayNumber() + 1;
    if (k >= 0 && k <= tage) linien[static_cast<std::size_t>(k)] = LinieHeute;
    färbeWochenenden(linien, start);
    for (const auto& feiertag : feiertage)
        for (const int linie : {feiertag.Spalte, feiertag.Spalte + 1})
            if (linie >= 0 && linie <= tage) linien[static_cast<std::size_t>(linie)] = LinieFeiertag;
    return linien;
}

std::vector<tplFeiertag> FeiertageAb(Date start, const std::vector<masterdata::Feiertag>& rows) {
    std::vector<tplFeiertag> feiertage;
    feiertage.reserve(rows.size());
    for (const auto& row : rows)
        feiertage.push_back({.Datum = Format(row.Datum, "dd.mm.yyyy"),
                             .Bezeichnung = row.Bezeichnung,
                             .Spalte = row.Datum.dayNumber() - start.dayNumber()});
    return feiertage;
}

} // namespace plan
