#include "start/settings_table.h"

#include "platform/basic/convert.h"
#include "platform/basic/numbers.h"
#include "platform/basic/text.h"
#include "store/first_run.h"

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace start {

namespace {

using E = Einstellungen;
using Texte = std::vector<std::string>;
using Liste = Texte E::*;

/// A record with the one field F1.
Satz eins(Abschnitt abschnitt, std::string_view name, Ziel ziel, std::string_view vorgabe,
          WennFehlt wennFehlt = WennFehlt::Vorgabe) {
    return {abschnitt, std::string(name), {{"F1", ziel, std::string(vorgabe)}}, wennFehlt};
}

/// Fields F`erstes` and on, one for each default.
std::vector<Feld> felder(Liste liste, const Texte& vorgaben, int erstes = 1) {
    std::vector<Feld> result;
    for (std::size_t platz = 0; platz < vorgaben.size(); ++platz)
        result.push_back(
            {"F" + std::to_string(erstes + static_cast<int>(platz)), Listenplatz{liste, platz}, vorgaben[platz]});
    return result;
}

Texte gleiche(std::size_t anzahl, std::string_view wert) { return Texte(anzahl, std::string(wert)); }

Texte gefolgtVon(Texte texte, std::size_t anzahl, std::string_view wert) {
    texte.resize(texte.size() + anzahl, std::string(wert));
    return texte;
}

Satz text(std::string_view name, Ziel ziel, std::string_view vorgabe, WennFehlt wennFehlt) {
    return {
        Abschnitt::Verhalten, std::string(name), {{"Inhalt", ziel, std::string(vorgabe)}}, wennFehlt, Ablage::Texte};
}

struct Druckoption {
    std::string_view Name;
    std::string E::*ziel;
    std::string_view Vorgabe = "Ja";
};

const std::initializer_list<Druckoption>& druckoptionen() {
    static const std::initializer_list<Druckoption> optionen = {
        {"MitGästezahlA", &E::MitGästezahlA},
        {"MitGästezahlB", &E::MitGästezahlB},
        {"MitGästezahlR", &E::MitGästezahlR},
        {"GastnameA", &E::GastnameA},
        {"GastnameB", &E::GastnameB},
        {"GastnameR", &E::GastnameR},
        {"BlockbezB", &E::BlockbezB, "Nein"},
        {"BlockbezR", &E::BlockbezR, "Nein"},
        {"ZwischenA", &E::ZwischenA},
        {"ZwischenB", &E::ZwischenB},
        {"ZwischenR", &E::ZwischenR},
        {"ZimmerbemerkungA", &E::ZimmerbemerkungA},
        {"ZimmerbemerkungB", &E::ZimmerbemerkungB},
        {"ZimmerbemerkungR", &E::ZimmerbemerkungR},
        {"TextMitFrühstückA", &E::TextMitFrühstückA},
        {"TextMitFrühstückB", &E::TextMitFrühstückB},
        {"TextMitFrühstückR", &E::TextMitFrühstückR},
        {"SaisonaufteilungA", &E::SaisonaufteilungA},
        {"SaisonaufteilungB", &E::SaisonaufteilungB},
        {"SaisonaufteilungR", &E::SaisonaufteilungR},
        {"TextZimmerNummerA", &E::TextZimmerNummerA},
        {"TextZimmerNummerB", &E::TextZimmerNummerB},
        {"TextZimmerNummerR", &E::TextZimmerNummerR},
        {"Artikel_BemerkungA", &E::Artikel_BemerkungA},
        {"Artikel_BemerkungB", &E::Artikel_BemerkungB},
        {"Artikel_BemerkungR", &E::Artikel_BemerkungR},
        {"Keine_MWSTA", &E::Keine_MWSTA},
        {"Keine_MWSTB", &E::Keine_MWSTB},
        {"ZahlungB", &E::ZahlungB},
        {"ZahlungR", &E::ZahlungR},
        {"DatumZusatzpostenA", &E::DatumZusatzpostenA},
        {"DatumZusatzpostenB", &E::DatumZusatzpostenB},
        {"DatumZusatzpostenR", &E::DatumZusatzpostenR},
        {"TextÜbernachtung", &E::TextÜbernachtung, "Übernachtung"},
        {"TextÜbernachtungMZ", &E::TextÜbernachtungMZ, "Übernachtungen"},
    };
    return optionen;
}

std::vector<Feld> farben() {
    const Texte beispiel = {"9399613", "16742405", "16762112", "16773888", "16056285", "0", "0", "0", "0"};
    std::vector<Feld> result;
    for (std::size_t art = 0; art < beispiel.size(); ++art)
        result.push_back({"F" + std::to_string(art + 1), Farbplatz{art}, beispiel[art]});
    result.push_back({"F10", &E::FarbeSamstag, ""});
    result.push_back({"F11", &E::FarbeSonntag, ""});
    return result;
}

/// What is held until the next start differs from what the record gets; both are kept.
std::vector<Feld> wäsche() {
    std::vector<Feld> result = {{"F1", &E::Wäsche1Name, "Handtücher", "Wäsche 1"},
                                {"F2", &E::Wäsche1Tage, "7"},
                                {"F3", &E::Wäsche2Name, "Bettwäsche", "Wäsche 2"},
                                {"F4", &E::Wäsche2Tage, "3"}};
    for (Feld& feld : felder(&E::WäscheOptionen, gefolgtVon({"1"}, 5, ""), 5))
        result.push_back(std::move(feld));
    return result;
}

Texte listenköpfe() {
    const auto captions = store::defaultColumnCaptions();
    return {captions.begin(), captions.end()};
}

using Tabelle = std::vector<Satz>;

void verhalten(Tabelle& t) {
    using enum Abschnitt;
    using enum WennFehlt;
    t.push_back(eins(Verhalten, "DruckenHardcopy", &E::DruckenHardcopy, "Wahr"));
    t.back().nullIst = NullIst::Leer;
    t.push_back(text("DruckAnzahl", &E::Druckanzahl, "2", Anlegen));
    t.push_back(eins(Verhalten, "VorgabeDatum", &E::VorgabeDatum, "0", Anlegen));
    t.push_back({Verhalten, "Zahlungsziele", felder(&E::Zahlungsziele, gefolgtVon({"Reiseantritt"}, 7, "0")), Anlegen});
    for (const Druckoption& option : druckoptionen())
        t.push_back(eins(Verhalten, option.Name, option.ziel, option.Vorgabe));
    t.push_back(eins(Verhalten, "Such_Nachname", &E::SuchNachname, "Ja"));
    t.push_back(eins(Verhalten, "Such_Vorname", &E::SuchVorname, "Ja"));
    t.push_back(eins(Verhalten, "Such_Strasse", &E::SuchStrasse, "Ja"));
    t.push_back(eins(Verhalten, "Such_Ort", &E::SuchOrt, "Ja"));
    t.push_back(eins(Verhalten, "AnzeigeSuchen", &E::AnzeigeSuchen, "0"));
    t.push_back(eins(Verhalten, "Aktualisieren", &E::Aktualisieren, "0", Anlegen));
    t.push_back(eins(Verhalten, "ErsterTag", &E::ErsterTagDifferenz, "60"));
    t.push_back(eins(Währung, "Währung", &E::Waehrung, "€", Anlegen));
    t.push_back(eins(Währung, "Stammkunden", &E::Stammkunden, "Ja"));
    t.push_back(eins(Währung, "AlleFreien", &E::AlleFreien, "Nein"));
}

void darstellung(Tabelle& t) {
    using enum Abschnitt;
    using enum WennFehlt;
    t.push_back(eins(Räume, "Räumlichkeiten", &E::AnzahlZimmer, "0", ErsterStart));
    t.push_back({Zeit,
                 "ZeitDarstellung",
                 {{"F1", &E::AnzahlTage, "35"}, {"F2", &E::WochentagLinie, "2"}},
                 WennFehlt::Einstellungen,
                 Ablage::Arbeitsplatz,
                 NullIst::Vorgabe,
                 1});
    t.push_back({Darstellung, "Räumlichkeiten", {{"F2", &E::SichtbareZeilen, "10"}, {"F3", &E::ZeilenHoehe, "320"}}});
    t.push_back({Darstellung, "Wäsche", wäsche(), Anlegen});
    t.push_back(
        {Abschnitt::Farben, "Farben", farben(), WennFehlt::Einstellungen, Ablage::Parameter, NullIst::Vorgabe, 2});
    t.push_back({Nummern, "Belegungsarten",
                 felder(&E::Belegungsarten, gefolgtVon({"frei", "Meier", "Schulze", "Tresen", "Angebot"}, 4, ""))});
    t.back().nullIst = NullIst::Leer;
    t.push_back({Nummern, "ReNummer", felder(&E::ReNummer, {"", "", "", "Alle", "Alle"})});
    t.push_back({Nummern, "BeNummer", felder(&E::BeNummer, {"", "", "", "Alle", ""})});
    t.push_back({Rest, "ZimVonBis", {{"F1", &E::ErstesZimmer, "1"}, {"F2", &E::LetztesZimmer, "10"}}});
}

void rest(Tabelle& t) {
    using enum Abschnitt;
    t.push_back({Rest, "Beschriftungen", felder(&E::Beschriftungen, {"Reserviert von:", "Zimmer", "", "", ""})});
    t.push_back(eins(Rest, "Res_Groesse", &E::ResGroesse, "gross"));
    t.back().ablage = Ablage::Arbeitsplatz;
    t.push_back({Rest, "Spaltenbeschriftung", felder(&E::Spaltenbeschriftung, listenköpfe())});
    t.push_back({Rest, "Spaltenbreiten", felder(&E::Spaltenbreiten, gleiche(listenköpfe().size(), ""))});
    t.push_back(eins(Rest, "AnzSicherung", &E::AnzSicherung, "10"));
    t.push_back({Rest, "Menünamen",
                 felder(&E::Menünamen,
                        gefolgtVon({"Dokument 1", "Dokument 2", "Dokument 3", "Dokument 4", "Dokument 5"}, 15, ""))});
    t.push_back({Rest, "Menü_Export", felder(&E::MenüExport, gleiche(20, "Nein"))});
    t.push_back(eins(Rest, "RechnungAnzahlung", &E::RechnungAnzahlung, "Nein"));
    t.push_back(eins(Rest, "RechnungAnzBerechnung", &E::RechnungAnzBerechnung, "0"));
    t.push_back(eins(Rest, "AuchBlock", &E::AuchBlock, "Nein"));
    t.push_back(
        {Rest, "Rechnungsposten", felder(&E::Rechnungsposten, {"Telefon", "Getränke", "Restaurant", "Sonstiges"})});
    t.push_back({Rest, "Rechnungsspalten", felder(&E::Rechnungsspalten, gleiche(16, ""))});
    t.push_back(eins(Rest, "MWST", &E::MWST, ""));
    t.push_back(eins(Rest, "BlockBuchung", &E::BlockBuchung, "0"));
    t.push_back(eins(Rest, "Vorgabe_Weitere", &E::VorgabeWeitere, ""));
    t.push_back(eins(Rest, "mitAdresse", &E::mitAdresse, "0"));
    t.push_back(text("WordProgramm", &E::WordProgramm, "Ja", WennFehlt::Vorgabe));
    t.back().abschnitt = Rest;
}

Tabelle tabelle() {
    Tabelle t = {eins(Abschnitt::Titel, "titel", &E::strTitel, "Herbergo", WennFehlt::Anlegen)};
    verhalten(t);
    darstellung(t);
    rest(t);
    return t;
}

struct Zuweisung {
    Einstellungen& e;
    const std::string& wert;

    void operator()(std::string E::*ziel) const { e.*ziel = wert; }
    void operator()(int E::*ziel) const { e.*ziel = zahl(wert); }
    void operator()(bool E::*ziel) const { e.*ziel = basic::equalText(wert, "Wahr"); }
    void operator()(std::optional<int> E::*ziel) const {
        e.*ziel = wert.empty() ? std::nullopt : std::optional(zahl(wert));
    }
    void operator()(const Listenplatz& ziel) const {
        auto& liste = e.*ziel.Liste;
        if (liste.size() <= ziel.Platz) liste.resize(ziel.Platz + 1);
        liste[ziel.Platz] = wert;
    }
    void operator()(const Farbplatz& ziel) const { e.Farben.at(ziel.Platz) = zahl(wert); }
};

} // namespace

const std::vector<Satz>& Satztabelle() {
    static const Tabelle t = tabelle();
    return t;
}

void zuweisen(Einstellungen& einstellungen, const Ziel& ziel, const std::string& wert) {
    std::visit(Zuweisung{einstellungen, wert}, ziel);
}

int zahl(std::string_view text) {
    constexpr double höchste = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(basic::Round(basic::Val(text)), -höchste, höchste));
}

} // namespace start
