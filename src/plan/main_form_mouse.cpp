#include "plan/main_form.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"

#include <algorithm>

namespace plan {

using basic::Format;

namespace {

constexpr Farbe kBezahltgrün = 0x80FF80;

/// A full waiting row would tell of more stays than a screen can hold.
constexpr std::size_t kTippsHöchstens = 6;

std::string Kürzeltext(const tplZelle& zelle) {
    return zelle.Kuerzel + (zelle.Checked ? "/CH/" : "/") + std::to_string(zelle.Gaeste);
}

std::string Hilfe(const std::string& anfang, const std::string& von, const std::string& bis, const Gastname& gast) {
    return anfang + von + " bis: " + bis + "  von " + gast.FirstName + " " + gast.LastName + ", " + gast.City + " " +
           "Sie können die Reservierung mit der rechten Maustaste öffnen.";
}

/// The lighter way: what the cell itself knows.
std::string HilfeAusZelle(const tplZelle& zelle) {
    return Hilfe("Reservierung vom: ", zelle.Von, zelle.Bis, {zelle.Vorname, zelle.Nachname, ""});
}

/// Keeps events out while one is handled.
class Riegel {
public:
    explicit Riegel(bool& zu) : zu_(zu) { zu_ = true; }
    Riegel(const Riegel&) = delete;
    Riegel& operator=(const Riegel&) = delete;
    ~Riegel() { zu_ = false; }

private:
    bool& zu_;
};

} // namespace

bool frmMain::aufZellen(int zeile, int spalte) const {
    return zeile >= 1 && zeile <= raster_->Wartezeile() && spalte >= 1 && spalte <= raster_->AnzahlTage();
}

bool frmMain::aufBalken(int zeile, int spalte) const {
    if (!aufZellen(zeile, spalte)) return false;
    const int zelle = raster_->Zelle(zeile, spalte);
    return !raster_->istFrei(zelle) && raster_->Tage(zelle).ID != 0;
}

int frmMain::Zimmernummer(int zeile) const {
    return zeile == raster_->Wartezeile() ? raster_->AnzahlZimmer() + 1 : raster_->ErsteZeile() + zeile - 1;
}

Wirkung frmMain::MouseMove(int zeile, int spalte, Maustaste taste) {
    if (bewegt_ || offen_ > 0) return Wirkung::Nichts;
    const bool fällig = umgebung_.Aktualisieren != nullptr && *umgebung_.Aktualisieren == 1;
    const Zellcursor hier{zeile, spalte};
    if (!fällig && betreten_ == hier) return Wirkung::Nichts;
    const Riegel riegel(bewegt_);
    Wirkung wirkung = Wirkung::Status;
    basic::quietly([&] { betrete(zeile, spalte, taste, wirkung); });
    betreten_ = hier;
    return wirkung;
}

void frmMain::betrete(int zeile, int spalte, Maustaste taste, Wirkung& wirkung) {
    log_->Kopf();
    lblHilfe.Caption.clear();
    log_->Stufe("Position des Cursers ermittelt  ");
    if (umgebung_.Aktualisieren != nullptr && *umgebung_.Aktualisieren == 1) {
        *umgebung_.Aktualisieren = 0;
        cmdAktualisieren_Click();
        wirkung = Wirkung::Plan;
        log_->Stufe("Aktualisieren wurde angefordert und ist durchgeführt ");
    }
    leereStatus();
    if (!aufZellen(zeile, spalte)) return;
    fldTag = spalte;
    log_->Stufe("Tag eingetragen  ");
    fldZimmer = zeile;
    log_->Stufe("Zimmer eingetragen  ");
    zeigeTag(raster_->Datum(spalte));
    log_->Stufe("Datum eingetragen  ");
    log_->Stufe("Feiertag ermittelt  ");
    if (AuswahlAktiv() && taste == Maustaste::Links && verlängere(spalte, wirkung)) return;
    if (!aufBalken(zeile, spalte)) return;
    zeigeKürzel();
    log_->Stufe("Kürzel sichtbar  ");
    zeigeHilfe();
}

void frmMain::leereStatus() {
    fldTag = fldZimmer = txtIDBelegung = 0;
    fldDatum.Text.clear();
    fldWochentag.Text.clear();
    txtFeiertag.Text.clear();
    txtFeiertag.Visible = false;
    lblKürzel.Visible = false;
    cmdBezahlt.Caption = Unbekannt;
    cmdBezahlt.BackColor.reset();
}

void frmMain::zeigeTag(std::optional<basic::Date> tag) {
    fldDatum.Text = tag ? Format(*tag, "dd.mm.yy") : "";
    fldWochentag.Text = tag ? Format(*tag, "Ddd") : "";
    txtFeiertag.Text = tag ? raster_->Feiertag(*tag) : "";
    txtFeiertag.Visible = !txtFeiertag.Text.empty();
}

void frmMain::zeigeKürzel() {
    lblKürzel.Visible = false;
    txtIDBelegung = 0;
    if (!aufBalken(fldZimmer, fldTag)) return;
    const auto& zelle = raster_->Tage(raster_->Zelle(fldZimmer, fldTag));
    txtIDBelegung = zelle.ID;
    for (const auto& balken : raster_->BalkenDerZeile(fldZimmer)) {
        if (fldTag < balken.VonSpalte || fldTag > balken.BisSpalte) continue;
        lblKürzel.Caption = Kürzeltext(zelle);
        lblKürzel.Visible = true;
        KürzelPlatz = {balken.Zeile, balken.VonSpalte, balken.BisSpalte};
    }
}

std::string frmMain::Hilfetext() const {
    const auto& zelle = raster_->Tage(raster_->Zelle(fldZimmer, fldTag));
    log_->Stufe("Zugehörige Markierung gesucht  ");
    // The cell before a line's first one shows a stay of another room, or of another day.
    if (raster_->Bild(raster_->Zelle(fldZimmer, fldTag)).Überlauf) return HilfeAusZelle(zelle);
    if (umgebung_.db == nullptr) return {};
    const bool wartend = fldZimmer == raster_->Wartezeile();
    const auto tag = raster_->Datum(fldTag);
    log_->Stufe("Abfrage zusammengestellt  ");
    const auto rows =
        wartend ? UnterMausWartend(*umgebung_.db, tag) : UnterMausImZimmer(*umgebung_.db, Zimmernummer(fldZimmer), tag);
    log_->Stufe("Abfrage geöffnet  ");
    if (rows.empty()) return {};
    // Of several in the waiting row the last one is on the screen, and its cell tells what the query does not.
    const auto gezeigt = std::ranges::find(rows, zelle.ID, &Mausfund::ID);
    const auto& fund = wartend && gezeigt != rows.end() ? *gezeigt : rows.front();
    log_->Stufe("Überhänge eingefüllt  ");
    const auto gast = GastLesen(*umgebung_.db, wartend ? zelle.GastID : fund.GastID);
    log_->Stufe("Felder gefüllt  ");
    return Hilfe("Reservierung (" + fund.BelegNummer_eigen + ") vom: ", fund.Von, wartend ? zelle.Bis : fund.Bis,
                 gast.value_or(Gastname{}));
}

void frmMain::zeigeHilfe() {
    lblHilfe.Caption = Hilfetext();
    log_->Stufe("Labelfled ausgerichtet  ");
    log_->Stufe("Zahlung ermittelt  "); // the state itself follows when the pointer rests
    log_->Stufe("recordset geschlossen  ");
}

void frmMain::MouseRest() {
    if (txtIDBelegung == 0 || !umgebung_.istBezahlt || offen_ > 0) return;
    basic::quietly([&] {
        const bool bezahlt = umgebung_.istBezahlt(txtIDBelegung);
        cmdBezahlt.Caption = bezahlt ? "Bezahlt" : "Offen";
        cmdBezahlt.BackColor = bezahlt ? std::optional(kBezahltgrün) : std::nullopt;
    });
}

bool frmMain::verlängere(int spalte, Wirkung& wirkung) {
    wirkung = std::max(wirkung, Wirkung::Auswahl);
    if (!zeichnung_.extendTo(spalte)) return false;
    if (spalte == raster_->AnzahlTage()) {
        Navigation_Click(Navigationsknopf("cmdNextDay")); // the plan goes on under the drawn stay
        wirkung = Wirkung::Plan;
    }
    return true;
}

Wirkung frmMain::MouseHold() {
    if (!AuswahlAktiv() || fldTag != raster_->AnzahlTage()) return Wirkung::Nichts;
    const int zeile = fldZimmer;
    betreten_.reset();
    return MouseMove(zeile, raster_->AnzahlTage(), Maustaste::Links);
}

std::string frmMain::Ablehnung(int zeile) const {
    if (zeile == raster_->Wartezeile())
        return "Diese Zeile ist für vorläufige Reservierungen vorgesehen. Wählen Sie ein anderes Zimmer und speichern "
               "die Reservierung dann in der Warteposition.";
    if (AuswahlArt == 0) return "Wählen Sie vor Anlegen einer neuen Reservierung '" + optBelArt.Caption + "' aus.";
    return {};
}

Wirkung frmMain::MouseDown(int zeile, int spalte) {
    if (bewegt_ || offen_ > 0 || !umgebung_.has(start::Fenster::Reservierung)) return Wirkung::Nichts;
    if (!aufZellen(zeile, spalte)) return Wirkung::Nichts;
    const Wirkung wirkung = std::max(MouseLost(), Wirkung::Auswahl);
    log_->Kopf();
    log_->Stufe("Position des Cursers ermittelt  ");
    if (const auto grund = Ablehnung(zeile); !grund.empty()) {
        melde(grund, raster_->Einstellungen().strTitel);
        return wirkung;
    }
    // A new stay may begin on a departure day, but must have its first night.
    const int zelle = raster_->Zelle(zeile, spalte);
    if (!raster_->istFrei(zelle) || (spalte < raster_->AnzahlTage() && !raster_->istFrei(zelle + 1))) {
        melde("Hier besteht bereits eine Reservierung.", "Reservierung");
        return wirkung;
    }
    zeichnung_.begin(Zimmernummer(zeile), raster_->Datum(spalte), AuswahlArt, AuswahlFarbe);
    log_->Stufe("Zugehörige Markierung gesucht  ");
    return wirkung;
}

Wirkung frmMain::MouseLost() {
    if (!AuswahlAktiv()) return Wirkung::Nichts;
    brichAb();
    return Wirkung::Plan;
}

Wirkung frmMain::MouseUp() {
    if (!AuswahlAktiv() || bewegt_ || offen_ > 0) return Wirkung::Nichts;
    zeichnung_.release();
    const auto auswahl = zeichnung_.auswahl();
    // The drawn cells stay in sight behind the form.
    öffneReservierung({.Zimmernummer = auswahl.Zeile, .Von = auswahl.Von, .Bis = auswahl.Bis, .Art = auswahl.Art});
    return Wirkung::Plan;
}

std::string frmMain::ToolTip(int zeile, int spalte) const {
    if (umgebung_.db == nullptr || AuswahlAktiv() || offen_ > 0 || !aufBalken(zeile, spalte)) return {};
    const auto& zelle = raster_->Tage(raster_->Zelle(zeile, spalte));
    std::vector<Aufenthalt> stays;
    basic::quietly([&] {
        if (zelle.Warteposition)
            stays = WartendeLesen(*umgebung_.db, TagDerZelle(zeile, spalte));
        else if (auto stay = AufenthaltLesen(*umgebung_.db, zelle.ID))
            stays.push_back(std::move(*stay));
    });
    std::string text;
    for (std::size_t i = 0; i < stays.size() && i < kTippsHöchstens; ++i) {
        const auto& stay = stays[i];
        if (i > 0) text += "\n\n";
        text += stay.LastName + (stay.FirstName.empty() ? "" : ", " + stay.FirstName) + "\n" +
                Format(stay.Von, "ddd dd.mm.yyyy") + " – " + Format(stay.Bis, "ddd dd.mm.yyyy") + "\n" +
                (zelle.Warteposition ? "Warteposition" : "Zimmer " + raster_->Zimmername(stay.Zimmernummer)) + ", " +
                std::to_string(stay.AnzahlGäste) + (stay.AnzahlGäste == 1 ? " Gast" : " Gäste") + "\nPreis " +
                Format(stay.Preis, "#,##0.00") + " " + umgebung_.Waehrung;
    }
    if (stays.size() > kTippsHöchstens)
        text += "\n\n… und " + std::to_string(stays.size() - kTippsHöchstens) + " weitere";
    return text;
}

} // namespace plan
