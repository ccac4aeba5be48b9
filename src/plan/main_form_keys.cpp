#include "plan/main_form.h"

#include <algorithm>

namespace plan {

bool frmMain::KeyDown(Plantaste taste, Umschalt umschalt) {
    if (offen_ > 0) return false;
    if (taste == Plantaste::Esc) return brichAb();
    if (taste == Plantaste::F6) {
        if (!cursor_) cursor_ = Zellcursor{std::max(fldZimmer, 1), std::max(fldTag, 1)};
        zeigeCursor();
        return true;
    }
    if (!cursor_) return false;
    if (taste == Plantaste::Return)
        drückeReturn();
    else if (taste == Plantaste::Menü)
        öffneKontextAmCursor();
    else if (umschalt == Umschalt::Gedrückt)
        zieheAuswahl(taste);
    else
        bewegeCursor(taste);
    return true;
}

bool frmMain::brichAb() {
    if (AuswahlAktiv()) {
        zeichnung_.clear();
        cmdAktualisieren_Click(); // a reload meanwhile may have brought another stay below the drawn one
        return true;
    }
    if (!cursor_) return false;
    cursor_.reset();
    MouseMove(0, 0);
    return true;
}

void frmMain::zeigeCursor() {
    cursor_->Zeile = std::clamp(cursor_->Zeile, 0, raster_->Wartezeile());
    cursor_->Spalte = std::clamp(cursor_->Spalte, 0, raster_->AnzahlTage());
    MouseMove(cursor_->Zeile, cursor_->Spalte, AuswahlAktiv() ? Maustaste::Links : Maustaste::Keine);
}

void frmMain::bewegeCursor(Plantaste taste) {
    if (AuswahlAktiv()) brichAb();
    auto& [zeile, spalte] = *cursor_;
    if (taste == Plantaste::Links) --spalte;
    if (taste == Plantaste::Rechts && ++spalte > raster_->AnzahlTage())
        Navigation_Click(Navigationsknopf("cmdNextDay"));
    // At the edge of the rooms the plan scrolls; the waiting row lies behind the last room, the header before the
    // first.
    if (taste == Plantaste::Auf) {
        if (zeile == 1 && raster_->ErsteZeile() > 1)
            ScrollBar_Change(ScrollBarValue() - 1);
        else
            --zeile;
    }
    if (taste == Plantaste::Ab) {
        if (zeile == raster_->Zimmerzeilen() && ScrollBarValue() < ScrollBarMax())
            ScrollBar_Change(ScrollBarValue() + 1);
        else
            ++zeile;
    }
    zeigeCursor();
}

void frmMain::zieheAuswahl(Plantaste taste) {
    if (taste != Plantaste::Links && taste != Plantaste::Rechts) return;
    if (!AuswahlAktiv()) {
        MouseDown(cursor_->Zeile, cursor_->Spalte);
        if (!AuswahlAktiv()) return;
        if (cursor_->Spalte == raster_->AnzahlTage()) Navigation_Click(Navigationsknopf("cmdNextDay"));
    }
    if (taste == Plantaste::Links) cursor_->Spalte = std::max(cursor_->Spalte - 1, 1);
    if (taste == Plantaste::Rechts) cursor_->Spalte = std::min(cursor_->Spalte + 1, raster_->AnzahlTage());
    betreten_.reset(); // at the last column the plan moves, not the cursor
    zeigeCursor();
    cursor_->Spalte = std::clamp(zeichnung_.platz().BisSpalte, 1, raster_->AnzahlTage());
}

void frmMain::drückeReturn() {
    const auto [zeile, spalte] = *cursor_;
    if (AuswahlAktiv()) {
        MouseUp();
    } else if (zeile == 0 && spalte == 0) {
        Beschriftung_Ändern(Planbeschriftung::Zimmerspalte);
    } else if (spalte == 0) {
        Zimmer_Click(zeile);
    } else if (aufBalken(zeile, spalte)) {
        RechteTaste(zeile, spalte);
        Kontext_Click("mnuReservierungÖffnen");
    } else {
        MouseDown(zeile, spalte);
        MouseUp();
    }
    zeigeCursor();
}

void frmMain::öffneKontextAmCursor() {
    const auto [zeile, spalte] = *cursor_;
    if (spalte == 0)
        Kontext_Öffnen(Kontext::KontextZimmer);
    else if (zeile == 0)
        Kontext_Öffnen(Kontext::KontextDatum);
    else
        RechteTaste(zeile, spalte);
}

} // namespace plan
