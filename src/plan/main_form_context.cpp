#include "plan/main_form.h"
#include "platform/basic/format.h"
#include "platform/basic/text.h"
#include "reservations/states.h"

#include <algorithm>
#include <charconv>

namespace plan {

using basic::Format;

namespace {

/// All stays that a cell with a bar stands for.
std::vector<int> IDsDer(const tplZelle& zelle) {
    std::vector<int> ids;
    for (const auto& part : basic::Split(zelle.WeitereIDs, ",")) {
        int id = 0;
        std::from_chars(part.data(), part.data() + part.size(), id);
        if (id > 0) ids.push_back(id);
    }
    if (ids.empty()) ids = {zelle.ID};
    return ids;
}

constexpr services::MsgStyle kJaNein{services::MsgButtons::YesNo, services::MsgIcon::Question};

} // namespace

basic::Date frmMain::TagDerZelle(int zeile, int spalte) const {
    // The cell before a line's first one stands for the day before the plan.
    return raster_->Bild(raster_->Zelle(zeile, spalte)).Überlauf ? raster_->PlanStart() - 1 : raster_->Datum(spalte);
}

void frmMain::Kontext_Öffnen(Kontext wo) {
    ziel_ = {};
    Kontextmenü.Entries.clear();
    if (offen_ == 0 && !AuswahlAktiv()) Kontextmenü = plan::Kontextmenü(wo, umgebung_);
}

void frmMain::RechteTaste(int zeile, int spalte) {
    Kontextmenü.Entries.clear();
    if (offen_ > 0 || AuswahlAktiv() || !aufZellen(zeile, spalte)) return;
    const auto& zelle = raster_->Tage(raster_->Zelle(zeile, spalte));
    const auto tag = TagDerZelle(zeile, spalte);
    if (!aufBalken(zeile, spalte)) {
        Kontext_Öffnen(Kontext::Kontext2);
        ziel_ = {.Zimmernummer = Zimmernummer(zeile), .Tag = tag};
        return;
    }
    ungestört([&] {
        if (zelle.Warteposition)
            KontextWartend(zelle, tag);
        else
            KontextAufBalken(zelle);
    });
    // The bar shows what is there no more.
    if (Kontextmenü.Entries.empty()) cmdAktualisieren_Click();
}

void frmMain::KontextWartend(const tplZelle& zelle, basic::Date tag) {
    if (umgebung_.db == nullptr || WartendeLesen(*umgebung_.db, tag).empty()) return;
    ziel_ = {.IDs = IDsDer(zelle), .Wartetag = tag};
    Kontextmenü = plan::Kontextmenü(Kontext::KontReservierung, umgebung_, {.Angebot = true});
}

void frmMain::KontextAufBalken(const tplZelle& zelle) {
    if (umgebung_.db == nullptr) return;
    const auto stay = wähleAus(IDsDer(zelle));
    if (!stay) return;
    ziel_ = {.IDs = {stay->ID}};
    Kontextmenü = plan::Kontextmenü(
        Kontext::KontReservierung, umgebung_,
        {.Angebot = reservations::istAngebotOderWartet(*umgebung_.db, stay->ID), .Checked = stay->Checked});
}

std::optional<Aufenthalt> frmMain::wähleAus(const std::vector<int>& ids) {
    std::vector<Aufenthalt> stays;
    for (const int id : ids)
        if (auto stay = AufenthaltLesen(*umgebung_.db, id)) stays.push_back(std::move(*stay));
    if (stays.empty()) return std::nullopt;
    if (stays.size() == 1 || !umgebung_.Zimmerauswahl) return stays.front();
    frmZimmerauswahl form(stays, [this](int zimmer) { return raster_->Zimmername(zimmer); });
    umgebung_.Zimmerauswahl(form);
    const auto chosen =
        std::ranges::find(stays, form.Ergebnis(), [](const auto& stay) { return std::optional(stay.ID); });
    return chosen == stays.end() ? std::nullopt : std::optional(*chosen);
}

void frmMain::Kontext_Click(std::string_view name) {
    const auto* entry = Kontextmenü.find(name);
    if (offen_ > 0 || entry == nullptr || !entry->Enabled || !entry->Visible) return;
    const auto weg = KontextwegVon(name);
    Kontextmenü.Entries.clear();
    ungestört([&] { führeAus(weg); });
}

void frmMain::führeAus(const Kontextweg& weg) {
    const int id = ziel_.IDs.empty() ? 0 : ziel_.IDs.front();
    switch (weg.ziel) {
    case Kontextziel::ReservierungÖffnen:
        return öffneReservierung({.IDs = ziel_.IDs, .Wartetag = ziel_.Wartetag});
    case Kontextziel::NeueReservierung:
        return öffneReservierung(
            {.Zimmernummer = ziel_.Zimmernummer, .Von = ziel_.Tag, .Bis = ziel_.Tag, .Art = AuswahlArt});
    case Kontextziel::CheckIn:
        return CheckedÄndern(id, Check::In);
    case Kontextziel::CheckOut:
        return CheckedÄndern(id, Check::Out);
    case Kontextziel::Status:
        return zeigeStatus(id);
    case Kontextziel::DatenAb:
        return springe();
    case Kontextziel::Fenster:
        return umgebung_.öffnen(weg.fenster);
    case Kontextziel::Nichts:
        break;
    }
}

void frmMain::CheckedÄndern(int id, Check wohin) {
    const auto& titel = raster_->Einstellungen().strTitel;
    if (reservations::istAngebotOderWartet(*umgebung_.db, id)) {
        melde(wohin == Check::In ? "Die Reservierung ist als Angebot gekennzeichnet, deshalb ist ein 'Check in' nicht "
                                   "möglich."
                                 : "Die Reservierung ist als Angebot gekennzeichnet, deshalb ist ein 'Check out' nicht "
                                   "möglich.",
              titel);
        return;
    }
    reservations::CheckedSetzen(*umgebung_.db, id, wohin == Check::In);
    if (wohin == Check::Out && umgebung_.has(start::Fenster::Rechnungen) && umgebung_.öffnen &&
        umgebung_.dialogs->MsgBox("Rechnung schreiben?", kJaNein, titel) == services::MsgResult::Yes)
        umgebung_.öffnen(start::Fenster::Rechnungen);
    cmdAktualisieren_Click();
}

void frmMain::zeigeStatus(int id) {
    const bool bezahlt = umgebung_.istBezahlt(id);
    melde(bezahlt ? "Status: Bezahlt" : "Status: Offen", raster_->Einstellungen().strTitel);
}

void frmMain::Zimmer_Click(int zeile) {
    if (offen_ > 0 || zeile < 1 || zeile > raster_->Wartezeile() || umgebung_.db == nullptr ||
        !umgebung_.has(start::Fenster::Reservierung))
        return;
    ungestört([&] {
        const int zimmer = Zimmernummer(zeile);
        const auto ids = AktuelleReservierungen(*umgebung_.db, zimmer);
        if (!ids.empty()) return öffneReservierung({.IDs = {ids.front()}});
        const auto heute = clock_->today();
        melde("Es gibt keine aktuelle Reservierung zwischen dem " + Format(heute - 2, "dd.mm.yyyy") + " und dem " +
                  Format(heute + 2, "dd.mm.yyyy") + " für das Zimmer " + raster_->Zimmername(zimmer),
              raster_->Einstellungen().strTitel);
    });
}

void frmMain::Beschriftung_Ändern(Planbeschriftung was) {
    if (offen_ > 0 || AuswahlAktiv() || umgebung_.dialogs == nullptr || !umgebung_.Beschriften) return;
    ungestört([&] {
        auto text =
            was == Planbeschriftung::Belegungsrahmen ? optBelArt.Caption : raster_->Einstellungen().Zimmerspalte;
        if (!frageBezeichnung(text)) return;
        umgebung_.Beschriften(was, text);
        if (was == Planbeschriftung::Belegungsrahmen)
            optBelArt.Caption = text;
        else
            raster_->setZimmerspalte(text);
    });
}

bool frmMain::frageBezeichnung(std::string& text) {
    const auto& titel = raster_->Einstellungen().strTitel;
    for (;;) {
        const auto answer = umgebung_.dialogs->InputBox("Bitte geben Sie die neue Bezeichnung ein.", titel, text);
        if (!answer || basic::Trim(*answer).empty()) return false; // a heading without a word could not be found again
        text = *answer;
        // Both signs separate fields in the files of the mail merge.
        if (text.find(';') != std::string::npos)
            melde("Bitte verwenden Sie in der Bezeichnung kein Semikolon ';'.", titel);
        else if (text.find('~') != std::string::npos)
            melde("Bitte verwenden Sie in der Bezeichnung keine Tilde '~'.", titel);
        else
            return true;
    }
}

} // namespace plan
