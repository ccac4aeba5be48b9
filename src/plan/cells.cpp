#include "plan/cells.h"

namespace plan {

void tplZelle::leeren() {
    for (auto* text : {&Vorname, &Nachname, &ZimmerName, &Datum, &Von, &Bis, &Kuerzel, &WeitereIDs})
        text->clear();
    ID = GastID = Tag = IDAdrRechnung = Gaeste = Zeile = 0;
    Checked = Angebot = Warteposition = false;
}

} // namespace plan
