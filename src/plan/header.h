#pragma once

#include "masterdata/holidays.h"
#include "plan/colours.h"
#include "platform/basic/date.h"

#include <string>
#include <vector>

namespace plan {

/// What stands above and below a column, and at its left edge.
struct Kopfspalte {
    std::string Tag;       ///< day of the month, "dd"
    Farbe Monatsfarbe = 0; ///< of the band above it
    bool Wochenlinie = false;
    std::string Wochentag;   ///< small label of the week line, else empty
    std::string ToolTipText; ///< of a week line's column, else empty
};

/// A month's name over its columns.
struct Monatsname {
    int Spalte;          ///< its first column on the plan, from 1
    int Spalten;         ///< how many of its days are shown
    std::string Caption; ///< "Januar"
    bool Visible;        ///< whether it may be shown, if it fits at all (see passtInsRaster)
};

/// A holiday of the window.
struct tplFeiertag {
    std::string Datum; ///< "dd.mm.yyyy"
    std::string Bezeichnung;
    int Spalte; ///< days from PlanStart: 0 for the first column
};

/// One entry more than there are days: the last one stays invisible.
[[nodiscard]] std::vector<Kopfspalte> Kopfzeile(basic::Date start, int tage, int wochentagLinie);

[[nodiscard]] std::vector<Monatsname> Monatsnamen(basic::Date start, int tage);

/// Does a name of this width (in columns) end before the grid's right edge?
[[nodiscard]] bool passtInsRaster(const Monatsname& monat, double breiteInSpalten, int tage);

/// Colours of the day lines 0 to `tage`: line k is the right edge of column k, line 0 the left edge of the first.
/// `grundfarbe` is that of a plain line.
[[nodiscard]] std::vector<Farbe> Tageslinien(basic::Date start, int tage, basic::Date heute,
                                             const std::vector<tplFeiertag>& feiertage, Farbe grundfarbe);

[[nodiscard]] std::vector<tplFeiertag> FeiertageAb(basic::Date start, const std::vector<masterdata::Feiertag>& rows);

} // namespace plan
