#include "reservations/season_form.h"

#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "platform/jet/sql_values.h"
#include "reservations/telling.h"
#include "store/rows.h"

#include <algorithm>
#include <array>

namespace reservations {

namespace {

using basic::Date;
using services::Leave;
using services::MsgButtons;
using services::MsgDefault;
using services::MsgIcon;
using services::MsgResult;

constexpr auto kAusDerListe = "Bitte wählen Sie einen Eintrag aus der Liste.";
constexpr auto kDatumPrüfen = "Bitte überprüfen Sie das Datum";

/// By the columns of the grid; the ID cannot be clicked on.
constexpr std::array<const char*, 4> kSortierungen{"", " ORDER BY tbSaisonzeiten.Start",
                                                   " ORDER BY tbSaisonzeiten.Ende",
                                                   " ORDER BY tbSaisonzeiten.Saisonbezeichnung"};

std::string tag(const basic::Value& value) {
    return value.isNull() ? std::string() : basic::CStr(value.dateOr().day());
}

std::vector<Saisonzeit> saisonzeiten(jet::Database& db, const std::string& sortierung) {
    std::vector<Saisonzeit> zeilen;
    auto rs = db.OpenRecordset(" SELECT idSaisonzeiten,  Start as [Saison-Beginn], Ende as [Saison-Ende] , "
                               "Saisonbezeichnung   FROM tbSaisonzeiten  " +
                                   sortierung,
                               jet::RecordsetType::Snapshot);
    for (; !rs.Eof(); rs.MoveNext())
        zeilen.push_back({static_cast<int>(rs.At(0).longOr()), tag(rs.At(1)), tag(rs.At(2)), rs.At(3).textOr()});
    return zeilen;
}

std::string literal(Date date) { return "CVDATE(" + jet::sqlText(basic::CStr(date)) + ")"; }

std::string überschneidungen(Date von, Date bis) {
    const std::string innenVon = literal(von + 1);
    const std::string innenBis = literal(bis - 1);
    return "SELECT IDSaisonzeiten FROM tbSaisonzeiten WHERE   (Start >= " + innenVon + "  AND Start <= " + innenBis +
           " OR  Ende >= " + innenVon + "  AND Ende <= " + innenBis + " OR  (" + literal(von) + " > Start AND (" +
           literal(von) + ") < Ende)  OR (" + literal(bis) + " > Start AND (" + literal(bis) + " < Ende)))";
}

bool andereZeile(jet::Database& db, const std::string& select, int id) {
    auto rs = db.OpenRecordset(select, jet::RecordsetType::Snapshot);
    for (; !rs.Eof(); rs.MoveNext())
        if (rs.At(0).longOr() != id) return true;
    return false;
}

bool überschneidet(jet::Database& db, Date von, Date bis, int id) {
    // The first statement looks inside the days, and so past a season of exactly the same ones.
    return andereZeile(db, überschneidungen(von, bis), id) ||
           andereZeile(db,
                       "SELECT IDSaisonzeiten FROM tbSaisonzeiten WHERE Start = " + literal(von) +
                           " AND Ende = " + literal(bis),
                       id);
}

/// Gives the ID. A season that another station has deleted comes anew.
int schreiben(jet::Database& db, int id, const std::string& name, Date von, Date bis) {
    auto rs = db.OpenRecordset("SELECT * FROM tbSaisonzeiten WHERE IDSaisonzeiten = " + std::to_string(id));
    if (rs.Eof())
        return static_cast<int>(
            store::addCountedRow(rs, "idSaisonzeiten", {{"Saisonbezeichnung", name}, {"Start", von}, {"Ende", bis}}));
    rs.Edit();
    rs.Fields("Saisonbezeichnung") = name;
    rs.Fields("Start") = von;
    rs.Fields("Ende") = bis;
    rs.Update();
    return id;
}

/// First day of a season that joins the last one.
Date vorschlag(jet::Database& db, Date heute) {
    return basic::quietly(heute, [&] {
        auto rs = db.OpenRecordset("SELECT Max(tbSaisonzeiten.Ende) FROM tbSaisonzeiten", jet::RecordsetType::Snapshot);
        return rs.Eof() ? heute : rs.At(0).dateOr(heute);
    });
}

} // namespace

std::string Saisonliste::TextMatrix(int row, int column) const {
    const Saisonzeit& zeile = Zeilen.at(static_cast<std::size_t>(row));
    switch (column) {
    case 0:
        return std::to_string(zeile.ID);
    case 1:
        return zeile.Start;
    case 2:
        return zeile.Ende;
    default:
        return zeile.Saisonbezeichnung;
    }
}

int Saisonliste::RowOf(int id) const {
    const auto found = std::ranges::find(Zeilen, id, &Saisonzeit::ID);
    return found == Zeilen.end() ? -1 : static_cast<int>(found - Zeilen.begin());
}

frmSaison::frmSaison(start::GlobalState& g) : g_(g) {
    grSaison.Columns = {
        {"idSaisonzeiten", 0}, {"Saison-Beginn", 1800}, {"Saison-Ende", 1800}, {"Saisonbezeichnung", 2400}};
    grSaison.Rows = &liste_;
    txtName.Editable = true;
    for (const auto* name : {"Hauptsaison", "Zwischensaison", "Nebensaison", "Sondersaison"})
        txtName.Items.AddItem(name);
    txtVon.ToolTipText = "Der erste Tag einer neuen Saison ist identisch mit dem letzten Tag der vorherigen Saison.";
    txtBis.ToolTipText = "Der letzte Tag einer Saison ist gleichzeitig der erste Tag einer folgenden Saison.";
    einlesen();
    zeigen(0);
}

void frmSaison::einlesen() {
    const std::string sortierung =
        std::string(kSortierungen.at(static_cast<std::size_t>(sortierung_))) + (absteigend_ ? " desc" : "");
    liste_.Zeilen = basic::quietly(std::vector<Saisonzeit>(), [&] { return saisonzeiten(g_.dbHaupt, sortierung); });
    ++grSaison.version;
    grSaison.Row = liste_.RowOf(id_);
}

void frmSaison::zeigen(int row) {
    if (row < 0 || row >= liste_.RowCount()) return neu();
    const Saisonzeit& zeile = liste_.Zeilen[static_cast<std::size_t>(row)];
    id_ = zeile.ID;
    txtName.choose(txtName.Items.indexOf(zeile.Saisonbezeichnung));
    txtName.Text = zeile.Saisonbezeichnung;
    txtVon.Text = zeile.Start;
    txtBis.Text = zeile.Ende;
    geändert_ = false;
    grSaison.Row = row;
}

void frmSaison::neu() {
    id_ = 0;
    txtName.choose(-1);
    txtVon.Text = basic::CStr(vorschlag(g_.dbHaupt, g_.clock.today()).day());
    txtBis.Text.clear();
    geändert_ = false;
    grSaison.Row = -1;
    txtName.SetFocus();
}

void frmSaison::grSaison_HeaderClick(int column) {
    if (column < 1 || column >= static_cast<int>(kSortierungen.size())) return;
    absteigend_ = column == sortierung_ && !absteigend_;
    sortierung_ = column;
    einlesen();
}

void frmSaison::grSaison_RowColChange() {
    const int row = grSaison.Row;
    if (row < 0 || row >= liste_.RowCount()) return;
    const int id = liste_.Zeilen[static_cast<std::size_t>(row)].ID;
    if (id == id_) return;
    if (darfVerlassen())
        zeigen(liste_.RowOf(id)); // a save has read the rows anew
    else
        grSaison.Row = liste_.RowOf(id_);
}

void frmSaison::Feld_Change() { geändert_ = true; }

Leave frmSaison::txtName_LostFocus() {
    if (basic::Trim(txtName.Text).empty()) return Leave::Go;
    const int index = txtName.Items.indexOf(txtName.Text);
    if (index >= 0) {
        txtName.choose(index);
        return Leave::Go;
    }
    melden(kAusDerListe);
    return Leave::Stay;
}

Leave frmSaison::Datum_LostFocus(services::TextBox& feld) {
    if (basic::Trim(feld.Text).empty()) return Leave::Go;
    if (const auto tag = datum(feld)) {
        feld.Text = basic::CStr(*tag);
        return Leave::Go;
    }
    feld.SelectAll = true;
    melden(kDatumPrüfen);
    return Leave::Stay;
}

std::optional<Date> frmSaison::datum(const services::TextBox& feld) const {
    const auto gelesen = basic::parseDate(feld.Text, g_.clock.today());
    if (!gelesen) return std::nullopt;
    return gelesen->day();
}

void frmSaison::cmdNeu_Click() {
    if (darfVerlassen()) neu();
}

bool frmSaison::darfVerlassen() {
    if (!geändert_) return true;
    switch (g_.dialogs.MsgBox("Änderungen oder neue Daten speichern?",
                              {.buttons = MsgButtons::YesNoCancel, .icon = MsgIcon::Question},
                              "Änderungen speichern")) {
    case MsgResult::Yes:
        return speichern();
    case MsgResult::No:
        geändert_ = false;
        return true;
    default:
        return false;
    }
}

std::optional<frmSaison::Einwand> frmSaison::leeresFeld() {
    if (basic::Trim(txtName.Text).empty())
        return Einwand{"Das Feld 'Saisonbezeichnung' darf zum Speichern nicht leer sein", &txtName};
    if (basic::Trim(txtVon.Text).empty())
        return Einwand{"Das Feld 'Saisonbeginn' darf zum Speichern nicht leer sein", &txtVon};
    if (basic::Trim(txtBis.Text).empty())
        return Einwand{"Das Feld 'Saisonende' darf zum Speichern nicht leer sein", &txtBis};
    return std::nullopt;
}

std::optional<frmSaison::Einwand> frmSaison::einwand() {
    if (auto leer = leeresFeld()) return leer;
    if (txtName.Items.indexOf(txtName.Text) < 0) return Einwand{kAusDerListe, &txtName};
    const auto von = datum(txtVon);
    const auto bis = datum(txtBis);
    if (!von) return Einwand{kDatumPrüfen, &txtVon};
    if (!bis) return Einwand{kDatumPrüfen, &txtBis};
    if (*von == *bis)
        return Einwand{"Das Anfangs- und das Enddatum sind gleich. Bitte überprüfen Sie die Eingabe.", &txtBis};
    if (*bis < *von) return Einwand{"Bitte überprüfen Sie das Anfangs- und Enddatum.", &txtBis};
    if (überschneidet(g_.dbHaupt, *von, *bis, id_))
        return Einwand{"Die Saisonzeiten überschneiden sich mit einer bereits vorhandenen Saison. Bitte überprüfen Sie "
                       "die Eingabe.",
                       &txtVon};
    return std::nullopt;
}

bool frmSaison::speichern() {
    return toldIfFailed(g_.dialogs, g_.strTitel(), [this] {
        if (const auto gegen = einwand()) {
            gegen->Feld->SetFocus();
            melden(gegen->Text);
            return false;
        }
        // The price looks for the name in the spelling of the list.
        const std::string name = txtName.Items.List(txtName.Items.indexOf(txtName.Text));
        id_ = schreiben(g_.dbHaupt, id_, name, *datum(txtVon), *datum(txtBis));
        einlesen();
        zeigen(grSaison.Row);
        return true;
    });
}

void frmSaison::cmdL_schen_Click() {
    if (id_ == 0) {
        // Kept: a message of another dialog, known to users as the answer to a deletion without a row.
        melden("Der Zustand der Falle ist noch in Gebrauch und kann deshalb nicht gelöscht werden.");
        return;
    }
    const services::MsgStyle style{MsgButtons::YesNo, MsgIcon::Question, MsgDefault::Button2};
    if (g_.dialogs.MsgBox("Soll dieser Datensatz endgültig gelöscht werden?", style, g_.strTitel()) != MsgResult::Yes)
        return;
    const int row = grSaison.Row;
    const bool gelöscht = toldIfFailed(g_.dialogs, g_.strTitel(), [this] {
        g_.dbHaupt.Execute(" DELETE  From tbSaisonzeiten WHERE (((IDSaisonzeiten)=" + std::to_string(id_) + "))");
        return true;
    });
    if (!gelöscht) return;
    einlesen();
    zeigen(std::min(row, liste_.RowCount() - 1));
}

void frmSaison::melden(const std::string& text) {
    g_.dialogs.MsgBox(text, {.icon = MsgIcon::Exclamation}, g_.strTitel());
}

} // namespace reservations
