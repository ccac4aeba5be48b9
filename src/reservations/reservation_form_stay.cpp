#include "platform/basic/convert.h"
#include "platform/basic/dates.h"
#include "platform/basic/format.h"
#include "platform/basic/quietly.h"
#include "platform/basic/text.h"
#include "reservations/overlap.h"
#include "reservations/reservation_form.h"
#include "start/parameters.h"

#include <algorithm>
#include <set>

namespace reservations {

namespace {

using services::Key;
using services::Leave;
using services::MsgResult;

constexpr auto Tagesformat = "dd.mm.yyyy";

/// A room's name in the list: smokers want to know.
std::string listenname(const masterdata::tplZimmer& zimmer) {
    return zimmer.Raucher.empty() ? zimmer.NeueNummer : zimmer.NeueNummer + " (" + zimmer.Raucher + ")";
}

std::string ohneRaucher(std::string_view text) {
    std::string name = basic::Trim(text);
    for (const std::string_view zusatz : {" (Raucher)", " (Nichtraucher)"})
        if (name.ends_with(zusatz)) name.erase(name.size() - zusatz.size());
    return basic::Trim(name);
}

/// Does a text of a date begin with its day? Reading falls back to other orders where the day cannot be, and the
/// thirty-first of February would become a day in 1931.
bool beginntMitTag(std::string_view text, basic::Date tag) {
    return static_cast<int>(basic::Val(basic::Split(text, ".").front())) == basic::partsOf(tag).day;
}

} // namespace

// Room

/// The rows that can be booked: the last one is the waiting row.
int frmReservierung::Zimmernummer() const {
    const std::string name = ohneRaucher(fldZimmer.Text);
    if (name.empty() || zimmer_.empty()) return 0;
    const auto gewählt = fldZimmer.Items.ItemData(fldZimmer.ListIndex);
    int gefunden = 0;
    for (auto zimmer = zimmer_.begin(); zimmer != zimmer_.end() - 1; ++zimmer) {
        if (!basic::equalText(zimmer->NeueNummer, name)) continue;
        if (zimmer->Zimmernummer == gewählt) return zimmer->Zimmernummer; // of two rooms with one name
        if (gefunden == 0) gefunden = zimmer->Zimmernummer;
    }
    return gefunden;
}

/// Without what the list adds to it.
std::string frmReservierung::zimmername() const { return ohneRaucher(fldZimmer.Text); }

/// With the option of free rooms those of the period, and the stay's own where the period is the stored one.
std::vector<int> frmReservierung::angeboteneZimmer() const {
    const auto von = datum(fldVon);
    const auto bis = datum(fldBis);
    const bool nurFreie = OptZiAuswahl1.Value == 1 && von && bis;
    std::set<int> frei;
    if (nurFreie)
        for (const auto& zimmer : FreieZimmer(g_.dbHaupt, *von, *bis))
            frei.insert(zimmer.Zimmernummer);
    const bool unverändert = ID() != 0 && !gespeichert_.Gelöscht && von == gespeichert_.Von && bis == gespeichert_.Bis;
    if (unverändert) frei.insert(gespeichert_.Zimmernummer);
    std::vector<int> angeboten;
    for (std::size_t platz = 0; platz + 1 < zimmer_.size(); ++platz) {
        const auto& zimmer = zimmer_[platz];
        if (!zimmer.NeueNummer.empty() && (!nurFreie || frei.contains(zimmer.Zimmernummer)))
            angeboten.push_back(zimmer.Zimmernummer);
    }
    return angeboten;
}

void frmReservierung::zimmerlisteFüllen() {
    const int gewählt = Zimmernummer();
    const auto angeboten = angeboteneZimmer();
    fldZimmer.Items.Clear();
    for (const auto& zimmer : zimmer_)
        if (std::ranges::find(angeboten, zimmer.Zimmernummer) != angeboten.end())
            fldZimmer.Items.AddItem(listenname(zimmer), zimmer.Zimmernummer);
    fldZimmer.choose(gewählt == 0 ? -1 : fldZimmer.Items.indexOfData(gewählt));
}

/// Chooses without follow-ups.
void frmReservierung::zimmerAuswählen(int nummer) {
    fldZimmer.choose(nummer == 0 ? -1 : fldZimmer.Items.indexOfData(nummer));
    const bool nichtInDerListe = nummer != 0 && fldZimmer.ListIndex < 0;
    const auto zimmer = std::ranges::find(zimmer_, nummer, &masterdata::tplZimmer::Zimmernummer);
    if (nichtInDerListe && zimmer != zimmer_.end() && zimmer->Zimmernummer != zimmer_.back().Zimmernummer)
        fldZimmer.Text = listenname(*zimmer);
    letztesZimmer_ = Zimmernummer();
}

void frmReservierung::zimmerGewechselt() {
    knöpfeBeschriften(); // an unknown name and none at all are the same room, but not the same captions
    const int nummer = Zimmernummer();
    if (nummer == letztesZimmer_) return;
    letztesZimmer_ = nummer;
    stand_.InWarteposition = false;
    Feld_Change();
    if (nummer != 0) basic::quietly([&] { preisAusZimmer(nummer); });
    warnen();
}

/// As the table has them now: another station may have added or removed a room.
std::optional<masterdata::tplVorgabe> frmReservierung::vorgabe(int nummer) const {
    const auto vorgaben = masterdata::VorgabeZimmerEinlesen(g_.dbHaupt);
    const auto gefunden = std::ranges::find(vorgaben, nummer, &masterdata::tplVorgabe::Zimmernummer);
    return nummer == 0 || gefunden == vorgaben.end() ? std::nullopt : std::optional(*gefunden);
}

/// A new stay takes the number of guests with any room; the rest of the block only while it is not fixed.
void frmReservierung::preisAusZimmer(int nummer) {
    if (chFix.Value && !stand_.NeueReservierung) return;
    const auto zimmer = vorgabe(nummer);
    if (!zimmer) return;
    fldAnzahlG_ste.Text = std::to_string(zimmer->AnzahlGästeDefault);
    if (chFix.Value) return;
    setzeTarif(basic::Format(zimmer->Preisdefault, "##,##0.00"));
    subSetPreis();
    setzeSaisonpreis(false);
}

void frmReservierung::fldZimmer_Click() { zimmerGewechselt(); }

Leave frmReservierung::fldZimmer_LostFocus() {
    if (!basic::Trim(fldZimmer.Text).empty() && Zimmernummer() == 0) {
        ablehnen("Bitte wählen Sie einen Eintrag aus der Liste.");
        return Leave::Stay;
    }
    zimmerGewechselt();
    return Leave::Go;
}

void frmReservierung::cmdAuswahl_Click() {
    basic::quietly([&] {
        zimmer_ = masterdata::ZimmerEinlesen(g_.dbHaupt);
        zimmerlisteFüllen();
    });
    zimmerGewechselt();
    fldZimmer.DropDownRequested = true;
}

void frmReservierung::OptZiAuswahl1_Click(int index) {
    OptZiAuswahl1.Value = index;
    basic::quietly([&] { zimmerlisteFüllen(); });
    zimmerGewechselt();
}

bool frmReservierung::OptZiAuswahl1_KeyDown(Key key) {
    if (key != Key::F2) return false;
    const MsgResult antwort =
        fragen("Sollen beim Öffnen des Formulars nur die freien Zimmer angeboten werden?",
               {services::MsgButtons::YesNoCancel, services::MsgIcon::Question}, "Vorgabe beim Öffnen");
    if (antwort == MsgResult::Cancel) return true;
    const bool ja = antwort == MsgResult::Yes;
    if (basic::quietly([&] { start::JaNeinSchreiben(g_.dbHaupt, "AlleFreien", ja ? 1 : 0); }))
        g_.einstellungen.AlleFreien = ja ? "Ja" : "Nein";
    return true;
}

// Days

std::optional<basic::Date> frmReservierung::datum(const services::TextBox& box) const {
    const std::string text = basic::Trim(box.Text);
    const auto tag = basic::parseDate(text, g_.clock.today());
    // The first of January 1900 stands for no date.
    if (!tag || !beginntMitTag(text, *tag) || *tag == basic::Date::fromYmd(1900, 1, 1)) return std::nullopt;
    return tag->day();
}

void frmReservierung::subSetNächte() {
    const auto von = datum(fldVon);
    const auto bis = datum(fldBis);
    fldResTage.Text = von && bis ? std::to_string(bis->dayNumber() - von->dayNumber()) : std::string();
}

void frmReservierung::datumGeändert() {
    Feld_Change();
    subSetNächte();
    prüfdatumNachziehen();
    preisFolgtDenTagen();
    warnen();
}

void frmReservierung::preisFolgtDenTagen() {
    const auto von = datum(fldVon);
    const auto bis = datum(fldBis);
    // While a year is typed, and after a check-out before the arrival, the days are in the wrong order until the save.
    if (von && bis && *von <= *bis && tarif() != 0) subSetPreis();
    // A price of the season belongs to its days: with others it stands there as a flat price.
    if (tarif() == 0) saisonpreisErkennen();
}

/// A plain check-in or check-out changes no date, so it follows what is typed.
void frmReservierung::prüfdatumNachziehen() { fldCheckDatum.Text = checked_ ? fldBis.Text : fldVon.Text; }

void frmReservierung::fldVon_Change() { datumGeändert(); }

void frmReservierung::fldBis_Change() { datumGeändert(); }

bool frmReservierung::tagVerschieben(services::TextBox& box, Key key) {
    if (key != Key::Plus && key != Key::Minus) return false;
    const auto tag = datum(box);
    if (!tag) return true;
    const auto neu = basic::quietly(*tag, [&] { return basic::DateAdd("d", key == Key::Plus ? 1 : -1, *tag); });
    box.Text = basic::Format(neu, Tagesformat);
    datumGeändert();
    return true;
}

bool frmReservierung::fldVon_KeyDown(Key key) { return tagVerschieben(fldVon, key); }

bool frmReservierung::fldBis_KeyDown(Key key) { return tagVerschieben(fldBis, key); }

Leave frmReservierung::datumVerlassen(services::TextBox& box) {
    if (const auto tag = datum(box)) {
        const std::string text = basic::Format(*tag, Tagesformat);
        const bool anders = text != box.Text;
        box.Text = text;
        if (anders) datumGeändert();
    }
    subSetNächte();
    if (OptZiAuswahl1.Value == 1) {
        basic::quietly([&] { zimmerlisteFüllen(); });
        zimmerGewechselt();
    }
    return Leave::Go;
}

Leave frmReservierung::fldVon_LostFocus() { return datumVerlassen(fldVon); }

Leave frmReservierung::fldBis_LostFocus() { return datumVerlassen(fldBis); }

// Overlap

void frmReservierung::warnen() {
    const bool vollständig = basic::Len(fldVon.Text) >= 6 && basic::Len(fldBis.Text) >= 6;
    if (vollständig && fldVon.Text == fldBis.Text)
        ablehnen("Das Anfangs- und Enddatum sind gleich. Bitte korrigiren Sie die Eingaben.");
    überschneidungPrüfen();
}

void frmReservierung::überschneidungPrüfen() {
    const auto von = datum(fldVon);
    const auto bis = datum(fldBis);
    const bool vollständig = basic::Len(fldVon.Text) >= 6 && basic::Len(fldBis.Text) >= 6;
    const int zimmer = Zimmernummer();
    überschneidung_ = vollständig && zimmer != 0 && von && bis && *von <= *bis && basic::quietly(false, [&] {
                          return Überschneidungswarnung(g_.dbHaupt, {zimmer, *von, *bis, ID()});
                      });
    lbWarnung.Visible = lbWarnungSchrift.Visible = überschneidung_;
    lbWarnung.BackColor = look::Überschneidung;
}

// Occupancy type

frmReservierung::Angebotszustand frmReservierung::angebot() const {
    if (istAngebot(cboArt.Text)) return Angebotszustand::Angebot;
    return basic::Trim(fldZimmer.Text).empty() ? Angebotszustand::OhneZimmer : Angebotszustand::Nein;
}

void frmReservierung::cboArt_Click() {
    Feld_Change();
    if (const int gäste = GästeDerBelegart(cboArt.Text); gäste != 0 && !chFix.Value)
        fldAnzahlG_ste.Text = std::to_string(gäste);
    knöpfeBeschriften();
}

} // namespace reservations
