#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace start {

/// The settings of the house as they were read at the last load of the plan window. Their records, fields and defaults
/// stand in settings_table.cpp; yes/no settings are the texts "Ja" and "Nein".
struct Einstellungen {
    // the installation
    std::string strTitel = "Herbergo"; ///< title of all message boxes
    std::string Waehrung;

    // the plan
    int AnzahlZimmer = 0; ///< without the waiting row, 0 to 98
    int SichtbareZeilen = 10;
    int ZeilenHoehe = 320; ///< twips
    int AnzahlTage = 35;
    int WochentagLinie = 2; ///< Sunday 1 to Saturday 7
    int ErstesZimmer = 1;
    int LetztesZimmer = 10;
    int ErsterTagDifferenz = 60;
    std::array<int, 9> Farben{};              ///< BGR, by occupancy type
    std::optional<int> FarbeSamstag;          ///< none: the free colour, brightened
    std::optional<int> FarbeSonntag;          ///< none: the free colour, brightened
    std::vector<std::string> Belegungsarten;  ///< names of the types 0 to 8 in the record
    std::vector<std::string> BelegArtenNamen; ///< the same in tbBelegArten
    std::vector<std::string> Beschriftungen;  ///< F1 heading of the occupancy frame, F2 of the rooms, F3 to F5 further
    int Aktualisieren = 0;                    ///< 1: a refresh is due on the next mouse event
    bool DruckenHardcopy = true;

    // reservations
    std::string AlleFreien;
    std::string Stammkunden;
    std::string ResGroesse; ///< "gross" or "klein"; of this workstation
    int VorgabeDatum = 0;
    int BlockBuchung = 0;
    std::vector<std::string> BeNummer;

    // laundry
    std::string Wäsche1Name;
    int Wäsche1Tage = 0;
    std::string Wäsche2Name;
    int Wäsche2Tage = 0;
    std::vector<std::string> WäscheOptionen; ///< F5 to F10

    // search and overview
    int AnzeigeSuchen = 0;
    std::string SuchNachname;
    std::string SuchVorname;
    std::string SuchStrasse;
    std::string SuchOrt;
    std::vector<std::string> Spaltenbeschriftung;
    std::vector<std::string> Spaltenbreiten;

    // billing
    std::vector<std::string> ReNummer;
    std::vector<std::string> Zahlungsziele;
    std::string RechnungAnzahlung;
    int RechnungAnzBerechnung = 0;
    std::string AuchBlock;
    std::vector<std::string> Rechnungsposten;
    std::vector<std::string> Rechnungsspalten;
    std::string MWST;
    std::string VorgabeWeitere;

    // what documents print, by the last letter: A offer, B confirmation, R invoice
    std::string MitGästezahlA, MitGästezahlB, MitGästezahlR;
    std::string GastnameA, GastnameB, GastnameR;
    std::string BlockbezB, BlockbezR;
    std::string ZwischenA, ZwischenB, ZwischenR;
    std::string ZimmerbemerkungA, ZimmerbemerkungB, ZimmerbemerkungR;
    std::string TextMitFrühstückA, TextMitFrühstückB, TextMitFrühstückR;
    std::string SaisonaufteilungA, SaisonaufteilungB, SaisonaufteilungR;
    std::string TextZimmerNummerA, TextZimmerNummerB, TextZimmerNummerR;
    std::string Artikel_BemerkungA, Artikel_BemerkungB, Artikel_BemerkungR;
    std::string Keine_MWSTA, Keine_MWSTB;
    std::string ZahlungB, ZahlungR;
    std::string DatumZusatzpostenA, DatumZusatzpostenB, DatumZusatzpostenR;
    std::string TextÜbernachtung, TextÜbernachtungMZ;

    // documents
    int Druckanzahl = 0;
    std::string WordProgramm;
    int mitAdresse = 0; ///< 0: documents carry the sender
    std::vector<std::string> Menünamen;
    std::vector<std::string> MenüExport;

    // upkeep
    int AnzSicherung = 0;

    bool PLZSuche = false; ///< the file with the postal codes is there
};

} // namespace start
