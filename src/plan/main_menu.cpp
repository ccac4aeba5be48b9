#include "plan/main_menu.h"

#include <array>

namespace plan {

namespace {

using start::Fenster;
using Ziel = Menüpunkt::Ziel;

constexpr Menüpunkt fenster(std::string_view name, std::string_view caption, Fenster wohin) {
    return {.Name = name, .Caption = caption, .ziel = Ziel::Fenster, .fenster = wohin};
}

constexpr Menüpunkt programm(std::string_view name, std::string_view caption, std::string_view datei) {
    return {.Name = name, .Caption = caption, .ziel = Ziel::Programm, .datei = datei};
}

constexpr Menüpunkt dokument(std::string_view name, std::string_view caption, std::string_view datei) {
    return {.Name = name, .Caption = caption, .ziel = Ziel::Dokument, .datei = datei};
}

/// The title of the installation stands in front of it.
constexpr std::string_view Drucken = " &drucken";

constexpr std::array Datei = {
    fenster("mnuEinstellungen", "Eins&tellungen", Fenster::Einstellungen),
    fenster("mnuSaisonzeiten", "Saison&zeiten festlegen", Fenster::Saisonzeiten),
    Menüpunkt{.Name = "mnuBeispieldaten", .Caption = "&Beispieldaten anzeigen", .ziel = Ziel::Beispieldaten},
    fenster("mnuDrucken", Drucken, Fenster::Plandruck),
    fenster("mnuDatenbankpfad", "D&atenbankpfad einstellen", Fenster::Datenbankpfade),
    fenster("mnuDatensicherung", "&Datensicherung", Fenster::Datensicherung),
    fenster("mnuFeiertage", "&Feiertage", Fenster::Feiertage),
    Menüpunkt{.Name = "mnuBeenden", .Caption = "Be&enden   Alt+F4", .ziel = Ziel::Beenden},
};

constexpr std::array Bearbeiten = {
    Menüpunkt{.Name = "mnuNeueReservierung", .Caption = "Neue &Reservierung", .ziel = Ziel::NeueReservierung},
    Menüpunkt{.Name = "mnuDatenAb", .Caption = "&Daten anzeigen ab:", .ziel = Ziel::DatenAb},
    fenster("mnuReorganisation", "Re&organisation", Fenster::Reorganisation),
    fenster("mnuAdressenLöschen", "Adressen L&öschen", Fenster::AdressenLöschen),
    fenster("mnuDatenAufbereiten", "Daten &aufbereiten", Fenster::DatenAufbereiten),
    Menüpunkt{
        .Name = "mnuUpdate", .Caption = "Datenbank &Update", .ziel = Ziel::Strukturupdate, .datei = "strukturneu.exe"},
};

constexpr std::array Internet = {
    Menüpunkt{.Name = "mnuInternetAuftritt", .Caption = "Internet - &Auftritt", .ziel = Ziel::Internet}};

constexpr std::array Extras = {
    programm("mnuAdressverwaltung", "&Adressverwaltung", "kontaktor.exe"),
    fenster("mnuArtikel", "A&rtikel", Fenster::Artikel),
    Menüpunkt{.Name = "mnuStatistik",
              .Caption = "&Statistik",
              .ziel = Ziel::Programm,
              .datei = "auswerter.exe",
              .mitInstanz = true,
              .nurEigeneDaten = true,
              .ohneAngebote = true},
    programm("mnuDatenexport", "&Datenexport", "gebdaten.exe"),
    // The presence of the older import tool enables the entry, its successor is started: kept, since both are installed
    // together and houses without import have neither.
    Menüpunkt{.Name = "mnuDatenimport",
              .Caption = "Da&tenimport",
              .ziel = Ziel::Programm,
              .datei = "holdaten.exe",
              .programm = "holdaten2.exe"},
};

constexpr std::array Datenübersicht = {
    fenster("mnuDatenSuchen", "Daten &suchen, Listen erstellen", Fenster::Datenübersicht),
    fenster("mnuSchnellsuche", "Schnellsuche A&dressen", Fenster::Schnellsuche),
    fenster("mnuRechnungsnummern", "Suche nach &Rechnungsnummern", Fenster::Rechnungen),
    fenster("mnuAbreisedatum", "Suche nach &Abreisedatum", Fenster::Abreiseliste),
    Menüpunkt{
        .Name = "mnuLetzteReservierung", .Caption = "Zuletzt geöffnete Reservierung", .ziel = Ziel::LetzteReservierung},
};

constexpr std::array Info = {
    dokument("mnuHandbuch", "H&andbuch", "Handbuch.pdf"),
    dokument("mnuErsteSchritte", "Erste &Schritte für den Internet - Auftritt", "Internet.html"),
};

constexpr std::array Spalten = {
    Menüspalte{"mnuDatei", "&Datei", Datei},
    Menüspalte{"mnuBearbeiten", "&Bearbeiten", Bearbeiten},
    Menüspalte{"mnuInternet", "Inter&net ", Internet},
    Menüspalte{"mnuExtras", "E&xtras", Extras},
    Menüspalte{"mnuDatenübersicht", "Datenübersicht", Datenübersicht},
    Menüspalte{"mnuInfo", "&Info", Info},
};

std::string ohneZugriffstaste(std::string_view text) {
    std::string result;
    for (const char sign : text)
        result.append(sign == '&' ? 2U : 1U, sign);
    return result;
}

services::MenuEntry Eintrag(const Menüpunkt& punkt, const Umgebung& umgebung, std::string_view strTitel) {
    services::MenuEntry entry;
    entry.Name = punkt.Name;
    entry.Caption = punkt.Caption == Drucken ? ohneZugriffstaste(strTitel) : std::string();
    entry.Caption += punkt.Caption;
    entry.Enabled = freigegeben(punkt, umgebung);
    entry.Checked = punkt.ziel == Ziel::Beispieldaten && umgebung.BeispielAktiv;
    return entry;
}

} // namespace

std::span<const Menüspalte> Menüspalten() { return Spalten; }

bool freigegeben(const Menüpunkt& punkt, const Umgebung& umgebung) {
    if (punkt.nurEigeneDaten && umgebung.BeispielAktiv) return false;
    switch (punkt.ziel) {
    case Ziel::Fenster:
        return umgebung.has(punkt.fenster) && umgebung.öffnen != nullptr;
    case Ziel::Programm:
        return umgebung.hat(punkt.datei) && umgebung.starten != nullptr;
    case Ziel::Dokument:
        return umgebung.hat(punkt.datei) && umgebung.zeigen != nullptr;
    case Ziel::Strukturupdate:
        return umgebung.hat(punkt.datei) && umgebung.Strukturupdate != nullptr;
    case Ziel::Internet:
        return umgebung.Internet != nullptr;
    case Ziel::NeueReservierung:
    case Ziel::LetzteReservierung:
        return umgebung.has(Fenster::Reservierung);
    case Ziel::Beispieldaten:
        return umgebung.Beispieldaten != nullptr;
    case Ziel::DatenAb:
        return umgebung.dialogs != nullptr;
    case Ziel::Beenden:
        break;
    }
    return true;
}

services::Menu Hauptmenü(const Umgebung& umgebung, std::string_view strTitel) {
    services::Menu menu;
    for (const auto& spalte : Spalten) {
        services::MenuEntry head;
        head.Name = spalte.Name;
        head.Caption = spalte.Caption;
        for (const auto& punkt : spalte.Punkte)
            head.Entries.push_back(Eintrag(punkt, umgebung, strTitel));
        menu.Entries.push_back(std::move(head));
    }
    return menu;
}

const Menüpunkt* MenüpunktNamens(std::string_view name) {
    for (const auto& spalte : Spalten)
        for (const auto& punkt : spalte.Punkte)
            if (punkt.Name == name) return &punkt;
    return nullptr;
}

} // namespace plan
