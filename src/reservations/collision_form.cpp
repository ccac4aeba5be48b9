#include "reservations/collision_form.h"

#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "reservations/blocks.h"
#include "reservations/states.h"

#include <algorithm>
#include <iterator>

namespace reservations {

namespace {

using services::MsgButtons;
using services::MsgIcon;
using services::MsgResult;
using start::Kollision;
using start::Kollisionsweg;

std::string überschrift(std::size_t anzahl) {
    if (anzahl == 1) return "Die neue Reservierung überschneidet sich mit folgender bereits vorhandenen Reservierung:";
    return "Die neue Reservierung überschneidet sich mit folgenden " + std::to_string(anzahl) +
           " bereits vorhandenen Reservierungen:";
}

std::string tagestext(basic::Date tag) { return basic::Format(tag, "dd.mm.yyyy"); }

/// The rooms of the plan have a heading of their own in each house.
std::string zimmerspalte(const start::Einstellungen& einstellungen) {
    const auto& texte = einstellungen.Beschriftungen;
    return texte.size() > 1 && !texte[1].empty() ? texte[1] : "Zimmer";
}

std::string kommaliste(const auto& einträge) {
    std::string liste;
    for (const auto& eintrag : einträge)
        liste += (liste.empty() ? "" : ",") + std::to_string(eintrag.Alt.ID);
    return liste;
}

int scrollhöhe(std::size_t anzahl) {
    constexpr int zeilen = frmCollision::Zeilen;
    return std::max(static_cast<int>(anzahl) - zeilen + 1, 0);
}

} // namespace

frmCollision::frmCollision(start::GlobalState& g, const start::KollisionAnfrage& anfrage) : g_(g) {
    lblÜberschrift.Caption = überschrift(anfrage.Kollisionen.size());
    lblBezeichnung.Caption = zimmerspalte(g.einstellungen);
    txtKürzel.Text = anfrage.Kürzel;
    txtVon.Text = anfrage.Von;
    txtBis.Text = anfrage.Bis;
    txtBezeichnungNeu.Text = anfrage.Zimmer;
    for (const Kollision& kollision : anfrage.Kollisionen)
        einträge_.push_back(eintragFür(kollision));
    scrColliMax = scrollhöhe(einträge_.size());
    for (services::ComboBox& combo : cboBez)
        combo.Editable = true;
    for (services::CheckBox& wartet : chkLöschen)
        wartet.Caption = "Warteposition";
    zeigen();
}

frmCollision::Eintrag frmCollision::eintragFür(const Kollision& kollision) const {
    Eintrag eintrag{.Alt = kollision,
                    .Freie = FreieZimmer(g_.dbHaupt, kollision.Von, kollision.Bis),
                    .Block = istBlockmitgliedMitKürzel(g_.dbHaupt, kollision.Kürzel)};
    // By its number: several rooms may have the same name. The room of the old stay is the one that the new one wants.
    std::erase_if(eintrag.Freie, [&](const FreiesZimmer& zimmer) { return zimmer.Zimmernummer == kollision.Zimmer; });
    eintrag.Alt.Warteposition = eintrag.Freie.empty();
    if (eintrag.Freie.empty()) return eintrag;
    eintrag.Auswahl = 0;
    eintrag.Text = eintrag.Freie.front().NeueNummer;
    return eintrag;
}

void frmCollision::Form_Activate() {
    const bool unlösbar = std::ranges::any_of(
        einträge_, [](const Eintrag& eintrag) { return eintrag.Block && eintrag.Alt.Warteposition; });
    if (!unlösbar || ergebnis_) return;
    g_.dialogs.MsgBox("Diese Reservierung kann nicht gespeichert werden. Es existieren Blockbuchugen, die nicht "
                      "verschoben werden können. Bitte ändern Sie die aktuelle Reservierung.",
                      {.icon = MsgIcon::Exclamation}, g_.strTitel());
    cmdÄndern_Click();
}

void frmCollision::zeigen() {
    for (std::size_t zeile = 0; zeile < Zeilen; ++zeile)
        zeigeZeile(zeile, eintragDer(static_cast<int>(zeile)));
}

void frmCollision::zeigeZeile(std::size_t zeile, const Eintrag* eintrag) {
    const bool gibtEs = eintrag != nullptr;
    lblKürzel[zeile].Visible = lblVon[zeile].Visible = lblBis[zeile].Visible = gibtEs;
    cboBez[zeile].Visible = chkLöschen[zeile].Visible = gibtEs;
    if (!gibtEs) return;
    lblKürzel[zeile].Caption = eintrag->Alt.Kürzel;
    lblVon[zeile].Caption = tagestext(eintrag->Alt.Von);
    lblBis[zeile].Caption = tagestext(eintrag->Alt.Bis);
    services::ComboBox& combo = cboBez[zeile];
    combo.Items.Clear();
    for (const FreiesZimmer& zimmer : eintrag->Freie)
        combo.Items.AddItem(zimmer.NeueNummer, zimmer.Zimmernummer);
    combo.ListIndex = eintrag->Auswahl;
    combo.Text = eintrag->Text;
    chkLöschen[zeile].Value = eintrag->Alt.Warteposition;
    chkLöschen[zeile].Enabled = !eintrag->Block;
}

frmCollision::Eintrag* frmCollision::eintragDer(int zeile) {
    const int platz = scrColli - 1 + zeile;
    return platz < std::ssize(einträge_) ? &einträge_[static_cast<std::size_t>(platz)] : nullptr;
}

void frmCollision::scrColli_Change(int position) {
    scrColli = std::clamp(position, 1, std::max(scrColliMax, 1));
    zeigen();
}

void frmCollision::cboBez_Click(int zeile) {
    Eintrag* eintrag = eintragDer(zeile);
    if (eintrag == nullptr) return;
    services::ComboBox& combo = cboBez[static_cast<std::size_t>(zeile)];
    eintrag->Auswahl = combo.ListIndex;
    combo.choose(combo.ListIndex);
    eintrag->Text = combo.Text;
}

/// Only the rooms offered count: the name of another one would put two stays into it.
void frmCollision::cboBez_Change(int zeile) {
    Eintrag* eintrag = eintragDer(zeile);
    if (eintrag == nullptr) return;
    services::ComboBox& combo = cboBez[static_cast<std::size_t>(zeile)];
    eintrag->Text = combo.Text;
    eintrag->Auswahl = combo.ListIndex = combo.Items.indexOf(basic::Trim(combo.Text));
}

void frmCollision::chkLöschen_Click(int zeile) {
    if (Eintrag* eintrag = eintragDer(zeile))
        eintrag->Alt.Warteposition = chkLöschen[static_cast<std::size_t>(zeile)].Value;
}

void frmCollision::cmdOK_Click() {
    for (Eintrag& eintrag : einträge_) {
        const bool gewählt = eintrag.Auswahl >= 0;
        eintrag.Alt.Zimmer = gewählt ? eintrag.Freie[static_cast<std::size_t>(eintrag.Auswahl)].Zimmernummer : 0;
    }
    const bool alle = basic::quietly(false, [this] { return verbuchen(); });
    schließen(Kollisionsweg::Verbuchen, alle);
}

/// A stay that is gone meanwhile is in nobody's way. One that fails does not keep the others back, and those that were
/// moved stay moved.
bool frmCollision::verbuchen() {
    if (einträge_.empty()) return true;
    bool alle = true;
    auto rs = g_.dbHaupt.OpenRecordset("SELECT *, Abgerechnet, IST_Geteilt FROM tblBelegung WHERE ID IN (" +
                                       kommaliste(einträge_) + ")");
    for (; !rs.Eof(); rs.MoveNext()) {
        const auto id = rs.Fields("ID").Value().longOr();
        const auto eintrag = std::ranges::find_if(einträge_, [id](const Eintrag& e) { return e.Alt.ID == id; });
        if (eintrag == einträge_.end()) continue;
        const bool verschoben = basic::quietly(false, [&] { return verschieben(rs, *eintrag); });
        alle = verschoben && alle;
    }
    return alle;
}

bool frmCollision::verschieben(jet::Recordset& rs, const Eintrag& eintrag) {
    const Kollision& alt = eintrag.Alt;
    if (istAbgerechnet(rs)) {
        nichtGespeichert(eintrag, ") konnte nicht gespeichert werden, weil sie bereits abgerechnet wurde.");
        return false;
    }
    if (alt.Zimmer == 0 && !darfWarten(eintrag)) {
        nichtGespeichert(eintrag, ") konnte nicht gespeichert werden, weil kein Zimmer mehr frei war.");
        return false;
    }
    rs.Edit();
    if (alt.Zimmer != 0) rs.Fields("Zimmernummer") = alt.Zimmer;
    rs.Fields("Gelöscht") = alt.Warteposition;
    rs.Update();
    return true;
}

bool frmCollision::darfWarten(const Eintrag& eintrag) {
    return eintrag.Alt.Warteposition &&
           g_.dialogs.MsgBox("Möchten Sie die Reservierung mit dem Kürzel " + eintrag.Alt.Kürzel +
                                 " in die Warteposition verschieben?",
                             {MsgButtons::YesNo, MsgIcon::Question}, g_.strTitel()) == MsgResult::Yes;
}

void frmCollision::nichtGespeichert(const Eintrag& eintrag, const std::string& grund) {
    g_.dialogs.MsgBox("Die Reservierung (" + eintrag.Alt.Kürzel + grund, {.icon = MsgIcon::Exclamation}, g_.strTitel());
}

void frmCollision::cmdÄndern_Click() { schließen(Kollisionsweg::Ändern, false); }

void frmCollision::cmdAbbrechen_Click() { schließen(Kollisionsweg::Verwerfen, true); }

void frmCollision::cmdWarten_Click() { schließen(Kollisionsweg::Warten, true); }

void frmCollision::schließen(Kollisionsweg weg, bool gelöst) {
    ergebnis_ = start::KollisionErgebnis{.Weg = weg, .gelöst = gelöst, .Zimmer = txtBezeichnungNeu.Text};
}

} // namespace reservations
