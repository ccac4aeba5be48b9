#include "reservations/season_prices_form.h"

#include "platform/basic/convert.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "platform/jet/sql_values.h"
#include "reservations/telling.h"

#include <algorithm>
#include <array>

namespace reservations {

namespace {

using basic::Value;
using services::Leave;
using services::MsgIcon;
using services::MsgResult;
using services::TextBox;

struct Preisfeld {
    TextBox frmSaisonpreise::*Feld;
    const char* Spalte;
};

constexpr std::array<Preisfeld, 4> kFelder{{{&frmSaisonpreise::txtHaupt, "PreisHauptsaison"},
                                            {&frmSaisonpreise::txtZwischen, "PreisZwischensaison"},
                                            {&frmSaisonpreise::txtNeben, "PreisNebensaison"},
                                            {&frmSaisonpreise::txtSonder, "PreisSondersaison"}}};

std::string gezeigt(const Value& preis) { return preis.isNull() ? std::string() : basic::Format(preis, "#,##0.00"); }

bool istLeer(const TextBox& feld) { return basic::Trim(feld.Text).empty(); }

std::string zimmername(jet::Database& db, int zimmer) {
    auto rs = db.OpenRecordset("SELECT NeueNummer FROM tbZimmernummern WHERE Zimmernummer = " + jet::sqlNumber(zimmer),
                               jet::RecordsetType::Snapshot);
    return rs.Eof() ? std::string() : rs.At(0).textOr();
}

} // namespace

frmSaisonpreise::frmSaisonpreise(start::GlobalState& g, int zimmernummer) : g_(g), zimmer_(zimmernummer) {
    const std::string name = basic::quietly(std::string(), [&] { return zimmername(g.dbHaupt, zimmernummer); });
    caption_ = "Saisonpreise " + (name.empty() ? std::to_string(zimmernummer) : name);
    const bool da = basic::quietly(false, [this] { return lesen(); });
    for (const Preisfeld& preis : kFelder)
        (this->*preis.Feld).Enabled = da;
    cmdSpeichern.Enabled = da;
}

std::string frmSaisonpreise::abfrage() const {
    return " SELECT Zimmernummer, PreisDefault, PreisNebensaison, PreisZwischensaison,  PreisHauptsaison, "
           "PreisSondersaison From tbZimmernummern WHERE Zimmernummer = " +
           jet::sqlNumber(zimmer_);
}

bool frmSaisonpreise::lesen() {
    auto rs = g_.dbHaupt.OpenRecordset(abfrage(), jet::RecordsetType::Snapshot);
    if (rs.Eof()) return false;
    lblStandard.Caption = "Standardpreis: " + gezeigt(rs.Fields("PreisDefault").Value());
    for (const Preisfeld& preis : kFelder)
        (this->*preis.Feld).Text = gezeigt(rs.Fields(preis.Spalte).Value());
    return true;
}

Leave frmSaisonpreise::Preis_LostFocus(TextBox& feld) { return geprüft(feld) ? Leave::Go : Leave::Stay; }

bool frmSaisonpreise::geprüft(TextBox& feld) {
    if (istLeer(feld)) return true;
    if (const auto preis = basic::parseNumber(feld.Text)) {
        feld.Text = gezeigt(*preis);
        return true;
    }
    feld.SelectAll = true;
    feld.SetFocus();
    g_.dialogs.MsgBox("Bitte überprüfen Sie die Eingabe", {.icon = MsgIcon::Exclamation}, g_.strTitel());
    return false;
}

bool frmSaisonpreise::speichern() {
    if (!std::ranges::all_of(kFelder, [this](const Preisfeld& preis) { return geprüft(this->*preis.Feld); }))
        return false;
    return toldIfFailed(g_.dialogs, g_.strTitel(), [this] {
        auto rs = g_.dbHaupt.OpenRecordset(abfrage());
        if (rs.Eof()) return false;
        rs.Edit();
        for (const Preisfeld& preis : kFelder) {
            const TextBox& feld = this->*preis.Feld;
            rs.Fields(preis.Spalte) = istLeer(feld) ? Value() : Value(basic::CDbl(feld.Text));
        }
        rs.Update();
        geändert_ = false;
        return true;
    });
}

bool frmSaisonpreise::canClose() {
    if (!geändert_) return true;
    const services::MsgStyle style{.buttons = services::MsgButtons::YesNoCancel, .icon = MsgIcon::Question};
    const MsgResult antwort = g_.dialogs.MsgBox("Änderungen speichern?", style, g_.strTitel());
    if (antwort == MsgResult::Yes) return speichern();
    return antwort == MsgResult::No;
}

} // namespace reservations
