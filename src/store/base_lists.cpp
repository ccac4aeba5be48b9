#include "store/base_lists.h"

#include "store/holidays.h"
#include "store/rows.h"

#include <array>
#include <span>

namespace store {

namespace {

constexpr int kFirstHolidayYear = 2020;
constexpr int kLastHolidayYear = 2035;

constexpr std::array<std::string_view, 6> kSalutations = {"Herr",  "Frau",          "Familie",
                                                          "Firma", "Herr und Frau", "Eheleute"};
constexpr std::array<std::string_view, 5> kCards = {"Visa", "Mastercard", "American Express", "Diners Club",
                                                    "girocard"};
constexpr std::array<std::string_view, 6> kPaymentKinds = {"Bar",         "Überweisung", "EC-Karte",
                                                           "Kreditkarte", "Lastschrift", "Scheck"};
constexpr std::array<std::string_view, 71> kCountries = {
    "Deutschland",    "Ägypten",        "Albanien",   "Andorra",    "Argentinien",
    "Armenien",       "Australien",     "Belarus",    "Belgien",    "Bosnien und Herzegowina",
    "Brasilien",      "Bulgarien",      "Chile",      "China",      "Dänemark",
    "Estland",        "Finnland",       "Frankreich", "Georgien",   "Griechenland",
    "Großbritannien", "Indien",         "Indonesien", "Iran",       "Irland",
    "Island",         "Israel",         "Italien",    "Japan",      "Kanada",
    "Kasachstan",     "Kolumbien",      "Kosovo",     "Kroatien",   "Lettland",
    "Liechtenstein",  "Litauen",        "Luxemburg",  "Malta",      "Marokko",
    "Mexiko",         "Moldau",         "Monaco",     "Montenegro", "Neuseeland",
    "Niederlande",    "Nordmazedonien", "Norwegen",   "Österreich", "Polen",
    "Portugal",       "Rumänien",       "Russland",   "San Marino", "Schweden",
    "Schweiz",        "Serbien",        "Slowakei",   "Slowenien",  "Spanien",
    "Südafrika",      "Südkorea",       "Taiwan",     "Thailand",   "Tschechien",
    "Tunesien",       "Türkei",         "Ukraine",    "Ungarn",     "USA",
    "Zypern"};

void fillList(jet::Database& database, std::string_view table, std::string_view field,
              std::span<const std::string_view> words) {
    jet::Recordset rows = database.OpenRecordset(table);
    for (const std::string_view word : words)
        addRow(rows, {{field, word}});
}

void fillHolidays(jet::Database& database) {
    jet::Recordset rows = database.OpenRecordset("tbFeiertage");
    int number = 0;
    for (int year = kFirstHolidayYear; year <= kLastHolidayYear; ++year)
        for (const Holiday& holiday : nationwideHolidays(year))
            addRow(rows,
                   {{"IDFeiertage", ++number}, {"FTBezeichnung", holiday.Bezeichnung}, {"FTDatum", holiday.Datum}});
}

} // namespace

void fillSharedLists(jet::Database& database) {
    fillList(database, "tbLänder", "Länder", kCountries);
    fillList(database, "tbAnreden", "Anrede", kSalutations);
    fillList(database, "tbKreditkarte", "Kreditkarte", kCards);
    jet::Recordset words = database.OpenRecordset("TblHilfeDarstellung");
    addRow(words, {{"WahrNichtWahr", false}, {"Beschreibung", "Nein"}});
    addRow(words, {{"WahrNichtWahr", true}, {"Beschreibung", "Ja"}});
}

void fillSourceLists(jet::Database& database) {
    fillList(database, "tbZahlart", "Zahlarten", kPaymentKinds);
    fillHolidays(database);
}

} // namespace store
